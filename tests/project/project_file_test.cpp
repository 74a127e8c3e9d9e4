#include "Hospitals.h"
#include "support/FaultOf.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tarnwise {
namespace {

String Replaced(String text, const String& what, const String& by) {
  const std::size_t at = text.find(what);
  if (at == String::npos) return "there is no " + what;
  return text.replace(at, what.size(), by);
}

// The project's text with `what` once replaced, read and written again.
String Rewritten(const String& what, const String& by) {
  return ProjectText(ProjectFromText(Replaced(kHospitals, what, by)));
}

TEST(ProjectFile, FillsTheRecords) {
  const Project project = Hospitals();
  EXPECT_EQ(project.Name, "Hospitals");
  EXPECT_EQ(project.Source->Delimiter, ";");
  EXPECT_EQ(project.Units, (std::vector<String>{"Hospital A", "Hospital B", "Hospital C"}));
  ASSERT_EQ(project.Columns.size(), 5U);
  const DataColumn& doctors = project.Columns[0];
  EXPECT_EQ(doctors.Role, Role::Input);
  EXPECT_EQ(doctors.Unit, "posts");
  EXPECT_EQ(doctors.Worst, 60.0);
  EXPECT_EQ(doctors.Best, 15.0);
  EXPECT_EQ(doctors.Curve, (std::vector<ValuePoint>{{15, 0}, {37.5, 0.46}, {60, 1}}));
  EXPECT_EQ(doctors.Values, (std::vector<std::optional<double>>{20.0, 19.25, std::nullopt}));
  EXPECT_EQ(project.Columns[4].Worst, std::nullopt);
  ASSERT_EQ(project.Sessions.size(), 2U);
  const JudgmentSession& session = project.Sessions[0];
  EXPECT_EQ(session.Basis, JudgmentBasis::Range);
  EXPECT_EQ(session.CostReference, "Nurses");
  EXPECT_EQ(session.Cross->Ratio, 1.15);
  EXPECT_EQ(session.Attributes[0].High, 4.09);
  EXPECT_EQ(session.Attributes[0].Snapshot->Curve.size(), 2U);
  EXPECT_EQ(session.Attributes[2].Snapshot, std::nullopt);
  EXPECT_EQ(session.Points, R"({"AX":[1.5,0],"AY":[0,2.25]})");
  EXPECT_EQ(project.Sessions[1].Cross, std::nullopt);
  EXPECT_EQ(project.Use->Session, 0U);
  EXPECT_EQ(project.Use->Returns, ScoreReturns::Crs);
  EXPECT_EQ(project.Use->Seed, 1);
}

TEST(ProjectFile, IsWrittenAsItWasRead) { EXPECT_EQ(ProjectText(Hospitals()), kHospitals); }

TEST(ProjectFile, NeedsUnitsAndColumnsOnly) {
  const char* const least = R"({
  "tarnwise": 1,
  "units": [],
  "columns": []
}
)";
  EXPECT_EQ(ProjectText(ProjectFromText(least)), least);
  EXPECT_EQ(ProjectText(Project()), least);
}

TEST(ProjectFile, EmptyOnesAreStillThere) {
  EXPECT_NE(Rewritten(R"({"session": 0, "form": "ratio", "returns": "crs", "orientation": "in", "seed": 1})", "{}")
                .find(R"("use": {})"),
            String::npos);
}

TEST(ProjectFile, ChangeOfOneUnitIsAChangeOfItsLineAndOfItsColumns) {
  Project project = Hospitals();
  project.Units[1] = "Hospital X";
  project.Columns[1].Values[1] = 0.1;
  String text = Replaced(kHospitals, "Hospital B", "Hospital X");
  text = Replaced(text, "[151, 131, 160]", "[151, 0.1, 160]");
  EXPECT_EQ(ProjectText(project), text);
}

TEST(ProjectFile, SessionInUseMayBeNoneOrTheLast) {
  const Project none = ProjectFromText(Replaced(kHospitals, R"("session": 0)", R"("session": null)"));
  EXPECT_TRUE(none.Use->NoSession);
  EXPECT_EQ(SessionInUse(none), std::nullopt);
  EXPECT_EQ(ProjectFromText(ProjectText(none)), none);
  const Project last = ProjectFromText(Replaced(kHospitals, R"("session": 0, )", ""));
  EXPECT_EQ(SessionInUse(last), 1U);
  EXPECT_EQ(ProjectFromText(ProjectText(last)), last);
}

