// What drags over the ordering step do: drops, insertion markers, option marks, the pointer.
#include "Ordering.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

using enum Group;

constexpr Colour kMarkerColour = 255;

// Where a newcomer to a row with so many attributes would land.
std::vector<Drawn> MarkerOf(const PictureBox& row, int size) {
  const Single y = static_cast<Single>(size) * kH + 60.0F;
  const Single right = row.Width - 100.0F;
  return {{Drawn::What::Line, {100.0F, y, right, y}, kMarkerColour, 1},
          {Drawn::What::Line, {100.0F, y - 30.0F, 100.0F, y + 30.0F}, kMarkerColour, 1},
          {Drawn::What::Line, {right, y - 30.0F, right, y + 30.0F}, kMarkerColour, 1}};
}

struct Drags : Ordering {
  using Ordering::Ordering;

  // The notifications themselves, as a toolkit gives them.
  static void Over(Control& target, Control& source, DragState state) {
    ASSERT_TRUE(target.DragOver) << target.FullName();
    target.DragOver(source, 1.0F, 1.0F, state);
  }
  static void DropOn(Control& target, Control& source) {
    ASSERT_TRUE(target.DragDrop) << target.FullName();
    target.DragDrop(source, 1.0F, 1.0F);
  }
  int MarkedOption(const RankControls& c) const {
    int marked = -1;
    c.optAttInfo.Each([&marked](const OptionButton& option) {
      if (option.Value) marked = option.Index;
    });
    return marked;
  }
};

TEST(DropOnARow, PlacesAListAttributeAndMarksItsOption) {
  Drags o(ModelOf(3, 2));
  o.Open();
  o.Place(2, 0);
  EXPECT_EQ(o.B.cmdAttB[0].Tag(), "B2");
  EXPECT_EQ(o.MarkedOption(o.B), 2);
  EXPECT_EQ(o.MarkedOption(o.C), -1);
  EXPECT_TRUE(o.Data.OrderChanged);
  EXPECT_TRUE(o.B.picOrder[0].Drawing.empty());
  o.PlaceCost(1, 0);
  EXPECT_EQ(o.C.cmdAttB[0].Tag(), "D4");
  EXPECT_EQ(o.MarkedOption(o.C), 1);
  EXPECT_EQ(o.MarkedOption(o.B), 2);
}

TEST(DropOnARow, MovesAPlacedAttributeAndMarksTheOptionOfItsButtonsNumber) {
  Drags o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdAdd");
  o.Place(2, 0);
  o.Place(1, 0);
  o.Data.OrderChanged = false;
  o.Drag("cmdAttB(0)", "picOrder(1)");  // attribute 2, whose place in the list is 2
  EXPECT_EQ(o.B.cmdAttB[0].Top(), o.B.picOrder[1].Top + 60.0F);
  EXPECT_EQ(o.MarkedOption(o.B), 0);
  EXPECT_TRUE(o.Data.OrderChanged);
}

TEST(DropOnARow, OfAPlacedAttributeOnItsOwnRowChangesNothing) {
  Drags o(AllPlaced());
  o.Open();
  const Single top = o.B.cmdAttB[0].Top;
  o.Drag("cmdAttB(0)", "picOrder(0)");
  o.Drag("cmdAttB1(1)", "picOrder1(1)");
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_EQ(o.B.cmdAttB[0].Top(), top);
  EXPECT_EQ(o.B.picOrder[0].Height(), 890.0F);
  EXPECT_TRUE(o.B.cmdAttB[0].Visible);
  EXPECT_TRUE(o.B.picOrderCon.Drawing.empty()) << "it does not select the row either";
  EXPECT_TRUE(o.C.picOrder[1].Drawing.empty()) << "the marker goes";
}

