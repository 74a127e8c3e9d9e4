#include "TradeOffs.h"

#include "curves/mdGraphs.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

TradeOffVerdict Decide(const WizardData& data, int target, const String& first, const String& second) {
  return DecideJudgmentState(data, target, first, second);
}

TEST(InvalidTradeOff, IsARatioOfZeroOrBelowOrInfinityAtEitherEnd) {
  const char* const bad[] = {"0", "-0.5", "-2", "Infinity!"};
  for (const char* const text : bad) {
    EXPECT_EQ(Decide(Ward(), 0, text, "1.5").State, kInvalid) << text;
    EXPECT_EQ(Decide(Ward(), 0, "1.5", text).State, kInvalid) << text;
    EXPECT_EQ(Decide(Ward(), 0, text, text).State, kInvalid) << text;
  }
}

TEST(InvalidTradeOff, DoesNotDependOnTheConsistencyControl) {
  WizardData data = Ward();
  for (const Integer control : {Integer(0), Integer(1), Integer(2)}) {
    data.IncnsistCtrl = control;
    EXPECT_EQ(Decide(data, 0, "-0.5", "1.5").State, kInvalid);
    EXPECT_EQ(Decide(data, 0, "Infinity!", "Infinity!").State, kInvalid);
  }
}

TEST(InvalidTradeOff, TwoInfiniteEndsReadInfinity) {
  EXPECT_EQ(Decide(Ward(), 0, "Infinity!", "Infinity!").Caption, "Infinity!");
}

TEST(InvalidTradeOff, OneInfiniteEndReadsTheOtherOneAndTheWord) {
  EXPECT_EQ(Decide(Ward(), 0, "Infinity!", "1.255").Caption, "1.26/1,    Infinity");
  EXPECT_EQ(Decide(Ward(), 0, "1.255", "Infinity!").Caption, "1.26/1,    Infinity");
  EXPECT_EQ(Decide(Ward(), 0, "-0.5", "Infinity!").Caption, "-0.50/1,    Infinity");
}

TEST(InvalidTradeOff, ANegativeEndStandsInFrontOfAPositiveOne) {
  EXPECT_EQ(Decide(Ward(), 0, "1.25", "-0.5").Caption, "-0.50/1,    1.25/1");
  EXPECT_EQ(Decide(Ward(), 0, "-0.5", "1.25").Caption, "-0.50/1,    1.25/1");
  EXPECT_EQ(Decide(Ward(), 0, "-2", "-2").Caption, "-2.00/1,    -2.00/1");
  EXPECT_EQ(Decide(Ward(), 0, "0", "-3").Caption, "-3.00/1,    0.00/1");
}

TEST(InvalidTradeOff, ANegativeEndThatRoundsToZeroShowsNoSign) {
  EXPECT_EQ(Decide(Ward(), 0, "-0.0012", "1").Caption, "0.00/1,    1.00/1");
}

TEST(TradeOffWithoutControl, HasNoStateAndTheSmallerEndFirst) {
  WizardData data = Ward();
  for (const Integer control : {Integer(0), Integer(2), Integer(-1)}) {
    data.IncnsistCtrl = control;
    const TradeOffVerdict verdict = Decide(data, 0, "1.5", "0.25");
    EXPECT_EQ(verdict.State, kNoneDecided);
    EXPECT_EQ(verdict.Caption, "0.25/1,    1.50/1");
    EXPECT_EQ(Decide(data, 0, "0.25", "1.5").Caption, "0.25/1,    1.50/1");
  }
}

TEST(ConsistentTradeOff, WithoutUncertaintyShowsTheSameNumberTwice) {
  const TradeOffVerdict verdict = Decide(Ward(), 0, "1.25", "1.25");
  EXPECT_EQ(verdict.State, kConsistent);
  EXPECT_EQ(verdict.Caption, "1.25/1,    1.25/1");
}

TEST(ConsistentTradeOff, IsTheSameWhicheverEndIsTheSmaller) {
  EXPECT_EQ(Decide(Ward(), 0, "1.25", "2.5").State, kConsistent);
  EXPECT_EQ(Decide(Ward(), 0, "2.5", "1.25").State, kConsistent);
  EXPECT_EQ(Decide(Ward(), 0, "2.5", "1.25").Caption, "1.25/1,    2.50/1");
}

