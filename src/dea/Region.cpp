#include "dea/Region.h"

#include "dea/Vectors.h"

namespace Tarnwise::Dea {

Box FreeBox(int attributes, int reference) {
  Box box;
  box.Low.assign(At(attributes), 0.0);
  box.High.assign(At(attributes), kNoBound);
  if (attributes > 0) {
    box.Low[At(reference)] = 1.0;
    box.High[At(reference)] = 1.0;
  }
  return box;
}

std::vector<Double> ColumnOf(const PriceRow& row, const std::vector<Double>& factors, std::size_t rows) {
  std::vector<Double> column(rows);
  for (const auto& [attribute, coefficient] : row.Terms) column[At(attribute)] = coefficient * factors[At(attribute)];
  const Double largest = LargestOf(column);
  for (Double& entry : column) entry /= largest;
  return column;
}

PriceRow RowOf(const JudgedBound& bound) {
  if (bound.Side == Side::Low) return {{{bound.Reference, bound.Bound}, {bound.Attribute, -1.0}}};
  return {{{bound.Reference, -bound.Bound}, {bound.Attribute, 1.0}}};
}

Box WithoutBound(Box box, int attribute, Side side) {
  const auto at = At(attribute);
  if (side == Side::Low) {
    box.Low[at] = 0.0;
  } else {
    box.High[at] = kNoBound;
  }
  return box;
}

Interval Widened(const Interval& interval, Double factor) {
  if (factor == 1.0 || interval.Low == 0.0 || interval.High == kNoBound) return interval;
  const Double more = std::pow(interval.High / interval.Low, (factor - 1.0) / 2.0);
  return {interval.Low / more, interval.High * more};
}

std::vector<Double> MiddleOf(const Box& box) {
  Double largest = 0.0;
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    largest = std::fmax(largest, box.High[j] == kNoBound ? box.Low[j] : std::sqrt(box.Low[j]) * std::sqrt(box.High[j]));
  }
  if (largest == 0.0) largest = 1.0;
  std::vector<Double> middle(box.Low.size());
  for (std::size_t j = 0; j < middle.size(); ++j) {
    const Double low = box.Low[j];
    const Double high = box.High[j];
    middle[j] = high == kNoBound ? largest : low == 0.0 ? std::fmin(high, largest) : std::sqrt(low) * std::sqrt(high);
    if (middle[j] == 0.0) middle[j] = largest;
  }
  return middle;
}

}  // namespace Tarnwise::Dea
