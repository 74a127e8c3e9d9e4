// From a CSV file by way of the wizard to results, and what the results' JSON holds when.
#include "program/SolveCommand.h"

#include "Samples.h"
#include "modelfiles/Json.h"
#include "play/Player.h"
#include "program/ImportCommand.h"
#include "program/JudgeCommand.h"
#include "project/ProjectFile.h"
#include "support/TemporaryFolder.h"
#include "view/Platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace Tarnwise {
namespace {

Json Sorted(const Json& object) {
  std::vector<String> keys;
  for (const auto& [key, value] : object.items()) keys.push_back(key);
  std::sort(keys.begin(), keys.end());
  return keys;
}

class SolveCommand : public testing::Test {
 protected:
  SolveCommand() : path(folder.File("hospitals.tarnwise")) {
    solve.Project = path;
    solve.Json = "-";
  }

  // The ranges are those that the sample's session was judged on.
  void ImportHospitals(const std::vector<String>& ranges) {
    ImportOptions import;
    import.From = kSamples + "hospitals.csv";
    import.To = path;
    import.Unit = "Hospital";
    import.Inputs = {"Doctors,Nurses"};
    import.Outputs = {"Outpatients,Inpatients"};
    import.Ranges = ranges;
    ASSERT_EQ(ImportProject(import, "now", out, err), 0) << err.str();
  }
  void JudgeBy(const String& script) {
    JudgeOptions judge;
    judge.Project = path;
    const auto show = [&](const WrapWizard& wrap) {
      mdTRNMain() = WizardData();
      std::istringstream lines(script);
      std::ostringstream transcript;
      const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
      return Player(*driver, lines, folder.Path(), "shots", transcript, err,
                    [&] { return wrap(HostLinked(driver->Screen())); })
          .Play();
    };
    ASSERT_EQ(JudgeProject(judge, "now", show, out, err), 0) << err.str();
  }
  void JudgeBySample(const String& session) {
    const std::vector<char> script = TemporaryFolder::Read(kSamples + session);
    JudgeBy({script.begin(), script.end()});
  }
  void Make(const String& project) { folder.Write("hospitals.tarnwise", project); }

  int Status() {
    out.str("");
    err.str("");
    return SolveProject(solve, {out, err});
  }
  Json Solved() {
    EXPECT_EQ(Status(), 0) << err.str();
    return Json::parse(out.str());
  }
  static Json Unit(const Json& results, const String& name) {
    for (const Json& unit : results.at("units")) {
      if (unit.at("name") == name) return unit;
    }
    ADD_FAILURE() << name << " is not there";
    return {};
  }
  static void ExpectNear(const Json& unit, const char* key, double expected) {
    ASSERT_TRUE(unit.at(key).is_number()) << unit;
    EXPECT_NEAR(unit.at(key).get<double>(), expected, 5.1e-7) << unit.at("name") << " " << key;
  }

