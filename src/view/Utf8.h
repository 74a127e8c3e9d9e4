// Positions in UTF-8 text, counted in characters as carets are.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstddef>

namespace Tarnwise {

// The byte at which character number `index` begins; the text's size beyond its end.
std::size_t ByteOf(const String& text, int index);

}  // namespace Tarnwise
