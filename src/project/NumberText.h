// Numbers as people write them into tables.
#pragma once

#include <tarnwise/Scalars.h>

#include <optional>
#include <string_view>

namespace Tarnwise {

struct NumberFormat {
  char Decimal = '.';     // or ','
  char Thousands = '\0';  // '.', ',', '\'', ' ' (a blank of any kind), or none
};

// The number that the whole text is in this format: a sign, digits, decimals, an exponent; nothing for any other text,
// and for a number that is too large or too small for a Double. Where thousands marks are allowed they group all digits
// before the decimal sign by threes or none, the first digit is not 0 then, and there is no exponent.
std::optional<double> NumberIn(std::string_view text, const NumberFormat& format);

// The number if the decimal sign is the point, and if it is the comma, whatever groups its thousands. "12" is the same
// in both; "1.5" is none in the second, as "1.234,5" is in the first; "1.234" is a number in both, but another one.
struct NumberReadings {
  std::optional<double> Point;
  std::optional<double> Comma;

  bool Any() const { return Point || Comma; }
  bool Differ() const { return Point && Comma && *Point != *Comma; }
};

NumberReadings ReadingsOf(std::string_view text);

// The fewest digits that make the number again, with a point and in JSON's way: 15, 0.1, -0.0, 1e+22.
String ShortestText(double number);

// Whether the text stands for a value that is not there: empty, "-", "--", the longer dashes, "?", ".", "..", ":",
// "NA", "N/A", "#N/A", "NaN", "null", "none", in capitals or not.
bool IsMissingText(std::string_view text);

}  // namespace Tarnwise
