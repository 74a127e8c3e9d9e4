// Numbers as text and text as numbers, against what the C library makes of them.
#include "Expect.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"

#include <tarnwise/Variant.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <optional>

namespace Tarnwise {
namespace {

// What a call answers, or the number of the error that it ends in.
template <class Call>
auto Answer(Call call, int& error) -> std::optional<decltype(call())> {
  try {
    return call();
  } catch (const RuntimeError& fault) {
    error = fault.Number();
    return std::nullopt;
  }
}

bool IsIn(char c, const char* set) { return c != '\0' && std::strchr(set, c) != nullptr; }

// The leading number of a text without blanks, in the C library's spelling.
String LeadingNumber(const String& s) {
  String number;
  std::size_t i = 0;
  int digits = 0;
  if (i < s.size() && IsIn(s[i], "+-")) number += s[i++];
  for (bool point = false; i < s.size(); ++i) {
    if (IsIn(s[i], "0123456789")) {
      ++digits;
    } else if (s[i] == '.' && !point) {
      point = true;
    } else {
      break;
    }
    number += s[i];
  }
  if (digits == 0) return {};
  if (i < s.size() && IsIn(s[i], "eEdD")) {
    String power = "e";
    ++i;
    if (i < s.size() && IsIn(s[i], "+-")) power += s[i++];
    const std::size_t sign = power.size();
    while (i < s.size() && IsIn(s[i], "0123456789")) power += s[i++];
    if (power.size() > sign) number += power;
  }
  return number;
}

void CheckVal(const String& text) {
  String dense;
  for (const char c : text) {
    if (!IsIn(c, " \t\r\n")) dense += c;
  }
  const String number = LeadingNumber(dense);
  const Double expected = number.empty() ? 0.0 : std::strtod(number.c_str(), nullptr);
  int error = 0;
  const auto found = Answer([&] { return Val(text); }, error);
  if (std::isinf(expected)) {
    Expect(!found && error == 6, "Val takes what is too large: " + text);
  } else {
    // Numbers below the least full one may come out as zero.
    Expect(found && (*found == expected || (std::fabs(expected) < DBL_MIN && *found == 0.0)), "Val of " + text);
  }
}

void CheckStrict(const String& text) {
  int error = 0;
  const auto found = Answer([&] { return StrictNumber(text); }, error);
  Expect(found || error == 13 || error == 6, "an unusual error for " + text);
  if (found) Expect(*found == Val(text), "Val and the strict reading differ on " + text);
}

String Printed(const char* pattern, Double x) {
  char text[400];
  std::snprintf(text, sizeof text, pattern, x);
  return text;
}

// The number in hundredths, half away from zero on 15 significant digits; for numbers below 1E+15.
String Hundredths(Double x) {
  const String shown = Printed("%.14e", std::fabs(x));
  const int exponent = std::atoi(shown.c_str() + shown.find('e') + 1);
  __int128 digits = 0;
  for (const char c : shown.substr(0, shown.find('e'))) digits = c == '.' ? digits : digits * 10 + (c - '0');
  int places = 12 - exponent;  // digits that stand behind the hundredths
  for (; places < 0; ++places) digits *= 10;
  for (; places > 1 && digits != 0; --places) digits /= 10;
  const auto last = static_cast<long long>(places > 0 ? (digits + 5) / 10 : digits);
  String text = std::to_string(last);
  while (text.size() < 3) text.insert(0, 1, '0');
  text.insert(text.size() - 2, 1, '.');
  return (std::signbit(x) && last != 0 ? "-" : "") + text;
}

void CheckFormat(Double x) {
  int error = 0;
  const auto fixed = Answer([&] { return Format(x, "0.00"); }, error);
  if (!std::isfinite(x)) {
    Expect(!fixed && error == 6, "Format takes what is no number");
    return;
  }
  Expect(fixed.has_value(), "Format refuses " + Printed("%.17g", x));
  if (std::fabs(x) < 1e15) Expect(*fixed == Hundredths(x), "Format of " + Printed("%.17g", x) + " is " + *fixed);
  String shorter = *fixed;
  if (shorter.back() == '0') shorter.pop_back();
  Expect(Format(x, "0.0#") == shorter, "the pattern 0.0# of " + *fixed);
  if (shorter.back() == '0') shorter.pop_back();
  Expect(Format(x, "0.##") == shorter, "the pattern 0.## of " + *fixed);
}

void CheckText(const String& text, Double expected, const char* what) {
  Expect(Val(text) == expected, String(what) + " as text: " + text);
  Expect(StrictNumber(text) == expected, String(what) + " read strictly: " + text);
  Expect(text != "-0" && text.front() != '.' && text.back() != '.', String(what) + " as text: " + text);
}

void CheckNumberText(Double x) {
  int error = 0;
  const auto text = Answer([&] { return NumberText(x); }, error);
  Expect(text.has_value() == std::isfinite(x) && (text || error == 6), "the text of a number that is none");
  if (!text) return;
  const Double expected = std::strtod(Printed("%.15g", x).c_str(), nullptr);
  if (std::isfinite(expected) && std::fabs(expected) >= DBL_MIN) CheckText(*text, expected, "a Double");
  const auto narrow = static_cast<Single>(x);
  if (!std::isfinite(narrow)) return;
  CheckText(NumberText(narrow), std::strtod(Printed("%.7g", static_cast<Double>(narrow)).c_str(), nullptr), "a Single");
}

void CheckRounding(Double x) {
  int error = 0;
  const auto once = Answer([&] { return RoundToFourDecimals(x); }, error);
  Expect(once || error == 6, "an unusual error in rounding");
  if (once && std::fabs(*once) < 1e10) Expect(RoundToFourDecimals(*once) == *once, "rounded twice is another number");
}

}  // namespace
}  // namespace Tarnwise

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace Tarnwise;
  const String text(reinterpret_cast<const char*>(bytes), size);
  CheckVal(text);
  CheckStrict(text);
  (void)Trim(text);
  (void)Length(text);
  Double x = 0.0;
  std::memcpy(&x, bytes, std::min(size, sizeof x));
  for (const Double number : {x, std::strtod(text.c_str(), nullptr)}) {
    CheckFormat(number);
    CheckNumberText(number);
    CheckRounding(number);
  }
  return 0;
}
