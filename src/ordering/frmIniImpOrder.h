// The second step: rank orders by drag and drop (stage 1), then a reference attribute for each group (stage 2).
// RankPanels.cpp lays the rows out, RankDrag.cpp answers drags, ReferenceStage.cpp is stage 2.
#pragma once

#include "model/StepEvents.h"
#include "ordering/RankOrder.h"
#include "forms/IniImpOrderForm.h"

namespace Tarnwise {

struct frmIniImpOrder : IniImpOrderForm {
  frmIniImpOrder(std::shared_ptr<Platform> platform, WizardData& wizardData);

  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;
  std::function<void()> UnloadIniImpOrder;
  std::function<void()> ShowTRNDirectB;
  std::function<void()> ShowTRNSelMethod;
  std::function<void()> ShowTRNTradeOffsB;
  std::function<void(const String& Msg)> SendMasseges;

  void Load() override;
  void CloseBox() override { cmdCancel_Click(); }
  void Disconnect() override;

  Integer Stage = 0;

 private:
  RankControls& RankOf(Group g) { return g == Group::Benefit ? BRank : CRank; }
  ReferenceControls& ReferenceOf(Group g) { return g == Group::Benefit ? BReference : CReference; }

  void ConnectGroup(Group g);
  void ConnectDrags(Group g);
  void ShowStage(int stage);

  // The wizard's buttons.
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();

  // Rows and lists.
  void BuildList(Group g);
  void BuildFirstRow(Group g);
  void RestorePanels(Group g);
  PictureBox& RowOfRank(Group g, int rank);
  CommandButton* ButtonOf(Group g, int att);
  Integer RankOfButton(const Control& button) const;
  void MoveRows(Group g, int aboveRank, Single by);
  void ClearDrawings(Group g);
  void SelectRank(Group g, int rank);
  void EnableRowButtons(Group g, bool enabled);
  void AddRow(Group g);
  void InsertRow(Group g);
  void PlaceOnRow(Group g, CommandButton& listButton, int att, int rank);
  void MoveToRow(Group g, CommandButton& button, int att, int rank);
  void ResetList(Group g);

  // Drags.
  void DropOnRow(Group g, PictureBox& row, Control& source);
  void DropOnButton(Group g, const Control& button, Control& source);
  void OverRow(Group g, PictureBox& row, const Control& source, DragState state);
  void OverButton(Group g, const Control& button, const Control& source);
  void OverList(ControlArray<OptionButton>& options, const Control& source);
  bool TakesOnRank(Group g, int rank, const Control& source) const;
  bool IsOwnRow(int rank, const Control& source, char letter) const;
  void DrawMarker(Group g, PictureBox& row);

  // The reference stage.
  void BuildDisplay(Group g);
  void ChooseReference(Group g, const CommandButton& button);
  void ChooseSavedReference(Group g);
  void NextOfStage1();
  void NextOfStage2();
  void BackOfStage2();
  void SeedRatios();
  void RestoreRatios();
  void Timer1_Timer();

  WizardData& data_;
  RankOrder order_;
};

// The attribute that a list or row button stands for, from its Tag ("A12"): error 13 where there is none.
int AttOfTag(const String& tag);

}  // namespace Tarnwise
