#include "modelfiles/Judgments.h"

namespace Tarnwise {

void CollectJudgments(TRN_DEA_Events& events, std::function<void(const Judgments& judgments)> take) {
  const auto exported = std::make_shared<Judgments>();
  events.ExportDirectBW = [exported, take](const String& RJType, Integer BRefAttID, Integer CRefAttID,
                                           const Variant& RefAttWR, const VariantArray& Weights,
                                           const VariantArray& WeightsH, const VariantArray& WeightsL) {
    *exported = {RJType, BRefAttID, CRefAttID, RefAttWR, Weights, WeightsH, WeightsL, {}};
    take(*exported);
  };
  events.ExportABScores = [exported, take](const auto&... arrays) {
    exported->TradeOffs = PointArrays{arrays...};
    take(*exported);
  };
}

PointArrays ResumablePoints(PointArrays points) {
  points[kAOrientation] = OrientationsOf(points[kALX], points[kALY], points[kAUX], points[kAUY]);
  return points;
}

}  // namespace Tarnwise
