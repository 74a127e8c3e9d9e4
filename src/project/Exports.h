// Projects as other programs take them. What an export can't say is a ModelFault that names it.
#pragma once

#include "project/Evaluation.h"
#include "project/SessionModel.h"

namespace Tarnwise {

// An R script that works out the greatest scores by dea.dual of the package Benchmarking, and stops where one differs
// from ours by 1e-6 or more: the matrices with the reference's column first, DUAL with the bounds in raw prices, and
// the call. Of the ratio form.
String RScript(const Evaluation& evaluation);

// The judged bounds as pyDEA's price ratio restrictions, one a line, in raw prices: "Doctors/Nurses >= 14.5833". Full
// digits.
String PyDeaText(const JudgedProblem& judged);

// Units and columns as a CSV file that an import takes: commas, points, a header, the units' names under "unit" or,
// where a column is called that, under the next name that is none's. Values of an unused column that are no numbers
// stand there as they came.
String DataCsv(const Project& project);

// The model that the wizard would be handed, with the units as its alternatives as far as there is room for them.
struct ExportedModel {
  SessionModel Model;
  std::vector<String> Notes;
};
ExportedModel ModelOf(const Project& project, const Beginning& beginning, const CodePage& texts);

}  // namespace Tarnwise
