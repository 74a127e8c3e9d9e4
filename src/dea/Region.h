// The prices that judgments allow. Within a group all ratios go to one reference, so they are a box: with the
// reference's price at 1 every other price has a lower and an upper end.
#pragma once

#include "dea/Results.h"

#include <limits>
#include <utility>

namespace Tarnwise::Dea {

constexpr Double kNoBound = std::numeric_limits<Double>::infinity();

// Prices at reference price 1: Low 0 and High kNoBound where nothing was judged. An attribute that is not of the box
// has 0 and 0. Its extreme directions are the corners of the finite part and, for each High of kNoBound, that price
// alone.
struct Box {
  std::vector<Double> Low;
  std::vector<Double> High;
};

// A box of prices without any judgment.
Box FreeBox(int attributes, int reference);

// A homogeneous condition on prices: the sum of coefficient times price is not positive.
struct PriceRow {
  std::vector<std::pair<int, Double>> Terms;  // attribute, coefficient
};

// The condition as a column of a program whose rows are the attributes, multiplied by their factors; its largest number
// is 1.
std::vector<Double> ColumnOf(const PriceRow& row, const std::vector<Double>& factors, std::size_t rows);

// One end of a judged interval, as a condition on prices.
struct JudgedBound {
  int Attribute = 0;
  int Reference = 0;
  int Column = 0;  // the attribute's, in the problem
  Dea::Side Side = Side::Low;
  Double Bound = 0.0;  // on the price over the reference's
  Double Ratio = 0.0;  // as it stands in the session
};

PriceRow RowOf(const JudgedBound& bound);

// The box with one end of an attribute's interval taken away.
Box WithoutBound(Box box, int attribute, Side side);

// An interval widened by a factor in log ratio; a missing bound stays missing.
Interval Widened(const Interval& interval, Double factor);

// A typical price of each attribute: the middle of its interval in log ratio. Where a bound is missing, a price as
// large as the largest of the others, as far as the other bound lets it be.
std::vector<Double> MiddleOf(const Box& box);

}  // namespace Tarnwise::Dea
