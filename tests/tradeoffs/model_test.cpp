#include "TradeOffs.h"

#include "curves/mdGraphs.h"
#include "runtime/Text.h"

#include <cmath>

namespace Tarnwise {
namespace {

// Attributes 0 (target) and 1 (reference), values a hundredth of the scores, performance from 0 to 100.
WizardData Pair() {
  WizardData data = TradeOffData({B(1), B(2), C(1)}, 1, 2);
  for (int i = 0; i < 3; ++i) {
    data.AttValueData.WorstScore[i] = 0.0;
    data.AttValueData.BestScore[i] = 100.0;
  }
  return data;
}

String RatioOf(const WizardData& data, const ABPoint& p) { return PointRatio(data, 0, 1, p.AX, p.AY, p.BX, p.BY); }

TEST(PointRatioOf, IsTheSecondValuesOverTheFirstOnesAtFourDecimals) {
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 60, 70, 46), "0.4667");
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 60, 60, 30), "1.5");
}

TEST(PointRatioOf, EqualFirstScoresIsInfinity) {
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 60, 40, 46), "Infinity!");
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 60, 40, 60), "Infinity!");
}

TEST(PointRatioOf, FirstScoresOnAFlatPartOfTheCurveIsInfinity) {
  WizardData data = Pair();
  GiveCurve(data, 0, {0, 20, 40, 60, 80, 90, 100}, {0, 0.5, 0.5, 0.5, 0.5, 0.75, 1});
  EXPECT_EQ(PointRatio(data, 0, 1, 45, 60, 55, 46), "Infinity!");
}

TEST(PointRatioOf, ScoresBeyondTheCurvesEndHaveItsValue) {
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 100, 60, 140, 46), "Infinity!");
  EXPECT_EQ(PointRatio(Pair(), 0, 1, -30, 60, 70, 46), PointRatio(Pair(), 0, 1, 0, 60, 70, 46));
}

TEST(PointRatioOf, EqualSecondScoresAndDifferentFirstOnesIsZero) {
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 60, 70, 60), "0");
  EXPECT_EQ(PointRatio(Pair(), 0, 1, 70, 60, 40, 60), "0") << "never with a sign";
}

TEST(PointRatioOf, ARatioThatRoundsToZeroHasNoSign) {
  WizardData data = Pair();
  GiveScale(data, 1, 0.0, 1000000.0);
  EXPECT_EQ(PointRatio(data, 0, 1, 0, 500000, 100, 500010), "0");
}

TEST(PointRatioOf, AToTheLeftOfBAndHigherIsPositive) { EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 60, 50, 40), "2"); }

TEST(PointRatioOf, AToTheLeftOfBAndLowerIsNegative) { EXPECT_EQ(PointRatio(Pair(), 0, 1, 40, 20, 50, 40), "-2"); }

TEST(PointRatioOf, AToTheRightOfBAndLowerIsPositive) { EXPECT_EQ(PointRatio(Pair(), 0, 1, 50, 40, 40, 60), "2"); }

TEST(PointRatioOf, GoesThroughTheValueCurvesOfBothAttributes) {
  WizardData data = Pair();
  GiveCurve(data, 0, {0, 100}, {0, 0.5});
  GiveCurve(data, 1, {0, 50}, {0, 1});
  // (0.6 - 0.2) / (0.45 - 0.05)
  EXPECT_EQ(PointRatio(data, 0, 1, 10, 30, 90, 10), "1");
}

TEST(RefPairRatioOf, IsTheNegativeOfThePointRatio) {
  EXPECT_EQ(RefPairRatio(Pair(), 2, 1, 50, 40, 40, 60), "-2");
  EXPECT_EQ(PointRatio(Pair(), 2, 1, 50, 40, 40, 60), "2");
}

TEST(RefPairRatioOf, IsPositiveWithAUpAndToTheRightOfB) { EXPECT_EQ(RefPairRatio(Pair(), 2, 1, 60, 70, 40, 30), "2"); }