TEST(DropOnARow, OfTheOtherGroupClearsTheMarkerAndMovesTheOptionMarkOnly) {
  Drags o(ModelOf(3, 3));
  o.Open();
  o.PlaceCost(0, 0);
  o.Data.OrderChanged = false;
  o.Screen->Drag.Begin(o.C.cmdAttA[2]);
  o.Screen->Drag.Over(o.B.picOrder[0], 1.0F, 1.0F);
  EXPECT_EQ(o.B.picOrder[0].Drawing, MarkerOf(o.B.picOrder[0], 0));
  o.Screen->Drag.Drop();
  EXPECT_TRUE(o.B.picOrder[0].Drawing.empty());
  EXPECT_EQ(o.MarkedOption(o.B), 2) << "the option of the target's side";
  EXPECT_EQ(o.MarkedOption(o.C), 0);
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_FALSE(o.B.cmdAttB[0].Visible);
  EXPECT_TRUE(o.C.cmdAttA[2].Visible);
  o.Drag("cmdAttB1(0)", "picOrder(0)");
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_EQ(o.MarkedOption(o.B), 0);
  o.Drag("cmdAttA(1)", "picOrder1(0)");
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_EQ(o.MarkedOption(o.C), 1);
  EXPECT_TRUE(o.Notes.empty() || Only(o.Notes, "error").empty());
}

TEST(DropOnARow, WhoseGroupHasNoOptionOfThatNumberGoesOn) {
  Drags o(ModelOf(1, 3));
  o.Open();
  o.Drag("cmdAttA1(2)", "picOrder(0)");
  EXPECT_EQ(o.MarkedOption(o.B), -1);
  EXPECT_TRUE(o.B.picOrder[0].Drawing.empty());
  EXPECT_TRUE(Only(o.Notes, "error").empty());
}

TEST(DropOnARow, OfWhatIsNoButtonMarksTheOptionOnly) {
  Drags o(ModelOf(3, 1));
  o.Open();
  o.B.picOrder[0].Draw({Drawn::What::Line, {1.0F, 2.0F, 3.0F, 4.0F}, kMarkerColour, 1});
  Drags::DropOn(o.B.picOrder[0], o.B.lblAttName[1]);
  EXPECT_EQ(o.MarkedOption(o.B), 1);
  EXPECT_EQ(o.B.picOrder[0].Drawing.size(), 1U);
  EXPECT_FALSE(o.Data.OrderChanged);
}

TEST(DropOnARow, OfTheLastAttributeOfBothGroupsEnablesNextAtOnce) {
  Drags o(ModelOf(2, 1));
  o.Open();
  o.Place(0, 0);
  o.PlaceCost(0, 0);
  EXPECT_FALSE(o.Form->cmdNext.Enabled);
  o.Place(1, 0);
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
}

TEST(DropOnARow, ThatMovesAnAttributeAndBackLeavesTheOrderChanged) {
  Drags o(AllPlaced());
  o.Open();
  o.Drag("cmdAttB(2)", "picOrder(0)");
  o.Drag("cmdAttB(2)", "picOrder(1)");
  EXPECT_TRUE(o.Data.OrderChanged);
}

TEST(DropOnAButton, AddsAListAttributeAtTheBottomOfItsRow) {
  Drags o(ModelOf(3, 3));
  o.Open();
  o.Place(0, 0);
  o.Place(1, 0);
  o.Drag("cmdAttA(2)", "cmdAttB(0)");
  EXPECT_EQ(o.B.cmdAttB[2].Tag(), "B2");
  EXPECT_EQ(Rows(o.B), "*1@120+1285 [0 1 2]");
  EXPECT_EQ(o.MarkedOption(o.B), 2);
  o.PlaceCost(0, 0);
  o.Drag("cmdAttA1(1)", "cmdAttB1(0)");
  EXPECT_EQ(Rows(o.C), "*1@120+910 [3 4]");
}

TEST(DropOnAButton, FindsTheRowByTheRankNotTheInstance) {
  Drags o(ModelOf(3, 1));
  o.Open();
  o.Click("cmdInsert");  // instance 1 is rank 1, instance 0 rank 2
  o.Place(0, 0);
  o.Drag("cmdAttA(1)", "cmdAttB(0)");
  EXPECT_EQ(Rows(o.B), "1#1@120+515 [] | *2#0@755+910 [0 1]");
}

