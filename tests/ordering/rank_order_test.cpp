// The ranking by itself, without any control.
#include "ordering/RankOrder.h"

#include "support/Models.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

using enum Group;

using Integers = std::vector<Integer>;

struct Ranking : RankOrder {
  explicit Ranking(WizardData model) : Data(std::move(model)) { OpenRankOrder(*this, Data); }

  void AddRows(Group g, int count) {
    for (int i = 0; i < count; ++i) AddRank(*this, g);
  }
  void Place(Group g, int att, int rank) { PlaceAttribute(*this, Data, g, att, rank); }
  bool Move(Group g, int att, int rank) { return MoveAttribute(*this, Data, g, att, rank); }
  void Insert(Group g, int rank) {
    CurRank(g) = static_cast<Integer>(rank);
    InsertRank(*this, Data, g);
  }
  void Commit() { CommitRankOrder(*this, Data); }

  // What stands on the ranks of a group, from 1.
  Integers Sizes(Group g) {
    Integers sizes;
    for (int k = 1; k <= RowCount(g); ++k) sizes.push_back(RankSize(g)[k]);
    return sizes;
  }

  // The sums that hold as long as the step is open.
  void ExpectSizesMatchRanks(Group g) {
    for (int k = 1; k <= RowCount(g); ++k) {
      int count = 0;
      for (int i = 0; i < Data.NumAtts(); ++i) count += InGroup(Data, i, g) && AttRank[i] == k ? 1 : 0;
      EXPECT_EQ(count, RankSize(g)[k]) << "rank " << k;
    }
  }

  WizardData Data;
};

Ranking Stored(int benefits, int costs, const std::vector<Double>& weights) {
  WizardData model = ModelOf(benefits, costs);
  StoreJudgments(model, kDirectType, 0, benefits, 1.0, weights);
  Ranking ranking(model);
  RankFromSavedWeights(ranking, ranking.Data);
  return ranking;
}

TEST(RankOrder, OpeningCountsTheGroupsAndSizesTheArrays) {
  WizardData model = ModelOf({{"a", Cost}, {"b", Benefit}, {"c", Cost}});
  model.AttributeList.AttOrientation[3] = "0";  // past the model's end
  Ranking ranking(model);
  EXPECT_EQ(ranking.Data.BRankCount, 1);
  EXPECT_EQ(ranking.Data.CRankCount, 2);
  EXPECT_GE(ranking.BRankSize.Count(), 2);
  EXPECT_GE(ranking.CRankSize.Count(), 3);
  EXPECT_EQ(ranking.AttRank.Items(), Integers({0, 0, 0}));
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({0, 0, 0}));
  EXPECT_EQ(ranking.Data.WeightsL.Count(), 3);
  EXPECT_EQ(ranking.Data.Weights.Count(), 3);
  EXPECT_EQ(ranking.Data.WeightsH.Count(), 3);
  EXPECT_EQ(ranking.Data.WeightDone.Count(), 3);
  EXPECT_EQ(ranking.BRowCount, 1);
  EXPECT_EQ(ranking.CRowCount, 1);
  EXPECT_EQ(ranking.BCurRank, 1);
  EXPECT_EQ(ranking.BPlacedCount + ranking.CPlacedCount, 0);
  EXPECT_EQ(ranking.BLoadedRows, 1);
  EXPECT_EQ(ranking.CLoadedRows, 1);
}

TEST(RankOrder, OpeningDropsEarlierJudgments) {
  WizardData model = ModelOf(1, 1);
  model.Weights.Allocate(5);
  model.Weights[0] = 7.0;
  model.WeightDone.Allocate(5);
  model.WeightDone[1] = true;
  const Ranking ranking(model);
  EXPECT_EQ(ranking.Data.Weights.Count(), 2);
  EXPECT_EQ(ranking.Data.Weights[0], Variant());
  EXPECT_FALSE(ranking.Data.WeightDone[1]);
}

TEST(RankOrder, OpeningSetsTheReferenceOfAnEmptyGroupToNone) {
  WizardData model = ModelOf(2, 0);
  model.BRefAttID = 1;
  model.CRefAttID = 1;
  const Ranking ranking(model);
  EXPECT_EQ(ranking.Data.BRefAttID, 1);
  EXPECT_EQ(ranking.Data.CRefAttID, 0);
}

