#include "judging/Consistency.h"

#include <algorithm>

namespace Tarnwise {

namespace {

// The first judged attribute of the target's orientation on the ranks from `rank` on, -1 when there is none.
int NearestJudged(const WizardData& data, int target, int rank, int end, int step) {
  const Double orientation = data.Orientation(target);
  for (; rank != end; rank += step) {
    for (int k = 0; k < data.NumAtts(); ++k) {
      if (data.AttO[k] == rank && data.WeightDone[k] && data.Orientation(k) == orientation) return k;
    }
  }
  return -1;
}

}  // namespace

Limits LimitsOf(const WizardData& data, int target) {
  Limits limits;
  const int own = data.AttO[target];
  const int last = std::max<int>(own, data.IsBenefit(target) ? data.BAttCount : data.CAttCount);
  const int better = NearestJudged(data, target, own - 1, std::min(0, own - 1), -1);
  if (better >= 0) {
    const Double found = ToDouble(data.WeightsL[better]);
    if (found != 0.0) {
      limits.Upper = found;
      limits.UpperOf = better;
    }
  }
  const int worse = NearestJudged(data, target, own + 1, last + 1, 1);
  if (worse >= 0) {
    limits.Lower = ToDouble(data.WeightsH[worse]);
    limits.LowerOf = worse;
  }
  return limits;
}

bool IsWithin(const Limits& limits, Double a, Double b) {
  return std::min(a, b) >= limits.Lower && std::max(a, b) <= limits.Upper;
}

}  // namespace Tarnwise
