// The arithmetic of trade-offs. Two alternatives A and B differ on the target (X) and on its reference (Y) only; where
// they are equally good, W(x) V(x, A) + W(y) V(y, A) = W(x) V(x, B) + W(y) V(y, B) gives the weight ratio.
//
// Ratios travel as texts, since one of them is not a number: a decimal text of at most four decimals, or "Infinity!".
#pragma once

#include "model/Groups.h"

namespace Tarnwise {

constexpr const char* kInfinity = "Infinity!";

// W(x)/W(y) for A at (x1, y1) and B at (x2, y2), in scores of the two attributes. "Infinity!" when the first scores
// have the same value.
String PointRatio(const WizardData& data, int xAtt, int yAtt, Single x1, Single y1, Single x2, Single y2);

// The same for the two references, of which one is cost and one benefit: its sign is the other way round.
String RefPairRatio(const WizardData& data, int xAtt, int yAtt, Single x1, Single y1, Single x2, Single y2);

// Places A and B of the x attribute's record for that ratio, with room left on the chart. The ratio of these points is
// near it where the walk of GetAttScore comes to B's second score; for ratio 1 both are placed alike, whatever the
// curves. The corners and the orientation are the caller's.
void SuggestABPoints(WizardData& data, int xAtt, int yAtt, Double ratio);

// The same for the two references: ratio 1, A up and to the right of B. Written to the x attribute's record.
void SuggestRefPairPoints(WizardData& data, int xAtt, int yAtt);

// The corners of a horizontal uncertainty of A that stand for WeightsL and WeightsH of the target. The corner named
// lower belongs to WeightsL, wherever it lies. Error 11 for a bound of 0.
void IntervalCorners(WizardData& data, int target, int reference);

// A is a point: both its corners are A itself.
void CollapseCorners(ABPoint& point);

}  // namespace Tarnwise
