// What a script's user can do, and what is refused because a person could not.
#include "direct/Ward.h"
#include "play/Played.h"
#include "runtime/Text.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

// The reason of the only refusal.
String Why(const Lines& printed) {
  const Lines refused = Only(printed, R"({"refused")");
  if (refused.size() != 1) return std::to_string(refused.size()) + " refusals";
  return Json::parse(refused[0])["refused"];
}

Lines Ordering(const String& lines) {
  Session session(ModelOf(2, 2));
  session.Given(kOpenOrdering);
  return session.Play(lines);
}

TEST(Refused, IsWhatIsDisabled) {
  EXPECT_EQ(Why(OnFirstStep("click cmdBack")), "cmdBack: disabled");
  EXPECT_EQ(Why(OnFirstStep("focus cmdFinish")), "cmdFinish: disabled");
  EXPECT_EQ(Why(Ordering("scroll vsrAtt 3")), "vsrAtt: disabled");
}

TEST(Refused, IsWhatIsHiddenOrStandsInAHiddenForm) {
  EXPECT_EQ(Why(Ordering("click cmdAttB(0)")), "cmdAttB(0): hidden");
  EXPECT_EQ(Why(Ordering("click frmTRNSelMethod.cmdNext")), "frmTRNSelMethod.cmdNext: hidden");
}

TEST(Refused, IsWhatIsBlockedByAModalForm) {
  EXPECT_EQ(Why(Ordering("host show\nclick frmTRNSelMethod.cmdNext")),
            "frmTRNSelMethod.cmdNext: blocked by a modal form");
}

TEST(Refused, IsWhatAStagePanelCovers) {
  EXPECT_EQ(Why(Ordering("click cmdAttButtons(0)")), "cmdAttButtons(0): hidden");
  EXPECT_EQ(Why(Ward().Play("click tsWeightRatios")), "tsWeightRatios: covered");
  EXPECT_EQ(Why(Ward().Play(JudgeAll() + "click cmdNext\nselect imgcmbTargetAtt 3")), "imgcmbTargetAtt: covered");
}

TEST(Refused, ChangesNothing) {
  Ward session;
  const String state = "dump\ndata WeightsH\nforms\n";
  const Lines before = session.Play(state);
  for (const char* line :
       {"click cmdNext", "select tsWeightRatios 2", "select imgcmbTargetAtt 8", "select imgcmbTargetAtt 0",
        "scroll vsrO 1", "scroll vsrO 32001", "press cmdEnter up", "focus lblAlarm(0)", "grab cmdEnter", "drop",
        "over picTradeOffsRange 1 1", "drag cmdEnter picTradeOffsRange", "drag picHandle(0) gridBRJ", "tick Timer1",
        "tick cmdEnter", "click Timer1", "click BorderL(0)", "select cmdEnter 1", "drag picHandle(0) picNone"}) {
    const Lines printed = session.Play(String(line) + "\n" + state);
    ASSERT_EQ(printed.size(), before.size() + 1) << line;
    EXPECT_EQ(printed[0].substr(0, 11), R"({"refused":)") << line;
    EXPECT_EQ(Lines(printed.begin() + 1, printed.end()), before) << line;
  }
}

TEST(Refused, NeverIsAControlThatAViewportClips) {
  std::vector<RankedAtt> atts;
  for (int i = 0; i < 12; ++i) atts.push_back(B(i + 1));
  atts.push_back(C(1));
  DirectSession session(atts, 11, 12);
  EXPECT_EQ(session.Play("click lblOID(11)"), Lines{});
  EXPECT_EQ(session.Status(), 0);
}

TEST(Refused, NeverIsAClickWhoseFocusMoveRaisedAMessage) {
  Ward session;
  EXPECT_EQ(session.Play("focus txtWRLower\nkey Ctrl+A\ntype 0\nclick cmdEnter").size(), 3U);
  EXPECT_EQ(session.Status(), 0);
}

