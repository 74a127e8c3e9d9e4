#include "support/ErrorNumber.h"

#include "runtime/Arrays.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(Array, IsEmptyUntilAllocated) {
  const Array<Double> array;
  EXPECT_EQ(array.Count(), 0);
  EXPECT_EQ(ErrorNumber([&] { return array[0]; }), 9);
}

TEST(Array, ChecksBothEnds) {
  Array<Double> array({0.37, 3.17, 1.5});
  EXPECT_EQ(array[0], 0.37);
  EXPECT_EQ(array[2], 1.5);
  EXPECT_EQ(ErrorNumber([&] { return array[-1]; }), 9);
  EXPECT_EQ(ErrorNumber([&] { return array[3]; }), 9);
  EXPECT_EQ(ErrorNumber([&] { return std::as_const(array)[3]; }), 9);
}

TEST(Array, AllocateDropsWhatWasThere) {
  Array<Double> array({0.37, 3.17});
  array.Allocate(3);
  EXPECT_EQ(array.Items(), std::vector<Double>(3, 0.0));
  array.Allocate(0);
  EXPECT_EQ(array.Count(), 0);
  array.Allocate(-1);
  EXPECT_EQ(array.Count(), 0);
}

TEST(Array, HoldsBooleans) {
  Array<bool> done;
  done.Allocate(2);
  done[1] = true;
  EXPECT_FALSE(done[0]);
  EXPECT_TRUE(std::as_const(done)[1]);
  EXPECT_EQ(ErrorNumber([&] { return static_cast<bool>(done[2]); }), 9);
}

TEST(Matrix, RunsFastestAlongTheFirstIndex) {
  Matrix<int> matrix;
  matrix.Allocate(3, 2);
  matrix(1, 0) = 10;
  matrix(0, 1) = 20;
  EXPECT_EQ(matrix.Items(), (std::vector<int>{0, 10, 0, 20, 0, 0}));
  EXPECT_EQ(matrix.Rows(), 3);
  EXPECT_EQ(matrix.Cols(), 2);
}

TEST(Matrix, ChecksEachIndexByItself) {
  Matrix<int> matrix;
  matrix.Allocate(3, 2);
  EXPECT_EQ(ErrorNumber([&] { return matrix(2, 1); }), 0);
  EXPECT_EQ(ErrorNumber([&] { return matrix(3, 0); }), 9);
  EXPECT_EQ(ErrorNumber([&] { return matrix(0, 2); }), 9);
  EXPECT_EQ(ErrorNumber([&] { return matrix(-1, 1); }), 9);
  EXPECT_EQ(ErrorNumber([&] { return std::as_const(matrix)(0, -1); }), 9);
}

TEST(RuntimeError, DescribesItsNumber) {
  const std::pair<int, const char*> rows[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {94, "Invalid use of Null"},
      {340, "Control array element does not exist"},
      {360, "Object already loaded"},
      {1, "Application-defined or object-defined error"},
  };
  for (const auto& [number, description] : rows) {
    const RuntimeError error(number);
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Description(), description);
    EXPECT_TRUE(error.In.empty());
  }
}

TEST(RuntimeError, MayDescribeItselfOtherwise) {
  const RuntimeError error(340, "Control array element '4' does not exist");
  EXPECT_EQ(error.Number(), 340);
  EXPECT_EQ(error.Description(), "Control array element '4' does not exist");
}

}  // namespace
}  // namespace Tarnwise
