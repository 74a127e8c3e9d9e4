// Value curves: Akima's local cubic interpolation through up to 11 points, values of scores and scores of values.
#pragma once

#include "frame/mdTRNMain.h"

#include <array>

namespace Tarnwise {

// Coefficients of the cubic on the interval that was found, in d = Xp - x[i]: constant, slope, quadratic, cubic; and
// the interpolated value at Xp, which is set by the search only.
using Coefs = std::array<Double, 5>;

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

// The attribute's curve. Error 9 when its count passes 11, 13 or 94 for a point that is no number.
Curve CurveOf(const WizardData& data, int att);

// The value of a score, 0 to 1, at Single precision. Error 6 where the curve gives no number.
Double ValueOn(const Curve& curve, Single score);
Double GetAttValue(const WizardData& data, int att, Single score);

// The score of a value: the first one, in steps of a ten-thousandth of the scale, whose value comes within 0.0001. On a
// steep curve a step can jump over that; then, as for a value that is not reached, the answer is half the range.
// Error 9 for a curve without points.
Single GetAttScore(const WizardData& data, int att, Single value);

// The attribute's closed-form value function, to four decimals. No step uses it.
Double GetAttValueFunc(const WizardData& data, int att, Single score);

// The text without a point at its end.
String StripTrailingDot(const String& text);

}  // namespace Tarnwise
