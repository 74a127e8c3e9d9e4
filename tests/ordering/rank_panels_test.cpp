// The lists and rank rows: where they stand, how they scroll, what is selected and enabled. Lengths are twips.
#include "Ordering.h"

namespace Tarnwise {
namespace {

using enum Group;

constexpr Single kH = 375.0F;  // of a row button

// A row and its label, as the layout has them.
void ExpectRow(const RankControls& c, int instance, int rank, Single top, Single height) {
  SCOPED_TRACE("row instance " + std::to_string(instance));
  EXPECT_EQ(c.picOrder[instance].Tag(), std::to_string(rank));
  EXPECT_EQ(c.picOrder[instance].Top(), top);
  EXPECT_EQ(c.picOrder[instance].Height(), height);
  EXPECT_EQ(c.lblOrderID[instance].Top(), top);
  EXPECT_EQ(c.lblOrderID[instance].Tag(), std::to_string(rank));
  EXPECT_EQ(c.lblOrderID[instance].Caption(), std::to_string(rank));
}

// The box round the row of that instance, and no other drawing.
void ExpectSelected(const RankControls& c, int instance) {
  const PictureBox& row = c.picOrder[instance];
  const Label& label = c.lblOrderID[instance];
  const std::vector<Single> box = {label.Left - 10.0F, label.Top - 10.0F, label.Left + label.Width + row.Width + 5.0F,
                                   label.Top + row.Height + 5.0F};
  ASSERT_EQ(c.picOrderCon.Drawing.size(), 1U);
  EXPECT_EQ(c.picOrderCon.Drawing[0].Shape, Drawn::What::Box);
  EXPECT_EQ(c.picOrderCon.Drawing[0].Points, box);
  EXPECT_EQ(c.picOrderCon.Drawing[0].Ink, 16711680U);
  c.picOrder.Each([](const PictureBox& other) { EXPECT_TRUE(other.Drawing.empty()); });
}

bool InFrontOfAll(const Control& control) {
  for (const Control* other : control.Owner.Controls()) {
    if (other != &control && other->Parent == control.Parent && other->Order() > control.Order()) return false;
  }
  return true;
}

TEST(AttributeList, HoldsEachGroupInAscendingId) {
  Ordering o(ModelOf({{" Waiting time ", Cost}, {"Patients", Benefit}, {"Beds", Cost}, {"Visits", Benefit}}));
  o.Open();
  EXPECT_EQ(o.B.cmdAttA.Count(), 2);
  EXPECT_EQ(o.B.cmdAttA[0].Tag(), "A1");
  EXPECT_EQ(o.B.cmdAttA[1].Tag(), "A3");
  EXPECT_EQ(o.B.cmdAttA[1].Caption(), "Visits");
  EXPECT_EQ(o.C.cmdAttA[0].Tag(), "C0");
  EXPECT_EQ(o.C.cmdAttA[0].Caption(), "Waiting time");
  EXPECT_EQ(o.C.lblAttName[0].Caption(), "Waiting time");
  EXPECT_EQ(o.C.cmdAttA[1].Tag(), "C2");
  EXPECT_EQ(o.B.cmdAttA[1].BackColor(), 192U * 65536U + 192U * 256U + 255U);
  EXPECT_EQ(o.C.cmdAttA[1].BackColor(), 255U * 65536U + 192U * 256U + 192U);
  EXPECT_TRUE(o.B.cmdAttA[1].DragAutomatic);
}

TEST(AttributeList, StandsAtAPitchOfOneButtonAnd30) {
  Ordering o(ModelOf(4, 3));
  o.Open();
  const Single first = o.B.cmdAttA[0].Top;
  for (int k = 0; k < 4; ++k) {
    const Single top = 30.0F * static_cast<Single>(k) + first + static_cast<Single>(k) * o.B.cmdAttA[0].Height;
    EXPECT_EQ(o.B.cmdAttA[k].Top(), top);
    EXPECT_EQ(o.B.optAttInfo[k].Top(), top);
    EXPECT_EQ(o.B.lblAttName[k].Top(), top);
  }
  EXPECT_EQ(o.C.lblAttName[2].Top(), o.C.cmdAttA[0].Top + 2.0F * (30.0F + kH));
}

TEST(AttributeList, OfFiveDoesNotScrollAndOfSixDoes) {
  Ordering o(ModelOf(6, 5));
  o.Open();
  EXPECT_TRUE(o.B.vsrAtt.Enabled);
  EXPECT_EQ(o.B.picAttPLst.Height(), (o.B.lblAttName[0].Height + 100.0F) * 6.0F);
  EXPECT_EQ(o.B.vsrAtt.Top(), 0.0F);
  EXPECT_EQ(o.B.vsrAtt.Height(), o.B.picAttPanel.Height - 60.0F);
  EXPECT_EQ(o.B.vsrAtt.Value(), 6);
  EXPECT_EQ(o.B.picAttPLst.Top(), -6.0F);
  EXPECT_FALSE(o.C.vsrAtt.Enabled);
  EXPECT_EQ(o.C.vsrAtt.Value(), 0);
  EXPECT_EQ(o.C.picAttPLst.Top(), 0.0F);
}

TEST(AttributeList, ScrollsToItsLastAttribute) {
  Ordering o(ModelOf(30, 1));
  o.Open();
  EXPECT_EQ(o.B.picAttPLst.Height(), (o.B.lblAttName[0].Height + 100.0F) * 30.0F);
  EXPECT_GE(static_cast<Single>(o.B.vsrAtt.Max()), Bottom(o.B.cmdAttA[29]) - o.B.picAttPanel.Height);
  o.B.vsrAtt.SetValue(8000);
  EXPECT_EQ(o.B.picAttPLst.Top(), -8000.0F);
}

TEST(RankRows, OpenWithOneRowPerGroup) {
  Ordering o(ModelOf(3, 2));
  o.Open();
  for (const RankControls* c : {&o.B, &o.C}) {
    EXPECT_EQ(c->picOrder.Count(), 1);
    ExpectRow(*c, 0, 1, 120.0F, kH + 140.0F);
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
  ExpectRow(o.B, 1, 2, 755.0F, kH + 140.0F);
  ExpectSelected(o.B, 1);
  o.Click("cmdAdd1");
  ExpectRow(o.C, 1, 2, 755.0F, kH + 140.0F);
  ExpectSelected(o.C, 1);
}

TEST(RankRows, AddPutsTheNewRowBelowTheLastRankAlsoWhenAnInsertMadeThatInstanceEarlier) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdInsert");
  ExpectRow(o.B, 1, 1, 120.0F, kH + 140.0F);
  ExpectRow(o.B, 0, 2, 755.0F, kH + 140.0F);
  o.Click("cmdAdd");
  ExpectRow(o.B, 2, 3, 1390.0F, kH + 140.0F);
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
  ExpectRow(o.B, 0, 1, 120.0F, 515.0F);
  ExpectRow(o.B, 3, 2, 755.0F, 515.0F);
  ExpectRow(o.B, 1, 3, 755.0F + 635.0F, 515.0F);
  ExpectRow(o.B, 2, 4, 1390.0F + 635.0F, 515.0F);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 180.0F);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 755.0F + 635.0F + 60.0F);
  EXPECT_EQ(o.B.cmdAttB[2].Top(), 1390.0F + 635.0F + 60.0F);
  ExpectSelected(o.B, 3);
}

