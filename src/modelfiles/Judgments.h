// What the wizard hands over in its export events, as one record that outlives them.
#pragma once

#include "model/PointArrays.h"

#include <tarnwise/TRN_DEA.h>

#include <functional>
#include <optional>

namespace Tarnwise {

struct Judgments {
  String RJType;
  Integer BRefAttID = 0;
  Integer CRefAttID = 0;
  Variant RefAttWR;
  VariantArray Weights;
  VariantArray WeightsH;
  VariantArray WeightsL;
  std::optional<PointArrays> TradeOffs;
};

// From now on `take` gets the judgments inside the event that exports them, and, of trade-offs, once more with their
// points inside the event that brings these.
void CollectJudgments(TRN_DEA_Events& events, std::function<void(const Judgments& judgments)> take);

// The points with the orientations that their corners show, which a resumed wizard wants; the export has those that
// went in.
PointArrays ResumablePoints(PointArrays points);

}  // namespace Tarnwise