TEST(RefPairRatioOf, EqualFirstScoresIsInfinityAndEqualSecondOnesZero) {
  EXPECT_EQ(RefPairRatio(Pair(), 2, 1, 60, 70, 60, 30), "Infinity!");
  EXPECT_EQ(RefPairRatio(Pair(), 2, 1, 60, 70, 40, 70), "0");
  EXPECT_EQ(RefPairRatio(Pair(), 2, 1, 40, 70, 60, 70), "0");
}

// Suggestions.

TEST(SuggestionForOne, StandsAtThirdsOfTheScales) {
  WizardData data = Pair();
  GiveScale(data, 0, 10.0, 40.0);
  GiveScale(data, 1, -60.0, 240.0);
  SuggestABPoints(data, 0, 1, 1.0);
  const ABPoint& p = data.ABPoints2[0];
  EXPECT_EQ(AAndB(p), "23 40 | 20 70");
}

TEST(SuggestionForOne, AsksNoValueCurveWhetherOneIsAWholeNumberOrADouble) {
  for (const Variant& one : {Variant(Integer(1)), Variant(1.0), Variant(1.0F), Variant(String("1"))}) {
    WizardData data = Pair();
    // Curves that fault when they are asked.
    GiveCurve(data, 0, {50, 50}, {0, 1});
    GiveCurve(data, 1, {}, {});
    SuggestABPoints(data, 0, 1, ToDouble(one));
    EXPECT_EQ(data.ABPoints2[0].AX, static_cast<Single>((1.3 * 100.0) / 3.0));
    EXPECT_EQ(data.ABPoints2[0].BY, static_cast<Single>((1.3 * 100.0) / 3.0));
  }
}

TEST(SuggestionBelowOne, StandsAtTheMiddleWithAAThirdFartherThanB) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 0.8);
  const ABPoint& p = data.ABPoints2[0];
  // 0.5 + 0.15 * 0.8 = 0.62, reached a step early within the tolerance.
  EXPECT_EQ(AAndB(p), "65 50 | " + XY(50.0F, GetAttScore(data, 1, 0.62F)));
  EXPECT_NEAR(p.BY, 62.0F, 0.02F);
}

TEST(SuggestionBelowOne, HasNoLoopEvenWhereTheSecondValueLeavesTheScale) {
  WizardData data = Pair();
  GiveCurve(data, 1, {0}, {0.95});
  SuggestABPoints(data, 0, 1, 0.9);
  const ABPoint& p = data.ABPoints2[0];
  // 0.95 + 0.135 is a value that the curve has nowhere: half the range.
  EXPECT_EQ(AAndB(p), "65 50 | 50 50");
}

TEST(SuggestionBelowOne, TakesZeroAndNegativeRatiosToo) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 0.0);
  EXPECT_NEAR(data.ABPoints2[0].BY, 50.0F, 0.02F);
  SuggestABPoints(data, 0, 1, -1.0);
  EXPECT_NEAR(data.ABPoints2[0].BY, 35.0F, 0.02F);
}

TEST(SuggestionAboveOne, ABeginningInTheBandSkipsTheLoop) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 2.0);
  const ABPoint& p = data.ABPoints2[0];
  EXPECT_EQ(AAndB(p), "43.333332 33.333332 | " + XY(static_cast<Single>(100.0 / 3.0), p.BY)) << "130 / 3, 100 / 3";
  EXPECT_NEAR(p.BY, 53.333F, 0.02F);
}

// Curves with their points at the scores of the first pass, and numbers without a rounding: B's second value is above
// A's by just `times` fifths of the room there.
WizardData AtTheEdge(Double times) {
  WizardData data = Pair();
  GiveScale(data, 0, 0.0, 3.0);
  GiveScale(data, 1, 0.0, 3.0);
  const Double ofA = 0.25 + 0.0625 * times;  // room is 5/8, a fifth of it 1/8, halved by the ratio 2
  GiveCurve(data, 0, {0, 1, static_cast<Double>(1.3F), 3}, {0, 0.25, ofA, 1});
  GiveCurve(data, 1, {0, 1, 2, 3}, {0, 0.375, 0.75, 1});
  return data;
}

