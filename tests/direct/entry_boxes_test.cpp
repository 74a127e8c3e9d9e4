// Typing an interval: which keys pass, what is checked, and where the handles go.
#include "direct/Ward.h"
#include "direct/frmDirectB.h"
#include "support/TestHost.h"
#include "view/Input.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

String TooLarge(const String& upper) {
  return R"({"msgbox":"The weight ratio you entered should be greater than zero and less than or equal to )" + upper +
         R"(!","style":48,"title":"KESTA"})";
}

const String kBeep = R"({"beep":true})";
const String kToLower = R"({"focus":"txtWRLower"})";
const String kToUpper = R"({"focus":"txtWRUpper"})";
const String kToReStart = R"({"focus":"cmdReStart"})";

// A wedge from 1.25 to 1.5 on Care, the caret behind the text of a box that was emptied.
String InEmptied(const String& box) {
  return Choose(kCare) + Wedge(125, 150) + "focus " + box + "\nkey Ctrl+A\nkey Backspace\n";
}

Lines Values(const Lines& lines) {
  Lines values;
  for (const String& line : Only(lines, R"("value":)")) values.push_back(line.substr(line.find(R"("value":)") + 8));
  for (String& value : values) value.pop_back();
  return values;
}

TEST(EntryKeys, LetDigitsAndThePointThroughAndDropAllElse) {
  Ward session;
  EXPECT_EQ(session.Ask(InEmptied("txtWRLower") + "type \"a1 ,2x.3-4e5\"\nget txtWRLower.Text"), Lines{R"("12.345")"});
  EXPECT_EQ(session.Ask(InEmptied("txtWRUpper") + "type 0123456789\nget txtWRUpper.Text"), Lines{R"("0123456789")"});
  EXPECT_EQ(session.Ask(InEmptied("txtWRUpper") + "type \"+/:;é¼０\"\nget txtWRUpper.Text"), Lines{R"("")"});
}

TEST(EntryKeys, SwallowPasting) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRLower") + "type 1.3\nkey Ctrl+V\nkey Shift+Insert\nget txtWRLower.Text"),
            Lines{R"("1.3")"});
}

TEST(EntryKeys, PassControlKeysUntouched) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRLower") +
                       "type 1.37\nkey Backspace\nkey Left\nkey Delete\nget txtWRLower.Text\n"
                       "get txtWRLower.SelStart\nkey Home\nkey Delete\nkey Escape\nget txtWRLower.Text"),
            (Lines{R"("1.")", "2", R"(".")"}));
}

TEST(EntryKeys, RemoveASecondPointAsItsKeyComesUp) {
  Ward session;
  EXPECT_EQ(session.Ask(InEmptied("txtWRLower") + "type 1.3.\nget txtWRLower.Text\nget txtWRLower.SelStart"),
            (Lines{R"("1.3")", "3"}));
  EXPECT_EQ(session.Ask(InEmptied("txtWRUpper") + "type 1.3.4\nget txtWRUpper.Text"), Lines{R"("1.34")"});
}

TEST(EntryKeys, RemoveTheNewPointWhereverItWasTyped) {
  EXPECT_EQ(
      Ward().Ask(InEmptied("txtWRLower") + "type 1.3\nkey Home\ntype .\nget txtWRLower.Text\nget txtWRLower.SelStart"),
      (Lines{R"("1.3")", "0"}));
}

TEST(EntryKeys, KeepAPointThatReplacesTheOnlyOne) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRLower") + "type 1.3\nkey Ctrl+A\ntype .5\nget txtWRLower.Text"),
            Lines{R"(".5")"});
}

TEST(EntryKeys, WithShiftPassButForInsert) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRLower") + "type 1.3\nkey Shift+Left\nget txtWRLower.SelStart\n"
                                                 "key Shift+Insert\nget txtWRLower.Text"),
            (Lines{"2", R"("1.3")"}));
}

TEST(EntryKeys, DropInsertWithShiftWhateverElseIsHeld) {
  OpenForm<frmDirectB> step(RankedData(WardRanks(), 0, 3));
  step.Open();
  for (TextBox* const box : {&step.Form->txtWRLower, &step.Form->txtWRUpper}) {
    for (const int shift : {1, 3, 5, 7}) {
      KeyEvent key{45, shift};
      EXPECT_FALSE(Input::KeyDown(*box, key)) << shift;
    }
    for (const int shift : {0, 2, 4, 6}) {
      KeyEvent key{45, shift};
      EXPECT_TRUE(Input::KeyDown(*box, key)) << shift;
    }
  }
}

