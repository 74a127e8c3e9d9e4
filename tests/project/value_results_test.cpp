// The value form as it is told: table, JSON and CSV of the hospitals. The numbers were computed by another solver.
#include "HospitalsJudged.h"

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "project/ResultsTable.h"
#include "project/ResultsText.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace Tarnwise {
namespace {

using Json = nlohmann::ordered_json;

constexpr double kSixDigits = 6e-7;

Wishes ValueOf(std::optional<std::size_t> session) {
  Wishes wishes;
  wishes.Form = ScoreForm::Value;
  wishes.Session = session;
  wishes.NoSession = !session;
  return wishes;
}

Evaluation Evaluated(const Project& project, const Wishes& wishes) {
  return Evaluate(project, AskedOf(project, wishes), {});
}

Json JsonOf(const Wishes& wishes) { return Json::parse(ResultsJson(Evaluated(HospitalsJudged(), wishes))); }

std::vector<String> KeysOf(const Json& object) {
  std::vector<String> keys;
  for (const auto& [key, value] : object.items()) keys.push_back(key);
  return keys;
}

struct Row {
  const char* Name;
  double Low, High, Distance, Regret;  // Distance with its sign: a lead is negative
  int Best, Worst, SeenBest, SeenWorst;
};

void ExpectUnits(const std::vector<Row>& rows, const Json& results) {
  ASSERT_EQ(rows.size(), results["units"].size());
  for (std::size_t k = 0; k < rows.size(); ++k) {
    const Row& row = rows[k];
    const Json& unit = results["units"][k];
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(row.Name, unit["name"]);
    EXPECT_NEAR(row.Low, unit["value"][0].get<double>(), kSixDigits);
    EXPECT_NEAR(row.High, unit["value"][1].get<double>(), kSixDigits);
    EXPECT_NEAR(row.Distance, unit["distance"].get<double>(), kSixDigits);
    EXPECT_NEAR(row.Regret, unit["regret"].get<double>(), kSixDigits);
    EXPECT_EQ(Json({row.Best, row.Worst}), unit["ranks"]);
    EXPECT_EQ(Json({row.SeenBest, row.SeenWorst}), unit["ranksSeen"]);
  }
}

TEST(ValueResults, JsonOfDirectJudgments) {
  ExpectUnits(
      {
          {"A", .681547, .723794, -.058293, 0, 1, 1, 1, 1},
          {"B", .623255, .695425, .028369, .058293, 2, 2, 2, 2},
          {"C", .571278, .627364, .095485, .110269, 6, 8, 6, 8},
          {"D", .611627, .648401, .063527, .080275, 3, 4, 3, 4},
          {"E", .585041, .642830, .080964, .096506, 4, 6, 4, 6},
          {"F", .303152, .344663, .336884, .420642, 12, 12, 12, 12},
          {"G", .576205, .589103, .105342, .134690, 6, 8, 7, 8},
          {"H", .551828, .577485, .129720, .146309, 8, 9, 8, 9},
          {"I", .615324, .628165, .066223, .095629, 3, 5, 3, 5},
          {"J", .390671, .427002, .254545, .333123, 11, 11, 11, 11},
          {"K", .414581, .488169, .193378, .309212, 10, 10, 10, 10},
          {"L", .572460, .592836, .088712, .151333, 5, 9, 5, 9},
      },
      JsonOf(ValueOf(0)));
}

TEST(ValueResults, JsonOfTradeOffs) {
  ExpectUnits(
      {
          {"A", .617391, .656896, .000047, .002824, 2, 2, 2, 2},
          {"B", .617438, .659720, -.002824, 0, 1, 1, 1, 1},
          {"C", .572015, .603660, .045423, .056060, 4, 7, 4, 7},
          {"D", .616783, .636407, .000655, .023313, 3, 3, 3, 3},
          {"E", .530737, .576683, .083037, .086701, 8, 9, 8, 9},
          {"F", .371211, .411267, .206171, .288509, 12, 12, 12, 12},
          {"G", .579882, .586858, .037556, .072862, 5, 7, 6, 7},
          {"H", .531484, .551192, .085954, .108528, 8, 9, 8, 9},
          {"I", .586516, .601537, .030922, .058183, 4, 6, 4, 5},
          {"J", .442879, .475061, .142377, .216841, 11, 11, 11, 11},
          {"K", .465727, .513221, .104217, .193993, 10, 10, 10, 10},
          {"L", .578038, .587402, .030037, .081682, 4, 7, 4, 7},
      },
      JsonOf(ValueOf(1)));
}

TEST(ValueResults, JsonWithoutJudgmentsHasNoRanks) {
  const Json results = JsonOf(ValueOf(std::nullopt));
  const std::vector<double> expected{-.134384, -.123917, .035902,  -.031952, .049467,  .025827,
                                     -.008200, .078008,  -.011188, -.028027, -.209422, -.072738};
  ASSERT_EQ(expected.size(), results["units"].size());
  for (std::size_t k = 0; k < expected.size(); ++k) {
    EXPECT_NEAR(expected[k], results["units"][k]["distance"].get<double>(), kSixDigits) << k;
    EXPECT_EQ((std::vector<String>{"name", "value", "distance", "regret"}), KeysOf(results["units"][k]));
  }
  EXPECT_TRUE(results["session"].is_null());
  EXPECT_EQ(Json::array(), results["equivalences"]);
}

// The four head keys are always there; nothing of the ratio form is.
TEST(ValueResults, JsonHoldsNothingOfTheRatioForm) {
  const Json results = JsonOf(ValueOf(0));
  EXPECT_EQ((std::vector<String>{"form", "returns", "orientation", "session", "units", "leftOut", "equivalences",
                                 "departures", "worstViolation", "notes"}),
            KeysOf(results));
  EXPECT_EQ("value", results["form"]);
  EXPECT_EQ((std::vector<String>{"name", "value", "distance", "regret", "ranks", "ranksSeen"}),
            KeysOf(results["units"][0]));
  EXPECT_EQ(2U, results["equivalences"].size());
  EXPECT_LE(results["worstViolation"].get<double>(), 1e-9);
}

TEST(ValueResults, JsonOfTheRatioFormHoldsNothingOfTheValueForm) {
  Wishes wishes;
  wishes.Session = 0;
  const Json results = JsonOf(wishes);
  for (const char* const key : {"value", "distance", "regret"}) {
    EXPECT_FALSE(results["units"][0].contains(key)) << key;
  }
}

TEST(ValueResults, ReturnsAndOrientationDoNotMatter) {
  Wishes wishes = ValueOf(0);
  const Json plain = JsonOf(wishes);
  wishes.Returns = ScoreReturns::Vrs;
  wishes.Orientation = ScoreOrientation::Out;
  EXPECT_EQ(plain["units"], JsonOf(wishes)["units"]);
}

TEST(ValueResults, ASingleUnitHasNoDistanceButNullAndIsFirst) {
  Project project = HospitalsJudged();
  project.Units.resize(1);
  for (DataColumn& column : project.Columns) column.Values.resize(1);
  const Json unit = Json::parse(ResultsJson(Evaluated(project, ValueOf(0))))["units"][0];
  EXPECT_TRUE(unit["distance"].is_null());
  EXPECT_EQ(0.0, unit["regret"].get<double>());
  EXPECT_EQ(Json({1, 1}), unit["ranks"]);
}

// Zero and negative scores have values too; a missing one leaves its unit out.
TEST(ValueResults, NegativeScoresAreTakenAndMissingOnesListed) {
  Project project = HospitalsJudged();
  project.Columns[1].Values[2] = -3.17;
  project.Columns[0].Values[7] = std::nullopt;
  const Json results = Json::parse(ResultsJson(Evaluated(project, ValueOf(0))));
  EXPECT_EQ(11U, results["units"].size());
  EXPECT_EQ("H", results["leftOut"][0]["name"]);
  EXPECT_EQ("no value in column Doctors", results["leftOut"][0]["reason"]);
  EXPECT_NE(String::npos, results["notes"].dump().find("Column Nurses: scores beyond the values 0 to 1 count as the "
                                                       "end: C."));
}

TEST(ValueResults, CsvHasItsOwnColumnsOnly) {
  std::istringstream csv(ResultsCsv(Evaluated(HospitalsJudged(), ValueOf(0))));
  String header;
  String first;
  std::getline(csv, header);
  std::getline(csv, first);
  if (!header.empty() && header.back() == '\r') header.pop_back();
  EXPECT_EQ("unit,valueLow,valueHigh,distance,regret,rankBest,rankWorst,rankSeenBest,rankSeenWorst,leftOut", header);
  EXPECT_EQ(0U, first.find("A,0.6815"));
}

TEST(ValueResults, TableShowsWhatIsJustBehindAsBehind) {
  const String table = ResultsTable(HospitalsJudged(), Evaluated(HospitalsJudged(), ValueOf(1)), false);
  EXPECT_NE(String::npos, table.find("unit   value           distance   loses at most   ranks\n")) << table;
  EXPECT_NE(String::npos, table.find("A      0.617 - 0.657   0.00005    0.003           2\n")) << table;
  EXPECT_NE(String::npos, table.find("B      0.617 - 0.660   -0.003     0.000           1\n")) << table;
  EXPECT_NE(String::npos, table.find("1 of 12 units are best at some of the weights.")) << table;
}

TEST(ValueResults, TableTellsTheCrossRatioInOwnUnits) {
  const Project project = HospitalsJudged();
  const auto table = [&](const Wishes& wishes) { return ResultsTable(project, Evaluated(project, wishes), false); };
  EXPECT_NE(String::npos, table(ValueOf(0))
                              .find("Cross ratio: Nurses from 306 to 131 is worth 1.15 times "
                                    "Outpatients from 94 to 260.\n"));
  EXPECT_NE(String::npos, table(ValueOf(1))
                              .find("Cross ratio: Nurses over its whole curve is worth 1.0983 times "
                                    "Outpatients over its whole curve.\n"));
  Wishes banded = ValueOf(0);
  banded.CrossBand = 1.25;
  EXPECT_NE(String::npos, table(banded).find("is worth 0.92000 to 1.4375 times"));
  Wishes ratio;
  ratio.Session = 0;
  EXPECT_EQ(String::npos, table(ratio).find("Cross ratio")) << "the ratio form uses none";
}

TEST(ValueResults, TableSaysWhereNoCrossRatioWasJudged) {
  Project project = HospitalsJudged();
  project.Sessions[0].Cross->Judged = false;
  const String table = ResultsTable(project, Evaluated(project, ValueOf(0)), false);
  EXPECT_NE(String::npos, table.find("Cross ratio not judged: inputs and outputs count in any relation.\n")) << table;
}

}  // namespace
}  // namespace Tarnwise