TEST(RankOrder, AnOrientationThatIsNeitherBelongsToNoGroup) {
  WizardData model = ModelOf(2, 1);
  model.AttributeList.AttOrientation[1] = "2";
  Ranking ranking(model);
  EXPECT_EQ(ranking.Data.BRankCount, 1);
  EXPECT_EQ(ranking.Data.CRankCount, 1);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Cost, 2, 1);
  EXPECT_FALSE(AllPlaced(ranking, ranking.Data));
  ranking.Commit();
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 0, 1}));
}

TEST(RankOrder, MoreAttributesThanTheModelHoldsAreASubscriptError) {
  WizardData model = ModelOf(2, 1);
  model.ModelHeader.NumAtts = 32;
  RankOrder order;
  try {
    OpenRankOrder(order, model);
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 9);
  }
}

TEST(RankOrder, AllThirtyOneAttributesFit) {
  Ranking ranking(ModelOf(30, 1));
  ranking.AddRows(Benefit, 29);
  for (int i = 0; i < 30; ++i) ranking.Place(Benefit, i, 30 - i);
  ranking.Place(Cost, 30, 1);
  EXPECT_TRUE(AllPlaced(ranking, ranking.Data));
  ranking.Commit();
  EXPECT_EQ(ranking.Data.BAttCount, 30);
  EXPECT_EQ(ranking.Data.AttO[0], 30);
  EXPECT_EQ(ranking.Data.AttO[29], 1);
}

TEST(RankOrder, AddAppendsAnEmptyRowAndSelectsIt) {
  Ranking ranking(ModelOf(3, 2));
  ranking.Place(Benefit, 0, 1);
  ranking.Data.OrderChanged = false;
  AddRank(ranking, Benefit);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 0}));
  EXPECT_EQ(ranking.BCurRank, 2);
  EXPECT_EQ(ranking.CRowCount, 1);
  EXPECT_EQ(ranking.CCurRank, 1);
  EXPECT_FALSE(ranking.Data.OrderChanged);
}

TEST(RankOrder, TheRowLimitIsReachedAtTheGroupsAttributeCount) {
  Ranking ranking(ModelOf(3, 1));
  EXPECT_FALSE(AtRowLimit(ranking, ranking.Data, Benefit));
  ranking.AddRows(Benefit, 1);
  EXPECT_FALSE(AtRowLimit(ranking, ranking.Data, Benefit));
  ranking.AddRows(Benefit, 1);
  EXPECT_TRUE(AtRowLimit(ranking, ranking.Data, Benefit));
  EXPECT_TRUE(AtRowLimit(ranking, ranking.Data, Cost));
}

TEST(RankOrder, InsertOpensAnEmptyRowAtTheSelectedRank) {
  Ranking ranking(ModelOf(5, 2));
  ranking.AddRows(Benefit, 2);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 2);
  ranking.Place(Benefit, 2, 3);
  ranking.Place(Benefit, 3, 3);
  ranking.Place(Cost, 5, 1);
  ranking.Data.OrderChanged = false;
  ranking.Insert(Benefit, 2);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 0, 1, 2}));
  EXPECT_EQ(ranking.AttRank.Items(), Integers({1, 3, 4, 4, 0, 1, 0}));
  EXPECT_EQ(ranking.BCurRank, 2);
  EXPECT_EQ(ranking.CRowCount, 1);
  EXPECT_FALSE(ranking.Data.OrderChanged);
  ranking.ExpectSizesMatchRanks(Benefit);
}

TEST(RankOrder, InsertLeavesUnplacedAttributesUnplaced) {
  Ranking ranking(ModelOf(3, 1));
  ranking.Insert(Benefit, 1);
  EXPECT_EQ(ranking.AttRank.Items(), Integers({0, 0, 0, 0}));
}

TEST(RankOrder, InsertAtRank1TurnsEveryRankOneHigherAndTheNewRowIsRank1) {
  Ranking ranking(ModelOf(4, 1));
  ranking.AddRows(Benefit, 1);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 2);
  ranking.Place(Benefit, 2, 2);
  ranking.Insert(Benefit, 1);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({0, 1, 2}));
  EXPECT_EQ(ranking.AttRank.Items(), Integers({2, 3, 3, 0, 0}));
  EXPECT_EQ(ranking.BCurRank, 1);
  ranking.ExpectSizesMatchRanks(Benefit);
}

TEST(RankOrder, PlacingMarksTheOrderChangedAndSelectsTheRank) {
  Ranking ranking(ModelOf(3, 2));
  ranking.AddRows(Benefit, 2);
  ranking.Place(Benefit, 1, 2);
  EXPECT_TRUE(ranking.Data.OrderChanged);
  EXPECT_EQ(ranking.AttRank[1], 2);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({0, 1, 0}));
  EXPECT_EQ(ranking.BPlacedCount, 1);
  EXPECT_EQ(ranking.CPlacedCount, 0);
  EXPECT_EQ(ranking.BCurRank, 2);
}

