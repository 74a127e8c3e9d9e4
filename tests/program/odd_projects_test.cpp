// Projects as odd as files can be, through `tarnwise solve --json -`: a result, or a refusal that names what is wrong.
#include "modelfiles/Json.h"
#include "program/SolveCommand.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

const char* const kUnits = R"(["North", "South", "East"])";
const char* const kStaff = R"({"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [20, 19, 25]})";
const char* const kRooms = R"({"name": "Rooms", "role": "input", "worst": 9, "best": 1, "values": [3, 4, 5]})";
const char* const kCases = R"({"name": "Cases", "role": "output", "worst": 8, "best": 28, "values": [10, 15, 16]})";

struct Solved {
  int Status = 0;
  String Out;
  String Errors;
  Json Results() const { return Json::parse(Out); }
};

Solved Solve(const String& units, const std::vector<String>& columns, const String& session = {},
             const String& form = "ratio", const String& orientation = "in") {
  String text = R"({"tarnwise": 1, "units": )" + units + R"(, "columns": [)";
  for (const String& column : columns) text += (&column == columns.data() ? "" : ", ") + column;
  text += "]" + (session.empty() ? "" : R"(, "sessions": [)" + session + "]") + "}";
  const TemporaryFolder folder;
  SolveOptions options;
  options.Project = folder.Write("odd.tarnwise", text);
  options.Json = "-";
  options.Wishes.Form = form;
  options.Wishes.Orientation = orientation;
  std::ostringstream out;
  std::ostringstream err;
  const int status = SolveProject(options, {out, err});
  return {status, out.str(), err.str()};
}

void ExpectRefused(const Solved& solved, const String& reason) {
  EXPECT_EQ(solved.Status, 2);
  EXPECT_EQ(solved.Out, "");
  EXPECT_NE(solved.Errors.find(reason), String::npos) << solved.Errors;
}

String SessionWith(const String& attributes) {
  return R"({"basis": "range", "costReference": "Rooms", "attributes": [)" + attributes + "]}";
}

bool HasNote(const Json& results, const String& part) {
  for (const Json& note : results.at("notes")) {
    if (note.get<String>().find(part) != String::npos) return true;
  }
  return false;
}

TEST(OddProjects, OneUnitIsEfficient) {
  const Json unit = Solve(R"(["Alone"])", {R"({"name": "X", "role": "input", "worst": 9, "best": 1, "values": [3]})",
                                           R"({"name": "Y", "role": "output", "worst": 1, "best": 9, "values": [5]})"})
                        .Results()
                        .at("units")
                        .at(0);
  EXPECT_EQ(unit.at("max"), 1.0);
  EXPECT_TRUE(unit.at("super").is_null());
}

TEST(OddProjects, OneColumnIsComparedWithAnInputOfOne) {
  const Json units = Solve(kUnits, {kCases}).Results().at("units");
  EXPECT_NEAR(units.at(0).at("max").get<double>(), 10.0 / 16.0, 1e-12);
  EXPECT_EQ(units.at(0).at("prices").size(), 1U);
  const Json inputs = Solve(kUnits, {kStaff}).Results().at("units");
  EXPECT_NEAR(inputs.at(0).at("max").get<double>(), 19.0 / 20.0, 1e-12);
}

TEST(OddProjects, WithoutOutputsAnywhereTheScoreIsZero) {
  const char* const zeros = R"({"name": "Cases", "role": "output", "worst": 8, "best": 28, "values": [0, 0, 0]})";
  const Json in = Solve(kUnits, {kStaff, zeros}).Results().at("units");
  EXPECT_EQ(in.at(1).at("max"), 0.0);
  const Json outward = Solve(kUnits, {kStaff, zeros}, {}, "ratio", "out").Results().at("units");
  EXPECT_TRUE(outward.at(1).at("max").is_null());
  EXPECT_EQ(outward.at(1).at("peers"), Json::object());
}

TEST(OddProjects, WithoutAnyInputsNoUnitIsLeft) {
  const char* const zeros = R"({"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [0, 0, 0]})";
  ExpectRefused(Solve(kUnits, {zeros, kCases}), "No unit is left to evaluate. Unit North: all inputs are zero.");
}

TEST(OddProjects, AUnitWithoutInputsIsLeftOutAndListed) {
  const char* const zero = R"({"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [20, 0, 25]})";
  const Json results = Solve(kUnits, {zero, kCases}).Results();
  EXPECT_EQ(results.at("leftOut"), Json::parse(R"([{"name": "South", "reason": "all inputs are zero"}])"));
  EXPECT_EQ(results.at("units").size(), 2U);
}

TEST(OddProjects, ConstantColumnsAreOrdinaryData) {
  const char* const constant = R"({"name": "Rooms", "role": "input", "worst": 9, "best": 1, "values": [3, 3, 3]})";
  const Json units = Solve(kUnits, {constant, kCases}).Results().at("units");
  EXPECT_NEAR(units.at(0).at("max").get<double>(), 10.0 / 16.0, 1e-12);
}

TEST(OddProjects, AMissingValueLeavesTheUnitOut) {
  const char* const missing =
      R"({"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [20, null, 25]})";
  for (const char* const form : {"ratio", "value"}) {
    const Json results = Solve(kUnits, {missing, kCases}, {}, form).Results();
    ASSERT_EQ(results.at("leftOut").size(), 1U);
    EXPECT_EQ(results.at("leftOut").at(0).at("name"), "South");
  }
}

