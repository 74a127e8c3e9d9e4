#include "runtime/Numbers.h"

#include <cmath>
#include <limits>

namespace Tarnwise {

Integer CheckedInteger(int wide) {
  if (wide < std::numeric_limits<Integer>::min() || wide > std::numeric_limits<Integer>::max()) throw RuntimeError(6);
  return static_cast<Integer>(wide);
}

Double RoundHalfEven(Double x) { return std::nearbyint(x); }

Double RoundToFourDecimals(Double x) {
  constexpr Double limit = 9223372036854775808.0;  // 2^63, the first product that a Currency does not hold
  const Double scaled = RoundHalfEven(x * 10000.0);
  if (!(scaled >= -limit && scaled < limit)) throw RuntimeError(6);
  return scaled / 10000.0 + 0.0;  // the sum makes a zero positive
}

Double Divide(Double numerator, Double denominator) {
  if (denominator == 0.0) throw RuntimeError(numerator == 0.0 ? 6 : 11);
  const Double quotient = numerator / denominator;
  if (!std::isfinite(quotient)) throw RuntimeError(6);
  return quotient;
}

Single DivideSingle(Single numerator, Single denominator) {
  if (denominator == 0.0F) throw RuntimeError(numerator == 0.0F ? 6 : 11);
  return CheckedSingle(numerator / denominator);
}

Single ToSingleChecked(Double x) { return CheckedSingle(static_cast<Single>(x)); }

Single CheckedSingle(Single x) {
  if (!std::isfinite(x)) throw RuntimeError(6);
  return x;
}

}  // namespace Tarnwise
