#include "Curves.h"

#include <cmath>

namespace Tarnwise {
namespace {

WizardData LineModel() { return ModelWith(CurveThrough({0, 100}, {0, 1}), 0.0, 100.0); }

TEST(AttValue, IsTheCurveAtTheScoreRoundedToSingle) {
  const WizardData model = ModelWith(CurveThrough({0, 30, 60, 100}, {0, 0.2, 0.7, 1}), 0.0, 100.0);
  for (const Single score : {0.0F, 7.3F, 29.99F, 30.0F, 61.7F, 99.0F}) {
    const Double exact = AkimaInterpolate(CurveOf(model, 0), -1, static_cast<Double>(score))[4];
    const Double value = GetAttValue(model, 0, score);
    EXPECT_EQ(value, static_cast<Double>(static_cast<Single>(exact))) << score;
  }
}

TEST(AttValue, WidensTheScoreFromSingle) {
  // 0.1 as a Single is not 0.1 as a Double.
  const Double exact = AkimaInterpolate(CurveOf(LineModel(), 0), -1, static_cast<Double>(0.1F))[4];
  EXPECT_EQ(GetAttValue(LineModel(), 0, 0.1F), static_cast<Double>(static_cast<Single>(exact)));
}

TEST(AttValue, AboveOneIsOneAndBelowZeroIsZero) {
  EXPECT_EQ(GetAttValue(LineModel(), 0, 100.5F), 1.0);
  EXPECT_EQ(GetAttValue(LineModel(), 0, 1e30F), 1.0);
  EXPECT_EQ(GetAttValue(LineModel(), 0, -0.5F), 0.0);
  EXPECT_EQ(GetAttValue(LineModel(), 0, -1e30F), 0.0);
  EXPECT_EQ(GetAttValue(LineModel(), 0, 100.0F), 1.0);
  EXPECT_EQ(GetAttValue(LineModel(), 0, 0.0F), 0.0);
}

TEST(AttValue, ACurveWithoutPointsHasTheValueZero) {
  EXPECT_EQ(GetAttValue(ModelWith(Curve(), 0.0, 100.0), 0, 50.0F), 0.0);
}

TEST(AttValue, ACurveOfOnePointHasItsOrdinateEverywhere) {
  const WizardData model = ModelWith(CurveThrough({40}, {0.75}), 0.0, 100.0);
  for (const Single score : {-10.0F, 40.0F, 200.0F}) EXPECT_EQ(GetAttValue(model, 0, score), 0.75);
}

TEST(AttValue, ACurveOfTwoPointsIsTheirLine) {
  const WizardData model = ModelWith(CurveThrough({20, 60}, {0.25, 0.75}), 0.0, 100.0);
  EXPECT_EQ(GetAttValue(model, 0, 40.0F), 0.5);
  EXPECT_EQ(GetAttValue(model, 0, 70.0F), 0.875);
  EXPECT_EQ(GetAttValue(model, 0, 0.0F), 0.0);
}

TEST(AttValue, ACurveOfThreePointsBendsBetweenThem) {
  // Slopes 1/100 and 3/100; the extrapolated ones make the middle point's slope 2/100.
  const WizardData model = ModelWith(CurveThrough({0, 10, 20}, {0, 0.1, 0.4}), 0.0, 20.0);
  EXPECT_NEAR(GetAttValue(model, 0, 10.0F), 0.1, 1e-7);
  EXPECT_NEAR(GetAttValue(model, 0, 5.0F), 0.025, 1e-7);
  EXPECT_NEAR(GetAttValue(model, 0, 15.0F), 0.225, 1e-7);
}

TEST(AttValue, PointsAreConvertedFromWhatTheFileHolds) {
  WizardData model = LineModel();
  AttValueData& values = model.AttValueData;
  values.ValuePointCount[0] = 3;
  values.ValuePointX(0, 0) = Variant();
  values.ValuePointX(0, 1) = String("50");
  values.ValuePointX(0, 2) = Integer(100);
  values.ValuePointY(0, 0) = Variant();
  values.ValuePointY(0, 1) = 0.5F;
  values.ValuePointY(0, 2) = String("1");
  EXPECT_EQ(GetAttValue(model, 0, 75.0F), 0.75);
  values.ValuePointY(0, 1) = String("half");
  EXPECT_EQ(ErrorNumber([&] { return GetAttValue(model, 0, 75.0F); }), 13);
  values.ValuePointY(0, 1) = Null();
  EXPECT_EQ(ErrorNumber([&] { return GetAttValue(model, 0, 75.0F); }), 94);
}

TEST(AttValue, PointsPastTheCountAreNotLookedAt) {
  WizardData model = LineModel();
  model.AttValueData.ValuePointX(0, 2) = String("no number");
  EXPECT_EQ(GetAttValue(model, 0, 75.0F), 0.75);
}

TEST(AttValue, MoreThanElevenPointsAreASubscriptError) {
  WizardData model = LineModel();
  model.AttValueData.ValuePointCount[0] = 12;
  EXPECT_EQ(ErrorNumber([&] { return GetAttValue(model, 0, 75.0F); }), 9);
}

TEST(AttValue, EqualAbscissaeAreADivisionByZero) {
  const WizardData different = ModelWith(CurveThrough({0, 50, 50, 100}, {0, 0.4, 0.6, 1}), 0.0, 100.0);
  EXPECT_EQ(ErrorNumber([&] { return GetAttValue(different, 0, 40.0F); }), 11);
  const WizardData same = ModelWith(CurveThrough({0, 50, 50, 100}, {0, 0.5, 0.5, 1}), 0.0, 100.0);
  EXPECT_EQ(ErrorNumber([&] { return GetAttValue(same, 0, 40.0F); }), 6);
}

TEST(AttValue, AnAttributeThatIsNoneIsASubscriptError) {
  EXPECT_EQ(ErrorNumber([] { return GetAttValue(LineModel(), 31, 1.0F); }), 9);
  EXPECT_EQ(ErrorNumber([] { return GetAttValue(LineModel(), -1, 1.0F); }), 9);
}

WizardData FormulaModel(Integer type, Double a, Double b, Double low, Double high) {
  WizardData model;
  AttValueData& values = model.AttValueData;
  values.ScoreMin[0] = low;
  values.ScoreMax[0] = high;
  values.ValueFuncType[0] = type;
  values.ValueFuncA[0] = a;
  values.ValueFuncB[0] = b;
  return model;
}

TEST(AttValueFunc, LinearIsTheShareOfTheScaleAtFourDecimals) {
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 9, 9, 20, 80), 0, 50.0F), 0.5);
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 9, 9, 0, 3), 0, 1.0F), 0.3333);
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 9, 9, 0, 3), 0, 2.0F), 0.6667);
}

