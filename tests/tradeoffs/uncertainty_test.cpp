#include "TradeOffs.h"

namespace Tarnwise {
namespace {

// A at (50, 40), B at (20, 90): ratio 5/3.
struct UncertainStep : TradeOffStep {
  explicit UncertainStep(const WizardData& model = Ward()) : TradeOffStep(model) {
    MoveA(50, 40);
    MoveB(20, 90);
    TakeNotes();
  }

  UncertaintyControls& U() { return Form->Uncertainty; }
  String Tools() { return Shown(U()); }
};

TEST(UncertaintyTools, AllMoveWithoutUncertaintyAndNoStepSizeIsShown) {
  UncertainStep step;
  EXPECT_EQ(step.Tools(), "left right up down |");
}

TEST(UncertaintyTools, AHorizontalMoveLocksTheVerticalOnesAndShowsItsSteps) {
  UncertainStep step;
  step.Press(step.U().tbMovRight, "MovRight");
  EXPECT_EQ(step.Tools(), "left right | across");
}

TEST(UncertaintyTools, AVerticalMoveLocksTheHorizontalOnesAndShowsItsSteps) {
  UncertainStep step;
  step.Press(step.U().tbMovUp, "MovUp");
  EXPECT_EQ(step.Tools(), "up down | upward");
}

TEST(UncertaintyTools, BothListsStandInOnePlace) {
  UncertainStep step;
  EXPECT_EQ(Place(step.U().cmbChangeH), Place(step.U().cmbChangeV));
  EXPECT_EQ(step.U().lblSmallChange.Caption(), "Small change:");
}

TEST(UncertaintyTools, ADropEndsTheUncertaintyButNotTheLock) {
  UncertainStep step;
  step.Press(step.U().tbMovUp, "MovUp");
  step.MoveA(60, 40);
  EXPECT_EQ(Scores(step.Points()), "60 40 | 20 90");
  EXPECT_EQ(step.Tools(), "up down | upward");
  step.Press(step.U().tbCertain, "Certain");
  EXPECT_EQ(step.Tools(), "left right up down |");
}

TEST(UncertaintyTools, AnotherTargetUnlocksThem) {
  UncertainStep step;
  step.Press(step.U().tbMovUp, "MovUp");
  step.Choose(2);
  EXPECT_EQ(step.Tools(), "left right up down |");
}

TEST(ChangeSteps, AreAThirtiethAFortiethAndAFiftiethOfTheScale) {
  WizardData data = Ward();
  GiveScale(data, 0, 10.0, 310.0);
  TradeOffStep step(data);
  const UncertaintyControls& u = step.Form->Uncertainty;
  EXPECT_EQ(u.cmbChangeH.List(), (Lines{"10.00", "7.50", "6.00"}));
  EXPECT_EQ(u.cmbChangeV.List(), (Lines{"3.33", "2.50", "2.00"}));
  EXPECT_EQ(std::pair(u.cmbChangeH.ListIndex(), u.cmbChangeV.ListIndex()), std::pair(0, 0));
  EXPECT_EQ(XY(step.Form->Tools.mStepH, step.Form->Tools.mStepV), "10 3.33") << "the numbers of the texts";
}

TEST(ChangeSteps, ChoosingAnItemSetsTheStepAnew) {
  UncertainStep step;
  step.Press(step.U().tbMovRight, "MovRight");
  EXPECT_EQ(step.Points().AUX, 50.0F + 3.33F);
  Input::SelectRow(step.U().cmbChangeH, 2);
  EXPECT_EQ(step.Form->Tools.mStepH, 2.0F);
  step.Press(step.U().tbMovRight, "MovRight");
  EXPECT_EQ(step.Points().AUX, 50.0F + 3.33F + 2.0F);
  Input::SelectRow(step.U().cmbChangeV, 1);
  EXPECT_EQ(step.Form->Tools.mStepV, 2.5F);
}

TEST(ChangeSteps, AreFilledAnewForAnotherTarget) {
  WizardData data = Ward();
  GiveScale(data, 5, 0.0, 30.0);
  UncertainStep step(data);
  Input::SelectRow(step.U().cmbChangeH, 2);
  step.Choose(5);
  EXPECT_EQ(step.U().cmbChangeH.List(), (Lines{"1.00", "0.75", "0.60"}));
  EXPECT_EQ(step.U().cmbChangeH.ListIndex, 0);
  EXPECT_EQ(step.Form->Tools.mStepH, 1.0F);
}

TEST(Movers, EachMovesItsCornerByTheStep) {
  const auto after = [](Toolbar UncertaintyControls::*toolbar, const char* key) {
    UncertainStep step;
    step.Press(step.U().*toolbar, key);
    return Scores(step.Points());
  };
  EXPECT_EQ(after(&UncertaintyControls::tbMovLeft, "MovLeft"), "50 40 across 46.67 40 to 50 40 | 20 90");
  EXPECT_EQ(after(&UncertaintyControls::tbMovRight, "MovRight"), "50 40 across 50 40 to 53.33 40 | 20 90");
  EXPECT_EQ(after(&UncertaintyControls::tbMovDown, "MovDown"), "50 40 upward 50 36.67 to 50 40 | 20 90");
  EXPECT_EQ(after(&UncertaintyControls::tbMovUp, "MovUp"), "50 40 upward 50 40 to 50 43.33 | 20 90");
}

TEST(Movers, BackGoesTowardsAAndStopsThere) {
  UncertainStep step;
  for (int time = 0; time < 3; ++time) step.Press(step.U().tbMovRight, "MovRight");
  step.Press(step.U().tbMovRight, "MovRightBack");
  EXPECT_NEAR(step.Points().AUX, 50.0F + 2.0F * 3.33F, 1e-4F);
  Input::SelectRow(step.U().cmbChangeH, 0);
  step.Press(step.U().tbMovRight, "MovRightBack");
  EXPECT_EQ(step.Tools(), "left right | across");
  step.Press(step.U().tbMovRight, "MovRightBack");
  EXPECT_EQ(step.Points().AUX, 50.0F);
  EXPECT_EQ(step.Tools(), "left right:MovRight | across");
}

struct LimitCase {
  Toolbar UncertaintyControls::*Tools;
  const char* Key;
  Single ABPoint::*Corner;
  Single Limit;
};

TEST(Movers, EachStopsAtItsLimitAndDisablesItsOwnButton) {
  const LimitCase cases[] = {{&UncertaintyControls::tbMovLeft, "MovLeft", &ABPoint::ALX, 0.0F},
                             {&UncertaintyControls::tbMovRight, "MovRight", &ABPoint::AUX, 100.0F},
                             {&UncertaintyControls::tbMovDown, "MovDown", &ABPoint::ALY, 0.0F},
                             {&UncertaintyControls::tbMovUp, "MovUp", &ABPoint::AUY, 100.0F},
                             {&UncertaintyControls::tbMovLeft, "MovLeftBack", &ABPoint::ALX, 50.0F},
                             {&UncertaintyControls::tbMovRight, "MovRightBack", &ABPoint::AUX, 50.0F},
                             {&UncertaintyControls::tbMovDown, "MovDownBack", &ABPoint::ALY, 40.0F},
                             {&UncertaintyControls::tbMovUp, "MovUpBack", &ABPoint::AUY, 40.0F}};
  for (const LimitCase& c : cases) {
    SCOPED_TRACE(c.Key);
    UncertainStep step;
    Toolbar& toolbar = step.U().*c.Tools;
    int presses = 0;
    for (; step.IsEnabled(toolbar, c.Key) && presses < 100; ++presses) step.Press(toolbar, c.Key);
    EXPECT_LT(presses, 100);
    EXPECT_EQ(step.Points().*c.Corner, c.Limit);
    EXPECT_FALSE(toolbar.Find(c.Key)->Enabled);
    for (const Toolbar::Button& button : toolbar.Buttons) {
      if (button.Key != c.Key) {
        EXPECT_TRUE(button.Enabled) << button.Key;
      }
    }
  }
}

TEST(Movers, AStepThatReachesTheMinimumExactlyLandsOnIt) {
  UncertainStep step;
  step.MoveA(2, 40);
  step.Press(step.U().tbMovLeft, "MovLeftBack");
  Input::SelectRow(step.U().cmbChangeH, 2);
  step.Press(step.U().tbMovLeft, "MovLeft");
  EXPECT_EQ(Scores(step.Points()), "2 40 across 0 40 to 2 40 | 20 90");
  EXPECT_EQ(step.Tools(), "left:MovLeftBack right | across");
}

TEST(Movers, BackWithoutUncertaintyStaysAndLocksTheOtherDirectionAllTheSame) {
  UncertainStep step;
  step.Press(step.U().tbMovLeft, "MovLeftBack");
  EXPECT_EQ(Scores(step.Points()), "50 40 across | 20 90");
  EXPECT_EQ(step.Tools(), "left:MovLeft right | across");
}

TEST(Movers, ADisabledButtonComesBackWithTheNextPressOfAnyMover) {
  UncertainStep step;
  step.Press(step.U().tbMovLeft, "MovLeftBack");
  EXPECT_FALSE(step.IsEnabled(step.U().tbMovLeft, "MovLeftBack"));
  step.Press(step.U().tbMovRight, "MovRight");
  EXPECT_TRUE(step.IsEnabled(step.U().tbMovLeft, "MovLeftBack"));
}

TEST(Movers, DecideTheStateByBothCorners) {
  UncertainStep step;
  step.MoveA(60, 40);
  step.MoveB(20, 80);
  EXPECT_EQ(step.Verdict(), "1.00/1,    1.00/1 consistent");
  step.Press(step.U().tbMovLeft, "MovLeft");
  // 0.4 / 0.3667
  EXPECT_EQ(step.Verdict(), "1.00/1,    1.09/1 consistent");
  step.Press(step.U().tbMovRight, "MovRight");
  EXPECT_EQ(step.Verdict(), "0.92/1,    1.09/1 inconsistent");
  EXPECT_FALSE(step.EnterAllowed());
}

TEST(Movers, AVerticalLineGivesAnIntervalToo) {
  UncertainStep step;
  step.MoveA(60, 40);
  step.MoveB(20, 90);
  step.Press(step.U().tbMovUp, "MovUp");
  EXPECT_EQ(step.Ratio(), "1.17/1,    1.25/1");
  step.Press(step.U().tbMovDown, "MovDown");
  EXPECT_EQ(step.Ratio(), "1.17/1,    1.33/1");
}

TEST(UncertaintyCommit, StoresTheEndsAndTheRatioAtA) {
  UncertainStep step;
  step.MoveA(60, 40);
  step.MoveB(20, 90);
  Input::SelectRow(step.U().cmbChangeV, 2);
  step.Press(step.U().tbMovUp, "MovUp");
  step.Press(step.U().tbMovDown, "MovDown");
  step.Click("cmdEnter");
  // 42 and 38 against 90, over 0.4.
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{1.2, 1.25, 1.3}));
  EXPECT_EQ(Scores(step.Record(0)), "60 40 upward 60 38 to 60 42 | 20 90");
}

