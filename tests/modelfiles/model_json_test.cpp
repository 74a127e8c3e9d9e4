#include "modelfiles/ModelJson.h"

#include "support/FaultOf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace Tarnwise {
namespace {

// A description of two attributes and an alternative, in the form in which models are shown.
const char* const kSmall = R"({
  "note": "A small one",
  "alternatives": [{"name": "Ward A", "note": "ours", "scores": {"Beds": 37, "Cost": 3.17}}],
  "attributes": [
    {"name": "Beds", "description": "beds in use", "orientation": "benefit", "scoreMin": 0, "scoreMax": 100,
     "worst": 10, "best": 90, "curve": [[0, 0], [37, 0.5], [100, 1]]},
    {"name": "Cost", "orientation": "cost", "scoreMin": 1.5, "scoreMax": 9.5, "worst": 9, "best": 2,
     "curve": [[1.5, 0], [9.5, 1]], "function": {"type": "non-linear", "a": 1.582, "b": -1}}
  ],
  "judgments": {"type": "DEA_DIRECT", "benefitReference": "Beds", "costReference": "Cost", "referenceRatio": 0.75,
                "weights": {"Beds": 1, "Cost": 1}, "low": {"Beds": 1, "Cost": 1}, "high": {"Beds": 1, "Cost": 1}}
})";

class ModelJson : public testing::Test {
 protected:
  Json description = ParseDescription(kSmall);

  WizardData Build() { return ModelFromJson(description); }
  String Fault() {
    return FaultOf([this] { (void)Build(); });
  }
  Json& Attribute(int i) { return description["attributes"][static_cast<std::size_t>(i)]; }
  Json& Alternative() { return description["alternatives"][0]; }
  std::vector<String> Warnings() { return ModelWarnings(Build()); }
};

TEST_F(ModelJson, DescriptionFillsTheRecords) {
  const WizardData data = Build();
  EXPECT_EQ(data.NumAtts(), 2);
  EXPECT_EQ(data.ModelHeader.Unused[0], "A small one");
  EXPECT_EQ(data.AlternativeList.Unused1[0], "Ward A");
  EXPECT_EQ(data.AlternativeList.Unused2[0], "ours");
  EXPECT_EQ(data.AttDescription(0), "beds in use");
  EXPECT_TRUE(data.IsBenefit(0));
  EXPECT_TRUE(data.IsCost(1));
  EXPECT_EQ(data.AttValueData.ScoreMax[1], 9.5);
  EXPECT_EQ(data.AttValueData.WorstScore[1], 9.0);
  EXPECT_EQ(data.AttValueData.ValuePointCount[0], 3);
  EXPECT_EQ(data.AttValueData.ValuePointX(0, 1), Variant(37.0));
  EXPECT_EQ(data.AttValueData.ValuePointY(0, 1), Variant(0.5));
  EXPECT_EQ(data.AttValueData.ValueFuncType[1], 1);
  EXPECT_EQ(data.AttValueData.ValueFuncB[1], -1.0);
  EXPECT_EQ(data.SavedJudgments.SavedBRefAttID, Variant(Integer{0}));
  EXPECT_EQ(data.SavedJudgments.SavedCRefAttID, Variant(Integer{1}));
  EXPECT_EQ(data.SavedJudgments.SavedRefAttWR, Variant(0.75));
}

TEST_F(ModelJson, ScoreStandsInBothScoreItems) {
  const WizardData data = Build();
  EXPECT_EQ(data.RawScores.RawScores(0, 1), Variant(3.17));
  EXPECT_EQ(data.Scores.Scores(0, 1), 3.17);
}

TEST_F(ModelJson, BuiltModelShowsAsItsDescription) { EXPECT_EQ(ModelToJson(Build()), description); }

TEST_F(ModelJson, ScoresAndWeightsMayBeLists) {
  const Json canonical = description;
  Alternative()["scores"] = {37, 3.17};
  description["judgments"]["weights"] = {1, 1};
  EXPECT_EQ(ModelToJson(Build()), canonical);
}

TEST_F(ModelJson, ReferenceMayBeAnId) {
  const Json canonical = description;
  description["judgments"]["costReference"] = 1;
  EXPECT_EQ(ModelToJson(Build()), canonical);
}

