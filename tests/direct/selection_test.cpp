// Which pair is judged: choosing targets, the tabs, the order panels.
#include "direct/Ward.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

const char* const kSameOrder =
    R"({"msgbox":"The selected attribute has the same importance order as the reference attribute. It is not necessary to make tradeoffs between them.","style":48,"title":"KESTA"})";

TEST(Selecting, EitherReferenceShowsTheSamePairWithTheCostReferenceAsTarget) {
  Ward session;
  for (const Item item : {kBeds, kNurses}) {
    EXPECT_EQ(session.Ask(Choose(item) + "get lblChartTarAtt.Caption\nget lblChartRefAtt.Caption\nget txtWRLower.Text\n"
                                         "get txtWRUpper.Text\nget imgcmbTargetAtt.SelectedItem\nget cmdEnter.Enabled"),
              (Lines{R"("Nurses")", R"("Beds")", R"("1.00")", R"("1.00")", std::to_string(item), "true"}));
  }
}

TEST(Selecting, TheReferencesLeavesTheTabAndThePanelAsTheyAre) {
  Ward session;
  EXPECT_EQ(session.Ask("select tsTab 2\n" + Choose(kBeds) + "get tsTab.SelectedItem"), Lines{"2"});
  EXPECT_EQ(session.Play(Choose(kCare) + Choose(kBeds) + "click lblOID(0)"), Lines{});
}

TEST(Selecting, AnotherTargetGoesBackToTheFirstTabAndItsGroupsPanel) {
  Ward session;
  EXPECT_EQ(session.Ask("select tsTab 2\n" + Choose(kCare) + "get tsTab.SelectedItem\nget lblChartTarAtt.Caption"),
            (Lines{"1", R"("Care")"}));
  EXPECT_EQ(session.Play(Choose(kCare) + "click lblOID(0)"), Lines{});
  EXPECT_EQ(session.Play(Choose(kCare) + Choose(kNight) + "click lblOID1(0)"), Lines{});
}

TEST(Selecting, AnAttributeOfTheReferencesRankIsRefusedAndTheFormerTargetChosenAgain) {
  DirectSession session({B(1), B(2), B(2), C(1)}, 1, 3);
  EXPECT_EQ(
      session.Play("drag picHandle(0) picTradeOffsRange 100 100\nselect imgcmbTargetAtt 3\n"
                   "get imgcmbTargetAtt.SelectedItem\nget lblChartTarAtt.Caption\nget txtWRUpper.Text"),
      (Lines{R"({"beep":true})", kSameOrder, R"({"get":"imgcmbTargetAtt.SelectedItem","value":1})",
             R"({"get":"lblChartTarAtt.Caption","value":"Att 0"})", R"({"get":"txtWRUpper.Text","value":"1.52"})"}));
}

TEST(Selecting, AfterARefusalOnThePairOfReferencesItIsTheCostReferencesItemThatComesBack) {
  DirectSession session({B(1), B(2), B(2), C(1)}, 1, 3);
  EXPECT_EQ(session.Ask("select imgcmbTargetAtt 2\nget imgcmbTargetAtt.SelectedItem\nselect imgcmbTargetAtt 3\n"
                        "get imgcmbTargetAtt.SelectedItem"),
            (Lines{"2", "4"}));
}

TEST(Selecting, ATargetNotJudgedYetShowsItsDefaultAndEnablesEnter) {
  Ward session;
  EXPECT_EQ(session.Ask("click cmdEnter\nget cmdEnter.Enabled\n" + Choose(kResearch) +
                        "get cmdEnter.Enabled\nget txtWRLower.Text\nget txtWRUpper.Text\nget picHandle(1).Left"),
            (Lines{"false", "true", R"("0.80")", R"("0.80")", "173.4"}));
}

TEST(Selecting, AJudgedTargetShowsThePointsThatItWasEnteredWith) {
  Ward session;
  EXPECT_EQ(
      session.Ask(Choose(kCare) +
                  "drag picHandle(0) picTradeOffsRange 50.5 177\n"
                  "drag picHandle(1) picTradeOffsRange 60 150\nclick cmdEnter\n" +
                  Choose(kNight) + Choose(kCare) +
                  "get picHandle(0).Left\nget picHandle(0).Top\nget BorderL(0).X2\nget BorderL(1).X2\n"
                  "get BorderL(1).Y2\nget picTradeOffsRange.Drawing"),
      (Lines{"47.5", "174", "50.5", "60", "150", R"([{"polygon":[[0,250],[50,177],[60,150]],"fill":12640511}])"}));
}