TEST(UncertaintyCommit, OverAFlatPieceOfTheCurveIsAPointThoughTheOrientationIsOne) {
  WizardData data = Ward();
  GiveCurve(data, 0, {0, 20, 40, 60, 80, 90, 100}, {0, 0.5, 0.5, 0.5, 0.5, 0.75, 1});
  UncertainStep step(data);
  step.MoveA(50, 40);
  step.MoveB(0, 95);
  step.Press(step.U().tbMovRight, "MovRight");
  EXPECT_NE(step.Points().ALX, step.Points().AUX);
  EXPECT_EQ(step.Ratio(), "1.10/1,    1.10/1");
  step.Click("cmdEnter");
  EXPECT_EQ(IntervalOf(step.Data, 0), (Interval{1.1, 1.1, 1.1}));
  EXPECT_EQ(step.Record(0).AOrientation, 1);
}

TEST(UncertaintyCommit, ACornerThatReachesBsFirstScoreIsInfinityAndInvalid) {
  UncertainStep step;
  step.MoveA(22, 40);
  step.MoveB(20, 90);
  step.Press(step.U().tbMovLeft, "MovLeftBack");
  Input::SelectRow(step.U().cmbChangeH, 2);
  step.Press(step.U().tbMovLeft, "MovLeft");
  EXPECT_EQ(Scores(step.Points()), "22 40 across 20 40 to 22 40 | 20 90");
  EXPECT_EQ(step.Verdict(), "25.00/1,    Infinity invalid");
  EXPECT_FALSE(step.EnterAllowed());
}

