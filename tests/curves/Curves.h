// Value curves for tests: given ones, random ones, and models of one attribute that has the curve.
#pragma once

#include "curves/mdGraphs.h"
#include "support/ErrorNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace Tarnwise {

inline Curve CurveThrough(const std::vector<Double>& x, const std::vector<Double>& y) {
  Curve curve;
  curve.N = static_cast<int>(x.size());
  std::copy(x.begin(), x.end(), curve.X.begin());
  std::copy(y.begin(), y.end(), curve.Y.begin());
  return curve;
}

// Attribute 0 has this curve and this scale.
inline WizardData ModelWith(const Curve& curve, Double low, Double high) {
  WizardData model;
  AttValueData& values = model.AttValueData;
  values.ScoreMin[0] = low;
  values.ScoreMax[0] = high;
  values.ValuePointCount[0] = static_cast<Integer>(curve.N);
  for (int k = 0; k < curve.N; ++k) {
    values.ValuePointX(0, k) = curve.X[static_cast<std::size_t>(k)];
    values.ValuePointY(0, k) = curve.Y[static_cast<std::size_t>(k)];
  }
  return model;
}

inline Double ValueAt(const Curve& curve, Double x) { return AkimaInterpolate(curve, -1, x)[4]; }

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : engine_(seed) {}

  Double Real(Double from, Double to) { return from + (to - from) * static_cast<Double>(engine_() >> 11U) * 0x1p-53; }
  int Whole(int from, int to) { return from + static_cast<int>(engine_() % static_cast<unsigned>(to - from + 1)); }

  // n points on abscissae that ascend from `low` on, ordinates between the two.
  Curve AnyCurve(int n, Double low, Double least, Double most) {
    Curve curve;
    curve.N = n;
    Double x = low;
    for (std::size_t k = 0; k < static_cast<std::size_t>(n); ++k) {
      curve.X[k] = x;
      curve.Y[k] = Real(least, most);
      x += Real(0.05, 20.0);
    }
    return curve;
  }

  // The same with ordinates that ascend, as most value curves do.
  Curve RisingCurve(int n, Double low, Double least, Double most) {
    Curve curve = AnyCurve(n, low, least, most);
    std::sort(curve.Y.begin(), curve.Y.begin() + n);
    return curve;
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace Tarnwise
