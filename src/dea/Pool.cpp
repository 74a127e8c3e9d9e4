#include "dea/Pool.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tarnwise::Dea {

namespace {

// A smaller violation cannot be told from rounding in what it does to a score.
constexpr Double kJoins = 1e-10;
constexpr int kOwnColumn = 0;
constexpr std::size_t kMostFacets = 2000;

}  // namespace

Pool::Pool(PoolShape shape)
    : shape_(std::move(shape)),
      program_(shape_.Rows),
      columnOf_(At(shape_.Units), -1),
      candidates_(At(shape_.Units)),
      candidateColumns_(shape_.Columns),
      prunedBy_(At(shape_.Units)) {
  std::iota(candidates_.begin(), candidates_.end(), 0);
  program_.AddColumn(0.0, std::vector<Double>(shape_.Rows.size()), Domain::Free);
  for (const auto& bound : shape_.Bounds) program_.AddColumn(0.0, bound, Domain::NotNegative);
  unitOf_.assign(shape_.Bounds.size() + 1, -1);
}

const Double* Pool::ColumnOf(int unit) const { return &shape_.Columns[At(unit) * shape_.Rows.size()]; }

void Pool::Join(int unit) {
  const Double* const column = ColumnOf(unit);
  columnOf_[At(unit)] = program_.AddColumn(0.0, {column, column + shape_.Rows.size()}, Domain::NotNegative);
  unitOf_.push_back(unit);
  Prune(unit);
}

void Pool::Prune(int winner) {
  const std::size_t width = shape_.Rows.size();
  std::size_t kept = 0;
  for (std::size_t c = 0; c < candidates_.size(); ++c) {
    const int unit = candidates_[c];
    if (unit != winner && !Holds(unit) && shape_.Dominates(winner, unit)) {
      prunedBy_[At(winner)].push_back(unit);
      continue;
    }
    if (kept != c) {
      candidates_[kept] = unit;
      std::copy_n(candidateColumns_.begin() + static_cast<std::ptrdiff_t>(c * width), width,
                  candidateColumns_.begin() + static_cast<std::ptrdiff_t>(kept * width));
    }
    ++kept;
  }
  candidates_.resize(kept);
  candidateColumns_.resize(kept * width);
}

int Pool::CandidateBesides(int unit) const {
  for (const int other : candidates_) {
    if (other != unit) return other;
  }
  return prunedBy_[At(unit)].empty() ? -1 : prunedBy_[At(unit)].front();
}

Double Pool::ViolationOf(const Double* column) const {
  const std::vector<Double>& prices = program_.Prices();
  Double size = 0.0;
  Double sum = 0.0;
  for (std::size_t i = 0; i < At(shape_.SizedRows); ++i) size -= prices[i] * column[i];
  for (std::size_t i = At(shape_.SizedRows); i < prices.size(); ++i) sum += prices[i] * column[i];
  if (sum - size <= program_.RoundingOfPrices()) return 0.0;
  return size > 0.0 ? sum / size - 1.0 : sum;
}

Pool::Worst Pool::WorstViolation(const UnitProgram& unit) const {
  const int leftOut = unit.WithoutItself ? unit.Unit : -1;
  const std::size_t width = shape_.Rows.size();
  Worst worst;
  const auto consider = [&](int other, const Double* column) {
    if (other == leftOut) return;
    const Double violation = ViolationOf(column);
    if (violation > worst.Violation) worst = {other, violation};
  };
  for (std::size_t c = 0; c < candidates_.size(); ++c) consider(candidates_[c], &candidateColumns_[c * width]);
  if (leftOut >= 0) {
    for (const int other : prunedBy_[At(leftOut)]) consider(other, ColumnOf(other));
  }
  return worst;
}

void Pool::SetItself(const UnitProgram& unit, bool restore) {
  if (!unit.WithoutItself || !Holds(unit.Unit)) return;
  const int column = columnOf_[At(unit.Unit)];
  if (unit.CostOfItself > 0.0) {
    program_.SetCost(column, restore ? 0.0 : unit.CostOfItself);
  } else {
    program_.SetDomain(column, restore ? Domain::NotNegative : Domain::Zero);
  }
}

