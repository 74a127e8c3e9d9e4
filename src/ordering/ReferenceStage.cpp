// Stage 2 of the ordering step: the finished rank orders, the choice of a reference in each group, and what the later
// steps start from.
#include "judging/Intervals.h"
#include "ordering/frmIniImpOrder.h"
#include "runtime/Text.h"

namespace Tarnwise {

namespace {

constexpr Group kGroups[] = {Group::Benefit, Group::Cost};
constexpr Colour kRed = 255;
constexpr Colour kBlue = 16711680;

const Variant& SavedReference(const WizardData& data, Group g) {
  return g == Group::Benefit ? data.SavedJudgments.SavedBRefAttID : data.SavedJudgments.SavedCRefAttID;
}

}  // namespace

// The attributes on each rank in ascending id; rows that an earlier visit made are used again.
void frmIniImpOrder::BuildDisplay(Group g) {
  OrderDisplay& display = ReferenceOf(g).Rows;
  display.vsrO.Enabled = false;
  display.vsrO.Top = 0.0F;
  display.vsrO.Height = display.picOrderFrame.Height - 60.0F;
  const Single bottom = LayOutRows(display, FinishedRanks(data_, g));
  if (display.picOrderFrame.Height + 20.0F < bottom) display.vsrO.Enabled = true;
}

void frmIniImpOrder::ChooseReference(Group g, const CommandButton& button) {
  const int att = AttOfTag(button.Tag);
  ReferenceOf(g).lblRefAtt.Caption = data_.AttName(att);
  Integer& reference = g == Group::Benefit ? data_.BRefAttID : data_.CRefAttID;
  reference = static_cast<Integer>(att);
  if (NumberIn(SavedReference(data_, g)) != att) data_.OrderChanged = true;
  PictureBox& mark = picIndicator[g == Group::Benefit ? 0 : 1];
  mark.Top = button.Top + (button.Height - mark.Height) * 0.5F;
  mark.Visible = true;
  mark.ZOrder();
  if (!BReference.lblRefAtt.Caption().empty() && !CReference.lblRefAtt.Caption().empty()) cmdNext.Enabled = true;
}

// What is stored may belong to no attribute of the group: then nothing is chosen, and nobody is told.
void frmIniImpOrder::ChooseSavedReference(Group g) {
  const std::optional<Double> stored = NumberIn(SavedReference(data_, g));
  if (!stored) return;
  CommandButton* found = nullptr;
  ReferenceOf(g).Rows.cmdAttButtons.Each([&](CommandButton& button) {
    if (!button.Tag().empty() && *stored == AttOfTag(button.Tag)) found = &button;
  });
  if (found != nullptr) ChooseReference(g, *found);
}

void frmIniImpOrder::NextOfStage1() {
  CommitRankOrder(order_, data_);
  for (const Group g : kGroups) BuildDisplay(g);
  if (data_.HasStoredJudgments()) {
    for (const Group g : kGroups) ChooseSavedReference(g);
    cmdNext.Enabled = true;
  } else {
    BReference.lblRefAtt.Caption = "";
    CReference.lblRefAtt.Caption = "";
  }
  ShowStage(1);
}

void frmIniImpOrder::NextOfStage2() {
  if (!data_.OrderChanged && data_.HasStoredJudgments()) {
    RestoreRatios();
  } else {
    SeedRatios();
  }
  if (data_.MethodIndex == 0) {
    Raise(ShowTRNDirectB);
  } else if (data_.MethodIndex == 1) {
    Raise(ShowTRNTradeOffsB);
  }
}

void frmIniImpOrder::BackOfStage2() {
  for (const Group g : kGroups) {
    ReferenceControls& c = ReferenceOf(g);
    const Integer ranks = g == Group::Benefit ? data_.BAttCount : data_.CAttCount;
    for (int row = 0; row < ranks; ++row) {
      c.Rows.picO[row].Visible = false;
      c.Rows.lblOID[row].Visible = false;
    }
    if (order_.LoadedRows(g) < ranks) order_.LoadedRows(g) = ranks;
    c.lblRefAtt.Caption = "";
  }
  picIndicator[0].Visible = false;
  picIndicator[1].Visible = false;
  ShowStage(0);
  cmdNext.Enabled = true;
}

void frmIniImpOrder::SeedRatios() {
  SeedIntervals(data_);
  data_.RefAttWR = Integer(1);
}

void frmIniImpOrder::RestoreRatios() {
  const SavedJudgments& saved = data_.SavedJudgments;
  for (int i = 0; i < data_.NumAtts(); ++i) {
    data_.WeightsL[i] = saved.SavedWeightsL[i];
    data_.Weights[i] = saved.SavedWeights[i];
    data_.WeightsH[i] = saved.SavedWeightsH[i];
    data_.WeightDone[i] = true;
  }
  data_.RefAttWR = saved.SavedRefAttWR;
}

void frmIniImpOrder::Timer1_Timer() {
  picIndicator.Each([](PictureBox& mark) { mark.BackColor = mark.BackColor == kRed ? kBlue : kRed; });
}

}  // namespace Tarnwise
