#include "direct/frmDirectB.h"

#include "judging/Intervals.h"
#include "judging/JudgmentLights.h"
#include "judging/TargetList.h"
#include "view/Platform.h"

namespace Tarnwise {

frmDirectB::frmDirectB(std::shared_ptr<Platform> platform, WizardData& wizardData)
    : DirectBForm(std::move(platform)),
      Pages(*this, picPanel, Results,
            {"Tarnwise: Estimate intervals of the weight ratios",
             "How important is each attribute, compared with its reference?",
             "Drag the two handles until the region holds every weight ratio that you find reasonable, or type the "
             "interval; then press Enter."}),
      data_(wizardData) {
  ConnectDrags();
  Boxes.Typed = [this](EntryBox which) { ApplyTypedValue(which); };
  Lights.Timer1.Tick = [this] { BlinkJudgmentLight(Lights, mJudgmentState); };
  imgcmbTargetAtt.Click = [this] { imgcmbTargetAtt_Click(); };
  tsTab.Click = [this] { tsTab_Click(); };
  Results.tsWeightRatios.Click = [this] { tsWeightRatios_Click(); };
  cmdEnter.Click = [this] { cmdEnter_Click(); };
  cmdReStart.Click = [this] { cmdReStart_Click(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  cmdBack.Click = [this] { cmdBack_Click(); };
  cmdFinish.Click = [this] { cmdFinish_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdHelp.Click = [this] { Screen().Help(*this, HelpPath(data_), kHelpShowContext, kHelpContext); };
}

void frmDirectB::ConnectDrags() {
  Region.IsOneRay = [this] { return IsRefPair(); };
  Region.HandleMoved = [this](const HandlePoints& at) {
    TakeVerdict(IsRefPair() ? JudgeReferencePair(at) : JudgePair(data_, mTargetAtt, at));
  };
  // A handle carried away from the chart shows that it can't be dropped there. The two are not alike on purpose.
  DragOver = [](Control& source, Single, Single, DragState state) {
    if (state == DragState::Enter) source.MousePointer = kDefaultPointer;
    if (state == DragState::Leave) source.MousePointer = kNoDrop;
  };
  picPanel.Wire([](PictureBox& panel) {
    panel.DragOver = [](Control& source, Single, Single, DragState state) {
      if (state == DragState::Enter) source.MousePointer = kNoDrop;
      if (state == DragState::Leave) source.MousePointer = kDefaultPointer;
    };
  });
}

void frmDirectB::Disconnect() {
  UnloadTarnwise = nullptr;
  UnloadDirectB = nullptr;
  ExportDirectBW = nullptr;
  SendMasseges = nullptr;
}

void frmDirectB::Load() {
  mLoading = 1;
  Pages.NameJudgments();
  mHandlePos.Allocate(data_.NumAtts());
  mResultsStage = 0;
  Importance.Build(data_);
  picPanel[0].ZOrder();
  FillTargetList();
  const bool stored = data_.HasStoredJudgments();
  if (stored) {
    for (int i = 0; i < data_.NumAtts(); ++i) mHandlePos[i] = RegionOf(i);
  }
  ShowRegion(RegionOf(mTargetAtt));
  cmdNext.Enabled = stored;
  if (stored) cmdFinish.Enabled = true;
  ShowLightsFor(Lights, data_.IncnsistCtrl != 0);
  ShowOrderPanel();
  mLoading = 0;
}

// Where the handles stand for the stored interval.
HandlePoints frmDirectB::RegionOf(int att) const {
  const Interval interval = IntervalOf(data_, att);
  if (interval.High == interval.Low) {
    const ChartPoint p = RatioToPoint(interval.Mid);
    return {p.X, p.Y, p.X, p.Y};
  }
  const ChartPoint low = RatioToPoint(interval.Low);
  const ChartPoint high = RatioToPoint(interval.High);
  return {low.X, low.Y, high.X, high.Y};
}

// A just shown judgment never blinks and can be entered as it stands, whatever the check says of it.
void frmDirectB::ShowRegion(const HandlePoints& at) {
  Region.Show(at);
  mJudgmentState = kNoneDecided;
  TakeVerdict(JudgePair(data_, mTargetAtt, at));
  ShowAtRest(Lights, cmdEnter);
}

void frmDirectB::ShowRefPairRegion() {
  const ChartPoint p = RatioToPoint(NumberIn(data_.RefAttWR).value_or(0.0));  // none yet: at the bottom edge
  const HandlePoints at{p.X, p.Y, p.X, p.Y};
  Region.Show(at);
  mJudgmentState = kNoneDecided;
  TakeVerdict(JudgeReferencePair(at));
  ShowAtRest(Lights, cmdEnter);
}

// The handle that stands for the box goes to its value, or onto the other handle where both are equal.
void frmDirectB::ApplyTypedValue(EntryBox which) {
  HandlePoints at = Region.HandleCentres();
  const bool firstIsLower = PointToRatio(at.X0, at.Y0) < PointToRatio(at.X1, at.Y1);
  const int moved = (which == EntryBox::Lower) == firstIsLower ? 0 : 1;
  const Double lo = Boxes.Lower();
  const Double hi = Boxes.Upper();
  const ChartPoint other = moved == 0 ? ChartPoint{at.X1, at.Y1} : ChartPoint{at.X0, at.Y0};
  const ChartPoint to = hi == lo ? other : RatioToPoint(which == EntryBox::Lower ? lo : hi);
  if (moved == 0) {
    at.X0 = to.X;
    at.Y0 = to.Y;
  } else {
    at.X1 = to.X;
    at.Y1 = to.Y;
  }
  Region.Show(at);
  mJudgmentState = kNoneDecided;
  TakeVerdict(JudgePair(data_, mTargetAtt, at));
}

void frmDirectB::TakeVerdict(const Verdict& verdict) {
  mJudgmentState = verdict.State;
  if (!verdict.Lower.empty()) Boxes.Show(verdict.Lower, verdict.Upper);
  if (verdict.State != kNoneDecided) ShowVerdict(Lights, cmdEnter, verdict.State);
}

void frmDirectB::cmdEnter_Click() {
  Screen().SetPointer(kHourglass);
  if (IsRefPair()) {
    data_.RefAttWR = Boxes.Lower();
  } else {
    mHandlePos[mTargetAtt] = Region.HandleCentres();
    CommitJudgment(mTargetAtt);
  }
  Screen().SetPointer(kDefaultPointer);
}

// What the boxes show is what is stored, two decimals and not the handle's full precision.
void frmDirectB::CommitJudgment(int att) {
  CommitInterval(data_, att, Boxes.Lower(), Boxes.Upper(), [this, att](int k) {
    mHandlePos[k] = mHandlePos[att];
    MarkJudged(imgcmbTargetAtt, data_, k);
  });
  AfterCommit(Buttons(), data_);
}

void frmDirectB::cmdReStart_Click() {
  ResetJudgments();
  AfterRestart(Buttons());
}

void frmDirectB::ResetJudgments() {
  Screen().SetPointer(kHourglass);
  RestartTargets(imgcmbTargetAtt, data_);
  FillTargetList();
  ShowRegion(RegionOf(mTargetAtt));
  if (tsTab.SelectedItem == 1) ShowOrderPanel();  // else the ranges stay in front
  Screen().SetPointer(kDefaultPointer);
}

void frmDirectB::cmdNext_Click() {
  mResultsStage = 1;
  Pages.Show(data_);
  Results.gridBRJ.ZOrder();
}

void frmDirectB::cmdBack_Click() {
  if (mResultsStage == 0) {
    Raise(UnloadDirectB);
    return;
  }
  mResultsStage = 0;
  Pages.Leave();
}

void frmDirectB::tsWeightRatios_Click() {
  const int tab = Results.tsWeightRatios.SelectedItem;
  if (tab != 1 && tab != 2) return;
  Results.gridBRJ.Visible = tab == 1;
  Results.gridCRJ.Visible = tab == 2;
}

void frmDirectB::cmdFinish_Click() {
  Screen().SetPointer(kHourglass);
  Raise(ExportDirectBW, kDirectType, data_.BRefAttID, data_.CRefAttID, data_.RefAttWR, data_.Weights, data_.WeightsH,
        data_.WeightsL);
  Screen().SetPointer(kDefaultPointer);
  Raise(UnloadTarnwise, data_.FileIndex, true);
}

void frmDirectB::cmdCancel_Click() { Raise(UnloadTarnwise, data_.FileIndex, false); }

}  // namespace Tarnwise