  TemporaryFolder folder;
  String path;
  SolveOptions solve;
  std::ostringstream out;
  std::ostringstream err;
};

const std::vector<String> kSampleRanges = {"Doctors=55..19", "Nurses=306..131", "Outpatients=94..260",
                                           "Inpatients=50..147"};

struct Judged {
  const char* Unit;
  double Max;
  double Min;
  int Best;
  int Worst;
};

const Judged kDirect[] = {
    {"Hospital A", 1, 1, 1, 1},
    {"Hospital B", .853710, .809080, 3, 4},
    {"Hospital C", .720189, .680516, 9, 9},
    {"Hospital D", .823532, .783216, 5, 5},
    {"Hospital E", .724767, .714997, 8, 8},
    {"Hospital F", .552178, .515890, 12, 12},
    {"Hospital G", .789422, .757141, 6, 6},
    {"Hospital H", .701960, .679845, 10, 10},
    {"Hospital I", .851524, .827362, 2, 4},
    {"Hospital J", .644352, .607477, 11, 11},
    {"Hospital K", .767336, .739441, 7, 7},
    {"Hospital L", .855187, .830657, 2, 3},
};

TEST_F(SolveCommand, ACsvFileAndTheSampleSessionGiveThePublishedIntervals) {
  ImportHospitals(kSampleRanges);
  JudgeBySample("hospitals.session");
  const Json results = Solved();
  ASSERT_EQ(results.at("units").size(), 12U);
  for (const Judged& expected : kDirect) {
    const Json unit = Unit(results, expected.Unit);
    ExpectNear(unit, "max", expected.Max);
    ExpectNear(unit, "min", expected.Min);
    EXPECT_EQ(unit.at("ranks"), Json({expected.Best, expected.Worst})) << expected.Unit;
  }
  ExpectNear(Unit(results, "Hospital A"), "super", 1.203724);
  const Json bounds = Unit(results, "Hospital B").at("heldBackBy");
  ASSERT_EQ(bounds.size(), 2U);
  EXPECT_EQ(bounds[0].at("attribute"), "Inpatients");
  EXPECT_EQ(bounds[0].at("bound"), "low");
  EXPECT_EQ(bounds[0].at("ratio"), 2.0);
  EXPECT_NEAR(bounds[0].at("gain").get<double>(), 0.146, 5e-4);
  EXPECT_EQ(bounds[1].at("attribute"), "Doctors");
  EXPECT_EQ(bounds[1].at("ratio"), 3.0);
  EXPECT_NEAR(bounds[1].at("gain").get<double>(), 0.053, 5e-4);
  const Json doctors = results.at("equivalences").at(0);
  EXPECT_EQ(doctors.at("attribute"), "Doctors");
  EXPECT_EQ(doctors.at("of"), "Nurses");
  EXPECT_NEAR(doctors.at("low").get<double>(), 14.583333, 5e-7);
  EXPECT_NEAR(doctors.at("high").get<double>(), 19.881944, 5e-7);
}

TEST_F(SolveCommand, WithoutJudgmentsTheTextbooksScores) {
  ImportHospitals({});
  const Json results = Solved();
  const double scores[] = {1, 1, .882708, 1, .763499, .834771, .901961, .796334, .960392, .870647, .955098, .958204};
  for (std::size_t k = 0; k < 12; ++k) ExpectNear(results.at("units").at(k), "free", scores[k]);
  ExpectNear(Unit(results, "Hospital A"), "super", 1.408467);
  ExpectNear(Unit(results, "Hospital B"), "super", 1.184211);
  EXPECT_TRUE(Unit(results, "Hospital C").at("super").is_null());
  const Json peers = Unit(results, "Hospital C").at("peers");
  EXPECT_EQ(Sorted(peers), Json({"Hospital B", "Hospital D"}));
  EXPECT_NEAR(peers.at("Hospital B").get<double>(), 0.9, 1e-6);
  EXPECT_NEAR(peers.at("Hospital D").get<double>(), 0.138889, 1e-6);
}

// The same numbers by the model file's own judgments: 4.09 nurses' swings for a doctor's, and the curves.
TEST_F(SolveCommand, ValueFormOfTheSampleModelGivesThePublishedDistances) {
  ImportOptions import;
  import.From = kSamples + "hospitals.json";
  import.To = path;
  ASSERT_EQ(ImportProject(import, "now", out, err), 0) << err.str();
  JudgeBySample("hospitals.session");
  solve.Wishes.Form = "value";
  const Json results = Solved();
  const Json b = Unit(results, "Hospital B");
  ExpectNear(b, "distance", .028369);
  ExpectNear(b, "regret", .058293);
  EXPECT_NEAR(b.at("value").at(0).get<double>(), .623255, 5.1e-7);
  EXPECT_NEAR(b.at("value").at(1).get<double>(), .695425, 5.1e-7);
  EXPECT_EQ(b.at("ranks"), Json({2, 2}));
  ExpectNear(Unit(results, "Hospital A"), "distance", -.058293);
  ExpectNear(Unit(results, "Hospital J"), "distance", .254545);
  EXPECT_EQ(Unit(results, "Hospital G").at("ranks"), Json({6, 8}));
}

TEST_F(SolveCommand, TradeOffsOfTheSampleModelGiveThePublishedIntervals) {
  ImportOptions import;
  import.From = kSamples + "hospitals.json";
  import.To = path;
  ASSERT_EQ(ImportProject(import, "now", out, err), 0) << err.str();
  JudgeBySample("hospitals-tradeoffs.session");
  const Json results = Solved();
  ExpectNear(Unit(results, "Hospital B"), "max", .997042);
  ExpectNear(Unit(results, "Hospital B"), "min", .987766);
  ExpectNear(Unit(results, "Hospital F"), "min", .649338);
  ExpectNear(Unit(results, "Hospital A"), "super", 1.012386);
  EXPECT_EQ(Unit(results, "Hospital J").at("ranks"), Json({10, 11}));
}

// Which keys there are.

class ResultsKeys : public SolveCommand {
 protected:
  void SetUp() override {
    ImportHospitals(kSampleRanges);
    JudgeBySample("hospitals.session");
  }
  Json KeysOfAUnit() { return Sorted(Solved().at("units").at(0)); }
};

TEST_F(ResultsKeys, AtTheTopAlwaysTheSame) {
  const Json results = Solved();
  EXPECT_EQ(Sorted(results), Json({"departures", "equivalences", "form", "leftOut", "notes", "orientation", "returns",
                                   "session", "units", "worstViolation"}));
  EXPECT_EQ(results.at("form"), "ratio");
  EXPECT_EQ(results.at("returns"), "crs");
  EXPECT_EQ(results.at("orientation"), "in");
  EXPECT_EQ(results.at("session"), 0);
}

TEST_F(ResultsKeys, WithConstantReturnsAndASession) {
  EXPECT_EQ(KeysOfAUnit(), Json({"free", "heldBackBy", "max", "min", "name", "peers", "prices", "ranks", "ranksSeen",
                                 "shares", "super"}));
}

TEST_F(ResultsKeys, WithConstantReturnsAndNoSession) {
  solve.Wishes.Session = "none";
  const Json results = Solved();
  EXPECT_TRUE(results.at("session").is_null());
  EXPECT_EQ(results.at("equivalences"), Json::array());
  EXPECT_EQ(Sorted(results.at("units").at(0)), Json({"free", "max", "name", "peers", "prices", "shares", "super"}));
  for (const Json& unit : results.at("units")) EXPECT_EQ(unit.at("free"), unit.at("max"));
}

TEST_F(ResultsKeys, WithOtherReturns) {
  for (const char* const returns : {"vrs", "nirs", "ndrs"}) {
    solve.Wishes.Returns = returns;
    EXPECT_EQ(KeysOfAUnit(), Json({"free", "heldBackBy", "max", "name", "peers", "prices", "shares"})) << returns;
  }
}

TEST_F(ResultsKeys, OfTheValueForm) {
  solve.Wishes.Form = "value";
  EXPECT_EQ(KeysOfAUnit(), Json({"distance", "name", "ranks", "ranksSeen", "regret", "value"}));
  solve.Wishes.Session = "none";
  EXPECT_EQ(KeysOfAUnit(), Json({"distance", "name", "regret", "value"}));
}

TEST_F(ResultsKeys, TheValueFormIgnoresReturnsAndOrientation) {
  solve.Wishes.Form = "value";
  Json plain = Solved();
  solve.Wishes.Returns = "vrs";
  solve.Wishes.Orientation = "out";
  Json other = Solved();
  EXPECT_EQ(plain.at("units"), other.at("units"));
}

TEST_F(ResultsKeys, OrientationOutGivesTheInverse) {
  const Json in = Solved();
  solve.Wishes.Orientation = "out";
  const Json outward = Solved();
  for (std::size_t k = 0; k < 12; ++k) {
    const Json& a = in.at("units").at(k);
    const Json& b = outward.at("units").at(k);
    for (const char* const key : {"free", "max", "min", "super"}) {
      ASSERT_EQ(a.at(key).is_null(), b.at(key).is_null());
      if (a.at(key).is_null()) continue;
      EXPECT_NEAR(b.at(key).get<double>(), 1.0 / a.at(key).get<double>(), 1e-9) << key;
    }
    EXPECT_LE(b.at("free").get<double>(), b.at("max").get<double>());
    EXPECT_LE(b.at("max").get<double>(), b.at("min").get<double>());
    for (const Json& bound : b.at("heldBackBy")) EXPECT_GT(bound.at("gain").get<double>(), 1e-6);
  }
}

TEST_F(ResultsKeys, PricesMakeTheInputsOneAndTheOutputsTheScore) {
  const Json results = Solved();
  const double data[12][4] = {{20, 151, 100, 90},  {19, 131, 150, 50},  {25, 160, 160, 55},  {27, 168, 180, 72},
                              {22, 158, 94, 66},   {55, 255, 230, 90},  {33, 235, 220, 88},  {31, 206, 152, 80},
                              {30, 244, 190, 100}, {50, 268, 250, 100}, {53, 306, 260, 147}, {38, 284, 250, 120}};
  for (std::size_t k = 0; k < 12; ++k) {
    const Json& unit = results.at("units").at(k);
    const auto price = [&unit](const char* name) { return unit.at("prices").at(name).get<double>(); };
    const auto share = [&unit](const char* name) { return unit.at("shares").at(name).get<double>(); };
    const double doctors = price("Doctors") * data[k][0];
    const double outpatients = price("Outpatients") * data[k][2];
    EXPECT_NEAR(doctors + price("Nurses") * data[k][1], 1.0, 1e-12);
    EXPECT_NEAR(outpatients + price("Inpatients") * data[k][3], unit.at("max").get<double>(), 1e-9);
    EXPECT_NEAR(share("Doctors"), doctors, 1e-12);
    EXPECT_NEAR(share("Doctors") + share("Nurses"), 1.0, 1e-12);
    EXPECT_NEAR(share("Outpatients") + share("Inpatients"), 1.0, 1e-12);
    EXPECT_GE(price("Doctors") / price("Nurses"), 14.583333 * (1 - 1e-7));
    EXPECT_LE(price("Doctors") / price("Nurses"), 19.881945 * (1 + 1e-7));
  }
}

TEST_F(ResultsKeys, NumbersHaveSeventeenSignificantDigits) {
  const double max = Unit(Solved(), "Hospital B").at("max").get<double>();
  const std::size_t at = out.str().find("\"max\": ", out.str().find("Hospital B")) + 7;
  String number = out.str().substr(at, out.str().find(',', at) - at);
  EXPECT_EQ(std::stod(number), max);
  number = number.substr(0, number.find('e'));
  EXPECT_EQ(std::count_if(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; }) -
                (number.starts_with("0.") ? 1 : 0),
            17)
      << number;
}

TEST_F(ResultsKeys, WidenedIntervalsGiveHigherScores) {
  const double judged = Unit(Solved(), "Hospital B").at("max").get<double>();
  solve.Wishes.Widen = "2";
  EXPECT_GT(Unit(Solved(), "Hospital B").at("max").get<double>(), judged);
}

}  // namespace
}  // namespace Tarnwise
