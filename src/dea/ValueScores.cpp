#include "dea/ValueScores.h"

#include "dea/Fractions.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tarnwise::Dea {

ValueScorer::ValueScorer(const ValueData& data, ValueRegion region)
    : data_(data),
      region_(std::move(region)),
      middle_(At(data.Attributes), 1.0),
      factors_(At(data.Attributes), 1.0),
      ones_(At(data.Attributes), 1.0) {
  for (const Box& box : region_.Boxes) TakeMiddleOf(box);
  pool_ = std::make_unique<Pool>(Shape());
}

// Typical weights of attributes that are linked to each other; as factors they add up to 1.
void ValueScorer::TakeMiddleOf(const Box& box) {
  const std::vector<Double> middle = MiddleOf(box);
  Double sum = 0.0;
  for (std::size_t j = 0; j < middle.size(); ++j) sum += box.High[j] > 0.0 ? middle[j] : 0.0;
  for (std::size_t j = 0; j < middle.size(); ++j) {
    if (box.High[j] == 0.0) continue;
    middle_[j] = middle[j];
    factors_[j] = middle[j] / sum;
  }
}

// Minimise the distance: its dual has a row for each attribute and one that makes the lambdas add up to 1. The free
// column is the distance, and its prices make the weights add up to 1.
PoolShape ValueScorer::Shape() const {
  PoolShape shape;
  shape.Rows.assign(At(data_.Attributes), RowKind::AtLeast);
  shape.Rows.push_back(RowKind::Equal);
  shape.Units = data_.Units;
  shape.Columns.reserve(At(data_.Units) * shape.Rows.size());
  for (int k = 0; k < data_.Units; ++k) {
    for (int j = 0; j < data_.Attributes; ++j) shape.Columns.push_back(data_.Of(k)[j] * factors_[At(j)]);
    shape.Columns.push_back(1.0);
  }
  for (const PriceRow& row : region_.Rows) shape.Bounds.push_back(ColumnOf(row, factors_, shape.Rows.size()));
  shape.Dominates = [this](int winner, int loser) {
    return std::all_of(region_.Boxes.begin(), region_.Boxes.end(),
                       [&](const Box& box) { return NeverLess(data_.Of(winner), data_.Of(loser), box); });
  };
  return shape;
}

Interval ValueScorer::Range(int unit) const {
  Interval range{kNoBound, -kNoBound};
  for (const Box& box : region_.Boxes) {
    range.Low = std::fmin(range.Low, LeastFraction(data_.Of(unit), ones_.data(), box));
    range.High = std::fmax(range.High, GreatestFraction(data_.Of(unit), ones_.data(), box));
  }
  return range;
}

std::optional<Double> ValueScorer::Distance(int unit, const Watch& watch) {
  if (data_.Units == 1) return std::nullopt;
  UnitProgram program;
  program.Unit = unit;
  program.Cost = -1.0;
  program.WithoutItself = true;
  for (int j = 0; j < data_.Attributes; ++j) {
    program.Own.push_back(-factors_[At(j)]);
    program.RightSide.push_back(data_.Of(unit)[j] * factors_[At(j)]);
  }
  program.Own.push_back(0.0);
  program.RightSide.push_back(1.0);
  PoolAnswer answer = pool_->Solve(program, watch);
  if (!answer.Reached) {
    pool_->Join(pool_->CandidateBesides(unit));
    answer = pool_->Solve(program, watch);
  }
  if (!answer.Reached) throw SolverFault("A program of the value form has no solution.");
  return -answer.Objective;
}

std::vector<Double> ValueScorer::Differences(int unit, int other) const {
  std::vector<Double> differences(At(data_.Attributes));
  for (int j = 0; j < data_.Attributes; ++j) differences[At(j)] = data_.Of(unit)[j] - data_.Of(other)[j];
  return differences;
}

Double ValueScorer::Regret(int unit) const {
  Double most = 0.0;
  for (const int k : pool_->Candidates()) {
    if (k == unit) continue;
    const std::vector<Double> more = Differences(k, unit);
    for (const Box& box : region_.Boxes) most = std::fmax(most, GreatestFraction(more.data(), ones_.data(), box));
  }
  return most;
}

bool ValueScorer::DominatesSurely(int winner, int loser) const {
  const std::vector<Double> more = Differences(winner, loser);
  return std::all_of(region_.Boxes.begin(), region_.Boxes.end(),
                     [&](const Box& box) { return LeastFraction(more.data(), ones_.data(), box) > kSurely; });
}

void ValueScorer::TakeValues(const std::vector<Double>& weights, std::vector<Double>& scores) const {
  const Double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
  for (int k = 0; k < data_.Units; ++k) {
    const Double* const goodness = data_.Of(k);
    scores[At(k)] = std::inner_product(weights.begin(), weights.end(), goodness, 0.0) / sum;
  }
}

std::vector<RankRange> ValueScorer::SureRanks(const Watch& watch) const {
  std::vector<Double> typical(At(data_.Units));
  TakeValues(middle_, typical);
  return Dea::SureRanks(
      typical, [this](int winner, int loser) { return DominatesSurely(winner, loser); }, watch);
}

std::vector<RankRange> ValueScorer::SeenRanks(std::uint64_t seed, const Watch& watch) const {
  RandomNumbers random(seed);
  std::vector<Double> weights(At(data_.Attributes));
  const auto draw = [&](std::vector<Double>& scores) {
    DrawPrices(region_.Drawn, random, weights.data());
    const Double factor = random.InLog(region_.CostFactor.Low, region_.CostFactor.High);
    for (std::size_t j = 0; j < weights.size(); ++j) weights[j] *= region_.IsCost[j] ? factor : 1.0;
    TakeValues(weights, scores);
  };
  return Dea::SeenRanks(data_.Units, DrawsFor(data_.Units), draw, watch);
}

}  // namespace Tarnwise::Dea
