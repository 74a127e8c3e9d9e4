#include "TradeOffs.h"
#include "curves/mdGraphs.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

TEST(OpeningFresh, SuggestsPointsFromTheRanksAndLeavesNextAndFinishDisabled) {
  TradeOffStep step(Ward());
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
  EXPECT_FALSE(step.Form->cmdFinish.Enabled);
  EXPECT_FALSE(step.Form->cmdReStart.Enabled);
  EXPECT_TRUE(step.EnterAllowed());
  WizardData expected = Ward();
  SuggestABPoints(expected, 0, 1, 1.2);
  SuggestABPoints(expected, 2, 1, 0.8);
  SuggestABPoints(expected, 4, 1, 1.0);
  SuggestABPoints(expected, 5, 6, 1.2);
  SuggestRefPairPoints(expected, 6, 1);
  SuggestRefPairPoints(expected, 1, 6);
  for (const int att : {0, 1, 2, 4, 5, 6}) {
    EXPECT_EQ(step.Record(att).AX, expected.ABPoints2[att].AX) << att;
    EXPECT_EQ(step.Record(att).AY, expected.ABPoints2[att].AY) << att;
    EXPECT_EQ(step.Record(att).BX, expected.ABPoints2[att].BX) << att;
    EXPECT_EQ(step.Record(att).BY, expected.ABPoints2[att].BY) << att;
  }
}

TEST(OpeningFresh, TheRecordsOfBothReferencesServeTheirPairWithTheAxesExchanged) {
  WizardData data = Ward();
  GiveScale(data, 1, 0.0, 30.0);
  GiveScale(data, 6, 0.0, 300.0);
  TradeOffStep step(data);
  EXPECT_EQ(step.Record(6).AX, 130.0F);
  EXPECT_EQ(step.Record(6).AY, 13.0F);
  EXPECT_EQ(step.Record(1).AX, 13.0F);
  EXPECT_EQ(step.Record(1).AY, 130.0F);
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
    EXPECT_EQ(p.AOrientation, 0);
    EXPECT_EQ(p.ALX, p.AX);
    EXPECT_EQ(p.AUX, p.AX);
    EXPECT_EQ(p.ALY, p.AY);
    EXPECT_EQ(p.AUY, p.AY);
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
    EXPECT_FALSE(step.Form->cmdNext.Enabled);
    EXPECT_FALSE(step.Form->cmdFinish.Enabled);
  }
}

TEST(OpeningResumed, ShowsThePointsAsTheHostSentThem) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[0] = PointsAt(60, 40, 20, 80);
  data.ABPoints2[0].AOrientation = 2;
  data.ABPoints2[0].ALY = 30;
  data.ABPoints2[0].AUY = 45;
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AX, 60.0F);
  EXPECT_EQ(step.Points().ALY, 30.0F);
  EXPECT_EQ(step.Points().AOrientation, 2);
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
  EXPECT_FALSE(step.Form->cmdReStart.Enabled);
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U) << "its line is there at once";
  EXPECT_FALSE(step.Form->Uncertainty.tbMovLeft.Buttons[0].Enabled);
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
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
}

TEST(OpeningFromDirect, APointOpensWithoutALine) {
  WizardData data = Judged(Ward(), kDirectType);
  StoreInterval(data, 0, {2.5, 2.5, 2.5});
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AOrientation, 0);
  EXPECT_EQ(step.Points().ALX, step.Points().AX);
  EXPECT_EQ(step.Points().AUY, step.Points().AY);
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

TEST(Opening, WithoutTheControlShowsTheLightInvalidOnly) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  const LightControls& lights = step.Form->Lights;
  for (const int i : {0, 2}) {
    EXPECT_FALSE(lights.shpAlarm[i].Visible);
    EXPECT_FALSE(lights.lblAlarm[i].Visible);
  }
  EXPECT_TRUE(lights.shpAlarm[1].Visible);
  EXPECT_TRUE(lights.lblAlarm[1].Visible);
}

TEST(Opening, WithTheControlShowsAllLights) {
  TradeOffStep step(Ward());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(step.Form->Lights.shpAlarm[i].Visible);
}

TEST(Opening, WithoutTheControlLeavesTheLightsAtRest) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  const LightControls& lights = step.Form->Lights;
  EXPECT_EQ(lights.Timer1.Interval, 0);
  EXPECT_EQ(lights.shpAlarm[0].FillColor, 0x00FF00U);
  EXPECT_EQ(lights.shpAlarm[1].FillColor, 0x000808U);
  EXPECT_EQ(lights.shpAlarm[2].FillColor, 0x004080U);
  EXPECT_EQ(lights.lblAlarm[0].ForeColor, 0x8000000EU);
  EXPECT_EQ(lights.lblAlarm[1].ForeColor, 0U);
  EXPECT_EQ(lights.lblAlarm[2].ForeColor, 0U);
}

TEST(Opening, IsTitledAndNamesItsControls) {
  TradeOffStep step(Ward());
  const frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.Caption(), "Tarnwise: Give your preference between the two selected criteria");
  EXPECT_EQ(f.cmdEnter.Caption(), "&Enter");
  EXPECT_EQ(f.cmdReStart.Caption(), "&Re-start All");
  EXPECT_EQ(f.lblRatioTitle.Caption(), "Relative importance (weight  ratio Wj/Wr):");
  EXPECT_EQ(f.lblWeightRatio.Alignment(), Align::Centre);
  EXPECT_EQ(f.tbsTradeOffs.Tabs[0].Caption, "Attribute differences");
  EXPECT_EQ(f.tbsTradeOffs.Tabs[0].Key, "AttDiff");
  EXPECT_EQ(f.tbsTradeOffs.Tabs[1].Caption, "Judgment uncertainty");
  EXPECT_EQ(f.tbsTradeOffs.Tabs[1].Key, "JdgUnctn");
}

TEST(OpeningWithoutPoints, IsASubscriptError) {
  WizardData data = Ward();
  data.ABPoints2.Allocate(0);
  EXPECT_EQ(ErrorNumber([&] { return (TradeOffStep(data), 0); }), 9);
}

}  // namespace
}  // namespace Tarnwise