TEST(Selecting, APeerOfAJudgedTargetShowsTheSamePoints) {
  Ward session;
  EXPECT_EQ(session.Ask(Choose(kResearch) +
                        "drag picHandle(0) picTradeOffsRange 200.5 177\n"
                        "drag picHandle(1) picTradeOffsRange 210 150\nclick cmdEnter\n" +
                        Choose(kRest) +
                        "get picHandle(0).Left\nget picHandle(0).Top\nget picHandle(1).Left\nget picHandle(1).Top"),
            (Lines{"197.5", "174", "207", "147"}));
}

TEST(Selecting, APushedTargetShowsWhereItWasPushed) {
  DirectSession session({B(3), B(2), B(1), C(1)}, 0, 3);
  EXPECT_EQ(session.Ask(
                "select imgcmbTargetAtt 2\n" + Wedge(130, 130) +
                "click cmdEnter\nselect imgcmbTargetAtt 3\nget txtWRLower.Text\nget txtWRUpper.Text\ndata WeightDone"),
            (Lines{R"("1.30")", R"("1.30")", "[true,true,false,true]"}));
}

TEST(Selecting, AStoredIntervalOutsideItsLimitsIsConsistentAndCanBeEnteredUntilTheFirstDrag) {
  // The stored interval of the best rank lies below that of the next one.
  WizardData model = ModelFor({B(3), B(2), B(1), C(1)});
  StoreJudgments(model, kDirectType, 0, 3, 1.0, {1.0, 1.5, 3.0, 1.0});
  model.SavedJudgments.SavedWeightsL[2] = 1.2;
  model.SavedJudgments.SavedWeightsH[2] = 1.3;
  Session session(model);
  session.Given("host show\nclick cmdNext\nclick cmdNext\nclick cmdNext");
  const Lines shown = session.Ask(
      "select imgcmbTargetAtt 3\nget cmdEnter.Enabled\nget shpAlarm(0).FillColor\n"
      "get lblAlarm(0).ForeColor\nget shpAlarm(2).FillColor\nget Timer1.Interval\n"
      "get txtWRLower.Text\nget txtWRUpper.Text");
  EXPECT_EQ(shown, (Lines{"true", "65280", "2147483662", "8421504", "0", R"("1.20")", R"("1.30")"}));
  const Lines touched = session.Ask(
      "select imgcmbTargetAtt 3\ndrag picHandle(0) picTradeOffsRange 100 132\n"
      "get cmdEnter.Enabled\nget shpAlarm(0).FillColor\nget shpAlarm(2).FillColor\n"
      "get Timer1.Interval");
  EXPECT_EQ(touched, (Lines{"false", "8421504", "16512", "100"}));
}

TEST(Tabs, BringTheRangesToTheFrontAndTheOrderPanelBack) {
  Ward session;
  EXPECT_EQ(session.Play("select tsTab 2\nclick lblTargetAtt"), Lines{});
  EXPECT_EQ(Only(session.Play("select tsTab 2\nclick lblOID1(0)"), "lblOID1(0): covered").size(), 1U);
  EXPECT_EQ(session.Play("select tsTab 2\nselect tsTab 1\nclick lblOID1(0)"), Lines{});
  EXPECT_EQ(Only(session.Play("click lblTargetAtt"), "lblTargetAtt: covered").size(), 1U);
}

// The order panels.

