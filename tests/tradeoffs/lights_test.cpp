// The verdict on the screen: lights, ratio and Enter.
#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(TradeOffVerdictShown, ConsistentLightsGreenAndAllowsEnter) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  EXPECT_EQ(step.Verdict(), "2.00/1,    2.00/1 consistent");
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_EQ(Shown(step.Form->Lights), "green* out out | 0");
}

TEST(TradeOffVerdictShown, InvalidBlinksAtThreeHundredAndForbidsEnter) {
  TradeOffStep step(Ward());
  step.MoveA(60, 80);
  step.MoveB(40, 40);
  EXPECT_EQ(step.Verdict(), "-2.00/1,    -2.00/1 invalid");
  EXPECT_FALSE(step.EnterAllowed());
  LightControls& lights = step.Form->Lights;
  EXPECT_EQ(Shown(lights), "out black* out | 300");
  Input::Tick(lights.Timer1);
  EXPECT_EQ(Shown(lights), "out yellow* out | 300");
  Input::Tick(lights.Timer1);
  EXPECT_EQ(Shown(lights), "out white* out | 300");
}

TEST(TradeOffVerdictShown, InconsistentBlinksAtAHundredAndForbidsEnter) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 50);
  EXPECT_EQ(step.Verdict(), "0.50/1,    0.50/1 inconsistent");
  EXPECT_FALSE(step.EnterAllowed());
  LightControls& lights = step.Form->Lights;
  EXPECT_EQ(Shown(lights), "out out brown* | 100");
  Input::Tick(lights.Timer1);
  EXPECT_EQ(Shown(lights), "out out orange* | 100");
}

TEST(TradeOffWithoutControl, ANegativeRatioForbidsEnterAndALaterPositiveOneDoesNotBringItBack) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  step.MoveA(60, 80);
  step.MoveB(40, 40);
  EXPECT_EQ(step.Form->mJudgmentState, kInvalid);
  EXPECT_FALSE(step.EnterAllowed());
  step.MoveB(40, 90);
  EXPECT_EQ(step.Verdict(), "0.50/1,    0.50/1 undecided");
  EXPECT_FALSE(step.EnterAllowed());
  EXPECT_EQ(Shown(step.Form->Lights), "(out) black* (out) | 300");
  Input::Tick(step.Form->Lights.Timer1);
  EXPECT_EQ(Shown(step.Form->Lights), "(out) black* (out) | 300") << "the timer goes on, but changes no light";
  step.Choose(2);
  EXPECT_TRUE(step.EnterAllowed());
}

TEST(ReferencePairShown, HasItsOneRatioAndTheLightConsistentWithoutAState) {
  TradeOffStep step(Ward());
  step.Choose(6);
  step.MoveA(60, 70);
  step.MoveB(40, 30);
  EXPECT_EQ(step.Verdict(), "2.00/1 undecided");
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_EQ(Shown(step.Form->Lights), "green* out out | 0");
}

TEST(ReferencePairShown, IsInvalidWhereOneIsNotPaidForWithTheOther) {
  TradeOffStep step(Ward());
  step.Choose(1);
  step.MoveA(60, 20);
  step.MoveB(40, 40);
  EXPECT_EQ(step.Verdict(), "-1.00/1 invalid");
  EXPECT_FALSE(step.EnterAllowed());
  EXPECT_EQ(Shown(step.Form->Lights), "out black* out | 300");
}

TEST(ReferencePairShown, ComesBackFromInvalidEvenWithoutTheControl) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  step.Choose(6);
  step.MoveA(60, 20);
  step.MoveB(40, 40);
  EXPECT_FALSE(step.EnterAllowed());
  step.MoveA(60, 60);
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_EQ(step.Ratio(), "1.00/1");
}

}  // namespace
}  // namespace Tarnwise
