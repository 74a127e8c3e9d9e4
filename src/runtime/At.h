// Indices of attributes, units and rows are int, as the system counts them; the standard library's are not.
#pragma once

#include <cstddef>

namespace Tarnwise {

inline std::size_t At(int index) { return static_cast<std::size_t>(index); }

}  // namespace Tarnwise
