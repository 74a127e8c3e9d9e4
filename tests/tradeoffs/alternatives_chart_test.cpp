// The chart of the two alternatives on its controls.
#include "TradeOffs.h"
#include "runtime/Text.h"
#include "support/PartForm.h"

namespace Tarnwise {
namespace {

struct PlotForm : PartForm {
  PlotForm(std::shared_ptr<Platform> screen, const WizardData& model) : PartForm(std::move(screen)), Data(model) {
    Chart.Dropped = [this](const DroppedMark& at) {
      Told.push_back(String(at.ForA ? "A " : "B ") + NumberText(at.XScore) + "," + NumberText(at.YScore));
    };
    Chart.Build(0, 1);
  }

  WizardData Data;
  AlternativesControls Controls{*this, picStage};
  AlternativesChart Chart{Controls, Data};
  Lines Told;
};

struct OnePlot : PartOnScreen<PlotForm> {
  OnePlot() : PartOnScreen(Scaled()) {}

  static WizardData Scaled() {
    WizardData data = Ward();
    GiveScale(data, 0, 20.0, 80.0);
    GiveScale(data, 1, 0.0, 300.0);
    return data;
  }

  static String Centre(const PictureBox& mark) {
    return NumberText(mark.Left + mark.Width / 2.0F) + "," + NumberText(mark.Top + mark.Height / 2.0F);
  }
};

TEST(AlternativesChart, SpansTheScoresOfThePairInSixSteps) {
  OnePlot o;
  EXPECT_EQ(Axes(o.Form->Chart.Scale), "20 80 by 10, 0 300 by 50");
  EXPECT_EQ(o.Form->Controls.lblTradeOffFirstAtt.Caption(), "Att 0");
  EXPECT_EQ(o.Form->Controls.lblTradeOffSecondAtt.Caption(), "Att 1");
}

TEST(AlternativesChart, PlacesTheMarksAtTheirScores) {
  OnePlot o;
  o.Form->Chart.PlaceMarks(PointsAt(50.0F, 75.0F, 35.0F, 225.0F));
  EXPECT_EQ(OnePlot::Centre(o.Form->Controls.shpPCA), "2100,3150");
  EXPECT_EQ(OnePlot::Centre(o.Form->Controls.shpPCB), "1050,1050");
}

TEST(AlternativesChart, ADroppedMarkIsToldWithItsScores) {
  OnePlot o;
  o.DragOver(o.Form->Controls.shpPCA, o.Form->Controls.picTradeOffsRange, 2100.0F, 1050.0F);
  o.Screen->Drag.Drop();
  o.DragOver(o.Form->Controls.shpPCB, o.Form->Controls.picTradeOffsRange, 1050.0F, 3150.0F);
  o.Screen->Drag.Drop();
  EXPECT_EQ(o.Form->Told, (Lines{"A 50,225", "B 35,75"}));
}

TEST(AlternativesChart, DrawsALineForAnUncertainAOnlyAndClearsIt) {
  OnePlot o;
  ABPoint points = PointsAt(50.0F, 75.0F, 35.0F, 225.0F);
  o.Form->Chart.DrawUncertaintyLine(points);
  EXPECT_TRUE(o.Form->Controls.picTradeOffsRange.Drawing.empty());
  points.AOrientation = 1;
  points.AUX = 65.0F;
  o.Form->Chart.DrawUncertaintyLine(points);
  ASSERT_EQ(o.Form->Controls.picTradeOffsRange.Drawing.size(), 1U);
  EXPECT_EQ(o.Form->Controls.picTradeOffsRange.Drawing[0].Shape, Drawn::What::Line);
  o.Form->Chart.Clear();
  EXPECT_TRUE(o.Form->Controls.picTradeOffsRange.Drawing.empty());
}

}  // namespace
}  // namespace Tarnwise
