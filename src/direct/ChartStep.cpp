// The direct step's chart: handles, rays and the wedge between them, and the verdict on what they say.
#include "direct/frmDirectB.h"
#include "judging/JudgmentLights.h"

namespace Tarnwise {

namespace {

constexpr Colour kRegionColour = 0xC0E0FF;

}  // namespace

void frmDirectB::ConnectChart() {
  Chart.picTradeOffsRange.DragOver = [this](Control& source, Single x, Single y, DragState state) {
    HandleDragged(source, x, y, state);
  };
  Chart.picTradeOffsRange.AcceptsDrop = [](const Control&) { return true; };  // the handle has followed already
  // A handle carried away from the chart shows that it can't be dropped there. The two are not alike on purpose.
  DragOver = [](Control& source, Single, Single, DragState state) {
    if (state == DragState::Enter) source.MousePointer = 0;
    if (state == DragState::Leave) source.MousePointer = 12;
  };
  picPanel.Wire([](PictureBox& panel) {
    panel.DragOver = [](Control& source, Single, Single, DragState state) {
      if (state == DragState::Enter) source.MousePointer = 12;
      if (state == DragState::Leave) source.MousePointer = 0;
    };
  });
  Lights.Timer1.Tick = [this] { Timer1_Timer(); };
}

HandlePoints frmDirectB::HandleCentres() const {
  const PictureBox& h0 = Chart.picHandle[0];
  const PictureBox& h1 = Chart.picHandle[1];
  return {h0.Left + h0.Width / 2.0F, h0.Top + h0.Height / 2.0F, h1.Left + h1.Width / 2.0F, h1.Top + h1.Height / 2.0F};
}

void frmDirectB::MoveHandle(int index, ChartPoint centre) {
  PictureBox& handle = Chart.picHandle[index];
  handle.Left = centre.X - handle.Width / 2.0F;
  handle.Top = centre.Y - handle.Height / 2.0F;
  Chart.BorderL[index].X2 = centre.X;
  Chart.BorderL[index].Y2 = centre.Y;
}

void frmDirectB::PlaceHandles(const HandlePoints& at) {
  MoveHandle(0, {at.X0, at.Y0});
  MoveHandle(1, {at.X1, at.Y1});
}

void frmDirectB::DrawRegion(const HandlePoints& at) {
  Chart.picTradeOffsRange.Cls();
  Chart.picTradeOffsRange.Draw({Drawn::What::Polygon, RegionCorners(at), kRegionColour, 1});
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
  PlaceHandles(at);
  DrawRegion(at);
  mJudgmentState = kNoneDecided;
  CheckJudgment(at);
  ShowAtRest(Lights, cmdEnter);
}

void frmDirectB::ShowDefaultRegion(int att) { ShowRegion(RegionOf(att)); }

void frmDirectB::ComputeStoredRegion(int att) { mHandlePos[att] = RegionOf(att); }

void frmDirectB::ShowStoredRegion(int att) { ShowRegion(mHandlePos[att]); }

void frmDirectB::ShowRefPairRegion() {
  const ChartPoint p = RatioToPoint(NumberIn(data_.RefAttWR).value_or(0.0));  // none yet: at the bottom edge
  const HandlePoints at{p.X, p.Y, p.X, p.Y};
  PlaceHandles(at);
  DrawRegion(at);
  mJudgmentState = kNoneDecided;
  CheckRefPair(at);
  ShowAtRest(Lights, cmdEnter);
}

// The handle follows the pointer up to the edge; the check does the policing.
void frmDirectB::HandleDragged(Control& source, Single x, Single y, DragState state) {
  if (state == DragState::Leave) return;
  source.Top = y - source.Height / 2.0F;
  source.Left = x - source.Width / 2.0F;
  if (IsReferencePair(data_, mTargetAtt, mRefAtt)) {
    for (const int i : {0, 1}) {
      Chart.BorderL[i].X2 = x;
      Chart.BorderL[i].Y2 = y;
    }
    PictureBox& other = Chart.picHandle[1 - source.Index];
    other.Left = source.Left();
    other.Top = source.Top();
    const HandlePoints at = HandleCentres();
    DrawRegion(at);
    CheckRefPair(at);
    return;
  }
  Chart.BorderL[source.Index].X2 = x;
  Chart.BorderL[source.Index].Y2 = y;
  const HandlePoints at = HandleCentres();
  DrawRegion(at);
  CheckJudgment(at);
}

void frmDirectB::CheckJudgment(const HandlePoints& at) { TakeVerdict(JudgePair(data_, mTargetAtt, at)); }

void frmDirectB::CheckRefPair(const HandlePoints& at) { TakeVerdict(JudgeReferencePair(at)); }

void frmDirectB::TakeVerdict(const Verdict& verdict) {
  mJudgmentState = verdict.State;
  if (!verdict.Lower.empty()) {
    txtWRLower.SetText(verdict.Lower);
    txtWRUpper.SetText(verdict.Upper);
  }
  if (verdict.State != kNoneDecided) ShowVerdict(Lights, cmdEnter, verdict.State);
}

void frmDirectB::Timer1_Timer() { BlinkJudgmentLight(Lights, mJudgmentState); }

}  // namespace Tarnwise
