// Dragging the handles, the verdict's lights, and their blinking.
#include "direct/Ward.h"
#include "direct/frmDirectB.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

const char* const kLights =
    "get shpAlarm(0).FillColor\nget shpAlarm(1).FillColor\nget shpAlarm(2).FillColor\nget lblAlarm(0).ForeColor\n"
    "get lblAlarm(1).ForeColor\nget lblAlarm(2).ForeColor\nget cmdEnter.Enabled\nget Timer1.Interval\n";

const char* const kOut = "8421504";
const char* const kLit = "2147483662";

TEST(Dragging, PutsTheHandlesMiddleUnderThePointerAndItsRayOnIt) {
  EXPECT_EQ(
      Ward().Ask("drag picHandle(1) picTradeOffsRange 100.5 72.25\nget picHandle(1).Left\nget picHandle(1).Top\n"
                 "get BorderL(1).X2\nget BorderL(1).Y2\nget BorderL(1).X1\nget BorderL(1).Y1\nget picHandle(0).Left\n"
                 "get BorderL(0).X2"),
      (Lines{"97.5", "69.25", "100.5", "72.25", "0", "250", "144", "147"}));
}

TEST(Dragging, FillsTheBoxesAndTheRegionAtEveryStep) {
  EXPECT_EQ(
      Ward().Ask(
          "grab picHandle(1)\nover picTradeOffsRange 100 102\nget txtWRUpper.Text\nget picTradeOffsRange.Drawing\n"
          "over picTradeOffsRange 50 102\nget txtWRUpper.Text\nget picTradeOffsRange.Drawing"),
      (Lines{R"("1.50")", R"([{"polygon":[[0,250],[147,76],[100,102]],"fill":12640511}])", R"("3.00")",
             R"([{"polygon":[[0,250],[147,76],[50,102]],"fill":12640511}])"}));
}

TEST(Dragging, FollowsThePointerToTheEdgesAndBeyondAnyLimit) {
  Ward session;
  EXPECT_EQ(session.Ask("drag picHandle(1) picTradeOffsRange 0 0\nget picHandle(1).Left\nget picHandle(1).Top\n"
                        "drag picHandle(1) picTradeOffsRange 252 252\nget picHandle(1).Left\nget picHandle(1).Top\n"
                        "get txtWRUpper.Text"),
            (Lines{"-3", "-3", "249", "249", R"("1.20")"}));
}

TEST(Dragging, LeavesTheChartWithoutMovingAnything) {
  EXPECT_EQ(
      Ward().Ask("grab picHandle(1)\nover picTradeOffsRange 100 102\nover framePCChart 10 10\nget picHandle(1).Left\n"
                 "get BorderL(1).X2\nget txtWRUpper.Text\nover frmDirectB\nget picHandle(1).Left\ndrop\n"
                 "get picHandle(1).Left"),
      (Lines{"97", "100", R"("1.50")", "97", "97"}));
}

TEST(Dragging, ShowsTheNoDropPointerByTwoHandlersThatAreNotAlike) {
  // Chart, stage, form, stage, chart.
  EXPECT_EQ(
      Ward().Ask(
          "grab picHandle(0)\nover picTradeOffsRange\nget picHandle(0).MousePointer\nover picPanel(0) 5 5\n"
          "get picHandle(0).MousePointer\nover frmDirectB 10 10\nget picHandle(0).MousePointer\nover picPanel(0) 5 5\n"
          "get picHandle(0).MousePointer\nover picTradeOffsRange\nget picHandle(0).MousePointer"),
      (Lines{"0", "12", "0", "12", "0"}));
}

TEST(Dragging, FromTheFormToTheChartLeavesTheNoDropPointerOfTheForm) {
  EXPECT_EQ(
      Ward().Ask("grab picHandle(0)\nover frmDirectB 10 10\nover picTradeOffsRange\nget picHandle(0).MousePointer"),
      Lines{"12"});
}

TEST(Dragging, SaysOfTheChartAloneThatItTakesAHandleWhereverItComesFrom) {
  OpenForm<frmDirectB> step(RankedData(WardRanks(), 0, 3));
  step.Open();
  DragSession& drag = step.Screen->Drag;
  const auto taken = [&drag](Control& target) {
    drag.Over(target, 20.0F, 20.0F);
    return drag.WouldBeTaken();
  };
  drag.Begin(step.Form->Chart.picHandle[0]);
  EXPECT_TRUE(taken(step.Form->Chart.picTradeOffsRange));
  EXPECT_FALSE(taken(step.Form->picPanel[0]));
  EXPECT_FALSE(taken(*step.Form));
  EXPECT_TRUE(taken(step.Form->Chart.picTradeOffsRange));
  EXPECT_EQ(step.Form->Chart.picHandle[0].MousePointer(), 12) << "the rule's value stays as it is";
  EXPECT_EQ(drag.Icon(), "") << "the handle itself is seen";
  drag.Cancel();
}