TEST(Click, PressesChecksAndChooses) {
  Session session(ModelOf(2, 2));
  session.Given("host show");
  EXPECT_EQ(
      session.Ask("get chkIncnsistCtrl.Value\nclick chkIncnsistCtrl\nget chkIncnsistCtrl.Value\nclick chkIncnsistCtrl\n"
                  "get chkIncnsistCtrl.Value"),
      (Lines{"1", "0", "1"}));
  session.Given("click cmdNext");
  EXPECT_EQ(
      session.Ask("click optAttInfo(1)\nget optAttInfo(0).Value\nget optAttInfo(1).Value\nclick lblAttName(0)\n"
                  "get optAttInfo(0).Value\nget optAttInfo(1).Value\nclick optAttInfo1(0)\nget optAttInfo(0).Value"),
      (Lines{"false", "true", "true", "false", "true"}));
}

TEST(Click, OnATextBoxGivesItTheFocus) {
  EXPECT_EQ(Ward().Ask("click txtWRUpper\ntype 5\nget txtWRUpper.Text"), Lines{R"("1.205")"});
}

TEST(Click, IsRefusedWhereItsMiddleMeansSomethingElseOnEveryScreen) {
  for (const char* name : {"imgcmbTargetAtt", "tsTab", "frmDirectB.tsTab"}) {
    EXPECT_EQ(Why(Ward().Play("click " + String(name))), String(name) + ": can't be clicked");
  }
  EXPECT_EQ(Why(OnFirstStep("click lstMethods")), "lstMethods: can't be clicked");
  DirectSession session({B(1), B(2), B(3), B(4), B(5), C(1)}, 4, 5);
  EXPECT_EQ(Why(session.Play("click vsrO")), "vsrO: can't be clicked");
}

TEST(Select, CountsAsEachControlCounts) {
  Session session(ModelOf(2, 2));
  session.Given("host show");
  EXPECT_EQ(session.Ask("select lstMethods 1\nget lstMethods.ListIndex\nselect lstMethods 0\nget lstMethods.ListIndex\n"
                        "get lstMethods.ListCount"),
            (Lines{"1", "0", "2"}));
  EXPECT_EQ(Why(session.Play("select lstMethods 2")), "lstMethods: has no such row");
  EXPECT_EQ(Why(session.Play("select lstMethods -1")), "lstMethods: has no such row");
  EXPECT_EQ(
      Ward().Ask("select imgcmbTargetAtt 7\nget imgcmbTargetAtt.SelectedItem\nselect tsTab 2\nget tsTab.SelectedItem"),
      (Lines{"7", "2"}));
  EXPECT_EQ(Why(Ward().Play("select tsTab 3")), "tsTab: has no such row");
}

TEST(Drag, BringsThePointerToThePointAsItIsNamed) {
  Ward session;
  for (int k = 1; k < 60; ++k) {
    const String at = NumberText(k * 2.37);  // some of them no Single can hold
    EXPECT_EQ(session.Ask("drag picHandle(0) picTradeOffsRange " + at + " " + at +
                          "\nget BorderL(0).X2\nget BorderL(0).Y2\n"),
              (Lines{at, at}));
  }
  EXPECT_EQ(session.Ask("drag picHandle(1) picTradeOffsRange 150.57 80.43\ndrag picHandle(0) picHandle(1)\n"
                        "get BorderL(0).X2\nget BorderL(0).Y2"),
            (Lines{"150.57", "80.43"}));
}

TEST(Drag, OverWhatTakesNoDragsIsOverNothing) {
  Session session(ModelOf(2, 2));
  session.Given(
      "host points zero\nhost show\nselect lstMethods 1\nclick cmdNext\ndrag cmdAttA(0) picOrder(0)\nclick cmdAdd\n"
      "drag cmdAttA(1) picOrder(1)\ndrag cmdAttA1(0) picOrder1(0)\nclick cmdAdd1\ndrag cmdAttA1(1) picOrder1(1)\n"
      "click cmdNext\nclick cmdAttButtons(0)\nclick cmdAttButtons1(0)\nclick cmdNext");
  const String left = "get shpPCA.Left\n";
  const Lines before = session.Ask(left);
  EXPECT_EQ(session.Ask("drag shpPCA picTradeOffsRange 2000 2000\n" + left), Lines{"1925"});
  EXPECT_EQ(session.Ask("drag shpPCA frmTradeOffsB 10 10\n" + left), before);
  EXPECT_EQ(session.Ask("grab shpPCA\nover picTradeOffsRange 2000 2000\nover cmdEnter\ndrop\n" + left), before);
  EXPECT_EQ(session.Status(), 0);
  EXPECT_EQ(Why(session.Play("drag shpPCA cmdEnter\ndrop")), "nothing is being dragged");
}

