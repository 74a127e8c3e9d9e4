#include <tarnwise/TRN_DEA.h>

#include "model/mdTRNMain.h"
#include "view/Platform.h"
#include "wizard/OpenModel.h"
#include "wizard/Wizard.h"

namespace Tarnwise {

void SetHelp(Platform& screen, HelpOperation help) { screen.HostsHelp = std::move(help); }

VariantArray OrientationsOf(const VariantArray& ALX, const VariantArray& ALY, const VariantArray& AUX,
                            const VariantArray& AUY) {
  for (const VariantArray* corners : {&ALY, &AUX, &AUY}) {
    if (corners->size() != ALX.size()) throw RuntimeError(9);
  }
  VariantArray orientations;
  for (std::size_t i = 0; i < ALX.size(); ++i) {
    const bool across = ToDouble(ALX[i]) != ToDouble(AUX[i]);
    const bool upward = ToDouble(ALY[i]) != ToDouble(AUY[i]);
    orientations.emplace_back(Integer(across ? 1 : upward ? 2 : 0));
  }
  return orientations;
}

TRN_DEA::TRN_DEA(std::shared_ptr<Platform> platform) : wizard_(std::make_shared<Wizard>(std::move(platform))) {}

TRN_DEA::TRN_DEA(TRN_DEA&&) noexcept = default;

TRN_DEA& TRN_DEA::operator=(TRN_DEA&& other) noexcept {
  std::swap(wizard_, other.wizard_);
  return *this;
}

TRN_DEA::~TRN_DEA() {
  if (!wizard_) return;
  const std::shared_ptr<Wizard> held = std::move(wizard_);
  held->Events = {};
  held->UnloadTarnwise();
}

TRN_DEA_Events& TRN_DEA::Events() { return wizard_->Events; }

void TRN_DEA::ShowTarnwise() {
  const std::shared_ptr<Wizard> held = wizard_;
  held->ShowTarnwise();
}

void TRN_DEA::UnloadTarnwise() {
  const std::shared_ptr<Wizard> held = wizard_;
  held->UnloadTarnwise();
}

void TRN_DEA::GetCurFileData(const Variant& KestaDir, Integer FileIndex, const String& PathAndFileName) {
  const std::shared_ptr<Wizard> held = wizard_;
  WizardData& data = held->Data;
  data.KestaDir = ToText(KestaDir);
  data.FileIndex = FileIndex;
  data.PathAndFileName = PathAndFileName;
  ReadModelFile(data, *held->Screen, data.PathAndFileName);
}

void TRN_DEA::TranferABCoordinates(const VariantArray& AX, const VariantArray& AY, const VariantArray& BX,
                                   const VariantArray& BY, const VariantArray& AOrientation, const VariantArray& ALX,
                                   const VariantArray& ALY, const VariantArray& AUX, const VariantArray& AUY) {
  WizardData& data = wizard_->Data;
  const Array<ABPoint> points = PointsOf({AX, AY, BX, BY, AOrientation, ALX, ALY, AUX, AUY}, data.NumAtts());
  data.ABPoints1 = points;
  data.ABPoints2 = points;
}

}  // namespace Tarnwise
