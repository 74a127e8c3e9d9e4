// The lists of the attributes, and what scrolls. Lengths are twips.
#include "Ordering.h"

namespace Tarnwise {
namespace {

using enum Group;

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

}  // namespace
}  // namespace Tarnwise
