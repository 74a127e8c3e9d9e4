// What is seen while A or B is dragged: its icon, and what the pointer says of a drop.
#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(DragIcons, NameTheAlternativeInTheHostsFolder) {
  TradeOffStep step(Ward());
  PictureBox& a = step.Form->Chart.shpPCA;
  step.Screen->Drag.Begin(a);
  step.Screen->Drag.Over(step.Form->Chart.picPCGraph, 20.0F, 20.0F);
  EXPECT_EQ(a.DragIcon(), "C:/KESTA\\adrag.ico");
  step.Screen->Drag.Over(step.Form->Chart.picTradeOffsRange, 20.0F, 20.0F);
  EXPECT_EQ(a.DragIcon(), "C:/KESTA\\adrag.ico") << "where the drop counts too";
  step.Screen->Drag.OverNothing();
  EXPECT_NE(a.DragIcon(), "C:/KESTA\\adrag.ico") << "left";
  step.Screen->Drag.Cancel();
  PictureBox& b = step.Form->Chart.shpPCB;
  step.Screen->Drag.Begin(b);
  step.Screen->Drag.Over(a, 20.0F, 20.0F);
  EXPECT_EQ(b.DragIcon(), "C:/KESTA\\bdrag.ico");
  step.Screen->Drag.Cancel();
}

TEST(DragIcons, ShowWhichOneIsDraggedOutsideTheChartToo) {
  TradeOffStep step(Ward());
  DragSession& drag = step.Screen->Drag;
  for (const bool a : {true, false}) {
    PictureBox& mark = a ? step.Form->Chart.shpPCA : step.Form->Chart.shpPCB;
    mark.DragIcon = "";
    drag.Begin(mark);
    EXPECT_EQ(drag.Icon(), a ? "drag.A" : "drag.B") << "before it has been over the chart";
    drag.Over(step.Form->Chart.picTradeOffsRange, 20.0F, 20.0F);
    const String inside = a ? "C:/KESTA\\adrag.ico" : "C:/KESTA\\bdrag.ico";
    EXPECT_EQ(drag.Icon(), inside);
    drag.OverNothing();
    EXPECT_EQ(mark.DragIcon(), "") << "the rule's value stays as it is";
    EXPECT_EQ(drag.Icon(), inside);
    drag.Cancel();
  }
}

TEST(DragPointer, SaysThatThePlotAndTheMarksTakeADrop) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  DragSession& drag = step.Screen->Drag;
  drag.Begin(step.Form->Chart.shpPCA);
  const auto taken = [&drag](Control& target) {
    drag.Over(target, 20.0F, 20.0F);
    return drag.WouldBeTaken();
  };
  EXPECT_TRUE(taken(step.Form->Chart.picTradeOffsRange));
  EXPECT_TRUE(taken(step.Form->Chart.shpPCA));
  EXPECT_TRUE(taken(step.Form->Chart.shpPCB));
  EXPECT_FALSE(taken(step.Form->Chart.picPCGraph)) << "beside the plot it beeps";
  drag.OverNothing();
  EXPECT_FALSE(drag.WouldBeTaken());
  drag.Cancel();
}

}  // namespace
}  // namespace Tarnwise
