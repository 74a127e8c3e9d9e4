// Rank rows: adding, inserting and scrolling. Lengths are twips.
#include "Ordering.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

TEST(RankRows, OpenWithOneRowPerGroup) {
  Ordering o(ModelOf(3, 2));
  o.Open();
  for (const RankControls* c : {&o.B, &o.C}) {
    EXPECT_EQ(Rows(*c), "1@120+515 []");
    EXPECT_TRUE(InFrontOfAll(c->picOrder[0]));
    EXPECT_FALSE(c->vsrOrder.Enabled);
    EXPECT_EQ(c->vsrOrder.Top(), 0.0F);
    EXPECT_EQ(c->vsrOrder.Height(), c->picOrderPanel.Height - 60.0F);
    EXPECT_EQ(c->vsrOrder.Max(), 32000);
    EXPECT_EQ(c->vsrOrder.Value(), 0);
    EXPECT_FALSE(c->cmdAttB[0].Visible);
    EXPECT_TRUE(c->picOrderCon.Drawing.empty()) << "nothing is marked as selected yet";
  }
}

TEST(RankRows, AContentTallerThan32767CannotBeScrolledToItsEnd) {
  Ordering o(ModelOf(3, 2));
  o.B.picOrderCon.Height = 40000.0F;
  o.C.picOrderCon.Height = 32767.0F;
  o.Open();
  EXPECT_EQ(o.B.vsrOrder.Max(), 32767);
  EXPECT_EQ(o.C.vsrOrder.Max(), 32767);
  o.B.vsrOrder.SetValue(40000);
  EXPECT_EQ(o.B.picOrderCon.Top(), -32767.0F);
}

TEST(RankRows, AddPutsTheNewRowBelowTheLastRank) {
  Ordering o(ModelOf(3, 2));
  o.Open();
  o.Click("cmdAdd");
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | *2@755+515 []");
  EXPECT_EQ(Rows(o.C), "1@120+515 []");
  o.Click("cmdAdd1");
  EXPECT_EQ(Rows(o.C), "1@120+515 [] | *2@755+515 []");
}

TEST(RankRows, AddPutsTheNewRowBelowTheLastRankAlsoWhenAnInsertMadeThatInstanceEarlier) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "*1#1@120+515 [] | 2#0@755+515 []");
  o.Click("cmdAdd");
  EXPECT_EQ(Rows(o.B), "1#1@120+515 [] | 2#0@755+515 [] | *3@1390+515 []");
}

TEST(RankRows, AddDisablesAddAndInsertAtTheGroupsAttributeCount) {
  Ordering o(ModelOf(3, 3));
  o.Open();
  o.Click("cmdAdd");
  EXPECT_TRUE(o.B.cmdAdd.Enabled);
  o.Click("cmdAdd");
  EXPECT_FALSE(o.B.cmdAdd.Enabled);
  EXPECT_FALSE(o.B.cmdInsert.Enabled);
  EXPECT_TRUE(o.C.cmdAdd.Enabled);
  EXPECT_TRUE(o.C.cmdInsert.Enabled);
}

TEST(RankRows, AddBringsARowBelowTheViewportInSight) {
  Ordering o(ModelOf(9, 1));
  o.Open();
  o.Click("cmdAdd", 5);
  EXPECT_EQ(Bottom(o.B.picOrder[5]), 3810.0F);
  EXPECT_FALSE(o.B.vsrOrder.Enabled);
  EXPECT_EQ(o.B.vsrOrder.Value(), 0);
  o.Click("cmdAdd");
  EXPECT_TRUE(o.B.vsrOrder.Enabled);
  EXPECT_EQ(o.B.vsrOrder.Value(), static_cast<int>(o.B.picOrder[4].Top - 60.0F));
  EXPECT_EQ(o.B.picOrderCon.Top(), 60.0F - o.B.picOrder[4].Top);
  o.Click("cmdAdd");
  EXPECT_EQ(o.B.vsrOrder.Value(), static_cast<int>(o.B.picOrder[5].Top - 60.0F));
}

