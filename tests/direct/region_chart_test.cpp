// The chart of the direct step on its controls.
#include "direct/RegionChart.h"
#include "runtime/Text.h"
#include "support/PartForm.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

String Text(const HandlePoints& at) {
  return NumberText(at.X0) + "," + NumberText(at.Y0) + " " + NumberText(at.X1) + "," + NumberText(at.Y1);
}

struct ChartForm : PartForm {
  explicit ChartForm(std::shared_ptr<Platform> screen) : PartForm(std::move(screen)) {
    Chart.IsOneRay = [this] { return OneRay; };
    Chart.HandleMoved = [this](const HandlePoints& at) { Told.push_back(Text(at)); };
    Chart.Show({100.0F, 50.0F, 150.0F, 75.0F});
  }

  // "100,50 150,75 | rays to 100,50 150,75 | wedge 0,250,100,50,150,75": the handles' centres, and what is drawn.
  String Shown() {
    String text = Text(Chart.HandleCentres()) + " | rays to";
    for (const int i : {0, 1}) {
      text += " " + NumberText(Controls.BorderL[i].X2()) + "," + NumberText(Controls.BorderL[i].Y2());
    }
    for (const Drawn& drawn : Controls.picTradeOffsRange.Drawing) {
      String corners;
      for (const Single length : drawn.Points) corners += (corners.empty() ? "" : ",") + NumberText(length);
      text += " | wedge " + corners;
    }
    return text;
  }

  ChartControls Controls{*this, picStage};
  RegionChart Chart{Controls};
  bool OneRay = false;
  Lines Told;
};

using OneChart = PartOnScreen<ChartForm>;

TEST(RegionChart, ShowsItsHandlesRaysAndWedgeAndTellsNobody) {
  OneChart o;
  EXPECT_EQ(o.Form->Shown(), "100,50 150,75 | rays to 100,50 150,75 | wedge 0,250,100,50,150,75");
  EXPECT_TRUE(o.Form->Told.empty());
}

TEST(RegionChart, AHandleFollowsThePointerAndIsTold) {
  OneChart o;
  o.DragOver(o.Form->Controls.picHandle[1], o.Form->Controls.picTradeOffsRange, 163.0F, 88.0F);
  EXPECT_EQ(o.Form->Shown(), "100,50 163,88 | rays to 100,50 163,88 | wedge 0,250,100,50,163,88");
  EXPECT_EQ(o.Form->Told.back(), "100,50 163,88");
}

TEST(RegionChart, BothHandlesMoveAsOneWhereThereIsOneRay) {
  OneChart o;
  o.Form->OneRay = true;
  o.DragOver(o.Form->Controls.picHandle[0], o.Form->Controls.picTradeOffsRange, 71.0F, 93.0F);
  EXPECT_EQ(o.Form->Shown(), "71,93 71,93 | rays to 71,93 71,93 | wedge 0,250,71,93,71,93");
  EXPECT_EQ(o.Form->Told.back(), "71,93 71,93");
}

TEST(RegionChart, AHandleThatLeavesThePlotStaysWhereItWas) {
  OneChart o;
  const String before = o.Form->Shown();
  o.Form->Controls.picTradeOffsRange.DragOver(o.Form->Controls.picHandle[0], 5.0F, 6.0F, DragState::Leave);
  EXPECT_EQ(o.Form->Shown(), before);
  EXPECT_TRUE(o.Form->Told.empty());
}

}  // namespace
}  // namespace Tarnwise
