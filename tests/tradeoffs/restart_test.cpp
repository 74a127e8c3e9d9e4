#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(RestartOfAll, SetsTheDefaultsAndFreshPoints) {
  TradeOffStep step(Ward());
  const ABPoint suggested = step.Record(0);
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  step.Click("cmdEnter");
  step.Data.ABPoints1[0] = PointsAt(1, 2, 3, 4);
  step.Click("cmdReStart");
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{1.2, 1.2, 1.2}));
  EXPECT_FALSE(step.Data.WeightDone[0]);
  EXPECT_EQ(step.Record(0).AX, suggested.AX);
  EXPECT_EQ(step.Record(0).BY, suggested.BY);
  EXPECT_EQ(step.Points().AX, suggested.AX);
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items[0].Text, "Att 0");
  EXPECT_EQ(step.Form->imgcmbTargetAtt.Items.size(), 8U);
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_FALSE(step.Form->cmdReStart.Enabled);
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
}

TEST(RestartOfAll, EndsUncertaintyAndKeepsTheRatioOfTheReferences) {
  TradeOffStep step(Ward());
  step.Press(step.Form->Uncertainty.tbMovRight, "MovRight");
  step.Form->cmdEnter.Enabled = true;
  step.Click("cmdEnter");
  EXPECT_EQ(step.Record(0).AOrientation, 1);
  step.Data.RefAttWR = 1.75;
  step.Click("cmdReStart");
  EXPECT_EQ(step.Record(0).AOrientation, 0);
  EXPECT_EQ(step.Record(0).ALX, step.Record(0).AX);
  EXPECT_EQ(step.Record(0).AUX, step.Record(0).AX);
  EXPECT_EQ(std::get<Double>(step.Data.RefAttWR), 1.75);
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(RestartOfAll, LeavesFinishAsItWas) {
  TradeOffStep step(Ward());
  for (const int att : {0, 2, 5}) {
    step.Choose(att);
    step.Click("cmdEnter");
  }
  step.Click("cmdReStart");
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
}

TEST(RestartOfAll, ShowsTheFirstTargetWithAllItsTools) {
  TradeOffStep step(Ward());
  step.Click("cmdEnter");
  step.Choose(6);
  EXPECT_FALSE(step.Form->Uncertainty.tbCertain.Enabled);
  step.Click("cmdReStart");
  EXPECT_EQ(step.Form->mTargetAtt, 0);
  EXPECT_EQ(step.Form->mRefAtt, 1);
  EXPECT_EQ(step.Form->imgcmbTargetAtt.SelectedItem, 1);
  UncertaintyControls& u = step.Form->Uncertainty;
  for (Toolbar* toolbar : {&u.tbCertain, &u.tbMovDown, &u.tbMovUp, &u.tbMovLeft, &u.tbMovRight}) {
    EXPECT_TRUE(toolbar->Enabled) << toolbar->Name;
  }
}

TEST(RestartOfAll, CountsAsShowingATarget) {
  TradeOffStep step(Ward());
  step.Click("cmdEnter");
  step.Focus(step.Form->Scores.txtTradeOffAFirstScore);
  step.Press(step.Form->Scores.tbScoreChanger[0], "Up");
  EXPECT_EQ(step.Form->Entry.mScoresDirty, -1);
  step.Click("cmdReStart");
  EXPECT_EQ(step.Form->Entry.mScoresDirty, 0);
}

}  // namespace
}  // namespace Tarnwise
