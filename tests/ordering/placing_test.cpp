// Attributes that are placed on rank rows and moved between them.
#include "Ordering.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

TEST(Placing, TheFirstAttributeTakesTheButtonThatIsThere) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Place(1, 0);
  EXPECT_EQ(Rows(o.B), "*1@120+515 [1]");
  EXPECT_EQ(o.B.cmdAttB.Count(), 1);
  const CommandButton& button = o.B.cmdAttB[0];
  EXPECT_EQ(button.Tag(), "B1");
  EXPECT_EQ(button.Caption(), "Benefit 1");
  EXPECT_EQ(button.BackColor(), o.B.cmdAttA[1].BackColor());
  EXPECT_EQ(button.Left(), o.B.picOrder[0].Left + 200.0F);
  EXPECT_TRUE(button.Visible);
  EXPECT_FALSE(o.B.cmdAttA[1].Visible);
  EXPECT_TRUE(o.B.cmdAttA[0].Visible);
}

TEST(Placing, LaterAttributesGetTheirOwnButtons) {
  Ordering o(ModelOf(1, 3));
  o.Open();
  o.Click("cmdAdd1");
  o.PlaceCost(2, 1);
  o.PlaceCost(0, 0);
  EXPECT_EQ(Rows(o.C), "*1@120+515 [1] | 2@755+515 [3]");
  EXPECT_EQ(o.C.cmdAttB[0].Tag(), "D3");
  EXPECT_EQ(o.C.cmdAttB[1].Tag(), "D1");
  EXPECT_EQ(o.C.cmdAttB[1].Caption(), "Cost 0");
  EXPECT_EQ(o.C.cmdAttB[1].BackColor(), 255U * 65536U + 192U * 256U + 192U);
}

TEST(Placing, TheFirstGrowthOfARowTakes20OfTheGapBelow) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Place(1, 1);
  EXPECT_EQ(Rows(o.B), "1@120+515 [0] | *2@755+515 [1]");
  o.Place(2, 0);
  EXPECT_EQ(Rows(o.B), "*1@120+910 [0 2] | 2@1130+515 [1]");
  o.Place(3, 0);
  EXPECT_EQ(Rows(o.B), "*1@120+1285 [0 2 3] | 2@1505+515 [1]");
}

TEST(Placing, TheRowsOfTheCostGroupGrowAlike) {
  Ordering o(ModelOf(1, 3));
  o.Open();
  o.Click("cmdAdd1");
  o.PlaceCost(0, 0);
  o.PlaceCost(1, 0);
  EXPECT_EQ(Rows(o.C), "*1@120+910 [1 2] | 2@1130+515 []");
}

TEST(Placing, InsertAfterAGrownRowKeepsTheFullGap) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("picOrder(1)");
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "1@120+910 [0 1] | *2#2@1150+515 [] | 3#1@1765+515 []");
}

TEST(Placing, PushesOnlyRowsOfAHigherRankWhateverTheirInstance) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdInsert");
  o.Place(0, 0);
  o.Place(1, 0);
  EXPECT_EQ(Rows(o.B), "1#1@120+515 [] | *2#0@755+910 [0 1]");
  o.Place(2, 1);
  o.Place(3, 1);
  EXPECT_EQ(Rows(o.B), "*1#1@120+910 [2 3] | 2#0@1130+910 [0 1]");
}

TEST(Moving, TheOnlyAttributeOfARowLeavesAnEmptyRowOfItsHeight) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 0);
  o.Place(1, 1);
  o.Drag("cmdAttB(0)", "picOrder(2)");
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | 2@755+515 [1] | *3@1390+515 [0]");
  EXPECT_TRUE(InFrontOfAll(o.B.cmdAttB[0]));
}

TEST(Moving, AnEmptiedRowThatHadGrownKeepsItsHeight) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Place(1, 0);
  o.Drag("cmdAttB(0)", "picOrder(1)");
  EXPECT_EQ(Rows(o.B), "1@120+535 [1] | *2@755+515 [0]");
  o.Drag("cmdAttB(1)", "picOrder(1)");
  EXPECT_EQ(Rows(o.B), "1@120+535 [] | *2@755+890 [0 1]");
}

TEST(Moving, OutOfASharedRowRestacksItAndPullsTheRowsBelowUp) {
  Ordering o(ModelOf(5, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 0);
  o.Place(1, 0);
  o.Place(2, 0);
  o.Place(3, 1);
  EXPECT_EQ(Rows(o.B), "1@120+1285 [0 1 2] | *2@1505+515 [3] | 3@2140+515 []");
  o.Drag("cmdAttB(0)", "picOrder(2)");
  EXPECT_EQ(Rows(o.B), "1@120+910 [1 2] | 2@1130+515 [3] | *3@1765+515 [0]");
}

TEST(Moving, IntoAFilledRowPutsItAtTheBottomAndPushesTheRowsBelow) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 2);
  o.Place(1, 0);
  o.Place(2, 1);
  o.Drag("cmdAttB(0)", "picOrder(0)");
  EXPECT_EQ(Rows(o.B), "*1@120+890 [1 0] | 2@1130+515 [2] | 3@1765+515 []");
}

TEST(Moving, BetweenTwoSharedRowsOfTheCostGroupKeepsWhatLiesBelowInPlace) {
  Ordering o(ModelOf(1, 5));
  o.Open();
  o.Click("cmdAdd1", 2);
  o.PlaceCost(0, 0);
  o.PlaceCost(1, 0);
  o.PlaceCost(2, 1);
  o.PlaceCost(3, 2);
  EXPECT_EQ(Rows(o.C), "1@120+910 [1 2] | 2@1130+515 [3] | *3@1765+515 [4]");
  o.Drag("cmdAttB1(0)", "picOrder1(1)");
  EXPECT_EQ(Rows(o.C), "1@120+535 [2] | *2@755+890 [3 1] | 3@1765+515 [4]");
}

}  // namespace
}  // namespace Tarnwise
