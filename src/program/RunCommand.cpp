#include "model/ModelFile.h"
#include "model/mdTRNMain.h"
#include "modelfiles/Judgments.h"
#include "modelfiles/PlainJson.h"
#include "modelfiles/PointsFile.h"
#include "modelfiles/SaveModel.h"
#include "modelfiles/WholeFile.h"
#include "program/Commands.h"
#include "program/Screens.h"

#include <iostream>
#include <optional>

namespace Tarnwise {

namespace {

constexpr int kCancelled = 1;
constexpr Integer kFileIndex = 1;

Json JudgmentsJson(const Judgments& judgments, const WizardData& data) {
  Json attributes = Json::array();
  for (std::size_t i = 0; i < judgments.Weights.size(); ++i) {
    attributes.push_back({{"name", data.AttName(static_cast<int>(i))},
                          {"low", ToJson(judgments.WeightsL[i])},
                          {"ratio", ToJson(judgments.Weights[i])},
                          {"high", ToJson(judgments.WeightsH[i])}});
  }
  Json object = {{"type", judgments.RJType},
                 {"benefitReference", judgments.BRefAttID},
                 {"costReference", judgments.CRefAttID},
                 {"referenceRatio", ToJson(judgments.RefAttWR)},
                 {"attributes", attributes}};
  if (judgments.TradeOffs) object["points"] = ToJson(*judgments.TradeOffs);
  return object;
}

// The points that the wizard is given: those of the last time, else zeros. Bad ones are told and not used.
PointArrays StartingPoints(const String& model, int numAtts) {
  try {
    return ReadPoints(model, numAtts);
  } catch (const ModelFault& fault) {
    std::cerr << "The trade-off points of last time are not used: " << fault.what() << std::endl;
    return ZeroPoints(numAtts);
  }
}

void Save(const String& model, const Judgments& judgments, const WizardData& data) {
  if (judgments.TradeOffs) WritePoints(model, ResumablePoints(*judgments.TradeOffs));
  SaveJudgments(model, data, judgments.RJType, judgments.BRefAttID, judgments.CRefAttID, judgments.RefAttWR,
                judgments.Weights, judgments.WeightsH, judgments.WeightsL);
  std::cerr << "The judgments are stored in " << model << "; the next run resumes from them." << std::endl;
}

// Shows the wizard until the user is through with it; nothing when the user cancelled.
std::optional<Judgments> Ask(Hosted& dea, const RunScreen& screen, const String& model, int numAtts) {
  std::optional<Judgments> exported;
  bool done = false;
  dea.Events().SendMasseges = [](const String& Msg) { std::cerr << Msg << std::endl; };
  CollectJudgments(dea.Events(), [&exported](const Judgments& judgments) { exported = judgments; });
  dea.Events().UnloadTarnwise = [&](Integer /*fIndex*/, Boolean WeightsDone) {
    done = WeightsDone;
    dea.UnloadTarnwise();
    screen.End();
  };
  const std::filesystem::path folder = PathFromText(model).parent_path();
  dea.GetCurFileData(folder.empty() ? String(".") : TextFromPath(folder), kFileIndex, model);
  dea.TranferABCoordinates(StartingPoints(model, numAtts));
  dea.ShowTarnwise();
  screen.Wait();
  if (!done) exported.reset();
  return exported;
}

}  // namespace

int RunWizard(const RunOptions& options, int& argc, char** argv) {
  WizardData model;
  ReadModel(model, FileBytes(options.Model));  // one that is not there is told here, where nothing has been opened yet
  const RunScreen screen = OpenScreen(argc, argv, options.Com);
  const std::unique_ptr<Hosted> dea = screen.Make();
  const std::optional<Judgments> judgments = Ask(*dea, screen, options.Model, model.NumAtts());
  if (!judgments) {
    std::cerr << "Cancelled: no judgments were handed over." << std::endl;
    return kCancelled;
  }
  std::cout << JudgmentsJson(*judgments, model).dump(2) << std::endl;
  if (options.Save) Save(options.Model, *judgments, model);
  return 0;
}

}  // namespace Tarnwise