TEST(RankRows, InsertAtAGrownRowSelectsTheNewRowAtItsOwnHeight) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("picOrder(0)");
  o.Click("cmdInsert");
  EXPECT_EQ(o.B.picOrder[1].Height(), 515.0F);
  EXPECT_GT(o.B.picOrder[0].Height(), 515.0F);
  ExpectSelected(o.B, 1);
}

TEST(RankRows, InsertAtRank1PutsTheNewRowAtTheTop) {
  Ordering o(ModelOf(4, 4));
  o.Open();
  o.Place(0, 0);
  o.Click("cmdInsert");
  ExpectRow(o.B, 1, 1, 120.0F, 515.0F);
  ExpectRow(o.B, 0, 2, 755.0F, 515.0F);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 815.0F);
  o.Click("cmdInsert1");
  ExpectRow(o.C, 1, 1, 120.0F, 515.0F);
  ExpectRow(o.C, 0, 2, 755.0F, 515.0F);
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

TEST(Placing, TheFirstAttributeTakesTheButtonThatIsThere) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Place(1, 0);
  EXPECT_EQ(o.B.cmdAttB.Count(), 1);
  const CommandButton& button = o.B.cmdAttB[0];
  EXPECT_EQ(button.Tag(), "B1");
  EXPECT_EQ(button.Caption(), "Benefit 1");
  EXPECT_EQ(button.BackColor(), o.B.cmdAttA[1].BackColor());
  EXPECT_EQ(button.Top(), 180.0F);
  EXPECT_EQ(button.Left(), o.B.picOrder[0].Left + 200.0F);
  EXPECT_TRUE(button.Visible);
  EXPECT_FALSE(o.B.cmdAttA[1].Visible);
  EXPECT_TRUE(o.B.cmdAttA[0].Visible);
  ExpectRow(o.B, 0, 1, 120.0F, 515.0F);
  ExpectSelected(o.B, 0);
}

