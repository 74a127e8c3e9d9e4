#include "tradeoffs/AlternativesChart.h"

#include "model/Groups.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

Single FloorSingle(Single x) { return static_cast<Single>(Int(static_cast<Double>(x))); }

String OriginText(Single low) {
  const String text = NumberText(FloorSingle(low));
  return Val(text) <= 0.0 ? "0" : text;
}

constexpr Colour kLineColour = 16711680;  // bright blue of the sixteen-colour table

}  // namespace

AlternativesChart::AlternativesChart(AlternativesControls& controls, const WizardData& data)
    : controls_(controls), data_(data) {
  ConnectDrags();
}

void AlternativesChart::ConnectDrags() {
  for (PictureBox* mark : {&controls_.shpPCA, &controls_.shpPCB}) {
    mark->DragOver = [this](Control& source, Single, Single, DragState state) { SetDragIcon(source, state); };
    mark->DragDrop = [this, mark](Control& source, Single x, Single y) { DropOnMark(*mark, source, x, y); };
  }
  controls_.picTradeOffsRange.DragDrop = [this](Control& source, Single x, Single y) { DropOnPlot(source, x, y); };
  // The plot covers the graph, so the pointer that comes from one to the other has left the first.
  for (PictureBox* area : {&controls_.picPCGraph, &controls_.picTradeOffsRange}) {
    area->DragOver = [this](Control& source, Single, Single, DragState state) { SetDragIcon(source, state); };
  }
  controls_.picPCGraph.DragDrop = [this](Control&, Single x, Single y) {
    const PictureBox& plot = controls_.picTradeOffsRange;
    const bool inside = x >= plot.Left && x <= plot.Left + plot.Width && y >= plot.Top && y <= plot.Top + plot.Height;
    if (!inside) plot.Owner.Screen().Beep();
  };
  controls_.picPCGraph.AcceptsDrop = [](const Control&) { return false; };
}

void AlternativesChart::SetDragIcon(Control& source, DragState state) {
  const bool forA = source.Tag() == "PointA";
  source.DragIcon = state == DragState::Leave ? String() : data_.KestaDir + (forA ? "\\adrag.ico" : "\\bdrag.ico");
}

Single AlternativesChart::ScaleX() const { return DivideSingle(controls_.picTradeOffsRange.Width, Scale.XStep * 6.0F); }
Single AlternativesChart::ScaleY() const {
  return DivideSingle(controls_.picTradeOffsRange.Height, Scale.YStep * 6.0F);
}
Single AlternativesChart::ScoreToPlotX(Single score) const { return CheckedSingle((score - Scale.XMin) * ScaleX()); }
Single AlternativesChart::ScoreToPlotY(Single score) const { return CheckedSingle((Scale.YMax - score) * ScaleY()); }

Double AlternativesChart::ChartXToScore(Single x) const {
  return RoundToFourDecimals(static_cast<Double>(x / ScaleX() + Scale.XMin));
}

Double AlternativesChart::ChartYToScore(Single y) const {
  return RoundToFourDecimals(static_cast<Double>(Scale.YMax - y / ScaleY()));
}

void AlternativesChart::Build(int target, int reference) {
  const AttValueData& values = data_.AttValueData;
  controls_.lblTradeOffFirstAtt.Caption = Trim(data_.AttName(target));
  controls_.lblTradeOffSecondAtt.Caption = Trim(data_.AttName(reference));
  Scale.XMin = ToSingleChecked(values.ScoreMin[target]);
  Scale.XMax = ToSingleChecked(values.ScoreMax[target]);
  Scale.YMin = ToSingleChecked(values.ScoreMin[reference]);
  Scale.YMax = ToSingleChecked(values.ScoreMax[reference]);
  Scale.XStep = CheckedSingle(Scale.XMax - Scale.XMin) / 6.0F;
  Scale.YStep = CheckedSingle(Scale.YMax - Scale.YMin) / 6.0F;
  ShowScale();
  const bool referencePair = IsReferencePair(data_, target, reference);
  PlaceCorners(referencePair, data_.IsBenefit(target));

  const bool benefitReference = reference == data_.BRefAttID && data_.BRankCount > 0;
  const int targetMark = referencePair ? 3 : data_.IsBenefit(target) ? 0 : 2;
  controls_.imgRefAtt.Picture = controls_.imgMarks[benefitReference ? 1 : 3].Picture;
  controls_.imgTargetAtt.Picture = controls_.imgMarks[targetMark].Picture;
  controls_.imgTargetAtt.ToolTipText = data_.AttDescription(target);
  controls_.imgRefAtt.ToolTipText = data_.AttDescription(reference);
}

