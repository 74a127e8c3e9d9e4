#include "support/Ranked.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tarnwise {
namespace {

std::vector<bool> DoneOf(const WizardData& data) { return data.WeightDone.Items(); }

std::vector<Interval> IntervalsOf(const WizardData& data) {
  std::vector<Interval> all;
  for (int i = 0; i < data.NumAtts(); ++i) all.push_back(IntervalOf(data, i));
  return all;
}

const Interval kOne{1.0, 1.0, 1.0};
const Interval kMore{1.2, 1.2, 1.2};
const Interval kLess{0.8, 0.8, 0.8};

TEST(DefaultIntervals, FollowTheRankAgainstTheReference) {
  const WizardData data = RankedData({B(1), B(2), B(3), B(2), C(2), C(1), C(3)}, 1, 4);
  EXPECT_EQ(IntervalsOf(data), (std::vector<Interval>{kMore, kOne, kLess, kOne, kOne, kMore, kLess}));
  EXPECT_EQ(DoneOf(data), (std::vector<bool>{false, true, false, true, true, false, false}));
}

TEST(DefaultIntervals, WipeJudgmentsButKeepTheRatioOfTheReferences) {
  WizardData data = RankedData({B(1), B(2), C(1), C(2)}, 1, 2);
  data.RefAttWR = 3.17;
  CommitInterval(data, 0, 1.37, 2.41);
  CommitInterval(data, 3, 0.13, 0.37);
  SetDefaultIntervals(data);
  EXPECT_EQ(IntervalsOf(data), (std::vector<Interval>{kMore, kOne, kOne, kLess}));
  EXPECT_EQ(DoneOf(data), (std::vector<bool>{false, true, true, false}));
  EXPECT_EQ(ToDouble(data.RefAttWR), 3.17);
}

TEST(DefaultIntervals, SkipAnAttributeOfNeitherGroupButCallItNotDone) {
  WizardData data = RankedData({B(1), B(2), C(1)}, 1, 2);
  data.AttributeList.AttOrientation[0] = "2";
  Judge(data, 0, 0.37, 3.17);
  SetDefaultIntervals(data);
  EXPECT_EQ(IntervalOf(data, 0), Range(0.37, 3.17));
  EXPECT_FALSE(data.WeightDone[0]);
}

TEST(DefaultIntervals, ReadTheOrientationLeniently) {
  WizardData data = RankedData({B(1), B(2), C(1), C(2)}, 1, 2);
  data.AttributeList.AttOrientation[0] = "abc";
  data.AttributeList.AttOrientation[3] = " 1 x";
  SetDefaultIntervals(data);
  EXPECT_EQ(IntervalOf(data, 0), kMore);
  EXPECT_EQ(IntervalOf(data, 3), kLess);
}

TEST(DefaultIntervals, LeaveNothingToJudgeWhereAllHaveTheReferencesRank) {
  const WizardData data = RankedData({B(1), B(1), B(1), C(1)}, 2, 3);
  EXPECT_EQ(IntervalsOf(data), std::vector<Interval>(4, kOne));
  EXPECT_TRUE(AllJudged(data));
}

TEST(Commit, StoresAPointInAllThree) {
  WizardData data = RankedData({B(1), B(2), C(1)}, 1, 2);
  CommitInterval(data, 0, 1.37, 1.37);
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.37, 1.37, 1.37}));
  EXPECT_TRUE(data.WeightDone[0]);
}

TEST(Commit, StoresTheBoundsAndTheirMiddle) {
  WizardData data = RankedData({B(1), B(2), C(1)}, 1, 2);
  CommitInterval(data, 0, 1.37, 3.17);
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.37, (3.17 + 1.37) / 2.0, 3.17}));
}

TEST(Commit, TakesTheBoundsAsTheyStandEvenTheWrongWayRound) {
  WizardData data = RankedData({B(1), B(2), C(1)}, 1, 2);
  CommitInterval(data, 0, 3.17, 1.37);
  EXPECT_EQ(IntervalOf(data, 0), (Interval{3.17, (1.37 + 3.17) / 2.0, 1.37}));
}

TEST(Commit, OnRankThreeLiftsAnUnjudgedRankTwoThatLaysBelow) {
  WizardData data = RankedData({B(4), B(3), B(2), C(1)}, 0, 3);
  CommitInterval(data, 1, 1.3, 1.3);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{1.3, 1.3, 1.3}));
  EXPECT_FALSE(data.WeightDone[2]);
}