TEST(OrderPanel, StacksItsRowsWithTheirButtons) {
  Ward session;
  EXPECT_EQ(
      session.Ask("get picO.Count\nget picO(0).Top\nget picO(0).Height\nget picO(1).Top\nget picO(2).Top\n"
                  "get picO(2).Height\nget picO(2).Tag\nget lblOID(2).Caption\nget lblOID(2).Tag\nget lblOID(2).Top"),
      (Lines{"3", "120", "515", "755", "1390", "890", R"("3")", R"("3")", R"("3")", "1390"}));
  EXPECT_EQ(
      session.Ask("get cmdAttButtons.Count\nget cmdAttButtons(0).Caption\nget cmdAttButtons(0).Tag\n"
                  "get cmdAttButtons(0).Top\nget cmdAttButtons(1).Caption\nget cmdAttButtons(1).Top\n"
                  "get cmdAttButtons(2).Top\nget cmdAttButtons(3).Top\nget cmdAttButtons(3).Tag\n"
                  "get cmdAttButtons(3).BackColor\nget cmdAttButtons(3).Height"),
      (Lines{"4", R"("Beds")", R"("A0")", "815", R"("Care")", "180", "1450", "1825", R"("A6")", "12632319", "375"}));
  EXPECT_EQ(session.Ask("get picO1.Count\nget cmdAttButtons1.Count\nget cmdAttButtons1(0).Tag\n"
                        "get cmdAttButtons1(1).Tag\nget cmdAttButtons1(1).Top\nget cmdAttButtons1(2).Top\n"
                        "get cmdAttButtons1(2).BackColor\nget cmdAttButtons1(2).Caption"),
            (Lines{"3", "3", R"("C1")", R"("C3")", "815", "1450", "16761024", R"("Night")"}));
}

TEST(OrderPanel, HidesItsScrollBarWhereTheRowsFit) {
  EXPECT_EQ(
      Ward().Ask("get vsrO.Visible\nget vsrO.Value\nget vsrO.Height\nget picOrderFrame.Height\nget vsrO1.Visible"),
      (Lines{"false", "0", "2940", "3000", "false"}));
}

TEST(OrderPanel, ShowsItsScrollBarWhereTheLastRowPassesTheFrame) {
  DirectSession session({B(1), B(2), B(3), B(4), B(5), C(1)}, 4, 5);
  EXPECT_EQ(session.Ask("get vsrO.Visible\nget vsrO.Max\nget vsrO.Min\nget vsrO.Value\nget vsrO.LargeChange\n"
                        "get vsrO.SmallChange\nget picOP.Height\nget vsrO1.Visible"),
            (Lines{"true", "32000", "0", "0", "500", "100", "32000", "false"}));
}

TEST(OrderPanel, ShowsNoScrollBarForFourRows) {
  EXPECT_EQ(DirectSession({B(1), B(2), B(3), B(4), C(1)}, 3, 4).Ask("get vsrO.Visible"), Lines{"false"});
}

TEST(OrderPanel, MovesItsContentByTheBarsValue) {
  DirectSession session({B(1), B(2), B(3), B(4), B(5), C(1), C(2), C(3), C(4), C(5)}, 4, 9);
  EXPECT_EQ(session.Ask("scroll vsrO 640\nget picOP.Top\nget picOP1.Top"), (Lines{"-640", "0"}));
  EXPECT_EQ(session.Ask("select imgcmbTargetAtt 6\nscroll vsrO1 37\nget picOP1.Top"), Lines{"-37"});
}

TEST(OrderPanel, HoldsThirtyOneAttributesOfOneGroup) {
  std::vector<RankedAtt> atts;
  for (int i = 0; i < 31; ++i) atts.push_back(B(i + 1));
  DirectSession session(atts, 30, -1);
  EXPECT_EQ(session.Ask("get picO.Count\nget picO(30).Top\nget cmdAttButtons(30).Top\nget lblOID(30).Caption"),
            (Lines{"31", "19170", "19230", R"("31")"}));
}

TEST(OrderPanel, OfAnEmptyGroupShowsNothing) {
  EXPECT_EQ(
      DirectSession({B(1), B(2)}, 1, -1).Ask("get cmdAttButtons1(0).Visible\nget picO1(0).Visible\nget vsrO1.Visible"),
      (Lines{"false", "false", "false"}));
}

TEST(OrderPanel, OnlyShowsItsButtons) {
  Ward session;
  EXPECT_EQ(session.Play("click cmdAttButtons1(2)\ndata CRefAttID"), Lines{R"({"data":"CRefAttID","value":3})"});
}

}  // namespace
}  // namespace Tarnwise
