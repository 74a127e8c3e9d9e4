// The tools that stretch A into a line: its two ends give the two ends of the ratio interval.
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "tradeoffs/frmTradeOffsB.h"

namespace Tarnwise {

namespace {

constexpr Colour kLineColour = 16711680;  // bright blue of the sixteen-colour table
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

void frmTradeOffsB::ConnectUncertainty() {
  for (Toolbar* toolbar :
       {&Uncertainty.tbMovLeft, &Uncertainty.tbMovRight, &Uncertainty.tbMovDown, &Uncertainty.tbMovUp}) {
    toolbar->ButtonClick = [this](const String& key) { Move(key); };
  }
  Uncertainty.tbCertain.ButtonClick = [this](const String&) { tbCertain_ButtonClick(); };
  const auto numberOf = [](const ComboBox& box) {
    const int i = box.ListIndex;
    return i < 0 ? 0.0F : ToSingleChecked(Val(box.List()[static_cast<std::size_t>(i)]));
  };
  Uncertainty.cmbChangeH.Click = [this, numberOf] { mStepH = numberOf(Uncertainty.cmbChangeH); };
  Uncertainty.cmbChangeV.Click = [this, numberOf] { mStepV = numberOf(Uncertainty.cmbChangeV); };
}

// The pair of both references is never uncertain.
void frmTradeOffsB::EnableToolbars() {
  for (Toolbar* toolbar : {&Uncertainty.tbCertain, &Uncertainty.tbMovDown, &Uncertainty.tbMovUp, &Uncertainty.tbMovLeft,
                           &Uncertainty.tbMovRight}) {
    toolbar->Enabled = !IsRefPair();
  }
}

void frmTradeOffsB::SetUncertaintyTools(int orientation) {
  EnableButtons(Uncertainty.tbMovLeft, orientation != kVertical);
  EnableButtons(Uncertainty.tbMovRight, orientation != kVertical);
  EnableButtons(Uncertainty.tbMovUp, orientation != kHorizontal);
  EnableButtons(Uncertainty.tbMovDown, orientation != kHorizontal);
  Uncertainty.cmbChangeH.Visible = orientation == kHorizontal;
  Uncertainty.cmbChangeV.Visible = orientation == kVertical;
}

void frmTradeOffsB::FillChangeSteps() {
  const AttValueData& values = data_.AttValueData;
  const auto fill = [&values](ComboBox& box, int att) {
    box.List = ChangeSteps(values.ScoreMax[att] - values.ScoreMin[att]);
    box.ListIndex = 0;
    return ToSingleChecked(Val(box.List()[0]));
  };
  mStepH = fill(Uncertainty.cmbChangeH, mTargetAtt);
  mStepV = fill(Uncertainty.cmbChangeV, mRefAtt);
}

void frmTradeOffsB::Move(const String& key) {
  const bool horizontal = key.compare(0, 7, "MovLeft") == 0 || key.compare(0, 8, "MovRight") == 0;
  Points.AOrientation = horizontal ? kHorizontal : kVertical;
  SetUncertaintyTools(Points.AOrientation);

  UncertaintyControls& u = Uncertainty;
  ABPoint& p = Points;
  Mover mover{};
  if (key == "MovLeft") mover = {&u.tbMovLeft, 1, &p.ALX, -mStepH, XMin};
  if (key == "MovLeftBack") mover = {&u.tbMovLeft, 2, &p.ALX, mStepH, p.AX};
  if (key == "MovRightBack") mover = {&u.tbMovRight, 1, &p.AUX, -mStepH, p.AX};
  if (key == "MovRight") mover = {&u.tbMovRight, 2, &p.AUX, mStepH, XMax};
  if (key == "MovDownBack") mover = {&u.tbMovDown, 1, &p.ALY, mStepV, p.AY};
  if (key == "MovDown") mover = {&u.tbMovDown, 2, &p.ALY, -mStepV, YMin};
  if (key == "MovUp") mover = {&u.tbMovUp, 1, &p.AUY, mStepV, YMax};
  if (key == "MovUpBack") mover = {&u.tbMovUp, 2, &p.AUY, -mStepV, p.AY};
  if (mover.Tools == nullptr) return;

  *mover.Corner = CheckedSingle(*mover.Corner + mover.Step);
  const bool upward = key == "MovLeftBack" || key == "MovRight" || key == "MovDownBack" || key == "MovUp";
  if (upward ? *mover.Corner >= mover.Limit : *mover.Corner <= mover.Limit) {
    *mover.Corner = mover.Limit;
    mover.Tools->EnableButton(mover.Button, false);
  }
  DrawUncertaintyLine();
  ShowState();
}

void frmTradeOffsB::DrawUncertaintyLine() {
  PictureBox& plot = Chart.picTradeOffsRange;
  plot.Cls();
  const std::vector<Single> ends = {ScoreToPlotX(Points.ALX), ScoreToPlotY(Points.ALY), ScoreToPlotX(Points.AUX),
                                    ScoreToPlotY(Points.AUY)};
  if (ends[0] == ends[2] && ends[1] == ends[3]) return;
  plot.Draw({Drawn::What::Line, ends, kLineColour, 3});
}

// Back to what was entered or suggested last: a stored interval comes back as an interval.
void frmTradeOffsB::tbCertain_ButtonClick() {
  LoadABRecord(mTargetAtt);
  SetUncertaintyTools(Points.AOrientation);
  Chart.picTradeOffsRange.Cls();
  PlaceABMarks();
  DrawUncertaintyLine();
  ShowState();
}

}  // namespace Tarnwise
