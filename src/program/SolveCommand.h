// The command `tarnwise solve`.
#pragma once

#include "program/Console.h"
#include "program/WishOptions.h"

namespace Tarnwise {

struct SolveOptions {
  String Project;
  WishOptions Wishes;
  String Json;  // "-": standard output instead of the table
  String Csv;
};

CLI::App* AddSolveCommand(CLI::App& app, SolveOptions& options);

// Prints the results, as a table or as what was asked for, and writes files of them. Returns the exit status: 2 for
// what cannot be computed with, with the reason in Err and nothing in Out; 1 when the solver or a file failed. Where
// the user wants an end nothing is written, and it throws Dea::Cancelled.
int SolveProject(const SolveOptions& options, const Console& console);

}  // namespace Tarnwise