TEST(Dragging, AcrossTheOtherHandleKeepsTheSmallerSlopeInTheLowerBox) {
  EXPECT_EQ(Ward().Ask(Choose(kCare) + Wedge(125, 150) +
                       "drag picHandle(0) picTradeOffsRange 100 52\nget txtWRLower.Text\n"
                       "get txtWRUpper.Text\nget picHandle(1).Top"),
            (Lines{R"("1.50")", R"("2.00")", "99"}));
}

TEST(Dragging, ThePairOfReferencesTakesTheOtherHandleAndBothRaysAlong) {
  EXPECT_EQ(
      Ward().Ask(Choose(kBeds) + "drag picHandle(1) picTradeOffsRange 100.5 51\nget picHandle(0).Left\n"
                                 "get picHandle(0).Top\nget picHandle(1).Left\nget BorderL(0).X2\nget BorderL(0).Y2\n"
                                 "get BorderL(1).X2\nget txtWRLower.Text\nget txtWRUpper.Text\n"
                                 "get picTradeOffsRange.Drawing\nget cmdEnter.Enabled"),
      (Lines{"97.5", "48", "97.5", "100.5", "51", "100.5", R"("2.00")", R"("2.00")",
             R"([{"polygon":[[0,250],[100,51],[100,51]],"fill":12640511}])", "true"}));
}

TEST(Lights, OfAShownTargetSayConsistentAtRest) {
  EXPECT_EQ(Ward().Ask(kLights), (Lines{"65280", kOut, kOut, kLit, "0", "0", "true", "0"}));
}

TEST(Lights, HaveTheirCaptionsAndAllThreeVisible) {
  EXPECT_EQ(
      Ward().Ask("get lblAlarm(0).Caption\nget lblAlarm(1).Caption\nget lblAlarm(2).Caption\nget shpAlarm(0).Visible\n"
                 "get lblAlarm(0).Visible\nget shpAlarm(1).Visible\nget shpAlarm(2).Visible\nget lblAlarm(2).Visible"),
      (Lines{R"("Consistent")", R"("Invalid")", R"("Inconsistent")", "true", "true", "true", "true", "true"}));
}

TEST(Lights, SayConsistentAfterAGoodDrag) {
  EXPECT_EQ(Ward().Ask("drag picHandle(0) picTradeOffsRange 3 3\ndrag picHandle(0) picTradeOffsRange 100 100\n" +
                       String(kLights)),
            (Lines{"65280", kOut, kOut, kLit, "0", "0", "true", "0"}));
}

TEST(Lights, SayInvalidNearerThanSixUnitsToTheLeftOrTheBottomAndTheBoxesKeepTheirText) {
  Ward session;
  for (const char* place : {"5.9 100", "100 246.1", "0 252"}) {
    Lines expected{kOut, "2056", kOut, "0", kLit, "0", "false", "300", R"("1.20")", R"("1.20")"};
    EXPECT_EQ(session.Ask("drag picHandle(0) picTradeOffsRange " + String(place) + "\n" + kLights +
                          "get txtWRLower.Text\nget txtWRUpper.Text"),
              expected)
        << place;
  }
  EXPECT_EQ(session.Ask("drag picHandle(0) picTradeOffsRange 6 100\nget shpAlarm(0).FillColor"), Lines{"65280"});
  EXPECT_EQ(session.Ask(Choose(kNight) + "drag picHandle(0) picTradeOffsRange 100 246\nget shpAlarm(0).FillColor"),
            Lines{"65280"});
}

TEST(Lights, SayInconsistentAcrossTheReferenceAndTheBoxesFollow) {
  EXPECT_EQ(Ward().Ask("drag picHandle(0) picTradeOffsRange 200 102\n" + String(kLights) +
                       "get txtWRLower.Text\nget txtWRUpper.Text"),
            (Lines{kOut, kOut, "16512", "0", "0", kLit, "false", "100", R"("0.75")", R"("1.20")"}));
}

TEST(Lights, OfThePairOfReferencesNeverSayInconsistent) {
  EXPECT_EQ(
      Ward().Ask(JudgeAll() + Choose(kBeds) + "drag picHandle(0) picTradeOffsRange 10 10\n" + kLights +
                 "drag picHandle(0) picTradeOffsRange 5 10\n" + kLights),
      (Lines{"65280", kOut, kOut, kLit, "0", "0", "true", "0", kOut, "2056", kOut, "0", kLit, "0", "false", "300"}));
}

