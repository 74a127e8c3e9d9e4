// Rows and buttons as stored judgments have them.
#include "Ordering.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

WizardData StoredModel(int benefits, int costs, const std::vector<Double>& weights) {
  WizardData model = ModelOf(benefits, costs);
  StoreJudgments(model, kDirectType, 0, benefits, 1.25, weights);
  return model;
}

TEST(Restore, LaysTheSavedOrderOutRowByRow) {
  Ordering o(StoredModel(5, 2, {1.0, 2.0, 1.0, 0.5, 2.0, 1.0, 3.0}));
  o.Open();
  EXPECT_EQ(Rows(o.B), "1@120+890 [1 4] | 2@1130+890 [0 2] | 3@2140+515 [3]");
  EXPECT_EQ(Rows(o.C), "1@120+515 [6] | 2@755+515 [5]");
  for (int k = 0; k < 5; ++k) {
    EXPECT_EQ(o.B.cmdAttB[k].Tag(), "B" + std::to_string(k));
    EXPECT_EQ(o.B.cmdAttB[k].Caption(), "Benefit " + std::to_string(k));
    EXPECT_EQ(o.B.cmdAttB[k].BackColor(), o.B.cmdAttA[k].BackColor());
    EXPECT_FALSE(o.B.cmdAttA[k].Visible);
  }
  EXPECT_EQ(o.C.cmdAttB[0].Tag(), "D5");
}

TEST(Restore, LeavesResetAloneAndEnablesNext) {
  Ordering o(StoredModel(2, 2, {1.0, 2.0, 1.0, 1.0}));
  o.Open();
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
  EXPECT_FALSE(o.Form->cmdFinish.Enabled);
  EXPECT_TRUE(o.B.cmdReset.Enabled);
  EXPECT_FALSE(o.B.cmdAdd.Enabled) << "as many rows as attributes";
  EXPECT_FALSE(o.B.cmdInsert.Enabled);
  EXPECT_TRUE(o.C.cmdAdd.Enabled);
  EXPECT_TRUE(o.C.cmdInsert.Enabled);
  EXPECT_FALSE(o.Data.OrderChanged);
}

TEST(Restore, OnlyForTheTwoApproachesByTheirWholeNames) {
  for (const char* type : {"", "dea_direct", "DEA_DIRECT ", "DEA"}) {
    WizardData model = StoredModel(2, 1, {1.0, 2.0, 1.0});
    model.SavedJudgments.RJType = type;
    Ordering o(model);
    o.Open();
    EXPECT_EQ(o.B.picOrder.Count(), 1) << type;
    EXPECT_FALSE(o.Form->cmdNext.Enabled) << type;
    EXPECT_TRUE(o.B.cmdAttA[0].Visible) << type;
  }
  WizardData model = StoredModel(2, 1, {1.0, 2.0, 1.0});
  model.SavedJudgments.RJType = kTradeOffsType;
  Ordering o(model);
  o.Open();
  EXPECT_EQ(o.B.picOrder.Count(), 2);
}

TEST(Restore, ScrollsWhenTheLastRowPassesTheViewportByMoreThan20) {
  std::vector<Double> weights;
  for (int i = 0; i < 9; ++i) weights.push_back(9.0 - i);
  Ordering o(StoredModel(8, 1, weights));
  o.Open();
  EXPECT_EQ(Bottom(o.B.picOrder[7]), 120.0F + 7.0F * 635.0F + 515.0F);
  EXPECT_TRUE(o.B.vsrOrder.Enabled);
  EXPECT_EQ(o.B.vsrOrder.Value(), 0);
  EXPECT_FALSE(o.C.vsrOrder.Enabled);

  Ordering fits(StoredModel(8, 1, weights));
  fits.B.picOrderPanel.Height = 5080.0F - 20.0F;
  fits.Open();
  EXPECT_FALSE(fits.B.vsrOrder.Enabled);
}

TEST(Restore, AnAttributeOfANegativeWeightStandsOnNoRowAndResetOffersItAgain) {
  Ordering o(StoredModel(3, 1, {1.0, -1.0, 2.0, 1.0}));
  o.Open();
  EXPECT_EQ(Rows(o.B), "1@120+515 [2] | 2@755+515 [0]");
  EXPECT_EQ(o.B.cmdAttB[1].Tag(), "B1");
  EXPECT_FALSE(o.B.cmdAttB[1].Visible);
  EXPECT_FALSE(o.B.cmdAttA[1].Visible);
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
  o.Click("cmdResetB");
  EXPECT_TRUE(o.B.cmdAttA[1].Visible);
}

TEST(Restore, RowsGrowFromTheirSavedHeights) {
  Ordering o(StoredModel(3, 1, {2.0, 1.0, 2.0, 1.0}));
  o.Open();
  o.Drag("cmdAttB(1)", "picOrder(0)");
  EXPECT_EQ(Rows(o.B), "*1@120+1265 [0 2 1] | 2@1505+515 []");
  o.Click("cmdAdd");
  EXPECT_EQ(Rows(o.B), "1@120+1265 [0 2 1] | 2@1505+515 [] | *3@2140+515 []");
}

}  // namespace
}  // namespace Tarnwise
