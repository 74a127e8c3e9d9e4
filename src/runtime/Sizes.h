// How large a model may be.
#pragma once

namespace Tarnwise {

constexpr int kMaxAtts = 31;          // attribute ids 0 to 30
constexpr int kMaxAlternatives = 51;  // alternative ids 0 to 50
constexpr int kMaxCurvePoints = 11;

}  // namespace Tarnwise
