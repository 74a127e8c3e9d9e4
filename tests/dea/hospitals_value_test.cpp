// The hospitals in the value form. The numbers were computed by another solver.
#include "Problems.h"
#include "dea/Values.h"

#include <algorithm>

namespace Tarnwise::Dea {
namespace {

struct Row {
  char Name;
  Double Least, Most, Distance, Super, Regret;  // Distance: 0 where it is a lead
  RankRange Ranks, Seen;
};

void ExpectRows(const std::vector<Row>& rows, const Results& results) {
  ASSERT_EQ(rows.size(), results.Units.size());
  for (std::size_t k = 0; k < rows.size(); ++k) {
    const Row& row = rows[k];
    const UnitResult& unit = results.Units[k];
    SCOPED_TRACE(row.Name);
    EXPECT_NEAR(row.Least, unit.Value->Low, kSixDigits);
    EXPECT_NEAR(row.Most, unit.Value->High, kSixDigits);
    EXPECT_NEAR(row.Distance, std::max(0.0, *unit.Distance), kSixDigits);
    if (row.Distance == 0.0) {
      EXPECT_NEAR(row.Super, *unit.Distance, kSixDigits);
    }
    EXPECT_NEAR(row.Regret, *unit.Regret, kSixDigits);
    EXPECT_EQ(row.Ranks.Best, unit.Ranks->Best);
    EXPECT_EQ(row.Ranks.Worst, unit.Ranks->Worst);
    EXPECT_EQ(row.Seen.Best, unit.RanksSeen->Best);
    EXPECT_EQ(row.Seen.Worst, unit.RanksSeen->Worst);
  }
  EXPECT_LE(results.WorstViolation, 1e-9);
}

TEST(HospitalsValue, Directly) {
  ExpectRows(
      {
          {'A', .681547, .723794, 0, -.058293, 0, {1, 1}, {1, 1}},
          {'B', .623255, .695425, .028369, no, .058293, {2, 2}, {2, 2}},
          {'C', .571278, .627364, .095485, no, .110269, {6, 8}, {6, 8}},
          {'D', .611627, .648401, .063527, no, .080275, {3, 4}, {3, 4}},
          {'E', .585041, .642830, .080964, no, .096506, {4, 6}, {4, 6}},
          {'F', .303152, .344663, .336884, no, .420642, {12, 12}, {12, 12}},
          {'G', .576205, .589103, .105342, no, .134690, {6, 8}, {7, 8}},
          {'H', .551828, .577485, .129720, no, .146309, {8, 9}, {8, 9}},
          {'I', .615324, .628165, .066223, no, .095629, {3, 5}, {3, 5}},
          {'J', .390671, .427002, .254545, no, .333123, {11, 11}, {11, 11}},
          {'K', .414581, .488169, .193378, no, .309212, {10, 10}, {10, 10}},
          {'L', .572460, .592836, .088712, no, .151333, {5, 9}, {5, 9}},
      },
      Evaluate(HospitalsJudged(DirectSession(), Form::Value)));
}

// A and B differ by 0.000047. I is always ahead of G by more than it looks: one of C and L is behind both of them
// wherever the other one is ahead.
TEST(HospitalsValue, ByTradeOffs) {
  ExpectRows(
      {
          {'A', .617391, .656896, .000047, no, .002824, {2, 2}, {2, 2}},
          {'B', .617438, .659720, 0, -.002824, 0, {1, 1}, {1, 1}},
          {'C', .572015, .603660, .045423, no, .056060, {4, 7}, {4, 7}},
          {'D', .616783, .636407, .000655, no, .023313, {3, 3}, {3, 3}},
          {'E', .530737, .576683, .083037, no, .086701, {8, 9}, {8, 9}},
          {'F', .371211, .411267, .206171, no, .288509, {12, 12}, {12, 12}},
          {'G', .579882, .586858, .037556, no, .072862, {5, 7}, {6, 7}},
          {'H', .531484, .551192, .085954, no, .108528, {8, 9}, {8, 9}},
          {'I', .586516, .601537, .030922, no, .058183, {4, 6}, {4, 5}},
          {'J', .442879, .475061, .142377, no, .216841, {11, 11}, {11, 11}},
          {'K', .465727, .513221, .104217, no, .193993, {10, 10}, {10, 10}},
          {'L', .578038, .587402, .030037, no, .081682, {4, 7}, {4, 7}},
      },
      Evaluate(HospitalsJudged(TradedSession(), Form::Value)));
}

TEST(HospitalsValue, WithoutJudgments) {
  Problem problem = Hospitals();
  problem.Options.Form = Form::Value;
  const Results results = Evaluate(problem);
  ExpectAll({-.134384, -.123917, .035902, -.031952, .049467, .025827, -.008200, .078008, -.011188, -.028027, -.209422,
             -.072738},
            All(results, &UnitResult::Distance), kSixDigits);
  for (const UnitResult& unit : results.Units) {
    EXPECT_TRUE(unit.Value && unit.Regret);
    EXPECT_FALSE(unit.Ranks || unit.RanksSeen || unit.Max || unit.Free || unit.Min || unit.Super);
    EXPECT_TRUE(unit.Prices.empty() && unit.Shares.empty() && unit.Peers.empty() && unit.HeldBackBy.empty());
  }
}

// What is 0.13 ahead without judgments is 0.13 ahead at its best weights, whichever they are: no weights, no ranks.
TEST(HospitalsValue, ValuesAreThoseOfTheCurves) {
  const Problem hospitals = Hospitals();
  const std::vector<std::pair<std::size_t, std::vector<Double>>> expected{
      {0, {.098765, .155, .071339, .504269}}, {1, {.078765, .055, .406000, .109178}},
      {2, {.200617, .2, .467852, .162307}},   {5, {.876543, .675, .832296, .504269}},
      {11, {.479877, .82, .918861, .769159}},
  };
  for (const auto& [unit, values] : expected) {
    for (std::size_t j = 0; j < values.size(); ++j) {
      const Column& column = hospitals.Columns[j];
      EXPECT_NEAR(values[j], ValueFunction(column.Range).At(column.Values[unit]), kSixDigits) << unit << ' ' << j;
    }
  }
  const std::vector<Double> spans{.797778, .875, .931485, .869403};
  for (std::size_t j = 0; j < spans.size(); ++j) {
    EXPECT_NEAR(spans[j], SpanOf(hospitals.Columns[j].Range).Value, kSixDigits) << j;
  }
}

}  // namespace
}  // namespace Tarnwise::Dea