TEST(OddProjects, ANegativeNumberIsForTheValueFormOnly) {
  const char* const negative = R"({"name": "Staff", "role": "input", "worst": 60, "best": -5, "values": [20, -3, 25]})";
  const Solved ratio = Solve(kUnits, {negative, kCases});
  ExpectRefused(ratio, "Staff");
  ExpectRefused(ratio, "South");
  EXPECT_EQ(Solve(kUnits, {negative, kCases}, {}, "value").Status, 0);
}

TEST(OddProjects, NamesThatStandTwiceAreRefused) {
  ExpectRefused(Solve(R"(["North", "North", "East"])", {kStaff, kCases}), "\"North\" is the name of unit 0 already");
  ExpectRefused(Solve(kUnits, {kStaff, kStaff}), "\"Staff\" is the name of column 0 already");
}

TEST(OddProjects, ThirtyOneColumnsAreSolvedAndThirtyTwoRefused) {
  std::vector<String> columns{kStaff};
  for (int k = 1; k < 31; ++k) {
    columns.push_back(R"({"name": "Y)" + std::to_string(k) +
                      R"(", "role": "output", "worst": 0, "best": 99, "values": [)" + std::to_string(k) + ", 17, 31]}");
  }
  EXPECT_EQ(Solve(kUnits, columns).Status, 0);
  columns.emplace_back(kRooms);
  ExpectRefused(Solve(kUnits, columns), "32");
}

TEST(OddProjects, AReferenceWithoutJudgmentsBoundsNothing) {
  const Json results = Solve(kUnits, {kStaff, kRooms, kCases}, SessionWith("")).Results();
  EXPECT_EQ(results.at("equivalences"), Json::array());
  EXPECT_TRUE(HasNote(results, "column Staff is not judged"));
  for (const Json& unit : results.at("units")) EXPECT_EQ(unit.at("free"), unit.at("max"));
}

TEST(OddProjects, AReversedIntervalIsRefused) {
  ExpectRefused(Solve(kUnits, {kStaff, kRooms, kCases}, SessionWith(R"({"name": "Staff", "low": 3, "high": 2})")),
                "Staff");
}

TEST(OddProjects, ANegativeBoundIsRefused) {
  ExpectRefused(Solve(kUnits, {kStaff, kRooms, kCases}, SessionWith(R"({"name": "Staff", "low": -3, "high": 2})")),
                "Staff");
}

TEST(OddProjects, AZeroBoundIsNoneAndListed) {
  const Json results =
      Solve(kUnits, {kStaff, kRooms, kCases}, SessionWith(R"({"name": "Staff", "low": 0, "high": 2})")).Results();
  EXPECT_TRUE(HasNote(results, "The low bound is zero and counts as none"));
  EXPECT_EQ(results.at("equivalences").at(0).at("low"), 0.0);
  EXPECT_NEAR(results.at("equivalences").at(0).at("high").get<double>(), 2.0 * 8.0 / 45.0, 1e-12);
  const Json high =
      Solve(kUnits, {kStaff, kRooms, kCases}, SessionWith(R"({"name": "Staff", "low": 2, "high": 0})")).Results();
  EXPECT_TRUE(high.at("equivalences").at(0).at("high").is_null());
}

TEST(OddProjects, JudgmentsOfColumnsThatAreGoneArePassedOverWithANote) {
  const Json results =
      Solve(kUnits, {kStaff, kRooms, kCases},
            SessionWith(R"({"name": "Staff", "low": 1, "high": 2}, {"name": "Gone", "low": 1, "high": 2})"))
          .Results();
  EXPECT_TRUE(HasNote(results, "Gone")) << results.at("notes");
  EXPECT_EQ(results.at("equivalences").size(), 1U);
}

TEST(OddProjects, AReferenceThatIsGoneIsRefused) {
  ExpectRefused(
      Solve(kUnits,
            {kStaff, R"({"name": "Beds", "role": "input", "worst": 9, "best": 1, "values": [3, 4, 5]})", kCases},
            SessionWith(R"({"name": "Staff", "low": 1, "high": 2})")),
      "Rooms");
}

TEST(OddProjects, NothingUsedIsRefused) {
  ExpectRefused(Solve(kUnits, {R"({"name": "A", "role": "unused", "values": [1, 2, 3]})"}),
                "none of them is an input or an output");
}

TEST(OddProjects, TheSizeOfAColumnChangesNoScore) {
  const Json plain =
      Solve(kUnits, {kStaff, kRooms, kCases}, SessionWith(R"({"name": "Staff", "low": 1, "high": 2})")).Results();
  for (const char* const exponent : {"e9", "e-9"}) {
    const String e = exponent;
    const String rooms = R"({"name": "Rooms", "role": "input", "worst": 9)" + e + R"(, "best": 1)" + e +
                         R"(, "values": [3)" + e + ", 4" + e + ", 5" + e + "]}";
    const Json scaled =
        Solve(kUnits, {kStaff, rooms, kCases}, SessionWith(R"({"name": "Staff", "low": 1, "high": 2})")).Results();
    for (std::size_t k = 0; k < 3; ++k) {
      for (const char* const key : {"free", "max", "min"}) {
        EXPECT_NEAR(plain.at("units").at(k).at(key).get<double>(), scaled.at("units").at(k).at(key).get<double>(),
                    1e-9);
      }
    }
  }
}

}  // namespace
}  // namespace Tarnwise