TEST(UncertaintyCommit, IsLostWhenAnotherTargetIsChosenBeforeEnter) {
  UncertainStep step;
  step.Press(step.U().tbMovRight, "MovRight");
  step.Choose(2);
  step.Choose(0);
  EXPECT_EQ(step.Points().AOrientation, 0);
  EXPECT_EQ(step.Points().AUX, step.Points().AX);
}

// "line 1960 2520 2240 2520 in 16711680, 3 wide".
String Described(const Drawn& drawn) {
  String text = drawn.Shape == Drawn::What::Line ? "line" : "no line";
  for (const Single length : drawn.Points) text += " " + Exactly(length);
  return text + " in " + std::to_string(drawn.Ink) + ", " + std::to_string(drawn.LineWidth) + " wide";
}

TEST(UncertaintyLine, IsThickAndBlueBetweenTheCorners) {
  UncertainStep step;
  step.Press(step.U().tbMovLeft, "MovLeft");
  step.Press(step.U().tbMovRight, "MovRight");
  const std::vector<Drawn>& drawing = step.Form->Chart.picTradeOffsRange.Drawing;
  ASSERT_EQ(drawing.size(), 1U);
  const ABPoint& p = step.Points();
  EXPECT_EQ(Described(drawing[0]),
            "line " + XY(p.ALX * 42.0F, 2520.0F) + " " + XY(p.AUX * 42.0F, 2520.0F) + " in 16711680, 3 wide");
}

