#include "project/NiceRange.h"

#include <tarnwise/Scalars.h>

#include <charconv>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kStepsInRange = 10.0;
constexpr double kMostSteps = 1e14;  // from zero; beyond, a Double can't tell two of them apart for certain

// Digit times ten to the power Exponent.
struct Step {
  int Digit = 1;
  int Exponent = 0;

  // The number of that many steps, as if its decimals had been typed.
  double Times(double count) const {
    const String text = std::to_string(static_cast<long long>(count) * Digit) + "e" + std::to_string(Exponent);
    double number = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() ? number : std::nan("");
  }
};

Step SmallestFrom(double least) {
  Step step{1, static_cast<int>(std::floor(std::log10(least))) - 1};
  while (step.Times(1.0) < least) {
    if (step.Digit == 5) ++step.Exponent;
    step.Digit = step.Digit == 1 ? 2 : step.Digit == 2 ? 5 : 1;
  }
  return step;
}

double AtOrBelow(double number, const Step& step) {
  double count = std::floor(number / step.Times(1.0)) + 1.0;
  while (step.Times(count) > number) count -= 1.0;
  return step.Times(count);
}

double Below(double number, const Step& step) {
  double count = std::floor(number / step.Times(1.0)) + 1.0;
  while (step.Times(count) >= number) count -= 1.0;
  return step.Times(count);
}

}  // namespace

Range NiceRange(double low, double high) {
  const Range plain{low, high};
  double span = high - low;
  if (span == 0.0) span = low == 0.0 ? kStepsInRange : std::fabs(low);
  const double least = span / kStepsInRange;
  if (!std::isnormal(least) || std::fmax(std::fabs(low), std::fabs(high)) / least > kMostSteps) return plain;
  const Step step = SmallestFrom(least);
  Range range{Below(low, step), -Below(-high, step)};
  if (!std::isfinite(range.Low) || !std::isfinite(range.High)) return plain;
  if (low >= 0.0) {
    range.Low = std::fmax(range.Low, 0.0);
  } else if (high <= 0.0) {
    range.High = std::fmin(range.High, 0.0);
  }
  range.High += 0.0;  // no -0
  return range;
}

Range RoundedOutward(double low, double high) {
  constexpr double kSteps = 100.0;
  const Range plain{low, high};
  const double least = (high - low) / kSteps;
  if (!std::isnormal(least) || std::fmax(std::fabs(low), std::fabs(high)) / least > kMostSteps) return plain;
  const Step step = SmallestFrom(least);
  const Range range{AtOrBelow(low, step) + 0.0, 0.0 - AtOrBelow(-high, step)};
  return std::isfinite(range.Low) && std::isfinite(range.High) ? range : plain;
}

}  // namespace Tarnwise
