// A computation that a person watches: a progress bar on a terminal, and an end when it is wanted.
#pragma once

#include "program/Console.h"
#include "project/Evaluation.h"

namespace Tarnwise {

// Evaluate, as the console wants it. Throws Dea::Cancelled where its flag is set.
Evaluation EvaluateWatched(const Project& project, const Asked& asked, const Console& console);

}  // namespace Tarnwise
