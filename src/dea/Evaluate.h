// Efficiencies of units under judged intervals of weight ratios: the whole computation, in either form.
#pragma once

#include "dea/Results.h"
#include "dea/Watch.h"

namespace Tarnwise::Dea {

// Refused for data, scales, judgments or options that cannot be computed with; Cancelled when the watch says so;
// SolverFault when no answer of the solver stands the check. On the caller's thread, whichever that is.
Results Evaluate(const Problem& problem, const Watch& watch = {});

// The units that are better than this one at all weights the judgments allow, by their indices into Problem::Units.
// None without a session, for a unit that is left out, and in the ratio form with other than constant returns.
std::vector<int> DominatorsOf(const Problem& problem, int unit);

}  // namespace Tarnwise::Dea
