#include "runtime/AnsiText.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace Tarnwise {
namespace {

// Any finite number, each exponent as likely as the other.
rc::Gen<Double> AnyDouble() {
  return rc::gen::suchThat(
      rc::gen::map(rc::gen::resize(100, rc::gen::arbitrary<std::uint64_t>()),
                   [](std::uint64_t bits) { return std::bit_cast<Double>(bits * 0x9E3779B97F4A7C15U); }),
      [](Double x) { return std::isfinite(x); });
}

// A number of the size that ratios and scores have, with a few decimals.
rc::Gen<Double> UsualDouble() {
  return rc::gen::map(
      rc::gen::pair(rc::gen::inRange(-2000000, 2000000), rc::gen::element(1.0, 8.0, 100.0, 1000.0, 7919.0)),
      [](const std::pair<int, Double>& p) { return p.first / p.second; });
}

rc::Gen<Double> Number() { return rc::gen::oneOf(AnyDouble(), UsualDouble()); }

Double Through(const char* form, Double x) {
  char text[64];
  std::snprintf(text, sizeof text, form, x);
  return std::strtod(text, nullptr);
}

RC_GTEST_PROP(NumberText, IsReadBackAsTheFifteenDigitNumber, ()) {
  const Double x = *Number();
  const Double expected = Through("%.15g", x);
  RC_PRE(std::isfinite(expected));
  RC_ASSERT(Val(NumberText(x)) == expected);
  RC_ASSERT(StrictNumber(NumberText(x)) == expected);
}

RC_GTEST_PROP(NumberText, OfASingleIsReadBackAsTheSevenDigitNumber, ()) {
  const auto bits =
      static_cast<std::uint32_t>(*rc::gen::resize(100, rc::gen::arbitrary<std::uint64_t>()) * 2654435761U);
  const auto x = std::bit_cast<Single>(bits);
  RC_PRE(std::isfinite(x));
  RC_ASSERT(Val(NumberText(x)) == Through("%.7g", static_cast<Double>(x)));
}

RC_GTEST_PROP(NumberText, HasNoTrailingZerosAndNoPointAtItsEnd, ()) {
  const String text = NumberText(*Number());
  const String mantissa = text.substr(0, text.find('E'));
  if (mantissa.find('.') != String::npos) RC_ASSERT((mantissa.back() >= '1' && mantissa.back() <= '9'));
  RC_ASSERT(text.find("-.") == String::npos);
  RC_ASSERT(text.front() != '.');
  RC_ASSERT(text != "-0");
}

RC_GTEST_PROP(Format, IsTheNearestHundredth, ()) {
  const Double x = *UsualDouble();
  RC_ASSERT(std::fabs(Val(Format(x, "0.00")) - x) <= 0.005 * (1 + 1e-9));
}

RC_GTEST_PROP(Format, NeverShowsANegativeZero, ()) {
  const Double x = *rc::gen::map(rc::gen::inRange(-1000, 1000), [](int n) { return n / 100000.0; });
  const String text = Format(x, "0.00");
  RC_ASSERT(text != "-0.00");
  RC_ASSERT((text.front() == '-') == (x <= -0.005));
}

RC_GTEST_PROP(Format, OptionalDigitsDropOnlyZeros, ()) {
  const Double x = *Number();
  const String fixed = Format(x, "0.00");
  String mixed = fixed;
  if (mixed.back() == '0') mixed.pop_back();
  RC_ASSERT(Format(x, "0.0#") == mixed);
  if (mixed.back() == '0') mixed.pop_back();
  RC_ASSERT(Format(x, "0.##") == mixed);
}

RC_GTEST_PROP(RoundToFourDecimals, RoundsOnce, ()) {
  const Double x = *UsualDouble();
  const Double once = RoundToFourDecimals(x);
  RC_ASSERT(std::fabs(once - x) <= 0.00005 * (1 + 1e-9));
  RC_ASSERT(RoundToFourDecimals(once) == once);
  RC_ASSERT(RoundToFourDecimals(-x) == -once);
}

RC_GTEST_PROP(AnsiText, EveryByteComesBack, (const std::string& letters, const std::vector<std::uint8_t>& bytes)) {
  const std::string all = letters + std::string(bytes.begin(), bytes.end());
  const String text = FromAnsi(all);
  RC_ASSERT(ToAnsi(text) == all);
  RC_ASSERT(Length(text) == static_cast<int>(all.size()));
}

RC_GTEST_PROP(AnsiText, WhatItAcceptsComesBack, (const std::vector<std::uint8_t>& bytes)) {
  const String text(bytes.begin(), bytes.end());
  const auto written = ToAnsi(text);
  if (written) RC_ASSERT(FromAnsi(*written) == text);
}

RC_GTEST_PROP(Val, AnswersAnyTextOfNumberParts, ()) {
  const auto text = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789.+-eEdD \t\r\n,x&H")));
  try {
    RC_ASSERT(std::isfinite(Val(text)));
  } catch (const RuntimeError& error) {
    RC_ASSERT(error.Number() == 6);
  }
}

TEST(AnsiText, AllBytesComeBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_EQ(ToAnsi(FromAnsi(one)), one) << byte;
    EXPECT_EQ(Length(FromAnsi(one)), 1) << byte;
  }
}

}  // namespace
}  // namespace Tarnwise