TEST(SuggestionAboveOne, BothEndsOfTheBandCountAtTheBeginning) {
  for (const Double times : {1.0, 2.0}) {
    WizardData data = AtTheEdge(times);
    SuggestABPoints(data, 0, 1, 2.0);
    EXPECT_EQ(data.ABPoints2[0].AX, 1.3F) << times;
  }
  for (const Double times : {0.999, 2.001}) {
    WizardData data = AtTheEdge(times);
    SuggestABPoints(data, 0, 1, 2.0);
    EXPECT_LT(data.ABPoints2[0].AX, 1.3F) << times;
  }
}

// c after each pass, as the loop has it.
Double NextC(Double c) { return std::nearbyint(c * 0.999 * 10000.0) / 10000.0; }

TEST(SuggestionAboveOne, ALargeRatioEndsInTheBandInstead) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 6.0);
  const ABPoint& p = data.ABPoints2[0];
  // d = 2 (c - 1) must fall below 2/5 of 2/3.
  Double c = 1.3;
  while (2.0 * (c - 1.0) >= 4.0 / 15.0) c = NextC(c);
  EXPECT_EQ(p.AX, static_cast<Single>((c * 100.0) / 3.0));
  EXPECT_GT(p.AX, p.BX);
  const Double room = 1.0 - GetAttValue(data, 1, p.AY);
  const Double d = GetAttValue(data, 1, p.BY) - GetAttValue(data, 1, p.AY);
  EXPECT_GT(d, room / 5.0);
  EXPECT_LT(d, 2.0 * room / 5.0);
  EXPECT_NEAR(Val(RatioOf(data, p)), 6.0, 0.02);
}

TEST(SuggestionAboveOne, ASmallOneIsEndedByTheBoundWithAJustUnderATenthAndLeftOfB) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 1.2);
  const ABPoint& p = data.ABPoints2[0];
  EXPECT_LT(p.AX, 10.0F);
  EXPECT_GT(p.AX, 9.98F);
  EXPECT_LT(p.AX, p.BX);
  EXPECT_LT(p.BY, p.AY);
  Double c = 1.3;
  while (c * 100.0 / 3.0 >= 10.0) c = NextC(c);
  EXPECT_EQ(p.AX, static_cast<Single>((c * 100.0) / 3.0));
}

TEST(SuggestionAboveOne, TheBoundKeepsTheSecondValueOfThePassBefore) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 1.2);
  Double c = 1.3;
  Double before = c;
  while (c * 100.0 / 3.0 >= 10.0) {
    before = c;
    c = NextC(c);
  }
  const Double v1 = GetAttValue(data, 0, static_cast<Single>((before * 100.0) / 3.0));
  const Double v2 = GetAttValue(data, 0, static_cast<Single>(100.0 / 3.0));
  const Double v3 = GetAttValue(data, 1, static_cast<Single>(100.0 / 3.0));
  EXPECT_EQ(data.ABPoints2[0].BY, GetAttScore(data, 1, static_cast<Single>(v3 - (v2 - v1) * 1.2)));
  EXPECT_NEAR(Val(RatioOf(data, data.ABPoints2[0])), 1.2, 0.002) << "the ratio is the one asked for all the same";
}

TEST(SuggestionAboveOne, TheBoundIsATenthOfTheSumOfBestAndWorst) {
  WizardData data = Pair();
  data.AttValueData.WorstScore[0] = 5.0;
  data.AttValueData.BestScore[0] = 95.0;
  SuggestABPoints(data, 0, 1, 1.2);
  // 10 > p - 5 ends the loop; with the difference of the two it would be 9.
  EXPECT_LT(data.ABPoints2[0].AX, 15.0F);
  EXPECT_GT(data.ABPoints2[0].AX, 14.96F);
}

