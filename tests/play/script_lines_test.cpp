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

// Properties of each kind of control.

struct Everything : Form {
  explicit Everything(std::shared_ptr<Platform> screen) : Form(std::move(screen), "frmEverything") {}

  Label label{*this, this, "label"};
  CommandButton button{*this, this, "button"};
  TextBox box{*this, this, "box"};
  ListBox list{*this, this, "list"};
  OptionButton option{*this, this, "option"};
  CheckBox check{*this, this, "check"};
  Frame frame{*this, this, "frame"};
  VScrollBar bar{*this, this, "bar"};
  Timer timer{*this, this, "timer"};
  Image image{*this, this, "image"};
  Tarnwise::Shape shape{*this, this, "shape"};
  Line line{*this, this, "line"};
  PictureBox picture{*this, this, "picture"};
  TabStrip tabs{*this, this, "tabs"};
  Toolbar tools{*this, this, "tools"};
  ImageCombo images{*this, this, "images"};
  ComboBox combo{*this, this, "combo"};
  Grid grid{*this, this, "grid"};
};

TEST(Properties, AreThereForEveryKindThatHasThem) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  const auto form = std::make_shared<Everything>(driver->Screen());
  const auto has = [](const Control& control, const std::vector<const char*>& names) {
    for (const char* name : names) EXPECT_TRUE(PropertyJson(control, name)) << control.Name << '.' << name;
  };
  const std::vector<const char*> common = {"Left",    "Top", "Width",       "Height",      "Visible",
                                           "Enabled", "Tag", "ToolTipText", "MousePointer"};
  for (const Control* control : form->Controls()) {
    if (control->Type != Kind::Timer && control->Type != Kind::Line) has(*control, common);
    EXPECT_FALSE(PropertyJson(*control, "Nothing"));
  }
  has(*form, {"Caption", "Visible", "Left", "Top", "Width", "Height"});
  has(form->label, {"Caption", "ForeColor", "BackColor"});
  has(form->button, {"Caption", "BackColor"});
  has(form->box, {"Text", "SelStart", "SelLength"});
  has(form->list, {"ListIndex", "ListCount", "List"});
  has(form->combo, {"ListIndex", "ListCount", "List"});
  has(form->option, {"Caption", "Value"});
  has(form->check, {"Caption", "Value"});
  has(form->frame, {"Caption"});
  has(form->bar, {"Value", "Min", "Max"});
  has(form->timer, {"Interval", "Enabled"});
  has(form->shape, {"FillColor", "BorderColor"});
  has(form->line, {"X1", "Y1", "X2", "Y2", "BorderColor", "Visible"});
  has(form->picture, {"BackColor", "Drawing"});
  has(form->tabs, {"SelectedItem", "Items"});
  has(form->images, {"SelectedItem", "Items"});
  has(form->tools, {"Buttons"});
  has(form->grid, {"Rows", "Cols", "ColWidth", "TextMatrix"});
}

TEST(Properties, PrintTheirValues) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  const auto form = std::make_shared<Everything>(driver->Screen());
  const auto value = [](const Control& control, const char* name) { return JsonLine(*PropertyJson(control, name)); };
  form->list.List = Lines{"a", "b"};
  form->list.ListIndex = 1;
  EXPECT_EQ(value(form->list, "List") + value(form->list, "ListCount") + value(form->list, "ListIndex"),
            R"(["a","b"]21)");
  form->option.Value = true;
  form->check.Value = 1;
  EXPECT_EQ(value(form->option, "Value") + value(form->check, "Value"), "true1");
  form->label.ForeColor = kHighlightText;
  EXPECT_EQ(value(form->label, "ForeColor"), "2147483662");
  form->label.Left = 114.6F;
  EXPECT_EQ(value(form->label, "Left"), "114.6");
  form->tools.Buttons = {{"up", "", "", true}, {"down", "", "", false}};
  EXPECT_EQ(value(form->tools, "Buttons"), R"({"up":true,"down":false})");
  form->images.Items = {{"k", "one", "", ""}, {"l", "two", "", ""}};
  form->images.SelectedItem = 2;
  EXPECT_EQ(value(form->images, "Items") + value(form->images, "SelectedItem"), R"(["one","two"]2)");
  form->tabs.Tabs = {{"first", "f"}, {"second", "s"}};
  EXPECT_EQ(value(form->tabs, "Items") + value(form->tabs, "SelectedItem"), R"(["first","second"]1)");
  form->grid.Shape(2, 2);
  form->grid.SetCell(1, 0, "x");
  form->grid.SetColWidth(1, 630);
  EXPECT_EQ(value(form->grid, "TextMatrix") + value(form->grid, "ColWidth") + value(form->grid, "Rows") +
                value(form->grid, "Cols"),
            R"([["",""],["x",""]][0,630]22)");
}

TEST(Properties, ListADrawingInTheOrderDrawnUntilItIsCleared) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  const auto form = std::make_shared<Everything>(driver->Screen());
  form->picture.Draw({Drawn::What::Polygon, {0, 250, 126, 126, 118, 76}, 12640511, 1});
  form->picture.Draw({Drawn::What::Line, {100, 260.5F, 1900, 260}, 255, 2});
  form->picture.Draw({Drawn::What::Box, {1, 2, 3, 4}, 16711680, 1});
  EXPECT_EQ(
      JsonLine(*PropertyJson(form->picture, "Drawing")),
      R"([{"polygon":[[0,250],[126,126],[118,76]],"fill":12640511},{"line":[100,260.5,1900,260],"color":255,"width":2},{"box":[1,2,3,4],"color":16711680}])");
  form->picture.Cls();
  EXPECT_EQ(JsonLine(*PropertyJson(form->picture, "Drawing")), "[]");
}

}  // namespace
}  // namespace Tarnwise
