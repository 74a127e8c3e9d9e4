#include "direct/RegionVerdict.h"
#include "support/Ranked.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tarnwise {
namespace {

// A handle whose ray has this slope: at x, so far above the lower edge.
HandlePoints Rays(Single x0, Single up0, Single x1, Single up1) { return {x0, 252.0F - up0, x1, 252.0F - up1}; }

WizardData SevenRanks() { return RankedData({B(1), B(2), B(3), B(4), B(5), B(6), B(7), C(1), C(2)}, 3, 7); }

TEST(Limits, AreZeroAndAHundredWhereNothingIsJudgedOnThatSide) {
  const WizardData data = SevenRanks();
  EXPECT_EQ(LimitsOf(data, 0).Upper, 100.0);
  EXPECT_EQ(LimitsOf(data, 6).Lower, 0.0);
}

TEST(Limits, OfTheFirstRankWithNothingJudgedBelowLetAnyRegionOnTheChartBe) {
  WizardData data = RankedData({B(1), B(2), B(3), C(1)}, 2, 3);
  data.WeightDone[2] = false;
  EXPECT_EQ(LimitsOf(data, 0).Lower, 0.0);
  EXPECT_EQ(LimitsOf(data, 0).Upper, 100.0);
  EXPECT_EQ(JudgePair(data, 0, Rays(6, 252, 252, 6)).State, kConsistent);
}

TEST(Limits, KeepARankAboveTheReferenceFromFallingBelowOne) {
  const WizardData data = SevenRanks();
  EXPECT_EQ(LimitsOf(data, 1).Lower, 1.0);
  EXPECT_EQ(LimitsOf(data, 5).Upper, 1.0);
}

TEST(Limits, AreTheNearBoundsOfTheNearestJudgedNeighbours) {
  WizardData data = SevenRanks();
  Judge(data, 0, 2.1, 3.17);
  Judge(data, 2, 1.13, 1.37);
  EXPECT_EQ(LimitsOf(data, 1).Upper, 2.1);
  EXPECT_EQ(LimitsOf(data, 1).Lower, 1.37);
}

TEST(Limits, LookAtTheNearestJudgedRankOnly) {
  WizardData data = SevenRanks();
  Judge(data, 4, 0.7, 0.8);
  Judge(data, 5, 0.4, 0.9);
  EXPECT_EQ(LimitsOf(data, 6).Upper, 0.4);
  Judge(data, 6, 0.1, 0.95);
  data.WeightDone[5] = false;
  EXPECT_EQ(LimitsOf(data, 4).Lower, 0.95);
}

TEST(Limits, TakeTheFirstJudgedAttributeOfARankById) {
  WizardData data = RankedData({B(3), B(2), B(1), B(1), B(1), C(1)}, 0, 5);
  Judge(data, 3, 1.5, 1.6);
  Judge(data, 4, 1.7, 1.8);
  EXPECT_EQ(LimitsOf(data, 1).Upper, 1.5);
}

TEST(Limits, ReadAZeroAboveAsNoLimit) {
  WizardData data = SevenRanks();
  Judge(data, 4, 0.0, 0.0);
  EXPECT_EQ(LimitsOf(data, 5).Upper, 100.0);
}

TEST(Limits, ReadAZeroBelowAsZero) {
  WizardData data = SevenRanks();
  Judge(data, 6, 0.0, 0.0);
  EXPECT_EQ(LimitsOf(data, 5).Lower, 0.0);
}

TEST(Limits, DoNotLookAtAttributesOfTheSameRank) {
  WizardData data = RankedData({B(1), B(1), B(2), C(1)}, 2, 3);
  Judge(data, 1, 5.0, 6.0);
  EXPECT_EQ(LimitsOf(data, 0).Lower, 1.0);
  EXPECT_EQ(LimitsOf(data, 0).Upper, 100.0);
}

TEST(Limits, DoNotLookAtTheOtherGroup) {
  WizardData data = RankedData({B(1), B(2), C(1), C(2), C(3)}, 1, 4);
  Judge(data, 2, 3.1, 3.2);
  EXPECT_EQ(LimitsOf(data, 0).Upper, 100.0);
  EXPECT_EQ(LimitsOf(data, 3).Upper, 3.1);
  EXPECT_EQ(LimitsOf(data, 3).Lower, 1.0);
}

struct Edge {
  const char* Name;
  HandlePoints At;
  bool On;
};

class OnChart : public testing::TestWithParam<Edge> {};

TEST_P(OnChart, HoldsBoundsIncluded) {
  const WizardData data = SevenRanks();
  const Verdict verdict = JudgePair(data, 0, GetParam().At);
  EXPECT_EQ(verdict.State != kInvalid, GetParam().On);
  EXPECT_EQ(verdict.Lower.empty(), !GetParam().On);
  EXPECT_EQ(JudgeReferencePair(GetParam().At).State, GetParam().On ? kConsistent : kInvalid);
}

const Single kNear = std::nextafter(6.0F, 0.0F);
const Single kFar = std::nextafter(252.0F, 300.0F);

INSTANTIATE_TEST_SUITE_P(
    Edges, OnChart,
    testing::Values(
        Edge{"Inside", {100, 100, 120, 120}, true}, Edge{"FirstLeft", {6, 100, 120, 120}, true},
        Edge{"FirstTooFarLeft", {kNear, 100, 120, 120}, false}, Edge{"FirstRight", {252, 100, 120, 120}, true},
        Edge{"FirstTooFarRight", {kFar, 100, 120, 120}, false}, Edge{"FirstTop", {100, 0, 120, 120}, true},
        Edge{"FirstAboveTheTop", {100, -0.001F, 120, 120}, false}, Edge{"FirstBottom", {100, 246, 120, 120}, true},
        Edge{"FirstTooLow", {100, std::nextafter(246.0F, 300.0F), 120, 120}, false},
        Edge{"SecondLeft", {100, 100, 6, 120}, true}, Edge{"SecondTooFarLeft", {100, 100, kNear, 120}, false},
        Edge{"SecondRight", {100, 100, 252, 120}, true}, Edge{"SecondTooFarRight", {100, 100, kFar, 120}, false},
        Edge{"SecondTop", {100, 100, 120, 0}, true}, Edge{"SecondAboveTheTop", {100, 100, 120, -0.001F}, false},
        Edge{"SecondBottom", {100, 100, 120, 246}, true},
        Edge{"SecondTooLow", {100, 100, 120, std::nextafter(246.0F, 300.0F)}, false}),
    [](const auto& edge) { return String(edge.param.Name); });

TEST(Judging, TakesARegionThatTouchesItsLimits) {
  WizardData data = SevenRanks();
  Judge(data, 0, 1.5, 2.0);
  Judge(data, 2, 1.1, 1.25);
  const Verdict verdict = JudgePair(data, 1, Rays(100, 125, 100, 150));
  EXPECT_EQ(verdict.State, kConsistent);
  EXPECT_EQ(verdict.Lower, "1.25");
  EXPECT_EQ(verdict.Upper, "1.50");
}

TEST(Judging, RefusesARegionThatPassesALimitByTheLeast) {
  WizardData data = SevenRanks();
  Judge(data, 0, std::nextafter(1.5, 0.0), 2.0);
  EXPECT_EQ(JudgePair(data, 1, Rays(100, 125, 100, 150)).State, kInconsistent);
  Judge(data, 0, 1.5, 2.0);
  Judge(data, 2, 1.1, std::nextafter(1.25, 2.0));
  EXPECT_EQ(JudgePair(data, 1, Rays(100, 125, 100, 150)).State, kInconsistent);
}

TEST(Judging, SwappedHandlesSayTheSameInterval) {
  const WizardData data = SevenRanks();
  for (const HandlePoints& at : {Rays(100, 125, 100, 150), Rays(100, 150, 100, 125)}) {
    const Verdict verdict = JudgePair(data, 0, at);
    EXPECT_EQ(verdict.State, kConsistent);
    EXPECT_EQ(verdict.Lower, "1.25");
    EXPECT_EQ(verdict.Upper, "1.50");
  }
}

TEST(Judging, ShowsTheCandidateOfAnInconsistentRegionTheSmallerSlopeFirst) {
  const WizardData data = SevenRanks();
  for (const HandlePoints& at : {Rays(100, 50, 100, 150), Rays(100, 150, 100, 50)}) {
    const Verdict verdict = JudgePair(data, 0, at);
    EXPECT_EQ(verdict.State, kInconsistent);
    EXPECT_EQ(verdict.Lower, "0.50");
    EXPECT_EQ(verdict.Upper, "1.50");
  }
}

TEST(Judging, ComparesTheSlopesAndNotTheirTexts) {
  const WizardData data = SevenRanks();
  // 249 / 250 is 0.996 and reads "1.00", but lies below the reference all the same.
  const Verdict verdict = JudgePair(data, 2, Rays(250, 249, 100, 150));
  EXPECT_EQ(verdict.Lower, "1.00");
  EXPECT_EQ(verdict.State, kInconsistent);
}

TEST(Judging, WithTheControlOffDecidesNothingAndStillFillsTheBoxes) {
  WizardData data = SevenRanks();
  for (const Integer off : {Integer(0), Integer(2)}) {
    data.IncnsistCtrl = off;
    for (const HandlePoints& at : {Rays(100, 50, 100, 150), Rays(100, 150, 100, 50)}) {
      const Verdict verdict = JudgePair(data, 0, at);
      EXPECT_EQ(verdict.State, kNoneDecided);
      EXPECT_EQ(verdict.Lower, "0.50");
      EXPECT_EQ(verdict.Upper, "1.50");
    }
    EXPECT_EQ(JudgePair(data, 0, Rays(5, 50, 100, 150)).State, kInvalid);
  }
}

TEST(Judging, OfTheReferencesAsksNoNeighbourAndNoSwitch) {
  const Verdict verdict = JudgeReferencePair(Rays(10, 220, 10, 220));
  EXPECT_EQ(verdict.State, kConsistent);
  EXPECT_EQ(verdict.Lower, "22.00");
  EXPECT_EQ(verdict.Upper, "22.00");
}

TEST(Judging, OfTheReferencesPutsTheSecondHandleIntoTheLowerBox) {
  const Verdict verdict = JudgeReferencePair(Rays(100, 50, 100, 150));
  EXPECT_EQ(verdict.Lower, "1.50");
  EXPECT_EQ(verdict.Upper, "0.50");
}

RC_GTEST_PROP(Judging, SaysConsistentExactlyWhenTheWholeIntervalLiesWithinTheLimits, ()) {
  WizardData data = SevenRanks();
  for (const int i : {0, 1, 2, 4, 5, 6}) {
    if (*rc::gen::arbitrary<bool>()) {
      const int low = *rc::gen::inRange(0, 300);
      Judge(data, i, low / 100.0, (low + *rc::gen::inRange(0, 200)) / 100.0);
    }
  }
  const int t = *rc::gen::element(0, 1, 2, 4, 5, 6);
  const auto point = [] { return static_cast<Single>(*rc::gen::inRange(6, 253)); };
  const HandlePoints at = Rays(point(), point(), point(), point());
  const Double r0 = (252.0 - static_cast<Double>(at.Y0)) / static_cast<Double>(at.X0);
  const Double r1 = (252.0 - static_cast<Double>(at.Y1)) / static_cast<Double>(at.X1);
  // The limits once more, by walking rank by rank.
  Double upper = 100.0;
  for (int r = data.AttO[t] - 1; r >= 1 && upper == 100.0; --r) {
    const int k = r - 1;
    if (data.WeightDone[k]) {
      upper = ToDouble(data.WeightsL[k]) == 0.0 ? 100.0 : ToDouble(data.WeightsL[k]);
      break;
    }
  }
  Double lower = 0.0;
  for (int r = data.AttO[t] + 1; r <= 7; ++r) {
    const int k = r - 1;
    if (data.WeightDone[k]) {
      lower = ToDouble(data.WeightsH[k]);
      break;
    }
  }
  const bool fits = r0 >= lower && r1 >= lower && r0 <= upper && r1 <= upper;
  RC_ASSERT(JudgePair(data, t, at).State == (fits ? kConsistent : kInconsistent));
}

}  // namespace
}  // namespace Tarnwise
