// What is selected, and what the step has enabled as it opens.
#include "Ordering.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

TEST(Selection, IsMadeByARowItsLabelOrAButtonOnIt) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 2);
  o.Click("picOrder(1)");
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | *2@755+515 [] | 3@1390+515 [0]");
  o.Click("lblOrderID(0)");
  EXPECT_EQ(Rows(o.B), "*1@120+515 [] | 2@755+515 [] | 3@1390+515 [0]");
  o.Click("cmdAttB(0)");
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | 2@755+515 [] | *3@1390+515 [0]");
  o.Click("cmdInsert");
  EXPECT_EQ(Rows(o.B), "1@120+515 [] | 2@755+515 [] | *3#3@1390+515 [] | 4#2@2025+515 [0]");
}

TEST(Selection, ClearsWhatWasDrawnOnTheRows) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Screen->Drag.Begin(o.B.cmdAttA[0]);
  o.Screen->Drag.Over(o.B.picOrder[0], 10.0F, 10.0F);
  EXPECT_EQ(Rows(o.B), "1 with a drawing@120+515 [] | *2@755+515 []");
  o.Screen->Drag.Drop();
  o.B.picOrder[1].Draw({Drawn::What::Line, {1.0F, 2.0F, 3.0F, 4.0F}, 255, 1});
  o.Click("lblOrderID(0)");
  EXPECT_EQ(Rows(o.B), "*1@120+515 [0] | 2@755+515 []");
}

TEST(Selection, OfOneGroupLeavesTheOthers) {
  Ordering o(ModelOf(3, 3));
  o.Open();
  o.Click("cmdAdd");
  o.Click("cmdAdd1");
  o.Click("picOrder(0)");
  EXPECT_EQ(Rows(o.B), "*1@120+515 [] | 2@755+515 []");
  EXPECT_EQ(Rows(o.C), "1@120+515 [] | *2@755+515 []");
}

TEST(Selection, AClickOnANameMarksItsAttribute) {
  Ordering o(ModelOf(3, 3));
  o.Open();
  o.Click("lblAttName(2)");
  EXPECT_TRUE(o.B.optAttInfo[2].Value);
  o.Click("lblAttName(1)");
  EXPECT_TRUE(o.B.optAttInfo[1].Value);
  EXPECT_FALSE(o.B.optAttInfo[2].Value);
  o.Click("lblAttName1(0)");
  EXPECT_TRUE(o.C.optAttInfo[0].Value);
  EXPECT_TRUE(o.B.optAttInfo[1].Value);
}

TEST(OrderingStep, OpensWithTheButtonsAsTheirRulesSay) {
  Ordering o(ModelOf(2, 1));
  o.Open();
  EXPECT_FALSE(o.Form->cmdNext.Enabled);
  EXPECT_FALSE(o.Form->cmdFinish.Enabled);
  EXPECT_TRUE(o.Form->cmdBack.Enabled);
  EXPECT_TRUE(o.Form->cmdCancel.Enabled);
  EXPECT_TRUE(o.B.cmdAdd.Enabled);
  EXPECT_TRUE(o.B.cmdInsert.Enabled);
  EXPECT_FALSE(o.C.cmdAdd.Enabled);
  EXPECT_FALSE(o.C.cmdInsert.Enabled);
  EXPECT_TRUE(o.B.cmdReset.Enabled);
  EXPECT_TRUE(o.C.cmdReset.Enabled);
  EXPECT_EQ(o.B.fmOA.Caption(), "Benefit-oriented attributes:");
  EXPECT_EQ(o.C.fmOA.Caption(), "Cost-oriented attributes:");
  EXPECT_EQ(o.Form->lblTitle[0].Caption(), "Rank order:");
  EXPECT_EQ(o.B.cmdAdd.Caption(), "&Add");
  EXPECT_EQ(o.C.cmdInsert.Caption(), "&Insert");
  EXPECT_EQ(o.C.cmdReset.Caption(), "Reset");
  EXPECT_EQ(o.Form->cmdBack.Caption(), "< &Back");
  EXPECT_EQ(o.Form->cmdNext.Caption(), "&Next >");
  EXPECT_EQ(o.Form->cmdFinish.Caption(), "&Finish");
  EXPECT_EQ(o.Form->cmdCancel.Caption(), "&Cancel");
  EXPECT_EQ(o.Form->cmdHelp.Caption(), "&Help");
}

TEST(OrderingStep, AddingRowsWithoutPlacingChangesNoSharedArray) {
  Ordering o(ModelOf(3, 2));
  o.Data.BOM.Allocate(2);
  o.Open();
  const std::vector<Integer> before = o.Data.AttO.Items();
  o.Click("cmdAdd", 2);
  o.Click("cmdInsert1");
  EXPECT_EQ(o.Data.AttO.Items(), before);
  EXPECT_EQ(o.Data.BOM.Count(), 2);
  EXPECT_EQ(o.Data.COM.Count(), 0);
  EXPECT_EQ(o.Data.BAttCount, 0);
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_FALSE(o.Form->cmdNext.Enabled);
}

TEST(OrderingStep, AGroupWithoutAttributesHasOneEmptyRow) {
  Ordering o(ModelOf(2, 0));
  o.Open();
  EXPECT_EQ(Rows(o.C), "1@120+515 []");
  EXPECT_FALSE(o.C.cmdAttA[0].Visible);
  EXPECT_FALSE(o.C.lblAttName[0].Visible);
  EXPECT_FALSE(o.C.cmdAdd.Enabled);
  o.Click("cmdResetC");
  EXPECT_FALSE(o.C.cmdAttA[0].Visible);
  o.Place(0, 0);
  o.Place(1, 0);
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
}

}  // namespace
}  // namespace Tarnwise
