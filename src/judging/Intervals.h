// The store of the judgments: for each attribute the closed interval of its weight ratio to the reference of its group.
// Both judgment steps commit into it. Comparisons are on doubles as stored; there is no tolerance.
#pragma once

#include "model/Groups.h"

#include <functional>
#include <vector>

namespace Tarnwise {

// WeightsL, Weights and WeightsH at their defaults by rank: 1.0 and done on the reference's rank, 1.2 above it, 0.8
// below it, these not done. RefAttWR stays, and so does an attribute of neither group.
void SeedIntervals(WizardData& data);

// The same with no attribute done before.
void SetDefaultIntervals(WizardData& data);

struct Interval {
  Double Low = 0.0;
  Double Mid = 0.0;
  Double High = 0.0;
};

Interval IntervalOf(const WizardData& data, int att);
void StoreInterval(WizardData& data, int att, const Interval& interval);

// The attributes that share rank and orientation with the target, itself included, the references excepted.
std::vector<int> SameRankPeers(const WizardData& data, int target);

// The target's bounds move the attributes not judged yet: those more important start at its upper bound, those less
// important end at its lower one. The nearest judged attribute on each side shields all that lie beyond it.
void PushNeighbours(WizardData& data, int target);

// Called for each attribute that a judgment settles, in its turn: what has been settled stays so when a later one
// fails.
using Settled = std::function<void(int att)>;
inline void NobodyIsTold(int /*att*/) {}

// The judgment lo to hi enters: stored, copied to the same-ranked attributes, pushed to the neighbours. The attributes
// that are judged by it now are settled in ascending id.
void CommitInterval(WizardData& data, int target, Double lo, Double hi, const Settled& settled = NobodyIsTold);

// Whether all attributes that the model has now are judged. Error 9 where it has more than were ranked.
bool AllJudged(const WizardData& data);

// Which attribute the judgment steps show first: the first one whose rank differs from its reference's, not counting
// attribute 0 where there is one benefit attribute. Error 9 when there is none.
int FirstTarget(const WizardData& data);

}  // namespace Tarnwise
