// The value form: shares of the distance from all-worst to all-best, with the weights that judgments allow.
#pragma once

#include "dea/Pool.h"
#include "dea/Ranks.h"

namespace Tarnwise::Dea {

// Goodness of units, 0 to 1 in each attribute, more is better.
struct ValueData {
  int Units = 0;
  int Attributes = 0;
  std::vector<Double> Goodness;  // unit after unit

  const Double* Of(int unit) const { return &Goodness[At(unit) * At(Attributes)]; }
};

// Weights that are allowed: any combination of directions of the boxes, and the same as conditions. Groups that are not
// linked have a box each; a band of cross ratios has a box for each end.
struct ValueRegion {
  std::vector<Box> Boxes;
  std::vector<PriceRow> Rows;

  // For draws: both groups' weights at a reference weight of 1 (or of the cross ratio), and by what factors the second
  // group's may be multiplied.
  Box Drawn;
  std::vector<bool> IsCost;
  Interval CostFactor{1.0, 1.0};
};

class ValueScorer {
 public:
  ValueScorer(const ValueData& data, ValueRegion region);  // data has to outlive it
  ValueScorer(const ValueScorer&) = delete;
  ValueScorer& operator=(const ValueScorer&) = delete;

  Interval Range(int unit) const;

  // How far the unit is behind the best other one at its best weights; negative: ahead. Absent for a single unit.
  std::optional<Double> Distance(int unit, const Watch& watch);

  // The most that the unit loses to any. All distances have to be there: they leave the candidates.
  Double Regret(int unit) const;

  bool DominatesSurely(int winner, int loser) const;
  std::vector<RankRange> SureRanks(const Watch& watch) const;
  std::vector<RankRange> SeenRanks(std::uint64_t seed, const Watch& watch) const;
  Double WorstViolation() const { return pool_->WorstViolation(); }

 private:
  void TakeMiddleOf(const Box& box);
  PoolShape Shape() const;
  std::vector<Double> Differences(int unit, int other) const;
  void TakeValues(const std::vector<Double>& weights, std::vector<Double>& scores) const;

  const ValueData& data_;
  ValueRegion region_;
  std::vector<Double> middle_;   // typical weights
  std::vector<Double> factors_;  // what the attributes are multiplied by in the programs
  std::vector<Double> ones_;
  std::unique_ptr<Pool> pool_;
};

}  // namespace Tarnwise::Dea