TEST(TradeOffLimits, NothingJudgedAboveAndTheReferenceBelowAreAHundredAndOne) {
  EXPECT_EQ(Decide(Ward(), 0, "100", "1").State, kConsistent);
  EXPECT_EQ(Decide(Ward(), 0, "100.01", "1").State, kInconsistent);
  EXPECT_EQ(Decide(Ward(), 0, "100.0001", "1").State, kInconsistent);
  EXPECT_EQ(Decide(Ward(), 0, "100", "0.9999").State, kInconsistent);
}

TEST(TradeOffLimits, AnAttributeRankedBelowItsReferenceHasOneAboveAndZeroBelow) {
  EXPECT_EQ(Decide(Ward(), 2, "1", "0.0001").State, kConsistent);
  EXPECT_EQ(Decide(Ward(), 2, "1.0001", "0.5").State, kInconsistent);
}

TEST(TradeOffLimits, RatiosAreComparedAtFourDecimals) {
  // 1.00004 and 0.99996 count as 1.
  EXPECT_EQ(Decide(Ward(), 0, "1.00004", "1.00004").State, kConsistent);
  EXPECT_EQ(Decide(Ward(), 0, "0.99996", "2").State, kConsistent);
  EXPECT_EQ(Decide(Ward(), 0, "0.99994", "2").State, kInconsistent);
  EXPECT_EQ(Decide(Ward(), 2, "1.00004", "0.5").State, kConsistent);
}

TEST(TradeOffLimits, AreNotTakenFromTheTwoDecimalsShown) {
  const TradeOffVerdict verdict = Decide(Ward(), 0, "0.9999", "2");
  EXPECT_EQ(verdict.State, kInconsistent);
  EXPECT_EQ(verdict.Caption, "1.00/1,    2.00/1");
}

TEST(TradeOffLimits, AnUpperLimitOfZeroIsTakenAsAHundred) {
  WizardData data = TradeOffData({B(1), B(2), B(3), C(1)}, 2, 3);
  Judge(data, 0, 0.0, 3.0);
  EXPECT_EQ(Decide(data, 1, "100", "1").State, kConsistent);
  EXPECT_EQ(Decide(data, 1, "100.01", "1").State, kInconsistent);
}

TEST(TradeOffLimits, ComeFromTheNearestJudgedRankOnEachSide) {
  WizardData data = TradeOffData({B(1), B(2), B(3), B(4), B(5), C(1)}, 4, 5);
  Judge(data, 0, 5.0, 6.0);
  EXPECT_EQ(Decide(data, 2, "5", "1").State, kConsistent);
  EXPECT_EQ(Decide(data, 2, "5.0001", "1").State, kInconsistent);
  Judge(data, 1, 3.0, 4.0);
  EXPECT_EQ(Decide(data, 2, "3", "1").State, kConsistent);
  EXPECT_EQ(Decide(data, 2, "3.0001", "1").State, kInconsistent);
  Judge(data, 3, 1.5, 2.0);
  EXPECT_EQ(Decide(data, 2, "3", "2").State, kConsistent);
  EXPECT_EQ(Decide(data, 2, "3", "1.9999").State, kInconsistent);
}

TEST(TradeOffLimits, OfOneRankAreThoseOfItsFirstJudgedAttribute) {
  WizardData data = TradeOffData({B(1), B(1), B(2), B(3), C(1)}, 3, 4);
  Judge(data, 1, 2.0, 2.5);
  EXPECT_EQ(Decide(data, 2, "2", "1").State, kConsistent);
  Judge(data, 0, 4.0, 4.5);
  EXPECT_EQ(Decide(data, 2, "4", "1").State, kConsistent);
}

TEST(TradeOffLimits, StayInsideOfTheGroup) {
  WizardData data = TradeOffData({B(2), B(3), C(1), C(2), C(3)}, 1, 4);
  Judge(data, 2, 1.1, 1.2);
  EXPECT_EQ(Decide(data, 0, "50", "1").State, kConsistent);
  EXPECT_EQ(Decide(data, 3, "1.1", "1").State, kConsistent);
  EXPECT_EQ(Decide(data, 3, "1.1001", "1").State, kInconsistent);
}

