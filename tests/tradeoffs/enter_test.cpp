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
  EXPECT_EQ(step.Record(0).AX, 60.0F);
  EXPECT_EQ(step.Record(0).BY, 80.0F);
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{2.0, 2.0, 2.0}));
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[0].Text, " ¤ Att 0");
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[2].Text, "Att 2");
  EXPECT_FALSE(step.EnterAllowed());
  EXPECT_TRUE(step.Form->cmdReStart.Enabled);
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
  EXPECT_FALSE(step.Form->cmdFinish.Enabled);
}

TEST(EnteredTradeOff, MarksEveryAttributeOfTheRank) {
  TradeOffStep step(Ward());
  step.Choose(2);
  step.Click("cmdEnter");
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[2].Text, " ¤ Att 2");
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[3].Text, " ¤ Att 3");
}

TEST(EnteredTradeOff, MarksTheNameAsItIsStored) {
  WizardData data = Ward();
  data.AttributeList.AttName[0] = "  Beds ";
  TradeOffStep step(data);
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[0].Text, "Beds");
  step.Click("cmdEnter");
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[0].Text, " ¤   Beds ");
}

TEST(EnteredTradeOff, TheLastOneAllowsNextAndFinish) {
  TradeOffStep step(Ward());
  step.Click("cmdEnter");
  step.Choose(2);
  step.Click("cmdEnter");
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
  step.Choose(5);
  step.Click("cmdEnter");
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
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
  EXPECT_EQ(step.Record(6).AX, 60.0F);
  EXPECT_EQ(step.Record(1).AX, static_cast<Single>((1.3 * 100.0) / 3.0));
  EXPECT_EQ(step.Data.WeightDone.Items(), done);
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_FALSE(step.Form->cmdReStart.Enabled);
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
  EXPECT_FALSE(step.Form->cmdFinish.Enabled);
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[6].Text, "Att 6");
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
  EXPECT_EQ(step.Ratio(), "Infinity!");
  EXPECT_EQ(step.Form->mJudgmentState, kInvalid);
  EXPECT_TRUE(step.EnterAllowed());
  step.Form->Points = PointsAt(12, 34, 56, 78);
  step.TakeNotes();
  step.Click("cmdEnter");
  const Lines notes = step.TakeNotes();
  EXPECT_EQ(Only(notes, "error"), (Lines{"error 13 in frmTradeOffsB.cmdEnter_Click"}));
  EXPECT_EQ(notes.front(), "pointer 11");
  EXPECT_EQ(step.Screen->Pointer(), 0);
  EXPECT_EQ(step.Record(0).AX, 12.0F);
  EXPECT_EQ(step.Record(0).BY, 78.0F);
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
