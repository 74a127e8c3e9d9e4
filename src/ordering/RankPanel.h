// Stage 1 of the ordering step for one group: the list of its attributes and its rank rows, where everything stands,
// and the drags from one to the other. Lengths are twips. RankMoves.cpp moves attributes, RankDrag.cpp answers drags.
#pragma once

#include "forms/IniImpOrderForm.h"
#include "ordering/RankOrder.h"

namespace Tarnwise {

struct RankPanel {
  // `benefit` are the benefit group's controls, which the cost group follows in two places.
  RankPanel(Group group, RankControls& controls, const RankControls& benefit, WizardForm& step, RankOrder& order,
            WizardData& data);

  // As the step opens: each attribute of the group in ascending id, k counted from 0; then the list as a whole; then
  // row 1.
  void AddToList(int k, int att);
  void FinishList(int count);
  void BuildFirstRow();
  void EnableRowButtons(bool enabled);

  // Rows and buttons as the ranking has them, without touching Reset.
  void RestorePanels();

 private:
  void Connect();
  void ConnectDrags();

  // Rows.
  PictureBox& RowOfRank(int rank);
  CommandButton* ButtonOf(int att);
  Integer RankOfButton(const Control& button) const;
  void MoveRows(int aboveRank, Single by);
  void SelectRank(int rank);
  void AddRow();
  void InsertRow();

  // Attributes.
  void PlaceOnRow(CommandButton& listButton, int att, int rank);
  void MoveToRow(CommandButton& button, int att, int rank);
  void ResetList();

  // Drags.
  bool IsListed(const Control& source) const;
  bool IsPlaced(const Control& source) const;
  bool TakesOnRank(int rank, const Control& source) const;
  void DropOnRow(PictureBox& row, Control& source);
  void DropOnButton(const Control& button, Control& source);
  void OverRow(PictureBox& row, const Control& source, DragState state);
  void OverButton(const Control& button, const Control& source);
  void DrawMarker(PictureBox& row);

  const Group group_;
  RankControls& controls_;
  const RankControls& benefit_;
  WizardForm& step_;
  RankOrder& order_;
  WizardData& data_;
};

}  // namespace Tarnwise
