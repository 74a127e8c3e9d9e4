#include "dea/DenseSolve.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace Tarnwise::Dea {

DenseMatrix::DenseMatrix(int size, std::vector<Double> entries)
    : size_(size), entries_(std::move(entries)), factors_(entries_), rows_(At(size)) {
  std::iota(rows_.begin(), rows_.end(), 0);
  Factorise();
}

void DenseMatrix::Factorise() {
  for (int k = 0; k < size_; ++k) {
    int pivot = k;
    for (int i = k + 1; i < size_; ++i) {
      if (std::fabs(Factor(i, k)) > std::fabs(Factor(pivot, k))) pivot = i;
    }
    if (Factor(pivot, k) == 0.0 || !std::isfinite(Factor(pivot, k))) {
      solvable_ = false;
      return;
    }
    if (pivot != k) {
      for (int j = 0; j < size_; ++j) std::swap(factors_[Index(pivot, j)], factors_[Index(k, j)]);
      std::swap(rows_[At(pivot)], rows_[At(k)]);
    }
    for (int i = k + 1; i < size_; ++i) {
      const Double multiple = Factor(i, k) / Factor(k, k);
      factors_[Index(i, k)] = multiple;
      if (multiple == 0.0) continue;
      for (int j = k + 1; j < size_; ++j) factors_[Index(i, j)] -= multiple * Factor(k, j);
    }
  }
}

void DenseMatrix::Substitute(std::vector<Double>& x) const {
  std::vector<Double> z(x.size());
  for (int i = 0; i < size_; ++i) {
    Double sum = x[static_cast<std::size_t>(rows_[At(i)])];
    for (int j = 0; j < i; ++j) sum -= Factor(i, j) * z[At(j)];
    z[At(i)] = sum;
  }
  for (int i = size_ - 1; i >= 0; --i) {
    Double sum = z[At(i)];
    for (int j = i + 1; j < size_; ++j) sum -= Factor(i, j) * z[At(j)];
    z[At(i)] = sum / Factor(i, i);
  }
  x = std::move(z);
}

void DenseMatrix::SubstituteTransposed(std::vector<Double>& x) const {
  std::vector<Double> z(x);
  for (int i = 0; i < size_; ++i) {
    Double sum = z[At(i)];
    for (int j = 0; j < i; ++j) sum -= Factor(j, i) * z[At(j)];
    z[At(i)] = sum / Factor(i, i);
  }
  for (int i = size_ - 1; i >= 0; --i) {
    Double sum = z[At(i)];
    for (int j = i + 1; j < size_; ++j) sum -= Factor(j, i) * z[At(j)];
    z[At(i)] = sum;
  }
  for (int i = 0; i < size_; ++i) {
    x[static_cast<std::size_t>(rows_[At(i)])] = z[At(i)];
  }
}

namespace {

// The residual of a system in long double; matrix(i, j) gives its numbers.
template <typename Matrix>
std::vector<Double> Residual(const std::vector<Double>& rightSide, const std::vector<Double>& x, Matrix matrix) {
  std::vector<Double> residual(rightSide.size());
  for (std::size_t i = 0; i < rightSide.size(); ++i) {
    long double sum = static_cast<long double>(rightSide[i]);
    for (std::size_t j = 0; j < x.size(); ++j) {
      sum -=
          static_cast<long double>(matrix(static_cast<int>(i), static_cast<int>(j))) * static_cast<long double>(x[j]);
    }
    residual[i] = static_cast<Double>(sum);
  }
  return residual;
}

void Add(std::vector<Double>& x, const std::vector<Double>& correction) {
  for (std::size_t i = 0; i < x.size(); ++i) x[i] += correction[i];
}

}  // namespace

std::vector<Double> DenseMatrix::Solve(const std::vector<Double>& rightSide) const {
  std::vector<Double> x = rightSide;
  Substitute(x);
  std::vector<Double> correction = Residual(rightSide, x, [this](int i, int j) { return Entry(i, j); });
  Substitute(correction);
  Add(x, correction);
  return x;
}

std::vector<Double> DenseMatrix::SolveTransposed(const std::vector<Double>& rightSide) const {
  std::vector<Double> x = rightSide;
  SubstituteTransposed(x);
  std::vector<Double> correction = Residual(rightSide, x, [this](int i, int j) { return Entry(j, i); });
  SubstituteTransposed(correction);
  Add(x, correction);
  return x;
}

}  // namespace Tarnwise::Dea