TEST(RankRows, ARowThatJustFitsTheViewportDoesNotScroll) {
  Ordering o(ModelOf(3, 1));
  o.B.picOrderPanel.Height = 1270.0F;
  o.Open();
  o.Click("cmdAdd");
  EXPECT_EQ(Bottom(o.B.picOrder[1]), 1270.0F);
  EXPECT_FALSE(o.B.vsrOrder.Enabled);
}

TEST(RankRows, AddScrollsToTheInstanceTwoBeforeWhateverRankItHas) {
  Ordering o(ModelOf(9, 1));
  o.Open();
  o.Click("cmdAdd", 3);
  o.Click("picOrder(0)");
  o.Click("cmdInsert");  // instance 4 is rank 1 now
  o.Click("cmdAdd");
  EXPECT_EQ(o.B.picOrder[4].Tag(), "1");
  EXPECT_FALSE(o.B.vsrOrder.Enabled);
  o.Click("cmdAdd");  // instance 6
  EXPECT_TRUE(o.B.vsrOrder.Enabled);
  EXPECT_EQ(o.B.vsrOrder.Value(), 60) << "the top of rank 1 less 60";
}

TEST(RankRows, AddWithoutAnInstanceTwoBeforeScrollsToTheTop) {
  Ordering o(ModelOf(3, 1));
  o.B.picOrderPanel.Height = 1000.0F;
  o.Open();
  o.B.vsrOrder.SetValue(300);
  o.Click("cmdAdd");
  EXPECT_TRUE(o.B.vsrOrder.Enabled);
  EXPECT_EQ(o.B.vsrOrder.Value(), 0);
  EXPECT_EQ(o.B.picOrderCon.Top(), 0.0F);
}

TEST(RankRows, AddScrollsNoFartherThanTheBarGoes) {
  Ordering o(ModelOf(9, 1));
  o.B.picOrderCon.Height = 1000.0F;
  o.Open();
  o.Click("cmdAdd", 6);
  EXPECT_EQ(o.B.vsrOrder.Value(), 1000);
}

TEST(RankRows, InsertMovesTheSelectedRankAndAllBelowDown) {
  Ordering o(ModelOf(5, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 0);
  o.Place(1, 1);
  o.Place(2, 2);
  o.Click("picOrder(1)");
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "1@120+515 [0] | *2#3@755+515 [] | 3#1@1390+515 [1] | 4#2@2025+515 [2]");
}

TEST(RankRows, InsertAtAGrownRowSelectsTheNewRowAtItsOwnHeight) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("picOrder(0)");
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "*1#1@120+515 [] | 2#0@755+910 [0 1]");
}

TEST(RankRows, InsertAtRank1PutsTheNewRowAtTheTop) {
  Ordering o(ModelOf(4, 4));
  o.Open();
  o.Place(0, 0);
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "*1#1@120+515 [] | 2#0@755+515 [0]");
  o.Click("cmdInsert1");
  EXPECT_EQ(Rows(o.C), "*1#1@120+515 [] | 2#0@755+515 []");
}

TEST(RankRows, InsertDisablesAddAndInsertAtTheGroupsAttributeCount) {
  Ordering o(ModelOf(2, 1));
  o.Open();
  o.Click("cmdInsert");
  EXPECT_FALSE(o.B.cmdAdd.Enabled);
  EXPECT_FALSE(o.B.cmdInsert.Enabled);
}

TEST(RankRows, InsertEnablesTheScrollBarForTheHighestRankAndLeavesItsValue) {
  Ordering o(ModelOf(9, 1));
  o.Open();
  o.Click("cmdAdd", 5);
  o.Click("picOrder(2)");
  o.Click("cmdInsert");
  EXPECT_EQ(Bottom(o.B.picOrder[5]), 4445.0F);
  EXPECT_TRUE(o.B.vsrOrder.Enabled);
  EXPECT_EQ(o.B.vsrOrder.Value(), 0);
  o.B.vsrOrder.SetValue(77);
  o.Click("picOrder(2)");
  o.Click("cmdInsert");
  EXPECT_EQ(o.B.vsrOrder.Value(), 77);
}

}  // namespace
}  // namespace Tarnwise
