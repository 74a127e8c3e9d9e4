// Which sign separates the cells of a CSV text.
#pragma once

#include <tarnwise/Scalars.h>

#include <optional>
#include <string_view>
#include <vector>

namespace Tarnwise {

// "comma", "semicolon", "tab", "vertical bar"; any other in quotes.
String NameOfDelimiter(char delimiter);

// A name of these ("bar" or "pipe" for the last), "\t", or the sign itself. None that a number or a name is made of, no
// quote and no line end.
std::optional<char> DelimiterNamed(const String& name);

// Comma, semicolon, tab or vertical bar: the one under which the first row holds all the names, if there are any; or
// else under which all rows are equally wide; of several such ones that under which no other makes more columns of
// numbers or leaves fewer others. Where rows differ under all of them, the only one that the first row holds at all. A
// ModelFault that names the option where none of this decides.
char FindDelimiter(std::string_view text, std::size_t firstLine, const std::vector<String>& names);

}  // namespace Tarnwise