TEST(InconsistentTradeOff, ShowsTheSmallerEndFirst) {
  EXPECT_EQ(Decide(Ward(), 0, "2", "0.5").Caption, "0.50/1,    2.00/1");
  EXPECT_EQ(Decide(Ward(), 0, "0.5", "2").Caption, "0.50/1,    2.00/1");
}

TEST(ReferencePairState, IsNoneForAPositiveRatioWhateverTheControlSays) {
  const TradeOffVerdict verdict = DecideRefPairState("1.255");
  EXPECT_EQ(verdict.State, kNoneDecided);
  EXPECT_EQ(verdict.Caption, "1.26/1");
  EXPECT_EQ(DecideRefPairState("5000").State, kNoneDecided);
}

TEST(ReferencePairState, IsInvalidForZeroNegativeAndInfinity) {
  EXPECT_EQ(DecideRefPairState("0").State, kInvalid);
  EXPECT_EQ(DecideRefPairState("0").Caption, "0.00/1");
  EXPECT_EQ(DecideRefPairState("-1.5").State, kInvalid);
  EXPECT_EQ(DecideRefPairState("-1.5").Caption, "-1.50/1");
  EXPECT_EQ(DecideRefPairState("Infinity!").State, kInvalid);
  EXPECT_EQ(DecideRefPairState("Infinity!").Caption, "Infinity!");
}

// Commit.

Interval Held(const WizardData& data, int att) { return IntervalOf(data, att); }

TEST(TradeOffCommit, OfAPointMakesAllThreeEqual) {
  WizardData data = Ward();
  CommitTradeOff(data, 0, {"1.25", "1.25", "1.25"});
  EXPECT_EQ(Held(data, 0), (Interval{1.25, 1.25, 1.25}));
  EXPECT_TRUE(data.WeightDone[0]);
}

TEST(TradeOffCommit, OfEqualEndsTakesTheMiddleForAllThree) {
  WizardData data = Ward();
  CommitTradeOff(data, 0, {"1.25", "1.25", "1.4"});
  EXPECT_EQ(Held(data, 0), (Interval{1.4, 1.4, 1.4}));
}

TEST(TradeOffCommit, OfAnIntervalKeepsTheRatioAtAAsItsMiddle) {
  WizardData data = Ward();
  CommitTradeOff(data, 0, {"2", "1.2", "1.3"});
  EXPECT_EQ(Held(data, 0), (Interval{1.2, 1.3, 2.0})) << "not the mean of the ends";
  CommitTradeOff(data, 0, {"1.2", "2", "1.3"});
  EXPECT_EQ(Held(data, 0), (Interval{1.2, 1.3, 2.0}));
}

TEST(TradeOffCommit, CopiesTheRatiosToTheSameRankButNotThePoints) {
  WizardData data = Ward();
  GiveScale(data, 3, 0.0, 1000.0);
  data.ABPoints2[2] = PointsAt(70, 30, 50, 46);
  CommitTradeOff(data, 2, {"0.8", "0.8", "0.8"});
  EXPECT_EQ(Held(data, 3), Held(data, 2));
  EXPECT_TRUE(data.WeightDone[3]);
  const ABPoint& peer = data.ABPoints2[3];
  EXPECT_EQ(peer.AX, 650.0F);
  EXPECT_EQ(peer.BX, 500.0F);
  EXPECT_EQ(data.ABPoints2[2].AX, 70.0F);
  EXPECT_NEAR(Val(PointRatio(data, 3, 1, peer.AX, peer.AY, peer.BX, peer.BY)), 0.8, 0.001);
}

TEST(TradeOffCommit, TellsWhichAttributesAreJudgedByIt) {
  WizardData data = Ward();
  EXPECT_EQ(SettledByPoint(data, 2, "0.8"), (std::vector<int>{2, 3}));
  EXPECT_EQ(SettledByPoint(data, 3, "0.8"), (std::vector<int>{2, 3}));
  EXPECT_EQ(SettledByPoint(data, 5, "1.8"), (std::vector<int>{5}));
}

