// The verdict on the screen: lights, ratio and Enter.
#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(TradeOffVerdictShown, ConsistentLightsGreenAndAllowsEnter) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  EXPECT_EQ(step.Ratio(), "2.00/1,    2.00/1");
  EXPECT_EQ(step.Form->mJudgmentState, kConsistent);
  EXPECT_TRUE(step.EnterAllowed());
  LightControls& lights = step.Form->Lights;
  EXPECT_EQ(lights.Timer1.Interval, 0);
  EXPECT_EQ(lights.shpAlarm[0].FillColor, 0x00FF00U);
  EXPECT_EQ(lights.shpAlarm[1].FillColor, 0x808080U);
  EXPECT_EQ(lights.shpAlarm[2].FillColor, 0x808080U);
  EXPECT_EQ(lights.lblAlarm[0].ForeColor, 0x8000000EU);
  EXPECT_EQ(lights.lblAlarm[1].ForeColor, 0U);
}

TEST(TradeOffVerdictShown, InvalidBlinksAtThreeHundredAndForbidsEnter) {
  TradeOffStep step(Ward());
  step.MoveA(60, 80);
  step.MoveB(40, 40);
  EXPECT_EQ(step.Ratio(), "-2.00/1,    -2.00/1");
  EXPECT_EQ(step.Form->mJudgmentState, kInvalid);
  EXPECT_FALSE(step.EnterAllowed());
  LightControls& lights = step.Form->Lights;
  EXPECT_EQ(lights.Timer1.Interval, 300);
  EXPECT_EQ(lights.shpAlarm[0].FillColor, 0x808080U);
  EXPECT_EQ(lights.shpAlarm[1].FillColor, 0x000808U);
  EXPECT_EQ(lights.lblAlarm[1].ForeColor, 0x8000000EU);
  Input::Tick(lights.Timer1);
  EXPECT_EQ(lights.shpAlarm[1].FillColor, 0x00FFFFU);
  Input::Tick(lights.Timer1);
  EXPECT_EQ(lights.shpAlarm[1].FillColor, 0xFFFFFFU);
}

TEST(TradeOffVerdictShown, InconsistentBlinksAtAHundredAndForbidsEnter) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 50);
  EXPECT_EQ(step.Ratio(), "0.50/1,    0.50/1");
  EXPECT_EQ(step.Form->mJudgmentState, kInconsistent);
  EXPECT_FALSE(step.EnterAllowed());
  LightControls& lights = step.Form->Lights;
  EXPECT_EQ(lights.Timer1.Interval, 100);
  EXPECT_EQ(lights.shpAlarm[2].FillColor, 0x004080U);
  Input::Tick(lights.Timer1);
  EXPECT_EQ(lights.shpAlarm[2].FillColor, 0x0080FFU);
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
  EXPECT_EQ(step.Ratio(), "0.50/1,    0.50/1");
  EXPECT_EQ(step.Form->mJudgmentState, kNoneDecided);
  EXPECT_FALSE(step.EnterAllowed());
  EXPECT_EQ(step.Form->Lights.Timer1.Interval, 300) << "the timer goes on, but changes no light";
  EXPECT_EQ(step.Form->Lights.shpAlarm[1].FillColor, 0x000808U);
  Input::Tick(step.Form->Lights.Timer1);
  EXPECT_EQ(step.Form->Lights.shpAlarm[1].FillColor, 0x000808U);
  step.Choose(2);
  EXPECT_TRUE(step.EnterAllowed());
}

TEST(ReferencePairShown, HasItsOneRatioAndTheLightConsistentWithoutAState) {
  TradeOffStep step(Ward());
  step.Choose(6);
  step.MoveA(60, 70);
  step.MoveB(40, 30);
  EXPECT_EQ(step.Ratio(), "2.00/1");
  EXPECT_EQ(step.Form->mJudgmentState, kNoneDecided);
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_EQ(step.Form->Lights.shpAlarm[0].FillColor, 0x00FF00U);
  EXPECT_EQ(step.Form->Lights.shpAlarm[1].FillColor, 0x808080U);
  EXPECT_EQ(step.Form->Lights.Timer1.Interval, 0);
}

TEST(ReferencePairShown, IsInvalidWhereOneIsNotPaidForWithTheOther) {
  TradeOffStep step(Ward());
  step.Choose(1);
  step.MoveA(60, 20);
  step.MoveB(40, 40);
  EXPECT_EQ(step.Ratio(), "-1.00/1");
  EXPECT_EQ(step.Form->mJudgmentState, kInvalid);
  EXPECT_FALSE(step.EnterAllowed());
  EXPECT_EQ(step.Form->Lights.Timer1.Interval, 300);
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