TEST(Focus, InATextBoxStandsAtTheEndWithNothingSelected) {
  EXPECT_EQ(Ward().Ask("focus txtWRLower\nget txtWRLower.SelStart\nget txtWRLower.SelLength"), (Lines{"4", "0"}));
}

TEST(Focus, GivesTheFormerControlItsLostFocusFirst) {
  EXPECT_EQ(Ward().Play("focus txtWRLower\nkey Ctrl+A\ntype 9\nfocus txtWRUpper").size(), 3U);
}

TEST(Focus, IsTakenByWhatTakesItAlone) {
  EXPECT_EQ(Why(Ward().Play("focus lblAlarm(0)")), "lblAlarm(0): takes no focus");
  EXPECT_EQ(Ward().Play("focus picHandle(0)"), Lines{});
}

TEST(Keys, MoveAndRemoveInATextBox) {
  const String typed = "focus txtWRUpper\nkey Ctrl+A\ntype 12345\n";
  const String ask = "get txtWRUpper.Text\nget txtWRUpper.SelStart\n";
  Ward session;
  const auto after = [&](const String& keys) {
    const Lines values = session.Ask(typed + keys + ask);
    return values[0] + values[1];
  };
  EXPECT_EQ(after(""), R"("12345"5)");
  EXPECT_EQ(after("key Backspace\n"), R"("1234"4)");
  EXPECT_EQ(after("key Home\nkey Delete\n"), R"("2345"0)");
  EXPECT_EQ(after("key Home\nkey Right\nkey Backspace\n"), R"("2345"0)");
  EXPECT_EQ(after("key Left\nkey Left\nkey Delete\n"), R"("1235"3)");
  EXPECT_EQ(after("key Home\nkey Backspace\n"), R"("12345"0)");
  EXPECT_EQ(after("key Delete\n"), R"("12345"5)");
  EXPECT_EQ(after("key Home\nkey End\n"), R"("12345"5)");
  EXPECT_EQ(after("key Ctrl+A\nkey Left\n"), R"("12345"0)");
  EXPECT_EQ(after("key Ctrl+A\nkey Right\n"), R"("12345"5)");
  EXPECT_EQ(after("key Ctrl+A\nkey Delete\n"), R"(""0)");
  EXPECT_EQ(after("key Escape\nkey Shift+Insert\nkey Ctrl+V\n"), R"("12345"5)");
}

TEST(Keys, GoToTheControlWithTheFocus) {
  Session session(ModelOf(2, 2));
  session.Given("host show");
  EXPECT_EQ(session.Ask("focus chkIncnsistCtrl\nkey Space\nget chkIncnsistCtrl.Value"), Lines{"0"});
  EXPECT_EQ(Only(session.Play("focus cmdNext\nkey Space"), R"({"show")"),
            Lines{R"({"show":"frmIniImpOrder","modal":true})"});
  EXPECT_EQ(Only(session.Play("focus cmdNext\nkey Return"), R"({"show")"),
            Lines{R"({"show":"frmIniImpOrder","modal":true})"});
}

TEST(Keys, NeedAFormToTakeThem) {
  EXPECT_EQ(Play("key Tab").Status, 1);
  EXPECT_EQ(Play("type x").Status, 1);
  EXPECT_EQ(Play("close").Status, 1);
  EXPECT_EQ(Play("shot a.png").Status, 1);
}

TEST(Keys, TabWalksTheOrderOfTheLayoutBothWays) {
  const String typed = "focus txtWRLower\nkey Tab\nkey Home\ntype 3\n";
  EXPECT_EQ(Ward().Ask(typed + "get txtWRUpper.Text\nget txtWRLower.Text"), (Lines{R"("31.20")", R"("1.20")"}));
  EXPECT_EQ(Ward().Ask(typed + "key Shift+Tab\nkey Home\nkey Delete\ntype 0\nget txtWRLower.Text"), Lines{R"("0.20")"});
}

TEST(Type, SendsDownPressAndUpForEachCharacter) {
  // The second point goes as its key comes up, before the next character is typed.
  EXPECT_EQ(Ward().Ask("focus txtWRUpper\nkey Ctrl+A\ntype 1..2.5\nget txtWRUpper.Text"), Lines{R"("1.25")"});
}