TEST(TradeOffCommit, NeverCopiesToAReferenceOrToTheOtherGroup) {
  WizardData data = TradeOffData({B(1), B(1), C(1), C(2)}, 1, 3);
  CommitTradeOff(data, 0, {"1.5", "1.5", "1.5"});
  EXPECT_EQ(Held(data, 1), (Interval{1.0, 1.0, 1.0}));
  EXPECT_EQ(Held(data, 2), (Interval{1.2, 1.2, 1.2}));
}

TEST(TradeOffCommit, ComparesOrientationsAsTexts) {
  WizardData data = Ward();
  data.AttributeList.AttOrientation[3] = "0.0";
  CommitTradeOff(data, 2, {"0.7", "0.7", "0.7"});
  EXPECT_FALSE(data.WeightDone[3]) << "a benefit too, but written otherwise";
  EXPECT_EQ(Held(data, 3), (Interval{0.8, 0.8, 0.8}));
}

TEST(TradeOffCommit, APeersPointIsCertainWhereBothCornersMeet) {
  WizardData data = Ward();
  data.ABPoints2[3].AOrientation = 2;
  CommitTradeOff(data, 2, {"0.8", "0.8", "0.8"});
  const ABPoint& peer = data.ABPoints2[3];
  EXPECT_EQ(peer.AOrientation, 0);
  EXPECT_EQ(peer.ALX, peer.AX);
  EXPECT_EQ(peer.AUX, peer.AX);
  EXPECT_EQ(peer.ALY, peer.AY);
  EXPECT_EQ(peer.AUY, peer.AY);
}

TEST(TradeOffCommit, APeerOfAnIntervalBelowOneStaysCertain) {
  // Below 1 A's place does not depend on the ratio, so the corners meet although the interval is one.
  WizardData data = Ward();
  CommitTradeOff(data, 2, {"0.6", "0.9", "0.7"});
  const ABPoint& peer = data.ABPoints2[3];
  EXPECT_EQ(Held(data, 3), (Interval{0.6, 0.7, 0.9}));
  EXPECT_EQ(peer.AOrientation, 0);
  EXPECT_EQ(peer.ALX, 65.0F);
}

TEST(TradeOffCommit, APeersCornersAreThoseOfTheSuggestionsForTheBounds) {
  WizardData data = TradeOffData({B(1), B(1), B(2), C(1)}, 2, 3);
  WizardData low = data;
  SuggestABPoints(low, 1, 2, 4.0);
  WizardData high = data;
  SuggestABPoints(high, 1, 2, 6.0);
  WizardData middle = data;
  SuggestABPoints(middle, 1, 2, 5.0);
  CommitTradeOff(data, 0, {"4", "6", "5"});
  const ABPoint& peer = data.ABPoints2[1];
  EXPECT_EQ(peer.ALX, low.ABPoints2[1].AX);
  EXPECT_EQ(peer.ALY, low.ABPoints2[1].AY);
  EXPECT_EQ(peer.AUX, high.ABPoints2[1].AX);
  EXPECT_EQ(peer.AUY, high.ABPoints2[1].AY);
  EXPECT_EQ(peer.AX, middle.ABPoints2[1].AX);
  EXPECT_EQ(peer.BY, middle.ABPoints2[1].BY);
  EXPECT_NE(peer.ALX, peer.AUX);
  EXPECT_EQ(peer.ALY, peer.AUY);
  EXPECT_EQ(peer.AOrientation, 1);
}

TEST(TradeOffCommit, APeerWhoseCornersDifferInTheSecondScoreOnlyIsUncertainUpward) {
  // From below 1 to above 1 the second score changes from a half to a third; a scale without length across keeps the
  // first one.
  WizardData data = TradeOffData({B(1), B(1), B(2), C(1)}, 2, 3);
  data.AttValueData.ScoreMin[1] = 50.0;
  data.AttValueData.ScoreMax[1] = 50.0;
  CommitTradeOff(data, 0, {"0.5", "2", "1"});
  const ABPoint& peer = data.ABPoints2[1];
  EXPECT_EQ(peer.ALX, peer.AUX);
  EXPECT_EQ(peer.ALY, 50.0F);
  EXPECT_EQ(peer.AUY, static_cast<Single>(100.0 / 3.0));
  EXPECT_EQ(peer.AOrientation, 2);
}

