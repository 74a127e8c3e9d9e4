#include "TradeOffs.h"

namespace Tarnwise {
namespace {

Lines Captions(const ControlArray<Label>& labels) {
  Lines captions;
  for (int k = 0; k <= 6; ++k) captions.push_back(labels[k].Caption);
  return captions;
}

Lines TicksOf(Double low, Double high) {
  WizardData data = Ward();
  GiveScale(data, 0, low, high);
  TradeOffStep step(data);
  return Captions(step.Form->Chart.labPCX);
}

TEST(ChartScale, IsComputedInSingles) {
  TradeOffStep step(Ward());
  EXPECT_EQ(Axes(step.Form->Plot.Scale), "0 100 by 16.666666, 0 100 by 16.666666");
  EXPECT_EQ(Captions(step.Form->Chart.labPCX), (Lines{"0", "16", "33", "50", "66", "83", "100"}));
  EXPECT_EQ(Captions(step.Form->Chart.labPCY), (Lines{"0", "16", "33", "50", "66", "83", "100"}));
}

TEST(ChartScale, TakesEachAxisFromItsAttribute) {
  WizardData data = Ward();
  GiveScale(data, 1, 60.0, 120.0);
  TradeOffStep step(data);
  EXPECT_EQ(Captions(step.Form->Chart.labPCX), (Lines{"0", "16", "33", "50", "66", "83", "100"}));
  EXPECT_EQ(Captions(step.Form->Chart.labPCY), (Lines{"60", "70", "80", "90", "100", "110", "120"}));
}

TEST(ChartTicks, ANegativeOriginReadsZero) {
  EXPECT_EQ(TicksOf(-60.0, 0.0), (Lines{"0", "-50", "-40", "-30", "-20", "-10", "0"}));
  EXPECT_EQ(TicksOf(-5.0, 5.0), (Lines{"0", "-4", "-2", "0", "1", "3", "5"}));
}

TEST(ChartTicks, APositiveOriginReadsItsFloor) {
  EXPECT_EQ(TicksOf(12.7, 72.7), (Lines{"12", "22", "32", "42", "52", "62", "72"}));
  EXPECT_EQ(TicksOf(0.9, 60.9)[0], "0");
}

TEST(ChartTicks, ANarrowRangeRepeatsLabels) {
  EXPECT_EQ(TicksOf(0.0, 3.0), (Lines{"0", "0", "1", "1", "2", "2", "3"}));
}

TEST(ChartTicks, AFractionBelowZeroGoesDown) {
  EXPECT_EQ(TicksOf(-60.5, -0.5), (Lines{"0", "-51", "-41", "-31", "-21", "-11", "-1"}));
}

TEST(ChartTitles, AreTheTrimmedNamesAndTheTipsTheDescriptions) {
  WizardData data = Ward();
  data.AttributeList.AttName[0] = "  Beds ";
  data.AttributeList.AttName[1] = "Doctors  ";
  data.AttributeList.AttDescription[0] = " beds in use ";
  TradeOffStep step(data);
  const AlternativesControls& chart = step.Form->Chart;
  EXPECT_EQ(chart.lblTradeOffFirstAtt.Caption(), "Beds");
  EXPECT_EQ(chart.lblTradeOffSecondAtt.Caption(), "Doctors");
  EXPECT_EQ(chart.imgTargetAtt.ToolTipText(), " beds in use ");
  EXPECT_EQ(chart.imgRefAtt.ToolTipText(), "About Att 1");
}

TEST(ChartTitles, OfTheReferencePairAreCostAcrossAndBenefitUpward) {
  TradeOffStep step(Ward());
  step.Choose(1);
  EXPECT_EQ(step.Form->Chart.lblTradeOffFirstAtt.Caption(), "Att 6");
  EXPECT_EQ(step.Form->Chart.lblTradeOffSecondAtt.Caption(), "Att 1");
  EXPECT_EQ(step.Form->Chart.imgTargetAtt.ToolTipText(), "About Att 6");
}

TEST(ChartPictures, TellThePairsApart) {
  TradeOffStep step(Ward());
  const AlternativesControls& chart = step.Form->Chart;
  const auto shown = [&chart] { return chart.imgTargetAtt.Picture() + "|" + chart.imgRefAtt.Picture(); };
  const String benefit = shown();
  step.Choose(5);
  const String cost = shown();
  step.Choose(6);
  const String both = shown();
  const auto marks = [&chart](int target, int reference) {
    return chart.imgMarks[target].Picture() + "|" + chart.imgMarks[reference].Picture();
  };
  EXPECT_EQ(benefit, marks(0, 1));
  EXPECT_EQ(cost, marks(2, 3));
  EXPECT_EQ(both, marks(3, 1));
  EXPECT_NE(marks(0, 1), marks(2, 1));
  EXPECT_NE(marks(2, 1), marks(3, 1));
}

struct Corner {
  bool Top;
  bool Left;
};

void ExpectCorner(const TradeOffStep& step, const Shape& mark, const Label& caption, Corner corner) {
  const PictureBox& plot = step.Form->Chart.picTradeOffsRange;
  const PictureBox& graph = step.Form->Chart.picPCGraph;
  EXPECT_EQ(XY(mark.Left + mark.Width / 2.0F, mark.Top + mark.Height / 2.0F),
            XY(corner.Left ? plot.Left() : plot.Left + plot.Width, corner.Top ? plot.Top() : plot.Top + plot.Height))
      << mark.Name;
  const bool worstBottomLeft = caption.Name == "labPCLowest" && !corner.Top && corner.Left;
  const Single atLeft = worstBottomLeft ? 0.0F : 10.0F;
  EXPECT_EQ(XY(caption.Left, caption.Top), XY(corner.Left ? atLeft : graph.Width - caption.Width - 120.0F,
                                              corner.Top ? 0.0F : graph.Height - caption.Height - 90.0F))
      << caption.Name;
}

void ExpectCorners(const TradeOffStep& step, Corner best, Corner worst) {
  const AlternativesControls& chart = step.Form->Chart;
  ExpectCorner(step, chart.shpPCHighest, chart.labPCHighest, best);
  ExpectCorner(step, chart.shpPCLowest, chart.labPCLowest, worst);
  EXPECT_EQ(chart.labPCHighest.Caption(), "BEST");
  EXPECT_EQ(chart.labPCLowest.Caption(), "WORST");
}

TEST(ChartCorners, OfBenefitsAreBestTopRightAndWorstBottomLeft) {
  ExpectCorners(TradeOffStep(Ward()), {true, false}, {false, true});
}

TEST(ChartCorners, OfCostsAreBestBottomLeftAndWorstTopRight) {
  TradeOffStep step(Ward());
  step.Choose(5);
  ExpectCorners(step, {false, true}, {true, false});
}

TEST(ChartCorners, OfTheReferencePairAreBestTopLeftAndWorstBottomRight) {
  TradeOffStep step(Ward());
  step.Choose(6);
  ExpectCorners(step, {true, true}, {false, false});
}

TEST(ChartCorners, ComeBackWithTheNextPair) {
  TradeOffStep step(Ward());
  step.Choose(6);
  step.Choose(5);
  step.Choose(0);
  ExpectCorners(step, {true, false}, {false, true});
}

TEST(ChartMarks, StandWithTheirCentreOnTheirScores) {
  TradeOffStep step(Ward());
  step.Form->Points = PointsAt(25, 50, 75, 10);
  step.Fill(step.Form->Scores.txtTradeOffAFirstScore, "25");
  step.Fill(step.Form->Scores.txtTradeOffASecondScore, "50");
  step.Fill(step.Form->Scores.txtTradeOffBFirstScore, "75");
  step.Fill(step.Form->Scores.txtTradeOffBSecondScore, "10");
  step.Return();
  const AlternativesControls& chart = step.Form->Chart;
  // 42 twips a score, 75 for half a mark.
  EXPECT_EQ(Place(chart.shpPCA) + " " + Place(chart.shpPCB), "975,2025 3075,3705");
}

TEST(ChartMarks, AtTheLowestAndHighestScoreStandHalfOutsideOfThePlot) {
  TradeOffStep step(Ward());
  step.Fill(step.Form->Scores.txtTradeOffAFirstScore, "0");
  step.Fill(step.Form->Scores.txtTradeOffASecondScore, "100");
  step.Return();
  EXPECT_EQ(Place(step.Form->Chart.shpPCA), "-75,-75");
}

TEST(ChartMarks, AreShownInFrontAndTaggedWithTheirPoint) {
  TradeOffStep step(Ward());
  const AlternativesControls& chart = step.Form->Chart;
  for (const PictureBox* mark : {&chart.shpPCA, &chart.shpPCB}) EXPECT_TRUE(mark->Visible);
  EXPECT_GT(chart.shpPCB.Order(), chart.shpPCA.Order());
  EXPECT_EQ(chart.shpPCA.Tag(), "PointA");
  EXPECT_EQ(chart.shpPCB.Tag(), "PointB");
}

// Drops.

TEST(DropInThePlot, MovesTheMarkAndTakesBothScores) {
  TradeOffStep step(Ward());
  step.DropInPlot(step.Form->Chart.shpPCA, 1000.0F, 700.0F);
  EXPECT_EQ(Place(step.Form->Chart.shpPCA), "925,625");
  // 1000 / 42 and 100 - 700 / 42 at four decimals.
  const ABPoint& p = step.Points();
  EXPECT_EQ(Scores(p), "23.8095 83.3333 | " + XY(p.BX, p.BY));
  EXPECT_TRUE(Shown(step.Form->Scores).starts_with("23.81 83.33 | ")) << Shown(step.Form->Scores);
}

TEST(DropInThePlot, OfBTakesBsScores) {
  TradeOffStep step(Ward());
  step.MoveA(60.25F, 40);
  step.DropInPlot(step.Form->Chart.shpPCB, 2100.0F, 1050.0F);
  EXPECT_EQ(Scores(step.Points()), "60.25 40 | 50 75");
  EXPECT_EQ(Shown(step.Form->Scores), "60.25 40 | 50 75 | 10.25 -35") << "no trailing point";
}

TEST(DropInThePlot, CountsOnItsEdges) {
  TradeOffStep step(Ward());
  step.DropInPlot(step.Form->Chart.shpPCA, 0.0F, 4200.0F);
  EXPECT_EQ(XY(step.Points().AX, step.Points().AY), "0 0");
  step.DropInPlot(step.Form->Chart.shpPCA, 4200.0F, 0.0F);
  EXPECT_EQ(XY(step.Points().AX, step.Points().AY), "100 100");
}

TEST(DropInThePlot, BesideItsEdgesIsNone) {
  TradeOffStep step(Ward());
  const ABPoint before = step.Points();
  const Single left = step.Form->Chart.shpPCA.Left;
  const std::vector<std::pair<Single, Single>> places = {{-1, 100}, {100, -1}, {4201, 100}, {100, 4201}};
  for (const auto& [x, y] : places) step.DropInPlot(step.Form->Chart.shpPCA, x, y);
  EXPECT_EQ(Scores(step.Points()), Scores(before));
  EXPECT_EQ(step.Form->Chart.shpPCA.Left(), left);
}

TEST(DropInThePlot, OfBEndsTheUncertaintyOfA) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.Press(step.Form->Uncertainty.tbMovRight, "MovRight");
  EXPECT_EQ(step.Points().AOrientation, 1);
  EXPECT_FALSE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
  step.MoveB(40, 60);
  EXPECT_EQ(Scores(step.Points()), "60 40 | 40 60");
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(DropInThePlot, DecidesTheState) {
  TradeOffStep step(Ward());
  step.MoveB(40, 80);
  step.MoveA(60, 40);
  EXPECT_EQ(step.Ratio(), "2.00/1,    2.00/1");
}

TEST(DropInThePlot, ChangesNoRecordUntilEnter) {
  TradeOffStep step(Ward());
  const ABPoint before = step.Record(0);
  step.MoveA(60, 40);
  EXPECT_EQ(Scores(step.Record(0)), Scores(before));
}

TEST(DropBesideThePlot, BeepsAndDoesNothingElse) {
  TradeOffStep step(Ward());
  const ABPoint before = step.Points();
  step.TakeNotes();
  step.Screen->Drag.Begin(step.Form->Chart.shpPCA);
  step.Screen->Drag.Over(step.Form->Chart.picPCGraph, 20.0F, 20.0F);
  step.Screen->Drag.Drop();
  EXPECT_EQ(step.TakeNotes(), Lines{"beep"});
  EXPECT_EQ(Scores(step.Points()), Scores(before));
}

TEST(DropBesideThePlot, InThePlotsRectangleDoesNotBeep) {
  TradeOffStep step(Ward());
  const AlternativesControls& chart = step.Form->Chart;
  step.TakeNotes();
  const PictureBox& plot = chart.picTradeOffsRange;
  const std::vector<std::pair<Single, Single>> inside = {
      {plot.Left, plot.Top}, {plot.Left + plot.Width, plot.Top + plot.Height}, {plot.Left + 10.0F, plot.Top + 10.0F}};
  for (const auto& [x, y] : inside) {
    step.Screen->Drag.Begin(step.Form->Chart.shpPCA);
    step.Screen->Drag.Over(step.Form->Chart.picPCGraph, x, y);
    step.Screen->Drag.Drop();
  }
  EXPECT_TRUE(step.TakeNotes().empty());
}

void DropOn(TradeOffStep& step, PictureBox& target, PictureBox& source, Single x, Single y) {
  step.Screen->Drag.Begin(source);
  step.Screen->Drag.Over(target, x, y);
  step.Screen->Drag.Drop();
}

TEST(DropOnAMark, OfItselfMovesItByWhereItWasHit) {
  TradeOffStep step(Ward());
  step.MoveA(50, 50);
  PictureBox& a = step.Form->Chart.shpPCA;
  DropOn(step, a, a, 117.0F, 33.0F);
  // 42 to the right of the centre and 42 above it: one score each.
  EXPECT_EQ(Place(a), "2067,1983");
  EXPECT_EQ(XY(step.Points().AX, step.Points().AY), "51 51");
}

TEST(DropOnAMark, OfAShowsADecimalAtLeast) {
  TradeOffStep step(Ward());
  step.MoveA(50, 50);
  DropOn(step, step.Form->Chart.shpPCA, step.Form->Chart.shpPCA, 117.0F, 33.0F);
  EXPECT_EQ(step.Form->Scores.txtTradeOffAFirstScore.Text(), "51.0");
  EXPECT_EQ(step.Form->Scores.txtTradeOffASecondScore.Text(), "51.0");
}

TEST(DropOnAMark, OfBShowsNoDecimalThatIsNone) {
  TradeOffStep step(Ward());
  step.MoveB(50, 50);
  DropOn(step, step.Form->Chart.shpPCB, step.Form->Chart.shpPCB, 117.0F, 33.0F);
  EXPECT_EQ(step.Form->Scores.txtTradeOffBFirstScore.Text(), "51");
  EXPECT_EQ(step.Form->Scores.txtTradeOffBSecondScore.Text(), "51");
}

TEST(DropOnAMark, OfTheOtherOneWritesTheScoresOfTheOneThatWasHitFromThePlaceOfTheOneDragged) {
  TradeOffStep step(Ward());
  step.MoveA(20, 20);
  step.MoveB(80, 60);
  DropOn(step, step.Form->Chart.shpPCB, step.Form->Chart.shpPCA, 75.0F, 75.0F);
  // Hit in the middle: A's own place does not change, and B gets its scores.
  EXPECT_EQ(Place(step.Form->Chart.shpPCA), "765,3285");
  EXPECT_EQ(Scores(step.Points()), "20 20 | 20 20");
  DropOn(step, step.Form->Chart.shpPCA, step.Form->Chart.shpPCB, 117.0F, 75.0F);
  EXPECT_EQ(Scores(step.Points()), "81 60 | 20 20");
  EXPECT_EQ(step.Form->Scores.txtTradeOffAFirstScore.Text(), "81.0");
}

TEST(DropOnAMark, AtTheEdgeCanLeaveTheScale) {
  TradeOffStep step(Ward());
  step.MoveA(0, 100);
  DropOn(step, step.Form->Chart.shpPCA, step.Form->Chart.shpPCA, 33.0F, 33.0F);
  EXPECT_EQ(XY(step.Points().AX, step.Points().AY), "-1 101");
  EXPECT_EQ(step.Form->Scores.txtTradeOffAFirstScore.Text(), "-1.0");
}

TEST(DropOnAMark, EndsTheUncertaintyToo) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.Press(step.Form->Uncertainty.tbMovUp, "MovUp");
  DropOn(step, step.Form->Chart.shpPCB, step.Form->Chart.shpPCB, 75.0F, 75.0F);
  const ABPoint& p = step.Points();
  EXPECT_EQ(Scores(p), "60 40 | " + XY(p.BX, p.BY));
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

// A scale without length.

TEST(ScaleWithoutLength, IsARuntimeErrorWhereThePairIsShownAndTheWizardLives) {
  WizardData data = Ward();
  data.AttValueData.ScoreMin[5] = 50.0;
  data.AttValueData.ScoreMax[5] = 50.0;
  TradeOffStep step(data);
  step.TakeNotes();
  step.Choose(5);
  EXPECT_EQ(Only(step.TakeNotes(), "error"), (Lines{"error 11 in frmTradeOffsB.imgcmbTargetAtt_Click"}));
  EXPECT_EQ(step.Screen->Pointer(), 0);
  step.Choose(2);
  EXPECT_TRUE(step.TakeNotes().back() == "pointer 0");
  EXPECT_EQ(step.Form->mTargetAtt, 2);
  step.MoveA(60, 40);
  step.MoveB(40, 50);
  EXPECT_EQ(step.Ratio(), "0.50/1,    0.50/1");
}

TEST(ScaleWithoutLength, OfTheReferenceOfAGroupIsOneToo) {
  WizardData data = Ward();
  data.AttValueData.ScoreMin[6] = 50.0;
  data.AttValueData.ScoreMax[6] = 50.0;
  TradeOffStep step(data);
  step.TakeNotes();
  for (const int att : {5, 6}) {
    step.Choose(att);
    EXPECT_EQ(Only(step.TakeNotes(), "error"), (Lines{"error 11 in frmTradeOffsB.imgcmbTargetAtt_Click"}));
  }
}

TEST(ScaleWithoutLength, OfTheFirstTargetEndsTheOpening) {
  WizardData data = Ward();
  data.AttValueData.ScoreMin[0] = 50.0;
  data.AttValueData.ScoreMax[0] = 50.0;
  EXPECT_EQ(ErrorNumber([&] { return (TradeOffStep(data), 0); }), 11);
}

}  // namespace
}  // namespace Tarnwise
