// The direct step: an interval of Wj/Wr for each attribute, dragged on the chart or typed, and the results page.
// Targets.cpp says which pair is on show.
#pragma once

#include "direct/EntryBoxes.h"
#include "direct/ImportanceOrder.h"
#include "direct/RegionChart.h"
#include "direct/RegionVerdict.h"
#include "judging/JudgmentButtons.h"
#include "judging/ResultsPage.h"
#include "model/StepEvents.h"

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
  JudgmentState mJudgmentState = kNoneDecided;
  Array<HandlePoints> mHandlePos;  // by attribute

  RegionChart Region{Chart};
  EntryBoxes Boxes{txtWRLower, txtWRUpper, cmdReStart};
  ImportanceOrder Importance{BOrder, COrder};
  ResultsPage Pages;

 private:
  bool IsRefPair() const { return IsReferencePair(data_, mTargetAtt, mRefAtt); }
  JudgmentButtons Buttons() { return {cmdEnter, cmdReStart, cmdNext, cmdFinish}; }
  void ConnectDrags();

  // Targets.
  void FillTargetList();
  void imgcmbTargetAtt_Click();
  void ChooseReferencePair();
  void ShowPair();
  void ShowOrderPanel();
  void tsTab_Click();

  // What is judged.
  HandlePoints RegionOf(int att) const;
  void ShowRegion(const HandlePoints& at);
  void ShowRefPairRegion();
  void ApplyTypedValue(EntryBox which);
  void TakeVerdict(const Verdict& verdict);

  // The buttons.
  void cmdEnter_Click();
  void CommitJudgment(int att);
  void cmdReStart_Click();
  void ResetJudgments();
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdFinish_Click();
  void cmdCancel_Click();
  void tsWeightRatios_Click();

  WizardData& data_;
};

}  // namespace Tarnwise
