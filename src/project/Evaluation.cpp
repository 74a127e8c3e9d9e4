#include "project/Evaluation.h"

#include "dea/Equivalences.h"
#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "project/ProjectChecks.h"

#include <cmath>

namespace Tarnwise {

namespace {

Dea::Form FormOf(ScoreForm form) { return form == ScoreForm::Value ? Dea::Form::Value : Dea::Form::Ratio; }

Dea::Returns ReturnsOf(ScoreReturns returns) {
  switch (returns) {
    case ScoreReturns::Crs: return Dea::Returns::Constant;
    case ScoreReturns::Vrs: return Dea::Returns::Variable;
    case ScoreReturns::Nirs: return Dea::Returns::NonIncreasing;
    case ScoreReturns::Ndrs: return Dea::Returns::NonDecreasing;
  }
  return Dea::Returns::Constant;
}

Dea::Column ColumnOf(const DataColumn& from) {
  Dea::Column column;
  column.Name = from.Name;
  column.Use = from.Role == Role::Input ? Dea::Role::Input : Dea::Role::Output;
  column.Range = ScaleForDea(ScaleOf(from, nullptr));
  column.Values.reserve(from.Values.size());
  for (const auto& value : from.Values) column.Values.push_back(value.value_or(std::nan("")));
  return column;
}

// The place of a used column in the problem; nothing for any other name.
std::optional<int> PlaceOf(const Dea::Problem& problem, const String& name) {
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    if (problem.Columns[j].Name == name) return static_cast<int>(j);
  }
  return std::nullopt;
}

Dea::Session SessionFrom(const JudgmentSession& from, const Dea::Problem& problem, std::size_t place) {
  Dea::Session session;
  session.Name = "session " + std::to_string(place);
  session.Basis = BasisForDea(from.Basis);
  session.BenefitReference = PlaceOf(problem, from.BenefitReference);
  session.CostReference = PlaceOf(problem, from.CostReference);
  if (from.Cross && from.Cross->Judged) session.Cross = from.Cross->Ratio;
  for (const SessionAttribute& attribute : from.Attributes) {
    const auto column = PlaceOf(problem, attribute.Name);
    if (!column) continue;
    Dea::Judgment judgment;
    judgment.Column = *column;
    judgment.Judged = attribute.Judged;
    judgment.Low = attribute.Low.value_or(0.0);
    judgment.High = attribute.High.value_or(0.0);
    if (attribute.Snapshot) judgment.Snapshot = ScaleForDea(*attribute.Snapshot);
    session.Judgments.push_back(judgment);
  }
  return session;
}

Dea::Options OptionsOf(const Asked& asked) {
  Dea::Options options;
  options.Form = FormOf(asked.Form);
  options.Returns = ReturnsOf(asked.Returns);
  options.Orientation = asked.Orientation == ScoreOrientation::Out ? Dea::Orientation::Out : Dea::Orientation::In;
  options.Seed = static_cast<std::uint64_t>(asked.Seed);
  options.Widen = asked.Widen;
  options.CrossBand = asked.CrossBand;
  return options;
}

}  // namespace

Dea::Basis BasisForDea(JudgmentBasis basis) {
  switch (basis) {
    case JudgmentBasis::Range: return Dea::Basis::Range;
    case JudgmentBasis::Scale: return Dea::Basis::Scale;
    case JudgmentBasis::Unit: return Dea::Basis::Unit;
  }
  return Dea::Basis::Range;
}

Dea::Scale ScaleForDea(const ColumnScale& from) {
  Dea::Scale scale;
  scale.Worst = from.Worst;
  scale.Best = from.Best;
  if (from.Curve.empty()) return scale;
  Curve curve;
  curve.N = static_cast<int>(from.Curve.size());
  for (std::size_t k = 0; k < from.Curve.size(); ++k) {
    curve.X[k] = from.Curve[k].Score;
    curve.Y[k] = from.Curve[k].Value;
  }
  scale.ValueCurve = curve;
  return scale;
}

Asked AskedOf(const Project& project, const Wishes& wishes) {
  const ProjectUse use = project.Use.value_or(ProjectUse());
  const Asked plain;
  Asked asked;
  asked.Session = wishes.NoSession ? std::nullopt : wishes.Session ? wishes.Session : SessionInUse(project);
  if (asked.Session && *asked.Session >= project.Sessions.size()) {
    throw ModelFault("there is no session " + std::to_string(*asked.Session) + ", only " +
                     std::to_string(project.Sessions.size()) + " counted from 0");
  }
  asked.Form = wishes.Form.value_or(use.Form.value_or(plain.Form));
  asked.Returns = wishes.Returns.value_or(use.Returns.value_or(plain.Returns));
  asked.Orientation = wishes.Orientation.value_or(use.Orientation.value_or(plain.Orientation));
  asked.Seed = wishes.Seed.value_or(use.Seed.value_or(plain.Seed));
  asked.Widen = wishes.Widen;
  asked.CrossBand = wishes.CrossBand;
  return asked;
}

Dea::Problem ProblemOf(const Project& project, const Asked& asked) {
  CheckForResults(project);
  if (asked.Session) CheckSession(project, *asked.Session);
  Dea::Problem problem;
  problem.Units = project.Units;
  for (const DataColumn& column : project.Columns) {
    if (column.Role != Role::Unused) problem.Columns.push_back(ColumnOf(column));
  }
  if (asked.Session) problem.Session = SessionFrom(project.Sessions[*asked.Session], problem, *asked.Session);
  problem.Options = OptionsOf(asked);
  return problem;
}

std::vector<String> NoteTexts(const Evaluation& evaluation) {
  std::vector<String> texts;
  for (const Dea::Note& note : evaluation.Results.Notes) texts.push_back(note.Text);
  return texts;
}

JudgedProblem JudgedProblemOf(const Project& project, const Asked& asked) {
  JudgedProblem judged;
  judged.Problem = ProblemOf(project, asked);
  if (asked.Session) judged.Notes = SessionNotes(project, *asked.Session);
  try {
    const Dea::Checked checked = Dea::Check(judged.Problem);
    judged.Equivalences = Dea::EquivalencesOf(judged.Problem, checked);
    for (const Dea::Note& note : checked.Notes) judged.Notes.push_back(note.Text);
  } catch (const Dea::Refused& refused) {
    throw ModelFault(refused.what());
  }
  return judged;
}

}  // namespace Tarnwise
