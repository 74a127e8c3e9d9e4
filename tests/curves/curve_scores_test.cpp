#include "Curves.h"

#include <bit>
#include <cmath>

namespace Tarnwise {
namespace {

// The walk as it is told: from the first abscissa on in steps of a ten-thousandth of the scale, with a search and a
// value at each.
Single PlainWalk(const WizardData& model, Single value) {
  const Curve curve = CurveOf(model, 0);
  const Double top = model.AttValueData.ScoreMax[0];
  const Double step = (top - model.AttValueData.ScoreMin[0]) / 10000.0;
  const Double half = (top - model.AttValueData.ScoreMin[0]) / 2.0;
  Double x = curve.X[0];
  for (;;) {
    x = x + step;
    if (!(x < top)) return static_cast<Single>(half);
    if (std::fabs(AkimaInterpolate(curve, -1, x)[4] - static_cast<Double>(value)) <= 0.0001) {
      return static_cast<Single>(x);
    }
  }
}

::testing::AssertionResult IsTheWalk(const WizardData& model, Single value) {
  const Single expected = PlainWalk(model, value);
  const Single found = GetAttScore(model, 0, value);
  if (std::bit_cast<std::uint32_t>(found) == std::bit_cast<std::uint32_t>(expected))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << found << " and not " << expected << " for the value " << value;
}

TEST(AttScoreWalk, IsThePlainWalkToTheLastBitOnRandomCases) {
  Chance chance(3);
  for (int time = 0; time < 99000; ++time) {
    const int n = 1 + time % 11;
    const Curve curve = time % 3 == 0 ? chance.AnyCurve(n, chance.Real(-40.0, 40.0), -0.2, 1.2)
                                      : chance.RisingCurve(n, chance.Real(-40.0, 40.0), 0.0, 1.0);
    // The scale begins far below the curve, so that the walk is over after a hundred steps or so.
    const Double length = curve.X[static_cast<std::size_t>(n) - 1] - curve.X[0] + 1.0;
    const Double high = curve.X[0] + length * chance.Real(0.8, 1.2);
    const WizardData model = ModelWith(curve, curve.X[0] - length * chance.Real(20.0, 200.0), high);
    // A value that one of the steps reaches, most of the time.
    const Double step = (high - model.AttValueData.ScoreMin[0]) / 10000.0;
    const Double near = curve.X[0] + step * chance.Whole(1, 200);
    const Double off = time % 5 == 0 ? chance.Real(-0.5, 0.5) : chance.Real(-0.00012, 0.00012);
    ASSERT_TRUE(IsTheWalk(model, static_cast<Single>(AkimaInterpolate(curve, -1, near)[4] + off))) << "case " << time;
  }
}

TEST(AttScoreWalk, IsThePlainWalkToTheLastBitOverTheWholeScale) {
  Chance chance(4);
  for (int time = 0; time < 1000; ++time) {
    const int n = 1 + time % 11;
    const Curve curve = chance.RisingCurve(n, chance.Real(-40.0, 40.0), 0.0, 1.0);
    const Double low = curve.X[0];
    const Double high = low + std::max(1.0, curve.X[static_cast<std::size_t>(n) - 1] - low);
    const Double value = time % 2 == 0 ? chance.Real(0.0, 1.0) : 2.0 + time;
    ASSERT_TRUE(IsTheWalk(ModelWith(curve, low, high), static_cast<Single>(value))) << "case " << time;
  }
}

// Humps whose top just comes within the tolerance of the value, or just does not: nothing near may be passed over.
TEST(AttScoreWalk, IsThePlainWalkWhereACurveOnlyTouchesTheValue) {
  Chance chance(5);
  for (int time = 0; time < 400; ++time) {
    const Curve curve = chance.AnyCurve(3 + time % 9, chance.Real(-40.0, 40.0), -0.2, 1.2);
    const Double low = curve.X[0];
    const Double high = curve.X[static_cast<std::size_t>(curve.N) - 1];
    Double top = -INFINITY;
    for (Double x = low; x < high; x += (high - low) / 20000.0) {
      top = std::fmax(top, AkimaInterpolate(curve, -1, x)[4]);
    }
    const Double off = 0.0001 + chance.Real(-1e-6, 1e-7);
    ASSERT_TRUE(IsTheWalk(ModelWith(curve, low, high), static_cast<Single>(top + off))) << "case " << time;
  }
}

TEST(AttScoreWalk, IsThePlainWalkWhereThePointsAreOutOfOrder) {
  const WizardData model = ModelWith(CurveThrough({0, 30, 20, 60, 50, 100}, {0, 0.2, 0.4, 0.5, 0.8, 1}), 0.0, 100.0);
  for (const Single value : {0.05F, 0.2F, 0.45F, 0.77F, 0.99F}) EXPECT_TRUE(IsTheWalk(model, value));
}

TEST(AttScoreWalk, HasTheValueAtEachPointToo) {
  const Curve curve = CurveThrough({0, 10, 25, 50, 75, 90, 100}, {0, 0.05, 0.2, 0.5, 0.8, 0.95, 1});
  const WizardData model = ModelWith(curve, 0.0, 100.0);
  for (std::size_t k = 0; k < 7; ++k) EXPECT_TRUE(IsTheWalk(model, static_cast<Single>(curve.Y[k])));
}

WizardData Line(Double low, Double high) { return ModelWith(CurveThrough({low, high}, {0, 1}), low, high); }

TEST(AttScore, IsTheFirstStepWhoseValueComesWithinTheTolerance) {
  // Steps of 0.01 with 0.0001 of value each: 50 is half a step too low, and near enough.
  EXPECT_NEAR(GetAttScore(Line(0, 100), 0, 0.50005F), 50.0F, 1e-4F);
  EXPECT_NEAR(GetAttScore(Line(0, 100), 0, 0.50015F), 50.01F, 1e-4F);
}

TEST(AttScore, StartsOneStepBehindTheFirstPoint) {
  // The first point has the value sought, the next step is a hundredth away from it.
  const WizardData steep = ModelWith(CurveThrough({0, 1}, {0, 1}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(steep, 0, 0.0F), 50.0F);
  EXPECT_EQ(GetAttScore(steep, 0, 0.01F), 0.01F);
}

TEST(AttScore, StartsAtTheCurveAndNotAtTheScale) {
  const WizardData model = ModelWith(CurveThrough({40, 100}, {0, 1}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(model, 0, static_cast<Single>(0.01 / 60.0)), 40.01F);
}

TEST(AttScore, ATargetThatASteepCurveJumpsOverGivesHalfTheRange) {
  const WizardData steep = ModelWith(CurveThrough({0, 1}, {0, 1}), 0.0, 100.0);
  EXPECT_NEAR(GetAttScore(steep, 0, 0.5F), 0.5F, 1e-6F);
  EXPECT_EQ(GetAttScore(steep, 0, 0.505F), 50.0F);
}

TEST(AttScore, AValueAboveTheCurvesTopGivesHalfTheRangeAndNotTheMiddleOfTheScale) {
  EXPECT_EQ(GetAttScore(Line(20, 100), 0, 1.5F), 40.0F);
  EXPECT_EQ(GetAttScore(Line(20, 100), 0, -0.5F), 40.0F);
  EXPECT_EQ(GetAttScore(Line(-300, -100), 0, 3.0F), 100.0F);
}

TEST(AttScore, TheTopOfTheScaleItselfIsNotTried) {
  // A curve that is steep at its very end: the last step before the top is too far below.
  const WizardData model = ModelWith(CurveThrough({0, 99.999}, {0, 0}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(model, 0, 1.0F), 50.0F);
  // Here the line would reach 1 at the top only; 0.9999 is the last value tried, within the tolerance or not.
  const WizardData flat = ModelWith(CurveThrough({0, 50, 100}, {0, 0, 5}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(flat, 0, 5.0F), 50.0F);
}

TEST(AttScore, TheCurveIsNotClampedOnTheWay) {
  const WizardData model = ModelWith(CurveThrough({0, 100}, {-1, 3}), 0.0, 100.0);
  EXPECT_NEAR(GetAttScore(model, 0, 2.0F), 75.0F, 0.01F);
  EXPECT_NEAR(GetAttScore(model, 0, -0.5F), 12.5F, 0.01F);
}

TEST(AttScore, TheToleranceItselfCounts) {
  // Ordinates that a Single and a Double hold alike: 0.0001 away by the step and less is near enough.
  const WizardData flat = ModelWith(CurveThrough({0}, {0.0001}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(flat, 0, 0.0F), 0.01F);
  const WizardData above = ModelWith(CurveThrough({0}, {0.000101}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(above, 0, 0.0F), 50.0F);
}

TEST(AttScore, ACurveWithoutPointsIsASubscriptError) {
  EXPECT_EQ(ErrorNumber([] { return GetAttScore(ModelWith(Curve(), 0.0, 100.0), 0, 0.5F); }), 9);
}

TEST(AttScore, ACurveOfOnePointHasItsValueAtTheFirstStepOrNowhere) {
  const WizardData model = ModelWith(CurveThrough({10}, {0.5}), 0.0, 100.0);
  EXPECT_EQ(GetAttScore(model, 0, 0.5F), 10.01F);
  EXPECT_EQ(GetAttScore(model, 0, 0.6F), 50.0F);
}

TEST(AttScore, ACurveOfThreePointsIsWalkedLikeAnyOther) {
  const WizardData model = ModelWith(CurveThrough({0, 10, 20}, {0, 0.1, 0.4}), 0.0, 20.0);
  EXPECT_NEAR(GetAttScore(model, 0, 0.225F), 15.0F, 0.01F);
}

TEST(AttScore, EqualAbscissaeAreAFaultWhereTheWalkMeetsThem) {
  const WizardData model = ModelWith(CurveThrough({0, 50, 50, 100}, {0, 0.4, 0.6, 1}), 0.0, 100.0);
  EXPECT_EQ(ErrorNumber([&] { return GetAttScore(model, 0, 0.9F); }), 11);
  const WizardData same = ModelWith(CurveThrough({0, 50, 50, 100}, {0, 0.5, 0.5, 1}), 0.0, 100.0);
  EXPECT_EQ(ErrorNumber([&] { return GetAttScore(same, 0, 0.9F); }), 6);
  // Found before the walk looks at them.
  const WizardData late = ModelWith(
      CurveThrough({0, 10, 20, 30, 40, 50, 60, 70, 70, 80, 90}, {0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1}),
      0.0, 100.0);
  EXPECT_NEAR(GetAttScore(late, 0, 0.15F), 15.0F, 0.01F);
}

TEST(AttScore, AScaleOfNoLengthTriesItsFirstPointAndEnds) {
  // The step is 0, so the point tried is the curve's first one.
  const WizardData model = ModelWith(CurveThrough({10, 110}, {0.3, 0.9}), 50.0, 50.0);
  EXPECT_EQ(GetAttScore(model, 0, 0.3F), 10.0F);
  EXPECT_EQ(GetAttScore(model, 0, 0.5F), 0.0F);
}

TEST(AttScore, AScaleUpsideDownTriesOnePointAndEnds) {
  const WizardData model = ModelWith(CurveThrough({10, 110}, {0.3, 0.9}), 100.0, 50.0);
  EXPECT_EQ(GetAttScore(model, 0, 0.3F), 9.995F);
  EXPECT_EQ(GetAttScore(model, 0, 0.2F), -25.0F);
}

TEST(AttScore, AStepThatDoesNotMoveTheScoreEndsTheWalk) {
  const Double far = 2e17;
  const WizardData model = ModelWith(CurveThrough({1e17, 2e17}, {0.5, 1}), far - 32.0, far);
  EXPECT_EQ(GetAttScore(model, 0, 0.5F), 1e17F);
  EXPECT_EQ(GetAttScore(model, 0, 0.75F), 16.0F);
}

TEST(AttScore, AWalkOfMoreThanAMillionStepsEnds) {
  // Two million steps from the curve to the top of the scale, 200 of them within the tolerance on either side.
  const WizardData model = ModelWith(CurveThrough({-200, 1}, {0, 201.0 / 201.0}), 0.0, 1.0);
  const auto valueAt = [](Double step) { return static_cast<Single>(step * 0.0001 / 201.0); };
  EXPECT_NEAR(GetAttScore(model, 0, valueAt(999000.0)), -100.12F, 0.03F);
  EXPECT_EQ(GetAttScore(model, 0, valueAt(1001000.0)), 0.5F);
}

}  // namespace
}  // namespace Tarnwise
