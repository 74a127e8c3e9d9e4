// Linear programs solved at once and from nothing, by two libraries: what the pool's answers are held against.
#pragma once

#include <limits>
#include <optional>
#include <vector>

namespace Tarnwise::Dea {

constexpr double kInfinite = std::numeric_limits<double>::infinity();

// Minimise cost . x; rows between two bounds; a variable is free or not negative.
struct DenseProgram {
  struct Row {
    double Low = -kInfinite;
    double High = kInfinite;
    std::vector<double> Entries;
  };
  std::vector<double> Costs;
  std::vector<bool> IsFree;
  std::vector<Row> Rows;
};

// The least cost; nothing where there is no solution or no end. A library that gives up throws std::runtime_error.
std::optional<double> LeastCostByClp(const DenseProgram& program);
std::optional<double> LeastCostByGlpk(const DenseProgram& program);
std::optional<double> LeastCostExactly(const DenseProgram& program);  // in rational numbers

}  // namespace Tarnwise::Dea
