#include "program/Commands.h"
#include "program/ImportCommand.h"
#include "program/JudgeCommand.h"
#include "program/Screens.h"

#include <iostream>

namespace Tarnwise {

namespace {

// A person judges.
int OnScreen(const WrapWizard& wrap, int& argc, char** argv) {
  const RunScreen screen = OpenScreen(argc, argv, false);
  const std::unique_ptr<JudgingHost> host = wrap(screen.Make());
  host->Events().SendMasseges = [](const String& Msg) { std::cerr << Msg << std::endl; };
  host->Events().UnloadTarnwise = [&](Integer /*fIndex*/, Boolean /*WeightsDone*/) {
    host->UnloadTarnwise();
    screen.End();
  };
  host->ShowTarnwise();
  screen.Wait();
  return 0;
}

// A script does. Its own loading and showing find the project's wizard shown already.
int ByScript(const JudgeOptions& options, const WrapWizard& wrap, int& argc, char** argv) {
  JudgingHost* first = nullptr;
  const auto wrapped = [&first, &wrap](std::unique_ptr<Hosted> wizard) {
    std::unique_ptr<JudgingHost> host = wrap(std::move(wizard));
    if (first == nullptr) first = host.get();
    return host;
  };
  PlayOptions play;
  play.Script = options.Script;
  play.Toolkit = options.Toolkit;
  play.Shots = options.Shots;
  return PlaySession(play, argc, argv, wrapped, [&first] { first->ShowTarnwise(); });
}

}  // namespace

int RunJudging(const JudgeOptions& options, int& argc, char** argv) {
  const bool isScript = !options.Script.empty();
  const ShowWizard show = [&](const WrapWizard& wrap) {
    return isScript ? ByScript(options, wrap, argc, argv) : OnScreen(wrap, argc, argv);
  };
  return JudgeProject(options, TimeNow(), show, isScript ? std::cerr : std::cout, std::cerr);
}

}  // namespace Tarnwise
