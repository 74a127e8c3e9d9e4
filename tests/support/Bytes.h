// What stands in a file, written as a text.
#pragma once

#include <tarnwise/Scalars.h>

#include <vector>

namespace Tarnwise {

inline std::vector<char> BytesOf(const String& text) { return {text.begin(), text.end()}; }

}  // namespace Tarnwise