TEST_F(ModelJson, AttributesOfOneNameAreShownWithLists) {
  Attribute(1)["name"] = "Beds";
  Alternative()["scores"] = {37, 3.17};
  Json& judgments = description["judgments"];
  judgments["benefitReference"] = 0;
  judgments["costReference"] = 1;
  for (const char* key : {"weights", "low", "high"}) judgments[key] = {1, 1};
  EXPECT_EQ(ModelToJson(Build()), description);
}

TEST_F(ModelJson, OrientationMayBeAnyText) {
  for (const char* text : {"", "2", " 1 ", "abc"}) {
    Attribute(0)["orientation"] = text;
    EXPECT_EQ(Build().AttributeList.AttOrientation[0], text);
    EXPECT_EQ(ModelToJson(Build()), description);
  }
  Attribute(0)["orientation"] = {{"text", "benefit"}};
  EXPECT_EQ(Build().AttributeList.AttOrientation[0], "benefit");
  EXPECT_EQ(ModelToJson(Build()), description);
}

TEST_F(ModelJson, EveryTypeOfValueHasItsForm) {
  const std::vector<std::pair<const char*, Variant>> forms = {
      {"null", Variant()},
      {R"({"null":true})", Null()},
      {R"({"integer":-3})", Integer{-3}},
      {R"({"long":70000})", Long{70000}},
      {R"({"single":0.37})", 0.37F},
      {"3.17", 3.17},
      {R"({"currency":"-12.0305"})", Currency{-120305}},
      {R"({"currency":"7"})", Currency{70000}},
      {R"({"currency":"-922337203685477.5808"})", Currency{INT64_MIN}},
      {R"({"date":36526.25})", Date{36526.25}},
      {R"("text")", String("text")},
      {"true", true},
      {R"({"byte":200})", std::uint8_t{200}},
      {"-0.0", -0.0},
  };
  for (const auto& [text, value] : forms) {
    EXPECT_EQ(VariantOf(Json::parse(text), "it"), value) << text;
    EXPECT_EQ(VariantJson(value).dump(), text);
  }
}

TEST_F(ModelJson, NumbersThatJsonCannotWriteAreGivenAsBits) {
  const Json infinite = NumberJson(-HUGE_VAL);
  EXPECT_EQ(infinite.dump(), R"({"bits":"fff0000000000000"})");
  EXPECT_EQ(std::get<Double>(VariantOf(infinite, "it")), -HUGE_VAL);
  EXPECT_EQ(VariantJson(HUGE_VALF).dump(), R"({"single":{"bits":"7f800000"}})");
  EXPECT_EQ(VariantOf(VariantJson(HUGE_VALF), "it"), Variant(HUGE_VALF));
}

TEST_F(ModelJson, BytesMayBeDigitsOrAList) {
  EXPECT_EQ(BytesOf("01ff", "it", 2), (std::vector<std::uint8_t>{1, 255}));
  EXPECT_EQ(BytesOf({1, 255}, "it", 2), (std::vector<std::uint8_t>{1, 255}));
  EXPECT_EQ(FaultOf([] { (void)BytesOf("01f", "it", 2); }), "it: pairs of hexadecimal digits are wanted");
  EXPECT_EQ(FaultOf([] { (void)BytesOf("01fg", "it", 2); }), "it: pairs of hexadecimal digits are wanted");
  EXPECT_EQ(FaultOf([] { (void)BytesOf("01", "it", 2); }), "it: there are 1 bytes, there must be 2");
}

TEST_F(ModelJson, UnknownKeyIsAFaultThatNamesTheNearest) {
  Attribute(1)["scoremin"] = 3;
  EXPECT_EQ(Fault(), "attribute 1 (Cost): there is no key \"scoremin\"; did you mean \"scoreMin\"?");
  Attribute(1).erase("scoremin");
  description["atributes"] = 1;
  EXPECT_EQ(Fault(), "the description: there is no key \"atributes\"; did you mean \"attributes\"?");
  description.erase("atributes");
  description["judgments"]["zzz"] = 1;
  EXPECT_EQ(Fault(), "judgments: there is no key \"zzz\"");
}