TEST(DropOnAButton, MovesAPlacedAttributeOfAnotherRank) {
  Drags o(AllPlaced());
  o.Open();
  o.Drag("cmdAttB(2)", "cmdAttB(0)");
  EXPECT_TRUE(o.Data.OrderChanged);
  EXPECT_EQ(o.B.cmdAttB[2].Top(), 180.0F + 2.0F * kH);
  o.Data.OrderChanged = false;
  o.Drag("cmdAttB1(0)", "cmdAttB1(2)");
  EXPECT_TRUE(o.Data.OrderChanged);
  EXPECT_EQ(o.C.cmdAttB[0].Top(), o.C.picOrder[1].Top + 60.0F + 2.0F * kH);
}

TEST(DropOnAButton, OfItsOwnRankDoesNothingAtAll) {
  Drags o(AllPlaced());
  o.Open();
  o.Drag("cmdAttB(1)", "cmdAttB(0)");
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_EQ(o.MarkedOption(o.B), -1);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), 180.0F + kH);
  o.Drag("cmdAttB1(2)", "cmdAttB1(1)");
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_EQ(o.MarkedOption(o.C), -1);
}

TEST(DropOnAButton, OfTheOtherGroupDoesNothingAtAll) {
  Drags o(ModelOf(2, 2));
  o.Open();
  o.Place(0, 0);
  o.PlaceCost(0, 0);
  o.Data.OrderChanged = false;
  const int option = o.MarkedOption(o.B);
  o.Drag("cmdAttA1(1)", "cmdAttB(0)");
  o.Drag("cmdAttB1(0)", "cmdAttB(0)");
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_EQ(o.MarkedOption(o.B), option);
  EXPECT_EQ(o.B.cmdAttB.Count(), 1);
  EXPECT_TRUE(o.C.cmdAttA[1].Visible);
}

TEST(DropOnAButton, OfWhatIsNoButtonDoesNothing) {
  Drags o(AllPlaced());
  o.Open();
  Drags::DropOn(o.B.cmdAttB[0], o.B.lblAttName[1]);
  EXPECT_EQ(o.MarkedOption(o.B), -1);
  EXPECT_FALSE(o.Data.OrderChanged);
}

TEST(OverARow, EnteringDrawsTheMarkerAndLeavingClearsIt) {
  Drags o(ModelOf(4, 1));
  o.Open();
  PictureBox& row = o.B.picOrder[0];
  Drags::Over(row, o.B.cmdAttA[0], DragState::Enter);
  EXPECT_EQ(row.Drawing, MarkerOf(row, 0));
  Drags::Over(row, o.B.cmdAttA[0], DragState::Over);
  EXPECT_EQ(row.Drawing, MarkerOf(row, 0));
  Drags::Over(row, o.B.cmdAttA[0], DragState::Leave);
  EXPECT_TRUE(row.Drawing.empty());
}

TEST(OverARow, TheMarkerStandsBelowTheAttributesThatAreThere) {
  Drags o(ModelOf(4, 1));
  o.Open();
  o.Place(0, 0);
  o.Place(1, 0);
  PictureBox& row = o.B.picOrder[0];
  row.Draw({Drawn::What::Line, {1.0F, 2.0F, 3.0F, 4.0F}, kMarkerColour, 1});
  Drags::Over(row, o.B.cmdAttA[2], DragState::Enter);
  EXPECT_EQ(row.Drawing, MarkerOf(row, 2)) << "what was there before is cleared";
}

TEST(OverARow, NothingIsDrawnForAPlacedAttributeOfThatRow) {
  Drags o(AllPlaced());
  o.Open();
  PictureBox& row = o.B.picOrder[0];
  Drags::Over(row, o.B.cmdAttB[1], DragState::Enter);
  EXPECT_TRUE(row.Drawing.empty());
  row.Draw({Drawn::What::Line, {1.0F, 2.0F, 3.0F, 4.0F}, kMarkerColour, 1});
  Drags::Over(row, o.B.cmdAttB[1], DragState::Leave);
  EXPECT_EQ(row.Drawing.size(), 1U) << "the state is not looked at";
  Drags::Over(o.B.picOrder[1], o.B.cmdAttB[1], DragState::Enter);
  EXPECT_EQ(o.B.picOrder[1].Drawing, MarkerOf(o.B.picOrder[1], 1));
}