void AlternativesChart::ShowScale() {
  controls_.labPCX[0].Caption = OriginText(Scale.XMin);
  controls_.labPCY[0].Caption = OriginText(Scale.YMin);
  for (int k = 1; k <= 5; ++k) {
    controls_.labPCX[k].Caption = NumberText(FloorSingle(static_cast<Single>(k) * Scale.XStep + Scale.XMin));
    controls_.labPCY[k].Caption = NumberText(FloorSingle(static_cast<Single>(k) * Scale.YStep + Scale.YMin));
  }
  controls_.labPCX[6].Caption = NumberText(FloorSingle(Scale.XMax));
  controls_.labPCY[6].Caption = NumberText(FloorSingle(Scale.YMax));
}

// Where more is better and where it is worse: the reference pair has a cost across and a benefit upward, an ordinary
// pair two of a kind.
void AlternativesChart::PlaceCorners(bool referencePair, bool benefit) {
  controls_.labPCLowest.Caption = "WORST";
  controls_.labPCHighest.Caption = "BEST";
  if (referencePair) {
    PlaceCorner(controls_.shpPCHighest, controls_.labPCHighest, true, true);
    PlaceCorner(controls_.shpPCLowest, controls_.labPCLowest, false, false);
  } else if (benefit) {
    PlaceCorner(controls_.shpPCHighest, controls_.labPCHighest, true, false);
    PlaceCorner(controls_.shpPCLowest, controls_.labPCLowest, false, true);
    controls_.labPCLowest.Left = 0.0F;
  } else {
    PlaceCorner(controls_.shpPCHighest, controls_.labPCHighest, false, true);
    PlaceCorner(controls_.shpPCLowest, controls_.labPCLowest, true, false);
  }
}

void AlternativesChart::PlaceCorner(Shape& mark, Label& caption, bool top, bool left) {
  const PictureBox& plot = controls_.picTradeOffsRange;
  const PictureBox& graph = controls_.picPCGraph;
  mark.Left = plot.Left + (left ? 0.0F : plot.Width()) - mark.Width / 2.0F;
  mark.Top = plot.Top + (top ? 0.0F : plot.Height()) - mark.Height / 2.0F;
  caption.Left = left ? 10.0F : graph.Width - caption.Width - 120.0F;
  caption.Top = top ? 0.0F : graph.Height - caption.Height - 90.0F;
}

void AlternativesChart::PlaceMarks(const ABPoint& points) {
  const auto place = [this](PictureBox& mark, Single x, Single y) {
    mark.Left = ScoreToPlotX(x) - mark.Width / 2.0F;
    mark.Top = ScoreToPlotY(y) - mark.Height / 2.0F;
    mark.Visible = true;
    mark.ZOrder();
  };
  place(controls_.shpPCA, points.AX, points.AY);
  place(controls_.shpPCB, points.BX, points.BY);
}

void AlternativesChart::DrawUncertaintyLine(const ABPoint& points) {
  Clear();
  const std::vector<Single> ends = {ScoreToPlotX(points.ALX), ScoreToPlotY(points.ALY), ScoreToPlotX(points.AUX),
                                    ScoreToPlotY(points.AUY)};
  if (ends[0] == ends[2] && ends[1] == ends[3]) return;
  controls_.picTradeOffsRange.Draw({Drawn::What::Line, ends, kLineColour, 3});
}

void AlternativesChart::DropOnPlot(Control& mark, Single x, Single y) {
  const PictureBox& plot = controls_.picTradeOffsRange;
  if (x < 0.0F || x > plot.Width || y < 0.0F || y > plot.Height) return;
  mark.Left = x - mark.Width / 2.0F;
  mark.Top = y - mark.Height / 2.0F;
  Dropped({mark.Tag() == "PointA", ChartXToScore(x), ChartYToScore(y), "0.##"});
}

// The position is one in the mark that was hit, so it suits the usual case of a mark dropped a little beside itself.
// Whichever mark was dragged, it is the alternative of the mark that was hit whose scores change.
void AlternativesChart::DropOnMark(Control& target, Control& source, Single x, Single y) {
  source.Top = y + source.Top - source.Height / 2.0F;
  source.Left = x + source.Left - source.Width / 2.0F;
  const Single centreX = source.Left + source.Width / 2.0F;
  const Single centreY = source.Top + source.Height / 2.0F;
  const bool forA = &target == &controls_.shpPCA;
  Dropped({forA, ChartXToScore(centreX), ChartYToScore(centreY), forA ? "0.0#" : "0.##"});
}

}  // namespace Tarnwise
