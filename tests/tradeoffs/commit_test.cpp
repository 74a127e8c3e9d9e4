#include "TradeOffs.h"
#include "curves/mdGraphs.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

TEST(TradeOffCommit, OfAPointMakesAllThreeEqual) {
  WizardData data = Ward();
  CommitTradeOff(data, 0, {"1.25", "1.25", "1.25"});
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.25, 1.25, 1.25}));
  EXPECT_TRUE(data.WeightDone[0]);
}

TEST(TradeOffCommit, OfEqualEndsTakesTheMiddleForAllThree) {
  WizardData data = Ward();
  CommitTradeOff(data, 0, {"1.25", "1.25", "1.4"});
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.4, 1.4, 1.4}));
}

TEST(TradeOffCommit, OfAnIntervalKeepsTheRatioAtAAsItsMiddle) {
  WizardData data = Ward();
  CommitTradeOff(data, 0, {"2", "1.2", "1.3"});
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.2, 1.3, 2.0})) << "not the mean of the ends";
  CommitTradeOff(data, 0, {"1.2", "2", "1.3"});
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.2, 1.3, 2.0}));
}

TEST(TradeOffCommit, CopiesTheRatiosToTheSameRankButNotThePoints) {
  WizardData data = Ward();
  GiveScale(data, 3, 0.0, 1000.0);
  data.ABPoints2[2] = PointsAt(70, 30, 50, 46);
  CommitTradeOff(data, 2, {"0.8", "0.8", "0.8"});
  EXPECT_EQ(IntervalOf(data, 3), IntervalOf(data, 2));
  EXPECT_TRUE(data.WeightDone[3]);
  const ABPoint& peer = data.ABPoints2[3];
  EXPECT_EQ(peer.AX, 650.0F);
  EXPECT_EQ(peer.BX, 500.0F);
  EXPECT_EQ(data.ABPoints2[2].AX, 70.0F);
  EXPECT_NEAR(Val(PointRatio(data, 3, 1, peer.AX, peer.AY, peer.BX, peer.BY)), 0.8, 0.001);
}

TEST(TradeOffCommit, TellsWhichAttributesAreJudgedByIt) {
  WizardData data = Ward();
  EXPECT_EQ(SettledByPoint(data, 2, "0.8"), (std::vector<int>{2, 3}));
  EXPECT_EQ(SettledByPoint(data, 3, "0.8"), (std::vector<int>{2, 3}));
  EXPECT_EQ(SettledByPoint(data, 5, "1.8"), (std::vector<int>{5}));
}

TEST(TradeOffCommit, NeverCopiesToAReferenceOrToTheOtherGroup) {
  WizardData data = TradeOffData({B(1), B(1), C(1), C(2)}, 1, 3);
  CommitTradeOff(data, 0, {"1.5", "1.5", "1.5"});
  EXPECT_EQ(IntervalOf(data, 1), (Interval{1.0, 1.0, 1.0}));
  EXPECT_EQ(IntervalOf(data, 2), (Interval{1.2, 1.2, 1.2}));
}

TEST(TradeOffCommit, ComparesOrientationsAsTexts) {
  WizardData data = Ward();
  data.AttributeList.AttOrientation[3] = "0.0";
  CommitTradeOff(data, 2, {"0.7", "0.7", "0.7"});
  EXPECT_FALSE(data.WeightDone[3]) << "a benefit too, but written otherwise";
  EXPECT_EQ(IntervalOf(data, 3), (Interval{0.8, 0.8, 0.8}));
}

TEST(TradeOffCommit, APeersPointIsCertainWhereBothCornersMeet) {
  WizardData data = Ward();
  data.ABPoints2[3].AOrientation = 2;
  CommitTradeOff(data, 2, {"0.8", "0.8", "0.8"});
  const ABPoint& peer = data.ABPoints2[3];
  EXPECT_EQ(peer.AOrientation, 0);
  EXPECT_EQ(peer.ALX, peer.AX);
  EXPECT_EQ(peer.AUX, peer.AX);
  EXPECT_EQ(peer.ALY, peer.AY);
  EXPECT_EQ(peer.AUY, peer.AY);
}

TEST(TradeOffCommit, APeerOfAnIntervalBelowOneStaysCertain) {
  // Below 1 A's place does not depend on the ratio, so the corners meet although the interval is one.
  WizardData data = Ward();
  CommitTradeOff(data, 2, {"0.6", "0.9", "0.7"});
  const ABPoint& peer = data.ABPoints2[3];
  EXPECT_EQ(IntervalOf(data, 3), (Interval{0.6, 0.7, 0.9}));
  EXPECT_EQ(peer.AOrientation, 0);
  EXPECT_EQ(peer.ALX, 65.0F);
}

