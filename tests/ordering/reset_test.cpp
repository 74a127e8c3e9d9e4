#include "Ordering.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

TEST(Reset, TakesAllOfAGroupBackToItsList) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 0);
  o.Place(1, 1);
  o.Place(2, 1);
  o.PlaceCost(0, 0);
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
  o.B.vsrOrder.SetValue(50);
  o.Data.OrderChanged = false;
  o.Click("cmdResetB");
  EXPECT_EQ(Rows(o.B), "*1@120+515 []");
  EXPECT_EQ(o.B.lblOrderID.Count(), 1);
  EXPECT_EQ(o.B.cmdAttB.Count(), 1);
  EXPECT_FALSE(o.B.cmdAttB[0].Visible);
  for (int k = 0; k < 3; ++k) EXPECT_TRUE(o.B.cmdAttA[k].Visible) << k;
  EXPECT_EQ(o.B.vsrOrder.Value(), 0);
  EXPECT_EQ(o.B.picOrderCon.Top(), 0.0F);
  EXPECT_FALSE(o.B.vsrOrder.Enabled);
  EXPECT_TRUE(o.B.cmdAdd.Enabled);
  EXPECT_TRUE(o.B.cmdInsert.Enabled);
  EXPECT_FALSE(o.B.cmdReset.Enabled);
  EXPECT_FALSE(o.Form->cmdNext.Enabled);
  EXPECT_FALSE(o.Form->cmdFinish.Enabled);
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_TRUE(o.C.cmdReset.Enabled);
  EXPECT_TRUE(o.C.cmdAttB[0].Visible);
}

TEST(Reset, HasEnabledAddAndInsertBeforeTheRanksThatFailAreTakenBack) {
  Ordering o(ModelOf(2, 2));
  o.Open();
  o.Click("cmdAdd");
  EXPECT_FALSE(o.B.cmdAdd.Enabled);
  o.Data.ModelHeader.NumAtts = 9;  // the host has loaded a larger model
  o.Click("cmdResetB");
  EXPECT_EQ(Only(o.Notes, "error"), Lines({"error 9 in frmIniImpOrder.cmdResetB_Click"}));
  EXPECT_TRUE(o.B.cmdAdd.Enabled);
  EXPECT_TRUE(o.B.cmdInsert.Enabled);
  EXPECT_TRUE(o.B.cmdReset.Enabled) << "that comes after it";
}

TEST(Reset, IsOfferedAgainByTheNextPlacing) {
  Ordering o(ModelOf(2, 2));
  o.Open();
  EXPECT_TRUE(o.B.cmdReset.Enabled);
  o.Click("cmdResetB");
  o.Click("cmdResetC");
  o.PlaceCost(0, 0);
  EXPECT_FALSE(o.B.cmdReset.Enabled);
  EXPECT_TRUE(o.C.cmdReset.Enabled);
  o.Click("cmdAdd1");
  o.Drag("cmdAttB1(0)", "picOrder1(1)");
  EXPECT_FALSE(o.B.cmdReset.Enabled);
}

TEST(Reset, AndADragAgainStartsFromTheFirstButton) {
  Ordering o(ModelOf(2, 1));
  o.Open();
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("cmdResetB");
  o.Place(1, 0);
  EXPECT_EQ(o.B.cmdAttB.Count(), 1);
  EXPECT_EQ(o.B.cmdAttB[0].Tag(), "B1");
  EXPECT_EQ(Rows(o.B), "*1@120+515 [1]");
  o.Place(0, 0);
  EXPECT_EQ(o.B.cmdAttB[1].Tag(), "B0");
}

TEST(Reset, OfTheCostGroupReadsItsFirstLabelFromTheBenefitGroupsFirstRow) {
  Ordering o(ModelOf(3, 2));
  o.Open();
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "*1#1@120+515 [] | 2#0@755+515 []");
  o.Click("cmdResetC");
  EXPECT_EQ(Rows(o.C), "*1 reads 2@120+515 []");
  o.PlaceCost(0, 0);
  o.Click("lblOrderID1(0)");
  EXPECT_EQ(Rows(o.C), "*1 reads 2@120+515 [3]");
}

TEST(Reset, OfTheBenefitGroupReadsItsOwnFirstRow) {
  Ordering o(ModelOf(3, 3));
  o.Open();
  o.Click("cmdInsert1");
  o.Click("cmdResetB");
  EXPECT_EQ(o.B.lblOrderID[0].Caption(), "1");
}

TEST(Reset, OfAGroupOfOneAllowsASecondRowAndThenDisablesAddAndInsertAgain) {
  Ordering o(ModelOf(1, 2));
  o.Open();
  EXPECT_FALSE(o.B.cmdAdd.Enabled);
  EXPECT_FALSE(o.B.cmdInsert.Enabled);
  EXPECT_TRUE(o.C.cmdAdd.Enabled);
  o.Click("cmdResetB");
  EXPECT_TRUE(o.B.cmdAdd.Enabled);
  EXPECT_TRUE(o.B.cmdInsert.Enabled);
  o.Click("cmdAdd");
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | *2@755+515 []");
  EXPECT_FALSE(o.B.cmdAdd.Enabled);
  EXPECT_FALSE(o.B.cmdInsert.Enabled);
  o.Place(0, 1);
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | *2@755+515 [0]");
}

}  // namespace
}  // namespace Tarnwise
