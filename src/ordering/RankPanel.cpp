#include "ordering/RankPanel.h"

#include "ordering/RankTags.h"
#include "ordering/RowPlaces.h"
#include "runtime/Text.h"

namespace Tarnwise {

namespace {

constexpr Colour kSelectionColour = 16711680;  // light blue of the sixteen-colour table

}  // namespace

RankPanel::RankPanel(Group group, RankControls& controls, const RankControls& benefit, WizardForm& step,
                     RankOrder& order, WizardData& data)
    : group_(group), controls_(controls), benefit_(benefit), step_(step), order_(order), data_(data) {
  Connect();
  ConnectDrags();
}

void RankPanel::Connect() {
  Scrolls(controls_.vsrAtt, controls_.picAttPLst);
  Scrolls(controls_.vsrOrder, controls_.picOrderCon);
  controls_.cmdAdd.Click = [this] { AddRow(); };
  controls_.cmdInsert.Click = [this] { InsertRow(); };
  controls_.cmdReset.Click = [this] { ResetList(); };
  controls_.lblOrderID.Wire([this](Label& label) { label.Click = [this, &label] { SelectRank(RankOfTag(label)); }; });
}

void RankPanel::AddToList(int k, int att) {
  RankControls& c = controls_;
  if (k > 0) {
    c.cmdAttA.Load(k);
    c.optAttInfo.Load(k);
    c.lblAttName.Load(k);
  }
  const Single row = static_cast<Single>(k);
  const Single top = 30.0F * row + c.cmdAttA[0].Top + row * c.cmdAttA[0].Height;
  CommandButton& button = c.cmdAttA[k];
  button.Top = top;
  button.Caption = Trim(data_.AttName(att));
  button.Tag = (group_ == Group::Benefit ? "A" : "C") + std::to_string(att);
  c.optAttInfo[k].Top = top;
  c.lblAttName[k].Top = top;
  c.lblAttName[k].Caption = button.Caption();
}

void RankPanel::FinishList(int count) {
  RankControls& c = controls_;
  if (count == 0) {
    c.cmdAttA[0].Visible = false;
    c.optAttInfo[0].Visible = false;
    c.lblAttName[0].Visible = false;
  }
  c.vsrAtt.Enabled = count > 5;
  if (count <= 5) return;
  c.picAttPLst.Height = (c.lblAttName[0].Height + 100.0F) * static_cast<Single>(count);
  c.vsrAtt.Top = 0.0F;
  c.vsrAtt.Height = c.picAttPanel.Height - 60.0F;
  c.vsrAtt.Max = static_cast<int>(c.picAttPLst.Height());
  c.vsrAtt.SetValue(count);
}

void RankPanel::BuildFirstRow() {
  RankControls& c = controls_;
  PictureBox& row = c.picOrder[0];
  row.Top = kFirstRowTop;
  row.Height = c.cmdAttB[0].Height + kRowPadding;
  row.ZOrder();
  c.lblOrderID[0].Top = row.Top();
  SetRank(row, c.lblOrderID[0], 1);
  c.vsrOrder.Enabled = false;
  c.vsrOrder.Top = 0.0F;
  c.vsrOrder.Height = c.picOrderPanel.Height - 60.0F;
  c.vsrOrder.Max = static_cast<int>(std::min(c.picOrderCon.Height(), 32767.0F));
  c.vsrOrder.SetValue(0);
}

PictureBox& RankPanel::RowOfRank(int rank) {
  PictureBox* found = nullptr;
  controls_.picOrder.Each([&found, rank](PictureBox& row) {
    if (RankOfTag(row) == rank) found = &row;
  });
  if (found == nullptr) throw RuntimeError(340);
  return *found;
}

// The row button of a placed attribute, null when it has none yet.
CommandButton* RankPanel::ButtonOf(int att) {
  CommandButton* found = nullptr;
  controls_.cmdAttB.Each([&found, att](CommandButton& button) {
    if (!button.Tag().empty() && AttOfTag(button) == att) found = &button;
  });
  return found;
}

Integer RankPanel::RankOfButton(const Control& button) const { return order_.AttRank[AttOfTag(button)]; }

// Rows of a rank above the given one, their labels and their buttons, go down by so much (up when negative).
void RankPanel::MoveRows(int aboveRank, Single by) {
  RankControls& c = controls_;
  c.picOrder.Each([&](PictureBox& row) {
    if (RankOfTag(row) <= aboveRank) return;
    row.Top = row.Top + by;
    c.lblOrderID[row.Index].Top = row.Top();
  });
  c.cmdAttB.Each([&](CommandButton& button) {
    if (!button.Tag().empty() && RankOfButton(button) > aboveRank) button.Top = button.Top + by;
  });
}

void RankPanel::SelectRank(int rank) {
  RankControls& c = controls_;
  order_.CurRank(group_) = static_cast<Integer>(rank);
  c.picOrder.Each([](PictureBox& row) { row.Cls(); });
  c.picOrderCon.Cls();
  const PictureBox& row = RowOfRank(rank);
  const Label& label = c.lblOrderID[row.Index];
  c.picOrderCon.Draw({Drawn::What::Box,
                      {label.Left - 10.0F, label.Top - 10.0F, label.Left + label.Width + row.Width + 5.0F,
                       label.Top + row.Height + 5.0F},
                      kSelectionColour,
                      1});
}

void RankPanel::EnableRowButtons(bool enabled) {
  controls_.cmdAdd.Enabled = enabled;
  controls_.cmdInsert.Enabled = enabled;
}

void RankPanel::AddRow() {
  RankControls& c = controls_;
  const PictureBox& last = RowOfRank(order_.RowCount(group_));
  AddRank(order_, group_);
  const int rank = order_.RowCount(group_);
  PictureBox& row = c.picOrder.Load(rank - 1);
  row.Top = last.Height + last.Top + kRowGap;
  row.Height = c.cmdAttB[0].Height + kRowPadding;
  Label& label = c.lblOrderID.Load(row.Index);
  label.Top = row.Top();
  SetRank(row, label, rank);
  SelectRank(rank);
  if (AtRowLimit(order_, data_, group_)) EnableRowButtons(false);
  if (Bottom(row) > c.picOrderPanel.Height) {
    c.vsrOrder.Enabled = true;
    const int before = row.Index - 2;
    c.vsrOrder.SetValue(c.picOrder.Has(before) ? static_cast<int>(c.picOrder[before].Top() - 60.0F) : 0);
  }
}

void RankPanel::InsertRow() {
  RankControls& c = controls_;
  const int rank = order_.CurRank(group_);
  const Single height = c.cmdAttB[0].Height + kRowPadding;
  MoveRows(rank - 1, height + kRowGap);
  c.picOrder.Each([&](PictureBox& row) {
    const int old = RankOfTag(row);
    if (old >= rank) SetRank(row, c.lblOrderID[row.Index], old + 1);
  });
  InsertRank(order_, data_, group_);
  const Single top = rank == 1 ? kFirstRowTop : Bottom(RowOfRank(rank - 1)) + kRowGap;
  PictureBox& row = c.picOrder.Load(c.picOrder.Count());
  row.Top = top;
  row.Height = height;
  Label& label = c.lblOrderID.Load(row.Index);
  label.Top = top;
  SetRank(row, label, rank);
  SelectRank(rank);
  if (AtRowLimit(order_, data_, group_)) EnableRowButtons(false);
  if (Bottom(RowOfRank(order_.RowCount(group_))) > c.picOrderPanel.Height) c.vsrOrder.Enabled = true;
}

}  // namespace Tarnwise
