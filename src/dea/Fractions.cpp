#include "dea/Fractions.h"

#include <cmath>

namespace Tarnwise::Dea {

namespace {

constexpr Double kRounding = 1e-13;

struct Sums {
  Double A = 0.0;
  Double B = 0.0;
};

Double FiniteHigh(const Box& box, std::size_t j) { return box.High[j] == kNoBound ? box.Low[j] : box.High[j]; }

Sums AtHighs(const Double* a, const Double* b, const Box& box) {
  Sums sums;
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    const Double price = FiniteHigh(box, j);
    sums.A += a[j] * price;
    sums.B += b[j] * price;
  }
  return sums;
}

// The corner that brings a - fraction * b down the most. What is zero but for rounding takes its low price: a high one
// that outweighs all others made the fraction what it is, and would hide what they can do.
Sums AtBestCorner(const Double* a, const Double* b, const Box& box, Double fraction) {
  Sums sums;
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    const Double even = fraction * b[j];
    const bool isLess = a[j] < even - kRounding * std::fmax(std::fabs(a[j]), std::fabs(even));
    const Double price = isLess ? FiniteHigh(box, j) : box.Low[j];
    sums.A += a[j] * price;
    sums.B += b[j] * price;
  }
  return sums;
}

// Dinkelbach's method: each round's corner is the best for the fraction of the round before, until that stops falling.
Double LeastOverCorners(const Double* a, const Double* b, const Box& box) {
  Sums sums = AtHighs(a, b, box);
  if (!(sums.B > 0.0)) return kNoBound;
  Double least = sums.A / sums.B;
  for (;;) {
    sums = AtBestCorner(a, b, box, least);
    if (!(sums.B > 0.0)) return least;
    const Double fraction = sums.A / sums.B;
    if (!(fraction < least)) return least;
    least = fraction;
  }
}

}  // namespace

Double LeastFraction(const Double* a, const Double* b, const Box& box) {
  Double least = LeastOverCorners(a, b, box);
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    if (box.High[j] == kNoBound && b[j] > 0.0) least = std::fmin(least, a[j] / b[j]);
  }
  return least;
}

Double GreatestFraction(const Double* a, const Double* b, const Box& box) {
  std::vector<Double> negative(box.Low.size());
  for (std::size_t j = 0; j < negative.size(); ++j) negative[j] = -a[j];
  return -LeastFraction(negative.data(), b, box);
}

bool NeverLess(const Double* a, const Double* b, const Box& box) {
  Double sum = 0.0;
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    const Double more = a[j] - b[j];
    if (more >= 0.0) {
      sum += more * box.Low[j];
    } else if (box.High[j] == kNoBound) {
      return false;
    } else {
      sum += more * box.High[j];
    }
  }
  return sum >= 0.0;
}

}  // namespace Tarnwise::Dea