TEST(UncertaintyLine, IsNotDrawnWhereItsEndsCoincide) {
  UncertainStep step;
  step.Press(step.U().tbMovLeft, "MovLeft");
  step.Press(step.U().tbMovLeft, "MovLeftBack");
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(CertainTool, GoesBackToTheRecordAndNotToAPoint) {
  WizardData data = Ward();
  data.SavedJudgments.RJType = kTradeOffsType;
  data.ABPoints2[0] = PointsAt(60, 40, 20, 80);
  data.ABPoints2[0].AOrientation = 1;
  data.ABPoints2[0].ALX = 55;
  data.ABPoints2[0].AUX = 60;
  TradeOffStep step(data);
  const String before = step.Ratio();
  step.MoveA(80, 10);
  step.Press(step.Form->Uncertainty.tbCertain, "Certain");
  EXPECT_EQ(Scores(step.Points()), "60 40 across 55 40 to 60 40 | 20 80");
  EXPECT_EQ(step.Ratio(), before);
  EXPECT_EQ(Place(step.Form->Chart.shpPCA), "2445,2445");
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U);
  EXPECT_EQ(Shown(step.Form->Uncertainty), "left right | across");
}

TEST(CertainTool, UnlocksBothDirectionsWhereTheRecordIsAPoint) {
  UncertainStep step;
  step.Press(step.U().tbMovUp, "MovUp");
  step.Press(step.U().tbCertain, "Certain");
  EXPECT_EQ(step.Tools(), "left right up down |");
  EXPECT_EQ(Scores(step.Points()), Scores(step.Record(0)));
  EXPECT_EQ(step.Points().AOrientation, 0);
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(CertainTool, LeavesTheTextsOfTheBoxes) {
  UncertainStep step;
  step.Press(step.U().tbCertain, "Certain");
  EXPECT_NE(step.Points().AX, 50.0F);
  EXPECT_EQ(step.Form->Scores.txtTradeOffAFirstScore.Text(), "50");
}

TEST(CertainTool, GoesBackToTheLastEnter) {
  UncertainStep step;
  step.MoveA(60, 40);
  step.MoveB(20, 90);
  step.Click("cmdEnter");
  step.MoveA(90, 10);
  step.Press(step.U().tbCertain, "Certain");
  EXPECT_EQ(Scores(step.Points()), "60 40 | 20 90");
}

TEST(ReferencePairTools, AreAllDisabledAndComeBackWithAnOrdinaryPair) {
  UncertainStep step;
  Toolbar* const all[] = {&step.U().tbCertain, &step.U().tbMovDown, &step.U().tbMovUp, &step.U().tbMovLeft,
                          &step.U().tbMovRight};
  step.Choose(6);
  for (const Toolbar* toolbar : all) EXPECT_FALSE(toolbar->Enabled) << toolbar->Name;
  step.Choose(5);
  for (const Toolbar* toolbar : all) EXPECT_TRUE(toolbar->Enabled) << toolbar->Name;
}

TEST(ReferencePairTools, ItsPlotIsCleared) {
  UncertainStep step;
  step.Press(step.U().tbMovUp, "MovUp");
  step.Choose(1);
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

}  // namespace
}  // namespace Tarnwise
