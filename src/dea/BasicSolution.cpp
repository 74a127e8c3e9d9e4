#include "dea/BasicSolution.h"

#include "dea/DenseSolve.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

// What is this much smaller than its neighbours is the rounding of a zero.
constexpr Double kRowRounding = 1e-13;

// Terms of prices may cancel each other, up to so much more than what anything costs.
constexpr Double kMostCancelled = 1e4;

// A column whose prices pass its cost by more has been overlooked by the solver.
constexpr Double kWrong = 1e-11;

// Of each row: what its terms and its right-hand side come to without regard to sign.
std::vector<Double> RowSizes(const ProgramData& program, const std::vector<Double>& values) {
  std::vector<Double> sizes(program.Rows.size());
  for (std::size_t i = 0; i < sizes.size(); ++i) sizes[i] = std::fabs(program.RightSide[i]);
  for (int j = 0; j < program.ColumnCount(); ++j) {
    if (values[At(j)] == 0.0) continue;
    const Double* const column = program.ColumnAt(j);
    for (std::size_t i = 0; i < sizes.size(); ++i) sizes[i] += std::fabs(column[i] * values[At(j)]);
  }
  return sizes;
}

Double Passes(RowKind kind, Double residual) {
  switch (kind) {
    case RowKind::AtLeast: return -residual;
    case RowKind::AtMost: return residual;
    case RowKind::Equal: return std::fabs(residual);
  }
  return 0.0;
}

std::vector<Double> Residuals(const ProgramData& program, const std::vector<Double>& values) {
  std::vector<Double> residuals(program.Rows.size());
  for (std::size_t i = 0; i < residuals.size(); ++i) residuals[i] = -program.RightSide[i];
  for (int j = 0; j < program.ColumnCount(); ++j) {
    if (values[At(j)] == 0.0) continue;
    const Double* const column = program.ColumnAt(j);
    for (std::size_t i = 0; i < residuals.size(); ++i) residuals[i] += column[i] * values[At(j)];
  }
  return residuals;
}

Double LargestInRow(const ProgramData& program, std::size_t row) {
  Double largest = 0.0;
  for (int j = 0; j < program.ColumnCount(); ++j) largest = std::fmax(largest, std::fabs(program.ColumnAt(j)[row]));
  return largest;
}

bool IsOutside(Domain domain, Double value, Double rounding) {
  return (domain == Domain::NotNegative && value < -rounding) ||
         (domain == Domain::Zero && std::fabs(value) > rounding);
}

}  // namespace

BasicSolution SolutionAt(const ProgramData& program, const RowsAndColumns& basis) {
  BasicSolution solution;
  solution.Values.assign(program.Costs.size(), 0.0);
  solution.Prices.assign(program.Rows.size(), 0.0);
  if (basis.Rows.size() != basis.Columns.size()) return solution;
  const std::size_t size = basis.Rows.size();
  std::vector<Double> entries(size * size);
  std::vector<Double> rightSide(size);
  std::vector<Double> costs(size);
  for (std::size_t j = 0; j < size; ++j) {
    const Double* const column = program.ColumnAt(basis.Columns[j]);
    for (std::size_t i = 0; i < size; ++i) entries[i * size + j] = column[basis.Rows[i]];
    rightSide[j] = program.RightSide[At(basis.Rows[j])];
    costs[j] = program.Costs[At(basis.Columns[j])];
  }
  const DenseMatrix matrix(static_cast<int>(size), std::move(entries));
  if (!matrix.Solvable()) return solution;
  const std::vector<Double> values = matrix.Solve(rightSide);
  const std::vector<Double> prices = matrix.SolveTransposed(costs);
  for (std::size_t j = 0; j < size; ++j) {
    if (!std::isfinite(values[j]) || !std::isfinite(prices[j])) return solution;
    solution.Values[At(basis.Columns[j])] = values[j];
    solution.Prices[At(basis.Rows[j])] = prices[j];
  }
  Double largestTerm = 0.0;
  for (std::size_t i = 0; i < size; ++i) {
    largestTerm = std::fmax(largestTerm, std::fabs(prices[i] * rightSide[i]));
    for (std::size_t j = 0; j < size; ++j) {
      largestTerm = std::fmax(largestTerm, std::fabs(prices[i] * program.ColumnAt(basis.Columns[j])[basis.Rows[i]]));
    }
  }
  solution.RoundingOfPrices = kPriceRounding * largestTerm;
  solution.Exists = true;
  return solution;
}

