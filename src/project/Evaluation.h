// What of a project is evaluated, and how: its problem, and what came out of it.
#pragma once

#include "dea/Results.h"
#include "project/Project.h"

namespace Tarnwise {

namespace Dea {
struct Watch;
}

// What somebody asks for this time. What is not there is as in the project's `use`, key by key, else at its default.
struct Wishes {
  std::optional<std::size_t> Session;
  bool NoSession = false;  // without judgments
  std::optional<ScoreForm> Form;
  std::optional<ScoreReturns> Returns;
  std::optional<ScoreOrientation> Orientation;
  std::optional<std::int64_t> Seed;
  double Widen = 1.0;      // at least 1: every interval this much wider in log ratio
  double CrossBand = 1.0;  // b, at least 1: the cross ratio R lies in R / b to R b
};

struct Asked {
  std::optional<std::size_t> Session;
  ScoreForm Form = ScoreForm::Ratio;
  ScoreReturns Returns = ScoreReturns::Crs;
  ScoreOrientation Orientation = ScoreOrientation::In;
  std::int64_t Seed = 1;
  double Widen = 1.0;
  double CrossBand = 1.0;
};

// A ModelFault names the session that is not there.
Asked AskedOf(const Project& project, const Wishes& wishes);

// The project's used columns in their order, all units, and the judgments of the session asked for. A ModelFault names
// what CheckForResults and, of that session, CheckSession refuse.
Dea::Problem ProblemOf(const Project& project, const Asked& asked);

// The same, checked as for a computation; a ModelFault where none can be made.
struct JudgedProblem {
  Dea::Problem Problem;
  std::vector<Dea::Equivalence> Equivalences;
  std::vector<String> Notes;  // a sentence each: what is passed over, not judged, left out of account
};
JudgedProblem JudgedProblemOf(const Project& project, const Asked& asked);

// Parts of it.
Dea::Scale ScaleForDea(const ColumnScale& scale);
Dea::Basis BasisForDea(JudgmentBasis basis);

// The results' indices are those of the problem.
struct Evaluation {
  Asked How;
  Dea::Problem Problem;
  Dea::Results Results;
};

std::vector<String> NoteTexts(const Evaluation& evaluation);

// Whether this build can solve linear programs. Where it cannot, Evaluate is a ModelFault that says so.
bool CanSolve();

// A ModelFault for what cannot be computed with, otherwise what Dea::Evaluate throws.
Evaluation Evaluate(const Project& project, const Asked& asked, const Dea::Watch& watch);

}  // namespace Tarnwise
