// The interval store under random judgments.
#include "support/Random.h"

namespace Tarnwise {
namespace {

// Judgments of any kind, whether they respect their neighbours or not.
void JudgeAnyhow(WizardData& data, int times) {
  for (int k = 0; k < times; ++k) {
    const int low = Whole(4, 2900);
    CommitInterval(data, AnyTarget(data), low / 100.0, Whole(low, 2940) / 100.0);
  }
}

RC_GTEST_PROP(IntervalProperty, StaysInOrderWhateverIsJudged, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(1, 12));
  for (const Interval& i : Intervals(data)) RC_ASSERT(IsOrdered(i));
}

RC_GTEST_PROP(IntervalProperty, OfAJudgedAttributeIsMovedByNoOther, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(0, 8));
  const std::vector<Interval> before = Intervals(data);
  const Array<bool> done = data.WeightDone;
  const int target = AnyTarget(data);
  const std::vector<int> judged = SettledBy(data, target, Hundredths(5, 100), Hundredths(100, 500));
  for (int i = 0; i < data.NumAtts(); ++i) {
    const bool own = std::find(judged.begin(), judged.end(), i) != judged.end();
    if (done[i] && !own) RC_ASSERT(IntervalOf(data, i) == before[static_cast<std::size_t>(i)]);
    RC_ASSERT(data.WeightDone[i] == (done[i] || own));
  }
}

RC_GTEST_PROP(IntervalProperty, OfTheOtherGroupStaysAsItIs, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(0, 8));
  const std::vector<Interval> before = Intervals(data);
  const int target = AnyTarget(data);
  CommitInterval(data, target, Hundredths(5, 100), Hundredths(100, 500));
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (data.IsBenefit(i) != data.IsBenefit(target)) {
      RC_ASSERT(IntervalOf(data, i) == before[static_cast<std::size_t>(i)]);
    }
  }
}

RC_GTEST_PROP(IntervalProperty, IsTheSameOnTheWholeRank, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(1, 12));
  for (int i = 0; i < data.NumAtts(); ++i) {
    for (int k = 0; k < i; ++k) {
      const bool same = data.AttO[i] == data.AttO[k] && data.IsBenefit(i) == data.IsBenefit(k);
      if (same) RC_ASSERT(IntervalOf(data, i) == IntervalOf(data, k));
    }
  }
}

RC_GTEST_PROP(IntervalProperty, EnteredTwiceIsAsEnteredOnce, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(0, 8));
  const int target = AnyTarget(data);
  const Double low = Hundredths(5, 100);
  const Double high = Hundredths(100, 500);
  CommitInterval(data, target, low, high);
  const std::vector<Interval> once = Intervals(data);
  CommitInterval(data, target, low, high);
  RC_ASSERT(Intervals(data) == once);
}

// Between an attribute and the target nothing is judged: its bound has made room.
RC_GTEST_PROP(IntervalProperty, OfTheNextRankMakesRoomForTheTarget, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(0, 8));
  const int target = AnyTarget(data);
  CommitInterval(data, target, Hundredths(5, 100), Hundredths(100, 500));
  const Interval t = IntervalOf(data, target);
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (data.WeightDone[i] || data.IsBenefit(i) != data.IsBenefit(target)) continue;
    if (data.AttO[i] == data.AttO[target] - 1) RC_ASSERT(IntervalOf(data, i).Low >= t.High);
    if (data.AttO[i] == data.AttO[target] + 1) RC_ASSERT(IntervalOf(data, i).High <= t.Low);
  }
}

RC_GTEST_PROP(IntervalProperty, OneJudgmentOnEachRankButTheReferencesIsAll, ()) {
  WizardData data = RandomRankedData();
  int needed = 0;
  while (!AllJudged(data)) {
    int target = 0;
    while (data.WeightDone[target]) ++target;
    CommitInterval(data, target, 1.0, 1.0);
    ++needed;
  }
  RC_ASSERT(needed == data.BAttCount + data.CAttCount - 2);
}

RC_GTEST_PROP(IntervalProperty, DefaultsForgetAllJudgments, ()) {
  WizardData data = RandomRankedData();
  const std::vector<Interval> fresh = Intervals(data);
  const Array<bool> done = data.WeightDone;
  JudgeAnyhow(data, Whole(1, 8));
  SetDefaultIntervals(data);
  RC_ASSERT(Intervals(data) == fresh);
  RC_ASSERT(data.WeightDone.Items() == done.Items());
}

RC_GTEST_PROP(IntervalProperty, OfTheReferenceIsOne, ()) {
  WizardData data = RandomRankedData();
  JudgeAnyhow(data, Whole(0, 12));
  for (const int reference : {data.BRefAttID, data.CRefAttID}) {
    RC_ASSERT(IntervalOf(data, reference) == Range(1.0, 1.0));
    RC_ASSERT(data.WeightDone[reference]);
  }
}

}  // namespace
}  // namespace Tarnwise
