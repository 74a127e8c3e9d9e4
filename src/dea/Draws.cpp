#include "dea/Draws.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

constexpr Double kFreeSpread = 1000.0;

}  // namespace

std::uint64_t RandomNumbers::Next() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31U);
}

Double RandomNumbers::Share() { return static_cast<Double>(Next() >> 11U) * 0x1p-53; }

Double RandomNumbers::InLog(Double low, Double high) {
  const Double share = Share();
  return low == high ? low : std::clamp(low * std::pow(high / low, share), low, high);
}

Interval DrawnFrom(Double low, Double high) {
  if (low > 0.0 && high < kNoBound) return {low, high};
  if (low > 0.0) return {low, std::max(kFreeSpread, low * kFreeSpread)};
  if (high < kNoBound) return {std::min(1.0 / kFreeSpread, high / kFreeSpread), high};
  return {1.0 / kFreeSpread, kFreeSpread};
}

void DrawPrices(const Box& box, RandomNumbers& random, Double* prices) {
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    const Interval from = DrawnFrom(box.Low[j], box.High[j]);
    prices[j] = random.InLog(from.Low, from.High);
  }
}

}  // namespace Tarnwise::Dea