PoolAnswer Pool::Answer(Double violation) {
  worst_ = std::max(worst_, violation);
  PoolAnswer answer;
  answer.Reached = true;
  answer.Objective = program_.Objective();
  answer.Prices = program_.Prices();
  const std::vector<Double>& values = program_.Values();
  for (std::size_t j = shape_.Bounds.size() + 1; j < values.size(); ++j) {
    if (values[j] > 0.0) answer.Lambdas.emplace_back(unitOf_[j], values[j]);
  }
  return answer;
}

PoolAnswer Pool::Solve(const UnitProgram& unit, const Watch& watch) {
  program_.SetEntries(kOwnColumn, unit.Own);
  program_.SetCost(kOwnColumn, unit.Cost);
  program_.SetRightSide(unit.RightSide);
  SetItself(unit, false);
  PoolAnswer answer = SolveSet(unit, watch);
  SetItself(unit, true);
  return answer;
}

// The facet with the largest objective. One of a program whose own column its prices give nothing has no factor.
const Pool::Facet* Pool::BestFacet(const UnitProgram& unit) const {
  const Facet* best = nullptr;
  Double most = 0.0;
  for (const Facet& facet : facets_) {
    Double own = 0.0;
    Double objective = 0.0;
    for (std::size_t i = 0; i < facet.Prices.size(); ++i) {
      own += facet.Prices[i] * unit.Own[i];
      objective += facet.Prices[i] * unit.RightSide[i];
    }
    const Double factor = unit.Cost / own;
    if (!(factor > 0.0) || !std::isfinite(factor)) continue;
    if (best != nullptr && objective * factor <= most) continue;
    best = &facet;
    most = objective * factor;
  }
  return best;
}

void Pool::Keep(const UnitProgram& unit, Double violation) {
  if (facets_.size() >= kMostFacets || violation > kJoins || ViolationOf(ColumnOf(unit.Unit)) > kJoins) return;
  facets_.push_back({program_.Basis(), program_.Prices(), violation});
}

// The unit alone is a solution of its own program, and a place to begin where the solver finds none.
Outcome Pool::SolveFromItself(const UnitProgram& unit, const Watch& watch) {
  const auto largest = [](const std::vector<Double>& numbers, int besides) {
    int found = besides == 0 ? 1 : 0;
    for (int i = 0; At(i) < numbers.size(); ++i) {
      if (i != besides && std::fabs(numbers[At(i)]) > std::fabs(numbers[At(found)])) found = i;
    }
    return found;
  };
  const int own = largest(unit.Own, -1);
  program_.StartFrom({{own, largest(unit.RightSide, own)}, {kOwnColumn, columnOf_[At(unit.Unit)]}});
  return program_.Solve(Method::Primal, watch);
}

PoolAnswer Pool::SolveSet(const UnitProgram& unit, const Watch& watch) {
  const bool isOutsider = unit.WithoutItself && Holds(unit.Unit);  // the program lacks what facets may rest on
  const bool costsMore = isOutsider && unit.CostOfItself > 0.0;
  if (!isOutsider) {
    if (const Facet* const facet = BestFacet(unit)) {
      if (program_.Take(facet->Basis)) return Answer(facet->Violation);
      program_.StartFrom(facet->Basis);
    }
  }
  if (program_.Solve(costsMore ? Method::Primal : Method::Dual, watch) == Outcome::Infeasible) {
    if (!unit.WithoutItself && !Holds(unit.Unit)) Join(unit.Unit);
    Outcome outcome = program_.Solve(Method::Primal, watch);
    if (outcome == Outcome::Infeasible && !unit.WithoutItself) outcome = SolveFromItself(unit, watch);
    if (outcome == Outcome::Infeasible) return {};
  }
  for (;;) {
    const Worst worst = WorstViolation(unit);
    if (worst.Violation <= kJoins || Holds(worst.Unit)) {
      if (!isOutsider) Keep(unit, worst.Violation);
      return Answer(worst.Violation);
    }
    Join(worst.Unit);
    if (program_.Solve(Method::Primal, watch) == Outcome::Infeasible) return {};
  }
}

}  // namespace Tarnwise::Dea
