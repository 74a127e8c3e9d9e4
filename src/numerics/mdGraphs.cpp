#include "numerics/mdGraphs.h"

#include "runtime/Numbers.h"

#include <cmath>
#include <optional>

namespace Tarnwise {

Curve CurveOf(const WizardData& data, int att) {
  const AttValueData& values = data.AttValueData;
  Curve curve;
  curve.N = values.ValuePointCount[att];
  if (curve.N > kMaxCurvePoints) throw RuntimeError(9);
  for (int k = 0; k < curve.N; ++k) {
    curve.X[static_cast<std::size_t>(k)] = ToDouble(values.ValuePointX(att, k));
    curve.Y[static_cast<std::size_t>(k)] = ToDouble(values.ValuePointY(att, k));
  }
  return curve;
}

Double ClampedValue(Double value) {
  if (std::isnan(value)) throw RuntimeError(6);
  if (value > 1.0) return 1.0;
  if (value < 0.0) return 0.0;
  return static_cast<Double>(static_cast<Single>(value));
}

Double GetAttValue(const WizardData& data, int att, Single score) {
  return ClampedValue(AkimaInterpolate(CurveOf(data, att), -1, static_cast<Double>(score))[4]);
}

namespace {

constexpr Double kTolerance = 0.0001;

// The first x of the walk whose value is near enough to the target; nothing when there is none. The coefficients change
// only where the walk enters another interval, and one comparison tells where that, or the end of the scale, is
// reached.
std::optional<Double> WalkAscending(const PreparedCurve& curve, Double x, Double step, Double top, Double target,
                                    int mostSteps) {
  int left = mostSteps;
  x += step;
  while (x < top) {
    const CurvePiece piece = curve.PieceAt(x);
    const Double stop = std::fmin(top, piece.Stop);
    do {
      if (std::fabs(piece.ValueAt(x) - target) <= kTolerance) return x;
      if (--left == 0) return std::nullopt;
      x += step;
    } while (x < stop);
  }
  return std::nullopt;
}

std::optional<Double> WalkAny(const Curve& curve, Double x, Double step, Double top, Double target, int mostSteps) {
  for (int left = mostSteps; left > 0; --left) {
    x += step;
    if (!(x < top)) break;
    if (std::fabs(AkimaInterpolate(curve, -1, x)[4] - target) <= kTolerance) return x;
  }
  return std::nullopt;
}

}  // namespace

Single GetAttScore(const WizardData& data, int att, Single value) {
  const Curve curve = CurveOf(data, att);
  if (curve.N < 1) throw RuntimeError(9);
  const Double top = data.AttValueData.ScoreMax[att];
  const Double range = top - data.AttValueData.ScoreMin[att];
  const Double step = range / 10000.0;
  const Double start = curve.X[0];
  // A step that does not move x, or moves it back, allows one point. Where x stops moving later, the points repeat
  // until the count ends the walk: the answer is the same.
  const int mostSteps = step > 0.0 && start + step != start ? 1000000 : 1;
  const auto target = static_cast<Double>(value);
  const PreparedCurve prepared(curve);
  const std::optional<Double> found = prepared.IsAscending()
                                          ? WalkAscending(prepared, start, step, top, target, mostSteps)
                                          : WalkAny(curve, start, step, top, target, mostSteps);
  return ToSingleChecked(found ? *found : range / 2.0);
}

Double GetAttValueFunc(const WizardData& data, int att, Single score) {
  const AttValueData& values = data.AttValueData;
  const Double low = RoundToFourDecimals(values.ScoreMin[att]);
  const Double high = RoundToFourDecimals(values.ScoreMax[att]);
  const Double at = RoundToFourDecimals(static_cast<Double>(score));
  // Differences of fixed-point numbers have four decimals again.
  const Double t = Divide(RoundToFourDecimals(at - low), RoundToFourDecimals(high - low));
  switch (values.ValueFuncType[att]) {
    case 0: return RoundToFourDecimals(t);
    case 1: return RoundToFourDecimals(values.ValueFuncA[att] * (1.0 - std::exp(values.ValueFuncB[att] * t)));
    default: return 0.0;
  }
}

String StripTrailingDot(const String& text) {
  return !text.empty() && text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

}  // namespace Tarnwise
