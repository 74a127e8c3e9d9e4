// The command `tarnwise judge`: one session of judgments on a project.
#pragma once

#include "program/JudgingHost.h"

#include <iosfwd>
#include <optional>

namespace CLI {
class App;
}

namespace Tarnwise {

struct JudgeOptions {
  String Project;
  std::optional<String> Session;  // what it begins with: a number, or "none"
  String By;
  String Note;
  String Script;  // empty: a person judges; "-": standard input
  String Toolkit = "headless";
  String Shots = "out";
};

CLI::App* AddJudgeCommand(CLI::App& app, JudgeOptions& options, const char* toolkits);

// Makes a wizard the project's; the session model outlives it.
using WrapWizard = std::function<std::unique_ptr<JudgingHost>(std::unique_ptr<Hosted> wizard)>;

// Shows a wrapped wizard until it ends, and returns an exit status.
using ShowWizard = std::function<int(const WrapWizard& wrap)>;

// Says in err what the judgments begin with, shows the wizard, stores what it hands over inside its event, and says in
// out what was judged and what was not. Returns the exit status: 0 with a session stored, 2 where the project can't be
// judged, else what the showing returned, at least 1. Where a session can't be stored its text goes to err, and the
// user is told and can finish again. `now` is the time that goes into the session.
int JudgeProject(const JudgeOptions& options, const String& now, const ShowWizard& show, std::ostream& out,
                 std::ostream& err);

}  // namespace Tarnwise