TEST(Type, OnAButtonPressesItByItsBlank) {
  EXPECT_EQ(Only(Ward().Play("focus cmdEnter\ntype \"x y\"\nget cmdEnter.Enabled"), "pointer").size(), 2U);
}

TEST(Grab, NeedsASourceAndOnlyOneDragAtATime) {
  EXPECT_EQ(Why(Ordering("grab cmdAdd")), "cmdAdd: can't be dragged");
  for (const char* line : {"grab cmdAttA(1)", "click cmdAdd", "focus cmdAdd", "select cmdAdd 1", "scroll vsrOrder 0",
                           "press cmdAdd x", "close", "drag cmdAttA(1) picOrder(0)"}) {
    EXPECT_EQ(Why(Ordering("grab cmdAttA(0)\n" + String(line))), "a drag is under way") << line;
  }
}

TEST(Over, EntersATargetAndLeavesTheFormerOne) {
  const String first = "get picOrder(0).Drawing\n";
  const String second = "get picOrder(1).Drawing\n";
  Session session(ModelOf(2, 2));
  session.Given(String(kOpenOrdering) + "click cmdAdd");
  const Lines drawings =
      session.Ask("grab cmdAttA(0)\n" + first + "over picOrder(0)\n" + first + "over picOrder(0)\n" + first +
                  "over picOrder(1)\n" + first + second + "drop\n" + second + "get cmdAttB(0).Top");
  ASSERT_EQ(drawings.size(), 7U);
  EXPECT_EQ(drawings[0], "[]");
  EXPECT_EQ(Json::parse(drawings[1]).size(), 3U);
  EXPECT_EQ(drawings[2], drawings[1]);
  EXPECT_EQ(drawings[3], "[]");
  EXPECT_EQ(drawings[4], drawings[1]);
  EXPECT_EQ(drawings[5], "[]");
  EXPECT_EQ(drawings[6], "815");
}

TEST(Over, NeedsADragAndATargetThatTakesOne) {
  EXPECT_EQ(Why(Ordering("over picOrder(0)")), "nothing is being dragged");
  EXPECT_EQ(Why(Ordering("drop")), "nothing is being dragged");
  EXPECT_EQ(Why(Ordering("grab cmdAttA(0)\nover picOrder(7)\n")), "picOrder(7): does not exist");
  EXPECT_EQ(Why(OnFirstStep("drag lstMethods cmdNext")), "lstMethods: can't be dragged");
}

TEST(Over, BringsThePointerToThePointNamedInTheTargetsOwnScale) {
  EXPECT_EQ(
      Ward().Ask("grab picHandle(0)\nover picTradeOffsRange 30.5 40.25\nget picHandle(0).Left\nget picHandle(0).Top\n"
                 "over picTradeOffsRange\nget picHandle(0).Left\nget picHandle(0).Top"),
      (Lines{"27.5", "37.25", "123", "123"}));
}

TEST(Drop, OfAHandleEndsTheDrag) {
  EXPECT_EQ(Ward().Play("grab picHandle(0)\nover picTradeOffsRange\ndrop\nclick cmdHelp").size(), 1U);
}

TEST(Drag, OntoARowThatCarriesButtonsReachesTheOneThatIsNamed) {
  const String two = "drag cmdAttA(0) picOrder(0)\n";
  EXPECT_EQ(Only(Ordering(two + "drag cmdAttA(1) picOrder(0)\nget cmdAttB(1).Top"), "value"),
            Lines{R"({"get":"cmdAttB(1).Top","value":555})"});
  EXPECT_EQ(Only(Ordering(two + "drag cmdAttA(1) cmdAttB(0)\nget cmdAttB(1).Top"), "value"),
            Lines{R"({"get":"cmdAttB(1).Top","value":555})"});
}

TEST(Scroll, BringsTheBarToTheValueWithinItsRange) {
  DirectSession session({B(1), B(2), B(3), B(4), B(5), C(1)}, 4, 5);
  EXPECT_EQ(session.Ask("scroll vsrO 32000\nget vsrO.Value\nscroll vsrO 0\nget vsrO.Value"), (Lines{"32000", "0"}));
  EXPECT_EQ(Why(session.Play("scroll vsrO 32001")), "vsrO: does not scroll so far");
  EXPECT_EQ(Why(session.Play("scroll vsrO -1")), "vsrO: does not scroll so far");
  EXPECT_EQ(Why(session.Play("scroll cmdEnter 1")), "cmdEnter: is no scroll bar");
}

