// The program `tarnwise`: shows the wizard on a model, plays session scripts, builds and shows model files, imports
// projects, and works out their results.
#include "dea/Watch.h"
#include "program/Commands.h"
#include "program/ExportCommand.h"
#include "program/ImportCommand.h"
#include "program/Interrupt.h"
#include "program/JudgeCommand.h"
#include "program/ModelCommands.h"
#include "program/Pdf.h"
#include "program/ReportCommand.h"
#include "program/Screens.h"
#include "program/SolveCommand.h"
#include "program/SystemText.h"
#include "program/Workbench.h"
#include "project/Evaluation.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace {

using namespace Tarnwise;

// With the solver inside, the program as a whole is under the solver's licence.
String VersionText() {
  const String licence = CanSolve() ? "GNU General Public License, version 3 or later; its own sources: MIT" : "MIT";
  return "tarnwise " TARNWISE_VERSION "\nLicence: " + licence;
}

bool WantsColours() {
  const char* const no = std::getenv("NO_COLOR");
  return (no == nullptr || *no == '\0') && OutputObeysColours();
}

// A command that computes, and that Ctrl+C ends cleanly.
template <class Command>
int Compute(Command command) {
  const Interrupt interrupt;
  try {
    return command(Console{std::cout, std::cerr, WantsColours(), ErrorIsTerminal(), interrupt.Flag()});
  } catch (const Dea::Cancelled&) {
    std::cerr << "Cancelled.\n";
    return interrupt.Status();
  }
}

int Main(int argc, char** argv) {
  CLI::App app("Tarnwise asks a decision maker for the weights of a data envelopment analysis.", "tarnwise");
  app.allow_windows_style_options(false);  // a path may begin with a slash
  app.require_subcommand(0, 1);
  app.footer("Without a command it opens the analyst's window.");
  app.set_version_flag("--version", VersionText(), "Print the version and the licence");

  RunOptions run;
  CLI::App* const runCommand = app.add_subcommand("run", "Show the wizard on a model; print the judgments as JSON");
  runCommand->add_option("MODEL", run.Model, "Model file (.kst)")->required();
  runCommand->add_flag("--save", run.Save, "Store the judgments in the model file, so that the next run resumes");

  PlayOptions play;
  CLI::App* const playCommand = app.add_subcommand("play", "Drive the wizard by a session script");
  playCommand->add_option("--toolkit", play.Toolkit, kToolkits)->capture_default_str();
  playCommand->add_option("--shots", play.Shots, "Folder for the pictures that the script takes; made when needed")
      ->capture_default_str();
  playCommand->add_option("SCRIPT", play.Script, "Script file, or - for standard input")->required();

  if (kHasCom) {
    const char* const comHelp = "Drive the registered COM class Tarnwise_DEA.TRN_DEA, not the wizard in this program";
    runCommand->add_flag("--com", run.Com, comHelp);
    playCommand->add_flag("--com", play.Com, comHelp);
  }

  ImportOptions import;
  const CLI::App* const importCommand = AddImportCommand(app, import);
  JudgeOptions judge;
  const CLI::App* const judgeCommand = AddJudgeCommand(app, judge, kToolkits);
  SolveOptions solve;
  const CLI::App* const solveCommand = AddSolveCommand(app, solve);
  ReportOptions report;
  const CLI::App* const reportCommand = AddReportCommand(app, report);
  ExportOptions exported;
  const CLI::App* const exportCommand = AddExportCommand(app, exported);

  OpenOptions open;
  CLI::App* const openCommand =
      app.add_subcommand("open", "Open the analyst's window on a project, a table or a model");
  openCommand->add_option("FILE", open.File, "Project (.tarnwise), table (.csv) or model (.kst, .json)");
  openCommand->add_option("--pictures", open.Pictures, "Take a picture of each page into this folder, and end")
      ->type_name("FOLDER");

  CLI::App* const model = app.add_subcommand("model", "Build and show model files");
  model->require_subcommand(1);
  std::string from;
  std::string to;
  CLI::App* const build = model->add_subcommand("build", "Write a model file from its JSON description");
  build->add_option("MODEL.json", from)->required();
  build->add_option("MODEL.kst", to)->required();
  CLI::App* const show = model->add_subcommand("show", "Print a model file as its JSON description");
  show->add_option("MODEL.kst", from)->required();
  std::string codePage;
  for (CLI::App* const command : {build, show}) {
    command->add_option("--code-page", codePage, "Code page of the model file's texts, where it is not this system's");
  }

  try {
    std::vector<String> arguments = ProgramArguments(argc, argv);
    std::reverse(arguments.begin(), arguments.end());  // the library takes them off the end
    app.parse(arguments);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kRefused;
  }
  if (playCommand->parsed()) return PlaySession(play, argc, argv);
  if (importCommand->parsed()) return ImportProject(import, TimeNow(), std::cout, std::cerr);
  if (judgeCommand->parsed()) return RunJudging(judge, argc, argv);
  if (solveCommand->parsed()) {
    return Compute([&solve](const Console& console) { return SolveProject(solve, console); });
  }
  if (reportCommand->parsed()) {
    return Compute([&report](const Console& console) { return WriteReport(report, TimeNow(), PdfOf, console); });
  }
  if (exportCommand->parsed()) {
    return Compute([&exported](const Console& console) { return ExportProject(exported, console); });
  }
  if (build->parsed()) return BuildModel(from, to, codePage, std::cout, std::cerr);
  if (show->parsed()) return ShowModel(from, codePage, std::cout, std::cerr);
  if (runCommand->parsed()) return RunWizard(run, argc, argv);
  return OpenWorkbench(open, argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  const Utf8Output output;
  try {
    return Main(argc, argv);
  } catch (const std::exception& fault) {
    std::cerr << "tarnwise: " << fault.what() << '\n';
    return 1;
  }
}
