// The part of the checks that is about scales and judgments.
#pragma once

#include "dea/DataChecks.h"

namespace Tarnwise::Dea {

// Numbers beyond it would leave the range of Double in a product with others.
constexpr Double kLargest = 1e100;

// Fills in the scales in use, the references and the judged intervals.
void CheckSession(const Problem& problem, Checked& checked);

}  // namespace Tarnwise::Dea