TEST(Tick, FiresSoManyTimesAndIsRefusedWhileTheTimerStands) {
  Ward session;
  EXPECT_EQ(Why(session.Play("tick Timer1")), "Timer1: stopped");
  const String invalid = "drag picHandle(0) picTradeOffsRange 3 100\n";
  EXPECT_EQ(session.Ask(invalid + "tick Timer1 3\nget shpAlarm(1).FillColor"), Lines{"65535"});
  EXPECT_EQ(session.Ask(invalid + "tick Timer1 4\nget shpAlarm(1).FillColor"), Lines{"16777215"});
  EXPECT_EQ(session.Ask(invalid + "tick Timer1\nget shpAlarm(1).FillColor"), Lines{"65535"});
}

TEST(Close, IsTheCancelOfTheActiveForm) {
  EXPECT_EQ(OnFirstStep("close")[0], R"({"event":"UnloadTarnwise","fIndex":1,"WeightsDone":false})");
  EXPECT_EQ(Ordering("close")[0], R"({"event":"UnloadTarnwise","fIndex":3,"WeightsDone":false})");
}

TEST(HostShow, InALaterStepShowsTheFirstWhichStaysBlocked) {
  EXPECT_EQ(Ordering("host show\nclick frmTRNSelMethod.cmdNext\nforms"),
            (Lines{R"({"show":"frmTRNSelMethod","modal":false})",
                   R"({"refused":"frmTRNSelMethod.cmdNext: blocked by a modal form","line":7})",
                   R"({"forms":[{"name":"frmTRNSelMethod","visible":true,"modal":false},)"
                   R"({"name":"frmIniImpOrder","visible":true,"modal":true}]})"}));
}

TEST(Press, NeedsAToolbar) { EXPECT_EQ(Why(Ward().Play("press cmdEnter up")), "cmdEnter: is no toolbar"); }

TEST(Dump, ListsEveryControlOfAFormWithItsProperties) {
  const Json all = Json::parse(Ward().Play("dump")[0]);
  EXPECT_EQ(all["dump"], "frmDirectB");
  EXPECT_EQ(all["form"]["Caption"], "Tarnwise: Estimate intervals of the weight ratios");
  std::vector<String> names;
  for (const Json& control : all["controls"]) names.push_back(control["name"]);
  for (const char* name :
       {"imgcmbTargetAtt", "picHandle(0)", "picHandle(1)", "cmdAttButtons1(2)", "Timer1", "gridCRJ", "labPCX(6)"}) {
    EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
  }
  const Json other = Json::parse(Ward().Play("dump frmTRNSelMethod")[0]);
  EXPECT_EQ(other["dump"], "frmTRNSelMethod");
  EXPECT_EQ(other["form"]["Visible"], false);
}

TEST(Shot, DoesNothingWithoutAScreen) { EXPECT_EQ(Ward().Play("shot a.png"), Lines{R"({"shot":null})"}); }

TEST(Typing, EndsWhereNothingTakesKeysAnyMoreAndIsNotRefused) {
  const Played played = Play(kShown + "focus cmdCancel\ntype \"  \"\nforms\n");
  EXPECT_EQ(Only(played.Out, R"({"refused")"), Lines{});
  EXPECT_EQ(played.Out.back(), R"({"forms":[]})");
  EXPECT_EQ(played.Status, 0);
}

TEST(Typing, GoesOnOnlyWhenTheModalCallThatACharacterEndedHasReturned) {
  // The first blank presses Back of the ordering step, the second one Next of the step that it led to.
  const Played played = Play(kShown + "click cmdNext\nfocus cmdBack\ntype \"   \"\nforms\n");
  EXPECT_EQ(Only(played.Out, R"({"release":"frmIniImpOrder")").size(), 1U);
  const Json forms = Json::parse(played.Out.back())["forms"];
  ASSERT_EQ(forms.size(), 2U);
  EXPECT_EQ(forms[1], (Json{{"name", "frmIniImpOrder"}, {"visible", true}, {"modal", true}}));
}

}  // namespace
}  // namespace Tarnwise