TEST(Commit, OnRankFiveStopsAtAJudgedRankFour) {
  WizardData data = RankedData({B(6), B(5), B(4), B(3), C(1)}, 0, 4);
  Judge(data, 2, 1.1, 1.15);
  CommitInterval(data, 1, 1.3, 1.4);
  EXPECT_EQ(IntervalOf(data, 2), Range(1.1, 1.15));
  EXPECT_EQ(IntervalOf(data, 3), kMore);
  EXPECT_FALSE(data.WeightDone[3]);
}

TEST(Commit, StopsWithinARankAtItsFirstJudgedAttribute) {
  WizardData data = RankedData({B(4), B(3), B(2), B(2), B(2), B(1), C(1)}, 0, 6);
  Judge(data, 3, 1.2, 1.2);
  CommitInterval(data, 1, 1.5, 1.5);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{1.5, 1.5, 1.5}));
  EXPECT_EQ(IntervalOf(data, 4), kMore);
  EXPECT_EQ(IntervalOf(data, 5), kMore);
}

TEST(Commit, MarksTwoPeersAsDoneWithTheSameInterval) {
  WizardData data = RankedData({B(1), B(2), B(1), B(1), C(1), C(2)}, 1, 5);
  EXPECT_EQ(SettledBy(data, 2, 1.37, 2.41), (std::vector<int>{0, 2, 3}));
  for (const int k : {0, 2, 3}) {
    EXPECT_EQ(IntervalOf(data, k), Range(1.37, 2.41));
    EXPECT_TRUE(data.WeightDone[k]);
  }
  EXPECT_EQ(IntervalOf(data, 4), kMore);  // the same rank in the other group
  EXPECT_FALSE(data.WeightDone[4]);
}

TEST(Commit, NeverCopiesToAReference) {
  WizardData data = RankedData({B(1), B(1), C(1)}, 1, 2);
  EXPECT_EQ(SettledBy(data, 0, 1.37, 2.41), (std::vector<int>{0}));
  EXPECT_EQ(IntervalOf(data, 1), kOne);
}

TEST(Commit, RaisesALowerBoundInsideTheUnjudgedIntervalAndLeavesAHigherMiddle) {
  WizardData data = RankedData({B(3), B(2), B(1), C(1)}, 0, 3);
  StoreInterval(data, 2, Range(1.0, 2.0));
  CommitInterval(data, 1, 1.1, 1.3);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{1.3, 1.5, 2.0}));
}

TEST(Commit, RaisesALowerBoundPastTheMiddleWhichIsThenTakenAnew) {
  WizardData data = RankedData({B(3), B(2), B(1), C(1)}, 0, 3);
  StoreInterval(data, 2, Range(1.0, 2.0));
  CommitInterval(data, 1, 1.1, 1.7);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{1.7, (2.0 + 1.7) / 2.0, 2.0}));
}

TEST(Commit, LeavesAMoreImportantIntervalThatStartsAtTheUpperBound) {
  WizardData data = RankedData({B(3), B(2), B(1), C(1)}, 0, 3);
  StoreInterval(data, 2, Range(1.3, 2.0));
  CommitInterval(data, 1, 1.1, 1.3);
  EXPECT_EQ(IntervalOf(data, 2), Range(1.3, 2.0));
}

TEST(Commit, LowersTheLessImportantInTheSameThreeWays) {
  WizardData data = RankedData({B(1), B(2), B(3), B(4), B(5), C(1)}, 0, 5);
  StoreInterval(data, 2, Range(0.2, 0.6));
  StoreInterval(data, 3, Range(0.3, 0.42));
  StoreInterval(data, 4, Range(0.5, 0.7));
  CommitInterval(data, 1, 0.35, 0.9);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{0.2, (0.35 + 0.2) / 2.0, 0.35}));
  EXPECT_EQ(IntervalOf(data, 3), (Interval{0.3, (0.35 + 0.3) / 2.0, 0.35}));
  EXPECT_EQ(IntervalOf(data, 4), (Interval{0.35, 0.35, 0.35}));
  EXPECT_EQ(DoneOf(data), (std::vector<bool>{true, true, false, false, false, true}));
}

TEST(Commit, LeavesALowerMiddleOfALessImportantOne) {
  WizardData data = RankedData({B(1), B(2), B(3), C(1)}, 0, 3);
  StoreInterval(data, 2, Range(0.1, 0.5));
  CommitInterval(data, 1, 0.4, 0.9);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{0.1, (0.5 + 0.1) / 2.0, 0.4}));
}

TEST(Commit, StopsDownwardAtTheFirstJudgedAttributeToo) {
  WizardData data = RankedData({B(1), B(2), B(3), B(4), C(1)}, 0, 4);
  Judge(data, 2, 0.5, 0.6);
  CommitInterval(data, 1, 0.3, 0.4);
  EXPECT_EQ(IntervalOf(data, 2), Range(0.5, 0.6));
  EXPECT_EQ(IntervalOf(data, 3), kLess);
}

