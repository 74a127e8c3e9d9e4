// What a project's file must not hold, and what is said of it.
#include "Hospitals.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct RefusalRow {
  const char* Name;
  const char* What;  // of the good file, once replaced
  const char* By;
  const char* Fault;
};

String FaultWith(const String& what, const String& by) {
  String text = kHospitals;
  const std::size_t at = text.find(what);
  if (at == String::npos) return "there is no " + what;
  text.replace(at, what.size(), by);
  return FaultOf([&] { (void)ProjectFromText(text); });
}

void ExpectRefused(const RefusalRow& row) {
  SCOPED_TRACE(row.Name);
  EXPECT_EQ(FaultWith(row.What, row.By), row.Fault);
}

TEST(RefusedProject, SaysWhatIsWrongWithTheFile) {
  const RefusalRow rows[] = {
      {"no version", R"("tarnwise": 1,)", "", "tarnwise: it is missing"},
      {"a later version", R"("tarnwise": 1,)", R"("tarnwise": 2,)", "tarnwise: version 1 is wanted, here is 2"},
      {"no units", R"("units")", R"("unit")", "units: it is missing, but there is \"unit\""},
      {"a name that is no text", R"("name": "Hospitals")", R"("name": 5)", "name: a text is wanted, here is 5"},
      {"a unit that is no text", R"("Hospital B")", "5", "units: number 1 is no text: 5"},
      {"a unit without a name", R"("Hospital B")", "\" \"", "name of unit 1: it is empty"},
      {"two units of one name", R"("Hospital C")", "\"Hospital A\"",
       "name of unit 2: \"Hospital A\" is the name of unit 0 already"},
      {"no columns", R"("columns")", R"("rows")", "columns: it is missing"},
      {"a key twice", R"("tarnwise": 1,)", R"("tarnwise": 1, "tarnwise": 1,)",
       "the key \"tarnwise\" stands twice in one object"},
  };
  for (const RefusalRow& row : rows) ExpectRefused(row);
}

TEST(RefusedProject, SaysWhatIsWrongWithAColumn) {
  const RefusalRow rows[] = {
      {"no name", R"("name": "Nurses", )", "", "name of column 1: it is missing"},
      {"an empty name", R"("name": "Nurses")", R"("name": "")", "name of column 1: it is empty"},
      {"a name twice", R"({"name": "Nurses")", R"({"name": "Doctors")",
       "name of column 1: \"Doctors\" is the name of column 0 already"},
      {"no role", R"("role": "input", "worst": 320)", R"("worst": 320)", "role of column 1 (Nurses): it is missing"},
      {"an unknown role", R"("role": "input", "worst": 320)", R"("role": "Input", "worst": 320)",
       "role of column 1 (Nurses): \"input\", \"output\" or \"unused\" is wanted, here is \"Input\""},
      {"no worst", R"("worst": 320, "best")", R"("best")", "worst of column 1 (Nurses): it is missing"},
      {"no best", R"("worst": 320, "best": 120)", R"("worst": 320)", "best of column 1 (Nurses): it is missing"},
      {"a best that is null", R"("best": 120)", R"("best": null)", "best of column 1 (Nurses): it is missing"},
      {"a worst that is no number", R"("worst": 320)", R"("worst": "320")",
       "worst of column 1 (Nurses): a number is wanted, here is \"320\""},
      {"an input's range the wrong way round", R"("worst": 320, "best": 120)", R"("worst": 120, "best": 320)",
       "worst of column 1 (Nurses): worst 120 and best 320 are the wrong way round for an input"},
      {"an output's range the wrong way round", R"("worst": 40, "best": 150)", R"("worst": 40.5, "best": 40.25)",
       "worst of column 3 (Inpatients): worst 40.5 and best 40.25 are the wrong way round for an output"},
      {"a value too few", "[151, 131, 160]", "[151, 131]", "values of column 1 (Nurses): there are 2 for 3 units"},
      {"a value too many", "[151, 131, 160]", "[1, 2, 3, 4]", "values of column 1 (Nurses): there are 4 for 3 units"},
      {"no values", R"(, "values": [151, 131, 160])", "", "values of column 1 (Nurses): it is missing"},
      {"values that are no list", "[151, 131, 160]", "{}", "values of column 1 (Nurses): a list is wanted, here is {}"},
      {"a value that is text", "[151, 131, 160]", R"([151, "131", 160])",
       "Hospital B in values of column 1 (Nurses): a number is wanted, here is \"131\""},
      {"a value that is true", "[151, 131, 160]", R"([151, 131, true])",
       "Hospital C in values of column 1 (Nurses): a number is wanted, here is true"},
      {"a value given by its bits", "[151, 131, 160]", R"([151, 131, {"bits": "7ff8000000000000"}])",
       "Hospital C in values of column 1 (Nurses): a number is wanted, here is {\"bits\":\"7ff8000000000000\"}"},
      {"no values of an unused column", R"("role": "unused", "values": [210, null, -3.17])", R"("role": "unused")",
       "values of column 4 (Beds): it is missing"},
      {"a curve of one point", "[[15, 0], [37.5, 0.46], [60, 1]]", "[[15, 0]]",
       "curve of column 0 (Doctors): it has 1 point, 2 to 11 are wanted"},
      {"a curve of no point", "[[15, 0], [37.5, 0.46], [60, 1]]", "[]",
       "curve of column 0 (Doctors): it has no points"},
      {"a curve that goes back", "[37.5, 0.46]", "[60, 0.46]",
       "curve of column 0 (Doctors): the score of point 2 is not above that of the point before"},
      {"a point that is no pair", "[37.5, 0.46]", "[37.5]",
       "point 1 of curve of column 0 (Doctors): a pair [score, value] is wanted, here is [37.5]"},
      {"a point that is no number", "[37.5, 0.46]", "[37.5, null]",
       "point 1 of curve of column 0 (Doctors): a number is wanted, here is null"},
  };
  for (const RefusalRow& row : rows) ExpectRefused(row);
}

