// Rows, placing, moving and Reset in the ranking.
#include "Ranking.h"

namespace Tarnwise {
namespace {

using enum Group;

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

}  // namespace
}  // namespace Tarnwise
