// Efficiencies of units under judged intervals of weight ratios: the whole computation, in either form.
#pragma once

#include "dea/Results.h"
#include "dea/Watch.h"

namespace Tarnwise::Dea {

// Refused for data, scales, judgments or options that cannot be computed with; Cancelled when the watch says so;
// SolverFault when no answer of the solver stands the check. On the caller's thread, whichever that is.
Results Evaluate(const Problem& problem, const Watch& watch = {});

}  // namespace Tarnwise::Dea
