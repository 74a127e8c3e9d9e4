// Random problems of all kinds, forms, returns and orientations against their definitions, solved by another library.
// TARNWISE_ROUNDS in the environment sets how many problems of each kind there are.
#include "RandomProblems.h"
#include "Reference.h"

#include <cmath>

namespace Tarnwise::Dea {
namespace {

constexpr Double kSolversDiffer = 1e-8;  // relative to what is 1 or more; the other solver's own tolerance is in it

void ExpectSame(const std::optional<Double>& expected, const std::optional<Double>& actual, const char* what,
                int unit) {
  ASSERT_EQ(expected.has_value(), actual.has_value())
      << what << " of unit " << unit << ": " << expected.value_or(-1) << ' ' << actual.value_or(-1);
  if (!expected) return;
  EXPECT_NEAR(*expected, *actual, kSolversDiffer * std::fmax(1.0, std::fabs(*expected))) << what << " of unit " << unit;
}

// A program's answer by the second solver; where that gives up or has another one than was found, rational arithmetic
// decides.
template <typename Reference>
std::optional<Double> Answer(const std::optional<Double>& found, Reference reference) {
  try {
    const std::optional<Double> answer = reference(LeastCostByClp);
    if (IsSame(answer, found, kSolversDiffer)) return answer;
  } catch (const std::runtime_error&) {
  }
  return reference(LeastCostExactly);
}

void CheckRanks(const Results& results, const std::function<bool(int, int)>& dominates) {
  const int units = static_cast<int>(results.Units.size());
  for (int a = 0; a < units; ++a) {
    RankRange expected{1, units};
    for (int b = 0; b < units; ++b) {
      if (a != b && dominates(b, a)) ++expected.Best;
      if (a != b && dominates(a, b)) --expected.Worst;
    }
    const UnitResult& unit = results.Units[static_cast<std::size_t>(a)];
    ASSERT_TRUE(unit.Ranks && unit.RanksSeen);
    EXPECT_EQ(expected.Best, unit.Ranks->Best) << a;
    EXPECT_EQ(expected.Worst, unit.Ranks->Worst) << a;
    EXPECT_LE(unit.Ranks->Best, unit.RanksSeen->Best) << a;
    EXPECT_GE(unit.Ranks->Worst, unit.RanksSeen->Worst) << a;
  }
}

void CheckHeldBack(const Problem& problem, const RawBounds& judged, int k, const UnitResult& unit) {
  for (const auto& [side, bounds] : {std::pair{Side::Low, &judged.Low}, std::pair{Side::High, &judged.High}}) {
    for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
      const Double none = side == Side::Low ? 0.0 : kInfinite;
      if ((*bounds)[j] == none || judged.References[j] == static_cast<int>(j)) continue;
      RawBounds without = judged;
      (side == Side::Low ? without.Low : without.High)[j] = none;
      std::optional<Double> found;
      for (const HeldBackBy& bound : unit.HeldBackBy) {
        if (bound.Column == static_cast<int>(j) && bound.Side == side) found = bound.Gain;
      }
      const bool in = problem.Options.Orientation == Orientation::In;
      const std::optional<Double> score =
          Answer(*unit.Max + found.value_or(0.0) * (in ? 1.0 : -1.0),
                 [&](Solver solver) { return ReferenceMax(problem, without, k, -1, solver); });
      ASSERT_TRUE(score);
      const Double gain = std::fabs(*score - *unit.Max);
      if (std::fabs(gain - 1e-6) < 1e-7 + kSolversDiffer * *unit.Max) continue;
      EXPECT_EQ(gain > 1e-6, found.has_value()) << "unit " << k << " column " << j << " gain " << gain;
      if (found) {
        EXPECT_NEAR(gain, *found, kSolversDiffer * std::fmax(1.0, *unit.Max)) << "unit " << k << " column " << j;
      }
    }
  }
}

void CheckRatios(const Problem& problem, bool heldBack) {
  const Results results = Evaluate(problem);
  const std::vector<int> units = UnitsThatCount(problem);
  ASSERT_EQ(units.size(), results.Units.size());
  EXPECT_LE(results.WorstViolation, 1e-9);
  const RawBounds free = PricesOf(problem, false);
  const RawBounds judged = PricesOf(problem, true);
  const bool constant = problem.Options.Returns == Returns::Constant;
  const bool in = problem.Options.Orientation == Orientation::In;
  for (int k = 0; k < static_cast<int>(units.size()); ++k) {
    const UnitResult& unit = results.Units[static_cast<std::size_t>(k)];
    const bool any = HasOutputs(problem, units[static_cast<std::size_t>(k)]);
    if (!any && !in) {
      EXPECT_FALSE(unit.Free || unit.Max || unit.Min || unit.Super);
      continue;
    }
    const auto max = [&](const RawBounds& bounds, int without, const std::optional<Double>& found) {
      return Answer(found, [&](Solver solver) { return ReferenceMax(problem, bounds, k, without, solver); });
    };
    ExpectSame(max(free, -1, unit.Free), unit.Free, "free", k);
    ExpectSame(max(judged, -1, unit.Max), unit.Max, "max", k);
    if (!unit.Max) continue;
    if (heldBack && problem.Session) CheckHeldBack(problem, judged, k, unit);
    if (constant && problem.Session) {
      const Double least = ReferenceMin(problem, judged, k);
      ExpectSame(in            ? std::optional(least)
                 : least > 0.0 ? std::optional(1.0 / least)
                               : std::nullopt,
                 unit.Min, "min", k);
    }
    if (constant && std::fabs(*unit.Max - 1.0) <= 1e-9 && units.size() > 1) {
      std::optional<Double> super = max(judged, k, unit.Super);
      if (!in && super && *super < 1e-12) super.reset();  // one over what has no end
      ExpectSame(super, unit.Super, "super", k);
    } else {
      EXPECT_FALSE(unit.Super);
    }
  }
  if (constant && problem.Session) {
    CheckRanks(results, [&](int a, int b) { return ReferenceDominates(problem, judged, a, b); });
  }
}

void CheckValues(const Problem& problem) {
  const Results results = Evaluate(problem);
  const std::vector<int> units = UnitsThatCount(problem);
  ASSERT_EQ(units.size(), results.Units.size());
  EXPECT_LE(results.WorstViolation, 1e-9);
  for (int k = 0; k < static_cast<int>(units.size()); ++k) {
    const UnitResult& unit = results.Units[static_cast<std::size_t>(k)];
    ExpectSame(Answer(unit.Distance, [&](Solver solver) { return ReferenceDistance(problem, k, solver); }),
               unit.Distance, "distance", k);
    const Interval range = ReferenceValue(problem, k);
    ExpectSame(range.Low, unit.Value->Low, "least value", k);
    ExpectSame(range.High, unit.Value->High, "greatest value", k);
    ExpectSame(ReferenceRegret(problem, k), unit.Regret, "regret", k);
  }
  if (problem.Session) CheckRanks(results, [&](int a, int b) { return ReferenceValueDominates(problem, a, b); });
}

bool AnyUnitLeft(const Problem& problem) { return !UnitsThatCount(problem).empty(); }

class SecondSolver : public testing::TestWithParam<int> {
 protected:
  template <typename Check>
  void Rounds(Form form, const Extent& extent, Check check) {
    const auto kind = static_cast<Kind>(GetParam());
    for (int round = 0; round < Dea::Rounds(25) && !HasFailure(); ++round) {
      Chance chance(static_cast<std::uint64_t>(1000 * GetParam() + 1000000 * static_cast<int>(form) + round) + 17);
      Problem problem = RandomProblem(chance, kind, extent);
      problem.Options.Form = form;
      problem.Options.Widen = chance.OneIn(5) ? chance.Real(1.0, 3.0) : 1.0;
      if (!AnyUnitLeft(problem)) continue;
      SCOPED_TRACE(NameOf(kind) + ", round " + std::to_string(round));
      check(problem, chance);
    }
  }
};

TEST_P(SecondSolver, AgreesOnRatios) {
  Rounds(Form::Ratio, {}, [](Problem& problem, Chance& chance) {
    for (const Orientation orientation : {Orientation::In, Orientation::Out}) {
      for (const Returns returns :
           {Returns::Constant, Returns::Variable, Returns::NonIncreasing, Returns::NonDecreasing}) {
        problem.Options.Orientation = orientation;
        problem.Options.Returns = returns;
        SCOPED_TRACE("orientation " + std::to_string(static_cast<int>(orientation)) + ", returns " +
                     std::to_string(static_cast<int>(returns)));
        CheckRatios(problem, chance.OneIn(4));
      }
    }
  });
}

// As many units and columns as pruning and shared prices need to be busy with.
TEST_P(SecondSolver, AgreesOnLargerProblems) {
  Rounds(Form::Ratio, {60, 6}, [](Problem& problem, Chance& chance) {
    if (!chance.OneIn(8)) return;
    problem.Options.Returns = static_cast<Returns>(chance.Whole(0, 3));
    problem.Options.Orientation = static_cast<Orientation>(chance.Whole(0, 1));
    CheckRatios(problem, false);
    problem.Options.Form = Form::Value;
    CheckValues(problem);
  });
}

TEST_P(SecondSolver, AgreesOnValues) {
  Rounds(Form::Value, {}, [](Problem& problem, Chance& chance) {
    problem.Options.CrossBand = chance.OneIn(4) ? chance.Real(1.0, 3.0) : 1.0;
    CheckValues(problem);
  });
}

INSTANTIATE_TEST_SUITE_P(Kinds, SecondSolver, testing::Range(0, kKinds),
                         [](const auto& row) { return NameOf(static_cast<Kind>(row.param)); });

}  // namespace
}  // namespace Tarnwise::Dea
