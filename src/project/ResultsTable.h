// Results as people read them.
#pragma once

#include "project/Evaluation.h"

namespace Tarnwise {

// The table of the units, and below it what was judged, in own units, how far curves are from their chords, which units
// are left out, and the certificate. `project` is the one that was evaluated.
String ResultsTable(const Project& project, const Evaluation& evaluation, bool colours);

// "Inpatients >= 2.00 (0.146)": the bound as it stands in the session, and what dropping it alone would gain.
String BoundText(const Evaluation& evaluation, const Dea::HeldBackBy& bound);

}  // namespace Tarnwise
