// The trade-off step: two alternatives are moved on a chart until they are equally good; the value curves turn them
// into a weight ratio. Targets.cpp says which pair is on show.
#pragma once

#include "judging/JudgmentButtons.h"
#include "judging/ResultsPage.h"
#include "model/StepEvents.h"
#include "tradeoffs/AlternativesChart.h"
#include "tradeoffs/ScoreEntry.h"
#include "tradeoffs/TradeOffJudgment.h"
#include "tradeoffs/UncertaintyTools.h"

namespace Tarnwise {

struct frmTradeOffsB : TradeOffsBForm {
  frmTradeOffsB(std::shared_ptr<Platform> platform, WizardData& wizardData);

  std::function<void(Integer fIndex, Boolean WeightsDone)> UnloadTarnwise;
  std::function<void()> UnloadTRNTradeOffsB;
  std::function<ExportWeights> ExportTradeOffsBW;
  std::function<void(PointArrays& points)> ExportABScores;
  std::function<void(const String& Msg)> SendMasseges;

  void Load() override;
  void CloseBox() override { cmdCancel_Click(); }
  void Disconnect() override;

  Integer mTargetAtt = 0;
  Integer mRefAtt = 0;
  JudgmentState mJudgmentState = kNoneDecided;
  Integer mLoading = 0;
  Integer mPage = 1;  // 1 judgments, 2 results
  ABPoint Points;     // the step's copy of the target's record; Enter writes it back

  AlternativesChart Plot;
  ScoreEntry Entry{Scores, Plot.Scale};
  UncertaintyTools Tools{Uncertainty};
  ResultsPage Pages;

 private:
  bool IsRefPair() const { return IsReferencePair(data_, mTargetAtt, mRefAtt); }
  JudgmentButtons Buttons() { return {cmdEnter, cmdReStart, cmdNext, cmdFinish}; }
  void ConnectParts();
  void ConnectButtons();

  // Targets.
  void FillTargetList();
  void imgcmbTargetAtt_Click();
  void RefuseTarget(bool benefit);
  void ShowTarget();
  void ShowTools();
  void LoadABRecord(int att);

  // What is judged.
  void PlaceABMarks();
  void TakeDrop(const DroppedMark& dropped);
  void BackToRecord();
  void ShowState();

  // The buttons.
  void StartFresh();
  void cmdEnter_Click();
  void CommitJudgment(int att);
  void cmdReStart_Click();
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdFinish_Click();
  void cmdCancel_Click();
  void cmdTarnwisePrint_Click();
  void tbsTradeOffs_Click();
  void tsWeightRatios_Click();

  WizardData& data_;
};

}  // namespace Tarnwise
