// The consistency control and the chart that it judges.
#include "direct/RegionVerdict.h"
#include "runtime/Text.h"
#include "support/Random.h"

#include <cmath>

namespace Tarnwise {
namespace {

constexpr Double kLeastOnChart = 0.035;
constexpr Double kMostOnChart = 29.0;

HandlePoints Handles(Double first, Double second) {
  const ChartPoint a = RatioToPoint(first);
  const ChartPoint b = RatioToPoint(second);
  return {a.X, a.Y, b.X, b.Y};
}

Double AnyRatio() { return *rc::gen::inRange(0, 2) == 0 ? Between(kLeastOnChart, 1.5) : Between(1.0, kMostOnChart); }

// Judges a random target within its limits, as the control lets a user do.
void JudgeConsistently(WizardData& data) {
  const int target = AnyTarget(data);
  const Limits limits = LimitsOf(data, target);
  const Double low = Between(limits.Lower, limits.Upper);
  const Double high = Between(low, limits.Upper);
  RC_ASSERT(IsWithin(limits, low, high));
  CommitInterval(data, target, low, high);
}

RC_GTEST_PROP(ConsistencyProperty, ConsistentJudgmentsFollowTheRanks, ()) {
  WizardData data = RandomRankedData();
  const int times = Whole(1, 12);
  for (int k = 0; k < times; ++k) JudgeConsistently(data);
  for (int better = 0; better < data.NumAtts(); ++better) {
    for (int worse = 0; worse < data.NumAtts(); ++worse) {
      if (!data.WeightDone[better] || !data.WeightDone[worse]) continue;
      if (data.IsBenefit(better) != data.IsBenefit(worse) || data.AttO[better] >= data.AttO[worse]) continue;
      RC_ASSERT(IntervalOf(data, better).Low >= IntervalOf(data, worse).High);
    }
  }
}

RC_GTEST_PROP(ConsistencyProperty, LimitsLeaveRoomAfterConsistentJudgments, ()) {
  WizardData data = RandomRankedData();
  const int times = Whole(0, 12);
  for (int k = 0; k < times; ++k) JudgeConsistently(data);
  for (const int target : Targets(data)) {
    const Limits limits = LimitsOf(data, target);
    RC_ASSERT(limits.Lower <= limits.Upper);
    const bool above = data.AttO[target] < data.AttO[ReferenceOf(data, target)];
    RC_ASSERT((above ? limits.Lower >= 1.0 : limits.Upper <= 1.0));
  }
}

RC_GTEST_PROP(ConsistencyProperty, HandlesMayChangePlaces, ()) {
  const WizardData data = RandomRankedData();
  const int target = AnyTarget(data);
  const Double a = AnyRatio();
  const Double b = AnyRatio();
  const Verdict one = JudgePair(data, target, Handles(a, b));
  const Verdict other = JudgePair(data, target, Handles(b, a));
  RC_ASSERT(one.State == other.State);
  RC_ASSERT(one.Lower == other.Lower);
  RC_ASSERT(one.Upper == other.Upper);
}

RC_GTEST_PROP(ConsistencyProperty, TheSmallerRatioStandsInTheLowerBox, ()) {
  const WizardData data = RandomRankedData();
  const Verdict verdict = JudgePair(data, AnyTarget(data), Handles(AnyRatio(), AnyRatio()));
  RC_ASSERT(verdict.State != kInvalid);
  RC_ASSERT(Val(verdict.Lower) <= Val(verdict.Upper));
}

RC_GTEST_PROP(ConsistencyProperty, APartOfAConsistentRegionIsConsistent, ()) {
  const WizardData data = RandomRankedData();
  const int target = AnyTarget(data);
  const Double low = AnyRatio();
  const Double high = Between(low, kMostOnChart);
  RC_PRE(JudgePair(data, target, Handles(low, high)).State == kConsistent);
  const Double part = Between(low, high);
  RC_ASSERT(JudgePair(data, target, Handles(part, high)).State == kConsistent);
  RC_ASSERT(JudgePair(data, target, Handles(low, part)).State == kConsistent);
}

RC_GTEST_PROP(ConsistencyProperty, TheSwitchChangesTheVerdictButNotTheBoxes, ()) {
  WizardData data = RandomRankedData();
  const int target = AnyTarget(data);
  const HandlePoints at = Handles(AnyRatio(), AnyRatio());
  const Verdict on = JudgePair(data, target, at);
  data.IncnsistCtrl = 0;
  const Verdict off = JudgePair(data, target, at);
  RC_ASSERT(off.State == kNoneDecided);
  RC_ASSERT(on.State == kConsistent || on.State == kInconsistent);
  RC_ASSERT(on.Lower == off.Lower);
  RC_ASSERT(on.Upper == off.Upper);
}

RC_GTEST_PROP(ChartProperty, ThePointOfARatioHasItsSlope, ()) {
  const Double ratio = AnyRatio();
  const ChartPoint p = RatioToPoint(ratio);
  RC_ASSERT(std::fabs(PointToRatio(p.X, p.Y) - ratio) <= 1e-4 * std::fmax(1.0, ratio));
  RC_ASSERT(IsOnChart({p.X, p.Y, p.X, p.Y}));
}

RC_GTEST_PROP(ChartProperty, WhatIsTooSteepOrTooFlatIsOffTheChart, ()) {
  const Double ratio = Whole(0, 1) == 0 ? Between(29.5, 1000.0) : Between(0.0, 0.0339);
  const WizardData data = RandomRankedData();
  const Verdict verdict = JudgePair(data, AnyTarget(data), Handles(1.0, ratio));
  RC_ASSERT(verdict.State == kInvalid);
  RC_ASSERT(verdict.Lower.empty() && verdict.Upper.empty());
}

RC_GTEST_PROP(ChartProperty, ALargerRatioIsASteeperRay, ()) {
  const Double small = AnyRatio();
  const Double large = small * Between(1.01, 2.0);
  const ChartPoint a = RatioToPoint(small);
  const ChartPoint b = RatioToPoint(large);
  RC_ASSERT(PointToRatio(a.X, a.Y) < PointToRatio(b.X, b.Y));
}

}  // namespace
}  // namespace Tarnwise
