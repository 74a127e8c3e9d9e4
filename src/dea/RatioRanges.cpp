#include "dea/RatioRanges.h"

#include "dea/Fractions.h"

#include <cmath>

namespace Tarnwise::Dea {

namespace {

// Efficiency of all units at some prices, not yet divided by the best one's.
void Efficiencies(const RatioData& data, const Double* inputPrices, const Double* outputPrices,
                  std::vector<Double>& scores) {
  for (int k = 0; k < data.Units; ++k) {
    scores[At(k)] = Product(outputPrices, data.OutputsOf(k), At(data.Outputs)) /
                    Product(inputPrices, data.InputsOf(k), At(data.Inputs));
  }
}

}  // namespace

Double LeastEfficiency(const RatioData& data, const RatioRegion& region, const std::vector<int>& candidates, int unit) {
  if (!HasOutputs(data, unit)) return 0.0;
  Double least = 1.0;
  for (const int k : candidates) {
    if (k == unit || !HasOutputs(data, k)) continue;
    const Double outputs = LeastFraction(data.OutputsOf(unit), data.OutputsOf(k), region.Outputs);
    if (outputs == 0.0) return 0.0;
    least = std::fmin(least, outputs * LeastFraction(data.InputsOf(k), data.InputsOf(unit), region.Inputs));
  }
  return least;
}

bool DominatesSurely(const RatioData& data, const RatioRegion& region, int winner, int loser) {
  if (!HasOutputs(data, winner)) return false;
  if (!HasOutputs(data, loser)) return true;
  const Double outputs = LeastFraction(data.OutputsOf(winner), data.OutputsOf(loser), region.Outputs);
  if (outputs == 0.0) return false;
  return outputs * LeastFraction(data.InputsOf(loser), data.InputsOf(winner), region.Inputs) > 1.0 + kSurely;
}

std::vector<RankRange> SureRatioRanks(const RatioData& data, const RatioRegion& region, const Watch& watch) {
  std::vector<Double> typical(At(data.Units));
  Efficiencies(data, MiddleOf(region.Inputs).data(), MiddleOf(region.Outputs).data(), typical);
  return SureRanks(
      typical, [&](int winner, int loser) { return DominatesSurely(data, region, winner, loser); }, watch);
}

std::vector<RankRange> SeenRatioRanks(const RatioData& data, const RatioRegion& region, std::uint64_t seed,
                                      const Watch& watch) {
  RandomNumbers random(seed);
  std::vector<Double> inputPrices(region.Inputs.Low.size());
  std::vector<Double> outputPrices(region.Outputs.Low.size());
  const auto draw = [&](std::vector<Double>& scores) {
    DrawPrices(region.Inputs, random, inputPrices.data());
    DrawPrices(region.Outputs, random, outputPrices.data());
    Efficiencies(data, inputPrices.data(), outputPrices.data(), scores);
  };
  return SeenRanks(data.Units, DrawsFor(data.Units), draw, watch);
}

}  // namespace Tarnwise::Dea
