// The trade-off step: two alternatives are moved on a chart until they are equally good; the value curves turn them
// into a weight ratio. AlternativesChart.cpp is the chart, ScoreEntry.cpp the boxes, Uncertainty.cpp the tools.
#pragma once

#include "model/StepEvents.h"
#include "tradeoffs/TradeOffJudgment.h"
#include "view/forms/TradeOffsBForm.h"

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
  Integer mPage = 1;         // 1 judgments, 2 results
  Integer mScoresBad = 0;    // -1 after a failed check of the scores
  Integer mScoresDirty = 0;  // -1 when a score was touched since the target was shown
  Single mStepH = 0.0F;      // what a mover adds, in scores
  Single mStepV = 0.0F;
  ABPoint Points;  // the step's copy of the target's record; Enter writes it back

  // The chart's scale, in scores.
  Single XMin = 0.0F;
  Single XMax = 0.0F;
  Single YMin = 0.0F;
  Single YMax = 0.0F;
  Single XStep = 0.0F;
  Single YStep = 0.0F;

 private:
  bool IsRefPair() const { return IsReferencePair(data_, mTargetAtt, mRefAtt); }

  void ConnectChart();
  void ConnectScores();
  void ConnectUncertainty();

  // Opening and targets.
  void StartFresh();
  void ResumeTradeOffs();
  void ResumeFromDirect();
  void FillTargetList();
  void ShowFirstTarget();
  void imgcmbTargetAtt_Click();
  void RefuseTarget(bool benefit);
  void LoadABRecord(int att);
  void ShowCriteria();

  // The chart.
  void BuildChart();
  void PlaceCorners();
  void PlaceCorner(Shape& mark, Label& caption, bool top, bool left);
  Single ScaleX() const;
  Single ScaleY() const;
  Single ScoreToPlotX(Single score) const;
  Single ScoreToPlotY(Single score) const;
  Double ChartXToScore(Single x) const;
  Double ChartYToScore(Single y) const;
  void PlaceABMarks();
  void ShowState();
  void DropOnPlot(Control& mark, Single x, Single y);
  void DropOnMark(Control& target, Control& source, Single x, Single y);
  void TakeDrop(bool forA, Double xScore, Double yScore, const char* pattern);
  void SetDragIcon(Control& source, DragState state);

  // The scores.
  void ShowScores(int att);
  void ShowDifferences();
  void ScoreKey(KeyEvent& key, TextBox& box);
  void DropExtraPoint(TextBox& box);
  bool CheckScore(TextBox& box, Single low, Single high);
  void CheckScores();
  void CommitScores();
  void ChangeScore(int index, const String& key);

  // The uncertainty.
  void EnableToolbars();
  void SetUncertaintyTools(int orientation);
  void FillChangeSteps();
  void DrawUncertaintyLine();
  void Move(const String& key);
  void tbCertain_ButtonClick();

  // The buttons.
  void cmdEnter_Click();
  void CommitJudgment(int att);
  void cmdReStart_Click();
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdFinish_Click();
  void cmdCancel_Click();
  void cmdTarnwiseHelp_Click();
  void cmdTarnwisePrint_Click();
  void tbsTradeOffs_Click();
  void tsWeightRatios_Click();
  void NamePage(int page);
  void Timer1_Timer();

  bool takingFocusBack_ = false;  // from the box that Return was pressed in to the wrong one: one message is enough
  WizardData& data_;
};

}  // namespace Tarnwise
