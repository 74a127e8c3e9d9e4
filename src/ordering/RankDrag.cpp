// Drags over the lists and rank rows. The other group's sources are refused by silence.
#include "ordering/RankPanel.h"
#include "ordering/RankTags.h"

namespace Tarnwise {

namespace {

constexpr Colour kMarkerColour = 255;  // light red of the sixteen-colour table

bool IsButton(const Control& source) { return source.Type == Kind::CommandButton; }

void MarkOption(const ControlArray<OptionButton>& options, const Control& source) {
  if (IsButton(source) && options.Has(source.Index)) options[source.Index].SetOn();
}

bool IsOwnRow(int rank, const Control& source, char letter, const RankOrder& order) {
  return LetterOf(source) == letter && order.AttRank[AttOfTag(source)] == rank;
}

}  // namespace

// Clicks on what also takes drags are connected here as well.
void RankPanel::ConnectDrags() {
  controls_.picOrder.Wire([this](PictureBox& row) {
    row.Click = [this, &row] { SelectRank(RankOfTag(row)); };
    row.DragDrop = [this, &row](Control& source, Single, Single) { DropOnRow(row, source); };
    row.DragOver = [this, &row](Control& source, Single, Single, DragState state) { OverRow(row, source, state); };
    row.AcceptsDrop = [this, &row](const Control& source) { return TakesOnRank(RankOfTag(row), source); };
  });
  controls_.cmdAttB.Wire([this](CommandButton& button) {
    button.Click = [this, &button] { SelectRank(RankOfButton(button)); };
    button.DragDrop = [this, &button](Control& source, Single, Single) { DropOnButton(button, source); };
    button.DragOver = [this, &button](Control& source, Single, Single, DragState) { OverButton(button, source); };
    button.AcceptsDrop = [this, &button](const Control& source) { return TakesOnRank(RankOfButton(button), source); };
  });
  controls_.picAttPanel.DragOver = [this](Control& source, Single, Single, DragState) {
    MarkOption(controls_.optAttInfo, source);
  };
  // The names of the cost list mark the option of the benefit list; it has always been so.
  controls_.lblAttName.Wire([this](Label& label) {
    label.Click = [this, &label] { controls_.optAttInfo[label.Index].SetOn(); };
    label.DragOver = [this](Control& source, Single, Single, DragState) { MarkOption(benefit_.optAttInfo, source); };
  });
}

bool RankPanel::IsListed(const Control& source) const {
  return IsButton(source) && LetterOf(source) == (group_ == Group::Benefit ? 'A' : 'C');
}

bool RankPanel::IsPlaced(const Control& source) const {
  return IsButton(source) && LetterOf(source) == (group_ == Group::Benefit ? 'B' : 'D');
}

// Whether a drop there moves the attribute.
bool RankPanel::TakesOnRank(int rank, const Control& source) const {
  return IsListed(source) || (IsPlaced(source) && RankOfButton(source) != rank);
}

void RankPanel::DropOnRow(PictureBox& row, Control& source) {
  // Of any source, of the other group and of any kind too.
  if (controls_.optAttInfo.Has(source.Index)) controls_.optAttInfo[source.Index].SetOn();
  if (!IsButton(source)) return;
  auto& button = static_cast<CommandButton&>(source);
  const int rank = RankOfTag(row);
  if (IsListed(source)) {
    PlaceOnRow(button, AttOfTag(source), rank);
    SelectRank(rank);
  } else if (IsPlaced(source) && RankOfButton(source) != rank) {
    MoveToRow(button, AttOfTag(source), rank);
    SelectRank(rank);
  }
  row.Cls();
}

void RankPanel::DropOnButton(const Control& button, Control& source) {
  const int rank = RankOfButton(button);
  if (TakesOnRank(rank, source)) DropOnRow(RowOfRank(rank), source);
}

void RankPanel::OverRow(PictureBox& row, const Control& source, DragState state) {
  // On both lists the letter is B: a cost row shows the marker for a placed attribute of its own too.
  if (IsOwnRow(RankOfTag(row), source, 'B', order_)) return;
  if (state == DragState::Over) return;
  row.Cls();
  if (state == DragState::Enter) DrawMarker(row);
}

void RankPanel::OverButton(const Control& button, const Control& source) {
  const int rank = RankOfButton(button);
  if (IsOwnRow(rank, source, group_ == Group::Benefit ? 'B' : 'D', order_)) return;
  PictureBox& row = RowOfRank(rank);
  row.Cls();
  DrawMarker(row);
}

void RankPanel::DrawMarker(PictureBox& row) {
  const int size = order_.RankSize(group_)[RankOfTag(row)];
  const Single y = static_cast<Single>(size) * controls_.cmdAttB[0].Height + 60.0F;
  const Single right = row.Width - 100.0F;
  row.Draw({Drawn::What::Line, {100.0F, y, right, y}, kMarkerColour, 1});
  row.Draw({Drawn::What::Line, {100.0F, y - 30.0F, 100.0F, y + 30.0F}, kMarkerColour, 1});
  row.Draw({Drawn::What::Line, {right, y - 30.0F, right, y + 30.0F}, kMarkerColour, 1});
}

}  // namespace Tarnwise