TEST(AttValueFunc, GoesOnOutsideTheScale) {
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0, 100), 0, 150.0F), 1.5);
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0, 100), 0, -50.0F), -0.5);
}

TEST(AttValueFunc, ScaleAndScoreAreRoundedToFourDecimalsFirst) {
  // 0.00004 counts as 0 and 1.00004 as 1.
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0.00004, 1.00004), 0, 0.5F), 0.5);
  // 0.12345 as a Single is a little more; the Double would be a tie that goes to 0.1234.
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0, 1), 0, 0.12345F), 0.1235);
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0, 1), 0, 0.00004F), 0.0);
}

TEST(AttValueFunc, TiesGoToTheEvenFourthDecimal) {
  // 0.00025 and 0.00075.
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0, 20000), 0, 5.0F), 0.0002);
  EXPECT_EQ(GetAttValueFunc(FormulaModel(0, 0, 0, 0, 20000), 0, 15.0F), 0.0008);
}

TEST(AttValueFunc, NonLinearIsTheExponential) {
  const Double t = 0.25;
  const Double expected = std::nearbyint(1.2 * (1.0 - std::exp(-1.5 * t)) * 10000.0) / 10000.0;
  EXPECT_EQ(GetAttValueFunc(FormulaModel(1, 1.2, -1.5, 0, 100), 0, 25.0F), expected);
  EXPECT_NEAR(expected, 0.3753, 0.0001);
}

TEST(AttValueFunc, AnyOtherTypeIsZero) {
  for (const Integer type : {Integer(2), Integer(-1), Integer(99)}) {
    EXPECT_EQ(GetAttValueFunc(FormulaModel(type, 1.2, -1.5, 0, 100), 0, 25.0F), 0.0);
  }
}

TEST(AttValueFunc, AScaleOfNoLengthDividesByZero) {
  EXPECT_EQ(ErrorNumber([] { return GetAttValueFunc(FormulaModel(0, 0, 0, 50, 50), 0, 60.0F); }), 11);
  EXPECT_EQ(ErrorNumber([] { return GetAttValueFunc(FormulaModel(0, 0, 0, 50, 50), 0, 50.0F); }), 6);
  EXPECT_EQ(ErrorNumber([] { return GetAttValueFunc(FormulaModel(0, 0, 0, 50, 50.00004), 0, 60.0F); }), 11);
}

TEST(AttValueFunc, WhatAFixedPointNumberDoesNotHoldIsAnOverflow) {
  EXPECT_EQ(ErrorNumber([] { return GetAttValueFunc(FormulaModel(0, 0, 0, 0, 100), 0, 1e30F); }), 6);
  EXPECT_EQ(ErrorNumber([] { return GetAttValueFunc(FormulaModel(1, 1, 5000, 0, 100), 0, 90.0F); }), 6);
}

// The second point belongs to the first interval, also for who was in the second one just before.
TEST(PreparedCurveAtTheSecondPoint, IsTheFirstIntervalsWhereverTheLookUpComesFrom) {
  Chance chance(11);
  for (int time = 0; time < 500; ++time) {
    const Curve curve = chance.AnyCurve(chance.Whole(3, 11), chance.Real(-50.0, 50.0), 0.0, 1.0);
    PreparedCurve prepared(curve);
    prepared.ValueAt((curve.X[1] + curve.X[2]) / 2.0);
    ASSERT_EQ(prepared.ValueAt(curve.X[1]), AkimaInterpolate(curve, -1, curve.X[1])[4]) << "curve " << time;
  }
}

TEST(StripTrailingDotOf, ATextThatEndsWithAPoint) {
  EXPECT_EQ(StripTrailingDot("5."), "5");
  EXPECT_EQ(StripTrailingDot("."), "");
  EXPECT_EQ(StripTrailingDot("1.."), "1.");
}

TEST(StripTrailingDotOf, AnyOtherTextLeavesItAlone) {
  EXPECT_EQ(StripTrailingDot("5.2"), "5.2");
  EXPECT_EQ(StripTrailingDot(""), "");
  EXPECT_EQ(StripTrailingDot(".5"), ".5");
  EXPECT_EQ(StripTrailingDot("5. "), "5. ");
}

}  // namespace
}  // namespace Tarnwise
