// Small dense systems, solved by elimination with row exchanges and refined once with wider residuals.
#pragma once

#include "dea/Vectors.h"

namespace Tarnwise::Dea {

class DenseMatrix {
 public:
  // Entries by rows. Solvable() is false when a pivot is zero.
  DenseMatrix(int size, std::vector<Double> entries);
  bool Solvable() const { return solvable_; }
  std::vector<Double> Solve(const std::vector<Double>& rightSide) const;
  std::vector<Double> SolveTransposed(const std::vector<Double>& rightSide) const;

 private:
  void Factorise();
  Double Entry(int row, int column) const { return entries_[Index(row, column)]; }
  Double Factor(int row, int column) const { return factors_[Index(row, column)]; }
  std::size_t Index(int row, int column) const { return At(row) * At(size_) + At(column); }
  void Substitute(std::vector<Double>& x) const;
  void SubstituteTransposed(std::vector<Double>& x) const;

  int size_;
  std::vector<Double> entries_;
  std::vector<Double> factors_;  // unit lower and upper triangle of the rows as exchanged
  std::vector<int> rows_;        // which row stands where
  bool solvable_ = true;
};

}  // namespace Tarnwise::Dea
