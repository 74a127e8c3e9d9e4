// The program `tarnwise`: shows the wizard on a model, plays session scripts, builds and shows model files, imports
// projects.
#include "host/Commands.h"
#include "host/ImportCommand.h"
#include "host/ModelCommands.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

using namespace Tarnwise;

int Main(int argc, char** argv) {
  CLI::App app("Tarnwise asks a decision maker for the weights of a data envelopment analysis.", "tarnwise");
  app.allow_windows_style_options(false);  // a path may begin with a slash
  app.require_subcommand(1);

#ifdef TARNWISE_RUN
  RunOptions run;
  CLI::App* const runCommand = app.add_subcommand("run", "Show the wizard on a model; print the judgments as JSON");
  runCommand->add_option("MODEL", run.Model, "Model file (.kst)")->required();
  runCommand->add_flag("--save", run.Save, "Store the judgments in the model file, so that the next run resumes");
#endif

  PlayOptions play;
  CLI::App* const playCommand = app.add_subcommand("play", "Drive the wizard by a session script");
  playCommand->add_option("--toolkit", play.Toolkit, TARNWISE_TOOLKITS)->capture_default_str();
  playCommand->add_option("--shots", play.Shots, "Folder for the pictures that the script takes");
  playCommand->add_option("SCRIPT", play.Script, "Script file, or - for standard input")->required();

#ifdef TARNWISE_WIN32
  const char* const comHelp = "Drive the registered COM class Tarnwise_DEA.TRN_DEA, not the wizard in this program";
  runCommand->add_flag("--com", run.Com, comHelp);
  playCommand->add_flag("--com", play.Com, comHelp);
#endif

  ImportOptions import;
  const CLI::App* const importCommand = AddImportCommand(app, import);

  CLI::App* const model = app.add_subcommand("model", "Build and show model files");
  model->require_subcommand(1);
  std::string from;
  std::string to;
  CLI::App* const build = model->add_subcommand("build", "Write a model file from its JSON description");
  build->add_option("MODEL.json", from)->required();
  build->add_option("MODEL.kst", to)->required();
  CLI::App* const show = model->add_subcommand("show", "Print a model file as its JSON description");
  show->add_option("MODEL.kst", from)->required();

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error);
  }
  if (playCommand->parsed()) return PlaySession(play, argc, argv);
  if (importCommand->parsed()) return ImportProject(import, TimeNow(), std::cout, std::cerr);
  if (build->parsed()) return BuildModel(from, to, std::cout, std::cerr);
  if (show->parsed()) return ShowModel(from, std::cout, std::cerr);
#ifdef TARNWISE_RUN
  if (runCommand->parsed()) return RunWizard(run, argc, argv);
#endif
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Main(argc, argv);
  } catch (const std::exception& fault) {
    std::cerr << "tarnwise: " << fault.what() << '\n';
    return 1;
  }
}
