// The two forms: each makes its own numbers of a checked problem, computes, and puts what it finds into the results.
#pragma once

#include "dea/DataChecks.h"
#include "dea/Watch.h"

namespace Tarnwise::Dea {

void EvaluateRatios(const Problem& problem, const Checked& checked, const Watch& watch, Results& results);
void EvaluateValues(const Problem& problem, const Checked& checked, const Watch& watch, Results& results);

}  // namespace Tarnwise::Dea
