// What stands when an action of the trade-off step fails halfway: what came before the fault, in the order of the
// actions.
#include "TradeOffs.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

// More points than a curve has room for: its attribute's values can't be worked out.
void SpoilCurve(WizardData& data, int att) { data.AttValueData.ValuePointCount[att] = 12; }

TEST(TradeOffEnter, HasMarkedTheAttributesBeforeThePeerThatFails) {
  TradeOffStep s(Ward());
  s.Choose(2);
  s.MoveA(70, 30);
  s.MoveB(50, 46);
  SpoilCurve(s.Data, 3);
  s.Notes.clear();
  s.Click("cmdEnter");
  EXPECT_EQ(Only(s.Notes, "error"), Lines({"error 9 in frmTradeOffsB.cmdEnter_Click"}));
  EXPECT_EQ(s.Items()[2], " ¤ " + s.Data.AttName(2));
  EXPECT_EQ(s.Items()[3], Trim(s.Data.AttName(3)));
  EXPECT_TRUE(s.Data.WeightDone[2]);
  EXPECT_FALSE(s.Data.WeightDone[3]);
  EXPECT_EQ(ToDouble(s.Data.Weights[3]), 0.8) << "a peer takes the ratios before its points are worked out";
  EXPECT_TRUE(s.EnterAllowed());
}

TEST(TradeOffEnter, OnTheLaterOfTwoPeersHasSettledTheTargetWhenTheFirstFails) {
  TradeOffStep s(Ward());
  s.Choose(3);
  s.MoveA(70, 30);
  s.MoveB(50, 46);
  SpoilCurve(s.Data, 2);
  s.Click("cmdEnter");
  EXPECT_TRUE(s.Data.WeightDone[3]) << "the target is done before the walk over its peers";
  EXPECT_FALSE(s.Data.WeightDone[2]);
  EXPECT_EQ(s.Items()[3], Trim(s.Data.AttName(3))) << "its mark comes in its turn";
}

TEST(TradeOffReStart, HasEmptiedTheListWhenTheFreshStartFails) {
  TradeOffStep s(Ward());
  s.Choose(0);
  s.MoveA(70, 30);
  s.MoveB(50, 55);
  s.Click("cmdEnter");
  SpoilCurve(s.Data, 0);
  s.Notes.clear();
  s.Click("cmdReStart");
  EXPECT_EQ(Only(s.Notes, "error"), Lines({"error 9 in frmTradeOffsB.cmdReStart_Click"}));
  EXPECT_TRUE(s.Items().empty());
  EXPECT_FALSE(s.Data.WeightDone[0]);
}

TEST(TradeOffResults, AreInFrontOnlyWhenTheirGridsAreFilled) {
  WizardData model = Ward();
  StoreJudgments(model, kDirectType, 1, 6, 1.5, {2.0, 1.0, 0.5, 0.5, 1.0, 2.0, 1.0, 1.0});
  TradeOffStep s(model);
  s.Data.WeightsH[0] = Null();
  s.Notes.clear();
  s.Click("cmdNext");
  EXPECT_EQ(Only(s.Notes, "error"), Lines({"error 94 in frmTradeOffsB.cmdNext_Click"}));
  EXPECT_GT(s.Form->picTabs[0].Order(), s.Form->picTabs[1].Order());
  EXPECT_EQ(s.Form->Caption(), "Tarnwise: Results of the value judgments");
  EXPECT_EQ(s.Allowed(), "Enter Finish ");
}

TEST(TradeOffVerdict, ComesFromTheTwoCornersAlone) {
  WizardData model = Ward();
  model.SavedJudgments.RJType = kTradeOffsType;
  ABPoint& point = model.ABPoints2[0];
  point = PointsAt(1e-30F, 30.0F, 0.0F, 46.0F);  // its own ratio has no four decimals in 64 bits
  point.AOrientation = 1;
  point.ALX = 10.0F;
  point.AUX = 20.0F;
  TradeOffStep s(model);
  EXPECT_TRUE(Only(s.Notes, "error").empty());
  EXPECT_EQ(s.Ratio(), "0.80/1,    1.60/1");
  s.Click("cmdEnter");
  EXPECT_EQ(Only(s.Notes, "error"), Lines({"error 6 in frmTradeOffsB.cmdEnter_Click"}));
  EXPECT_FALSE(s.Data.WeightDone[0]);
}

TEST(TradeOffAllJudged, CountsTheAttributesThatTheModelHasNow) {
  TradeOffStep s(Ward());
  s.MoveA(70, 30);
  s.MoveB(50, 55);
  s.Data.ModelHeader.NumAtts = 2;
  s.Click("cmdEnter");
  EXPECT_TRUE(s.Form->cmdNext.Enabled) << "the first target and the reference are all that is left";
}

TEST(TradeOffChart, OnAScaleWhoseRangeNoSingleHoldsIsAnOverflow) {
  TradeOffStep s(Ward());
  s.Data.AttValueData.ScoreMin[2] = -3e38;
  s.Data.AttValueData.ScoreMax[2] = 3e38;
  s.Choose(2);
  EXPECT_EQ(Only(s.Notes, "error"), Lines({"error 6 in frmTradeOffsB.imgcmbTargetAtt_Click"}));
}

}  // namespace
}  // namespace Tarnwise
