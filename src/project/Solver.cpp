#include "dea/Evaluate.h"
#include "modelfiles/WholeFile.h"
#include "project/Evaluation.h"
#include "project/ProjectChecks.h"

namespace Tarnwise {

bool CanSolve() { return true; }

Evaluation Evaluate(const Project& project, const Asked& asked, const Dea::Watch& watch) {
  Evaluation evaluation;
  evaluation.How = asked;
  evaluation.Problem = ProblemOf(project, asked);
  try {
    evaluation.Results = Dea::Evaluate(evaluation.Problem, watch);
  } catch (const Dea::Refused& refused) {
    throw ModelFault(refused.what());
  }
  if (!asked.Session) return evaluation;
  std::vector<Dea::Note> notes;
  for (const String& text : SessionNotes(project, *asked.Session)) {
    notes.push_back({Dea::NoteKind::Other, text, -1, {}});
  }
  evaluation.Results.Notes.insert(evaluation.Results.Notes.begin(), notes.begin(), notes.end());
  return evaluation;
}

}  // namespace Tarnwise
