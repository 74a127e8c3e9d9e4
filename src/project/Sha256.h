// The SHA-256 digest of bytes (FIPS 180-4), which ties a project to the file that it was imported from.
#pragma once

#include <tarnwise/Scalars.h>

#include <string_view>

namespace Tarnwise {

// As 64 hexadecimal digits.
String Sha256(std::string_view bytes);

}  // namespace Tarnwise
