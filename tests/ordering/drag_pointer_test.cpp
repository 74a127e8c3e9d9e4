// What the pointer says of a drop on the way of a drag: over rows and buttons that take the attribute, and over all
// else.
#include "Ordering.h"

namespace Tarnwise {
namespace {

using enum Group;

TEST(Pointer, SaysOfAListAttributeThatTheRowsOfItsGroupTakeIt) {
  Ordering o(AllPlaced());
  o.Open();
  o.Click("cmdResetB");
  o.Click("cmdAdd");
  o.Place(0, 0);
  o.Screen->Drag.Begin(o.B.cmdAttA[1]);
  const auto taken = [&o](Control& target) {
    o.Screen->Drag.Over(target, 1.0F, 1.0F);
    return o.Screen->Drag.WouldBeTaken();
  };
  EXPECT_FALSE(taken(*o.Form));
  EXPECT_TRUE(taken(o.B.picOrder[0]));
  EXPECT_EQ(o.B.cmdAttA[1].MousePointer(), 12) << "the rule's value stays as it is";
  EXPECT_TRUE(taken(o.B.picOrder[1]));
  EXPECT_TRUE(taken(o.B.cmdAttB[0]));
  EXPECT_FALSE(taken(*o.Form)) << "a gap between the rows";
  EXPECT_EQ(o.B.cmdAttA[1].MousePointer(), 0);
  EXPECT_FALSE(taken(o.B.picAttPanel)) << "nothing can be dropped back on the list";
  EXPECT_FALSE(taken(o.B.lblAttName[0]));
  EXPECT_FALSE(taken(o.C.picOrder[0])) << "refused by silence";
  EXPECT_FALSE(taken(o.C.cmdAttB[0]));
}

TEST(Pointer, SaysOfAPlacedAttributeThatTheOtherRowsOfItsGroupTakeIt) {
  Ordering o(AllPlaced());
  o.Open();
  for (const Group g : {Benefit, Cost}) {
    const RankControls& own = g == Benefit ? o.B : o.C;
    const RankControls& other = g == Benefit ? o.C : o.B;
    Control& source = own.cmdAttB[0];  // on rank 1
    EXPECT_FALSE(own.picOrder[0].AcceptsDrop(source)) << "a drop on its own row changes nothing";
    EXPECT_TRUE(own.picOrder[1].AcceptsDrop(source));
    EXPECT_FALSE(own.cmdAttB[0].AcceptsDrop(source));
    EXPECT_TRUE(own.cmdAttB[2].AcceptsDrop(source));
    EXPECT_FALSE(other.picOrder[1].AcceptsDrop(source));
    EXPECT_FALSE(other.cmdAttB[2].AcceptsDrop(source));
    EXPECT_FALSE(own.picOrder[1].AcceptsDrop(own.picOrder[0])) << "no attribute at all";
  }
}

}  // namespace
}  // namespace Tarnwise
