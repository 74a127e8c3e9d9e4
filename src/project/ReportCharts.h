// The charts of a report. Everything that they show stands in a table beside them too.
#pragma once

#include "dea/Problem.h"
#include "project/Drawing.h"
#include "project/Evaluation.h"

namespace Tarnwise {

// How many units a chart shows; the best ones, where there are more.
constexpr std::size_t kMostCharted = 60;

// A bar from the least to the greatest score of each unit under the judgments, a tick at its score without them. Value
// form: a bar from the least to the greatest value.
Drawing ScoresChart(const Evaluation& evaluation);

// The ranks that are sure and, in front, those that were seen. There have to be ranks.
Drawing RanksChart(const Evaluation& evaluation);

// One judged interval of ratios, at a missing bound open.
struct ChartedRatio {
  String Name;
  double Low = 0.0;  // 0: no bound
  std::optional<double> Ratio;
  std::optional<double> High;
};

// The intervals on a logarithmic axis, the reference at 1.
Drawing RatiosChart(const String& reference, const std::vector<ChartedRatio>& ratios);

// A value curve, its chord over worst to best, and where the units are.
Drawing ValueCurveChart(const String& name, const Dea::Scale& scale, const std::vector<double>& scores);

}  // namespace Tarnwise
