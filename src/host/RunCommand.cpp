#include "frame/mdTRNMain.h"
#include "host/Commands.h"
#include "host/Json.h"
#include "host/SaveModel.h"
#include "host/WholeFile.h"

#include <tarnwise/TRN_DEA.h>

#include <QApplication>

#include <iostream>
#include <optional>

namespace Tarnwise {

namespace {

constexpr int kCancelled = 1;
constexpr Integer kFileIndex = 1;

struct Judgments {
  String RJType;
  Integer BRefAttID = 0;
  Integer CRefAttID = 0;
  Variant RefAttWR;
  VariantArray Weights;
  VariantArray WeightsH;
  VariantArray WeightsL;
};

Json JudgmentsJson(const Judgments& judgments, const WizardData& data) {
  Json attributes = Json::array();
  for (std::size_t i = 0; i < judgments.Weights.size(); ++i) {
    attributes.push_back({{"name", data.AttName(static_cast<int>(i))},
                          {"low", ToJson(judgments.WeightsL[i])},
                          {"ratio", ToJson(judgments.Weights[i])},
                          {"high", ToJson(judgments.WeightsH[i])}});
  }
  return {{"type", judgments.RJType},
          {"benefitReference", judgments.BRefAttID},
          {"costReference", judgments.CRefAttID},
          {"referenceRatio", ToJson(judgments.RefAttWR)},
          {"attributes", attributes}};
}

// Shows the wizard until the user is through with it; nothing when the user cancelled.
std::optional<Judgments> Ask(const String& model) {
  TRN_DEA dea(MakeQtPlatform());
  std::optional<Judgments> exported;
  bool done = false;
  dea.Events().SendMasseges = [](const String& Msg) { std::cerr << Msg << std::endl; };
  dea.Events().ExportDirectBW = [&exported](const String& RJType, Integer BRefAttID, Integer CRefAttID,
                                            const Variant& RefAttWR, const VariantArray& Weights,
                                            const VariantArray& WeightsH, const VariantArray& WeightsL) {
    exported = Judgments{RJType, BRefAttID, CRefAttID, RefAttWR, Weights, WeightsH, WeightsL};
  };
  dea.Events().UnloadTarnwise = [&](Integer /*fIndex*/, Boolean WeightsDone) {
    done = WeightsDone;
    dea.UnloadTarnwise();
    QApplication::quit();
  };
  const std::filesystem::path folder = PathFromText(model).parent_path();
  dea.GetCurFileData(folder.empty() ? String(".") : folder.string(), kFileIndex, model);
  const VariantArray zeros(static_cast<std::size_t>(std::max(0, mdTRNMain().NumAtts())), Variant(0.0));
  dea.TranferABCoordinates(zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros);
  dea.ShowTarnwise();
  QApplication::exec();
  if (!done) exported.reset();
  return exported;
}

}  // namespace

int RunWizard(const RunOptions& options, int& argc, char** argv) {
  FileBytes(options.Model);  // a model that is not there is told here, where nothing has been opened yet
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const std::optional<Judgments> judgments = Ask(options.Model);
  if (!judgments) {
    std::cerr << "Cancelled: no judgments were handed over." << std::endl;
    return kCancelled;
  }
  std::cout << JudgmentsJson(*judgments, mdTRNMain()).dump(2) << std::endl;
  if (!options.Save) return 0;
  SaveJudgments(options.Model, mdTRNMain(), judgments->RJType, judgments->BRefAttID, judgments->CRefAttID,
                judgments->RefAttWR, judgments->Weights, judgments->WeightsH, judgments->WeightsL);
  std::cerr << "The judgments are stored in " << options.Model << "; the next run resumes from them." << std::endl;
  return 0;
}

}  // namespace Tarnwise
