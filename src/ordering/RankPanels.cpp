// The lists and rank rows of stage 1: where everything stands. Lengths are twips; H is the height of a row button.
#include "ordering/frmIniImpOrder.h"

#include "runtime/Text.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr Single kFirstRowTop = 120.0F;
constexpr Single kRowGap = 120.0F;
constexpr Single kRowPadding = 140.0F;  // what an empty row is higher than one button
constexpr Single kButtonInset = 60.0F;
constexpr Colour kSelectionColour = 16711680;  // light blue of the sixteen-colour table

Single Bottom(const Control& control) { return control.Top + control.Height; }

void SetRank(PictureBox& row, Label& label, int rank) {
  row.Tag = std::to_string(rank);
  label.Tag = row.Tag;
  label.Caption = row.Tag();
}

}  // namespace

void frmIniImpOrder::BuildList(Group g) {
  RankControls& c = RankOf(g);
  const Single first = c.cmdAttA[0].Top;
  const Single pitch = c.cmdAttA[0].Height;
  int k = 0;
  for (int i = 0; i < data_.NumAtts(); ++i) {
    if (!InGroup(data_, i, g)) continue;
    if (k > 0) {
      c.cmdAttA.Load(k);
      c.optAttInfo.Load(k);
      c.lblAttName.Load(k);
      ReferenceOf(g).Rows.cmdAttButtons.Load(k);
    }
    const Single top = 30.0F * static_cast<Single>(k) + first + static_cast<Single>(k) * pitch;
    CommandButton& button = c.cmdAttA[k];
    button.Top = top;
    button.Caption = Trim(data_.AttName(i));
    button.Tag = (g == Group::Benefit ? "A" : "C") + std::to_string(i);
    c.optAttInfo[k].Top = top;
    c.lblAttName[k].Top = top;
    c.lblAttName[k].Caption = button.Caption();
    CommandButton& display = ReferenceOf(g).Rows.cmdAttButtons[k];
    display.Caption = button.Caption();
    display.Tag = button.Tag();
    ++k;
  }
  if (k == 0) {
    c.cmdAttA[0].Visible = false;
    c.optAttInfo[0].Visible = false;
    c.lblAttName[0].Visible = false;
  }
  c.vsrAtt.Enabled = k > 5;
  if (k > 5) {
    c.picAttPLst.Height = (c.lblAttName[0].Height + 100.0F) * static_cast<Single>(k);
    c.vsrAtt.Top = 0.0F;
    c.vsrAtt.Height = c.picAttPanel.Height - 60.0F;
    c.vsrAtt.Max = static_cast<int>(c.picAttPLst.Height());
    c.vsrAtt.SetValue(k);
  }
}