TEST(TradeOffCommit, APeersCornersAreThoseOfTheSuggestionsForTheBounds) {
  WizardData data = TradeOffData({B(1), B(1), B(2), C(1)}, 2, 3);
  WizardData low = data;
  SuggestABPoints(low, 1, 2, 4.0);
  WizardData high = data;
  SuggestABPoints(high, 1, 2, 6.0);
  WizardData middle = data;
  SuggestABPoints(middle, 1, 2, 5.0);
  CommitTradeOff(data, 0, {"4", "6", "5"});
  const ABPoint& peer = data.ABPoints2[1];
  EXPECT_EQ(peer.ALX, low.ABPoints2[1].AX);
  EXPECT_EQ(peer.ALY, low.ABPoints2[1].AY);
  EXPECT_EQ(peer.AUX, high.ABPoints2[1].AX);
  EXPECT_EQ(peer.AUY, high.ABPoints2[1].AY);
  EXPECT_EQ(peer.AX, middle.ABPoints2[1].AX);
  EXPECT_EQ(peer.BY, middle.ABPoints2[1].BY);
  EXPECT_NE(peer.ALX, peer.AUX);
  EXPECT_EQ(peer.ALY, peer.AUY);
  EXPECT_EQ(peer.AOrientation, 1);
}

TEST(TradeOffCommit, APeerWhoseCornersDifferInTheSecondScoreOnlyIsUncertainUpward) {
  // From below 1 to above 1 the second score changes from a half to a third; a scale without length across keeps the
  // first one.
  WizardData data = TradeOffData({B(1), B(1), B(2), C(1)}, 2, 3);
  data.AttValueData.ScoreMin[1] = 50.0;
  data.AttValueData.ScoreMax[1] = 50.0;
  CommitTradeOff(data, 0, {"0.5", "2", "1"});
  const ABPoint& peer = data.ABPoints2[1];
  EXPECT_EQ(peer.ALX, peer.AUX);
  EXPECT_EQ(peer.ALY, 50.0F);
  EXPECT_EQ(peer.AUY, static_cast<Single>(100.0 / 3.0));
  EXPECT_EQ(peer.AOrientation, 2);
}

TEST(TradeOffCommit, APeerWhoseCornersDifferInBothScoresKeepsItsOrientation) {
  for (const Integer former : {Integer(0), Integer(1), Integer(2)}) {
    WizardData data = TradeOffData({B(1), B(1), B(2), C(1)}, 2, 3);
    data.ABPoints2[1].AOrientation = former;
    CommitTradeOff(data, 0, {"0.5", "2", "1"});
    EXPECT_NE(data.ABPoints2[1].ALX, data.ABPoints2[1].AUX);
    EXPECT_NE(data.ABPoints2[1].ALY, data.ABPoints2[1].AUY);
    EXPECT_EQ(data.ABPoints2[1].AOrientation, former);
  }
}

TEST(TradeOffCommit, PushesTheUnjudgedNeighbours) {
  WizardData data = TradeOffData({B(1), B(2), B(3), B(4), C(1)}, 3, 4);
  CommitTradeOff(data, 2, {"1.3", "1.3", "1.3"});
  EXPECT_EQ(IntervalOf(data, 1), (Interval{1.3, 1.3, 1.3}));
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.3, 1.3, 1.3}));
  EXPECT_FALSE(data.WeightDone[1]);
  EXPECT_EQ(IntervalOf(data, 3), (Interval{1.0, 1.0, 1.0}));
}

TEST(TradeOffCommit, PushesDownToTheFirstJudgedRank) {
  WizardData data = TradeOffData({B(1), B(2), B(3), B(4), C(1)}, 0, 4);
  Judge(data, 2, 0.7, 0.75);
  CommitTradeOff(data, 1, {"0.6", "0.65", "0.62"});
  EXPECT_EQ(IntervalOf(data, 2), Range(0.7, 0.75));
  EXPECT_EQ(IntervalOf(data, 3), (Interval{0.8, 0.8, 0.8}));
  WizardData open = TradeOffData({B(1), B(2), B(3), B(4), C(1)}, 0, 4);
  CommitTradeOff(open, 1, {"0.6", "0.65", "0.62"});
  EXPECT_EQ(IntervalOf(open, 2), (Interval{0.6, 0.6, 0.6}));
  EXPECT_EQ(IntervalOf(open, 3), (Interval{0.6, 0.6, 0.6}));
}

TEST(TradeOffCommit, OfInfinityIsATypeMismatchAndStoresNothing) {
  for (const TradeOffRatios& ratios :
       {TradeOffRatios{"Infinity!", "1.5", "1.5"}, TradeOffRatios{"1.5", "Infinity!", "1.5"},
        TradeOffRatios{"1.5", "1.5", "Infinity!"}}) {
    WizardData data = Ward();
    EXPECT_EQ(ErrorNumber([&] { return CommitTradeOff(data, 0, ratios); }), 13);
    EXPECT_EQ(IntervalOf(data, 0), (Interval{1.2, 1.2, 1.2}));
    EXPECT_FALSE(data.WeightDone[0]);
  }
}

}  // namespace
}  // namespace Tarnwise