TEST(RankOrder, AllArePlacedWhenBothGroupsAre) {
  Ranking ranking(ModelOf(2, 1));
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 1);
  EXPECT_FALSE(AllPlaced(ranking, ranking.Data));
  ranking.Place(Cost, 2, 1);
  EXPECT_TRUE(AllPlaced(ranking, ranking.Data));
}

TEST(RankOrder, MovingToTheSameRankChangesNothing) {
  Ranking ranking(ModelOf(2, 1));
  ranking.AddRows(Benefit, 1);
  ranking.Place(Benefit, 0, 1);
  ranking.Data.OrderChanged = false;
  ranking.BCurRank = 2;
  EXPECT_FALSE(ranking.Move(Benefit, 0, 1));
  EXPECT_FALSE(ranking.Data.OrderChanged);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 0}));
  EXPECT_EQ(ranking.BCurRank, 2);
}

TEST(RankOrder, MovingKeepsTheOldRowAndRenumbersNothing) {
  Ranking ranking(ModelOf(3, 1));
  ranking.AddRows(Benefit, 2);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 2);
  ranking.Place(Benefit, 2, 3);
  ranking.Data.OrderChanged = false;
  EXPECT_TRUE(ranking.Move(Benefit, 0, 3));
  EXPECT_TRUE(ranking.Data.OrderChanged);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({0, 1, 2}));
  EXPECT_EQ(ranking.AttRank.Items(), Integers({3, 2, 3, 0}));
  EXPECT_EQ(ranking.BRowCount, 3);
  EXPECT_EQ(ranking.BPlacedCount, 3);
  EXPECT_EQ(ranking.BCurRank, 3);
}

TEST(RankOrder, ResetEmptiesOneGroupAndNotTheOther) {
  Ranking ranking(ModelOf(2, 2));
  ranking.AddRows(Benefit, 1);
  ranking.AddRows(Cost, 1);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 2);
  ranking.Place(Cost, 2, 2);
  ranking.Place(Cost, 3, 1);
  ranking.Commit();
  ranking.BLoadedRows = 2;
  ranking.Data.OrderChanged = false;
  ResetOrder(ranking, ranking.Data, Benefit);
  EXPECT_EQ(ranking.BRowCount, 1);
  EXPECT_EQ(ranking.BCurRank, 1);
  EXPECT_EQ(ranking.BPlacedCount, 0);
  EXPECT_EQ(ranking.BLoadedRows, 1);
  for (int k = 0; k < ranking.BRankSize.Count(); ++k) EXPECT_EQ(ranking.BRankSize[k], 0) << k;
  EXPECT_EQ(ranking.AttRank.Items(), Integers({0, 0, 2, 1}));
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({0, 0, 2, 1}));
  EXPECT_EQ(ranking.Sizes(Cost), Integers({1, 1}));
  EXPECT_EQ(ranking.CPlacedCount, 2);
  EXPECT_FALSE(ranking.Data.OrderChanged);
}

TEST(RankOrder, ResetOfTheCostGroupEmptiesTheCostGroup) {
  Ranking ranking(ModelOf(1, 2));
  ranking.Place(Benefit, 0, 1);
  ranking.AddRows(Cost, 1);
  ranking.Place(Cost, 1, 1);
  ranking.Place(Cost, 2, 2);
  ranking.Commit();
  ResetOrder(ranking, ranking.Data, Cost);
  EXPECT_EQ(ranking.AttRank.Items(), Integers({1, 0, 0}));
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 0, 0}));
  EXPECT_EQ(ranking.CRowCount, 1);
  EXPECT_EQ(ranking.BPlacedCount, 1);
}

TEST(RankOrder, AddAfterAResetInAGroupOfOneMakesASecondRow) {
  Ranking ranking(ModelOf(1, 1));
  ranking.Place(Benefit, 0, 1);
  ResetOrder(ranking, ranking.Data, Benefit);
  AddRank(ranking, Benefit);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({0, 0}));
  EXPECT_TRUE(AtRowLimit(ranking, ranking.Data, Benefit));
  ranking.Place(Benefit, 0, 2);
  ranking.Place(Cost, 1, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.BAttCount, 1);
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 1}));
}

