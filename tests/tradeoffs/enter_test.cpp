// Enter.
#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(EnteredTradeOff, WritesTheRecordCommitsAndMarksTheName) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  step.TakeNotes();
  step.Click("cmdEnter");
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(Scores(step.Record(0)), "60 40 | 40 80");
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{2.0, 2.0, 2.0}));
  EXPECT_EQ(step.Items(), (Lines{" ¤ Att 0", "Att 1", "Att 2", "Att 3", " ¤ Att 4", "Att 5", "Att 6", " ¤ Att 7"}));
  EXPECT_EQ(step.Allowed(), "ReStart ");
}

TEST(EnteredTradeOff, MarksEveryAttributeOfTheRank) {
  TradeOffStep step(Ward());
  step.Choose(2);
  step.Click("cmdEnter");
  EXPECT_EQ(step.Items(), (Lines{"Att 0", "Att 1", " ¤ Att 2", " ¤ Att 3", " ¤ Att 4", "Att 5", "Att 6", " ¤ Att 7"}));
}

TEST(EnteredTradeOff, MarksTheNameAsItIsStored) {
  WizardData data = Ward();
  data.AttributeList.AttName[0] = "  Beds ";
  TradeOffStep step(data);
  EXPECT_EQ(step.Items()[0], "Beds");
  step.Click("cmdEnter");
  EXPECT_EQ(step.Items()[0], " ¤   Beds ");
}

TEST(EnteredTradeOff, TheLastOneAllowsNextAndFinish) {
  TradeOffStep step(Ward());
  step.Click("cmdEnter");
  step.Choose(2);
  step.Click("cmdEnter");
  EXPECT_EQ(step.Allowed(), "ReStart ");
  step.Choose(5);
  step.Click("cmdEnter");
  EXPECT_EQ(step.Allowed(), "ReStart Next Finish ");
}

TEST(EnteredTradeOff, MayBeMovedAndEnteredAgain) {
  TradeOffStep step(Ward());
  step.Click("cmdEnter");
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  EXPECT_TRUE(step.EnterAllowed());
  step.Click("cmdEnter");
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{2.0, 2.0, 2.0}));
}

TEST(EnteredReferencePair, ChangesItsRatioAndItsRecordAndNothingElse) {
  TradeOffStep step(Ward());
  step.Choose(6);
  step.MoveA(60, 70);
  step.MoveB(40, 30);
  const std::vector<bool> done = step.Data.WeightDone.Items();
  step.Click("cmdEnter");
  EXPECT_EQ(std::get<Double>(step.Data.RefAttWR), 2.0);
  EXPECT_EQ(Scores(step.Record(6)), "60 70 | 40 30");
  EXPECT_EQ(step.Record(1).AX, static_cast<Single>((1.3 * 100.0) / 3.0));
  EXPECT_EQ(step.Data.WeightDone.Items(), done);
  EXPECT_EQ(step.Allowed(), "Enter ");
  EXPECT_EQ(step.Items()[6], "Att 6");
}

TEST(EnteredReferencePair, IsNoConditionOfFinishing) {
  TradeOffStep step(Ward());
  for (const int att : {0, 2, 5}) {
    step.Choose(att);
    step.Click("cmdEnter");
  }
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
  EXPECT_EQ(std::get<Integer>(step.Data.RefAttWR), 1);
}

// A target whose first attribute is worth the same everywhere has no ratio, but a just shown target can be entered.
WizardData FlatWard() {
  WizardData data = Ward();
  GiveCurve(data, 0, {0, 100}, {0.5, 0.5});
  return data;
}

TEST(EnteredInfinity, IsATypeMismatchWithTheRecordWrittenAndThePointerBack) {
  TradeOffStep step(FlatWard());
  EXPECT_EQ(step.Verdict(), "Infinity! invalid");
  EXPECT_TRUE(step.EnterAllowed());
  step.Form->Points = PointsAt(12, 34, 56, 78);
  step.TakeNotes();
  step.Click("cmdEnter");
  const Lines notes = step.TakeNotes();
  EXPECT_EQ(Only(notes, "error"), (Lines{"error 13 in frmTradeOffsB.cmdEnter_Click"}));
  EXPECT_EQ(notes.front(), "pointer 11");
  EXPECT_EQ(step.Screen->Pointer(), 0);
  EXPECT_EQ(Scores(step.Record(0)), "12 34 | 56 78");
  EXPECT_FALSE(step.Data.WeightDone[0]);
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{1.2, 1.2, 1.2}));
}

TEST(EnteredInfinity, OfTheReferencePairIsOneToo) {
  WizardData data = Ward();
  GiveCurve(data, 6, {0, 100}, {0.5, 0.5});
  TradeOffStep step(data);
  step.Choose(6);
  EXPECT_EQ(step.Ratio(), "Infinity!");
  EXPECT_TRUE(step.EnterAllowed());
  step.TakeNotes();
  step.Click("cmdEnter");
  EXPECT_EQ(Only(step.TakeNotes(), "error"), (Lines{"error 13 in frmTradeOffsB.cmdEnter_Click"}));
  EXPECT_EQ(step.Screen->Pointer(), 0);
  EXPECT_EQ(std::get<Integer>(step.Data.RefAttWR), 1);
}

}  // namespace
}  // namespace Tarnwise
