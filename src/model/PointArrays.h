// The points of the trade-offs: a record for each attribute, and nine arrays where they pass between host and wizard.
#pragma once

#include <tarnwise/Variant.h>
#include "runtime/Arrays.h"

#include <array>

namespace Tarnwise {

// One attribute's two alternatives A and B, in the scores of the target (X) and of its reference (Y).
struct ABPoint {
  Single AX = 0.0F;
  Single AY = 0.0F;
  Single BX = 0.0F;
  Single BY = 0.0F;
  Integer AOrientation = 0;  // A's uncertainty: 0 none, 1 horizontal, 2 vertical
  Single ALX = 0.0F;
  Single ALY = 0.0F;
  Single AUX = 0.0F;
  Single AUY = 0.0F;
};

// The fields of the record are the arrays, in this order everywhere.
enum PointField { kAX, kAY, kBX, kBY, kAOrientation, kALX, kALY, kAUX, kAUY, kPointFields };
constexpr std::array<const char*, kPointFields> kPointNames = {"AX",  "AY",  "BX",  "BY", "AOrientation",
                                                               "ALX", "ALY", "AUX", "AUY"};

std::array<Variant, kPointFields> FieldsOf(const ABPoint& point);

// One element for each attribute.
using PointArrays = std::array<VariantArray, kPointFields>;

PointArrays ZeroPoints(int count);
PointArrays ArraysOf(const Array<ABPoint>& points);

// The first `count` elements as records: error 9 where an array is shorter; 6, 13 or 94 for an element that does not
// convert.
Array<ABPoint> PointsOf(const PointArrays& arrays, int count);

}  // namespace Tarnwise
