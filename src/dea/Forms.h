// The two forms: each makes its own numbers of a checked problem, computes, and puts what it finds into the results.
#pragma once

#include "dea/DataChecks.h"
#include "dea/Vectors.h"
#include "dea/Watch.h"

namespace Tarnwise::Dea {

void EvaluateRatios(const Problem& problem, const Checked& checked, const Watch& watch, Results& results);
void EvaluateValues(const Problem& problem, const Checked& checked, const Watch& watch, Results& results);

// Those that are better than a unit at all weights; all are indices into Checked::Units.
std::vector<int> RatioDominators(const Problem& problem, const Checked& checked, int unit);
std::vector<int> ValueDominators(const Problem& problem, const Checked& checked, int unit);

template <typename Dominates>
std::vector<int> WinnersOver(int unit, int units, Dominates dominates) {
  std::vector<int> winners;
  for (int k = 0; k < units; ++k) {
    if (k != unit && dominates(k, unit)) winners.push_back(k);
  }
  return winners;
}

// What work gives; where the solver fails at it the fault names the unit (an index into Checked::Units).
template <typename Work>
auto NamingUnit(const Problem& problem, const Checked& checked, int unit, Work work) {
  try {
    return work();
  } catch (const SolverFault& fault) {
    throw SolverFault("Unit " + problem.Units[At(checked.Units[At(unit)])] + ": " + fault.what());
  }
}

}  // namespace Tarnwise::Dea
