#include <tarnwise/TRN_DEA.h>

#include "frame/ModelFile.h"
#include "frame/Wizard.h"
#include "view/Platform.h"

namespace Tarnwise {

void SetHelp(Platform& screen, HelpOperation help) { screen.HostsHelp = std::move(help); }

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
  const int count = data.NumAtts();
  for (const VariantArray* scores : {&AX, &AY, &BX, &BY, &AOrientation, &ALX, &ALY, &AUX, &AUY}) {
    if (static_cast<int>(scores->size()) < count) throw RuntimeError(9);
  }
  Array<ABPoint> points;
  points.Allocate(count);
  for (int i = 0; i < count; ++i) {
    const auto k = static_cast<std::size_t>(i);
    points[i] = {ToSingle(AX[k]),  ToSingle(AY[k]),  ToSingle(BX[k]),  ToSingle(BY[k]), ToInteger(AOrientation[k]),
                 ToSingle(ALX[k]), ToSingle(ALY[k]), ToSingle(AUX[k]), ToSingle(AUY[k])};
  }
  data.ABPoints1 = points;
  data.ABPoints2 = points;
}

}  // namespace Tarnwise