TEST(Placing, LaterAttributesGetTheirOwnButtons) {
  Ordering o(ModelOf(1, 3));
  o.Open();
  o.Click("cmdAdd1");
  o.PlaceCost(2, 1);
  o.PlaceCost(0, 0);
  EXPECT_EQ(o.C.cmdAttB[0].Tag(), "D3");
  EXPECT_EQ(o.C.cmdAttB[0].Top(), 755.0F + 60.0F);
  EXPECT_EQ(o.C.cmdAttB[1].Tag(), "D1");
  EXPECT_EQ(o.C.cmdAttB[1].Top(), 180.0F);
  EXPECT_EQ(o.C.cmdAttB[1].Caption(), "Cost 0");
  EXPECT_EQ(o.C.cmdAttB[1].BackColor(), 255U * 65536U + 192U * 256U + 192U);
}

TEST(Placing, TheFirstGrowthOfARowTakes20OfTheGapBelow) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Place(1, 1);
  o.Place(2, 0);
  ExpectRow(o.B, 0, 1, 120.0F, 2.0F * kH + 160.0F);
  ExpectRow(o.B, 1, 2, 755.0F + kH, kH + 140.0F);
  EXPECT_EQ(o.B.picOrder[1].Top - Bottom(o.B.picOrder[0]), 100.0F);
  EXPECT_EQ(o.B.cmdAttB[2].Top(), 120.0F + 60.0F + kH);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 755.0F + kH + 60.0F);
  o.Place(3, 0);
  ExpectRow(o.B, 0, 1, 120.0F, 3.0F * kH + 160.0F);
  ExpectRow(o.B, 1, 2, 755.0F + 2.0F * kH, kH + 140.0F);
  EXPECT_EQ(o.B.picOrder[1].Top - Bottom(o.B.picOrder[0]), 100.0F);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 755.0F + 2.0F * kH + 60.0F);
}

TEST(Placing, TheRowsOfTheCostGroupGrowAlike) {
  Ordering o(ModelOf(1, 3));
  o.Open();
  o.Click("cmdAdd1");
  o.PlaceCost(0, 0);
  o.PlaceCost(1, 0);
  ExpectRow(o.C, 0, 1, 120.0F, 2.0F * kH + 160.0F);
  ExpectRow(o.C, 1, 2, 755.0F + kH, kH + 140.0F);
}