TEST(RefusedProject, SaysWhatIsWrongWithASession) {
  const RefusalRow rows[] = {
      {"no basis", R"("basis": "range",)", "", "basis of session 0: it is missing"},
      {"an unknown basis", R"("basis": "scale")", R"("basis": "swing")",
       "basis of session 1: \"range\", \"scale\" or \"unit\" is wanted, here is \"swing\""},
      {"no attributes", R"("attributes": [])", R"("attribute": [])",
       "attributes of session 1: it is missing, but there is \"attribute\""},
      {"a reference that is no text", R"("costReference": "Nurses")", R"("costReference": 1)",
       "costReference of session 0: a text is wanted, here is 1"},
      {"an attribute without a name", R"({"name": "Inpatients", "low")", R"({"low")",
       "name of attribute 2 of session 0: it is missing"},
      {"an attribute twice", R"({"name": "Inpatients", "low")", R"({"name": "Doctors", "low")",
       "name of attribute 2 of session 0: \"Doctors\" is the name of attribute 0 already"},
      {"no low", R"("low": 3, )", "", "low of attribute 0 (Doctors) of session 0: it is missing"},
      {"no high", R"("high": 4.09, )", "", "high of attribute 0 (Doctors) of session 0: it is missing"},
      {"a low that is text", R"("low": 3,)", R"("low": "3",)",
       "low of attribute 0 (Doctors) of session 0: a number is wanted, here is \"3\""},
      {"a high that is null", R"("high": 4.09)", R"("high": null)",
       "high of attribute 0 (Doctors) of session 0: it is missing"},
      {"a ratio that is text", R"("ratio": 3.545)", R"("ratio": "?")",
       "ratio of attribute 0 (Doctors) of session 0: a number is wanted, here is \"?\""},
      {"a negative low", R"("low": 3,)", R"("low": -0.5,)",
       "low of attribute 0 (Doctors) of session 0: -0.5 is negative"},
      {"a negative high", R"("high": 4.09)", R"("high": -4.09)",
       "high of attribute 0 (Doctors) of session 0: -4.09 is negative"},
      {"low above high", R"("low": 3,)", R"("low": 4.1,)",
       "low of attribute 0 (Doctors) of session 0: 4.1 is above high, 4.09"},
      {"judged that is no truth value", R"("high": 0, "judged": true)", R"("high": 0, "judged": 1)",
       "judged of attribute 2 (Inpatients) of session 0: true or false is wanted, here is 1"},
      {"a copy of the scale without best", R"("judged": true, "worst": 320, "best": 120)",
       R"("judged": true, "worst": 320)", "best of attribute 1 (Nurses) of session 0: it is missing beside worst"},
      {"a copy of the scale without worst", R"("judged": true, "worst": 320, "best": 120)",
       R"("judged": true, "best": 120)", "worst of attribute 1 (Nurses) of session 0: it is missing beside best"},
      {"a copy of the scale the wrong way round", R"("judged": true, "worst": 320, "best": 120)",
       R"("judged": true, "worst": 119, "best": 120)",
       "worst of attribute 1 (Nurses) of session 0: worst 119 and best 120 are the wrong way round for an input"},
      {"a copy of a curve that goes back", R"([[15, 0], [60, 1]])", R"([[60, 0], [15, 1]])",
       "curve of attribute 0 (Doctors) of session 0: the score of point 1 is not above that of the point before"},
      {"a cross ratio without a ratio", R"({"ratio": 1.15, "judged": true})", "{}",
       "ratio of cross of session 0: it is missing"},
      {"a cross ratio of zero", R"("ratio": 1.15)", R"("ratio": 0)",
       "ratio of cross of session 0: it must be above 0 and finite"},
      {"a negative cross ratio", R"("ratio": 1.15)", R"("ratio": -1)",
       "ratio of cross of session 0: it must be above 0 and finite"},
      {"a cross ratio that is text", R"("ratio": 1.15)", R"("ratio": "1")",
       "ratio of cross of session 0: a number is wanted, here is \"1\""},
      {"a cross ratio that is a number", R"({"ratio": 1.15, "judged": true})", "1.15",
       "cross of session 0: an object is wanted, here is 1.15"},
  };
  for (const RefusalRow& row : rows) ExpectRefused(row);
}

