// Results worked out while somebody waits.
#pragma once

#include "program/Console.h"
#include "program/WishOptions.h"

namespace Tarnwise {

// What `wishes` ask of the project, whose file is `path`: with a bar on a terminal, until the user wants an end, which
// throws Dea::Cancelled. A ModelFault that begins with the path where it can't be computed with.
Evaluation EvaluateShowing(const Project& project, const String& path, const WishOptions& wishes,
                           const Console& console);

}  // namespace Tarnwise