TEST(Placing, InsertAfterAGrownRowKeepsTheFullGap) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("picOrder(1)");
  o.Click("cmdInsert");
  ExpectRow(o.B, 2, 2, 120.0F + 910.0F + 120.0F, 515.0F);
  ExpectRow(o.B, 1, 3, 755.0F + kH + 635.0F, 515.0F);
}

TEST(Placing, PushesOnlyRowsOfAHigherRankWhateverTheirInstance) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdInsert");  // instance 1 is rank 1, instance 0 rank 2
  o.Place(0, 0);
  o.Place(1, 0);
  ExpectRow(o.B, 1, 1, 120.0F, 515.0F);
  ExpectRow(o.B, 0, 2, 755.0F, 2.0F * kH + 160.0F);
  o.Place(2, 1);
  o.Place(3, 1);
  ExpectRow(o.B, 1, 1, 120.0F, 2.0F * kH + 160.0F);
  ExpectRow(o.B, 0, 2, 755.0F + kH, 2.0F * kH + 160.0F);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 755.0F + kH + 60.0F);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 755.0F + 2.0F * kH + 60.0F);
}

TEST(Moving, TheOnlyAttributeOfARowLeavesAnEmptyRowOfItsHeight) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 0);
  o.Place(1, 1);
  o.Drag("cmdAttB(0)", "picOrder(2)");
  ExpectRow(o.B, 0, 1, 120.0F, 515.0F);
  ExpectRow(o.B, 1, 2, 755.0F, 515.0F);
  ExpectRow(o.B, 2, 3, 1390.0F, 515.0F);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 1450.0F);
  EXPECT_TRUE(o.B.cmdAttB[0].Visible);
  EXPECT_TRUE(InFrontOfAll(o.B.cmdAttB[0]));
  ExpectSelected(o.B, 2);
}

TEST(Moving, AnEmptiedRowThatHadGrownKeepsItsHeight) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Place(1, 0);
  o.Drag("cmdAttB(0)", "picOrder(1)");
  ExpectRow(o.B, 0, 1, 120.0F, kH + 160.0F);
  o.Drag("cmdAttB(1)", "picOrder(1)");
  ExpectRow(o.B, 0, 1, 120.0F, kH + 160.0F);
  ExpectRow(o.B, 1, 2, 755.0F, 515.0F + kH);
}

TEST(Moving, OutOfASharedRowRestacksItAndPullsTheRowsBelowUp) {
  Ordering o(ModelOf(5, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 0);
  o.Place(1, 0);
  o.Place(2, 0);
  o.Place(3, 1);
  const Single second = o.B.picOrder[1].Top;
  EXPECT_EQ(second, 755.0F + 2.0F * kH);
  o.Drag("cmdAttB(0)", "picOrder(2)");
  ExpectRow(o.B, 0, 1, 120.0F, 2.0F * kH + 160.0F);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 180.0F);
  EXPECT_EQ(o.B.cmdAttB[2].Top(), 180.0F + kH);
  ExpectRow(o.B, 1, 2, second - kH, 515.0F);
  EXPECT_EQ(o.B.cmdAttB[3].Top(), second - kH + 60.0F);
  ExpectRow(o.B, 2, 3, 1390.0F + kH, 515.0F);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 1390.0F + kH + 60.0F);
}

TEST(Moving, IntoAFilledRowPutsItAtTheBottomAndPushesTheRowsBelow) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 2);
  o.Place(1, 0);
  o.Place(2, 1);
  o.Drag("cmdAttB(0)", "picOrder(0)");
  ExpectRow(o.B, 0, 1, 120.0F, 515.0F + kH);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 180.0F);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 180.0F + kH);
  ExpectRow(o.B, 1, 2, 755.0F + kH, 515.0F);
  EXPECT_EQ(o.B.cmdAttB[2].Top(), 755.0F + kH + 60.0F);
  ExpectRow(o.B, 2, 3, 1390.0F + kH, 515.0F);
  ExpectSelected(o.B, 0);
}

