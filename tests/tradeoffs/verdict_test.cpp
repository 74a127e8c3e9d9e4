// What a trade-off is judged to be, and within which limits.
#include "TradeOffs.h"

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

}  // namespace
}  // namespace Tarnwise