TEST_F(ModelJson, FaultsSayWhichFieldWhoseAndWhy) {
  struct Case {
    const char* At;
    Json Value;
    const char* Fault;
  };
  const std::vector<Case> cases = {
      {"/attributes/1/scoreMin", "low", "scoreMin of attribute 1 (Cost): a number is wanted, here is \"low\""},
      {"/attributes/0/name", 7, "name of attribute 0: a text is wanted, here is 7"},
      {"/attributes/0/orientation", 3,
       "orientation of attribute 0 (Beds): \"benefit\" or \"cost\" is wanted, here is 3"},
      {"/attributes/0/curve", "steep", "curve of attribute 0 (Beds): a list is wanted, here is \"steep\""},
      {"/attributes/0/curve/1",
       {37, 0.5, 1},
       "point 1 of curve of attribute 0 (Beds): a pair [score, value] is wanted, here is [37,0.5,1]"},
      {"/attributes/0/curve", Json(12, {0, 0}), "curve of attribute 0 (Beds): there are 12, the file has room for 11"},
      {"/attributes/1/function/type", "cubic",
       "type of function of attribute 1 (Cost): \"linear\" or \"non-linear\" is wanted, here is \"cubic\""},
      {"/attributes/1", 5, "attribute 1: an object is wanted, here is 5"},
      {"/alternatives/0/scores/Bets", 5,
       "scores of alternative 0 (Ward A): there is no attribute \"Bets\"; did you mean \"Beds\"?"},
      {"/alternatives/0/scores/Beds", "many",
       "Beds in scores of alternative 0 (Ward A): a number is wanted, here is \"many\""},
      {"/alternatives/0/scores", {1, 2, 3}, "scores of alternative 0 (Ward A): there are 3 values for 2 attributes"},
      {"/judgments/costReference", "Costs",
       "costReference of judgments: there is no attribute \"Costs\"; did you mean \"Cost\"?"},
      {"/judgments/costReference", 40000,
       "costReference of judgments: a whole number from -32768 to 32767 is wanted, here is 40000"},
      {"/judgments/referenceRatio",
       {{"integer", 1}, {"long", 2}},
       "referenceRatio of judgments: one type is wanted, here is {\"integer\":1,\"long\":2}"},
      {"/judgments/referenceRatio",
       {{"currency", "1.23456"}},
       "currency of referenceRatio of judgments: a currency is a text like \"12.5\" with at most four decimals, here "
       "is \"1.23456\""},
      {"/judgments/weights/Beds", true, "Beds in weights of judgments: a number is wanted, here is true"},
      {"/attributeCount", 3.5, "attributeCount: a whole number from -32768 to 32767 is wanted, here is 3.5"},
      {"/unused", {{"settings", "00"}}, "settings of unused: there are 1 bytes, there must be 30"},
      {"/unused",
       {{"headerNumber", 3000000000}},
       "headerNumber of unused: a whole number from -2147483648 to 2147483647 is wanted, here is 3000000000"},
  };
  for (const Case& c : cases) {
    description = ParseDescription(kSmall);
    description[Json::json_pointer(c.At)] = c.Value;
    EXPECT_EQ(Fault(), c.Fault) << c.At;
  }
}

TEST_F(ModelJson, WhatEveryAttributeNeedsIsNamedWhenItIsMissing) {
  for (const char* key : {"orientation", "scoreMin", "scoreMax", "worst", "best"}) {
    description = ParseDescription(kSmall);
    Attribute(1).erase(key);
    EXPECT_EQ(Fault(), String(key) + " of attribute 1 (Cost): it is missing");
  }
  description.erase("attributes");
  EXPECT_EQ(Fault(), "attributes: it is missing");
}

TEST_F(ModelJson, TooManyAttributesOrAlternativesAreRefused) {
  description["alternatives"] = Json(52, {{"name", "x"}});
  EXPECT_EQ(Fault(), "alternatives: there are 52, the file has room for 51");
  description["attributes"] = Json(32, Attribute(0));
  EXPECT_EQ(Fault(), "attributes: there are 32, the file has room for 31");
}

TEST_F(ModelJson, NameThatSeveralBearIsNoReference) {
  Attribute(1)["name"] = "Beds";
  Alternative().erase("scores");
  EXPECT_EQ(Fault(),
            "benefitReference of judgments: several attributes are called \"Beds\", give their values as a list");
}

TEST_F(ModelJson, TextThatIsNoJsonIsAFaultWithItsLine) {
  const String fault = FaultOf([] { (void)ParseDescription("{\n  \"note\": oops\n}"); });
  EXPECT_NE(fault.find("it is no JSON: parse error at line 2, column 11"), String::npos) << fault;
}

TEST_F(ModelJson, KeyThatStandsTwiceIsAFault) {
  EXPECT_EQ(FaultOf([] { (void)ParseDescription(R"({"a": {"x": 1}, "b": {"x": 2}})"); }), "no fault");
  EXPECT_EQ(FaultOf([] { (void)ParseDescription(R"({"a": {"x": 1, "y": 0, "x": 2}})"); }),
            "the key \"x\" stands twice in one object");
}

