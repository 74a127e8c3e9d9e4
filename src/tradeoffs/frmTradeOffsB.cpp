#include "tradeoffs/frmTradeOffsB.h"

#include "curves/mdGraphs.h"
#include "judging/Intervals.h"
#include "judging/JudgmentLights.h"
#include "judging/TargetList.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

// The points that were worked on, with the orientations as they came from the host.
PointArrays ExportedPoints(const WizardData& data) {
  Array<ABPoint> points;
  points.Allocate(data.NumAtts());
  for (int i = 0; i < points.Count(); ++i) {
    points[i] = data.ABPoints2[i];
    points[i].AOrientation = data.ABPoints1[i].AOrientation;
  }
  return ArraysOf(points);
}

}  // namespace

frmTradeOffsB::frmTradeOffsB(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : TradeOffsBForm(std::move(platform)),
      Plot(Chart, wizardData),
      Pages(
          *this, picTabs, Results,
          {"Tarnwise: Give your preference between the two selected criteria", "When are A and B equally good to you?",
           "Drag A and B on the chart, or change their scores, until you would not mind which one you get; then "
           "press Enter."}),
      data_(wizardData) {
  ConnectParts();
  ConnectButtons();
}

void frmTradeOffsB::ConnectParts() {
  Plot.Dropped = [this](const DroppedMark& dropped) { TakeDrop(dropped); };
  Entry.Entered = [this] {
    Entry.TakeScores(Points);
    PlaceABMarks();
  };
  Tools.Pressed = [this](const String& key) {
    Tools.Move(key, Points, Plot.Scale);
    Plot.DrawUncertaintyLine(Points);
    ShowState();
  };
  Tools.Certain = [this] { BackToRecord(); };
  Lights.Timer1.Tick = [this] { BlinkJudgmentLight(Lights, mJudgmentState); };
}

void frmTradeOffsB::ConnectButtons() {
  imgcmbTargetAtt.Click = [this] { imgcmbTargetAtt_Click(); };
  tbsTradeOffs.Click = [this] { tbsTradeOffs_Click(); };
  Results.tsWeightRatios.Click = [this] { tsWeightRatios_Click(); };
  cmdEnter.Click = [this] { cmdEnter_Click(); };
  cmdReStart.Click = [this] { cmdReStart_Click(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdBack.Click = [this] { cmdBack_Click(); };
  cmdFinish.Click = [this] { cmdFinish_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); };
  cmdTarnwisePrint.Click = [this] { cmdTarnwisePrint_Click(); };
}

void frmTradeOffsB::Disconnect() {
  UnloadTarnwise = nullptr;
  UnloadTRNTradeOffsB = nullptr;
  ExportTradeOffsBW = nullptr;
  ExportABScores = nullptr;
  SendMasseges = nullptr;
}

void frmTradeOffsB::Load() {
  Screen().SetPointer(kHourglass);
  mLoading = 1;
  mPage = 1;
  Entry.mScoresDirty = 0;
  cmdNext.Enabled = false;
  cmdFinish.Enabled = false;
  cmdReStart.Enabled = false;
  Pages.NameJudgments();
  picTabs[0].ZOrder();
  Scores.framePCNumericalC.ZOrder();
  bool judged = true;
  if (data_.RJType() == kTradeOffsType && !data_.OrderChanged) {
    FillTargetList();
  } else if (data_.RJType() == kDirectType) {
    SuggestFromIntervals(data_);
    FillTargetList();
  } else {
    StartFresh();
    judged = false;
  }
  cmdNext.Enabled = judged;
  if (judged) cmdFinish.Enabled = true;
  ShowLightsFor(Lights, data_.IncnsistCtrl != 0);
  Entry.mScoresBad = 0;
  mLoading = 0;
  Raise(SendMasseges, " Give your preference between the two selected criteria.");
  Screen().SetPointer(kDefaultPointer);
}

void frmTradeOffsB::StartFresh() {
  SuggestAll(data_);
  FillTargetList();
}

void frmTradeOffsB::PlaceABMarks() {
  Plot.PlaceMarks(Points);
  ShowState();
}

void frmTradeOffsB::TakeDrop(const DroppedMark& dropped) {
  Entry.Show(dropped.ForA, StripTrailingDot(Format(dropped.XScore, dropped.Pattern)),
             StripTrailingDot(Format(dropped.YScore, dropped.Pattern)));
  (dropped.ForA ? Points.AX : Points.BX) = ToSingleChecked(Val(NumberText(dropped.XScore)));
  (dropped.ForA ? Points.AY : Points.BY) = ToSingleChecked(Val(NumberText(dropped.YScore)));
  CollapseCorners(Points);
  Points.AOrientation = 0;
  Plot.Clear();
  ShowState();
}

// To what was entered or suggested last: a stored interval comes back as an interval.
void frmTradeOffsB::BackToRecord() {
  LoadABRecord(mTargetAtt);
  Tools.Show(Points.AOrientation);
  Plot.Clear();
  PlaceABMarks();
  Plot.DrawUncertaintyLine(Points);
  ShowState();
}

// The ratio of the present points, and what it is worth.
void frmTradeOffsB::ShowState() {
  if (IsRefPair()) {
    const TradeOffVerdict verdict =
        DecideRefPairState(RefPairRatio(data_, mTargetAtt, mRefAtt, Points.AX, Points.AY, Points.BX, Points.BY));
    mJudgmentState = verdict.State;
    lblWeightRatio.Caption = verdict.Caption;
    ShowVerdict(Lights, cmdEnter, verdict.State == kInvalid ? kInvalid : kConsistent);
    return;
  }
  const CornerRatios ratios = CornerRatiosOf(data_, mTargetAtt, mRefAtt, Points);
  const TradeOffVerdict verdict = DecideJudgmentState(data_, mTargetAtt, ratios.First, ratios.Second);
  mJudgmentState = verdict.State;
  lblWeightRatio.Caption = verdict.Caption;
  if (verdict.State != kNoneDecided) ShowVerdict(Lights, cmdEnter, verdict.State);
}

void frmTradeOffsB::cmdEnter_Click() {
  Screen().SetPointer(kHourglass);
  data_.ABPoints2[mTargetAtt] = Points;
  if (IsRefPair()) {
    data_.RefAttWR = StrictNumber(RefPairRatio(data_, mTargetAtt, mRefAtt, Points.AX, Points.AY, Points.BX, Points.BY));
  } else {
    CommitJudgment(mTargetAtt);
  }
  Screen().SetPointer(kDefaultPointer);
}

void frmTradeOffsB::CommitJudgment(int att) {
  const TradeOffRatios ratios = RatiosOf(data_, mTargetAtt, mRefAtt, Points);
  CommitTradeOff(data_, att, ratios, [this](int k) { MarkJudged(imgcmbTargetAtt, data_, k); });
  AfterCommit(Buttons(), data_);
}

void frmTradeOffsB::cmdReStart_Click() {
  Screen().SetPointer(kHourglass);
  RestartTargets(imgcmbTargetAtt, data_);
  StartFresh();
  AfterRestart(Buttons());
  Screen().SetPointer(kDefaultPointer);
}

void frmTradeOffsB::cmdNext_Click() {
  mPage = 2;
  Pages.Show(data_);
}

void frmTradeOffsB::cmdBack_Click() {
  if (mPage == 1) {
    Screen().Hide(*this);
    Raise(UnloadTRNTradeOffsB);
    return;
  }
  mPage = 1;
  Pages.Leave();
}

void frmTradeOffsB::cmdFinish_Click() {
  Screen().SetPointer(kHourglass);
  Raise(ExportTradeOffsBW, kTradeOffsType, data_.BRefAttID, data_.CRefAttID, data_.RefAttWR, data_.Weights,
        data_.WeightsH, data_.WeightsL);
  PointArrays points = ExportedPoints(data_);  // as they stand after the host had the weights
  Raise(ExportABScores, points);
  Screen().SetPointer(kDefaultPointer);
  Raise(UnloadTarnwise, data_.FileIndex, true);
}

void frmTradeOffsB::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

// Nothing goes to a printer; a print command may be added between the two halves.
void frmTradeOffsB::cmdTarnwisePrint_Click() {
  Screen().SetPointer(kHourglass);
  Frame& frame = Scores.framePCNumericalC;
  Chart.picTradeOffsRange.BackColor = kWhite;
  frame.Left = 0.0F;
  frame.Top = 0.0F;
  Chart.picTradeOffsRange.BackColor = 0;
  frame.Left = 3855.0F;
  frame.Top = 2700.0F;
  Screen().SetPointer(kDefaultPointer);
}

void frmTradeOffsB::tbsTradeOffs_Click() {
  if (tbsTradeOffs.SelectedItem == 1) Scores.framePCNumericalC.ZOrder();
  if (tbsTradeOffs.SelectedItem == 2) Uncertainty.frameJdgUnctn.ZOrder();
}

void frmTradeOffsB::tsWeightRatios_Click() {
  if (Results.tsWeightRatios.SelectedItem == 1) Results.gridBRJ.ZOrder();
  if (Results.tsWeightRatios.SelectedItem == 2) Results.gridCRJ.ZOrder();
}

}  // namespace Tarnwise
