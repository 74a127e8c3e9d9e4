#include "curves/Akima.h"

#include "runtime/Numbers.h"

#include <cmath>

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

}  // namespace Tarnwise
