#include "program/ExportCommand.h"

#include "dea/Watch.h"
#include "modelfiles/Judgments.h"
#include "modelfiles/ModelWriter.h"
#include "modelfiles/PointsFile.h"
#include "program/OutputFile.h"
#include "program/Watched.h"
#include "project/Exports.h"
#include "project/ProjectFile.h"
#include "project/ResultsText.h"
#include "project/Shown.h"
#include "runtime/CodePage.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace Tarnwise {

namespace {

constexpr const char* kFormats = "r, pydea, csv, json, data or kst";

// What is going to be written, and what the user should know of it.
struct Exported {
  String Text;
  std::vector<String> Notes;
  std::optional<PointArrays> Points;  // for beside a model
};

Exported OfResults(const Evaluation& evaluation, String text) { return {std::move(text), NoteTexts(evaluation), {}}; }

Exported OfRestrictions(const Project& project, const Asked& asked) {
  const JudgedProblem judged = JudgedProblemOf(project, asked);
  if (judged.Equivalences.empty()) throw ModelFault("there are no judgments, so there is nothing to restrict");
  return {PyDeaText(judged), judged.Notes, {}};
}

Exported OfModel(const Project& project, const Asked& asked) {
  const ExportedModel exported = ModelOf(project, {!asked.Session, asked.Session}, SystemCodePage());
  const std::vector<char> bytes = ModelBytes(exported.Model.Data);
  Exported made{{bytes.begin(), bytes.end()}, exported.Notes, {}};
  if (exported.Model.Data.SavedJudgments.RJType == kTradeOffsType) made.Points = exported.Model.Points;
  return made;
}

Exported Make(const ExportOptions& options, const Console& console) {
  const Wishes wishes = WishesOf(options.Wishes);
  const Project project = ReadProject(options.Project);
  try {
    if (options.As == "data") return {DataCsv(project), {}, {}};
    const Asked asked = AskedOf(project, wishes);
    if (options.As == "kst") return OfModel(project, asked);
    if (options.As == "pydea") return OfRestrictions(project, asked);
    const Evaluation evaluation = EvaluateWatched(project, asked, console);
    if (options.As == "r") return OfResults(evaluation, RScript(evaluation));
    return OfResults(evaluation, options.As == "csv" ? ResultsCsv(evaluation) : ResultsJson(evaluation));
  } catch (const ModelFault& fault) {
    throw ModelFault(options.Project + ": " + fault.what());
  }
}

void CheckFormat(const ExportOptions& options) {
  for (const char* const format : {"r", "pydea", "csv", "json", "data", "kst"}) {
    if (options.As == format) return;
  }
  throw ModelFault(String("--as: ") + kFormats + " is wanted, here is " + Shown(options.As));
}

}  // namespace

CLI::App* AddExportCommand(CLI::App& app, ExportOptions& options) {
  CLI::App* const command = app.add_subcommand("export", "Write a project for other programs");
  command->add_option("PROJECT", options.Project, "Project file (.tarnwise)")->required();
  command->add_option("FILE", options.To, "File to write; - prints it")->required();
  command
      ->add_option("--as", options.As,
                   "r (a script that checks the scores by the package Benchmarking), pydea (the judged bounds as "
                   "price ratios), csv or json (the results), data (units and columns as CSV), kst (a model file)")
      ->type_name("FORMAT")
      ->required();
  AddWishOptions(*command, options.Wishes);
  return command;
}

int ExportProject(const ExportOptions& options, const Console& console) {
  Exported made;
  try {
    CheckFormat(options);
    RefuseSameFile(options.To, options.Project);
    made = Make(options, console);
  } catch (const ModelFault& fault) {
    console.Err << fault.what() << "\n";
    return kRefused;
  } catch (const Dea::SolverFault& fault) {
    console.Err << options.Project << ": the solver failed, and nothing is written. " << fault.what() << "\n";
    return kFailed;
  }
  for (const String& note : made.Notes) console.Err << "note: " << note << "\n";
  try {
    WriteOutput(options.To, made.Text, console.Out);
    if (made.Points && options.To != kStandardOutput) WritePoints(options.To, *made.Points);
    return kDone;
  } catch (const ModelFault& fault) {
    console.Err << fault.what() << "\n";
    return kFailed;
  }
}

}  // namespace Tarnwise
