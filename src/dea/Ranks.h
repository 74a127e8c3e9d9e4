// Ranks that units have under all weights that are allowed, and under some of them.
#pragma once

#include "dea/Draws.h"
#include "dea/Watch.h"

#include <functional>

namespace Tarnwise::Dea {

constexpr int kMostRankedUnits = 20000;  // all pairs are looked at

// 1 + the units that dominate each, to the number of units less those that it dominates. Typical: scores at some
// weights that are allowed, by which a unit cannot dominate a better one.
std::vector<RankRange> SureRanks(const std::vector<Double>& typical,
                                 const std::function<bool(int winner, int loser)>& dominates, const Watch& watch);

// 10,000 draws up to 1,000 units, fewer above.
int DrawsFor(int units);

// The best and the worst rank that each unit has in any of the draws: 1 + the units that are strictly better. Draw puts
// in the scores of all units under new weights. Scores that differ by rounding only are equal.
std::vector<RankRange> SeenRanks(int units, int draws, const std::function<void(std::vector<Double>& scores)>& draw,
                                 const Watch& watch);

}  // namespace Tarnwise::Dea
