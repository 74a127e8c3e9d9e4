// Value curves: what holds for every curve, and what for rising ones.
#include "curves/Curves.h"
#include "support/Random.h"

#include <cmath>

namespace Tarnwise {
namespace {

Curve AnyCurve(int fewest) {
  Curve curve;
  curve.N = Whole(fewest, kMaxCurvePoints);
  Double x = Between(-100.0, 100.0);
  for (std::size_t k = 0; k < static_cast<std::size_t>(curve.N); ++k) {
    curve.X[k] = x;
    curve.Y[k] = Between(0.0, 1.0);
    x += Between(1.0, 20.0);
  }
  return curve;
}

std::size_t AnyPoint(const Curve& curve) { return static_cast<std::size_t>(Whole(0, curve.N - 1)); }

RC_GTEST_PROP(CurveLaw, GoesThroughItsPoints, ()) {
  const Curve curve = AnyCurve(1);
  const std::size_t k = AnyPoint(curve);
  RC_ASSERT(std::fabs(ValueAt(curve, curve.X[k]) - curve.Y[k]) <= 1e-9);
}

RC_GTEST_PROP(CurveLaw, HasNoStepAtItsPoints, ()) {
  const Curve curve = AnyCurve(2);
  const Double x = curve.X[AnyPoint(curve)];
  RC_ASSERT(std::fabs(ValueAt(curve, x - 1e-7) - ValueAt(curve, x + 1e-7)) <= 1e-5);
}

RC_GTEST_PROP(CurveLaw, HasNoCornerAtItsPoints, ()) {
  const Curve curve = AnyCurve(3);
  RC_PRE(curve.N >= 3);
  const std::size_t k = static_cast<std::size_t>(Whole(1, curve.N - 2));
  const Coefs left = AkimaInterpolate(curve, static_cast<int>(k) - 1, 0.0);
  const Coefs right = AkimaInterpolate(curve, static_cast<int>(k), 0.0);
  const Double h = curve.X[k] - curve.X[k - 1];
  RC_ASSERT(std::fabs(left[1] + 2.0 * h * left[2] + 3.0 * h * h * left[3] - right[1]) <= 1e-8);
}

RC_GTEST_PROP(CurveLaw, LooksAtNoPointFurtherThanThreeAway, ()) {
  Curve curve = AnyCurve(8);
  const int i = Whole(0, curve.N - 2);
  const auto at = static_cast<std::size_t>(i);
  const Double x = Between(curve.X[at] + 1e-6, curve.X[at + 1] - 1e-6);
  const Double before = ValueAt(curve, x);
  for (int k = 0; k < curve.N; ++k) {
    if (k < i - 2 || k > i + 3) curve.Y[static_cast<std::size_t>(k)] = Between(-5.0, 5.0);
  }
  RC_ASSERT(ValueAt(curve, x) == before);
}

RC_GTEST_PROP(CurveLaw, AMirroredCurveIsTheMirrorOfTheCurve, ()) {
  const Curve curve = AnyCurve(2);
  Curve mirror = curve;
  for (std::size_t k = 0; k < static_cast<std::size_t>(curve.N); ++k) {
    const std::size_t other = static_cast<std::size_t>(curve.N) - 1 - k;
    mirror.X[k] = -curve.X[other];
    mirror.Y[k] = curve.Y[other];
  }
  const Double x = Between(curve.X[0], curve.X[static_cast<std::size_t>(curve.N) - 1]);
  RC_ASSERT(std::fabs(ValueAt(mirror, -x) - ValueAt(curve, x)) <= 1e-8);
}

RC_GTEST_PROP(CurveLaw, ACurveOfTwiceTheHeightHasTwiceTheValues, ()) {
  const Curve curve = AnyCurve(1);
  Curve twice = curve;
  for (Double& y : twice.Y) y *= 2.0;
  const Double x = Between(-150.0, 350.0);
  RC_ASSERT(ValueAt(twice, x) == 2.0 * ValueAt(curve, x));
}

RC_GTEST_PROP(CurveLaw, ThePreparedCurveIsTheSameToTheLastBit, ()) {
  const Curve curve = AnyCurve(1);
  PreparedCurve prepared(curve);
  for (int time = 0; time < 30; ++time) {
    const Double x = Whole(0, 3) == 0 ? curve.X[AnyPoint(curve)] : Between(-150.0, 350.0);
    RC_ASSERT(prepared.ValueAt(x) == ValueAt(curve, x));
  }
}

// Nearly even points that rise by nearly the same: no step of the search jumps over a value.
WizardData RisingModel() {
  Curve curve;
  curve.N = Whole(2, kMaxCurvePoints);
  const Double low = Between(-100.0, 100.0);
  const Double range = Between(1.0, 300.0);
  Double y = 0.0;
  for (std::size_t k = 0; k < static_cast<std::size_t>(curve.N); ++k) {
    curve.X[k] = low + range * static_cast<Double>(k) / (curve.N - 1);
    curve.Y[k] = y;
    y += Between(1.0, 1.3);
  }
  const Double top = curve.Y[static_cast<std::size_t>(curve.N) - 1];
  for (Double& value : curve.Y) value /= top;
  return ModelWith(curve, low, low + range);
}

RC_GTEST_PROP(ScoreLaw, TheScoreOfAValueHasThatValue, ()) {
  const WizardData model = RisingModel();
  const auto value = static_cast<Single>(Between(0.001, 0.999));
  const Single score = GetAttScore(model, 0, value);
  RC_ASSERT(std::fabs(GetAttValue(model, 0, score) - static_cast<Double>(value)) <= 0.00011);
}

RC_GTEST_PROP(ScoreLaw, IsTheFirstOneNearEnough, ()) {
  const WizardData model = RisingModel();
  const auto at =
      static_cast<Single>(Between(model.AttValueData.ScoreMin[0] + 0.01, model.AttValueData.ScoreMax[0] - 0.01));
  const Double value = GetAttValue(model, 0, at);
  RC_PRE(value > 0.001 && value < 0.999);
  const Single score = GetAttScore(model, 0, static_cast<Single>(value));
  const Double step = (model.AttValueData.ScoreMax[0] - model.AttValueData.ScoreMin[0]) / 10000.0;
  RC_ASSERT(static_cast<Double>(score) <= static_cast<Double>(at) + step);
}

RC_GTEST_PROP(ScoreLaw, AValueAboveTheTopIsHalfTheRange, ()) {
  const WizardData model = RisingModel();
  const Double range = model.AttValueData.ScoreMax[0] - model.AttValueData.ScoreMin[0];
  RC_ASSERT(GetAttScore(model, 0, static_cast<Single>(Between(1.001, 5.0))) == static_cast<Single>(range / 2.0));
}

RC_GTEST_PROP(ValueLaw, AHigherScoreIsNotWorthLessOnARisingCurve, ()) {
  const WizardData model = RisingModel();
  const Double low = model.AttValueData.ScoreMin[0];
  const Double high = model.AttValueData.ScoreMax[0];
  const Double a = Between(low, high);
  const Double b = Between(a, high);
  RC_ASSERT(GetAttValue(model, 0, static_cast<Single>(a)) <= GetAttValue(model, 0, static_cast<Single>(b)));
}

}  // namespace
}  // namespace Tarnwise
