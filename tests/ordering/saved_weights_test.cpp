// The ranking that stored weights stand for.
#include "Ranking.h"

namespace Tarnwise {
namespace {

using enum Group;

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

}  // namespace
}  // namespace Tarnwise
