// The chart of the two alternatives: the scores of the target across, those of its reference upward. All of its
// arithmetic is in Singles; lengths are twips.
#pragma once

#include "forms/TradeOffsBForm.h"
#include "model/mdTRNMain.h"

namespace Tarnwise {

// What the chart spans, in scores. A step is a sixth of the range.
struct ChartScale {
  Single XMin = 0.0F;
  Single XMax = 0.0F;
  Single YMin = 0.0F;
  Single YMax = 0.0F;
  Single XStep = 0.0F;
  Single YStep = 0.0F;
};

// A mark was dropped: the scores there, and how they are to be shown. It is A or B whose scores change.
struct DroppedMark {
  bool ForA = false;
  Double XScore = 0.0;
  Double YScore = 0.0;
  const char* Pattern = nullptr;
};

struct AlternativesChart {
  AlternativesChart(AlternativesControls& controls, const WizardData& data);

  std::function<void(const DroppedMark&)> Dropped;

  ChartScale Scale;

  // The pair's names, scale, corners and marks.
  void Build(int target, int reference);
  void PlaceMarks(const ABPoint& points);
  void Clear() { controls_.picTradeOffsRange.Cls(); }
  void DrawUncertaintyLine(const ABPoint& points);

 private:
  void ConnectDrags();
  void ShowScale();
  void PlaceCorners(bool referencePair, bool benefit);
  void PlaceCorner(Shape& mark, Label& caption, bool top, bool left);
  Single ScaleX() const;
  Single ScaleY() const;
  Single ScoreToPlotX(Single score) const;
  Single ScoreToPlotY(Single score) const;
  Double ChartXToScore(Single x) const;
  Double ChartYToScore(Single y) const;
  void DropOnPlot(Control& mark, Single x, Single y);
  void DropOnMark(Control& target, Control& source, Single x, Single y);
  void SetDragIcon(Control& source, DragState state);

  AlternativesControls& controls_;
  const WizardData& data_;
};

}  // namespace Tarnwise
