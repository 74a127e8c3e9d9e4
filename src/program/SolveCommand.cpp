#include "program/SolveCommand.h"

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "program/OutputFile.h"
#include "program/Watched.h"
#include "project/ProjectFile.h"
#include "project/ResultsTable.h"
#include "project/ResultsText.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <ostream>

namespace Tarnwise {

namespace {

void CheckOutputs(const SolveOptions& options) {
  if (options.Json == kStandardOutput && options.Csv == kStandardOutput) {
    throw ModelFault("--json - and --csv -: one of them can have the standard output");
  }
  for (const String& output : {options.Json, options.Csv}) {
    if (!output.empty()) RefuseSameFile(output, options.Project);
  }
}

Evaluation Solve(const Project& project, const SolveOptions& options, const Console& console) {
  try {
    return EvaluateWatched(project, AskedOf(project, WishesOf(options.Wishes)), console);
  } catch (const ModelFault& fault) {
    throw ModelFault(options.Project + ": " + fault.what());
  }
}

void Write(const SolveOptions& options, const Project& project, const Evaluation& evaluation, const Console& console) {
  if (!options.Json.empty()) WriteOutput(options.Json, ResultsJson(evaluation), console.Out);
  if (!options.Csv.empty()) WriteOutput(options.Csv, ResultsCsv(evaluation), console.Out);
  if (options.Json == kStandardOutput || options.Csv == kStandardOutput) return;
  WriteOutput(kStandardOutput, ResultsTable(project, evaluation, console.OutColours), console.Out);
}

}  // namespace

CLI::App* AddSolveCommand(CLI::App& app, SolveOptions& options) {
  CLI::App* const solve = app.add_subcommand("solve", "Work out the efficiencies of a project's units");
  solve->add_option("PROJECT", options.Project, "Project file (.tarnwise)")->required();
  AddWishOptions(*solve, options.Wishes);
  solve->add_option("--json", options.Json, "Write the results as JSON; - prints them instead of the table")
      ->type_name("FILE");
  solve->add_option("--csv", options.Csv, "Write the results as CSV; - prints them instead of the table")
      ->type_name("FILE");
  return solve;
}

int SolveProject(const SolveOptions& options, const Console& console) {
  std::optional<Project> project;
  std::optional<Evaluation> evaluation;
  try {
    CheckOutputs(options);
    (void)WishesOf(options.Wishes);  // told before a file is read
    project = ReadProject(options.Project);
    evaluation = Solve(*project, options, console);
  } catch (const ModelFault& fault) {
    console.Err << fault.what() << "\n";
    return kRefused;
  } catch (const Dea::SolverFault& fault) {
    console.Err << options.Project << ": the solver failed, and no result is shown. " << fault.what() << "\n";
    return kFailed;
  }
  for (const Dea::Note& note : evaluation->Results.Notes) console.Err << "note: " << note.Text << "\n";
  try {
    Write(options, *project, *evaluation, console);
    return kDone;
  } catch (const ModelFault& fault) {
    console.Err << fault.what() << "\n";
    return kFailed;
  }
}

}  // namespace Tarnwise
