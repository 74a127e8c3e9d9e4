// The cross ratio of the value form, its band, and what holds whatever they are.
#include "RandomProblems.h"
#include "Reference.h"
#include "dea/Values.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {
namespace {

Results WithBand(Problem problem, Double band) {
  problem.Options.CrossBand = band;
  return Evaluate(problem);
}

Results WithCross(Session session, std::optional<Double> cross) {
  session.Cross = cross;
  return Evaluate(HospitalsJudged(session, Form::Value));
}

// Extremes over a band lie at its ends.
TEST(CrossBand, ValueRangesAreThoseOfItsTwoEnds) {
  const Results banded = WithBand(HospitalsJudged(DirectSession(), Form::Value), 1.37);
  const Results low = WithCross(DirectSession(), 1.15 / 1.37);
  const Results high = WithCross(DirectSession(), 1.15 * 1.37);
  for (std::size_t k = 0; k < banded.Units.size(); ++k) {
    SCOPED_TRACE(k);
    EXPECT_NEAR(std::min(low.Units[k].Value->Low, high.Units[k].Value->Low), banded.Units[k].Value->Low, kSame);
    EXPECT_NEAR(std::max(low.Units[k].Value->High, high.Units[k].Value->High), banded.Units[k].Value->High, kSame);
    EXPECT_NEAR(std::max(*low.Units[k].Regret, *high.Units[k].Regret), *banded.Units[k].Regret, kSame);
    EXPECT_LE(*banded.Units[k].Distance, std::min(*low.Units[k].Distance, *high.Units[k].Distance) + kSame);
  }
}

TEST(CrossBand, OfOneIsNone) {
  const Results banded = WithBand(HospitalsJudged(TradedSession(), Form::Value), 1.0);
  const Results plain = Evaluate(HospitalsJudged(TradedSession(), Form::Value));
  for (std::size_t k = 0; k < banded.Units.size(); ++k) {
    EXPECT_EQ(plain.Units[k].Value->Low, banded.Units[k].Value->Low);
    EXPECT_EQ(*plain.Units[k].Distance, *banded.Units[k].Distance);
  }
}

// Where the groups are not linked every cross ratio is allowed, however far off.
TEST(CrossRatio, NotJudgedIsWiderThanAnyBand) {
  const Results free = WithCross(DirectSession(), std::nullopt);
  const Results banded = WithBand(HospitalsJudged(DirectSession(), Form::Value), 1e4);
  for (std::size_t k = 0; k < free.Units.size(); ++k) {
    SCOPED_TRACE(k);
    EXPECT_LE(free.Units[k].Value->Low, banded.Units[k].Value->Low + kSame);
    EXPECT_GE(free.Units[k].Value->High, banded.Units[k].Value->High - kSame);
    EXPECT_NEAR(free.Units[k].Value->Low, banded.Units[k].Value->Low, 1e-3);
    EXPECT_NEAR(*free.Units[k].Distance, *banded.Units[k].Distance, 1e-3);
  }
}

TEST(CrossRatio, TheRatioFormIgnoresIt) {
  Session session = DirectSession();
  const Results with = Evaluate(HospitalsJudged(session));
  session.Cross = 0.625;
  const Results other = Evaluate(HospitalsJudged(session));
  for (std::size_t k = 0; k < with.Units.size(); ++k) {
    EXPECT_EQ(*with.Units[k].Max, *other.Units[k].Max);
    EXPECT_EQ(*with.Units[k].Min, *other.Units[k].Min);
  }
}

// Doctors 4.028217 to 5.491802, nurses 1.224237, inpatients 2.142815 to 2.678519 with outpatients at 1: the value of a
// unit that is best in one attribute and worst in all others is that attribute's share.
TEST(HospitalsBox, WeightsAreThoseOfTheTable) {
  const std::vector<Interval> box{{4.028217, 5.491802}, {1.224237, 1.224237}, {1, 1}, {2.142815, 2.678519}};
  for (std::size_t j = 0; j < box.size(); ++j) {
    Problem problem = HospitalsJudged(DirectSession(), Form::Value);
    for (std::size_t i = 0; i < box.size(); ++i) {
      const bool isHigh = (i == j) == (problem.Columns[i].Use == Role::Output);
      const Curve& curve = *problem.Columns[i].Range.ValueCurve;
      for (Double& x : problem.Columns[i].Values) x = curve.X[isHigh ? static_cast<std::size_t>(curve.N) - 1 : 0];
    }
    Double least = 0.0;
    Double most = 0.0;
    for (std::size_t i = 0; i < box.size(); ++i) {
      if (i == j) continue;
      least += box[i].Low;
      most += box[i].High;
    }
    const UnitResult unit = Evaluate(problem).Units.front();
    EXPECT_NEAR(box[j].Low / (box[j].Low + most), unit.Value->Low, 6e-7) << j;
    EXPECT_NEAR(box[j].High / (box[j].High + least), unit.Value->High, 6e-7) << j;
  }
}

Problem AnyValueProblem(Chance& chance) {
  Problem problem = RandomProblem(chance, static_cast<Kind>(chance.Whole(0, kKinds - 1)), {});
  problem.Options.Form = Form::Value;
  RC_PRE(!UnitsThatCount(problem).empty());
  return problem;
}

RC_GTEST_PROP(CrossBandProperty, AWiderBandNeverShrinksRangesNorRaisesDistances, ()) {
  Chance chance = AnyChance();
  const Problem problem = AnyValueProblem(chance);
  const Double band = chance.Real(1.0, 2.0);
  const Results narrow = WithBand(problem, band);
  const Results wide = WithBand(problem, band * chance.Real(1.0, 3.0));
  for (std::size_t k = 0; k < narrow.Units.size(); ++k) {
    RC_ASSERT(wide.Units[k].Value->Low <= narrow.Units[k].Value->Low + kSame);
    RC_ASSERT(wide.Units[k].Value->High >= narrow.Units[k].Value->High - kSame);
    RC_ASSERT(*wide.Units[k].Regret >= *narrow.Units[k].Regret - kSame);
    if (narrow.Units[k].Distance) RC_ASSERT(*wide.Units[k].Distance <= *narrow.Units[k].Distance + kSame);
  }
}

// Whatever the scores (zero, negative, beyond their curves), the judgments and the band: there is an answer, and every
// regret is 0 or more.
RC_GTEST_PROP(CrossBandProperty, TheValueFormIsNeverInfeasible, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyValueProblem(chance);
  for (Column& column : problem.Columns) {
    for (Double& x : column.Values) x *= chance.OneIn(4) ? -1.0 : chance.OneIn(6) ? 0.0 : 1.0;
  }
  const Results results = WithBand(problem, chance.OneIn(2) ? 1.0 : chance.Real(1.0, 5.0));
  RC_ASSERT(results.WorstViolation <= kSame);
  for (const UnitResult& unit : results.Units) {
    RC_ASSERT(*unit.Regret >= 0.0);
    RC_ASSERT(std::isfinite(unit.Value->Low) && std::isfinite(unit.Value->High));
    RC_ASSERT(unit.Distance.has_value() == (results.Units.size() > 1));
  }
}

// Where a unit is best for some weights its distance is 0 or less: minus its lead over the best other one, as one whole
// program in weights says.
RC_GTEST_PROP(CrossBandProperty, ANegativeDistanceIsTheLead, ()) {
  Chance chance = AnyChance();
  Problem problem = AnyValueProblem(chance);
  problem.Options.CrossBand = chance.Real(1.0, 2.0);
  const Results results = Evaluate(problem);
  for (int k = 0; k < static_cast<int>(results.Units.size()); ++k) {
    const std::optional<Double>& distance = results.Units[static_cast<std::size_t>(k)].Distance;
    if (!distance || *distance > 0.0) continue;
    RC_ASSERT(std::fabs(*ReferenceDistance(problem, k, LeastCostExactly) - *distance) <= kSame);
  }
}

}  // namespace
}  // namespace Tarnwise::Dea
