// The chart of the value reference region: a square whose two handles define two rays from the bottom left corner. The
// slope of a ray is a weight ratio. Chart units are its pixels; x grows to the right, y downward.
#pragma once

#include <tarnwise/Scalars.h>

#include <vector>

namespace Tarnwise {

constexpr Single kChartSize = 252.0F;
constexpr Single kHandleSize = 6.0F;  // also the nearest that a point may come to the left and the bottom edge

struct ChartPoint {
  Single X = 0.0F;
  Single Y = 0.0F;
};

// Centres of the two handles.
struct HandlePoints {
  Single X0 = 0.0F;
  Single Y0 = 0.0F;
  Single X1 = 0.0F;
  Single Y1 = 0.0F;
};

// The point for a ratio: 1 stands in the centre, larger ones on the horizontal at 0.7 of the height, smaller ones on
// the vertical at 0.7 of the width. Error 6 where the point is beyond a Single.
ChartPoint RatioToPoint(Double ratio);

// The slope of the ray through a point. Error 11 at x = 0, 6 in the corner itself.
Double PointToRatio(Single x, Single y);

// Both points keep their distance from the left and the bottom edge and are not beyond the others.
bool IsOnChart(const HandlePoints& at);

// The corners of the wedge as whole numbers x, y, x, y, x, y: the bottom left corner, then the handles.
std::vector<Single> RegionCorners(const HandlePoints& at);

}  // namespace Tarnwise