TEST(LeavingABox, AppliesAPassedValueToItsHandle) {
  const Lines printed =
      Ward().Play(InEmptied("txtWRLower") +
                  "type 1.2\nkey Tab\nget picHandle(0).Left\nget picHandle(0).Top\n"
                  "get picHandle(1).Left\nget txtWRLower.Text\nget txtWRUpper.Text\nget BorderL(0).X2\n"
                  "get BorderL(0).Y2");
  EXPECT_EQ(Values(printed), (Lines{"144", "72.6", "97", R"("1.20")", R"("1.50")", "147", "75.6"}));
  EXPECT_EQ(Only(printed, "beep"), Lines{});
}

TEST(LeavingABox, AppliesAPassedValueToTheOtherHandleForTheUpperBox) {
  EXPECT_EQ(
      Ward().Ask(InEmptied("txtWRUpper") + "type 2\nfocus txtWRLower\nget picHandle(0).Left\nget picHandle(1).Left\n"
                                           "get picHandle(1).Top\nget txtWRUpper.Text\nget picTradeOffsRange.Drawing"),
      (Lines{"97", "85.2", "72.6", R"("2.00")", R"([{"polygon":[[0,250],[100,127],[88,76]],"fill":12640511}])"}));
}

TEST(LeavingABox, EmptyIsRefusedAndTakesTheFocusBack) {
  const Lines printed = Ward().Play(InEmptied("txtWRLower") +
                                    "key Tab\nget txtWRLower.Text\nget picHandle(0).Left\ntype 1.3\n"
                                    "get txtWRLower.Text");
  EXPECT_EQ(printed,
            (Lines{kBeep, kToLower, TooLarge("1.5"), R"({"get":"txtWRLower.Text","value":""})",
                   R"({"get":"picHandle(0).Left","value":97})", R"({"get":"txtWRLower.Text","value":"1.3"})"}));
}

TEST(LeavingABox, OfTheUpperValueEmptySaysZero) {
  const Lines printed = Ward().Play(InEmptied("txtWRUpper") + "key Shift+Tab");
  EXPECT_EQ(printed, (Lines{kBeep, kToUpper, TooLarge("0")}));
}

TEST(LeavingABox, WithALowerValueAboveTheUpperIsRefusedWithTheTextSelected) {
  const Lines printed =
      Ward().Play(InEmptied("txtWRLower") +
                  "type 1.51\nclick cmdEnter\nget txtWRLower.Text\n"
                  "get txtWRLower.SelStart\nget txtWRLower.SelLength\nget picHandle(0).Left\ndata WeightDone");
  EXPECT_EQ(printed, (Lines{kBeep, kToLower, TooLarge("1.5"), R"({"get":"txtWRLower.Text","value":"1.51"})",
                            R"({"get":"txtWRLower.SelStart","value":0})", R"({"get":"txtWRLower.SelLength","value":4})",
                            R"({"get":"picHandle(0).Left","value":97})",
                            R"({"data":"WeightDone","value":[true,false,false,true,false,false,false]})"}));
}

TEST(LeavingABox, OneMistakeGivesOneMessageWhereverTheFocusGoes) {
  for (const char* leave : {"focus txtWRUpper", "click txtWRUpper", "click cmdReStart", "select imgcmbTargetAtt 5",
                            "select tsTab 2", "click cmdCancel", "key Tab", "key Shift+Tab"}) {
    Ward session;
    const Lines printed = session.Play(InEmptied("txtWRLower") + "type 0\n" + leave +
                                       "\nget imgcmbTargetAtt.SelectedItem\nget tsTab.SelectedItem\nforms");
    ASSERT_EQ(printed.size(), 6U) << leave;
    EXPECT_EQ(Lines(printed.begin(), printed.begin() + 3), (Lines{kBeep, kToLower, TooLarge("1.5")})) << leave;
    EXPECT_EQ(Values(printed), (Lines{"3", "1"})) << leave;
    EXPECT_NE(printed[5].find(R"("frmDirectB","visible":true)"), String::npos) << leave;
    EXPECT_EQ(session.Status(), 0) << leave;
  }
}

TEST(LeavingABox, RaisesTheClickOnlyAfterThePassedValueWasApplied) {
  Ward session;
  EXPECT_EQ(session.Ask(InEmptied("txtWRLower") + "type 1.1\nclick cmdEnter\ndata WeightsL"),
            Lines{"[1,1.2,1.1,1,0.8,0.8,0.8]"});
}