TEST_F(ModelJson, PlaceOfWhatIsNoJsonIsNamed) {
  const String fault =
      FaultOf([] { (void)ParseDescription(R"({"attributes": [{}, {"name": "Beds", "curve": [[0, 0], [1, x]]}]})"); });
  EXPECT_NE(fault.find("; in attributes[1] (\"Beds\").curve[1][1]"), String::npos) << fault;
}

TEST_F(ModelJson, NestingWithoutEndIsAFault) {
  const auto nested = [](std::size_t deep) { return String(deep, '[') + String(deep, ']'); };
  EXPECT_EQ(FaultOf([&] { (void)ParseDescription(nested(100)); }), "no fault");
  EXPECT_EQ(FaultOf([&] { (void)ParseDescription(nested(101)); }), "lists and objects are nested more than 100 deep");
  EXPECT_EQ(FaultOf([&] { (void)ParseDescription(R"({"note": )" + nested(100000) + "}"); }),
            "lists and objects are nested more than 100 deep");
}

TEST_F(ModelJson, OrdinaryModelHasNoWarnings) { EXPECT_EQ(Warnings(), std::vector<String>()); }

TEST_F(ModelJson, UnlikelyModelsAreBuiltWithAWarning) {
  struct Case {
    const char* At;
    Json Value;
    const char* Warning;
  };
  const std::vector<Case> cases = {
      {"/attributes/1/curve",
       {{1.5, 1}, {9.5, 0}},
       "curve of attribute 1 (Cost) falls: the curve of a cost too rises, it says how much cost there is"},
      {"/attributes/0/curve", {{0, 0}, {0, 0.5}}, "curve of attribute 0 (Beds): its scores do not ascend"},
      {"/attributes/0/curve", {{0, 0}, {1, 1.5}}, "curve of attribute 0 (Beds) has a value outside 0 to 1"},
      {"/attributes/0/curve", {{0, 0}, {1, "much"}}, "curve of attribute 0 (Beds) has a point that is not a number"},
      {"/attributes/0/curve", Json::array(), "curve of attribute 0 (Beds) has 0 points: trade-offs need 1 to 11"},
      {"/attributes/0/worst", 95, "worst and best of attribute 0 (Beds) look reversed: more is better"},
      {"/attributes/1/best", 9.25, "worst and best of attribute 1 (Cost) look reversed: less is better"},
      {"/attributes/0/scoreMax", 0, "scoreMin of attribute 0 (Beds) is not below its scoreMax"},
      {"/attributes/0/orientation", "2",
       "orientation of attribute 0 (Beds) is neither benefit nor cost: it stands in no group"},
      {"/attributes/0/orientation", "benfit",
       "orientation of attribute 0 (Beds) is \"benfit\", which counts as benefit"},
      {"/judgments/type", "DIRECT", "type of judgments is \"DIRECT\": only DEA_DIRECT and DEA_TRADEOFFS are resumed"},
  };
  for (const Case& c : cases) {
    description = ParseDescription(kSmall);
    description[Json::json_pointer(c.At)] = c.Value;
    EXPECT_EQ(Warnings(), std::vector<String>{c.Warning}) << c.At;
  }
}

TEST_F(ModelJson, CountOfAttributesMayDifferFromTheirList) {
  for (const int count : {-1, 0, 1, 31, 32}) {
    description["attributeCount"] = count;
    EXPECT_EQ(Build().NumAtts(), count);
    WizardData again = ModelFromJson(ModelToJson(Build()));
    EXPECT_EQ(again.NumAtts(), count);
  }
}

TEST_F(ModelJson, TextIsWrittenWithWhatFitsOnOneLine) {
  const Json value = {{"a", {1, 2.5}}, {"b", {{"c", nullptr}}}, {"d", Json::array()}};
  EXPECT_EQ(DescriptionText(value), "{\n  \"a\": [1, 2.5],\n  \"b\": {\"c\": null},\n  \"d\": []\n}\n");
}

TEST_F(ModelJson, LongListsOfNumbersFillTheLines) {
  const Json value = {{"list", Json(60, 1234)}};
  const String text = DescriptionText(value);
  EXPECT_EQ(Json::parse(text), value);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 8) << text;
}

}  // namespace
}  // namespace Tarnwise
