// Published results, small and with full data.
#include "Problems.h"
#include "dea/RatioScores.h"
#include "dea/ValueScores.h"

#include <algorithm>

namespace Tarnwise::Dea {
namespace {

// Of the Pyfrontier tutorial on assurance regions.
TEST(Published, PyfrontierAssuranceRegion) {
  Problem problem =
      ProblemOf({InputColumn("1", {1, 2, 4, 6}), InputColumn("2", {5, 2, 1, 1}), OutputColumn("output", {3, 3, 3, 3})});
  Session session;
  session.Basis = Basis::Unit;
  session.CostReference = 1;
  session.Judgments = {JudgmentOf(0, 1, 2)};
  problem.Session = session;
  const Results results = Evaluate(problem);
  ExpectAll({1, 1, 1, 1}, All(results, &UnitResult::Free), kSixDigits);
  ExpectAll({.857143, 1, .8, .571429}, All(results, &UnitResult::Max), kSixDigits);
}

// The example of `dea.dual` in the R package Benchmarking.
TEST(Published, BenchmarkingDual) {
  Problem problem = ProblemOf({InputColumn("1", {2, 1, 2, 3, 3, 4}), InputColumn("2", {5, 2, 2, 2, 1, 1}),
                               OutputColumn("output", {1, 1, 1, 1, 1, 1})});
  Session session;
  session.Basis = Basis::Unit;
  session.CostReference = 0;
  session.Judgments = {JudgmentOf(1, .5, 2.5)};
  problem.Session = session;
  const Results results = Evaluate(problem);
  ExpectAll({.5, 1, .833333, .714286, 1, 1}, All(results, &UnitResult::Free), kSixDigits);
  ExpectAll({.444444, 1, .833333, .714286, 1, .846154}, All(results, &UnitResult::Max), kSixDigits);
}

// Polish airports (Kadzinski, Labijak and Napieraj 2017): data and figures as in the tests of the MIT-licensed
// repository alabijak/robustDEA (CCRTestBase). Conditions that are no box: the builder of programs takes them as rows.
RatioData Airports() {
  const std::vector<std::vector<Double>> units{
      {10.5, 36, 129.4, 7, 9.5, 129.7}, {3.1, 19, 31.6, 7.9, 2.9, 31.3}, {3.6, 32, 57.4, 10.5, 2.4, 21.1},
      {1.5, 12, 18, 3, 1.5, 18.8},      {1.5, 10, 24, 4, 1.3, 16.2},     {0.6, 12, 24, 3.9, 0.3, 4.2},
      {1.0, 15, 42.9, 2.5, 2, 23.6},    {0.7, 10, 25.7, 1.9, 0.3, 4.2},  {0.3, 6, 3.4, 1.2, 0.3, 6.2},
      {0.6, 6, 11.3, 2.7, 0.3, 3.5},    {0.1, 10, 63.4, 3, 0.005, 0.61},
  };
  RatioData data;
  data.Units = static_cast<int>(units.size());
  data.Inputs = 4;
  data.Outputs = 2;
  for (const auto& unit : units) data.Values.insert(data.Values.end(), unit.begin(), unit.end());
  return data;
}

RatioRegion FreeRegion(const RatioData& data) {
  RatioRegion region;
  region.Inputs = FreeBox(data.Inputs, 0);
  region.Outputs = FreeBox(data.Outputs, 0);
  return region;
}

std::vector<Double> ScoresOf(const RatioData& data, const RatioRegion& region) {
  RatioScorer scorer(data, region, {});
  std::vector<Double> scores;
  for (int k = 0; k < data.Units; ++k) scores.push_back(*scorer.Score(k, {}).Score);
  EXPECT_LE(scorer.WorstViolation(), 1e-9);
  return scores;
}

TEST(Published, AirportsWithoutConditions) {
  const RatioData data = Airports();
  ExpectAll({1.0, 1.0, 0.591209, 1.0, 0.799801, 0.300036, 1.0, 0.270787, 1.0, 0.409183, 0.258475},
            ScoresOf(data, FreeRegion(data)), kSixDigits);
}

TEST(Published, AirportsSuper) {
  const RatioData data = Airports();
  RatioScorer scorer(data, FreeRegion(data), {});
  for (int k = 0; k < data.Units; ++k) scorer.Score(k, {});
  const std::vector<std::pair<int, Double>> expected{
      {0, 2.277949}, {1, 1.123783}, {3, 1.0399456}, {6, 2.0}, {8, 1.745932}};
  for (const auto& [unit, super] : expected) EXPECT_NEAR(super, *scorer.Super(unit, {}), kSixDigits) << unit;
}

// w1 >= 3 w3, w1 >= 5 w4, w2 >= 2 w3, w2 >= 5 w4 on the inputs, o1 >= 5 o2 on the outputs.
TEST(Published, AirportsWithGeneralConditions) {
  const RatioData data = Airports();
  RatioRegion region = FreeRegion(data);
  region.Rows = {
      {{{0, -1}, {2, 3}}}, {{{0, -1}, {3, 5}}}, {{{1, -1}, {2, 2}}}, {{{1, -1}, {3, 5}}}, {{{4, -1}, {5, 5}}}};
  ExpectAll({1, .962982, .554985, .922027, .779551, .282738, 1, .260742, .954653, .383013, .188988},
            ScoresOf(data, region), kSixDigits);
}

// Emergency physicians (Labijak-Kowalska et al. 2023), three inputs and one output: data and figures as in the tests of
// the same repository (VDEATestBase, VDEAExtremeDistanceTest). Their value functions are piecewise linear, so values
// are fed and not scores.
Double PiecewiseLinear(const std::vector<std::pair<Double, Double>>& points, Double x) {
  std::size_t k = 1;
  while (k + 1 < points.size() && x > points[k].first) ++k;
  const auto& [x0, y0] = points[k - 1];
  const auto& [x1, y1] = points[k];
  return y0 + (y1 - y0) * (x - x0) / (x1 - x0);
}

ValueData Physicians() {
  const std::vector<std::vector<Double>> units{
      {2.026, 2.76, 0.92, 1.0},     {1.959, 2.381, 0.774, 0.961}, {2.223, 2.333, 0.643, 0.905},
      {1.884, 1.823, 0.661, 0.952}, {1.511, 0.857, 0.487, 0.952}, {1.456, 1.33, 0.648, 0.978},
      {1.903, 1.877, 0.596, 0.956}, {1.704, 1.73, 0.678, 0.939},  {1.708, 1.927, 0.657, 0.968},
      {1.979, 1.508, 0.82, 0.922},  {1.652, 1.618, 0.592, 0.981}, {2.169, 1.863, 0.608, 0.961},
      {1.634, 1.538, 0.786, 0.979}, {1.745, 2.117, 0.738, 0.942}, {1.594, 1.548, 0.602, 0.957},
      {2.311, 1.538, 0.462, 0.974}, {1.962, 1.748, 0.557, 0.948}, {1.804, 1.59, 0.723, 0.977},
      {1.567, 1.487, 0.601, 0.937}, {1.435, 1.198, 0.568, 0.969},
  };
  const std::vector<std::vector<std::pair<Double, Double>>> functions{
      {{0.6, 1}, {0.85, 0.95}, {2, 0.05}, {2.5, 0}},
      {{0, 1}, {2, 0.75}, {3, 0}},
      {{0, 1}, {0.35, 0.25}, {0.7, 0.05}, {1, 0}},
      {{0.89, 0}, {0.95, 0.1}, {0.97, 0.2}, {1, 1}},
  };
  ValueData data;
  data.Units = static_cast<int>(units.size());
  data.Attributes = 4;
  for (const auto& unit : units) {
    for (std::size_t j = 0; j < 4; ++j) data.Goodness.push_back(PiecewiseLinear(functions[j], unit[j]));
  }
  return data;
}

TEST(Published, PhysiciansLeastDistance) {
  const ValueData data = Physicians();
  ValueRegion region;
  region.Boxes = {FreeBox(4, 0)};
  region.Drawn = FreeBox(4, 0);
  region.IsCost.assign(4, false);
  ValueScorer scorer(data, region);
  std::vector<Double> distances;
  for (int k = 0; k < data.Units; ++k) distances.push_back(std::max(0.0, *scorer.Distance(k, {})));
  ExpectAll({0, .128587, .099683, .092138, 0,       0, .070445, .094356, .076700, .077345,
             0, .075511, .009655, .118007, .051071, 0, .050257, .030690, .054800, 0},
            distances, kSixDigits);
}

}  // namespace
}  // namespace Tarnwise::Dea
