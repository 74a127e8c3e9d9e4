// The JSON library as all our files use it: objects keep the order of their keys.
#pragma once

#include <nlohmann/json.hpp>

#include <cmath>

namespace Tarnwise {

using Json = nlohmann::ordered_json;

// A whole number that every reader of JSON takes for the same one: beyond 2^53 not every whole number is a Double.
inline bool IsExactWhole(double x) { return std::trunc(x) == x && std::fabs(x) <= 9007199254740992.0; }

}  // namespace Tarnwise