TEST(RankOrder, InsertAfterAResetInAGroupOfOneMakesASecondRow) {
  Ranking ranking(ModelOf(1, 1));
  ResetOrder(ranking, ranking.Data, Benefit);
  ranking.Insert(Benefit, 1);
  EXPECT_EQ(ranking.BRowCount, 2);
  EXPECT_TRUE(AtRowLimit(ranking, ranking.Data, Benefit));
}

TEST(SavedWeights, TheLargerOneIsTheBetterRank) {
  Ranking ranking = Stored(3, 2, {0.5, 2.0, 1.0, 0.25, 0.75});
  EXPECT_EQ(ranking.AttRank.Items(), Integers({3, 1, 2, 2, 1}));
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 1, 1}));
  EXPECT_EQ(ranking.Sizes(Cost), Integers({1, 1}));
  ranking.ExpectSizesMatchRanks(Benefit);
  ranking.ExpectSizesMatchRanks(Cost);
}

TEST(SavedWeights, ExactlyEqualOnesShareARankAndRanksHaveNoGaps) {
  Ranking ranking = Stored(5, 1, {1.0, 0.5, 1.0, 0.5, 2.0, 1.0});
  EXPECT_EQ(ranking.AttRank.Items(), Integers({2, 3, 2, 3, 1, 1}));
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 2, 2}));
}

TEST(SavedWeights, OnesThatDifferInTheLastBitDoNotShareARank) {
  Ranking ranking = Stored(2, 1, {0.1 + 0.2, 0.3, 1.0});
  EXPECT_EQ(ranking.AttRank.Items(), Integers({1, 2, 1}));
}

TEST(SavedWeights, AllOfAGroupEqualMakeOneRankHoldingTheWholeGroup) {
  Ranking ranking = Stored(3, 2, {1.5, 1.5, 1.5, 1.0, 2.0});
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({3}));
  EXPECT_EQ(ranking.AttRank.Items(), Integers({1, 1, 1, 2, 1}));
}

TEST(SavedWeights, ZeroIsTakenWhenAllPositiveOnesAreUsedAndThatWholeSetIsTheLastRank) {
  Ranking ranking = Stored(4, 1, {0.0, 2.0, 0.0, 1.0, 1.0});
  EXPECT_EQ(ranking.AttRank.Items(), Integers({3, 1, 3, 2, 1}));
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 1, 2}));
}

TEST(SavedWeights, AllZeroMakeOneRank) {
  Ranking ranking = Stored(2, 2, {0.0, 0.0, 0.0, 0.0});
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({2}));
  EXPECT_EQ(ranking.Sizes(Cost), Integers({2}));
}

TEST(SavedWeights, ANegativeOneIsNeverTakenAndItsAttributeStaysUnplaced) {
  Ranking ranking = Stored(3, 1, {1.0, -0.5, 2.0, 1.0});
  EXPECT_EQ(ranking.AttRank.Items(), Integers({2, 0, 1, 1}));
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({1, 1}));
}

TEST(SavedWeights, MinusOneIsNegativeLikeAnyOther) {
  Ranking ranking = Stored(2, 1, {-1.0, 0.0, 1.0});
  EXPECT_EQ(ranking.AttRank.Items(), Integers({0, 1, 1}));
}

TEST(SavedWeights, AreReadAndNotWornOut) {
  WizardData model = ModelOf(2, 1);
  StoreJudgments(model, kTradeOffsType, 0, 2, 1.0, {1.0, 2.0, 3.0});
  Ranking ranking(model);
  RankFromSavedWeights(ranking, ranking.Data);
  EXPECT_EQ(ranking.Data.SavedJudgments.SavedWeights[0], 1.0);
  EXPECT_EQ(ranking.Data.SavedJudgments.SavedWeights[2], 3.0);
  EXPECT_FALSE(ranking.Data.OrderChanged);
}

TEST(SavedWeights, AnEmptyGroupKeepsItsOneRow) {
  Ranking ranking = Stored(2, 0, {1.0, 2.0});
  EXPECT_EQ(ranking.CRowCount, 1);
  EXPECT_EQ(ranking.Sizes(Cost), Integers({0}));
}

TEST(Commit, RowsLeftEmptyByMovesSurviveUntilTheCommit) {
  Ranking ranking(ModelOf(3, 1));
  ranking.AddRows(Benefit, 2);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 2);
  ranking.Place(Benefit, 2, 3);
  ranking.Place(Cost, 3, 1);
  ranking.Move(Benefit, 1, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.BAttCount, 2);
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 1, 2, 1}));
  EXPECT_EQ(ranking.Data.BOM.Items(), Integers({0, 2, 1}));
  EXPECT_EQ(ranking.Data.COM.Items(), Integers({0, 1}));
  EXPECT_EQ(ranking.Data.CAttCount, 1);
  EXPECT_EQ(ranking.AttRank[2], 3);
  EXPECT_EQ(ranking.Sizes(Benefit), Integers({2, 0, 1}));
}

