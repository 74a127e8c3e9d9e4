// The ratio form with constant returns over all prices of a region: worst cases, dominance, ranks. Closed forms.
#pragma once

#include "dea/Ranks.h"
#include "dea/RatioScores.h"

namespace Tarnwise::Dea {

// The least efficiency of the unit: 1 at most, 0 for one without outputs. The candidates are those of a RatioScorer of
// the same region after it has scored all units.
Double LeastEfficiency(const RatioData& data, const RatioRegion& region, const std::vector<int>& candidates, int unit);

// Whether the winner is the more efficient one at all prices. A unit without outputs loses to all that have some.
bool DominatesSurely(const RatioData& data, const RatioRegion& region, int winner, int loser);

std::vector<RankRange> SureRatioRanks(const RatioData& data, const RatioRegion& region, const Watch& watch);
std::vector<RankRange> SeenRatioRanks(const RatioData& data, const RatioRegion& region, std::uint64_t seed,
                                      const Watch& watch);

}  // namespace Tarnwise::Dea
