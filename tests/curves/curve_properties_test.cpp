#include "Curves.h"

#include <rapidcheck/gtest.h>

#include <cmath>

namespace Tarnwise {
namespace {

rc::Gen<Double> AnyBetween(Double low, Double high) {
  return rc::gen::map(rc::gen::inRange(0, 1000001), [=](int part) { return low + (high - low) * part / 1000000.0; });
}

rc::Gen<std::vector<Double>> Ascending(int n) {
  return rc::gen::map(rc::gen::container<std::vector<Double>>(static_cast<std::size_t>(n), AnyBetween(0.01, 50.0)),
                      [](std::vector<Double> steps) {
                        Double x = -100.0;
                        for (Double& step : steps) step = x += step;
                        return steps;
                      });
}

RC_GTEST_PROP(CurveProperty, ValuesStayBetweenZeroAndOne, ()) {
  const int n = *rc::gen::inRange(0, 12);
  const auto x = *Ascending(n);
  const auto y = *rc::gen::container<std::vector<Double>>(static_cast<std::size_t>(n), AnyBetween(-2.0, 3.0));
  const WizardData model = ModelWith(CurveThrough(x, y), 0.0, 100.0);
  for (int time = 0; time < 20; ++time) {
    const Double value = GetAttValue(model, 0, static_cast<Single>(*AnyBetween(-1000.0, 1000.0)));
    RC_ASSERT(value >= 0.0);
    RC_ASSERT(value <= 1.0);
    RC_ASSERT(value == static_cast<Double>(static_cast<Single>(value)));
  }
}

RC_GTEST_PROP(CurveProperty, AStraightLineIsReproduced, ()) {
  const int n = *rc::gen::inRange(2, 12);
  const auto x = *Ascending(n);
  const Double a = *AnyBetween(-1.0, 1.0);
  const Double b = *AnyBetween(-0.1, 0.1);
  std::vector<Double> y;
  for (const Double at : x) y.push_back(a + b * at);
  const Curve curve = CurveThrough(x, y);
  for (int time = 0; time < 20; ++time) {
    const Double at = *AnyBetween(x.front(), x.back());
    RC_ASSERT(std::fabs(AkimaInterpolate(curve, -1, at)[4] - (a + b * at)) <= 1e-9);
  }
}

RC_GTEST_PROP(CurveProperty, TheScoreOfAValueHasThatValueOrIsHalfTheRange, ()) {
  const int n = *rc::gen::inRange(1, 12);
  const auto x = *Ascending(n);
  const auto y = *rc::gen::container<std::vector<Double>>(static_cast<std::size_t>(n), AnyBetween(0.0, 1.0));
  const Curve curve = CurveThrough(x, y);
  const WizardData model = ModelWith(curve, x.front(), x.back() + 1.0);
  const auto value = static_cast<Single>(*AnyBetween(0.0, 1.0));
  const Single score = GetAttScore(model, 0, value);
  if (score == static_cast<Single>((x.back() + 1.0 - x.front()) / 2.0)) return;
  const Double found = AkimaInterpolate(curve, -1, static_cast<Double>(score))[4];
  // The score was rounded to Single since.
  RC_ASSERT(std::fabs(found - static_cast<Double>(value)) <= 0.0001 + 0.01);
  RC_ASSERT(static_cast<Double>(score) > x.front() - 1e-3);
}

}  // namespace
}  // namespace Tarnwise
