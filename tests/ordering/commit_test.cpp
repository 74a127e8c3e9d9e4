// The commit of a ranking: its ranks become dense.
#include "Ranking.h"

namespace Tarnwise {
namespace {

using enum Group;

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
