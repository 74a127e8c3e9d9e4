// Lines, words, names and numbers of session scripts; the exit status.
#include "play/ControlJson.h"
#include "play/DataJson.h"
#include "play/Played.h"
#include "play/ScriptLine.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <charconv>
#include <cmath>

namespace Tarnwise {
namespace {

TEST(Words, AreSeparatedByBlanks) {
  EXPECT_EQ(WordsOf("  drag\t cmdAttA(0)  picOrder(0) \r"), (Lines{"drag", "cmdAttA(0)", "picOrder(0)"}));
  EXPECT_EQ(WordsOf(""), Lines{});
  EXPECT_EQ(WordsOf(" \t\r"), Lines{});
}

TEST(Words, WithBlanksStandInQuotesWithFourEscapes) {
  EXPECT_EQ(WordsOf(R"(type "a b\"c\\d\ne\tf")"), (Lines{"type", "a b\"c\\d\ne\tf"}));
  EXPECT_EQ(WordsOf(R"(type "")"), (Lines{"type", ""}));
  EXPECT_EQ(WordsOf(R"(host load a\b)"), (Lines{"host", "load", "a\\b"}));
}

TEST(Words, OfACommentAreNone) {
  EXPECT_EQ(WordsOf(R"(# "not closed, and \x)"), Lines{});
  EXPECT_EQ(WordsOf("#no blank"), Lines{});
}

TEST(Words, OfPointsAreTheRestOfTheLine) {
  EXPECT_EQ(WordsOf("host points { \"\\u0041X\": [1, 2] } \r"), (Lines{"host", "points", "{ \"\\u0041X\": [1, 2] }"}));
}

TEST(Words, WithAnUnknownEscapeOrAnOpenQuoteAreNoLine) {
  EXPECT_THROW(WordsOf(R"(type "a\x")"), ScriptFault);
  EXPECT_THROW(WordsOf(R"(type "a)"), ScriptFault);
  EXPECT_THROW(WordsOf("type \"a\\"), ScriptFault);
}

TEST(Status, IsZeroWhenEveryLineWasCarriedOut) {
  const Played played = Play("# a comment\n\n  \n" + kShown + "click cmdNext");
  EXPECT_EQ(played.Status, 0);
  EXPECT_EQ(played.Errors, "");
}

TEST(Status, IsOneWhenALineWasRefusedAndTheOthersAreCarriedOut) {
  const Played played = Play(kShown + "click cmdBack\ndata NumAtts");
  EXPECT_EQ(played.Status, 1);
  EXPECT_EQ(played.Out.back(), R"({"data":"NumAtts","value":4})");
  EXPECT_EQ(played.Out[played.Out.size() - 2], R"({"refused":"cmdBack: disabled","line":3})");
}

TEST(Status, IsTwoWhenALineIsNoneAndNothingAfterItIsDone) {
  for (const char* line : {"jump",
                           "click",
                           "click cmdNext twice",
                           "host",
                           "host dance",
                           "host answer maybe",
                           "host show now",
                           "host load",
                           "host load a b 1 more",
                           "select lstMethods",
                           "select lstMethods one",
                           "select lstMethods 99999999999",
                           "type a b",
                           "key Enter",
                           "over",
                           "over cmdNext 1",
                           "over cmdNext 1 x",
                           "drag cmdNext",
                           "drop it",
                           "scroll vsrO",
                           "tick",
                           "tick Timer1 x",
                           "close it",
                           "get cmdNext",
                           "data",
                           "forms all",
                           "call GetAttValue 0",
                           "call Sin 0 1",
                           "call GetAttValue x 1",
                           "call GetAttValue 0 nan",
                           "shot",
                           "press tbMovUp",
                           "grab",
                           "focus",
                           "host points",
                           "host points [1",
                           "host points [1]",
                           "host points 5",
                           "type \"a",
                           "dump a b"}) {
    const Played played = Play("host load model.kst\n" + String(line) + "\ndata NumAtts");
    EXPECT_EQ(played.Status, 2) << line;
    EXPECT_EQ(played.Out.size(), 2U) << line;
    EXPECT_EQ(played.Errors.substr(0, 8), "line 2: ") << line;
    EXPECT_GT(played.Errors.size(), 10U) << line;
    EXPECT_EQ(played.Errors.back(), '\n') << line;
  }
}

TEST(Status, IsTwoAlsoAfterARefusal) { EXPECT_EQ(Play(kShown + "click cmdBack\njump").Status, 2); }

TEST(Status, OfAFaultInsideAModalCallEndsTheScriptThere) {
  const Played played = Play(kShown + "click cmdNext\njump\nclick cmdCancel");
  EXPECT_EQ(played.Status, 2);
  EXPECT_EQ(played.Errors.substr(0, 8), "line 4: ");
  EXPECT_EQ(played.Out.back(), R"({"show":"frmIniImpOrder","modal":true})");
}

TEST(Script, MayEndInsideModalSteps) {
  const Played played = Play(kShown + "click cmdNext\nforms");
  EXPECT_EQ(played.Status, 0);
  EXPECT_EQ(
      played.Out.back(),
      R"({"forms":[{"name":"frmTRNSelMethod","visible":false,"modal":false},{"name":"frmIniImpOrder","visible":true,"modal":true}]})");
}

TEST(Script, MayHaveLineEndsOfEitherKindAndNoneAtItsEnd) {
  const Played played = Play("host load model.kst\r\n\r\n# remark\r\ndata NumAtts");
  EXPECT_EQ(played.Status, 0);
  EXPECT_EQ(played.Out.back(), R"({"data":"NumAtts","value":4})");
}

TEST(Script, CountsCommentsAndBlankLinesAsLines) {
  EXPECT_EQ(Play("# one \"\n\nclick cmdNext").Out, Lines{R"({"refused":"cmdNext: does not exist","line":3})"});
}

TEST(Names, AreOfTheActiveFormOrOfTheFormThatIsNamed) {
  EXPECT_EQ(OnFirstStep(
                "click cmdNext\nget cmdAdd.Caption\nget frmTRNSelMethod.cmdNext.Caption\nget frmTRNSelMethod.Visible"),
            (Lines{R"({"hide":"frmTRNSelMethod"})",
                   R"({"event":"SendMasseges","Msg":"Rank the attributes according to their relative importance."})",
                   R"({"show":"frmIniImpOrder","modal":true})", R"({"get":"cmdAdd.Caption","value":"&Add"})",
                   R"({"get":"frmTRNSelMethod.cmdNext.Caption","value":"&Next >"})",
                   R"({"get":"frmTRNSelMethod.Visible","value":false})"}));
}

TEST(Names, OfAnElementThatIsAloneMayLeaveItsNumberOut) {
  Session session(ModelOf(2, 1));
  session.Given(kOpenOrdering);
  EXPECT_EQ(session.Ask("get cmdAttA1.Tag\nget cmdAttA1(0).Tag\nget cmdAttA1.Count\nget cmdAttA.Count"),
            (Lines{R"("C2")", R"("C2")", "1", "2"}));
  EXPECT_EQ(Only(session.Play("get cmdAttA.Tag"), "refused").size(), 1U);
}

TEST(Names, OfWhatDoesNotExistAreRefused) {
  for (const char* name : {"cmdNone", "lstMethods(1)", "imgPicture(2)", "imgPicture(99999999999)", "imgPicture(-1)",
                           "cmdNext()", "cmdNext(x)", "frmDirectB.cmdNext", "frmNone.cmdNext", "imgPicture(1"}) {
    const Played played = Play(kShown + "click " + name);
    EXPECT_EQ(played.Out.back(), R"({"refused":")" + String(name) + R"(: does not exist","line":3})");
    EXPECT_EQ(played.Status, 1) << name;
  }
}

TEST(Names, OfPropertiesAndVariablesThatDoNotExistAreRefused) {
  for (const char* line : {"get cmdNext.Text", "get cmdNext.Count", "get cmdNext.caption", "get lstMethods.None",
                           "data None", "data numatts", "dump frmDirectB", "get Timer9.Interval"}) {
    EXPECT_EQ(Play(kShown + line).Status, 1) << line;
  }
}

// Numbers.

TEST(Numbers, AreTheShortestTextThatReadsBackToTheSame) {
  const auto text = [](auto x) { return JsonLine(ToJson(x)); };
  EXPECT_EQ(text(0.1), "0.1");
  EXPECT_EQ(text(0.1F), "0.1");
  EXPECT_EQ(text(117.6F), "117.6");
  EXPECT_EQ(text(static_cast<Double>(117.6F)), "117.5999984741211");
  EXPECT_EQ(text(1.0), "1");
  EXPECT_EQ(text(-3.0F), "-3");
  EXPECT_EQ(text(0.3 + 0.6), "0.8999999999999999");
  EXPECT_EQ(text(398.7849550286181), "398.7849550286181");
  EXPECT_EQ(text(19.32113402061856), "19.32113402061856");
  EXPECT_EQ(text(2147483662.0), "2147483662");
  EXPECT_EQ(text(1e300), "1e+300");
  EXPECT_EQ(text(16777216.0F), "16777216");
  EXPECT_EQ(text(0.0001), "0.0001");
  EXPECT_EQ(text(1e-7), "1e-07");
}

String Digits(const String& number) {
  String digits;
  for (const char c : number) {
    if (c == 'e') break;
    if (c >= '0' && c <= '9') digits += c;
  }
  digits.erase(0, digits.find_first_not_of('0'));
  digits.erase(digits.find_last_not_of('0') + 1);
  return digits;
}

template <class Number>
void HasTheFewestDigits(Number x) {
  const String printed = JsonLine(ToJson(x));
  Number back{};
  std::from_chars(printed.data(), printed.data() + printed.size(), back);
  RC_ASSERT(back == x);
  char shortest[64];
  const auto end = std::to_chars(shortest, shortest + sizeof shortest, x, std::chars_format::scientific).ptr;
  RC_ASSERT(Digits(printed).size() <= Digits(String(shortest, end)).size());
}

RC_GTEST_PROP(Numbers, OfEitherWidthHaveTheFewestDigits, ()) {
  const Double x = *rc::gen::inRange(-20000000, 20000000) / static_cast<Double>(*rc::gen::inRange(1, 9973));
  HasTheFewestDigits(x);
  HasTheFewestDigits(static_cast<Single>(x));
}

TEST(Numbers, OtherThanFiniteAreNull) {
  EXPECT_EQ(JsonLine(ToJson(std::nan(""))), "null");
  EXPECT_EQ(JsonLine(ToJson(static_cast<Single>(INFINITY))), "null");
}

TEST(Values, PrintEachTypeOfVariant) {
  const auto text = [](const Variant& v) { return JsonLine(ToJson(v)); };
  EXPECT_EQ(text({}), "null");
  EXPECT_EQ(text(Null()), "null");
  EXPECT_EQ(text(Integer(-3)), "-3");
  EXPECT_EQ(text(Long(70000)), "70000");
  EXPECT_EQ(text(0.1F), "0.1");
  EXPECT_EQ(text(0.37), "0.37");
  EXPECT_EQ(text(Currency{12345}), "1.2345");
  EXPECT_EQ(text(Date{2.5}), "2.5");
  EXPECT_EQ(text(String("a\"b\n")), R"("a\"b\n")");
  EXPECT_EQ(text(true), "true");
  EXPECT_EQ(text(std::uint8_t(200)), "200");
}

TEST(Values, KeepTheirLineWhereATextIsNoUtf8) {
  EXPECT_EQ(JsonLine({{"a", String("x\xFFy")}, {"b", Json::array()}, {"c", Json::object()}}),
            "{\"a\":\"x\xEF\xBF\xBDy\",\"b\":[],\"c\":{}}");
}

TEST(Data, KnowsEveryVariableAndEveryFieldOfTheModel) {
  const WizardData data;
  for (const char* name : {"NumAtts",
                           "AttName",
                           "AttDescription",
                           "AttOrientation",
                           "RawScores",
                           "Scores",
                           "ScoreMin",
                           "ScoreMax",
                           "WorstScore",
                           "BestScore",
                           "ValuePointCount",
                           "ValuePointX",
                           "ValuePointY",
                           "ValueFuncType",
                           "ValueFuncA",
                           "ValueFuncB",
                           "RJType",
                           "SavedBRefAttID",
                           "SavedCRefAttID",
                           "SavedRefAttWR",
                           "SavedWeights",
                           "SavedWeightsH",
                           "SavedWeightsL",
                           "KestaDir",
                           "FileIndex",
                           "PathAndFileName",
                           "MethodIndex",
                           "IncnsistCtrl",
                           "OrderChanged",
                           "BAttCount",
                           "CAttCount",
                           "BOM",
                           "COM",
                           "AttO",
                           "BRefAttID",
                           "CRefAttID",
                           "BRankCount",
                           "CRankCount",
                           "WeightsL",
                           "Weights",
                           "WeightsH",
                           "WeightDone",
                           "RefAttWR",
                           "ABPoints1",
                           "ABPoints2"}) {
    EXPECT_TRUE(DataJson(data, name)) << name;
  }
  EXPECT_FALSE(DataJson(data, ""));
}

TEST(Data, PrintsArraysAsListsAndMatricesWithTheFirstIndexOutermost) {
  WizardData data = ModelOf(2, 1);
  EXPECT_EQ(JsonLine(*DataJson(data, "AttO")), "[]");
  EXPECT_EQ(JsonLine(*DataJson(data, "ABPoints1")), "[]");
  const Json x = *DataJson(data, "ValuePointX");
  ASSERT_EQ(x.size(), 31U);
  EXPECT_EQ(x[1].size(), 11U);
  EXPECT_EQ(JsonLine(x[1]), "[0,50,100,null,null,null,null,null,null,null,null]");
  EXPECT_EQ(DataJson(data, "RawScores")->size(), 51U);
  EXPECT_EQ((*DataJson(data, "Scores"))[0].size(), 31U);
  data.ABPoints1.Allocate(1);
  data.ABPoints1[0].AX = 0.1F;
  data.ABPoints1[0].AOrientation = 2;
  EXPECT_EQ(JsonLine(*DataJson(data, "ABPoints1")),
            R"([{"AX":0.1,"AY":0,"BX":0,"BY":0,"AOrientation":2,"ALX":0,"ALY":0,"AUX":0,"AUY":0}])");
}

}  // namespace
}  // namespace Tarnwise