// Where another program could put a key of its own.
TEST(ProjectFile, KeysThatAreNotKnownAreKeptEverywhere) {
  struct Row {
    const char* Name;
    const char* What;
    const char* By;
  };
  const Row rows[] = {
      {"at the top", R"("seed": 1})", "\"seed\": 1},\n  \"mine\": {\"deep\":[1,2.5,null,true,\"x\"]}"},
      {"of the source", R"("encoding": "UTF-8"})", R"("encoding": "UTF-8", "mine": 1})"},
      {"of a column", "[151, 131, 160]}", R"([151, 131, 160], "mine": [], "colour": "red"})"},
      {"of an unused column", "[210, null, -3.17]}", R"([210, null, -3.17], "mine": null})"},
      {"of a session", R"("AY":[0,2.25]})", "\"AY\":[0,2.25]},\n      \"mine\": false"},
      {"of the cross ratio", R"("ratio": 1.15, "judged": true})",
       R"("ratio": 1.15, "judged": true, "mine": "\u0001"})"},
      {"of an attribute", R"("high": 0, "judged": true})", R"("high": 0, "judged": true, "mine": {}})"},
      {"of what is in use", R"("seed": 1})", R"("seed": 1, "mine": -0.0})"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Rewritten(row.What, row.By), Replaced(kHospitals, row.What, row.By));
  }
}

TEST(ProjectFile, KeyThatIsNullIsNotThere) {
  EXPECT_EQ(Rewritten(R"("unit": "posts")", R"("unit": null)"), Replaced(kHospitals, R"("unit": "posts", )", ""));
  EXPECT_EQ(
      ProjectFromText(Replaced(kHospitals, R"("ratio": 3.545)", R"("ratio": null)")).Sessions[0].Attributes[0].Ratio,
      std::nullopt);
}

TEST(ProjectFile, ValuesOfAnUnusedColumnAreKeptWhateverTheyAre) {
  for (const char* const values : {R"(["x",1,null])", "[1]", "[1,2,3,4]", "\"none\"", "{}", "true"}) {
    const String text = Replaced(kHospitals, "[210, null, -3.17]", values);
    EXPECT_EQ(ProjectText(ProjectFromText(text)), text);
  }
  const String text = Replaced(kHospitals, "[210, null, -3.17]", R"(["x",1.5])");
  EXPECT_EQ(ProjectFromText(text).Columns[4].Values,
            (std::vector<std::optional<double>>{std::nullopt, 1.5, std::nullopt}));
}

TEST(ProjectFile, BoundsThatNobodyLooksAtMayBeAnything) {
  for (const char* const bounds :
       {R"("low": "x", "high": -3)", R"("high": null)", R"("low": 5, "ratio": [], "high": 4)"}) {
    const String reference = R"({"name": "Nurses", )" + String(bounds) + R"(, "judged": true, "worst": 320)";
    const String mended = Replaced(kHospitals, R"({"name": "Nurses", "judged": true, "worst": 320)", reference);
    const Project project = ProjectFromText(mended);
    EXPECT_EQ(ProjectFromText(ProjectText(project)), project) << bounds;
    const String notJudged = R"({"name": "Inpatients", )" + String(bounds) + R"(, "judged": false})";
    EXPECT_EQ(FaultOf([&] {
                (void)ProjectFromText(
                    Replaced(kHospitals, R"({"name": "Inpatients", "low": 2, "high": 0, "judged": true})", notJudged));
              }),
              "no fault")
        << bounds;
  }
}

TEST(ProjectFile, CurveWithoutItsRangeIsKeptButIsNoCopyOfAScale) {
  const String what = R"("high": 0, "judged": true})";
  const String by = R"("high": 0, "judged": true, "curve": [[0,1]]})";
  EXPECT_EQ(ProjectFromText(Replaced(kHospitals, what, by)).Sessions[0].Attributes[2].Snapshot, std::nullopt);
  EXPECT_EQ(Rewritten(what, by), Replaced(kHospitals, what, by));
}

