#include "program/JudgeCommand.h"

#include "modelfiles/WholeFile.h"
#include "program/Console.h"
#include "program/WishOptions.h"
#include "project/ProjectFile.h"
#include "project/Sentences.h"
#include "project/SessionText.h"
#include "project/Shown.h"
#include "runtime/CodePage.h"
#include "runtime/Paths.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <ostream>

namespace Tarnwise {

namespace {

Beginning BeginningOf(const JudgeOptions& options) {
  WishOptions given;
  given.Session = options.Session;
  const Wishes wishes = WishesOf(given);
  return {wishes.NoSession, wishes.Session};
}

SessionModel ModelFor(const JudgeOptions& options, const Beginning& beginning) {
  const Project project = ReadProject(options.Project);
  try {
    if (beginning.Session && *beginning.Session >= project.Sessions.size()) {
      throw ModelFault("there is no session " + std::to_string(*beginning.Session));
    }
    return SessionModelOf(project, beginning, SystemCodePage());
  } catch (const ModelFault& fault) {
    throw ModelFault(options.Project + ": " + fault.what());
  }
}

void TellBefore(const SessionModel& model, std::ostream& err) {
  if (model.Resumed) err << "The judgments of session " << *model.Resumed << " are there to begin with.\n";
  for (const String& note : model.Notes) err << "note: " << note << "\n";
  for (const String& line : MeaningLines(model)) err << line << "\n";
  err.flush();
}

void TellAfter(const JudgeOptions& options, std::size_t session, std::ostream& out) {
  const Project project = ReadProject(options.Project);
  out << options.Project << ": stored as " << SessionTitle(project, session) << "\n";
  for (const String& line : JudgmentLines(project, session)) out << line << "\n";
  const std::vector<String> notJudged = NotJudged(project, session);
  try {
    Asked asked;
    asked.Session = session;
    const JudgedProblem judged = JudgedProblemOf(project, asked);
    for (const Dea::Equivalence& equivalence : judged.Equivalences) {
      out << EquivalenceText(project, judged.Problem, equivalence) << "\n";
    }
  } catch (const ModelFault& fault) {
    out << "note: " << fault.what() << "\n";
  }
  if (!notJudged.empty()) out << "Not judged: " << Enumerated(notJudged) << ".\n";
}

// The sessions of one run of the command, on their way into the file.
struct Storing {
  const JudgeOptions& Options;
  const String& Now;
  std::ostream& Err;
  std::optional<std::size_t> Place;

  void Take(JudgmentSession session, bool again) {
    session.Made = Now;
    session.By = Options.By;
    session.Note = Options.Note;
    try {
      Place = StoreSession(Options.Project, session, again ? Place : std::nullopt);
    } catch (const ModelFault& fault) {
      Err << "The judgments could not be stored: " << fault.what() << "\nThey are:\n" << SessionJson(session) << "\n";
      throw;
    }
  }
};

}  // namespace

CLI::App* AddJudgeCommand(CLI::App& app, JudgeOptions& options, const char* toolkits) {
  CLI::App* const judge = app.add_subcommand("judge", "Show the wizard on a project; store the judgments in it");
  judge->add_option("PROJECT", options.Project, "Project file (.tarnwise)")->required();
  judge
      ->add_option("--session", options.Session,
                   "What to begin with: a session's number from 0, or none; else the latest that fits")
      ->type_name("N|none");
  judge->add_option("--by", options.By, "Who judges")->type_name("NAME");
  judge->add_option("--note", options.Note, "A remark that is kept with the judgments")->type_name("TEXT");
  CLI::Option* const script =
      judge->add_option("--script", options.Script, "Drive the wizard by a session script, or - for standard input")
          ->type_name("FILE");
  judge->add_option("--toolkit", options.Toolkit, toolkits)->capture_default_str()->needs(script);
  judge->add_option("--shots", options.Shots, "Folder for the pictures that the script takes; made when needed")
      ->capture_default_str()
      ->needs(script);
  return judge;
}

int JudgeProject(const JudgeOptions& options, const String& now, const ShowWizard& show, std::ostream& out,
                 std::ostream& err) {
  try {
    const Beginning beginning = BeginningOf(options);
    const SessionModel model = ModelFor(options, beginning);
    TellBefore(model, err);
    const std::filesystem::path parent = PathFromText(options.Project).parent_path();
    const String folder = parent.empty() ? String(".") : TextFromPath(parent);
    Storing storing{options, now, err, {}};
    const TakeSession take = [&storing](const JudgmentSession& session, bool again) { storing.Take(session, again); };
    const int status = show([&](std::unique_ptr<Hosted> wizard) {
      return std::make_unique<JudgingHost>(std::move(wizard), model, folder, take);
    });
    if (!storing.Place) {
      err << "No judgments were handed over, and " << options.Project << " is as it was.\n";
      return std::max(status, static_cast<int>(kFailed));
    }
    TellAfter(options, *storing.Place, out);
    return status;
  } catch (const ModelFault& fault) {
    err << fault.what() << "\n";
    return kRefused;
  }
}

}  // namespace Tarnwise