TEST(Moving, BetweenTwoSharedRowsOfTheCostGroupKeepsWhatLiesBelowInPlace) {
  Ordering o(ModelOf(1, 5));
  o.Open();
  o.Click("cmdAdd1", 2);
  o.PlaceCost(0, 0);
  o.PlaceCost(1, 0);
  o.PlaceCost(2, 1);
  o.PlaceCost(3, 2);
  const Single third = o.C.picOrder[2].Top;
  const Single second = o.C.picOrder[1].Top;
  o.Drag("cmdAttB1(0)", "picOrder1(1)");
  EXPECT_EQ(o.C.cmdAttB[1].Top(), 180.0F);
  ExpectRow(o.C, 0, 1, 120.0F, kH + 160.0F);
  ExpectRow(o.C, 1, 2, second - kH, 515.0F + kH);
  ExpectRow(o.C, 2, 3, third, 515.0F);
  EXPECT_EQ(o.C.cmdAttB[3].Top(), third + 60.0F);
}

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
  EXPECT_EQ(o.B.picOrder.Count(), 1);
  EXPECT_EQ(o.B.lblOrderID.Count(), 1);
  EXPECT_EQ(o.B.cmdAttB.Count(), 1);
  EXPECT_FALSE(o.B.cmdAttB[0].Visible);
  for (int k = 0; k < 3; ++k) EXPECT_TRUE(o.B.cmdAttA[k].Visible) << k;
  ExpectRow(o.B, 0, 1, 120.0F, 515.0F);
  ExpectSelected(o.B, 0);
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
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 180.0F);
  o.Place(0, 0);
  EXPECT_EQ(o.B.cmdAttB[1].Tag(), "B0");
}

TEST(Reset, OfTheCostGroupReadsItsFirstLabelFromTheBenefitGroupsFirstRow) {
  Ordering o(ModelOf(3, 2));
  o.Open();
  o.Click("cmdInsert");
  EXPECT_EQ(o.B.picOrder[0].Tag(), "2");
  o.Click("cmdResetC");
  EXPECT_EQ(o.C.lblOrderID[0].Caption(), "2");
  EXPECT_EQ(o.C.lblOrderID[0].Tag(), "1");
  EXPECT_EQ(o.C.picOrder[0].Tag(), "1");
  o.PlaceCost(0, 0);
  o.Click("lblOrderID1(0)");
  ExpectSelected(o.C, 0);
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
  ExpectRow(o.B, 1, 2, 755.0F, 515.0F);
  EXPECT_FALSE(o.B.cmdAdd.Enabled);
  EXPECT_FALSE(o.B.cmdInsert.Enabled);
  o.Place(0, 1);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), 815.0F);
}

WizardData StoredModel(int benefits, int costs, const std::vector<Double>& weights) {
  WizardData model = ModelOf(benefits, costs);
  StoreJudgments(model, kDirectType, 0, benefits, 1.25, weights);
  return model;
}

