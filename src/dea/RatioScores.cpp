#include "dea/RatioScores.h"

#include "dea/Fractions.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

// Lambdas this much smaller than the largest are rounding.
constexpr Double kLeastShare = 1e-11;

constexpr Double kTight = 1e-7;

// How far a score without the unit itself is followed before it counts as having no end.
constexpr std::array<Double, 4> kCaps{1e3, 1e6, 1e9, 1e12};

Double SumOf(const Double* numbers, int count) {
  Double sum = 0.0;
  for (int j = 0; j < count; ++j) sum += numbers[j];
  return sum;
}

std::vector<Double> WithLargestOne(std::vector<Double> numbers) {
  const Double largest = LargestOf(numbers);
  for (Double& x : numbers) x /= largest;
  return numbers;
}

Double LargestLambda(const PoolAnswer& answer) {
  Double largest = 0.0;
  for (const auto& [unit, lambda] : answer.Lambdas) largest = std::fmax(largest, lambda);
  return largest;
}

}  // namespace

bool HasOutputs(const RatioData& data, int unit) { return LargestOf(data.OutputsOf(unit), At(data.Outputs)) > 0.0; }

RatioScorer::RatioScorer(const RatioData& data, RatioRegion region, RatioTechnology technology)
    : data_(data), region_(std::move(region)), technology_(technology) {
  Scale();
  pool_ = std::make_unique<Pool>(Shape());
}

Double RatioScorer::LargestInput(int unit) const { return LargestOf(ScaledOf(unit), At(data_.Inputs)); }

Double RatioScorer::LargestOutput(int unit) const {
  return LargestOf(ScaledOf(unit) + data_.Inputs, At(data_.Outputs));
}

// Prices of a typical size of 1, and at these the best unit with outputs worth as much as its inputs: bounds and
// columns of the programs are well scaled then, however far apart judgments put the prices.
void RatioScorer::Scale() {
  factors_ = WithLargestOne(MiddleOf(region_.Inputs));
  const std::vector<Double> outputs = WithLargestOne(MiddleOf(region_.Outputs));
  factors_.insert(factors_.end(), outputs.begin(), outputs.end());
  scaled_ = data_.Values;
  for (std::size_t c = 0; c < scaled_.size(); ++c) scaled_[c] *= factors_[c % factors_.size()];
  Double best = 0.0;
  for (int k = 0; k < data_.Units; ++k) {
    best = std::fmax(best, SumOf(ScaledOf(k) + data_.Inputs, data_.Outputs) / SumOf(ScaledOf(k), data_.Inputs));
  }
  if (best == 0.0) return;
  for (int r = data_.Inputs; r < Attributes(); ++r) factors_[At(r)] /= best;
  for (int k = 0; k < data_.Units; ++k) {
    for (int r = data_.Inputs; r < Attributes(); ++r) scaled_[At(k * Attributes() + r)] /= best;
  }
}

PoolShape RatioScorer::Shape() const {
  PoolShape shape;
  shape.Rows.assign(At(Attributes()), RowKind::AtLeast);
  if (technology_.Returns == Returns::Variable) shape.Rows.push_back(RowKind::Equal);
  if (technology_.Returns == Returns::NonIncreasing) shape.Rows.push_back(RowKind::AtMost);
  if (technology_.Returns == Returns::NonDecreasing) shape.Rows.push_back(RowKind::AtLeast);
  shape.SizedRows = data_.Inputs;
  shape.Units = data_.Units;
  shape.Columns.reserve(At(data_.Units) * shape.Rows.size());
  for (int k = 0; k < data_.Units; ++k) {
    const Double size = std::fmax(LargestInput(k), LargestOutput(k));
    for (int j = 0; j < Attributes(); ++j) {
      shape.Columns.push_back((j < data_.Inputs ? -ScaledOf(k)[j] : ScaledOf(k)[j]) / size);
    }
    if (!IsConstant()) shape.Columns.push_back(1.0 / size);
  }
  for (const PriceRow& row : region_.Rows) shape.Bounds.push_back(ColumnOf(row, factors_, shape.Rows.size()));
  shape.Dominates = [this](int winner, int loser) { return Dominates(winner, loser); };
  return shape;
}

// With constant returns a unit is dominated that is never the more efficient one; else it must have no more outputs and
// no fewer inputs, at all prices.
bool RatioScorer::Dominates(int winner, int loser) const {
  const Double* const x = data_.InputsOf(winner);
  const Double* const y = data_.OutputsOf(winner);
  const Double* const otherX = data_.InputsOf(loser);
  const Double* const otherY = data_.OutputsOf(loser);
  if (!IsConstant()) return NeverLess(y, otherY, region_.Outputs) && NeverLess(otherX, x, region_.Inputs);
  const Double outputs = LeastFraction(y, otherY, region_.Outputs);
  return outputs > 0.0 && outputs * LeastFraction(otherX, x, region_.Inputs) >= 1.0;
}

// With constant returns outputs may be counted in any size; else they go with the sum of the lambdas.
Double RatioScorer::RightSideSize(int unit) const {
  if (!IsConstant()) return std::fmax(LargestInput(unit), LargestOutput(unit));
  const Double largest = LargestOutput(unit);
  return largest > 0.0 ? largest : 1.0;
}

