#include "numerics/mdGraphs.h"

#include "runtime/Numbers.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Tarnwise {

namespace {

// Differences below the machine epsilon count as zero.
bool IsNegligible(Double x) { return 1.0 + x == 1.0; }

// The five slopes around an interval; those beyond the ends are extrapolated.
struct Slopes {
  Double M0, M1, M2, M3, M4;
};

Slopes SlopesAround(const Curve& c, int i) {
  const auto s = [&c](int k) {
    const auto at = static_cast<std::size_t>(k);
    return Divide(c.Y[at + 1] - c.Y[at], c.X[at + 1] - c.X[at]);
  };
  Slopes m{};
  m.M2 = s(i);
  if (c.N == 3 && i == 0) {
    m.M3 = s(1);
    m.M4 = 2.0 * m.M3 - m.M2;
    m.M1 = 2.0 * m.M2 - m.M3;
    m.M0 = 2.0 * m.M1 - m.M2;
  } else if (c.N == 3) {
    m.M1 = s(0);
    m.M0 = 2.0 * m.M1 - m.M2;
    m.M3 = 2.0 * m.M2 - m.M1;
    m.M4 = 2.0 * m.M3 - m.M2;
  } else if (i == 0) {
    m.M3 = s(1);
    m.M1 = 2.0 * m.M2 - m.M3;
    m.M0 = 2.0 * m.M1 - m.M2;
    m.M4 = s(2);
  } else if (i == 1) {
    m.M3 = s(2);
    m.M1 = s(0);
    m.M0 = 2.0 * m.M1 - m.M2;
    m.M4 = c.N == 4 ? 2.0 * m.M3 - m.M2 : s(3);
  } else if (i < c.N - 3) {
    m.M1 = s(i - 1);
    m.M0 = s(i - 2);
    m.M3 = s(i + 1);
    m.M4 = s(i + 2);
  } else if (i == c.N - 3) {
    m.M1 = s(i - 1);
    m.M3 = s(c.N - 2);
    m.M4 = 2.0 * m.M3 - m.M2;
    m.M0 = s(i - 2);
  } else {
    m.M1 = s(i - 1);
    m.M3 = 2.0 * m.M2 - m.M1;
    m.M4 = 2.0 * m.M3 - m.M2;
    m.M0 = s(i - 2);
  }
  return m;
}

// The slope at the point between two intervals, from the two slopes on each side of it.
Double SlopeAt(Double before, Double left, Double right, Double after) {
  const Double a = std::fabs(after - right);
  const Double b = std::fabs(left - before);
  if (IsNegligible(a) && IsNegligible(b)) return (left + right) / 2.0;
  return (a * left + b * right) / (a + b);
}

int IntervalOf(const Curve& c, Double Xp) {
  if (Xp <= c.X[1]) return 0;
  if (Xp >= c.X[static_cast<std::size_t>(c.N) - 1]) return c.N - 2;
  int lo = 1;
  int hi = c.N;
  while (std::abs(hi - lo) != 1) {
    const int mid = (lo + hi) / 2;
    if (Xp < c.X[static_cast<std::size_t>(mid) - 1]) {
      hi = mid;
    } else {
      lo = mid;
    }
  }
  return lo - 1;
}

// The value of the line through two points.
Double OnLine(const Curve& c, Double Xp) {
  return Divide((Xp - c.X[1]) * c.Y[0] - (Xp - c.X[0]) * c.Y[1], c.X[0] - c.X[1]);
}

bool Ascends(const Curve& c) {
  for (std::size_t i = 1; i < static_cast<std::size_t>(c.N); ++i) {
    if (!(c.X[i - 1] < c.X[i])) return false;
  }
  return true;
}

}  // namespace

