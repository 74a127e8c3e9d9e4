// Numbers as text and text as numbers. The point is the decimal separator whatever the locale.
#pragma once

#include "runtime/Utf8.h"

#include <tarnwise/Scalars.h>

#include <string_view>

namespace Tarnwise {

// The leading numeric part of the text, 0 if there is none. Blanks, tabs and line ends are skipped everywhere, an
// exponent may begin with E or D. Error 6 when the number is too large.
Double Val(std::string_view text);

// The text as a number, all of it; error 13 when it is none.
Double StrictNumber(std::string_view text);

// Patterns "0.00", "0.##" and "0.0#": 15 significant digits of x, rounded half away from zero at the pattern's last
// place. The point stays even when no decimal follows it; there is no "-0". Any other pattern is error 5.
String Format(Double x, std::string_view pattern);

// The plain text of a number: 15 significant digits of a Double, 7 of a Single, no trailing zeros; with an exponent
// from 1E+15 on and below 1E-4.
String NumberText(Double x);
String NumberText(Single x);

// x rounded to four decimals, with as many digits as read back as that number and never an exponent:
// "332008345238.4678", "0.5", "-2". Error 6 beyond 64 bits.
String FourDecimalText(Double x);

// The text without the blanks at both ends (blanks alone, not tabs).
String Trim(std::string_view text);

// The largest whole number that is not above x.
Double Int(Double x);

}  // namespace Tarnwise