TEST(SuggestionAboveOne, AnAttributeWhoseWorstScoreIsHighEndsAtOnce) {
  WizardData data = Pair();
  data.AttValueData.WorstScore[0] = 90.0;
  data.AttValueData.BestScore[0] = 10.0;
  SuggestABPoints(data, 0, 1, 1.2);
  const ABPoint& p = data.ABPoints2[0];
  EXPECT_EQ(p.AX, static_cast<Single>((1.2987 * 100.0) / 3.0)) << "one pass";
  // The value is the one of the beginning: 1/3 + 0.1 * 1.2.
  EXPECT_NEAR(p.BY, 45.333F, 0.02F);
}

TEST(SuggestionAboveOne, ACThatStallsEndsTheLoopWhereTheBoundCannot) {
  WizardData data = Pair();
  data.AttValueData.WorstScore[0] = -100.0;
  data.AttValueData.BestScore[0] = 0.0;
  SuggestABPoints(data, 0, 1, 1.2);
  EXPECT_EQ(data.ABPoints2[0].AX, static_cast<Single>((0.05 * 100.0) / 3.0));
  EXPECT_EQ(NextC(0.05), 0.05);
}

TEST(SuggestionAboveOne, TheBoundEndsTheLoopBeforeCStallsWhereItCan) {
  WizardData data = Pair();
  data.AttValueData.WorstScore[0] = 0.0;
  data.AttValueData.BestScore[0] = 17.0;
  SuggestABPoints(data, 0, 1, 1.2);
  // 1.7 > p just above the stall at 1.6667.
  EXPECT_LT(data.ABPoints2[0].AX, 1.7F);
  EXPECT_GT(data.ABPoints2[0].AX, 1.69F);
}

TEST(Suggestion, AScaleOfNoLengthPutsBothFirstScoresOnItAndTheSecondOnesTogether) {
  for (const Double ratio : {0.8, 1.2, 3.0}) {
    WizardData data = Pair();
    data.AttValueData.ScoreMin[0] = 50.0;
    data.AttValueData.ScoreMax[0] = 50.0;
    SuggestABPoints(data, 0, 1, ratio);
    const ABPoint& p = data.ABPoints2[0];
    EXPECT_EQ(p.AX, 50.0F);
    EXPECT_EQ(p.BX, 50.0F);
    EXPECT_NEAR(p.BY, p.AY, 0.02F) << ratio;
  }
}

TEST(Suggestion, LeavesOrientationAndCornersAlone) {
  for (const Double ratio : {0.8, 1.0, 1.2}) {
    WizardData data = Pair();
    ABPoint& p = data.ABPoints2[0];
    p = PointsAt(1, 2, 3, 4);
    p.AOrientation = 2;
    SuggestABPoints(data, 0, 1, ratio);
    EXPECT_EQ(Scores(p), XY(p.AX, p.AY) + " upward 1 2 to 1 2 | " + XY(p.BX, p.BY));
  }
}

TEST(Suggestion, IsWrittenToTheRecordOfTheFirstAttributeOnly) {
  WizardData data = Pair();
  SuggestABPoints(data, 0, 1, 1.0);
  EXPECT_NE(data.ABPoints2[0].AX, 0.0F);
  EXPECT_EQ(data.ABPoints2[1].AX, 0.0F);
  EXPECT_EQ(data.ABPoints1[0].AX, 0.0F);
}

TEST(SuggestionOfTheReferencePair, PutsAUpAndToTheRightOfB) {
  WizardData data = Pair();
  GiveScale(data, 2, 10.0, 40.0);
  SuggestRefPairPoints(data, 2, 1);
  const ABPoint& p = data.ABPoints2[2];
  EXPECT_EQ(AAndB(p), "23 43.333332 | 20 33.333332") << "130 / 3, 100 / 3";
  EXPECT_EQ(RefPairRatio(data, 2, 1, p.AX, p.AY, p.BX, p.BY), "1");
}

