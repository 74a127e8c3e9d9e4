// Results as people read them.
#pragma once

#include "project/Evaluation.h"

namespace Tarnwise {

// The table of the units, and below it what was judged, in own units, how far curves are from their chords, which units
// are left out, and the certificate. `project` is the one that was evaluated.
String ResultsTable(const Project& project, const Evaluation& evaluation, bool colours);

}  // namespace Tarnwise
