// Ratios of two alternatives, their verdict, and how they enter the intervals.
#include "TradeOffs.h"
#include "curves/mdGraphs.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "support/Random.h"

#include <cmath>

namespace Tarnwise {
namespace {

WizardData RandomTradeOffs() {
  const std::vector<RankedAtt> atts = RandomRanks(5);
  WizardData data = TradeOffData(atts, AnyOf(atts, Group::Benefit), AnyOf(atts, Group::Cost));
  for (int i = 0; i < data.NumAtts(); ++i) {
    const Double low = Between(-100.0, 100.0);
    GiveScale(data, i, low, low + Between(1.0, 300.0));
  }
  return data;
}

Single ScoreOf(const WizardData& data, int att) {
  return static_cast<Single>(Between(data.AttValueData.ScoreMin[att], data.AttValueData.ScoreMax[att]));
}

RC_GTEST_PROP(RatioProperty, DoesNotDependOnWhichAlternativeIsCalledA, ()) {
  const WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const int r = ReferenceOf(data, t);
  const Single x1 = ScoreOf(data, t);
  const Single x2 = ScoreOf(data, t);
  const Single y1 = ScoreOf(data, r);
  const Single y2 = ScoreOf(data, r);
  RC_ASSERT(PointRatio(data, t, r, x1, y1, x2, y2) == PointRatio(data, t, r, x2, y2, x1, y1));
}

RC_GTEST_PROP(RatioProperty, OfTheReferencePairHasTheOtherSign, ()) {
  const WizardData data = RandomTradeOffs();
  const int x = data.CRefAttID;
  const int y = data.BRefAttID;
  const Single x1 = ScoreOf(data, x);
  const Single x2 = ScoreOf(data, x);
  const Single y1 = ScoreOf(data, y);
  const Single y2 = ScoreOf(data, y);
  const String one = PointRatio(data, x, y, x1, y1, x2, y2);
  const String other = RefPairRatio(data, x, y, x1, y1, x2, y2);
  RC_ASSERT((one == kInfinity) == (other == kInfinity));
  if (one != kInfinity) RC_ASSERT(Val(one) == -Val(other));
}

RC_GTEST_PROP(RatioProperty, MakesTheAlternativesEquallyGood, ()) {
  const WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const int r = ReferenceOf(data, t);
  const ABPoint p = PointsAt(ScoreOf(data, t), ScoreOf(data, r), ScoreOf(data, t), ScoreOf(data, r));
  const String ratio = PointRatio(data, t, r, p.AX, p.AY, p.BX, p.BY);
  RC_PRE(ratio != kInfinity);
  const Double a = Val(ratio) * GetAttValue(data, t, p.AX) + GetAttValue(data, r, p.AY);
  const Double b = Val(ratio) * GetAttValue(data, t, p.BX) + GetAttValue(data, r, p.BY);
  RC_ASSERT(std::fabs(a - b) <= 0.00006);  // the ratio has four decimals
}

RC_GTEST_PROP(RatioProperty, EqualFirstScoresHaveNone, ()) {
  const WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const int r = ReferenceOf(data, t);
  const Single x = ScoreOf(data, t);
  RC_ASSERT(PointRatio(data, t, r, x, ScoreOf(data, r), x, ScoreOf(data, r)) == kInfinity);
}

String AnyRatioText() {
  if (Whole(0, 9) == 0) return kInfinity;
  return NumberText(RoundToFourDecimals(Between(-2.0, 8.0)));
}

RC_GTEST_PROP(TradeOffVerdictProperty, DoesNotDependOnWhichCornerIsFirst, ()) {
  const WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const String a = AnyRatioText();
  const String b = AnyRatioText();
  const TradeOffVerdict one = DecideJudgmentState(data, t, a, b);
  const TradeOffVerdict other = DecideJudgmentState(data, t, b, a);
  RC_ASSERT(one.State == other.State);
  RC_ASSERT(one.Caption == other.Caption);
}

RC_GTEST_PROP(TradeOffVerdictProperty, IsInvalidExactlyWhereARatioIsNotPositive, ()) {
  WizardData data = RandomTradeOffs();
  data.IncnsistCtrl = static_cast<Integer>(Whole(0, 1));
  const String a = AnyRatioText();
  const String b = AnyRatioText();
  const bool positive = a != kInfinity && b != kInfinity && Val(a) > 0.0 && Val(b) > 0.0;
  RC_ASSERT((DecideJudgmentState(data, AnyTarget(data), a, b).State != kInvalid) == positive);
}

RC_GTEST_PROP(TradeOffVerdictProperty, IsConsistentExactlyWithinTheLimits, ()) {
  const WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const Double a = RoundToFourDecimals(Between(0.01, 3.0));
  const Double b = RoundToFourDecimals(Between(0.01, 3.0));
  const Limits limits = LimitsOf(data, t);
  const bool within = limits.Lower <= std::min(a, b) && std::max(a, b) <= limits.Upper;
  const JudgmentState state = DecideJudgmentState(data, t, NumberText(a), NumberText(b)).State;
  RC_ASSERT(state == (within ? kConsistent : kInconsistent));
}

RC_GTEST_PROP(TradeOffCommitProperty, APointIsStoredAsTheDirectStepWould, ()) {
  WizardData traded = RandomTradeOffs();
  WizardData direct = traded;
  const int times = Whole(1, 4);
  for (int k = 0; k < times; ++k) {
    const int t = AnyTarget(traded);
    const Double ratio = RoundToFourDecimals(Between(0.2, 4.0));
    const String text = NumberText(ratio);
    const std::vector<int> one = SettledByPoint(traded, t, text);
    const std::vector<int> other = SettledBy(direct, t, ratio, ratio);
    RC_ASSERT(one == other);
  }
  RC_ASSERT(Intervals(traded) == Intervals(direct));
  RC_ASSERT(traded.WeightDone.Items() == direct.WeightDone.Items());
}

RC_GTEST_PROP(TradeOffCommitProperty, TheEndsAreSorted, ()) {
  WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const Double a = RoundToFourDecimals(Between(0.2, 4.0));
  const Double b = RoundToFourDecimals(Between(0.2, 4.0));
  CommitTradeOff(data, t, {NumberText(a), NumberText(b), NumberText(RoundToFourDecimals((a + b) / 2.0))});
  const Interval stored = IntervalOf(data, t);
  RC_ASSERT(stored.Low == std::min(a, b));
  RC_ASSERT(stored.High == std::max(a, b));
}

RC_GTEST_PROP(TradeOffCommitProperty, APeerGetsPointsOfItsOwnScale, ()) {
  WizardData data = RandomTradeOffs();
  const int t = AnyTarget(data);
  const Double ratio = RoundToFourDecimals(Between(0.3, 0.95));
  const String text = NumberText(ratio);
  const std::vector<int> judged = SettledByPoint(data, t, text);
  for (const int i : judged) {
    if (i == t) continue;
    const ABPoint& p = data.ABPoints2[i];
    for (const Single x : {p.AX, p.BX}) {
      RC_ASSERT(static_cast<Double>(x) >= data.AttValueData.ScoreMin[i] - 1e-3);
      RC_ASSERT(static_cast<Double>(x) <= data.AttValueData.ScoreMax[i] + 1e-3);
    }
    RC_ASSERT(p.AOrientation == 0);
  }
}

}  // namespace
}  // namespace Tarnwise
