// What holds for the value form whatever the data and the judgments are.
#include "RandomProblems.h"
#include "Reference.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {
namespace {

Problem AnyJudgedProblem(Chance& chance) {
  Problem problem = RandomProblem(chance, chance.OneIn(3) ? Kind::Spread : static_cast<Kind>(chance.Whole(0, 5)), {});
  problem.Options.Form = Form::Value;
  RC_PRE(!UnitsThatCount(problem).empty());
  return problem;
}

void AssertSame(const Results& a, const Results& b) {
  RC_ASSERT(a.Units.size() == b.Units.size());
  for (std::size_t k = 0; k < a.Units.size(); ++k) {
    RC_ASSERT(std::fabs(a.Units[k].Value->Low - b.Units[k].Value->Low) <= kSame);
    RC_ASSERT(std::fabs(a.Units[k].Value->High - b.Units[k].Value->High) <= kSame);
    RC_ASSERT(std::fabs(*a.Units[k].Regret - *b.Units[k].Regret) <= kSame);
    RC_ASSERT(a.Units[k].Distance.has_value() == b.Units[k].Distance.has_value());
    if (a.Units[k].Distance) RC_ASSERT(std::fabs(*a.Units[k].Distance - *b.Units[k].Distance) <= kSame);
  }
}

void Move(Scale& scale, Double by, Double times) {
  scale.Worst = scale.Worst * times + by;
  scale.Best = scale.Best * times + by;
  if (!scale.ValueCurve) return;
  for (int k = 0; k < scale.ValueCurve->N; ++k) {
    Double& x = scale.ValueCurve->X[static_cast<std::size_t>(k)];
    x = x * times + by;
  }
}

// Scores with their scale and curve moved along, below zero too, or measured in another unit.
RC_GTEST_PROP(ValueProperty, AScaleThatMovesWithItsCurveChangesNothing, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyJudgedProblem(chance);
  const Results before = Evaluate(problem);
  const int column = chance.Whole(0, static_cast<int>(problem.Columns.size()) - 1);
  Column& changed = problem.Columns[static_cast<std::size_t>(column)];
  const Double size = std::fmax(std::fabs(changed.Range.Worst), std::fabs(changed.Range.Best));
  const bool isUnit = problem.Session && problem.Session->Basis == Basis::Unit;
  const Double times = isUnit ? 1.0 : std::vector<Double>{1.0, 1e9, 1e-9}[static_cast<std::size_t>(chance.Whole(0, 2))];
  const Double by = times * size * chance.Real(-3, 3);
  for (Double& x : changed.Values) x = x * times + by;
  Move(changed.Range, by, times);
  if (problem.Session) {
    for (Judgment& judgment : problem.Session->Judgments) {
      if (judgment.Column == column && judgment.Snapshot) Move(*judgment.Snapshot, by, times);
    }
  }
  AssertSame(before, Evaluate(problem));
}

RC_GTEST_PROP(ValueProperty, ValuesRegretsAndDistancesFitTogether, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyJudgedProblem(chance);
  const Results results = Evaluate(problem);
  RC_ASSERT(results.WorstViolation <= 1e-9);
  for (const UnitResult& unit : results.Units) {
    RC_ASSERT(unit.Value->Low >= 0.0 && unit.Value->High <= 1.0 + kSame && unit.Value->Low <= unit.Value->High + kSame);
    RC_ASSERT(*unit.Regret >= 0.0);
    RC_ASSERT(unit.Distance.has_value() == (results.Units.size() > 1));
    if (unit.Distance) RC_ASSERT(*unit.Distance <= *unit.Regret + kSame);
    if (unit.Ranks && unit.Ranks->Worst == 1 && unit.Distance) RC_ASSERT(*unit.Distance <= kSame);
  }
}

RC_GTEST_PROP(ValueProperty, AUnitThatIsTheBestInADrawIsNotBehind, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyJudgedProblem(chance);
  RC_PRE(problem.Session.has_value());
  for (const UnitResult& unit : Evaluate(problem).Units) {
    if (unit.RanksSeen->Best == 1 && unit.Distance) RC_ASSERT(*unit.Distance <= kSame);
  }
}

RC_GTEST_PROP(ValueProperty, WideningNeverShrinksTheRangeNorRaisesTheDistance, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyJudgedProblem(chance);
  RC_PRE(problem.Session.has_value());
  const Results narrow = Evaluate(problem);
  problem.Options.Widen = chance.Real(1.0, 3.0);
  const Results wide = Evaluate(problem);
  for (std::size_t k = 0; k < narrow.Units.size(); ++k) {
    RC_ASSERT(wide.Units[k].Value->Low <= narrow.Units[k].Value->Low + kSame);
    RC_ASSERT(wide.Units[k].Value->High >= narrow.Units[k].Value->High - kSame);
    RC_ASSERT(*wide.Units[k].Regret >= *narrow.Units[k].Regret - kSame);
    if (narrow.Units[k].Distance) RC_ASSERT(*wide.Units[k].Distance <= *narrow.Units[k].Distance + kSame);
  }
}

RC_GTEST_PROP(ValueProperty, ThePoolGivesWhatOneWholeProgramGives, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyJudgedProblem(chance);
  const Results results = Evaluate(problem);
  for (int k = 0; k < static_cast<int>(results.Units.size()); ++k) {
    const std::optional<Double>& distance = results.Units[static_cast<std::size_t>(k)].Distance;
    if (!distance) continue;
    RC_ASSERT(std::fabs(*ReferenceDistance(problem, k, LeastCostExactly) - *distance) <= kSame);
  }
}

}  // namespace
}  // namespace Tarnwise::Dea