TEST(Commit, TwoEmptyRowsInARowCompactInTheSameWay) {
  Ranking ranking(ModelOf(4, 1));
  ranking.AddRows(Benefit, 3);
  ranking.Place(Benefit, 0, 1);
  ranking.Place(Benefit, 1, 4);
  ranking.Place(Benefit, 2, 4);
  ranking.Place(Benefit, 3, 1);
  ranking.Place(Cost, 4, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.BAttCount, 2);
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 2, 2, 1, 1}));
  EXPECT_EQ(ranking.Data.BOM.Items(), Integers({0, 2, 2}));
}

TEST(Commit, TrailingEmptyRowsCompactInTheSameWay) {
  Ranking ranking(ModelOf(4, 1));
  ranking.AddRows(Benefit, 3);
  ranking.Place(Benefit, 0, 2);
  for (int i = 1; i < 4; ++i) ranking.Place(Benefit, i, 1);
  ranking.Place(Cost, 4, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.BAttCount, 2);
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({2, 1, 1, 1, 1}));
  EXPECT_EQ(ranking.Data.BOM.Items(), Integers({0, 3, 1}));
}

TEST(Commit, EmptyRowsAheadOfTheFirstAttributeGoTooAndNoRankFallsBelow1) {
  Ranking ranking(ModelOf(4, 1));
  ranking.AddRows(Benefit, 3);
  for (int i = 0; i < 4; ++i) ranking.Place(Benefit, i, 3);
  ranking.Place(Cost, 4, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.BAttCount, 1);
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 1, 1, 1, 1}));
  EXPECT_EQ(ranking.Data.BOM.Items(), Integers({0, 4}));
}

// Every way to spread the attributes of a group over its rows, empty rows included: the ranks are dense, in the same
// order, ties kept.
TEST(Commit, IsDenseAndKeepsTheOrderForEverySpread) {
  constexpr int kCount = 5;
  int spreads = 0;
  for (int code = 0; code < 3125; ++code) {
    Ranking ranking(ModelOf(kCount, 0));
    ranking.AddRows(Benefit, kCount - 1);
    for (int i = 0, rest = code; i < kCount; ++i, rest /= kCount) ranking.Place(Benefit, i, rest % kCount + 1);
    ranking.Commit();
    const Array<Integer>& rank = ranking.Data.AttO;
    Integers sizes(static_cast<std::size_t>(ranking.Data.BAttCount) + 1, 0);
    for (int i = 0; i < kCount; ++i) {
      ASSERT_GE(rank[i], 1) << code;
      ASSERT_LE(rank[i], ranking.Data.BAttCount) << code;
      ++sizes[static_cast<std::size_t>(rank[i])];
      for (int j = 0; j < kCount; ++j) {
        ASSERT_EQ(rank[i] < rank[j], ranking.AttRank[i] < ranking.AttRank[j]) << code;
      }
    }
    ASSERT_EQ(ranking.Data.BOM.Items(), sizes) << code;
    for (int k = 1; k <= ranking.Data.BAttCount; ++k) ASSERT_GE(sizes[static_cast<std::size_t>(k)], 1) << code;
    ++spreads;
  }
  EXPECT_EQ(spreads, 3125);
}

TEST(Commit, OfAnEmptyGroupHasNoRanks) {
  Ranking ranking(ModelOf(1, 0));
  ranking.Place(Benefit, 0, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.CAttCount, 0);
  EXPECT_EQ(ranking.Data.COM.Items(), Integers({0}));
}

TEST(Commit, CompactsTheTwoGroupsApart) {
  Ranking ranking(ModelOf(2, 2));
  ranking.AddRows(Benefit, 1);
  ranking.AddRows(Cost, 1);
  ranking.Place(Benefit, 0, 2);
  ranking.Place(Benefit, 1, 2);
  ranking.Place(Cost, 2, 2);
  ranking.Place(Cost, 3, 1);
  ranking.Commit();
  EXPECT_EQ(ranking.Data.AttO.Items(), Integers({1, 1, 2, 1}));
  EXPECT_EQ(ranking.Data.BOM.Items(), Integers({0, 2}));
  EXPECT_EQ(ranking.Data.COM.Items(), Integers({0, 1, 1}));
}

}  // namespace
}  // namespace Tarnwise
