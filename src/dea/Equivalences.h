// What judged ratios say in raw units.
#pragma once

#include "dea/DataChecks.h"

namespace Tarnwise::Dea {

// One for each judged column but the references, in the problem's order.
std::vector<Equivalence> EquivalencesOf(const Problem& problem, const Checked& checked);

}  // namespace Tarnwise::Dea
