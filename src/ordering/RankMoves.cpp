// What becomes of the rows when attributes are placed, moved and taken back.
#include "ordering/RankPanel.h"
#include "ordering/RankTags.h"
#include "ordering/RowPlaces.h"

#include <algorithm>

namespace Tarnwise {

void RankPanel::PlaceOnRow(CommandButton& listButton, int att, int rank) {
  RankControls& c = controls_;
  const Single h = c.cmdAttB[0].Height;
  PictureBox& row = RowOfRank(rank);
  const int size = order_.RankSize(group_)[rank];
  if (size > 0) {
    row.Height = static_cast<Single>(size + 1) * h + kRowPadding + 20.0F;
    MoveRows(rank, h);
  }
  const int instance = order_.PlacedCount(group_);
  CommandButton& button = instance == 0 ? c.cmdAttB[0] : c.cmdAttB.Load(instance);
  button.Top = row.Top + kButtonInset + static_cast<Single>(size) * h;
  button.Left = row.Left + 200.0F;
  button.Caption = listButton.Caption();
  button.BackColor = listButton.BackColor();
  button.Tag = (group_ == Group::Benefit ? "B" : "D") + std::to_string(att);
  button.Visible = true;
  button.ZOrder();
  listButton.Visible = false;
  PlaceAttribute(order_, data_, group_, att, rank);
  c.cmdReset.Enabled = true;
  if (AllPlaced(order_, data_)) step_.cmdNext.Enabled = true;
}

void RankPanel::MoveToRow(CommandButton& button, int att, int rank) {
  RankControls& c = controls_;
  const Single h = c.cmdAttB[0].Height;
  const int old = order_.AttRank[att];
  PictureBox& from = RowOfRank(old);
  PictureBox& to = RowOfRank(rank);
  button.Visible = false;
  if (!MoveAttribute(order_, data_, group_, att, rank)) {
    button.Visible = true;
    return;
  }
  if (order_.RankSize(group_)[old] > 0) {
    from.Height = from.Height - h;
    int j = 0;
    c.cmdAttB.Each([&](CommandButton& other) {
      if (&other == &button || other.Tag().empty() || RankOfButton(other) != old) return;
      other.Top = from.Top + kButtonInset + static_cast<Single>(j++) * h;
    });
    MoveRows(old, -h);
  }
  const int size = order_.RankSize(group_)[rank];
  if (size > 1) {
    to.Height = to.Height + h;
    MoveRows(rank, h);
  }
  button.Top = static_cast<Single>(size - 1) * h + to.Top + kButtonInset;
  button.Visible = true;
  button.ZOrder();
}

void RankPanel::ResetList() {
  RankControls& c = controls_;
  step_.cmdNext.Enabled = false;
  step_.cmdFinish.Enabled = false;
  for (int i = c.picOrder.Count() - 1; i > 0; --i) {
    c.picOrder.Unload(i);
    c.lblOrderID.Unload(i);
  }
  for (int i = c.cmdAttB.Count() - 1; i > 0; --i) c.cmdAttB.Unload(i);
  c.cmdAttB[0].Visible = false;
  EnableRowButtons(true);
  ResetOrder(order_, data_, group_);
  if (GroupSize(data_, group_) > 0) c.cmdAttA.Each([](CommandButton& button) { button.Visible = true; });
  BuildFirstRow();
  // The cost list's first label has always taken its caption from the benefit list's first row.
  c.lblOrderID[0].Caption = benefit_.picOrder[0].Tag();
  SelectRank(1);
  c.cmdReset.Enabled = false;
}

void RankPanel::RestorePanels() {
  RankControls& c = controls_;
  const Single h = c.cmdAttB[0].Height;
  int k = 0;
  for (int i = 0; i < data_.NumAtts(); ++i) {
    if (!InGroup(data_, i, group_)) continue;
    CommandButton& button = k == 0 ? c.cmdAttB[0] : c.cmdAttB.Load(k);
    button.Tag = (group_ == Group::Benefit ? "B" : "D") + std::to_string(i);
    button.Caption = c.cmdAttA[k].Caption();
    button.BackColor = c.cmdAttA[k].BackColor();
    c.cmdAttA[k].Visible = false;
    ++k;
  }
  order_.PlacedCount(group_) = GroupSize(data_, group_);
  for (int row = order_.LoadedRows(group_); row < order_.RowCount(group_); ++row) {
    PictureBox& made = c.picOrder.Load(row);
    SetRank(made, c.lblOrderID.Load(row), row + 1);
  }
  Single top = kFirstRowTop;
  for (int rank = 1; rank <= order_.RowCount(group_); ++rank) {
    PictureBox& row = c.picOrder[rank - 1];
    row.Top = top;
    const int size = order_.RankSize(group_)[rank];
    row.Height = static_cast<Single>(std::max(size, 1)) * h + kRowPadding;
    row.Visible = true;
    row.ZOrder();
    c.lblOrderID[rank - 1].Top = row.Top();
    int j = 0;
    for (int i = 0; i < data_.NumAtts(); ++i) {
      if (!InGroup(data_, i, group_) || order_.AttRank[i] != rank) continue;
      CommandButton& button = *ButtonOf(i);
      button.Left = row.Left + 200.0F;
      button.Top = row.Top + kButtonInset + static_cast<Single>(j++) * h;
      button.Visible = true;
      button.ZOrder();
    }
    top = Bottom(row) + kRowGap;
  }
  c.vsrOrder.Enabled = c.picOrderPanel.Height + 20.0F < Bottom(c.picOrder[order_.RowCount(group_) - 1]);
}

}  // namespace Tarnwise
