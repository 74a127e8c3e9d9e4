// The part of the checks that is about scales and judgments.
#pragma once

#include "dea/DataChecks.h"

namespace Tarnwise::Dea {

// Fills in the scales in use, the references and the judged intervals.
void CheckSession(const Problem& problem, Checked& checked);

}  // namespace Tarnwise::Dea
