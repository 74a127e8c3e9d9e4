// Values of scores: a value curve, or the straight line over the performance range, and what the chord over that range
// makes of it.
#pragma once

#include "dea/Problem.h"

namespace Tarnwise::Dea {

class ValueFunction {
 public:
  explicit ValueFunction(const Scale& scale);
  Double At(Double score) const;  // 0 to 1: what lies outside counts as the end
  Double Unclamped(Double score) const;

 private:
  Curve curve_;
};

// How much score and how much value lie between worst and best.
struct Span {
  Double Score = 0.0;
  Double Value = 0.0;
};

Span SpanOf(const Scale& scale);

// The largest distance of the value from the chord over worst to best, in shares of the values there. Absent where
// there are no such shares: the curve leaves and comes back, or the range is a point.
std::optional<Double> DepartureFromChord(const Scale& scale);

}  // namespace Tarnwise::Dea
