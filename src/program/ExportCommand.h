// The command `tarnwise export`.
#pragma once

#include "program/Console.h"
#include "program/WishOptions.h"

namespace Tarnwise {

struct ExportOptions {
  String Project;
  String To;  // "-": standard output
  String As;
  WishOptions Wishes;
};

CLI::App* AddExportCommand(CLI::App& app, ExportOptions& options);

// Writes the project as what was asked for, whole or not at all. Returns the exit status: 2 for what can't be exported,
// with the reason in Err; 1 where the solver or the file failed. Where the user wants an end nothing is written, and it
// throws Dea::Cancelled.
int ExportProject(const ExportOptions& options, const Console& console);

}  // namespace Tarnwise
