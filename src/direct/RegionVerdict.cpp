#include "direct/RegionVerdict.h"

#include "runtime/Text.h"

#include <algorithm>

namespace Tarnwise {

Verdict JudgePair(const WizardData& data, int target, const HandlePoints& at) {
  if (!IsOnChart(at)) return {kInvalid, {}, {}};
  const Double r0 = PointToRatio(at.X0, at.Y0);
  const Double r1 = PointToRatio(at.X1, at.Y1);
  Verdict verdict{kNoneDecided, Format(std::min(r0, r1), "0.00"), Format(std::max(r0, r1), "0.00")};
  if (data.IncnsistCtrl == 1) verdict.State = IsWithin(LimitsOf(data, target), r0, r1) ? kConsistent : kInconsistent;
  return verdict;
}

Verdict JudgeReferencePair(const HandlePoints& at) {
  if (!IsOnChart(at)) return {kInvalid, {}, {}};
  const Double r0 = PointToRatio(at.X0, at.Y0);
  const Double r1 = PointToRatio(at.X1, at.Y1);
  return {kConsistent, Format(r1, "0.00"), Format(r0, "0.00")};
}

}  // namespace Tarnwise
