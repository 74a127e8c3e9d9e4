#include "runtime/Text.h"

#include "runtime/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Tarnwise {

namespace {

// The significant decimal digits of a number: digits "125", exponent 0 stands for 1.25.
struct Decimal {
  bool Negative = false;
  std::string Digits;
  int Exponent = 0;
};

Decimal DecimalOf(Double x, int significant) {
  char buffer[64];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, std::fabs(x), std::chars_format::scientific, significant - 1).ptr;
  Decimal d;
  d.Negative = std::signbit(x);
  const char* p = buffer;
  for (; *p != 'e'; ++p) {
    if (*p != '.') d.Digits += *p;
  }
  ++p;
  if (*p == '+') ++p;
  std::from_chars(p, end, d.Exponent);
  return d;
}

void StripTrailingZeros(std::string& digits) {
  while (!digits.empty() && digits.back() == '0') digits.pop_back();
}

String NumberTextOf(Double x, int significant) {
  if (!std::isfinite(x)) throw RuntimeError(6);
  if (x == 0.0) return "0";
  Decimal d = DecimalOf(x, significant);
  StripTrailingZeros(d.Digits);
  std::string text;
  if (d.Exponent >= 15 || d.Exponent < -4) {
    text = d.Digits.substr(0, 1);
    if (d.Digits.size() > 1) text.append(".").append(d.Digits, 1);
    const int size = std::abs(d.Exponent);
    text += d.Exponent < 0 ? "E-" : "E+";
    if (size < 10) text += "0";
    text += std::to_string(size);
  } else if (d.Exponent < 0) {
    text = "0.";
    text.append(static_cast<std::size_t>(-d.Exponent - 1), '0').append(d.Digits);
  } else {
    const auto whole = static_cast<std::size_t>(d.Exponent) + 1;
    if (d.Digits.size() < whole) d.Digits.append(whole - d.Digits.size(), '0');
    text = d.Digits.substr(0, whole);
    if (d.Digits.size() > whole) text.append(".").append(d.Digits, whole);
  }
  return d.Negative ? "-" + text : text;
}

bool IsSkipped(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool IsSign(char c) { return c == '+' || c == '-'; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The length of the number at the start of the text (no blanks in it), 0 if there is none. Behind its last character a
// string has a zero, which is no part of a number.
std::size_t NumberLength(const std::string& s) {
  std::size_t i = 0;
  if (IsSign(s[i])) ++i;
  const std::size_t first = i;
  while (IsDigit(s[i])) ++i;
  std::size_t digits = i - first;
  if (s[i] == '.') {
    const std::size_t point = i++;
    while (IsDigit(s[i])) ++i;
    digits += i - point - 1;
  }
  if (digits == 0) return 0;
  if (s[i] != 'e' && s[i] != 'E' && s[i] != 'd' && s[i] != 'D') return i;
  std::size_t e = i + 1;
  if (IsSign(s[e])) ++e;
  if (!IsDigit(s[e])) return i;
  while (IsDigit(s[e])) ++e;
  return e;
}

// Whether a number that no Double holds is too large (else it is too small). The text has no blanks.
bool IsHuge(const std::string& number) {
  const std::size_t e = number.find('e');
  const std::string mantissa = number.substr(0, e);
  const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto leading = static_cast<long>(mantissa.find_first_of("123456789"));
  if (e == std::string::npos) return mantissa[static_cast<std::size_t>(std::min(leading, point))] != '.';
  const char* first = number.c_str() + e + 1;
  const bool negative = *first == '-';
  if (*first == '+' || *first == '-') ++first;
  long size = 0;
  const auto result = std::from_chars(first, number.c_str() + number.size(), size);
  if (result.ec != std::errc()) return !negative;
  return (point - leading) + (negative ? -size : size) > 0;
}

Double Parse(std::string number) {
  std::replace_if(
      number.begin(), number.end(), [](char c) { return c == 'd' || c == 'D' || c == 'E'; }, 'e');
  const char* first = number.c_str();
  if (*first == '+') ++first;
  Double x = 0.0;
  const auto result = std::from_chars(first, number.c_str() + number.size(), x);
  if (result.ec == std::errc() && std::isfinite(x)) return x;
  if (IsHuge(number)) throw RuntimeError(6);
  return 0.0;
}

}  // namespace

Double Val(std::string_view text) {
  std::string s;
  std::copy_if(text.begin(), text.end(), std::back_inserter(s), [](char c) { return !IsSkipped(c); });
  const std::size_t length = NumberLength(s);
  return length == 0 ? 0.0 : Parse(s.substr(0, length));
}

Double StrictNumber(std::string_view text) {
  const String s = Trim(text);
  const std::size_t length = NumberLength(s);
  if (length == 0 || length != s.size()) throw RuntimeError(13);
  return Parse(s);
}

String Format(Double x, std::string_view pattern) {
  std::size_t required = 0;
  if (pattern == "0.00") {
    required = 2;
  } else if (pattern == "0.0#") {
    required = 1;
  } else if (pattern != "0.##") {
    throw RuntimeError(5);
  }
  if (!std::isfinite(x)) throw RuntimeError(6);

  // The number in hundredths, as digits with at least one before the point.
  Decimal d = DecimalOf(x, 15);
  const int kept = d.Exponent + 3;  // digits in front of the hundredths' end
  bool up = false;
  if (kept < 0) {
    d.Digits = "";
  } else if (static_cast<std::size_t>(kept) < d.Digits.size()) {
    up = d.Digits[static_cast<std::size_t>(kept)] >= '5';
    d.Digits.resize(static_cast<std::size_t>(kept));
  } else {
    d.Digits.append(static_cast<std::size_t>(kept) - d.Digits.size(), '0');
  }
  if (d.Digits.size() < 3) d.Digits.insert(0, 3 - d.Digits.size(), '0');
  if (up) {
    std::size_t i = d.Digits.size();
    while (i > 0 && d.Digits[i - 1] == '9') d.Digits[--i] = '0';
    if (i > 0) {
      ++d.Digits[i - 1];
    } else {
      d.Digits.insert(0, 1, '1');
    }
  }
  const bool zero = d.Digits.find_first_not_of('0') == std::string::npos;
  std::string whole = d.Digits.substr(0, d.Digits.size() - 2);
  std::string decimals = d.Digits.substr(d.Digits.size() - 2);
  while (decimals.size() > required && decimals.back() == '0') decimals.pop_back();
  return (d.Negative && !zero ? "-" : "") + whole + "." + decimals;
}

String NumberText(Double x) { return NumberTextOf(x, 15); }

String NumberText(Single x) { return NumberTextOf(static_cast<Double>(x), 7); }

String FourDecimalText(Double x) {
  const Double rounded = RoundToFourDecimals(x);
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, rounded, std::chars_format::fixed).ptr};
}

String Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return String(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

Double Int(Double x) { return std::floor(x); }

}  // namespace Tarnwise
