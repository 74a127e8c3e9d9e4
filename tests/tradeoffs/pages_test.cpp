// The results page, and the buttons of the step.
#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(ResultsPage, IsTitledAndFilledAndLeavesFinishOpen) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.mPage, 2);
  EXPECT_EQ(f.Caption(), "Tarnwise: Results of the value judgments");
  EXPECT_TRUE(f.cmdBack.Enabled);
  EXPECT_EQ(step.Allowed(), "Enter Finish ");
  EXPECT_GT(f.picTabs[1].Order(), f.picTabs[0].Order());
  EXPECT_EQ(f.Results.gridBRJ.Rows(), 6);
  EXPECT_EQ(f.Results.gridCRJ.Rows(), 4);
  EXPECT_EQ(f.Results.gridBRJ.TextMatrix[1][4], "1.20,     1.20");
}

TEST(ResultsPage, BackLeadsToTheJudgmentsAndClosesFinishUntilNext) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  step.Click("cmdBack");
  frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.mPage, 1);
  EXPECT_EQ(f.Caption(), "Tarnwise: Give your preference between the two selected criteria");
  EXPECT_EQ(step.Allowed(), "Enter Next ");
  EXPECT_GT(f.picTabs[0].Order(), f.picTabs[1].Order());
  step.Click("cmdNext");
  EXPECT_TRUE(f.cmdFinish.Enabled);
}

TEST(ResultsPage, IsFilledAnewAfterAnotherJudgment) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  step.Click("cmdBack");
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  step.Click("cmdEnter");
  step.Click("cmdNext");
  EXPECT_EQ(step.Form->Results.gridBRJ.TextMatrix[1][4], "2.00,     2.00");
}

TEST(ResultsPage, ItsTabsBringTheGridsForward) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  ResultsControls& results = step.Form->Results;
  EXPECT_GT(results.gridBRJ.Order(), results.gridCRJ.Order());
  Input::SelectRow(results.tsWeightRatios, 2);
  EXPECT_GT(results.gridCRJ.Order(), results.gridBRJ.Order());
  Input::SelectRow(results.tsWeightRatios, 1);
  EXPECT_GT(results.gridBRJ.Order(), results.gridCRJ.Order());
}

TEST(ResultsPage, KeepsTheTabThatWasChosenOnAnEarlierVisit) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  ResultsControls& results = step.Form->Results;
  step.Click("cmdNext");
  Input::SelectRow(results.tsWeightRatios, 2);
  step.Click("cmdBack");
  step.Click("cmdNext");
  EXPECT_EQ(results.tsWeightRatios.SelectedItem(), 2);
  EXPECT_GT(results.gridCRJ.Order(), results.gridBRJ.Order());
}

TEST(ToolTabs, BringTheirFrameForward) {
  TradeOffStep step(Ward());
  const Frame& differences = step.Form->Scores.framePCNumericalC;
  const Frame& uncertainty = step.Form->Uncertainty.frameJdgUnctn;
  EXPECT_GT(differences.Order(), uncertainty.Order());
  Input::SelectRow(step.Form->tbsTradeOffs, 2);
  EXPECT_GT(uncertainty.Order(), differences.Order());
  Input::SelectRow(step.Form->tbsTradeOffs, 1);
  EXPECT_GT(differences.Order(), uncertainty.Order());
}

TEST(BackFromTheJudgments, HidesTheFormBeforeItTellsSo) {
  TradeOffStep step(Ward());
  step.Form->UnloadTRNTradeOffsB = [&step] { step.Notes.push_back("back"); };
  step.TakeNotes();
  step.Click("cmdBack");
  EXPECT_EQ(step.TakeNotes(), (Lines{"hide frmTradeOffsB", "back"}));
}

TEST(CancelOfTradeOffs, GivesTheFileBackWithoutWeights) {
  TradeOffStep step(Ward());
  step.Form->UnloadTarnwise = [&step](Integer index, Boolean done) {
    step.Notes.push_back("unload " + std::to_string(index) + (done ? " done" : ""));
  };
  step.TakeNotes();
  step.Click("cmdCancel");
  step.Close();
  EXPECT_EQ(step.TakeNotes(), (Lines{"unload 3", "unload 3"}));
}

TEST(HelpOfTradeOffs, IsThePageOfAllSteps) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Click("cmdTarnwiseHelp");
  EXPECT_EQ(step.TakeNotes(), (Lines{"help C:/KESTA\\KESTA.HLP 1 4005025"}));
}

TEST(PrintOfTradeOffs, LeavesTheFrameAtItsPlaceAndThePlotBlack) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Click("cmdTarnwisePrint");
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(Place(step.Form->Scores.framePCNumericalC), "3855,2700");
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.BackColor(), 0U);
}

}  // namespace
}  // namespace Tarnwise
