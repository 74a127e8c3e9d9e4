// Akima's local cubic interpolation through up to 11 points: the arithmetic of value curves, without anybody's data.
#pragma once

#include "runtime/Sizes.h"

#include <tarnwise/Scalars.h>

#include <array>

namespace Tarnwise {

// Coefficients of the cubic on the interval that was found, in d = Xp - x[i]: constant, slope, quadratic, cubic; and
// the interpolated value at Xp, which is set by the search only.
using Coefs = std::array<Double, 5>;

inline Double EvaluateCubic(const Coefs& k, Double d) { return k[0] + d * k[1] + (d * d) * k[2] + (d * d * d) * k[3]; }

// The points of a curve as numbers. At most 11, abscissae ascending (nobody checks: equal ones divide by zero).
struct Curve {
  int N = 0;
  std::array<Double, kMaxCurvePoints> X{};
  std::array<Double, kMaxCurvePoints> Y{};
};

// Interpolates at Xp (Hint negative: the interval is searched and the value computed), or gives the coefficients of the
// interval Hint. Which interval the search finds:
//   Xp <= x[1]              0
//   x[i] <= Xp < x[i + 1]   i
//   Xp >= x[N - 1]          N - 2; beyond the ends the first or the last cubic goes on
// No point: all zero. One: its ordinate everywhere. Two: the line through them. Three and four points, and the ends of
// longer curves, have their missing slopes extrapolated linearly. Errors 11 and 6 where abscissae coincide.
Coefs AkimaInterpolate(const Curve& curve, int Hint, Double Xp);

// One interval's cubic: it holds for From <= x < Stop.
struct CurvePiece {
  Coefs K{};
  Double Origin = 0.0;
  Double From = 0.0;
  Double Stop = 0.0;
  Double ValueAt(Double x) const { return EvaluateCubic(K, x - Origin); }
};

// A curve that is looked up again and again: each interval's coefficients are computed once. Its values are those of
// AkimaInterpolate's search to the last bit.
class PreparedCurve {
 public:
  explicit PreparedCurve(const Curve& curve);
  Double ValueAt(Double x);  // not clamped
  bool IsAscending() const { return ascending_; }
  CurvePiece PieceAt(Double x) const;  // of an ascending curve of three points at least, at a finite x

 private:
  Curve curve_;
  bool ascending_;
  CurvePiece last_;
  std::array<CurvePiece, kMaxCurvePoints> pieces_;
  std::array<bool, kMaxCurvePoints> ready_{};
};

}  // namespace Tarnwise