TEST(Commit, InTheCostGroupReachesToTheCostGroupsLastRank) {
  WizardData data = RankedData({B(1), B(2), C(1), C(2), C(3), C(4)}, 0, 2);
  CommitInterval(data, 3, 0.5, 0.6);
  EXPECT_EQ(IntervalOf(data, 4), (Interval{0.5, 0.5, 0.5}));
  EXPECT_EQ(IntervalOf(data, 5), (Interval{0.5, 0.5, 0.5}));
  EXPECT_EQ(IntervalOf(data, 1), kLess);
}

TEST(Commit, KnowsNoTolerance) {
  WizardData data = RankedData({B(3), B(2), B(1), C(1)}, 0, 3);
  const Double above = std::nextafter(1.2, 2.0);
  CommitInterval(data, 1, 1.1, above);
  EXPECT_EQ(IntervalOf(data, 2), (Interval{above, above, above}));
}

TEST(AllJudged, NeedsEveryAttributeAndNotTheRatioOfTheReferences) {
  WizardData data = RankedData({B(1), B(2), B(3), C(1)}, 1, 3);
  data.RefAttWR = Variant();
  EXPECT_FALSE(AllJudged(data));
  CommitInterval(data, 0, 1.3, 1.4);
  EXPECT_FALSE(AllJudged(data));
  CommitInterval(data, 2, 0.3, 0.4);
  EXPECT_TRUE(AllJudged(data));
}

// Groups of any size with dense ranks, and any references of theirs.
struct World {
  std::vector<RankedAtt> Atts;
  int BRef = 0;
  int CRef = 0;
};

World AnyWorld() {
  World world;
  for (const Group g : {Group::Benefit, Group::Cost}) {
    const int ranks = *rc::gen::inRange(1, 6);
    std::vector<int> own;
    for (int r = 1; r <= ranks; ++r) {
      for (int n = *rc::gen::inRange(1, 4); n > 0; --n) world.Atts.push_back({g, r});
    }
  }
  // Ids in no order of rank.
  for (std::size_t i = world.Atts.size(); i > 1; --i) {
    std::swap(world.Atts[i - 1], world.Atts[*rc::gen::inRange<std::size_t>(0, i)]);
  }
  const auto oneOf = [&world](Group g) {
    std::vector<int> ids;
    for (std::size_t i = 0; i < world.Atts.size(); ++i) {
      if (world.Atts[i].Of == g) ids.push_back(static_cast<int>(i));
    }
    return *rc::gen::elementOf(ids);
  };
  world.BRef = oneOf(Group::Benefit);
  world.CRef = oneOf(Group::Cost);
  return world;
}

// A target that the step would let judge, -1 when there is none.
int AnyPlacedTarget(const WizardData& data) {
  std::vector<int> ids;
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (data.AttO[i] != data.AttO[ReferenceOf(data, i)]) ids.push_back(i);
  }
  return ids.empty() ? -1 : *rc::gen::elementOf(ids);
}

std::pair<Double, Double> AnyBounds() {
  const int a = *rc::gen::inRange(1, 2940);
  const int b = *rc::gen::inRange(0, 300);
  return {a / 100.0, (a + b) / 100.0};
}

RC_GTEST_PROP(Commits, KeepEveryIntervalInOrder, ()) {
  const World world = AnyWorld();
  WizardData data = RankedData(world.Atts, world.BRef, world.CRef);
  for (int n = *rc::gen::inRange(1, 12); n > 0; --n) {
    const int t = AnyPlacedTarget(data);
    if (t < 0) break;
    const auto [low, high] = AnyBounds();
    CommitInterval(data, t, low, high);
    for (int i = 0; i < data.NumAtts(); ++i) {
      const Interval interval = IntervalOf(data, i);
      RC_ASSERT(interval.Low <= interval.Mid);
      RC_ASSERT(interval.Mid <= interval.High);
    }
  }
}

RC_GTEST_PROP(Commits, LeaveJudgedAttributesOfOtherRanksAlone, ()) {
  const World world = AnyWorld();
  WizardData data = RankedData(world.Atts, world.BRef, world.CRef);
  for (int n = *rc::gen::inRange(1, 12); n > 0; --n) {
    const int t = AnyPlacedTarget(data);
    if (t < 0) break;
    const std::vector<Interval> before = IntervalsOf(data);
    const std::vector<bool> done = DoneOf(data);
    const auto [low, high] = AnyBounds();
    const std::vector<int> judged = SettledBy(data, t, low, high);
    for (int i = 0; i < data.NumAtts(); ++i) {
      const bool now = std::find(judged.begin(), judged.end(), i) != judged.end();
      const auto k = static_cast<std::size_t>(i);
      RC_ASSERT(data.WeightDone[i] == (done[k] || now));
      if (done[k] && !now) RC_ASSERT(IntervalOf(data, i) == before[k]);
      if (data.IsBenefit(i) != data.IsBenefit(t)) RC_ASSERT(IntervalOf(data, i) == before[k]);
    }
    RC_ASSERT(IntervalOf(data, world.BRef) == kOne);
    RC_ASSERT(IntervalOf(data, world.CRef) == kOne);
  }
}