TEST(Blinking, OfInvalidAlternatesYellowAndWhite) {
  EXPECT_EQ(
      Ward().Ask("drag picHandle(0) picTradeOffsRange 3 100\ntick Timer1\nget shpAlarm(1).FillColor\ntick Timer1\n"
                 "get shpAlarm(1).FillColor\ntick Timer1 2\nget shpAlarm(1).FillColor\nget shpAlarm(0).FillColor\n"
                 "get shpAlarm(2).FillColor\nget lblAlarm(1).ForeColor"),
      (Lines{"65535", "16777215", "16777215", kOut, kOut, kLit}));
}

TEST(Blinking, OfInconsistentAlternatesOrangeAndWhite) {
  EXPECT_EQ(
      Ward().Ask("drag picHandle(0) picTradeOffsRange 200 102\ntick Timer1\nget shpAlarm(2).FillColor\ntick Timer1\n"
                 "get shpAlarm(2).FillColor\ntick Timer1\nget shpAlarm(2).FillColor\nget shpAlarm(1).FillColor"),
      (Lines{"33023", "16777215", "33023", kOut}));
}

TEST(Blinking, StopsWithAGoodRegionOrAnotherTarget) {
  Ward session;
  const String invalid = "drag picHandle(0) picTradeOffsRange 3 100\ntick Timer1\n";
  for (const String& mend : {String("drag picHandle(0) picTradeOffsRange 100 100\n"), Choose(kCare)}) {
    const Lines refused = session.Play(invalid + mend + "tick Timer1");
    ASSERT_EQ(refused.size(), 1U);
    EXPECT_NE(refused[0].find("Timer1"), String::npos);
    EXPECT_EQ(session.Status(), 1);
  }
}

TEST(ControlOff, ShowsTheInvalidLightAlone) {
  EXPECT_EQ(
      Ward(false).Ask("data IncnsistCtrl\nget shpAlarm(0).Visible\nget lblAlarm(0).Visible\nget shpAlarm(1).Visible\n"
                      "get lblAlarm(1).Visible\nget shpAlarm(2).Visible\nget lblAlarm(2).Visible"),
      (Lines{"0", "false", "false", "true", "true", "false", "false"}));
}

TEST(ControlOff, NeverShowsConsistentEvenAfterEnter) {
  EXPECT_EQ(Ward(false).Ask(Wedge(120, 150) + "click cmdEnter\nget shpAlarm(0).Visible\nget lblAlarm(0).Visible"),
            (Lines{"false", "false"}));
}

TEST(ControlOff, TakesARegionThatPassesItsNeighboursWithoutALight) {
  EXPECT_EQ(Ward(false).Ask("drag picHandle(0) picTradeOffsRange 200 102\nget txtWRLower.Text\nget txtWRUpper.Text\n" +
                            String(kLights) + "click cmdEnter\ndata WeightsL"),
            (Lines{R"("0.75")", R"("1.20")", "65280", kOut, kOut, kLit, "0", "0", "true", "0",
                   "[1,0.75,1.2,1,0.8,0.8,0.8]"}));
}

TEST(ControlOff, DraggingBackFromInvalidRestoresNeitherVerdictNorEnter) {
  const String back = "drag picHandle(0) picTradeOffsRange 3 100\ndrag picHandle(0) picTradeOffsRange 100 100\n";
  Ward session(false);
  EXPECT_EQ(session.Ask(back + kLights + "get txtWRUpper.Text"),
            (Lines{kOut, "2056", kOut, "0", kLit, "0", "false", "300", R"("1.52")"}));
  // The timer runs on, but changes no light any more.
  EXPECT_EQ(session.Ask(back + "tick Timer1 3\nget shpAlarm(1).FillColor"), Lines{"2056"});
  EXPECT_EQ(session.Ask(back + Choose(kCare) + "get cmdEnter.Enabled\nget Timer1.Interval"), (Lines{"true", "0"}));
}

TEST(ControlOn, DraggingBackFromInvalidRestoresTheVerdict) {
  EXPECT_EQ(Ward().Ask("drag picHandle(0) picTradeOffsRange 3 100\ndrag picHandle(0) picTradeOffsRange 100 100\nget "
                       "cmdEnter.Enabled"),
            Lines{"true"});
}

TEST(KeyboardDrag, MovesAHandleByUnitsAndSaysTheSame) {
  EXPECT_EQ(Ward().Ask("focus picHandle(1)\nkey Space\nkey Right\nkey Shift+Down\nkey Space\nget picHandle(1).Left\n"
                       "get picHandle(1).Top\nget txtWRLower.Text\nget BorderL(1).X2"),
            (Lines{"145", "82.6", R"("1.12")", "148"}));
}

}  // namespace
}  // namespace Tarnwise
