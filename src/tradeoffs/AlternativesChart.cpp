// The chart of the two alternatives. All of its arithmetic is in Singles; lengths are twips.
#include "curves/mdGraphs.h"
#include "judging/JudgmentLights.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

Single FloorSingle(Single x) { return static_cast<Single>(Int(static_cast<Double>(x))); }

String OriginText(Single low) {
  const String text = NumberText(FloorSingle(low));
  return Val(text) <= 0.0 ? "0" : text;
}

}  // namespace

void frmTradeOffsB::ConnectChart() {
  for (PictureBox* mark : {&Chart.shpPCA, &Chart.shpPCB}) {
    mark->DragOver = [this](Control& source, Single, Single, DragState state) { SetDragIcon(source, state); };
    mark->DragDrop = [this, mark](Control& source, Single x, Single y) { DropOnMark(*mark, source, x, y); };
  }
  Chart.picTradeOffsRange.DragDrop = [this](Control& source, Single x, Single y) { DropOnPlot(source, x, y); };
  // The plot covers the graph, so the pointer that comes from one to the other has left the first.
  for (PictureBox* area : {&Chart.picPCGraph, &Chart.picTradeOffsRange}) {
    area->DragOver = [this](Control& source, Single, Single, DragState state) { SetDragIcon(source, state); };
  }
  Chart.picPCGraph.DragDrop = [this](Control&, Single x, Single y) {
    const PictureBox& plot = Chart.picTradeOffsRange;
    const bool inside = x >= plot.Left && x <= plot.Left + plot.Width && y >= plot.Top && y <= plot.Top + plot.Height;
    if (!inside) Screen().Beep();
  };
  Chart.picPCGraph.AcceptsDrop = [](const Control&) { return false; };
  Lights.Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmTradeOffsB::SetDragIcon(Control& source, DragState state) {
  const bool forA = source.Tag() == "PointA";
  source.DragIcon = state == DragState::Leave ? String() : data_.KestaDir + (forA ? "\\adrag.ico" : "\\bdrag.ico");
}

Single frmTradeOffsB::ScaleX() const { return DivideSingle(Chart.picTradeOffsRange.Width, XStep * 6.0F); }
Single frmTradeOffsB::ScaleY() const { return DivideSingle(Chart.picTradeOffsRange.Height, YStep * 6.0F); }
Single frmTradeOffsB::ScoreToPlotX(Single score) const { return CheckedSingle((score - XMin) * ScaleX()); }
Single frmTradeOffsB::ScoreToPlotY(Single score) const { return CheckedSingle((YMax - score) * ScaleY()); }

Double frmTradeOffsB::ChartXToScore(Single x) const {
  return RoundToFourDecimals(static_cast<Double>(x / ScaleX() + XMin));
}

Double frmTradeOffsB::ChartYToScore(Single y) const {
  return RoundToFourDecimals(static_cast<Double>(YMax - y / ScaleY()));
}

void frmTradeOffsB::BuildChart() {
  const AttValueData& values = data_.AttValueData;
  Chart.lblTradeOffFirstAtt.Caption = Trim(data_.AttName(mTargetAtt));
  Chart.lblTradeOffSecondAtt.Caption = Trim(data_.AttName(mRefAtt));
  XMin = ToSingleChecked(values.ScoreMin[mTargetAtt]);
  XMax = ToSingleChecked(values.ScoreMax[mTargetAtt]);
  YMin = ToSingleChecked(values.ScoreMin[mRefAtt]);
  YMax = ToSingleChecked(values.ScoreMax[mRefAtt]);
  XStep = CheckedSingle(XMax - XMin) / 6.0F;
  YStep = CheckedSingle(YMax - YMin) / 6.0F;
  Chart.labPCX[0].Caption = OriginText(XMin);
  Chart.labPCY[0].Caption = OriginText(YMin);
  for (int k = 1; k <= 5; ++k) {
    Chart.labPCX[k].Caption = NumberText(FloorSingle(static_cast<Single>(k) * XStep + XMin));
    Chart.labPCY[k].Caption = NumberText(FloorSingle(static_cast<Single>(k) * YStep + YMin));
  }
  Chart.labPCX[6].Caption = NumberText(FloorSingle(XMax));
  Chart.labPCY[6].Caption = NumberText(FloorSingle(YMax));
  Chart.labPCLowest.Caption = "WORST";
  Chart.labPCHighest.Caption = "BEST";
  PlaceCorners();

  const bool benefitReference = mRefAtt == data_.BRefAttID && data_.BRankCount > 0;
  Chart.imgRefAtt.Picture = Chart.imgMarks[benefitReference ? 1 : 3].Picture;
  Chart.imgTargetAtt.Picture = Chart.imgMarks[IsRefPair() ? 3 : data_.IsBenefit(mTargetAtt) ? 0 : 2].Picture;
  Chart.imgTargetAtt.ToolTipText = data_.AttDescription(mTargetAtt);
  Chart.imgRefAtt.ToolTipText = data_.AttDescription(mRefAtt);
}

// Where more is better and where it is worse: the reference pair has a cost across and a benefit upward, an ordinary
// pair two of a kind.
void frmTradeOffsB::PlaceCorners() {
  if (IsRefPair()) {
    PlaceCorner(Chart.shpPCHighest, Chart.labPCHighest, true, true);
    PlaceCorner(Chart.shpPCLowest, Chart.labPCLowest, false, false);
  } else if (data_.IsBenefit(mTargetAtt)) {
    PlaceCorner(Chart.shpPCHighest, Chart.labPCHighest, true, false);
    PlaceCorner(Chart.shpPCLowest, Chart.labPCLowest, false, true);
    Chart.labPCLowest.Left = 0.0F;
  } else {
    PlaceCorner(Chart.shpPCHighest, Chart.labPCHighest, false, true);
    PlaceCorner(Chart.shpPCLowest, Chart.labPCLowest, true, false);
  }
}

void frmTradeOffsB::PlaceCorner(Shape& mark, Label& caption, bool top, bool left) {
  const PictureBox& plot = Chart.picTradeOffsRange;
  const PictureBox& graph = Chart.picPCGraph;
  mark.Left = plot.Left + (left ? 0.0F : plot.Width()) - mark.Width / 2.0F;
  mark.Top = plot.Top + (top ? 0.0F : plot.Height()) - mark.Height / 2.0F;
  caption.Left = left ? 10.0F : graph.Width - caption.Width - 120.0F;
  caption.Top = top ? 0.0F : graph.Height - caption.Height - 90.0F;
}

void frmTradeOffsB::PlaceABMarks() {
  const auto place = [this](PictureBox& mark, Single x, Single y) {
    mark.Left = ScoreToPlotX(x) - mark.Width / 2.0F;
    mark.Top = ScoreToPlotY(y) - mark.Height / 2.0F;
    mark.Visible = true;
    mark.ZOrder();
  };
  place(Chart.shpPCA, Points.AX, Points.AY);
  place(Chart.shpPCB, Points.BX, Points.BY);
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

void frmTradeOffsB::DropOnPlot(Control& mark, Single x, Single y) {
  const PictureBox& plot = Chart.picTradeOffsRange;
  if (x < 0.0F || x > plot.Width || y < 0.0F || y > plot.Height) return;
  mark.Left = x - mark.Width / 2.0F;
  mark.Top = y - mark.Height / 2.0F;
  TakeDrop(mark.Tag() == "PointA", ChartXToScore(x), ChartYToScore(y), "0.##");
}

// The position is one in the mark that was hit, so it suits the usual case of a mark dropped a little beside itself.
// Whichever mark was dragged, it is the alternative of the mark that was hit whose scores change.
void frmTradeOffsB::DropOnMark(Control& target, Control& source, Single x, Single y) {
  source.Top = y + source.Top - source.Height / 2.0F;
  source.Left = x + source.Left - source.Width / 2.0F;
  const Single centreX = source.Left + source.Width / 2.0F;
  const Single centreY = source.Top + source.Height / 2.0F;
  const bool forA = &target == &Chart.shpPCA;
  TakeDrop(forA, ChartXToScore(centreX), ChartYToScore(centreY), forA ? "0.0#" : "0.##");
}

void frmTradeOffsB::TakeDrop(bool forA, Double xScore, Double yScore, const char* pattern) {
  TextBox& first = forA ? Scores.txtTradeOffAFirstScore : Scores.txtTradeOffBFirstScore;
  TextBox& second = forA ? Scores.txtTradeOffASecondScore : Scores.txtTradeOffBSecondScore;
  const String xText = NumberText(xScore);
  const String yText = NumberText(yScore);
  first.SetText(StripTrailingDot(Format(xScore, pattern)));
  second.SetText(StripTrailingDot(Format(yScore, pattern)));
  (forA ? Points.AX : Points.BX) = ToSingleChecked(Val(xText));
  (forA ? Points.AY : Points.BY) = ToSingleChecked(Val(yText));
  CollapseCorners(Points);
  Points.AOrientation = 0;
  Chart.picTradeOffsRange.Cls();
  ShowState();
}

void frmTradeOffsB::Timer1_Timer() { BlinkJudgmentLight(Lights, mJudgmentState); }

}  // namespace Tarnwise
