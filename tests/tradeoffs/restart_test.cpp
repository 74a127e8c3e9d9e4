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
  EXPECT_EQ(Scores(step.Record(0)), Scores(suggested));
  EXPECT_EQ(Scores(step.Points()), Scores(suggested));
  EXPECT_EQ(step.Items(), (Lines{"Att 0", "Att 1", "Att 2", "Att 3", " ¤ Att 4", "Att 5", "Att 6", " ¤ Att 7"}));
  EXPECT_EQ(step.Allowed(), "Enter ");
}

TEST(RestartOfAll, EndsUncertaintyAndKeepsTheRatioOfTheReferences) {
  TradeOffStep step(Ward());
  step.Press(step.Form->Uncertainty.tbMovRight, "MovRight");
  step.Form->cmdEnter.Enabled = true;
  step.Click("cmdEnter");
  EXPECT_EQ(step.Record(0).AOrientation, 1);
  step.Data.RefAttWR = 1.75;
  step.Click("cmdReStart");
  const ABPoint& p = step.Record(0);
  EXPECT_EQ(Scores(p), Scores(PointsAt(p.AX, p.AY, p.BX, p.BY)));
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
  EXPECT_EQ(step.Allowed(), "Enter Finish ");
}

TEST(RestartOfAll, ShowsTheFirstTargetWithAllItsTools) {
  TradeOffStep step(Ward());
  step.Click("cmdEnter");
  step.Choose(6);
  EXPECT_FALSE(step.Form->Uncertainty.tbCertain.Enabled);
  step.Click("cmdReStart");
  EXPECT_EQ(step.Target(), "0 against 1, item 1");
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
