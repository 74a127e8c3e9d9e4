#include "model/PointArrays.h"

#include <algorithm>

namespace Tarnwise {

std::array<Variant, kPointFields> FieldsOf(const ABPoint& p) {
  return {p.AX, p.AY, p.BX, p.BY, p.AOrientation, p.ALX, p.ALY, p.AUX, p.AUY};
}

PointArrays ZeroPoints(int count) {
  PointArrays arrays;
  arrays.fill(VariantArray(static_cast<std::size_t>(std::max(0, count)), Variant(0.0)));
  return arrays;
}

PointArrays ArraysOf(const Array<ABPoint>& points) {
  PointArrays arrays;
  for (const ABPoint& point : points.Items()) {
    const auto fields = FieldsOf(point);
    for (std::size_t f = 0; f < fields.size(); ++f) arrays[f].push_back(fields[f]);
  }
  return arrays;
}

Array<ABPoint> PointsOf(const PointArrays& arrays, int count) {
  for (const VariantArray& array : arrays) {
    if (static_cast<int>(array.size()) < count) throw RuntimeError(9);
  }
  Array<ABPoint> points;
  points.Allocate(count);
  for (int i = 0; i < count; ++i) {
    const auto single = [&arrays, i](PointField f) { return ToSingle(arrays[f][static_cast<std::size_t>(i)]); };
    points[i] = {single(kAX),
                 single(kAY),
                 single(kBX),
                 single(kBY),
                 ToInteger(arrays[kAOrientation][static_cast<std::size_t>(i)]),
                 single(kALX),
                 single(kALY),
                 single(kAUX),
                 single(kAUY)};
  }
  return points;
}

}  // namespace Tarnwise
