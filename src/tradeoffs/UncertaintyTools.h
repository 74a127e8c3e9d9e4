// The tools that stretch A into a line: its two ends give the two ends of the ratio interval.
#pragma once

#include "tradeoffs/AlternativesChart.h"

namespace Tarnwise {

struct UncertaintyTools {
  explicit UncertaintyTools(UncertaintyControls& controls);

  std::function<void(const String& key)> Pressed;  // one of the four movers
  std::function<void()> Certain;                   // back to what was entered or suggested last

  void EnableToolbars(bool enabled);  // the pair of both references is never uncertain
  void Show(int orientation);
  void FillChangeSteps(const AttValueData& values, int target, int reference);

  // The press of a mover: a corner of A goes a step, up to its limit.
  void Move(const String& key, ABPoint& points, const ChartScale& scale);

  Single mStepH = 0.0F;  // what a mover adds, in scores
  Single mStepV = 0.0F;

 private:
  UncertaintyControls& controls_;
};

}  // namespace Tarnwise
