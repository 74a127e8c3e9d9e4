// What holds for the ratio form whatever the data and the judgments are.
#include "RandomProblems.h"
#include "Reference.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tarnwise::Dea {
namespace {

Problem AnyProblem(Chance& chance, Kind kind) {
  Problem problem = RandomProblem(chance, kind, {});
  RC_PRE(!UnitsThatCount(problem).empty());
  return problem;
}

Problem AnyTechnology(Chance& chance, Problem problem) {
  problem.Options.Returns = static_cast<Returns>(chance.Whole(0, 3));
  problem.Options.Orientation = static_cast<Orientation>(chance.Whole(0, 1));
  return problem;
}

// Of mild data: with all kinds of numbers at moderate distances.
Kind AnyKind(Chance& chance) {
  const std::vector<Kind> kinds{Kind::Plain, Kind::Zeros, Kind::Ties, Kind::Doubles, Kind::Lean, Kind::Missing};
  return kinds[static_cast<std::size_t>(chance.Whole(0, static_cast<int>(kinds.size()) - 1))];
}

void AssertSame(const std::optional<Double>& a, const std::optional<Double>& b) {
  RC_ASSERT(a.has_value() == b.has_value());
  if (a) RC_ASSERT(std::fabs(*a - *b) <= kSame * std::fmax(1.0, std::fabs(*a)));
}

void AssertSameScores(const UnitResult& a, const UnitResult& b) {
  AssertSame(a.Free, b.Free);
  AssertSame(a.Max, b.Max);
  AssertSame(a.Min, b.Min);
}

bool IsAtMost(Double a, Double b) { return a <= b + kSame * std::fmax(1.0, std::fabs(b)); }

RC_GTEST_PROP(RatioProperty, FreeIsNoLessThanMaxAndMaxNoLessThanMin, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyTechnology(chance, AnyProblem(chance, AnyKind(chance)));
  const bool in = problem.Options.Orientation == Orientation::In;
  for (const UnitResult& unit : Evaluate(problem).Units) {
    if (!unit.Max) continue;
    const bool inOrder = in ? IsAtMost(*unit.Max, *unit.Free) && *unit.Free <= 1.0
                            : IsAtMost(*unit.Free, *unit.Max) && *unit.Free >= 1.0;
    RC_ASSERT(inOrder);
    if (!unit.Min) continue;
    const bool minInOrder = in ? *unit.Min <= *unit.Max && *unit.Min >= 0.0 : *unit.Min >= *unit.Max;
    RC_ASSERT(minInOrder);
  }
}

RC_GTEST_PROP(RatioProperty, JudgedMinIsAboveZeroOnPositiveData, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyProblem(chance, Kind::Plain);
  RC_PRE(problem.Session.has_value());
  problem.Session->Judgments.clear();
  for (int j = 0; j < static_cast<int>(problem.Columns.size()); ++j) {
    problem.Session->Judgments.push_back(JudgmentOf(j, 0.37, 3.17));
  }
  for (const UnitResult& unit : Evaluate(problem).Units) RC_ASSERT(*unit.Min > 0.0);
}

RC_GTEST_PROP(RatioProperty, WideningNeverLowersMaxNorRaisesMin, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyProblem(chance, AnyKind(chance));
  RC_PRE(problem.Session.has_value());
  const Results narrow = Evaluate(problem);
  problem.Options.Widen = chance.Real(1.0, 3.0);
  const Results wide = Evaluate(problem);
  for (std::size_t k = 0; k < narrow.Units.size(); ++k) {
    RC_ASSERT(IsAtMost(*narrow.Units[k].Max, *wide.Units[k].Max));
    RC_ASSERT(IsAtMost(*wide.Units[k].Min, *narrow.Units[k].Min));
  }
}

RC_GTEST_PROP(RatioProperty, PointsGiveThePlainFraction, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyProblem(chance, Kind::Plain);
  RC_PRE(problem.Session.has_value());
  problem.Session->Basis = Basis::Unit;
  problem.Session->Judgments.clear();
  std::vector<Double> prices;
  for (int j = 0; j < static_cast<int>(problem.Columns.size()); ++j) {
    const bool isReference = problem.Session->CostReference == j || problem.Session->BenefitReference == j;
    prices.push_back(isReference ? 1.0 : chance.InLog(0.2, 5));
    problem.Session->Judgments.push_back(JudgmentOf(j, prices.back(), prices.back()));
  }
  std::vector<Double> fractions;
  for (std::size_t k = 0; k < problem.Units.size(); ++k) {
    Double inputs = 0.0;
    Double outputs = 0.0;
    bool anyInput = false;
    bool anyOutput = false;
    for (std::size_t j = 0; j < prices.size(); ++j) {
      const bool isInput = problem.Columns[j].Use == Role::Input;
      (isInput ? inputs : outputs) += prices[j] * problem.Columns[j].Values[k];
      (isInput ? anyInput : anyOutput) = true;
    }
    fractions.push_back((anyOutput ? outputs : 1.0) / (anyInput ? inputs : 1.0));
  }
  const Double best = *std::max_element(fractions.begin(), fractions.end());
  const Results results = Evaluate(problem);
  for (std::size_t k = 0; k < fractions.size(); ++k) {
    AssertSame(fractions[k] / best, results.Units[k].Max);
    AssertSame(fractions[k] / best, results.Units[k].Min);
  }
}

std::vector<int> Shuffled(Chance& chance, std::size_t n) {
  std::vector<int> order(n);
  std::iota(order.begin(), order.end(), 0);
  for (std::size_t k = n; k > 1; --k)
    std::swap(order[k - 1], order[static_cast<std::size_t>(chance.Whole(0, static_cast<int>(k) - 1))]);
  return order;
}

RC_GTEST_PROP(RatioProperty, UnitsInAnotherOrderHaveTheSameScores, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyTechnology(chance, AnyProblem(chance, AnyKind(chance)));
  const std::vector<int> order = Shuffled(chance, problem.Units.size());
  const Results before = Evaluate(problem);
  const Results after = Evaluate(WithUnits(problem, order));
  for (const UnitResult& unit : after.Units) {
    const int original = order[static_cast<std::size_t>(unit.Unit)];
    const auto same = std::find_if(before.Units.begin(), before.Units.end(),
                                   [&](const UnitResult& other) { return other.Unit == original; });
    RC_ASSERT(same != before.Units.end());
    AssertSameScores(*same, unit);
  }
}

RC_GTEST_PROP(RatioProperty, ColumnsInAnotherOrderGiveTheSameScores, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyTechnology(chance, AnyProblem(chance, AnyKind(chance)));
  const std::vector<int> order = Shuffled(chance, problem.Columns.size());
  Problem changed = problem;
  std::vector<int> place(order.size());
  for (std::size_t j = 0; j < order.size(); ++j) {
    changed.Columns[j] = problem.Columns[static_cast<std::size_t>(order[j])];
    place[static_cast<std::size_t>(order[j])] = static_cast<int>(j);
  }
  if (changed.Session) {
    for (Judgment& judgment : changed.Session->Judgments)
      judgment.Column = place[static_cast<std::size_t>(judgment.Column)];
    for (auto* reference : {&changed.Session->CostReference, &changed.Session->BenefitReference}) {
      if (*reference) *reference = place[static_cast<std::size_t>(**reference)];
    }
  }
  const Results before = Evaluate(problem);
  const Results after = Evaluate(changed);
  for (std::size_t k = 0; k < before.Units.size(); ++k) AssertSameScores(before.Units[k], after.Units[k]);
}

bool HasColumns(const Problem& problem, Role role) {
  return std::any_of(problem.Columns.begin(), problem.Columns.end(), [&](const Column& c) { return c.Use == role; });
}

// Another unit of measure: the numbers, the scale and the curve change together.
void Measure(Column& column, Double times) {
  for (Double& x : column.Values) x *= times;
  column.Range.Worst *= times;
  column.Range.Best *= times;
  if (column.Range.ValueCurve) {
    for (int k = 0; k < column.Range.ValueCurve->N; ++k)
      column.Range.ValueCurve->X[static_cast<std::size_t>(k)] *= times;
  }
}

RC_GTEST_PROP(RatioProperty, AnotherUnitOfMeasureChangesNothing, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyTechnology(chance, AnyProblem(chance, AnyKind(chance)));
  if (problem.Session) {
    if (problem.Session->Basis == Basis::Unit) problem.Session->Basis = Basis::Range;
    for (Judgment& judgment : problem.Session->Judgments) judgment.Snapshot.reset();
  }
  const Results before = Evaluate(problem);
  const auto column = static_cast<std::size_t>(chance.Whole(0, static_cast<int>(problem.Columns.size()) - 1));
  const Double times = std::vector<Double>{1e9, 1e-9, 3.17, 1000.0}[static_cast<std::size_t>(chance.Whole(0, 3))];
  Measure(problem.Columns[column], times);
  const Results after = Evaluate(problem);
  for (std::size_t k = 0; k < before.Units.size(); ++k) {
    AssertSameScores(before.Units[k], after.Units[k]);
    AssertSame(before.Units[k].Super, after.Units[k].Super);
  }
}

RC_GTEST_PROP(RatioProperty, AUnitThatAddsNothingChangesNoOther, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyTechnology(chance, AnyProblem(chance, AnyKind(chance)));
  const std::vector<int> units = UnitsThatCount(problem);
  const auto copied =
      static_cast<std::size_t>(units[static_cast<std::size_t>(chance.Whole(0, static_cast<int>(units.size()) - 1))]);
  const bool mayDouble = problem.Options.Returns == Returns::Constant && HasColumns(problem, Role::Input) &&
                         HasColumns(problem, Role::Output);
  Problem more = problem;
  more.Units.emplace_back("again");
  const Double times = mayDouble && chance.OneIn(2) ? 2.0 : 1.0;
  const Double worse = chance.OneIn(2) ? chance.Real(0.5, 1.0) : 1.0;  // dominated, or the same
  for (Column& column : more.Columns) {
    column.Values.push_back(column.Values[copied] * times * (column.Use == Role::Output ? worse : 1.0));
  }
  const Results before = Evaluate(problem);
  const Results after = Evaluate(more);
  for (std::size_t k = 0; k < before.Units.size(); ++k) AssertSameScores(before.Units[k], after.Units[k]);
}

RC_GTEST_PROP(RatioProperty, RangeAndScaleAgreeWhereTheRangeSpansTheCurve, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyProblem(chance, Kind::Plain);
  RC_PRE(problem.Session.has_value());
  for (Column& column : problem.Columns) column.Range.ValueCurve.reset();
  for (Judgment& judgment : problem.Session->Judgments) judgment.Snapshot.reset();
  problem.Session->Basis = Basis::Range;
  const Results range = Evaluate(problem);
  problem.Session->Basis = Basis::Scale;
  const Results scale = Evaluate(problem);
  for (std::size_t k = 0; k < range.Units.size(); ++k) AssertSameScores(range.Units[k], scale.Units[k]);
}

RC_GTEST_PROP(RatioProperty, ThePoolGivesWhatOneWholeProgramGives, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyTechnology(chance, AnyProblem(chance, AnyKind(chance)));
  const RawBounds judged = PricesOf(problem, true);
  const Results results = Evaluate(problem);
  RC_ASSERT(results.WorstViolation <= 1e-9);
  for (int k = 0; k < static_cast<int>(results.Units.size()); ++k) {
    const std::optional<Double>& max = results.Units[static_cast<std::size_t>(k)].Max;
    if (max) AssertSame(ReferenceMax(problem, judged, k, -1, LeastCostByGlpk), max);
  }
}

Double Sum(const Problem& problem, Role role, const std::vector<Double>& prices, int unit) {
  Double sum = 0.0;
  bool any = false;
  for (std::size_t j = 0; j < prices.size(); ++j) {
    if (problem.Columns[j].Use != role) continue;
    any = true;
    sum += prices[j] * problem.Columns[j].Values[static_cast<std::size_t>(unit)];
  }
  return any ? sum : 1.0;
}

RC_GTEST_PROP(RatioProperty, PricesSharesAndPeersBelongToTheScore, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyProblem(chance, AnyKind(chance));
  RC_PRE(HasColumns(problem, Role::Input) && HasColumns(problem, Role::Output));
  problem.Options.Orientation = static_cast<Orientation>(chance.Whole(0, 1));
  const bool in = problem.Options.Orientation == Orientation::In;
  for (const UnitResult& unit : Evaluate(problem).Units) {
    if (!unit.Max) {
      RC_ASSERT(unit.Prices.empty() && unit.Shares.empty() && unit.Peers.empty());
      continue;
    }
    const Double inputs = Sum(problem, Role::Input, unit.Prices, unit.Unit);
    const Double outputs = Sum(problem, Role::Output, unit.Prices, unit.Unit);
    AssertSame(1.0, in ? inputs : outputs);
    AssertSame(*unit.Max, in ? outputs : inputs);
    for (const Role role : {Role::Input, Role::Output}) {
      Double sum = 0.0;
      bool any = false;
      for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
        if (problem.Columns[j].Use != role || !unit.Shares[j]) continue;
        any = true;
        sum += *unit.Shares[j];
      }
      RC_ASSERT(any || (role == Role::Output && outputs == 0.0));
      if (any) AssertSame(1.0, sum);
    }
    // What the peers make of it at these prices: the unit's own inputs, shrunk, and its outputs.
    Double peers = 0.0;
    for (const Peer& peer : unit.Peers) peers += peer.Lambda * Sum(problem, Role::Output, unit.Prices, peer.Unit);
    AssertSame(in ? outputs : *unit.Max, peers);
  }
}

}  // namespace
}  // namespace Tarnwise::Dea