RC_GTEST_PROP(Commits, MakePeersEqual, ()) {
  const World world = AnyWorld();
  WizardData data = RankedData(world.Atts, world.BRef, world.CRef);
  for (int n = *rc::gen::inRange(1, 12); n > 0; --n) {
    const int t = AnyPlacedTarget(data);
    if (t < 0) break;
    const auto [low, high] = AnyBounds();
    CommitInterval(data, t, low, high);
    RC_ASSERT(IntervalOf(data, t) == Range(low, high));
    for (int i = 0; i < data.NumAtts(); ++i) {
      if (data.IsBenefit(i) == data.IsBenefit(t) && data.AttO[i] == data.AttO[t]) {
        RC_ASSERT(IntervalOf(data, i) == IntervalOf(data, t));
        RC_ASSERT(data.WeightDone[i]);
      }
    }
  }
}

RC_GTEST_PROP(Commits, PutTheUnjudgedNextToTheTargetOnTheirSideOfIt, ()) {
  const World world = AnyWorld();
  WizardData data = RankedData(world.Atts, world.BRef, world.CRef);
  const int t = AnyPlacedTarget(data);
  RC_PRE(t >= 0);
  const auto [low, high] = AnyBounds();
  const std::vector<Interval> before = IntervalsOf(data);
  CommitInterval(data, t, low, high);
  // Nothing but the references' ranks is judged yet: ranks up to those are pushed, ranks beyond them are not.
  const int own = data.AttO[t];
  const int reference = data.AttO[ReferenceOf(data, t)];
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (data.IsBenefit(i) != data.IsBenefit(t) || data.WeightDone[i]) continue;
    const int rank = data.AttO[i];
    const bool shielded = (rank < reference) != (own < reference);
    if (shielded) {
      RC_ASSERT(IntervalOf(data, i) == before[static_cast<std::size_t>(i)]);
    } else if (rank < own) {
      RC_ASSERT(IntervalOf(data, i).Low >= high);
    } else if (rank > own) {
      RC_ASSERT(IntervalOf(data, i).High <= low);
    }
  }
}

TEST(FirstTarget, IsTheFirstAttributeThatDiffersFromItsReferenceInRank) {
  EXPECT_EQ(FirstTarget(RankedData({B(2), B(2), C(1), C(2), B(1)}, 0, 2)), 3);
}

TEST(FirstTarget, IsSoughtFromIdOneInABenefitGroupOfOne) {
  EXPECT_EQ(FirstTarget(RankedData({C(1), B(1), C(2), C(3)}, 1, 2)), 3);
}

TEST(FirstTarget, RunsOffTheEndWhereAllTie) {
  try {
    const int found = FirstTarget(RankedData({B(1), B(1), C(1)}, 0, 2));
    FAIL() << found;
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 9);
  }
}

TEST(FirstTarget, TakesWhatIsNotBenefitAsCost) {
  WizardData data = RankedData({B(1), C(1), C(2)}, 0, 1);
  data.AttributeList.AttOrientation[2] = "2";
  EXPECT_EQ(FirstTarget(data), 2);
}

TEST(Pushing, UpToTheMidpointExactlyLeavesTheMidpointWhereItIs) {
  WizardData data = RankedData({B(1), B(2), B(3), B(4)}, 3, -1);
  StoreInterval(data, 0, {0.5, 1.5, 3.0});
  Judge(data, 1, 1.25, 1.5);
  PushNeighbours(data, 1);
  EXPECT_EQ(IntervalOf(data, 0), (Interval{1.5, 1.5, 3.0}));
}

TEST(Pushing, DownToTheMidpointExactlyLeavesTheMidpointWhereItIs) {
  WizardData data = RankedData({B(1), B(2), B(3), B(4)}, 0, -1);
  StoreInterval(data, 3, {0.25, 0.5, 2.0});
  Judge(data, 2, 0.5, 0.75);
  PushNeighbours(data, 2);
  EXPECT_EQ(IntervalOf(data, 3), (Interval{0.25, 0.5, 0.5}));
}

}  // namespace
}  // namespace Tarnwise