TEST(LeavingABox, ByAButtonThatTheVerdictDisablesDoesNotClickIt) {
  Ward session;
  const Lines printed =
      session.Play(InEmptied("txtWRLower") + "type 0.9\nclick cmdEnter\nget cmdEnter.Enabled\ndata WeightDone");
  EXPECT_EQ(Values(printed), (Lines{"false", "[true,false,false,true,false,false,false]"}));
  EXPECT_EQ(session.Status(), 0);
}

TEST(LeavingABox, WithAnUpperValueBelowTheLowerOneSwapsTheTwo) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRUpper") + "type 1.1\nkey Shift+Tab\nget txtWRLower.Text\nget txtWRUpper.Text\n"
                                                 "get picHandle(1).Left\nget picHandle(0).Left"),
            (Lines{R"("1.10")", R"("1.25")", "157.36363", "97"}));
}

TEST(LeavingABox, OfThePairOfReferencesMovesOneHandleAndPassesTheOrdinaryCheck) {
  // The cost reference has rank 2: Doctors above is not judged yet, Night below neither.
  EXPECT_EQ(
      Ward().Ask(Choose(kNurses) + "focus txtWRUpper\nkey Ctrl+A\nkey Backspace\ntype 2\nkey Tab\nget txtWRLower.Text\n"
                                   "get txtWRUpper.Text\nget picHandle(0).Left\nget picHandle(1).Left"),
      (Lines{R"("1.00")", R"("2.00")", "85.2", "123"}));
  EXPECT_EQ(Ward().Ask(Enter(kDoctors, 150, 160) + Choose(kNurses) +
                       "focus txtWRUpper\nkey Ctrl+A\nkey Backspace\ntype 2\nkey Tab\nget shpAlarm(2).FillColor\n"
                       "get cmdEnter.Enabled"),
            (Lines{"16512", "false"}));
}

TEST(Return, MovesTheHandleAndLeavesTheFocusOnReStart) {
  const Lines printed =
      Ward().Play(InEmptied("txtWRLower") + "type 1.2\nkey Return\nget txtWRLower.Text\nget picHandle(0).Left");
  EXPECT_EQ(printed[0], kToReStart);
  EXPECT_EQ(Values(printed), (Lines{R"("1.20")", "144"}));
  EXPECT_EQ(Only(printed, "focus").size(), 1U);
}

TEST(Return, ChecksAndAppliesOnce) {
  const Lines printed = Ward().Play(InEmptied("txtWRLower") + "type 9\nkey Return");
  EXPECT_EQ(printed, (Lines{kToReStart, kBeep, kToLower, TooLarge("1.5")}));
}

TEST(Return, OnAFailedCheckKeepsTheWholeTextSelected) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRLower") + "type 9.75\nkey Return\nget txtWRLower.Text\nget txtWRLower.SelStart\n"
                                                 "get txtWRLower.SelLength\ntype 1\nget txtWRLower.Text"),
            (Lines{R"("9.75")", "0", "4", R"("1")"}));
}

TEST(Return, LeavesTheTextWholeWhereverTheCaretStands) {
  // Off the chart the boxes keep what was typed.
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRUpper") +
                       "type 31.5\nkey Left\nkey Return\nget txtWRUpper.Text\nget shpAlarm(1).FillColor"),
            (Lines{R"("31.5")", "2056"}));
}

TEST(Return, AfterReStartHasNoButtonToGoToAndDoesTheRest) {
  const String before =
      "click cmdReStart\n" + Choose(kCare) + Wedge(125, 150) + "focus txtWRLower\nkey Ctrl+A\nkey Backspace\n";
  Ward session;
  const Lines printed = session.Play(before +
                                     "type 1.2\nkey Return\nget picHandle(0).Left\nget txtWRLower.Text\n"
                                     "get cmdReStart.Enabled\ntype 7\nget txtWRLower.Text");
  EXPECT_EQ(Only(printed, R"({"focus")"), Lines{});
  EXPECT_EQ(Values(printed), (Lines{"144", R"("1.20")", "false", R"("71.20")"}));
  const Lines refused = session.Play(before + "type 9\nkey Return");
  EXPECT_EQ(Lines(refused.end() - 2, refused.end()), (Lines{kBeep, TooLarge("1.5")}));
}