TEST(OverARow, OfTheCostListAPlacedCostAttributeGetsTheMarkerOverItsOwnRowToo) {
  Drags o(AllPlaced());
  o.Open();
  PictureBox& row = o.C.picOrder[0];
  Drags::Over(row, o.C.cmdAttB[0], DragState::Enter);
  EXPECT_EQ(row.Drawing, MarkerOf(row, 1));
}

TEST(OverARow, OfTheCostListAPlacedBenefitAttributeOfThatRankGetsNone) {
  Drags o(AllPlaced());
  o.Open();
  Drags::Over(o.C.picOrder[0], o.B.cmdAttB[0], DragState::Enter);
  EXPECT_TRUE(o.C.picOrder[0].Drawing.empty());
  Drags::Over(o.C.picOrder[1], o.B.cmdAttB[0], DragState::Enter);
  EXPECT_EQ(o.C.picOrder[1].Drawing, MarkerOf(o.C.picOrder[1], 2));
}

TEST(OverARow, AListAttributeOfTheOtherGroupGetsTheMarker) {
  Drags o(ModelOf(2, 2));
  o.Open();
  Drags::Over(o.B.picOrder[0], o.C.cmdAttA[0], DragState::Enter);
  EXPECT_EQ(o.B.picOrder[0].Drawing, MarkerOf(o.B.picOrder[0], 0));
  Drags::Over(o.C.picOrder[0], o.B.cmdAttA[0], DragState::Enter);
  EXPECT_EQ(o.C.picOrder[0].Drawing, MarkerOf(o.C.picOrder[0], 0));
}

TEST(OverAButton, DrawsTheMarkerOfItsRowForEveryNotification) {
  Drags o(AllPlaced());
  o.Open();
  for (const DragState state : {DragState::Enter, DragState::Over, DragState::Leave}) {
    o.B.picOrder[0].Cls();
    Drags::Over(o.B.cmdAttB[1], o.B.cmdAttB[2], state);
    EXPECT_EQ(o.B.picOrder[0].Drawing, MarkerOf(o.B.picOrder[0], 2)) << static_cast<int>(state);
  }
  EXPECT_EQ(o.B.picOrder[0].Drawing.size(), 3U);
  Drags::Over(o.B.cmdAttB[1], o.B.cmdAttB[2], DragState::Over);
  EXPECT_EQ(o.B.picOrder[0].Drawing.size(), 3U) << "cleared before it is drawn again";
}

TEST(OverAButton, LeavesTheMarkerUntilTheRowIsClearedNext) {
  Drags o(AllPlaced());
  o.Open();
  o.Screen->Drag.Begin(o.B.cmdAttB[2]);
  o.Screen->Drag.Over(o.B.cmdAttB[0], 1.0F, 1.0F);
  o.Screen->Drag.Over(o.B.picAttPanel, 1.0F, 1.0F);
  EXPECT_EQ(o.B.picOrder[0].Drawing, MarkerOf(o.B.picOrder[0], 2));
  o.Screen->Drag.Over(o.B.picOrder[0], 1.0F, 1.0F);
  o.Screen->Drag.OverNothing();
  EXPECT_TRUE(o.B.picOrder[0].Drawing.empty());
}

TEST(OverAButton, OfItsOwnRankDrawsNothingInEitherList) {
  Drags o(AllPlaced());
  o.Open();
  Drags::Over(o.B.cmdAttB[0], o.B.cmdAttB[1], DragState::Over);
  EXPECT_TRUE(o.B.picOrder[0].Drawing.empty());
  Drags::Over(o.C.cmdAttB[1], o.C.cmdAttB[2], DragState::Over);
  EXPECT_TRUE(o.C.picOrder[1].Drawing.empty());
  Drags::Over(o.C.cmdAttB[1], o.C.cmdAttB[0], DragState::Over);
  EXPECT_EQ(o.C.picOrder[1].Drawing, MarkerOf(o.C.picOrder[1], 2));
  Drags::Over(o.C.cmdAttB[0], o.B.cmdAttB[0], DragState::Over);
  EXPECT_EQ(o.C.picOrder[0].Drawing, MarkerOf(o.C.picOrder[0], 1)) << "the letter of the cost list is D here";
}