TEST(SuggestionOfTheReferencePair, AsksNoValueCurve) {
  WizardData data = Pair();
  GiveCurve(data, 2, {50, 50}, {0, 1});
  GiveCurve(data, 1, {}, {});
  SuggestRefPairPoints(data, 2, 1);
  EXPECT_EQ(data.ABPoints2[2].AX, data.ABPoints2[2].AY);
}

// Corners.

TEST(Corners, StandWhereAHasTheBoundsAsItsRatios) {
  WizardData data = Pair();
  data.ABPoints2[0] = PointsAt(60, 40, 40, 60);
  data.WeightsL[0] = 0.8;
  data.WeightsH[0] = 1.6;
  IntervalCorners(data, 0, 1);
  const ABPoint& p = data.ABPoints2[0];
  EXPECT_NEAR(p.ALX, 65.0F, 0.02F);
  EXPECT_NEAR(p.AUX, 52.5F, 0.02F);
  EXPECT_EQ(p.ALY, 40.0F);
  EXPECT_EQ(p.AUY, 40.0F);
  EXPECT_NEAR(Val(PointRatio(data, 0, 1, p.ALX, p.ALY, p.BX, p.BY)), 0.8, 0.001);
  EXPECT_NEAR(Val(PointRatio(data, 0, 1, p.AUX, p.AUY, p.BX, p.BY)), 1.6, 0.003);
}

TEST(Corners, TheOneNamedLowerBelongsToTheLowerBoundWhereverItLies) {
  WizardData data = Pair();
  data.ABPoints2[0] = PointsAt(60, 40, 40, 60);
  data.WeightsL[0] = 0.8;
  data.WeightsH[0] = 1.6;
  IntervalCorners(data, 0, 1);
  EXPECT_GT(data.ABPoints2[0].ALX, data.ABPoints2[0].AUX) << "A to the right of B";
  data.ABPoints2[0] = PointsAt(40, 60, 60, 40);
  IntervalCorners(data, 0, 1);
  EXPECT_LT(data.ABPoints2[0].ALX, data.ABPoints2[0].AUX) << "A to the left of B";
}

TEST(Corners, ABoundThatNoScoreReachesGivesHalfTheRange) {
  WizardData data = Pair();
  GiveScale(data, 0, 20.0, 100.0);
  data.ABPoints2[0] = PointsAt(60, 40, 40, 60);
  data.WeightsL[0] = 0.1;
  data.WeightsH[0] = 1.0;
  IntervalCorners(data, 0, 1);
  EXPECT_EQ(data.ABPoints2[0].ALX, 40.0F);
}

TEST(Corners, ABoundOfZeroIsADivisionByZero) {
  WizardData data = Pair();
  data.ABPoints2[0] = PointsAt(60, 40, 40, 60);
  data.WeightsL[0] = 0.0;
  data.WeightsH[0] = 1.0;
  EXPECT_EQ(ErrorNumber([&] { return (IntervalCorners(data, 0, 1), 0); }), 11);
  data.ABPoints2[0] = PointsAt(60, 40, 40, 40);
  EXPECT_EQ(ErrorNumber([&] { return (IntervalCorners(data, 0, 1), 0); }), 6);
}

TEST(Corners, LeaveTheOrientationAndAAndBAlone) {
  WizardData data = Pair();
  data.ABPoints2[0] = PointsAt(60, 40, 40, 60);
  data.ABPoints2[0].AOrientation = 2;
  data.WeightsL[0] = 0.8;
  data.WeightsH[0] = 1.6;
  IntervalCorners(data, 0, 1);
  const ABPoint& p = data.ABPoints2[0];
  EXPECT_EQ(Scores(p), "60 40 upward " + XY(p.ALX, p.ALY) + " to " + XY(p.AUX, p.AUY) + " | 40 60");
}

}  // namespace
}  // namespace Tarnwise
