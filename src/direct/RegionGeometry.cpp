#include "direct/RegionGeometry.h"

#include "runtime/Numbers.h"

namespace Tarnwise {

namespace {

constexpr Double kSide = 252.0;
constexpr Double kLongSide = kSide * 0.7;

bool OnAxis(Double distance) { return distance >= kHandleSize && distance <= kSide; }

Single Whole(Single x) { return static_cast<Single>(RoundHalfEven(static_cast<Double>(x))); }

}  // namespace

ChartPoint RatioToPoint(Double ratio) {
  if (ratio > 1.0) return {ToSingleChecked(kLongSide / ratio), ToSingleChecked(kSide - kLongSide)};
  if (ratio < 1.0) return {ToSingleChecked(kLongSide), ToSingleChecked(kSide - kLongSide * ratio)};
  return {kChartSize / 2.0F, kChartSize / 2.0F};
}

Double PointToRatio(Single x, Single y) { return Divide(kSide - static_cast<Double>(y), static_cast<Double>(x)); }

bool IsOnChart(const HandlePoints& at) {
  return OnAxis(static_cast<Double>(at.X0)) && OnAxis(kSide - static_cast<Double>(at.Y0)) &&
         OnAxis(static_cast<Double>(at.X1)) && OnAxis(kSide - static_cast<Double>(at.Y1));
}

std::vector<Single> RegionCorners(const HandlePoints& at) {
  return {0.0F, kChartSize - 2.0F, Whole(at.X0), Whole(at.Y0), Whole(at.X1), Whole(at.Y1)};
}

}  // namespace Tarnwise