TEST(OverTheLists, ThePanelMarksTheOptionOfItsOwnList) {
  Drags o(ModelOf(3, 3));
  o.Open();
  for (const DragState state : {DragState::Enter, DragState::Over, DragState::Leave}) {
    o.B.optAttInfo[2].Value = false;
    Drags::Over(o.B.picAttPanel, o.B.cmdAttA[2], state);
    EXPECT_EQ(o.MarkedOption(o.B), 2);
  }
  EXPECT_EQ(o.MarkedOption(o.C), -1);
  Drags::Over(o.C.picAttPanel, o.C.cmdAttA[1], DragState::Over);
  EXPECT_EQ(o.MarkedOption(o.C), 1);
  EXPECT_EQ(o.MarkedOption(o.B), 2);
}

TEST(OverTheLists, TheNamesOfTheBenefitListMarkTheirOwnOptions) {
  Drags o(ModelOf(3, 3));
  o.Open();
  Drags::Over(o.B.lblAttName[0], o.B.cmdAttA[2], DragState::Enter);
  EXPECT_EQ(o.MarkedOption(o.B), 2) << "the source's number, not the label's";
}

TEST(OverTheLists, TheNamesOfTheCostListMarkTheBenefitListsOptions) {
  Drags o(ModelOf(3, 3));
  o.Open();
  Drags::Over(o.C.lblAttName[0], o.C.cmdAttA[1], DragState::Enter);
  EXPECT_EQ(o.MarkedOption(o.B), 1);
  EXPECT_EQ(o.MarkedOption(o.C), -1);
}

TEST(OverTheLists, WhatIsNoButtonMarksNothing) {
  Drags o(ModelOf(3, 3));
  o.Open();
  Drags::Over(o.B.picAttPanel, o.B.lblAttName[1], DragState::Over);
  Drags::Over(o.B.lblAttName[0], o.B.lblAttName[1], DragState::Over);
  Drags::Over(o.C.picAttPanel, o.B.lblAttName[1], DragState::Over);
  EXPECT_EQ(o.MarkedOption(o.B), -1);
  EXPECT_EQ(o.MarkedOption(o.C), -1);
}

TEST(OverTheLists, ASourceWithoutAnOptionOfItsNumberMarksNone) {
  Drags o(ModelOf(1, 3));
  o.Open();
  o.Screen->Drag.Begin(o.C.cmdAttA[2]);
  o.Screen->Drag.Over(o.B.picAttPanel, 1.0F, 1.0F);
  o.Screen->Drag.Over(o.C.lblAttName[0], 1.0F, 1.0F);
  o.Screen->Drag.Cancel();
  EXPECT_EQ(o.MarkedOption(o.B), -1);
  EXPECT_TRUE(Only(o.Notes, "error").empty());
}

TEST(OverTheLists, NothingCanBeDroppedBack) {
  Drags o(AllPlaced());
  o.Open();
  EXPECT_FALSE(o.B.picAttPanel.DragDrop);
  EXPECT_FALSE(o.B.lblAttName[0].DragDrop);
  EXPECT_FALSE(o.C.lblAttName[0].DragDrop);
  o.Drag("cmdAttB(0)", "picAttPanel");
  EXPECT_TRUE(o.B.cmdAttB[0].Visible);
  EXPECT_FALSE(o.B.cmdAttA[0].Visible);
  EXPECT_FALSE(o.Data.OrderChanged);
}

TEST(OverTheForm, TheSourcesPointerShowsWhetherItIsOverIt) {
  Drags o(ModelOf(2, 1));
  o.Open();
  CommandButton& source = o.B.cmdAttA[0];
  Drags::Over(*o.Form, source, DragState::Leave);
  EXPECT_EQ(source.MousePointer(), 12);
  Drags::Over(*o.Form, source, DragState::Over);
  EXPECT_EQ(source.MousePointer(), 12);
  Drags::Over(*o.Form, source, DragState::Enter);
  EXPECT_EQ(source.MousePointer(), 0);
}

}  // namespace
}  // namespace Tarnwise
