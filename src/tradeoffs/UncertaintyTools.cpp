#include "tradeoffs/UncertaintyTools.h"

#include "runtime/Numbers.h"
#include "runtime/Text.h"

namespace Tarnwise {

namespace {

constexpr int kHorizontal = 1;
constexpr int kVertical = 2;

void EnableButtons(Toolbar& toolbar, bool enabled) {
  toolbar.EnableButton(1, enabled);
  toolbar.EnableButton(2, enabled);
}

std::vector<String> ChangeSteps(Double range) {
  std::vector<String> steps;
  for (const Double part : {30.0, 40.0, 50.0}) {
    steps.push_back(Format(static_cast<Double>(ToSingleChecked(range / part)), "0.00"));
  }
  return steps;
}

// Where each button's mover stands: what it moves, by how much, up to where, and which button it is.
struct Mover {
  Toolbar* Tools;
  int Button;
  Single* Corner;
  Single Step;
  Single Limit;
};

}  // namespace

UncertaintyTools::UncertaintyTools(UncertaintyControls& controls) : controls_(controls) {
  for (Toolbar* toolbar : {&controls_.tbMovLeft, &controls_.tbMovRight, &controls_.tbMovDown, &controls_.tbMovUp}) {
    toolbar->ButtonClick = [this](const String& key) { Pressed(key); };
  }
  controls_.tbCertain.ButtonClick = [this](const String&) { Certain(); };
  const auto numberOf = [](const ComboBox& box) {
    const int i = box.ListIndex;
    return i < 0 ? 0.0F : ToSingleChecked(Val(box.List()[static_cast<std::size_t>(i)]));
  };
  controls_.cmbChangeH.Click = [this, numberOf] { mStepH = numberOf(controls_.cmbChangeH); };
  controls_.cmbChangeV.Click = [this, numberOf] { mStepV = numberOf(controls_.cmbChangeV); };
}

void UncertaintyTools::EnableToolbars(bool enabled) {
  for (Toolbar* toolbar :
       {&controls_.tbCertain, &controls_.tbMovDown, &controls_.tbMovUp, &controls_.tbMovLeft, &controls_.tbMovRight}) {
    toolbar->Enabled = enabled;
  }
}

void UncertaintyTools::Show(int orientation) {
  EnableButtons(controls_.tbMovLeft, orientation != kVertical);
  EnableButtons(controls_.tbMovRight, orientation != kVertical);
  EnableButtons(controls_.tbMovUp, orientation != kHorizontal);
  EnableButtons(controls_.tbMovDown, orientation != kHorizontal);
  controls_.cmbChangeH.Visible = orientation == kHorizontal;
  controls_.cmbChangeV.Visible = orientation == kVertical;
}

void UncertaintyTools::FillChangeSteps(const AttValueData& values, int target, int reference) {
  const auto fill = [&values](ComboBox& box, int att) {
    box.List = ChangeSteps(values.ScoreMax[att] - values.ScoreMin[att]);
    box.ListIndex = 0;
    return ToSingleChecked(Val(box.List()[0]));
  };
  mStepH = fill(controls_.cmbChangeH, target);
  mStepV = fill(controls_.cmbChangeV, reference);
}

void UncertaintyTools::Move(const String& key, ABPoint& p, const ChartScale& scale) {
  const bool horizontal = key.compare(0, 7, "MovLeft") == 0 || key.compare(0, 8, "MovRight") == 0;
  p.AOrientation = horizontal ? kHorizontal : kVertical;
  Show(p.AOrientation);

  UncertaintyControls& u = controls_;
  Mover mover{};
  if (key == "MovLeft") mover = {&u.tbMovLeft, 1, &p.ALX, -mStepH, scale.XMin};
  if (key == "MovLeftBack") mover = {&u.tbMovLeft, 2, &p.ALX, mStepH, p.AX};
  if (key == "MovRightBack") mover = {&u.tbMovRight, 1, &p.AUX, -mStepH, p.AX};
  if (key == "MovRight") mover = {&u.tbMovRight, 2, &p.AUX, mStepH, scale.XMax};
  if (key == "MovDownBack") mover = {&u.tbMovDown, 1, &p.ALY, mStepV, p.AY};
  if (key == "MovDown") mover = {&u.tbMovDown, 2, &p.ALY, -mStepV, scale.YMin};
  if (key == "MovUp") mover = {&u.tbMovUp, 1, &p.AUY, mStepV, scale.YMax};
  if (key == "MovUpBack") mover = {&u.tbMovUp, 2, &p.AUY, -mStepV, p.AY};
  if (mover.Tools == nullptr) return;

  *mover.Corner = CheckedSingle(*mover.Corner + mover.Step);
  const bool upward = key == "MovLeftBack" || key == "MovRight" || key == "MovDownBack" || key == "MovUp";
  if (upward ? *mover.Corner >= mover.Limit : *mover.Corner <= mover.Limit) {
    *mover.Corner = mover.Limit;
    mover.Tools->EnableButton(mover.Button, false);
  }
}

}  // namespace Tarnwise