TEST(ProjectFile, AttributesOfOtherNamesAreKept) {
  const String what = R"({"name": "Inpatients", "low": 2)";
  EXPECT_EQ(Rewritten(what, R"({"name": "Gone", "low": 2)"),
            Replaced(kHospitals, what, R"({"name": "Gone", "low": 2)"));
}

TEST(ProjectFile, NumbersAreTheShortestThatReadBack) {
  Project project = Hospitals();
  for (const double number : {0.1 + 0.2, -0.0, 5e-324, 1.7976931348623157e308, 1e15, 123456789012345680.0, 1.0 / 3.0,
                              2.5e-7, 4503599627370497.5}) {
    project.Columns[1].Values[0] = number;
    const Project again = ProjectFromText(ProjectText(project));
    EXPECT_EQ(std::signbit(*again.Columns[1].Values[0]), std::signbit(number));
    EXPECT_EQ(again, project) << number;
  }
}

TEST(ProjectFile, TextIsEscapedWhereJsonWantsIt) {
  Project project = Hospitals();
  project.Sessions[0].Note = "two\nlines, \"quotes\", \\, \x01 and \xF0\x9F\x98\x80";
  EXPECT_EQ(ProjectFromText(ProjectText(project)), project);
}

TEST(ProjectFile, NumberOrTextThatJsonCannotHoldIsNotWritten) {
  Project project = Hospitals();
  project.Columns[1].Values[0] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(FaultOf([&] { (void)ProjectText(project); }), "values: it is no finite number");
  project = Hospitals();
  project.Columns[1].Unit = "\xFF";
  EXPECT_EQ(FaultOf([&] { (void)ProjectText(project); }), "unit: the text is not valid UTF-8");
}

TEST(ProjectFile, KeyThatCameToBeKnownIsNotWrittenTwice) {
  Project project = Hospitals();
  project.Columns[1].Others = {{"unit", "\"theirs\""}, {"mine", "1"}};
  project.Columns[1].Unit = "ours";
  const String text = ProjectText(project);
  EXPECT_EQ(text.find("theirs"), String::npos);
  EXPECT_NE(text.find("\"mine\": 1"), String::npos);
}

TEST(ProjectFile, IsReadAndReplacedAsAWhole) {
  const TemporaryFolder folder;
  const String path = folder.Write("hospitals.tarnwise", String("old"));
  WriteProject(path, Hospitals());
  EXPECT_EQ(ReadProject(path), Hospitals());
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST(ProjectFile, ThatIsRefusedLeavesTheOldFile) {
  const TemporaryFolder folder;
  const String path = folder.Write("hospitals.tarnwise", String("old"));
  Project project = Hospitals();
  project.Units[0] = "";
  EXPECT_EQ(FaultOf([&] { WriteProject(path, project); }), path + ": name of unit 0: it is empty");
  EXPECT_EQ(TemporaryFolder::Read(path).size(), 3U);
}

TEST(ProjectFile, ForResultsIsCheckedAsAWhole) {
  const TemporaryFolder folder;
  const String path = folder.Write("hospitals.tarnwise", String(kHospitals));
  EXPECT_EQ(ReadProjectForResults(path), Hospitals());
  folder.Write("hospitals.tarnwise",
               Replaced(kHospitals, R"("costReference": "Doctors")", R"("costReference": "Beds")"));
  EXPECT_EQ(FaultOf([&] { (void)ReadProject(path); }), "no fault");
  EXPECT_EQ(FaultOf([&] { (void)ReadProjectForResults(path); }),
            path + ": costReference of session 1: \"Beds\" is no input, its role is unused");
}

TEST(ProjectFile, FaultsBeginWithThePath) {
  const TemporaryFolder folder;
  EXPECT_EQ(FaultOf([&] { (void)ReadProject(folder.File("none.tarnwise")); }),
            "there is no file " + folder.File("none.tarnwise"));
  const String path = folder.Write("empty.tarnwise", String("{}"));
  EXPECT_EQ(FaultOf([&] { (void)ReadProject(path); }), path + ": tarnwise: it is missing");
}

}  // namespace
}  // namespace Tarnwise
