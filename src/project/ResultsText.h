// Results as other programs read them.
#pragma once

#include "project/Evaluation.h"

namespace Tarnwise {

// JSON, one unit a line; docs/dea.md tells the keys. A key stands where its number exists in the form and the returns
// that were asked for; it is null where this unit has none. Numbers have 17 significant digits.
String ResultsJson(const Evaluation& evaluation);

// A table: commas, points, a header, the units in the project's order, those left out too, with the reason in the last
// column. An empty cell is a number that is not there.
String ResultsCsv(const Evaluation& evaluation);

}  // namespace Tarnwise
