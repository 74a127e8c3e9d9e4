#include "TradeOffs.h"
#include "curves/mdGraphs.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

TEST(OpeningFresh, SuggestsPointsFromTheRanksAndLeavesNextAndFinishDisabled) {
  TradeOffStep step(Ward());
  EXPECT_EQ(step.Allowed(), "Enter ");
  WizardData expected = Ward();
  SuggestABPoints(expected, 0, 1, 1.2);
  SuggestABPoints(expected, 2, 1, 0.8);
  SuggestABPoints(expected, 4, 1, 1.0);
  SuggestABPoints(expected, 5, 6, 1.2);
  SuggestRefPairPoints(expected, 6, 1);
  SuggestRefPairPoints(expected, 1, 6);
  for (const int att : {0, 1, 2, 4, 5, 6}) {
    CollapseCorners(expected.ABPoints2[att]);
    EXPECT_EQ(Scores(step.Record(att)), Scores(expected.ABPoints2[att])) << att;
  }
}

TEST(OpeningFresh, TheRecordsOfBothReferencesServeTheirPairWithTheAxesExchanged) {
  WizardData data = Ward();
  GiveScale(data, 1, 0.0, 30.0);
  GiveScale(data, 6, 0.0, 300.0);
  TradeOffStep step(data);
  EXPECT_EQ(Scores(step.Record(6)), "130 13 | 100 10");
  EXPECT_EQ(Scores(step.Record(1)), "13 130 | 10 100");
}

TEST(OpeningFresh, NothingIsUncertain) {
  WizardData data = Ward();
  for (int i = 0; i < data.NumAtts(); ++i) {
    data.ABPoints2[i].AOrientation = 2;
    data.ABPoints2[i].ALX = 77.0F;
  }
  TradeOffStep step(data);
  for (int i = 0; i < data.NumAtts(); ++i) {
    const ABPoint& p = step.Record(i);
    EXPECT_EQ(Scores(p), Scores(PointsAt(p.AX, p.AY, p.BX, p.BY)));
  }
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(OpeningFresh, IsAlsoWhatChangedRanksAndUnknownTypesLeadTo) {
  WizardData changed = Judged(Ward(), kTradeOffsType);
  changed.OrderChanged = true;
  WizardData unknown = Judged(Ward(), "DEA_OTHER");
  for (WizardData& data : std::vector<WizardData>{changed, unknown}) {
    data.ABPoints2[0] = PointsAt(1, 2, 3, 4);
    TradeOffStep step(data);
    EXPECT_NE(step.Record(0).AX, 1.0F);
    EXPECT_EQ(step.Allowed(), "Enter ");
  }
}

TEST(OpeningResumed, ShowsThePointsAsTheHostSentThem) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[0] = PointsAt(60, 40, 20, 80);
  data.ABPoints2[0].AOrientation = 2;
  data.ABPoints2[0].ALY = 30;
  data.ABPoints2[0].AUY = 45;
  TradeOffStep step(data);
  EXPECT_EQ(Scores(step.Points()), "60 40 upward 60 30 to 60 45 | 20 80");
  EXPECT_EQ(step.Allowed(), "Enter Next Finish ");
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U) << "its line is there at once";
  EXPECT_EQ(Shown(step.Form->Uncertainty), "up down | upward");
}

TEST(OpeningFromDirect, AnIntervalOpensAsALine) {
  WizardData data = Judged(Ward(), kDirectType);
  StoreInterval(data, 0, {2.0, 2.5, 3.0});
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AOrientation, 1);
  EXPECT_EQ(step.Points().ALY, step.Points().AY);
  EXPECT_NE(step.Points().ALX, step.Points().AUX);
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U);
  EXPECT_NEAR(
      Val(PointRatio(step.Data, 0, 1, step.Points().ALX, step.Points().ALY, step.Points().BX, step.Points().BY)), 2.0,
      0.01);
  EXPECT_EQ(step.Allowed(), "Enter Next Finish ");
}

TEST(OpeningFromDirect, APointOpensWithoutALine) {
  WizardData data = Judged(Ward(), kDirectType);
  StoreInterval(data, 0, {2.5, 2.5, 2.5});
  TradeOffStep step(data);
  const ABPoint& p = step.Points();
  EXPECT_EQ(Scores(p), Scores(PointsAt(p.AX, p.AY, p.BX, p.BY)));
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(OpeningFromDirect, DoesNotAskWhetherTheOrderChanged) {
  WizardData data = Judged(Ward(), kDirectType);
  data.OrderChanged = true;
  StoreInterval(data, 0, {2.0, 2.5, 3.0});
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AOrientation, 1);
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
}

TEST(OpeningFromDirect, GivesTheReferencesTheirOwnPairWithThemselves) {
  TradeOffStep step(Judged(Ward(), kDirectType));
  // Ratio 1 of an ordinary pair: A to the right of B and below it.
  EXPECT_GT(step.Record(6).AX, step.Record(6).BX);
  EXPECT_LT(step.Record(6).AY, step.Record(6).BY);
}

TEST(Opening, SendsItsPromptWithinTheHourglass) {
  OpenForm<frmTradeOffsB> form(Ward());
  form.Open();
  EXPECT_EQ(form.Notes, (Lines{"pointer 11", "say  Give your preference between the two selected criteria.",
                               "pointer 0", "show frmTradeOffsB"}));
  EXPECT_EQ(form.Form->mPage, 1);
  EXPECT_EQ(form.Form->mLoading, 0);
  EXPECT_EQ(form.Form->Entry.mScoresBad, 0);
  EXPECT_EQ(form.Form->Entry.mScoresDirty, 0);
}

TEST(Opening, WithoutTheControlShowsTheLightInvalidOnlyAndLeavesAllAtRest) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  EXPECT_EQ(Shown(step.Form->Lights), "(green*) black (brown) | 0") << "all three at rest";
}

TEST(Opening, WithTheControlShowsAllLights) {
  TradeOffStep step(Ward());
  EXPECT_EQ(Shown(step.Form->Lights), "green* out out | 0");
}

TEST(Opening, IsTitledAndNamesItsControls) {
  TradeOffStep step(Ward());
  const frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.Caption(), "Tarnwise: Give your preference between the two selected criteria");
  EXPECT_EQ(f.cmdEnter.Caption(), "&Enter");
  EXPECT_EQ(f.cmdReStart.Caption(), "&Re-start All");
  EXPECT_EQ(f.lblRatioTitle.Caption(), "Relative importance (weight  ratio Wj/Wr):");
  EXPECT_EQ(f.lblWeightRatio.Alignment(), Align::Centre);
  Lines tabs;
  for (const auto& tab : f.tbsTradeOffs.Tabs) tabs.push_back(tab.Key + " " + tab.Caption);
  EXPECT_EQ(tabs, (Lines{"AttDiff Attribute differences", "JdgUnctn Judgment uncertainty"}));
}

TEST(OpeningWithoutPoints, IsASubscriptError) {
  WizardData data = Ward();
  data.ABPoints2.Allocate(0);
  EXPECT_EQ(ErrorNumber([&] { return (TradeOffStep(data), 0); }), 9);
}

}  // namespace
}  // namespace Tarnwise