Coefs AkimaInterpolate(const Curve& curve, int Hint, Double Xp) {
  Coefs k{};
  if (curve.N < 1) return k;
  if (curve.N == 1) {
    k[0] = curve.Y[0];
    k[4] = curve.Y[0];
    return k;
  }
  if (curve.N == 2) {
    k[0] = curve.Y[0];
    k[1] = Divide(curve.Y[1] - curve.Y[0], curve.X[1] - curve.X[0]);
    if (Hint < 0) k[4] = OnLine(curve, Xp);
    return k;
  }
  int i = Hint >= 0 ? Hint : IntervalOf(curve, Xp);
  if (i >= curve.N - 1) i = curve.N - 2;
  const Slopes m = SlopesAround(curve, i);
  const Double t0 = SlopeAt(m.M0, m.M1, m.M2, m.M3);
  const Double t1 = SlopeAt(m.M1, m.M2, m.M3, m.M4);
  const auto at = static_cast<std::size_t>(i);
  const Double h = curve.X[at + 1] - curve.X[at];
  k[0] = curve.Y[at];
  k[1] = t0;
  k[2] = (3.0 * m.M2 - 2.0 * t0 - t1) / h;
  k[3] = (t0 + t1 - 2.0 * m.M2) / (h * h);
  if (Hint < 0) k[4] = EvaluateCubic(k, Xp - curve.X[at]);
  return k;
}

PreparedCurve::PreparedCurve(const Curve& curve) : curve_(curve), ascending_(curve.N >= 3 && Ascends(curve)) {}

CurvePiece PreparedCurve::PieceAt(Double x) const {
  const int i = IntervalOf(curve_, x);
  const auto at = static_cast<std::size_t>(i);
  CurvePiece piece;
  piece.K = AkimaInterpolate(curve_, i, x);
  piece.Origin = curve_.X[at];
  // The first interval holds its right end too; the outer ones go on beyond the points.
  const Double second = std::nextafter(curve_.X[1], INFINITY);
  piece.From = i == 0 ? -INFINITY : i == 1 ? second : curve_.X[at];
  piece.Stop = i == curve_.N - 2 ? INFINITY : i == 0 ? second : curve_.X[at + 1];
  return piece;
}

Double PreparedCurve::ValueAt(Double x) {
  if (x >= last_.From && x < last_.Stop) return last_.ValueAt(x);
  if (!ascending_ || !std::isfinite(x)) return AkimaInterpolate(curve_, -1, x)[4];
  const auto at = static_cast<std::size_t>(IntervalOf(curve_, x));
  if (!ready_[at]) {
    pieces_[at] = PieceAt(x);
    ready_[at] = true;
  }
  last_ = pieces_[at];
  return last_.ValueAt(x);
}

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
constexpr int kStride = 100;

// How far the piece's values, as they are computed, can go apart over a stretch within `h` of its origin: the steepest
// that its slope can be there, and what rounding adds.
Double Spread(const CurvePiece& piece, Double h, Double stretch, Double target) {
  const Double k1 = std::fabs(piece.K[1]);
  const Double k2 = std::fabs(piece.K[2]) * h;
  const Double k3 = std::fabs(piece.K[3]) * h * h;
  return (k1 + 2.0 * k2 + 3.0 * k3) * stretch +
         1e-13 * (std::fabs(piece.K[0]) + (k1 + k2 + k3) * h + std::fabs(target));
}

// The first x of the walk whose value is near enough to the target; nothing when there is none. The coefficients change
// only where the walk enters another interval, and one comparison tells where that, or the end of the scale, is
// reached. Where a value is too far off for the next ones to come near, only the additions are carried out: each x is
// the rounded sum of all steps before it.
std::optional<Double> WalkAscending(const PreparedCurve& curve, Double x, Double step, Double top, Double target,
                                    int mostSteps) {
  const Double perStep = 0.5 / step;  // a rounded step is less than two of them
  int left = mostSteps;
  x += step;
  while (x < top) {
    const CurvePiece piece = curve.PieceAt(x);
    const Double stop = std::fmin(top, piece.Stop);
    const Double h = std::fmax(std::fabs(x - piece.Origin), std::fabs(stop - piece.Origin));
    const Double spread = Spread(piece, h, kStride / perStep, target);
    do {
      const Double off = std::fabs(piece.ValueAt(x) - target);
      if (off <= kTolerance) return x;
      int steps = 1;
      if (off > kTolerance + spread) {
        const auto room = static_cast<int>(std::fmin((stop - x) * perStep, kStride));
        steps = std::clamp(room, 1, left);
      }
      left -= steps;
      if (left == 0) return std::nullopt;
      for (int k = 0; k < steps; ++k) x += step;
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