UnitProgram RatioScorer::ProgramOf(int unit) const {
  UnitProgram program;
  program.Unit = unit;
  const std::size_t rows = At(Attributes() + (IsConstant() ? 0 : 1));
  program.Own.assign(rows, 0.0);
  program.RightSide.assign(rows, 0.0);
  const Double size = RightSideSize(unit);
  const Double* const own = ScaledOf(unit);
  if (IsSolvedOut()) {
    program.Cost = -1.0;
    for (int i = 0; i < data_.Inputs; ++i) program.RightSide[At(i)] = -own[i] / size;
    for (int r = data_.Inputs; r < Attributes(); ++r) program.Own[At(r)] = -own[r] / LargestOutput(unit);
  } else {
    for (int i = 0; i < data_.Inputs; ++i) program.Own[At(i)] = own[i] / LargestInput(unit);
    for (int r = data_.Inputs; r < Attributes(); ++r) program.RightSide[At(r)] = own[r] / size;
  }
  if (!IsConstant()) program.RightSide.back() = 1.0 / size;
  return program;
}

RatioScore RatioScorer::Score(int unit, const Watch& watch) {
  if (IsOut() && !HasOutputs(data_, unit)) return {};
  const PoolAnswer answer = pool_->Solve(ProgramOf(unit), watch);
  if (!answer.Reached) throw SolverFault("A program of the ratio form has no solution.");
  return ScoreFrom(unit, answer);
}

RatioScore RatioScorer::ScoreFrom(int unit, const PoolAnswer& answer) const {
  RatioScore score;
  const Double size = RightSideSize(unit);
  Double lambdaSize = size;
  if (IsSolvedOut()) {
    score.Score = std::fmax(-answer.Objective * size / LargestOutput(unit), 1.0);
  } else {
    score.Score = std::clamp(answer.Objective * size / LargestInput(unit), 0.0, 1.0);
    if (IsOut()) {
      score.Score = 1.0 / *score.Score;
      lambdaSize *= *score.Score;
    }
  }
  const Double leastLambda = kLeastShare * LargestLambda(answer);
  for (const auto& [other, lambda] : answer.Lambdas) {
    if (lambda <= leastLambda) continue;
    score.Peers.emplace_back(other, lambda * lambdaSize / std::fmax(LargestInput(other), LargestOutput(other)));
  }
  std::sort(score.Peers.begin(), score.Peers.end());
  SetPrices(unit, answer, score);
  score.Binding = TightRows(score.Prices);
  return score;
}

// A condition that the prices do not meet with equality changes nothing when it is dropped. Of prices too small to
// matter nothing is known: they may be anywhere between their bounds.
std::vector<int> RatioScorer::TightRows(const std::vector<Double>& prices) const {
  const Double negligible = kTight * LargestOf(prices);
  std::vector<int> tight;
  for (std::size_t row = 0; row < region_.Rows.size(); ++row) {
    Double sum = 0.0;
    Double size = 0.0;
    bool isKnown = true;
    for (const auto& [attribute, coefficient] : region_.Rows[row].Terms) {
      const Double term = coefficient * prices[At(attribute)];
      sum += term;
      size = std::fmax(size, std::fabs(term));
      isKnown = isKnown && prices[At(attribute)] > negligible;
    }
    if (!isKnown || sum >= -kTight * size) tight.push_back(static_cast<int>(row));
  }
  return tight;
}

void RatioScorer::SetPrices(int unit, const PoolAnswer& answer, RatioScore& score) const {
  score.Prices.resize(At(Attributes()));
  for (std::size_t j = 0; j < score.Prices.size(); ++j) {
    score.Prices[j] = std::fmax(answer.Prices[j], 0.0) * factors_[j];
  }
  const Double worth = IsOut() ? Product(&score.Prices[At(data_.Inputs)], data_.OutputsOf(unit), At(data_.Outputs))
                               : Product(score.Prices.data(), data_.InputsOf(unit), At(data_.Inputs));
  for (Double& price : score.Prices) price /= worth;
}

// Where the others of the pool do not reach the unit's outputs, the unit itself is let in at a cost: a solution that
// does without it is the score, and one that never does has no end.
std::optional<Double> RatioScorer::Super(int unit, const Watch& watch) {
  if (data_.Units == 1 || !HasOutputs(data_, unit)) return std::nullopt;
  UnitProgram program = ProgramOf(unit);
  program.WithoutItself = true;
  PoolAnswer answer = pool_->Solve(program, watch);
  Double scale = 1.0;
  for (const Double cap : kCaps) {
    if (answer.Reached) break;
    if (!pool_->Holds(unit)) pool_->Join(unit);
    program.Cost = 1.0 / cap;
    program.CostOfItself = 1.0;
    scale = cap;
    answer = pool_->Solve(program, watch);
    for (const auto& [other, lambda] : answer.Lambdas) {
      if (other == unit && lambda > kLeastShare) answer.Reached = false;
    }
  }
  if (!answer.Reached) return std::nullopt;
  const Double score = answer.Objective * scale * RightSideSize(unit) / LargestInput(unit);
  return IsOut() ? 1.0 / score : score;
}

}  // namespace Tarnwise::Dea