void frmIniImpOrder::BuildFirstRow(Group g) {
  RankControls& c = RankOf(g);
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

// Rows and buttons as the ranking has them, without touching Reset.
void frmIniImpOrder::RestorePanels(Group g) {
  RankControls& c = RankOf(g);
  const Single h = c.cmdAttB[0].Height;
  int k = 0;
  for (int i = 0; i < data_.NumAtts(); ++i) {
    if (!InGroup(data_, i, g)) continue;
    CommandButton& button = k == 0 ? c.cmdAttB[0] : c.cmdAttB.Load(k);
    button.Tag = (g == Group::Benefit ? "B" : "D") + std::to_string(i);
    button.Caption = c.cmdAttA[k].Caption();
    button.BackColor = c.cmdAttA[k].BackColor();
    c.cmdAttA[k].Visible = false;
    ++k;
  }
  order_.PlacedCount(g) = GroupSize(data_, g);
  for (int row = order_.LoadedRows(g); row < order_.RowCount(g); ++row) {
    PictureBox& made = c.picOrder.Load(row);
    SetRank(made, c.lblOrderID.Load(row), row + 1);
  }
  Single top = kFirstRowTop;
  for (int rank = 1; rank <= order_.RowCount(g); ++rank) {
    PictureBox& row = c.picOrder[rank - 1];
    row.Top = top;
    const int size = order_.RankSize(g)[rank];
    row.Height = static_cast<Single>(std::max(size, 1)) * h + kRowPadding;
    row.Visible = true;
    row.ZOrder();
    c.lblOrderID[rank - 1].Top = row.Top();
    int j = 0;
    for (int i = 0; i < data_.NumAtts(); ++i) {
      if (!InGroup(data_, i, g) || order_.AttRank[i] != rank) continue;
      CommandButton& button = *ButtonOf(g, i);
      button.Left = row.Left + 200.0F;
      button.Top = row.Top + kButtonInset + static_cast<Single>(j++) * h;
      button.Visible = true;
      button.ZOrder();
    }
    top = Bottom(row) + kRowGap;
  }
  c.vsrOrder.Enabled = c.picOrderPanel.Height + 20.0F < Bottom(c.picOrder[order_.RowCount(g) - 1]);
}

PictureBox& frmIniImpOrder::RowOfRank(Group g, int rank) {
  PictureBox* found = nullptr;
  RankOf(g).picOrder.Each([&found, rank](PictureBox& row) {
    if (static_cast<int>(Val(row.Tag())) == rank) found = &row;
  });
  if (found == nullptr) throw RuntimeError(340);
  return *found;
}

// The row button of a placed attribute, null when it has none yet.
CommandButton* frmIniImpOrder::ButtonOf(Group g, int att) {
  CommandButton* found = nullptr;
  RankOf(g).cmdAttB.Each([&found, att](CommandButton& button) {
    if (!button.Tag().empty() && AttOfTag(button.Tag) == att) found = &button;
  });
  return found;
}

Integer frmIniImpOrder::RankOfButton(const Control& button) const { return order_.AttRank[AttOfTag(button.Tag)]; }

// Rows of a rank above the given one, their labels and their buttons, go down by so much (up when negative).
void frmIniImpOrder::MoveRows(Group g, int aboveRank, Single by) {
  RankControls& c = RankOf(g);
  c.picOrder.Each([&](PictureBox& row) {
    if (static_cast<int>(Val(row.Tag())) <= aboveRank) return;
    row.Top = row.Top + by;
    c.lblOrderID[row.Index].Top = row.Top();
  });
  c.cmdAttB.Each([&](CommandButton& button) {
    if (!button.Tag().empty() && RankOfButton(button) > aboveRank) button.Top = button.Top + by;
  });
}

void frmIniImpOrder::ClearDrawings(Group g) {
  RankOf(g).picOrder.Each([](PictureBox& row) { row.Cls(); });
  RankOf(g).picOrderCon.Cls();
}

void frmIniImpOrder::SelectRank(Group g, int rank) {
  RankControls& c = RankOf(g);
  order_.CurRank(g) = static_cast<Integer>(rank);
  ClearDrawings(g);
  const PictureBox& row = RowOfRank(g, rank);
  const Label& label = c.lblOrderID[row.Index];
  c.picOrderCon.Draw({Drawn::What::Box,
                      {label.Left - 10.0F, label.Top - 10.0F, label.Left + label.Width + row.Width + 5.0F,
                       label.Top + row.Height + 5.0F},
                      kSelectionColour,
                      1});
}

void frmIniImpOrder::EnableRowButtons(Group g, bool enabled) {
  RankOf(g).cmdAdd.Enabled = enabled;
  RankOf(g).cmdInsert.Enabled = enabled;
}

void frmIniImpOrder::AddRow(Group g) {
  RankControls& c = RankOf(g);
  const PictureBox& last = RowOfRank(g, order_.RowCount(g));
  AddRank(order_, g);
  const int rank = order_.RowCount(g);
  PictureBox& row = c.picOrder.Load(rank - 1);
  row.Top = last.Height + last.Top + kRowGap;
  row.Height = c.cmdAttB[0].Height + kRowPadding;
  Label& label = c.lblOrderID.Load(row.Index);
  label.Top = row.Top();
  SetRank(row, label, rank);
  SelectRank(g, rank);
  if (AtRowLimit(order_, data_, g)) EnableRowButtons(g, false);
  if (Bottom(row) > c.picOrderPanel.Height) {
    c.vsrOrder.Enabled = true;
    const int before = row.Index - 2;
    c.vsrOrder.SetValue(c.picOrder.Has(before) ? static_cast<int>(c.picOrder[before].Top() - 60.0F) : 0);
  }
}

void frmIniImpOrder::InsertRow(Group g) {
  RankControls& c = RankOf(g);
  const int rank = order_.CurRank(g);
  const Single height = c.cmdAttB[0].Height + kRowPadding;
  MoveRows(g, rank - 1, height + kRowGap);
  c.picOrder.Each([&](PictureBox& row) {
    const int old = static_cast<int>(Val(row.Tag()));
    if (old >= rank) SetRank(row, c.lblOrderID[row.Index], old + 1);
  });
  InsertRank(order_, data_, g);
  const Single top = rank == 1 ? kFirstRowTop : Bottom(RowOfRank(g, rank - 1)) + kRowGap;
  PictureBox& row = c.picOrder.Load(c.picOrder.Count());
  row.Top = top;
  row.Height = height;
  Label& label = c.lblOrderID.Load(row.Index);
  label.Top = top;
  SetRank(row, label, rank);
  SelectRank(g, rank);
  if (AtRowLimit(order_, data_, g)) EnableRowButtons(g, false);
  if (Bottom(RowOfRank(g, order_.RowCount(g))) > c.picOrderPanel.Height) c.vsrOrder.Enabled = true;
}

void frmIniImpOrder::PlaceOnRow(Group g, CommandButton& listButton, int att, int rank) {
  RankControls& c = RankOf(g);
  const Single h = c.cmdAttB[0].Height;
  PictureBox& row = RowOfRank(g, rank);
  const int size = order_.RankSize(g)[rank];
  if (size > 0) {
    row.Height = static_cast<Single>(size + 1) * h + kRowPadding + 20.0F;
    MoveRows(g, rank, h);
  }
  const int instance = order_.PlacedCount(g);
  CommandButton& button = instance == 0 ? c.cmdAttB[0] : c.cmdAttB.Load(instance);
  button.Top = row.Top + kButtonInset + static_cast<Single>(size) * h;
  button.Left = row.Left + 200.0F;
  button.Caption = listButton.Caption();
  button.BackColor = listButton.BackColor();
  button.Tag = (g == Group::Benefit ? "B" : "D") + std::to_string(att);
  button.Visible = true;
  button.ZOrder();
  listButton.Visible = false;
  PlaceAttribute(order_, data_, g, att, rank);
  c.cmdReset.Enabled = true;
  if (AllPlaced(order_, data_)) cmdNext.Enabled = true;
}

void frmIniImpOrder::MoveToRow(Group g, CommandButton& button, int att, int rank) {
  RankControls& c = RankOf(g);
  const Single h = c.cmdAttB[0].Height;
  const int old = order_.AttRank[att];
  PictureBox& from = RowOfRank(g, old);
  PictureBox& to = RowOfRank(g, rank);
  button.Visible = false;
  if (!MoveAttribute(order_, data_, g, att, rank)) {
    button.Visible = true;
    return;
  }
  if (order_.RankSize(g)[old] > 0) {
    from.Height = from.Height - h;
    int j = 0;
    c.cmdAttB.Each([&](CommandButton& other) {
      if (&other == &button || other.Tag().empty() || RankOfButton(other) != old) return;
      other.Top = from.Top + kButtonInset + static_cast<Single>(j++) * h;
    });
    MoveRows(g, old, -h);
  }
  const int size = order_.RankSize(g)[rank];
  if (size > 1) {
    to.Height = to.Height + h;
    MoveRows(g, rank, h);
  }
  button.Top = static_cast<Single>(size - 1) * h + to.Top + kButtonInset;
  button.Visible = true;
  button.ZOrder();
}

void frmIniImpOrder::ResetList(Group g) {
  RankControls& c = RankOf(g);
  cmdNext.Enabled = false;
  cmdFinish.Enabled = false;
  for (int i = c.picOrder.Count() - 1; i > 0; --i) {
    c.picOrder.Unload(i);
    c.lblOrderID.Unload(i);
  }
  for (int i = c.cmdAttB.Count() - 1; i > 0; --i) c.cmdAttB.Unload(i);
  c.cmdAttB[0].Visible = false;
  EnableRowButtons(g, true);
  ResetOrder(order_, data_, g);
  if (GroupSize(data_, g) > 0) c.cmdAttA.Each([](CommandButton& button) { button.Visible = true; });
  BuildFirstRow(g);
  // The cost list's first label has always taken its caption from the benefit list's first row.
  if (g == Group::Cost) c.lblOrderID[0].Caption = BRank.picOrder[0].Tag();
  SelectRank(g, 1);
  c.cmdReset.Enabled = false;
}

}  // namespace Tarnwise
