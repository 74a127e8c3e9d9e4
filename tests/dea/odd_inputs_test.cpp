// Inputs at the edge of what there is to evaluate: no crash, no hang, no wrong number without a word. And what a caller
// sees on the way: progress, a cancel, threads.
#include "RandomProblems.h"
#include "Reference.h"

#include <chrono>
#include <cmath>
#include <thread>

namespace Tarnwise::Dea {
namespace {

Problem AsValues(Problem problem) {
  problem.Options.Form = Form::Value;
  return problem;
}

TEST(OddInputs, OneUnit) {
  const Problem problem = WithUnits(HospitalsJudged(DirectSession()), {4});
  const UnitResult unit = Evaluate(problem).Units[0];
  EXPECT_EQ(1.0, *unit.Max);
  EXPECT_EQ(1.0, *unit.Min);
  EXPECT_FALSE(unit.Super);
  EXPECT_EQ(1, unit.Ranks->Best);
  EXPECT_EQ(1, unit.Ranks->Worst);
  EXPECT_EQ(1, unit.RanksSeen->Worst);
  const UnitResult valued = Evaluate(AsValues(problem)).Units[0];
  EXPECT_FALSE(valued.Distance);
  EXPECT_EQ(0.0, *valued.Regret);
}

TEST(OddInputs, OneColumn) {
  const UnitResult least = Evaluate(ProblemOf({InputColumn("Cost", {3, 1.5, 4})})).Units[0];
  EXPECT_DOUBLE_EQ(0.5, *least.Max);
  ASSERT_EQ(1U, least.Prices.size());
  EXPECT_DOUBLE_EQ(1.0, *least.Shares[0]);
  const Results outputs = Evaluate(ProblemOf({OutputColumn("Gain", {3, 1.5, 4})}));
  EXPECT_DOUBLE_EQ(0.75, *outputs.Units[0].Max);
  EXPECT_DOUBLE_EQ(4.0 / 3.0, *outputs.Units[2].Super);
}

TEST(OddInputs, AllZerosInTheOutputs) {
  for (const Returns returns : {Returns::Constant, Returns::NonIncreasing, Returns::Variable, Returns::NonDecreasing}) {
    Problem problem = ProblemOf({InputColumn("Cost", {3, 1.5}), OutputColumn("Gain", {0, 0})});
    problem.Options.Returns = returns;
    const Results results = Evaluate(problem);
    const bool sizeless = returns == Returns::Constant || returns == Returns::NonIncreasing;
    ExpectAll(sizeless ? std::vector<Double>{0, 0} : std::vector<Double>{0.5, 1}, All(results, &UnitResult::Max),
              1e-12);
    problem.Options.Orientation = Orientation::Out;
    for (const UnitResult& unit : Evaluate(problem).Units) {
      EXPECT_FALSE(unit.Free || unit.Max || unit.Super);
      EXPECT_TRUE(unit.Prices.empty() && unit.Shares.empty() && unit.Peers.empty());
    }
  }
}

TEST(OddInputs, AUnitWithoutOutputsUnderJudgments) {
  Problem problem = HospitalsJudged(DirectSession());
  problem.Columns[2].Values[5] = problem.Columns[3].Values[5] = 0.0;
  Results results = Evaluate(problem);
  EXPECT_EQ(0.0, *results.Units[5].Max);
  EXPECT_EQ(0.0, *results.Units[5].Min);
  EXPECT_EQ(12, results.Units[5].Ranks->Best);
  EXPECT_EQ(12, results.Units[5].Ranks->Worst);
  problem.Options.Orientation = Orientation::Out;
  results = Evaluate(problem);
  EXPECT_FALSE(results.Units[5].Max || results.Units[5].Min || results.Units[5].Free);
  EXPECT_EQ(12, results.Units[5].Ranks->Best);
}

TEST(OddInputs, ConstantColumns) {
  const Results results = Evaluate(ProblemOf({InputColumn("Cost", {2, 2, 2}), OutputColumn("Gain", {5, 5, 5})}));
  ExpectAll({1, 1, 1}, All(results, &UnitResult::Max), 0.0);
  ExpectAll({1, 1, 1}, All(results, &UnitResult::Super), 1e-12);
}

TEST(OddInputs, AColumnOfZeros) {
  Problem problem = HospitalsJudged(DirectSession());
  for (Double& x : problem.Columns[3].Values) x = 0.0;
  const Results results = Evaluate(problem);
  Problem without = Hospitals();
  without.Columns.pop_back();
  without.Session = DirectSession();
  without.Session->Judgments.pop_back();
  ExpectAll(All(Evaluate(without), &UnitResult::Max), All(results, &UnitResult::Max), 1e-12);
}

TEST(OddInputs, ASessionThatSaysNothing) {
  Problem problem = HospitalsJudged(DirectSession());
  problem.Session->Judgments.clear();
  const Results results = Evaluate(problem);
  ExpectAll(All(results, &UnitResult::Free), All(results, &UnitResult::Max), 1e-12);
  for (const UnitResult& unit : results.Units) {
    EXPECT_TRUE(unit.Min && unit.Ranks && unit.RanksSeen);
    EXPECT_TRUE(unit.HeldBackBy.empty());
  }
}

TEST(OddInputs, SuperWithoutAnEndIsAbsent) {
  // The first has an input of zero, the second alone has the second output.
  const Results results = Evaluate(ProblemOf({InputColumn("1", {0, 2, 3}), InputColumn("2", {2, 1, 3}),
                                              OutputColumn("1", {1, 1, 1}), OutputColumn("2", {0, 1, 0})}));
  EXPECT_EQ(1.0, *results.Units[0].Max);
  EXPECT_FALSE(results.Units[0].Super);
  EXPECT_EQ(1.0, *results.Units[1].Max);
  EXPECT_FALSE(results.Units[1].Super);
}

TEST(OddInputs, AVeryLargeSuperIsANumber) {
  const Results results = Evaluate(ProblemOf({InputColumn("1", {1e-7, 2, 3}), OutputColumn("1", {1, 1, 1})}));
  EXPECT_NEAR(2e7, *results.Units[0].Super, 1.0);
}

TEST(OddInputs, BothBoundsOfAPointAreTwo) {
  Problem problem = HospitalsJudged(TradedSession());
  bool low = false;
  bool high = false;
  for (const UnitResult& unit : Evaluate(problem).Units) {
    for (const HeldBackBy& bound : unit.HeldBackBy) {
      if (bound.Column != 3) continue;
      EXPECT_EQ(1.2015, bound.Ratio);
      (bound.Side == Side::Low ? low : high) = true;
    }
  }
  EXPECT_TRUE(low || high);
}

Problem ManyColumns(int inputs, int outputs, int units) {
  Chance chance(3);
  std::vector<Column> columns;
  for (int j = 0; j < inputs + outputs; ++j) {
    std::vector<Double> values;
    for (int k = 0; k < units; ++k) values.push_back(chance.Real(10, 20));
    const String name = "Column " + std::to_string(j + 1);
    columns.push_back(j < inputs ? InputColumn(name, values) : OutputColumn(name, values));
  }
  return ProblemOf(columns);
}

TEST(OddInputs, ThirtyOneColumns) {
  Problem problem = ManyColumns(16, 15, 80);
  Session session;
  session.Basis = Basis::Unit;
  session.CostReference = 3;
  session.BenefitReference = 20;
  for (int j = 0; j < 31; ++j) session.Judgments.push_back(JudgmentOf(j, 0.7, 1.5));
  problem.Session = session;
  for (const Returns returns : {Returns::Constant, Returns::Variable}) {
    problem.Options.Returns = returns;
    const Results results = Evaluate(problem);
    const RawBounds judged = PricesOf(problem, true);
    for (int k = 0; k < 80; k += 9) {
      EXPECT_NEAR(*ReferenceMax(problem, judged, k, -1, LeastCostByClp),
                  *results.Units[static_cast<std::size_t>(k)].Max, 1e-9);
    }
  }
  problem.Options.Form = Form::Value;
  for (const UnitResult& unit : Evaluate(problem).Units) EXPECT_TRUE(unit.Distance && unit.Ranks);
}

// Hundreds of efficient units side by side, some a million times as large as others: an absolute zero would let one
// stand for its neighbour.
TEST(OddInputs, AFineFrontierOfSmallAndLargeUnits) {
  std::vector<Double> first, second, output;
  for (int k = 0; k < 500; ++k) {
    const Double place = std::exp(-0.5 + 0.002 * k);
    const Double size = std::pow(10.0, -3.0 + (k * 37 % 500) * 0.012);
    first.push_back(size * place);
    second.push_back(size / place);
    output.push_back(size);
  }
  Problem problem = ProblemOf({InputColumn("1", first), InputColumn("2", second), OutputColumn("1", output)});
  const Results results = Evaluate(problem);
  EXPECT_LE(results.WorstViolation, 1e-9);
  for (const UnitResult& unit : results.Units) {
    EXPECT_NEAR(1.0, *unit.Max, 1e-10);
    EXPECT_GT(*unit.Super, 1.0 + 1e-6);
  }
}

TEST(OddInputs, NumbersOfVeryDifferentSize) {
  const Problem problem = ProblemOf({InputColumn("1", {1e-12, 1, 1e12}), OutputColumn("1", {1e12, 1, 1e-12})});
  const Results results = Evaluate(problem);
  EXPECT_EQ(1.0, *results.Units[0].Max);
  EXPECT_NEAR(1e-24, *results.Units[1].Max, 1e-33);
  EXPECT_NEAR(1e-48, *results.Units[2].Max, 1e-57);
}

TEST(OddInputs, AreAnsweredWithNumbersOnly) {
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    Chance chance(seed);
    Problem problem = RandomProblem(chance, static_cast<Kind>(chance.Whole(0, kKinds - 1)), {5, 3});
    for (Column& column : problem.Columns) {
      for (Double& x : column.Values) {
        if (chance.OneIn(6)) x = chance.OneIn(3) ? 0.0 : std::pow(10.0, chance.Whole(-60, 60));
      }
    }
    problem.Options.Form = static_cast<Form>(chance.Whole(0, 1));
    problem.Options.Returns = static_cast<Returns>(chance.Whole(0, 3));
    problem.Options.Orientation = static_cast<Orientation>(chance.Whole(0, 1));
    try {
      for (const UnitResult& unit : Evaluate(problem).Units) {
        for (const auto& score : {unit.Free, unit.Max, unit.Min, unit.Super, unit.Distance, unit.Regret}) {
          EXPECT_TRUE(std::isfinite(score.value_or(0.0))) << seed;
        }
        for (const Double price : unit.Prices) EXPECT_TRUE(std::isfinite(price)) << seed;
        for (const Peer& peer : unit.Peers) EXPECT_TRUE(std::isfinite(peer.Lambda)) << seed;
      }
    } catch (const Refused&) {
    } catch (const SolverFault&) {
    }
  }
}

TEST(Watching, ProgressRisesFromNoneToAll) {
  Problem problem = HospitalsJudged(DirectSession());
  for (const Form form : {Form::Ratio, Form::Value}) {
    problem.Options.Form = form;
    std::vector<Double> shares;
    Watch watch;
    watch.Progress = [&](Double share) { shares.push_back(share); };
    Evaluate(problem, watch);
    EXPECT_EQ(0.0, shares.front());
    EXPECT_EQ(1.0, shares.back());
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
    EXPECT_GT(shares.size(), 20U);
  }
}

// From any place where progress is told a cancel ends it, and the next evaluation is the whole one.
TEST(Watching, ACancelIsAnsweredEverywhere) {
  Problem problem = HospitalsJudged(DirectSession());
  for (const Form form : {Form::Ratio, Form::Value}) {
    problem.Options.Form = form;
    for (int after = 0; after < 200; after += 7) {
      std::atomic<bool> cancel{false};
      int told = 0;
      Watch watch;
      watch.Cancel = &cancel;
      watch.Progress = [&](Double) { cancel = cancel || told++ == after; };
      EXPECT_THROW(Evaluate(problem, watch), Cancelled) << after;
    }
    EXPECT_EQ(12U, Evaluate(problem).Units.size());
  }
}

TEST(Watching, EvaluationsOnSeveralThreadsDoNotMeet) {
  const std::vector<Double> expected = All(Evaluate(HospitalsJudged(DirectSession())), &UnitResult::Max);
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&] {
      for (int k = 0; k < 5; ++k) {
        EXPECT_EQ(expected, All(Evaluate(HospitalsJudged(DirectSession())), &UnitResult::Max));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(Seeds, GiveTheSameRanksAgain) {
  Problem problem = HospitalsJudged(BoundsSession());
  const Results once = Evaluate(problem);
  const Results again = Evaluate(problem);
  for (std::size_t k = 0; k < 12; ++k) {
    EXPECT_EQ(once.Units[k].RanksSeen->Best, again.Units[k].RanksSeen->Best);
    EXPECT_EQ(once.Units[k].RanksSeen->Worst, again.Units[k].RanksSeen->Worst);
  }
}

TEST(Options, RanksAndHeldBackBoundsCanBeLeftOut) {
  Problem problem = HospitalsJudged(DirectSession());
  problem.Options.Ranks = false;
  problem.Options.HeldBack = false;
  for (const UnitResult& unit : Evaluate(problem).Units) {
    EXPECT_TRUE(unit.Max && unit.Min);
    EXPECT_TRUE(!unit.Ranks && !unit.RanksSeen && unit.HeldBackBy.empty());
  }
}

TEST(ManyUnits, HaveScoresButNoRanksAbove20000) {
  Problem problem = ManyColumns(1, 1, 20001);
  Session session;
  problem.Session = session;
  problem.Options.HeldBack = false;
  const Results results = Evaluate(problem);
  EXPECT_TRUE(results.Units[20000].Max && results.Units[20000].Min);
  EXPECT_FALSE(results.Units[0].Ranks || results.Units[0].RanksSeen);
  EXPECT_NE(String::npos, results.Notes.back().Text.find("20,000"));
}

}  // namespace
}  // namespace Tarnwise::Dea
