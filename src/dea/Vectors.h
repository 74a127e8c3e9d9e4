// Small things that arithmetic on rows of numbers needs everywhere.
#pragma once

#include "runtime/At.h"

#include <tarnwise/Scalars.h>

#include <cmath>
#include <vector>

namespace Tarnwise::Dea {

// The largest number without regard to sign; 0 of none.
inline Double LargestOf(const Double* numbers, std::size_t count) {
  Double largest = 0.0;
  for (std::size_t j = 0; j < count; ++j) largest = std::fmax(largest, std::fabs(numbers[j]));
  return largest;
}

inline Double LargestOf(const std::vector<Double>& numbers) { return LargestOf(numbers.data(), numbers.size()); }

inline Double Product(const Double* a, const Double* b, std::size_t count) {
  Double sum = 0.0;
  for (std::size_t j = 0; j < count; ++j) sum += a[j] * b[j];
  return sum;
}

}  // namespace Tarnwise::Dea