TEST(Restore, LaysTheSavedOrderOutRowByRow) {
  Ordering o(StoredModel(5, 2, {1.0, 2.0, 1.0, 0.5, 2.0, 1.0, 3.0}));
  o.Open();
  EXPECT_EQ(o.B.picOrder.Count(), 3);
  ExpectRow(o.B, 0, 1, 120.0F, 2.0F * kH + 140.0F);
  ExpectRow(o.B, 1, 2, 120.0F + 890.0F + 120.0F, 2.0F * kH + 140.0F);
  ExpectRow(o.B, 2, 3, 1130.0F + 890.0F + 120.0F, kH + 140.0F);
  const Single tops[] = {1130.0F + 60.0F, 180.0F, 1190.0F + kH, 2140.0F + 60.0F, 180.0F + kH};
  for (int k = 0; k < 5; ++k) {
    EXPECT_EQ(o.B.cmdAttB[k].Tag(), "B" + std::to_string(k));
    EXPECT_EQ(o.B.cmdAttB[k].Caption(), "Benefit " + std::to_string(k));
    EXPECT_EQ(o.B.cmdAttB[k].BackColor(), o.B.cmdAttA[k].BackColor());
    EXPECT_EQ(o.B.cmdAttB[k].Top(), tops[k]) << k;
    EXPECT_TRUE(o.B.cmdAttB[k].Visible);
    EXPECT_FALSE(o.B.cmdAttA[k].Visible);
  }
  EXPECT_EQ(o.C.cmdAttB[0].Tag(), "D5");
  EXPECT_EQ(o.C.cmdAttB[0].Top(), 815.0F);
  EXPECT_EQ(o.C.cmdAttB[1].Top(), 180.0F);
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
  EXPECT_EQ(o.B.picOrder.Count(), 2);
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
  ExpectRow(o.B, 0, 1, 120.0F, 2.0F * kH + 140.0F + kH);
  ExpectRow(o.B, 1, 2, 1130.0F + kH, 515.0F);
  o.Click("cmdAdd");
  ExpectRow(o.B, 2, 3, 1130.0F + kH + 635.0F, 515.0F);
}

TEST(Scrolling, BothNotificationsMoveTheContentUp) {
  Ordering o(ModelOf(8, 8));
  o.Open();
  ReferenceControls& b = o.Form->BReference;
  ReferenceControls& c = o.Form->CReference;
  const std::pair<VScrollBar*, PictureBox*> pairs[] = {
      {&o.B.vsrAtt, &o.B.picAttPLst},    {&o.C.vsrAtt, &o.C.picAttPLst}, {&o.B.vsrOrder, &o.B.picOrderCon},
      {&o.C.vsrOrder, &o.C.picOrderCon}, {&b.Rows.vsrO, &b.Rows.picOP},  {&c.Rows.vsrO, &c.Rows.picOP}};
  for (const auto& [bar, content] : pairs) {
    Input::ScrollTo(*bar, 130, false);
    EXPECT_EQ(content->Top(), -130.0F) << bar->Name;
    Input::ScrollTo(*bar, 260, true);
    EXPECT_EQ(content->Top(), -260.0F) << bar->Name;
  }
}

TEST(Selection, IsMadeByARowItsLabelOrAButtonOnIt) {
  Ordering o(ModelOf(4, 1));
  o.Open();
  o.Click("cmdAdd", 2);
  o.Place(0, 2);
  o.Click("picOrder(1)");
  ExpectSelected(o.B, 1);
  o.Click("lblOrderID(0)");
  ExpectSelected(o.B, 0);
  o.Click("cmdAttB(0)");
  ExpectSelected(o.B, 2);
  o.Click("cmdInsert");
  EXPECT_EQ(o.B.picOrder[3].Tag(), "3") << "the row goes in at the selected rank";
}

TEST(Selection, ClearsWhatWasDrawnOnTheRows) {
  Ordering o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Screen->Drag.Begin(o.B.cmdAttA[0]);
  o.Screen->Drag.Over(o.B.picOrder[0], 10.0F, 10.0F);
  EXPECT_FALSE(o.B.picOrder[0].Drawing.empty());
  o.Screen->Drag.Drop();
  o.B.picOrder[1].Draw({Drawn::What::Line, {1.0F, 2.0F, 3.0F, 4.0F}, 255, 1});
  o.Click("lblOrderID(0)");
  ExpectSelected(o.B, 0);
}

TEST(Selection, OfOneGroupLeavesTheOthers) {
  Ordering o(ModelOf(3, 3));
  o.Open();
  o.Click("cmdAdd");
  o.Click("cmdAdd1");
  o.Click("picOrder(0)");
  ExpectSelected(o.B, 0);
  ExpectSelected(o.C, 1);
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
  EXPECT_EQ(o.C.picOrder.Count(), 1);
  ExpectRow(o.C, 0, 1, 120.0F, 515.0F);
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
