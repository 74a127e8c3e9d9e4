// Texts of files as messages show them: on one line, without control characters, not longer than a person reads.
#pragma once

#include <tarnwise/Scalars.h>

#include <string_view>
#include <vector>

namespace Tarnwise {

// A name within a sentence.
String ShownName(std::string_view name);

// The whole of a name, however long, where a column of a table holds it.
String WholeName(std::string_view name);

// A text in double quotes.
String Shown(std::string_view text);

// "1 row", "12 rows".
String CountOf(std::size_t count, const String& what);

// The first ten, and how many more there are: "a, b, c and 7 more".
String Enumerated(const std::vector<String>& items, const char* between = ", ");

// With so many decimals, and with so many significant digits: "0.809", "14.583", "0.0012346". A point in every locale.
String FixedText(double number, int decimals);
String SignificantText(double number, int digits);

}  // namespace Tarnwise