TEST(Return, AfterTheNextCommitGoesToReStartAgain) {
  const Lines printed =
      Ward().Play("click cmdReStart\nclick cmdEnter\n" + Choose(kCare) + "focus txtWRUpper\nkey Return");
  EXPECT_EQ(Only(printed, R"({"focus")"), Lines{kToReStart});
}

TEST(TypedValue, OfTheOtherBoxJumpsOntoTheOtherHandleExactly) {
  Ward session;
  EXPECT_EQ(session.Ask(InEmptied("txtWRUpper") +
                        "type 1.25\nkey Return\nget picHandle(1).Left\nget picHandle(1).Top\n"
                        "get picHandle(0).Left\nget BorderL(1).X2\nget BorderL(1).Y2\nget txtWRUpper.Text"),
            (Lines{"97", "124", "97", "100", "127", R"("1.25")"}));
  EXPECT_EQ(session.Ask(InEmptied("txtWRLower") + "type 1.5\nkey Return\nget picHandle(0).Left\nget picHandle(0).Top"),
            (Lines{"97", "99"}));
}

TEST(TypedValue, GoesToTheHandleThatIsLowerBySlope) {
  const String crossed = Choose(kCare) + Wedge(150, 125);
  Ward session;
  EXPECT_EQ(
      session.Ask(crossed + "get txtWRLower.Text\nfocus txtWRLower\nkey Ctrl+A\ntype 1.2\nkey Return\n"
                            "get picHandle(0).Left\nget picHandle(1).Left\nget txtWRLower.Text\nget txtWRUpper.Text"),
      (Lines{R"("1.25")", "97", "144", R"("1.20")", R"("1.50")"}));
  EXPECT_EQ(
      session.Ask(crossed +
                  "focus txtWRUpper\nkey Ctrl+A\ntype 2\nkey Return\nget picHandle(0).Left\nget picHandle(1).Left"),
      (Lines{"85.2", "97"}));
}

TEST(TypedValue, OnEqualSlopesTakesTheSecondHandleAsTheLowerOne) {
  Ward session;
  EXPECT_EQ(
      session.Ask(Choose(kCare) +
                  "focus txtWRLower\nkey Ctrl+A\ntype 1.1\nkey Return\nget picHandle(0).Left\nget picHandle(1).Left"),
      (Lines{"144", "157.36363"}));
}

TEST(TypedValue, OfOneStandsInTheCentre) {
  EXPECT_EQ(Ward().Ask(InEmptied("txtWRLower") + "type 1\nkey Return\nget picHandle(0).Left\nget picHandle(0).Top"),
            (Lines{"123", "123"}));
}

TEST(TypedValue, BesideAHandleOnTheLeftEdgeDividesByZero) {
  Ward session;
  const String edge =
      Choose(kCare) + "drag picHandle(0) picTradeOffsRange 0 100\nfocus txtWRLower\nkey Ctrl+A\ntype 1.1\n";
  EXPECT_EQ(Only(session.Play(edge + "key Return"), "runtime_error"),
            Lines{R"({"runtime_error":11,"description":"Division by zero","in":"frmDirectB.txtWRLower_KeyPress"})"});
  EXPECT_EQ(Only(session.Play(edge + "key Tab"), "runtime_error"),
            Lines{R"({"runtime_error":11,"description":"Division by zero","in":"frmDirectB.txtWRLower_LostFocus"})"});
  const String corner =
      Choose(kCare) + "drag picHandle(0) picTradeOffsRange 0 252\nfocus txtWRLower\nkey Ctrl+A\ntype 1.1\n";
  EXPECT_EQ(Only(session.Play(corner + "key Return"), "runtime_error"),
            Lines{R"({"runtime_error":6,"description":"Overflow","in":"frmDirectB.txtWRLower_KeyPress"})"});
}

TEST(Check, NamesTheUpperValueInDefaultForm) {
  EXPECT_EQ(
      Ward().Play(InEmptied("txtWRUpper") + "type 00000.50\nfocus txtWRLower\nkey Ctrl+A\ntype 7\nkey Return").back(),
      TooLarge("1.25"));
}

TEST(Check, LetsAValueEqualToTheUpperOnePass) {
  const Lines printed = Ward().Play(InEmptied("txtWRLower") + "type 1.50\nkey Tab");
  EXPECT_EQ(Only(printed, "msgbox"), Lines{});
}

}  // namespace
}  // namespace Tarnwise
