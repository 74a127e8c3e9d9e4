// Weights drawn at random from boxes: uniformly in log ratio to the reference.
#pragma once

#include "dea/Region.h"

#include <cstdint>

namespace Tarnwise::Dea {

// SplitMix64 (Steele, Lea and Flood 2014): the state grows by 0x9E3779B97F4A7C15 with each number, which is the state
// mixed by two multiplications (0xBF58476D1CE4E5B9, 0x94D049BB133111EB) and three shifts with exclusive or (30, 27,
// 31). Whole numbers only, so a seed gives the same ones everywhere.
class RandomNumbers {
 public:
  explicit RandomNumbers(std::uint64_t seed) : state_(seed) {}
  std::uint64_t Next();
  Double Share();                         // the upper 53 bits as a fraction: 0 to below 1
  Double InLog(Double low, Double high);  // uniform in the logarithm

 private:
  std::uint64_t state_;
};

// Where nothing was judged prices are drawn from 1/1000 to 1000 times the reference's; a missing bound beside a judged
// one lies as far beyond that one as it lies beyond 1, at the least.
Interval DrawnFrom(Double low, Double high);

// One number for each attribute of the box, in their order, also where the interval is a point.
void DrawPrices(const Box& box, RandomNumbers& random, Double* prices);

}  // namespace Tarnwise::Dea
