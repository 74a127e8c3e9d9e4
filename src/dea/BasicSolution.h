// The solution that a basis of a linear program stands for, worked out from the program's own numbers, and how far it
// is from being optimal.
#pragma once

#include "dea/Vectors.h"

namespace Tarnwise::Dea {

// Of the largest product of a price and a number: what the solution of its basis leaves uncertain.
constexpr Double kPriceRounding = 1e-14;

enum class RowKind { AtLeast, Equal, AtMost };  // activity against the right-hand side
enum class Domain { NotNegative, Free, Zero };  // where a variable may lie

// Minimise cost . x subject to the rows.
struct ProgramData {
  std::vector<RowKind> Rows;
  std::vector<Double> RightSide;
  std::vector<Double> Costs;  // of the columns
  std::vector<Domain> Domains;
  std::vector<Double> Entries;  // column after column

  int RowCount() const { return static_cast<int>(Rows.size()); }
  int ColumnCount() const { return static_cast<int>(Costs.size()); }
  const Double* ColumnAt(int column) const { return &Entries[At(column) * Rows.size()]; }
};

// The rows that hold with equality and as many columns that are not zero.
struct RowsAndColumns {
  std::vector<int> Rows;
  std::vector<int> Columns;
};

struct BasicSolution {
  bool Exists = false;
  std::vector<Double> Values;     // of the columns
  std::vector<Double> Prices;     // of the rows
  Double RoundingOfPrices = 0.0;  // less than this in what prices come to is rounding
};

BasicSolution SolutionAt(const ProgramData& program, const RowsAndColumns& basis);

// How far values leave their domains or rows their right-hand sides, relative to what the row adds up.
Double ValueError(const ProgramData& program, const BasicSolution& solution);

// How far a column's prices pass its cost, relative to what they add up to; or a price its sign.
Double PriceErrorOf(const ProgramData& program, const BasicSolution& solution, int column);
Double PriceError(const ProgramData& program, const BasicSolution& solution);

// How large the numbers of rows and columns are. A row: its right-hand side or what free columns add to it, else its
// largest number. A column: its largest number over the row's size; where its prices are wrong, what these come to.
struct RowsAndColumnsSizes {
  std::vector<Double> Rows;
  std::vector<Double> Columns;
};
RowsAndColumnsSizes SizesOf(const ProgramData& program, const BasicSolution& solution);

}  // namespace Tarnwise::Dea