TEST(TradeOffCommit, APeerWhoseCornersDifferInBothScoresKeepsItsOrientation) {
  for (const Integer former : {Integer(0), Integer(1), Integer(2)}) {
    WizardData data = TradeOffData({B(1), B(1), B(2), C(1)}, 2, 3);
    data.ABPoints2[1].AOrientation = former;
    CommitTradeOff(data, 0, {"0.5", "2", "1"});
    EXPECT_NE(data.ABPoints2[1].ALX, data.ABPoints2[1].AUX);
    EXPECT_NE(data.ABPoints2[1].ALY, data.ABPoints2[1].AUY);
    EXPECT_EQ(data.ABPoints2[1].AOrientation, former);
  }
}

TEST(TradeOffCommit, PushesTheUnjudgedNeighbours) {
  WizardData data = TradeOffData({B(1), B(2), B(3), B(4), C(1)}, 3, 4);
  CommitTradeOff(data, 2, {"1.3", "1.3", "1.3"});
  EXPECT_EQ(Held(data, 1), (Interval{1.3, 1.3, 1.3}));
  EXPECT_EQ(Held(data, 0), (Interval{1.3, 1.3, 1.3}));
  EXPECT_FALSE(data.WeightDone[1]);
  EXPECT_EQ(Held(data, 3), (Interval{1.0, 1.0, 1.0}));
}

TEST(TradeOffCommit, PushesDownToTheFirstJudgedRank) {
  WizardData data = TradeOffData({B(1), B(2), B(3), B(4), C(1)}, 0, 4);
  Judge(data, 2, 0.7, 0.75);
  CommitTradeOff(data, 1, {"0.6", "0.65", "0.62"});
  EXPECT_EQ(Held(data, 2), Range(0.7, 0.75));
  EXPECT_EQ(Held(data, 3), (Interval{0.8, 0.8, 0.8}));
  WizardData open = TradeOffData({B(1), B(2), B(3), B(4), C(1)}, 0, 4);
  CommitTradeOff(open, 1, {"0.6", "0.65", "0.62"});
  EXPECT_EQ(Held(open, 2), (Interval{0.6, 0.6, 0.6}));
  EXPECT_EQ(Held(open, 3), (Interval{0.6, 0.6, 0.6}));
}

TEST(TradeOffCommit, OfInfinityIsATypeMismatchAndStoresNothing) {
  for (const TradeOffRatios& ratios :
       {TradeOffRatios{"Infinity!", "1.5", "1.5"}, TradeOffRatios{"1.5", "Infinity!", "1.5"},
        TradeOffRatios{"1.5", "1.5", "Infinity!"}}) {
    WizardData data = Ward();
    EXPECT_EQ(ErrorNumber([&] { return CommitTradeOff(data, 0, ratios); }), 13);
    EXPECT_EQ(Held(data, 0), (Interval{1.2, 1.2, 1.2}));
    EXPECT_FALSE(data.WeightDone[0]);
  }
}

// On the screen.

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

TEST(EnteredTradeOff, WritesTheRecordCommitsAndMarksTheName) {
  TradeOffStep step(Ward());
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  step.TakeNotes();
  step.Click("cmdEnter");
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(step.Record(0).AX, 60.0F);
  EXPECT_EQ(step.Record(0).BY, 80.0F);
  EXPECT_EQ(Held(step.Data, 0), (Interval{2.0, 2.0, 2.0}));
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
  EXPECT_EQ(Held(step.Data, 0), (Interval{2.0, 2.0, 2.0}));
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
  EXPECT_EQ(Held(step.Data, 0), (Interval{1.2, 1.2, 1.2}));
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

// Re-start.

TEST(RestartOfAll, SetsTheDefaultsAndFreshPoints) {
  TradeOffStep step(Ward());
  const ABPoint suggested = step.Record(0);
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  step.Click("cmdEnter");
  step.Data.ABPoints1[0] = PointsAt(1, 2, 3, 4);
  step.Click("cmdReStart");
  EXPECT_EQ(Held(step.Data, 0), (Interval{1.2, 1.2, 1.2}));
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