TEST(RefusedProject, SaysWhatIsWrongWithWhatIsInUse) {
  const RefusalRow rows[] = {
      {"a session that is not there", R"("session": 0)", R"("session": 2)",
       "session of use: there is no session 2, only 2 sessions counted from 0"},
      {"a negative session", R"("session": 0)", R"("session": -1)",
       "session of use: a whole number from 0 to 9223372036854775807 is wanted, here is -1"},
      {"half a session", R"("session": 0)", R"("session": 0.5)",
       "session of use: a whole number from 0 to 9223372036854775807 is wanted, here is 0.5"},
      {"an unknown form", R"("ratio", "returns")", R"("additive", "returns")",
       "form of use: \"ratio\" or \"value\" is wanted, here is \"additive\""},
      {"unknown returns", R"("crs")", R"("drs")",
       "returns of use: \"crs\", \"vrs\", \"nirs\" or \"ndrs\" is wanted, here is \"drs\""},
      {"an unknown orientation", R"("orientation": "in")", R"("orientation": 1)",
       "orientation of use: \"in\" or \"out\" is wanted, here is 1"},
      {"a seed that is text", R"("seed": 1)", R"("seed": "1")",
       "seed of use: a whole number from 0 to 9223372036854775807 is wanted, here is \"1\""},
  };
  for (const RefusalRow& row : rows) ExpectRefused(row);
}

TEST(RefusedProject, TextThatIsNoJsonIsNamedByLineAndPlace) {
  EXPECT_EQ(FaultOf([] { (void)ProjectFromText(""); }).substr(0, 30), "it is no JSON: parse error at ");
  EXPECT_EQ(FaultOf([] { (void)ProjectFromText("[]"); }), "a project is an object, here is []");
  const String infinite = FaultWith("[151, 131, 160]", "[151, NaN, 160]");
  EXPECT_NE(infinite.find("line 12"), String::npos) << infinite;
  EXPECT_NE(infinite.find("; in columns[1] (\"Nurses\").values[1]"), String::npos) << infinite;
  EXPECT_EQ(FaultWith("[151, 131, 160]", "[151, 131, 1e400]"),
            "it is no JSON: number overflow parsing '1e400'; in columns[1] (\"Nurses\").values[2]");
}

TEST(RefusedProject, NestingWithoutEndIsNotFollowed) {
  const String deep = String(100000, '[') + String(100000, ']');
  EXPECT_EQ(FaultWith(R"("seed": 1})", R"("seed": 1}, "mine": )" + deep),
            "lists and objects are nested more than 100 deep");
}

TEST(RefusedProject, MayHoldAnEqualWorstAndBest) {
  EXPECT_EQ(FaultWith(R"("worst": 320, "best": 120)", R"("worst": 120, "best": 120)"), "no fault");
}

TEST(RefusedProject, MayHoldALowAboveAHighOfZero) {
  EXPECT_EQ(FaultWith(R"("high": 4.09)", R"("high": 0)"), "no fault");
  EXPECT_EQ(FaultWith(R"("low": 3,)", R"("low": 0,)"), "no fault");
}

TEST(RefusedProject, MayHoldAnythingInACrossRatioThatIsNotJudged) {
  EXPECT_EQ(FaultWith(R"({"ratio": 1.15, "judged": true})", R"({"ratio": 0, "judged": false})"), "no fault");
  EXPECT_EQ(FaultWith(R"({"ratio": 1.15, "judged": true})", R"({"judged": false})"), "no fault");
}

}  // namespace
}  // namespace Tarnwise
