// Model files hold text in code page 1252; in memory text is UTF-8.
#pragma once

#include <tarnwise/Scalars.h>

#include <optional>
#include <string_view>

namespace Tarnwise {

// Such bytes are the same in both.
bool IsAscii(std::string_view bytes);

// Every byte has a character: the five that the code page leaves undefined are the control characters of that value.
String FromAnsi(std::string_view bytes);

// The bytes of the text, or nothing when it has a character that the code page lacks or is no valid UTF-8.
std::optional<std::string> ToAnsi(std::string_view text);

}  // namespace Tarnwise
