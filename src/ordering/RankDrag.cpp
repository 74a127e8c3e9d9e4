// Drags over the ordering step. The first letter of a source's Tag says what it is: A and C attributes of the benefit
// and the cost list, B and D placed ones; the other group's sources are refused by silence.
#include "ordering/frmIniImpOrder.h"

#include "runtime/Text.h"

namespace Tarnwise {

namespace {

constexpr Colour kMarkerColour = 255;  // light red of the sixteen-colour table

char LetterOf(const Control& source) { return source.Tag().empty() ? '\0' : source.Tag()[0]; }

bool IsButton(const Control& source) { return source.Type == Kind::CommandButton; }

}  // namespace

// Clicks on what also takes drags are connected here as well.
void frmIniImpOrder::ConnectDrags(Group g) {
  RankControls& c = RankOf(g);
  c.picOrder.Wire([this, g](PictureBox& row) {
    row.Click = [this, g, &row] { SelectRank(g, static_cast<int>(Val(row.Tag()))); };
    row.DragDrop = [this, g, &row](Control& source, Single, Single) { DropOnRow(g, row, source); };
    row.DragOver = [this, g, &row](Control& source, Single, Single, DragState state) {
      OverRow(g, row, source, state);
    };
    row.AcceptsDrop = [this, g, &row](const Control& source) {
      return TakesOnRank(g, static_cast<int>(Val(row.Tag())), source);
    };
  });
  c.cmdAttB.Wire([this, g](CommandButton& button) {
    button.Click = [this, g, &button] { SelectRank(g, RankOfButton(button)); };
    button.DragDrop = [this, g, &button](Control& source, Single, Single) { DropOnButton(g, button, source); };
    button.DragOver = [this, g, &button](Control& source, Single, Single, DragState) { OverButton(g, button, source); };
    button.AcceptsDrop = [this, g, &button](const Control& source) {
      return TakesOnRank(g, RankOfButton(button), source);
    };
  });
  c.picAttPanel.DragOver = [this, &c](Control& source, Single, Single, DragState) { OverList(c.optAttInfo, source); };
  // The names of the cost list mark the option of the benefit list; it has always been so.
  c.lblAttName.Wire([this, &c](Label& label) {
    label.Click = [&c, &label] { c.optAttInfo[label.Index].SetOn(); };
    label.DragOver = [this](Control& source, Single, Single, DragState) { OverList(BRank.optAttInfo, source); };
  });
}

void frmIniImpOrder::DropOnRow(Group g, PictureBox& row, Control& source) {
  // Of any source, of the other group and of any kind too.
  if (RankOf(g).optAttInfo.Has(source.Index)) RankOf(g).optAttInfo[source.Index].SetOn();
  if (!IsButton(source)) return;
  auto& button = static_cast<CommandButton&>(source);
  const int rank = static_cast<int>(Val(row.Tag()));
  const char letter = LetterOf(source);
  if (letter == (g == Group::Benefit ? 'A' : 'C')) {
    PlaceOnRow(g, button, AttOfTag(source.Tag), rank);
    SelectRank(g, rank);
  } else if (letter == (g == Group::Benefit ? 'B' : 'D') && RankOfButton(source) != rank) {
    MoveToRow(g, button, AttOfTag(source.Tag), rank);
    SelectRank(g, rank);
  }
  row.Cls();
}

void frmIniImpOrder::DropOnButton(Group g, const Control& button, Control& source) {
  const int rank = RankOfButton(button);
  if (TakesOnRank(g, rank, source)) DropOnRow(g, RowOfRank(g, rank), source);
}

// Whether a drop there moves the attribute.
bool frmIniImpOrder::TakesOnRank(Group g, int rank, const Control& source) const {
  if (!IsButton(source)) return false;
  const char letter = LetterOf(source);
  const bool listed = letter == (g == Group::Benefit ? 'A' : 'C');
  const bool placed = letter == (g == Group::Benefit ? 'B' : 'D');
  return listed || (placed && RankOfButton(source) != rank);
}

bool frmIniImpOrder::IsOwnRow(int rank, const Control& source, char letter) const {
  return LetterOf(source) == letter && RankOfButton(source) == rank;
}

void frmIniImpOrder::OverRow(Group g, PictureBox& row, const Control& source, DragState state) {
  // On both lists the letter is B: a cost row shows the marker for a placed attribute of its own too.
  if (IsOwnRow(static_cast<int>(Val(row.Tag())), source, 'B')) return;
  if (state == DragState::Over) return;
  row.Cls();
  if (state == DragState::Enter) DrawMarker(g, row);
}

void frmIniImpOrder::OverButton(Group g, const Control& button, const Control& source) {
  const int rank = RankOfButton(button);
  if (IsOwnRow(rank, source, g == Group::Benefit ? 'B' : 'D')) return;
  PictureBox& row = RowOfRank(g, rank);
  row.Cls();
  DrawMarker(g, row);
}

void frmIniImpOrder::OverList(ControlArray<OptionButton>& options, const Control& source) {
  if (IsButton(source) && options.Has(source.Index)) options[source.Index].SetOn();
}

void frmIniImpOrder::DrawMarker(Group g, PictureBox& row) {
  const int size = order_.RankSize(g)[static_cast<int>(Val(row.Tag()))];
  const Single y = static_cast<Single>(size) * RankOf(g).cmdAttB[0].Height + 60.0F;
  const Single right = row.Width - 100.0F;
  row.Draw({Drawn::What::Line, {100.0F, y, right, y}, kMarkerColour, 1});
  row.Draw({Drawn::What::Line, {100.0F, y - 30.0F, 100.0F, y + 30.0F}, kMarkerColour, 1});
  row.Draw({Drawn::What::Line, {right, y - 30.0F, right, y + 30.0F}, kMarkerColour, 1});
}

}  // namespace Tarnwise