Double ValueError(const ProgramData& program, const BasicSolution& solution) {
  const std::vector<Double> sizes = RowSizes(program, solution.Values);
  const Double roundingOfRows = kRowRounding * LargestOf(sizes);
  const Double rounding = kRowRounding * LargestOf(solution.Values);
  const auto share = [&](std::size_t row, Double amount) {
    return amount <= roundingOfRows ? 0.0 : amount / sizes[row];
  };
  Double worst = 0.0;
  for (int j = 0; j < program.ColumnCount(); ++j) {
    const Double value = solution.Values[At(j)];
    if (!IsOutside(program.Domains[At(j)], value, rounding)) continue;
    const Double* const column = program.ColumnAt(j);
    for (std::size_t i = 0; i < sizes.size(); ++i) worst = std::fmax(worst, share(i, std::fabs(column[i] * value)));
  }
  const std::vector<Double> residuals = Residuals(program, solution.Values);
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    worst = std::fmax(worst, share(i, Passes(program.Rows[i], residuals[i])));
  }
  return worst;
}

Double PriceErrorOf(const ProgramData& program, const BasicSolution& solution, int column) {
  const Domain domain = program.Domains[At(column)];
  if (domain == Domain::Zero) return 0.0;
  const Double* const entries = program.ColumnAt(column);
  Double passes = -program.Costs[At(column)];
  Double size = std::fabs(passes);
  for (std::size_t i = 0; i < program.Rows.size(); ++i) {
    const Double term = solution.Prices[i] * entries[i];
    passes += term;
    size += std::fabs(term);
  }
  if (domain == Domain::Free) passes = std::fabs(passes);
  if (passes <= solution.RoundingOfPrices) return 0.0;
  return 2.0 * passes / std::fmin(size, kMostCancelled * LargestOf(program.Costs));
}

Double PriceError(const ProgramData& program, const BasicSolution& solution) {
  Double worst = 0.0;
  for (int j = 0; j < program.ColumnCount(); ++j) worst = std::fmax(worst, PriceErrorOf(program, solution, j));
  const std::vector<Double> sizes = RowSizes(program, solution.Values);
  Double whole = 0.0;
  for (std::size_t i = 0; i < sizes.size(); ++i) whole = std::fmax(whole, std::fabs(solution.Prices[i]) * sizes[i]);
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const Double wrong = program.Rows[i] == RowKind::AtLeast  ? -solution.Prices[i]
                         : program.Rows[i] == RowKind::AtMost ? solution.Prices[i]
                                                              : 0.0;
    if (wrong <= 0.0) continue;
    const Double size = sizes[i] > 0.0 ? sizes[i] : LargestInRow(program, i);
    if (wrong * size > solution.RoundingOfPrices) worst = std::fmax(worst, wrong * size / whole);
  }
  return worst;
}

RowsAndColumnsSizes SizesOf(const ProgramData& program, const BasicSolution& solution) {
  RowsAndColumnsSizes sizes;
  sizes.Rows.resize(program.Rows.size());
  for (std::size_t i = 0; i < sizes.Rows.size(); ++i) sizes.Rows[i] = std::fabs(program.RightSide[i]);
  for (const bool all : {false, true}) {
    for (int j = 0; j < program.ColumnCount(); ++j) {
      if (!all && program.Domains[At(j)] != Domain::Free) continue;
      for (std::size_t i = 0; i < sizes.Rows.size(); ++i) {
        const bool isMeasured = all && sizes.Rows[i] >= kRowRounding;
        if (!isMeasured) sizes.Rows[i] = std::fmax(sizes.Rows[i], std::fabs(program.ColumnAt(j)[i]));
      }
    }
  }
  for (Double& size : sizes.Rows) size = size >= kRowRounding ? size : 1.0;
  for (int j = 0; j < program.ColumnCount(); ++j) {
    const bool isWrong = solution.Exists && PriceErrorOf(program, solution, j) > kWrong;
    Double size = 0.0;
    for (std::size_t i = 0; i < sizes.Rows.size(); ++i) {
      const Double price = isWrong ? std::fabs(solution.Prices[i]) : 1.0 / sizes.Rows[i];
      size = std::fmax(size, std::fabs(program.ColumnAt(j)[i]) * price);
    }
    sizes.Columns.push_back(size > 0.0 ? size : 1.0);
  }
  return sizes;
}

}  // namespace Tarnwise::Dea
