// Arrays whose subscripts are checked: a subscript outside the bounds is run-time error 9.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace Tarnwise {

[[noreturn]] void FailSubscript();

// Elements 0 to Count() - 1. Empty until it is allocated; Allocate drops what was there.
template <class T>
class Array {
 public:
  Array() = default;
  explicit Array(std::vector<T> items) : items_(std::move(items)) {}

  void Allocate(int count) { items_.assign(count < 0 ? 0U : static_cast<std::size_t>(count), T()); }

  int Count() const { return static_cast<int>(items_.size()); }

  decltype(auto) operator[](int i) { return items_[Checked(i)]; }
  decltype(auto) operator[](int i) const { return items_[Checked(i)]; }

  std::vector<T>& Items() { return items_; }
  const std::vector<T>& Items() const { return items_; }

 private:
  std::size_t Checked(int i) const {
    if (i < 0 || i >= Count()) FailSubscript();
    return static_cast<std::size_t>(i);
  }

  std::vector<T> items_;
};

// Rows x Cols elements, the first index running fastest as in the model file.
template <class T>
class Matrix {
 public:
  void Allocate(int rows, int cols) {
    rows_ = rows;
    cols_ = cols;
    items_.Allocate(rows * cols);
  }

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }

  T& operator()(int row, int col) { return items_[Checked(row, col)]; }
  const T& operator()(int row, int col) const { return items_[Checked(row, col)]; }

  std::vector<T>& Items() { return items_.Items(); }

 private:
  int Checked(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) FailSubscript();
    return row + rows_ * col;
  }

  int rows_ = 0;
  int cols_ = 0;
  Array<T> items_;
};

}  // namespace Tarnwise
