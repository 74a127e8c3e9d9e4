// The direct step: an interval of Wj/Wr for each attribute, dragged on the chart or typed, and the results page.
// ChartStep.cpp moves handles and judges, EntryBoxes.cpp answers typing.
#pragma once

#include "judging/Consistency.h"
#include "judging/Intervals.h"
#include "model/StepEvents.h"
#include "view/forms/DirectBForm.h"

namespace Tarnwise {

struct frmDirectB : DirectBForm {
  frmDirectB(std::shared_ptr<Platform> platform, WizardData& wizardData);

  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;
  std::function<void()> UnloadDirectB;
  std::function<ExportWeights> ExportDirectBW;
  std::function<void(const String& Msg)> SendMasseges;

  void Load() override;
  void CloseBox() override { cmdCancel_Click(); }
  void Disconnect() override;

  Integer mTargetAtt = 0;      // Wj
  Integer mRefAtt = 0;         // Wr
  Integer mRefPairActive = 0;  // a record: 1 while the two references are compared
  Integer mLoading = 0;
  Integer mResultsStage = 0;
  Integer mEntryOK = 0;
  JudgmentState mJudgmentState = kNoneDecided;
  Array<HandlePoints> mHandlePos;  // by attribute

 private:
  enum Box { kLowerBox, kUpperBox };

  void ConnectEntryBox(TextBox& box, Box which);
  void ConnectChart();

  // Targets.
  void BuildAttributeButtons();
  void BuildOrderPanel(Group g);
  void FillTargetList();
  void imgcmbTargetAtt_Click();
  void ChooseReferencePair();
  void ShowPair();
  void ShowOrderPanel();
  void tsTab_Click();
  void tsWeightRatios_Click();

  // The chart.
  HandlePoints HandleCentres() const;
  void MoveHandle(int index, ChartPoint centre);
  void PlaceHandles(const HandlePoints& at);
  void DrawRegion(const HandlePoints& at);
  HandlePoints RegionOf(int att) const;
  void ShowRegion(const HandlePoints& at);
  void ShowDefaultRegion(int att);
  void ComputeStoredRegion(int att);
  void ShowStoredRegion(int att);
  void ShowRefPairRegion();
  void HandleDragged(Control& source, Single x, Single y, DragState state);
  void CheckJudgment(const HandlePoints& at);
  void CheckRefPair(const HandlePoints& at);
  void TakeVerdict(const Verdict& verdict);
  void Timer1_Timer();

  // The entry boxes.
  void FilterEntryKey(TextBox& box, Box which, KeyEvent& key);
  void CheckEntry(TextBox& box);
  void CheckUpperEntry(TextBox& box);
  void RefuseEntry(TextBox& box, const String& wanted);
  void EntryLeft(TextBox& box, Box which);
  void ApplyTypedValue(Box which);

  // The buttons.
  void cmdEnter_Click();
  void CommitJudgment(int att);
  void cmdReStart_Click();
  void ResetJudgments();
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdFinish_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();
  void NameStage(int stage);

  WizardData& data_;
  bool returning_ = false;  // Return is moving the focus: leaving the box is part of it
};

}  // namespace Tarnwise
