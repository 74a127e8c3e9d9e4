#include "runtime/Text.h"
#include "support/ErrorNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tarnwise {
namespace {

struct FormatRow {
  const char* Name;
  Double Number;
  const char* Fixed;     // "0.00"
  const char* Optional;  // "0.##"
  const char* Mixed;     // "0.0#"
};

const FormatRow kFormatRows[] = {
    {"zero", 0.0, "0.00", "0.", "0.0"},
    {"negative zero", -0.0, "0.00", "0.", "0.0"},
    {"whole", 5.0, "5.00", "5.", "5.0"},
    {"one decimal", 0.5, "0.50", "0.5", "0.5"},
    {"two decimals", 3.17, "3.17", "3.17", "3.17"},
    {"three decimals, up", 0.256, "0.26", "0.26", "0.26"},
    {"three decimals, down", 0.254, "0.25", "0.25", "0.25"},
    {"a half goes away from zero", 1.125, "1.13", "1.13", "1.13"},
    {"a half that is stored a little below", 1.005, "1.01", "1.01", "1.01"},
    {"a half that is stored a little above", 0.145, "0.15", "0.15", "0.15"},
    {"a negative half", -1.125, "-1.13", "-1.13", "-1.13"},
    {"a carry into the whole part", 0.995, "1.00", "1.", "1.0"},
    {"a carry that makes the number longer", 99.996, "100.00", "100.", "100.0"},
    {"a carry that leaves one decimal", 0.296, "0.30", "0.3", "0.3"},
    {"a carry in a negative number", -9.999, "-10.00", "-10.", "-10.0"},
    {"half a hundredth", 0.005, "0.01", "0.01", "0.01"},
    {"below half a hundredth", 0.00499, "0.00", "0.", "0.0"},
    {"nine tenths of a thousandth", 0.0009, "0.00", "0.", "0.0"},
    {"far below", 1e-300, "0.00", "0.", "0.0"},
    {"a negative number that rounds to zero", -0.004, "0.00", "0.", "0.0"},
    {"minus half a hundredth", -0.005, "-0.01", "-0.01", "-0.01"},
    {"the sixteenth digit does not count", 0.12499999999999999, "0.13", "0.13", "0.13"},
    {"the fifteenth digit counts", 0.124999999999999, "0.12", "0.12", "0.12"},
    {"a third", 1.0 / 3.0, "0.33", "0.33", "0.33"},
    {"more digits than are shown", 123456789012345678.0, "123456789012346000.00", "123456789012346000.",
     "123456789012346000.0"},
    {"fifteen digits before the point", 999999999999999.4, "999999999999999.00", "999999999999999.",
     "999999999999999.0"},
};

TEST(Format, RoundsTheFifteenDigitNumberAwayFromZero) {
  for (const FormatRow& row : kFormatRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Format(row.Number, "0.00"), row.Fixed);
    EXPECT_EQ(Format(row.Number, "0.##"), row.Optional);
    EXPECT_EQ(Format(row.Number, "0.0#"), row.Mixed);
  }
}

TEST(Format, KnowsThreePatterns) {
  EXPECT_EQ(ErrorNumber([] { return Format(1.0, "0.000"); }), 5);
  EXPECT_EQ(ErrorNumber([] { return Format(1.0, ""); }), 5);
}

TEST(Format, OfWhatIsNoNumberOverflows) {
  EXPECT_EQ(ErrorNumber([] { return Format(std::numeric_limits<Double>::infinity(), "0.00"); }), 6);
  EXPECT_EQ(ErrorNumber([] { return Format(std::numeric_limits<Double>::quiet_NaN(), "0.##"); }), 6);
}

template <class Number>
struct TextRow {
  const char* Name;
  Number Value;
  const char* Expected;
};

const TextRow<Double> kDoubleRows[] = {
    {"zero", 0.0, "0"},
    {"negative zero", -0.0, "0"},
    {"one", 1.0, "1"},
    {"the zero before the point", 0.5, "0.5"},
    {"the zero of a negative number", -0.37, "-0.37"},
    {"no trailing zeros", 3.1700, "3.17"},
    {"zeros of a whole number stay", 1200.0, "1200"},
    {"fifteen digits", 1.0 / 3.0, "0.333333333333333"},
    {"the fifteenth digit rounds up", 2.0 / 3.0, "0.666666666666667"},
    {"a sum that is not quite 0.3", 0.1 + 0.2, "0.3"},
    {"fifteen digits before the point", 123456789012345.0, "123456789012345"},
    {"the last without an exponent", 999999999999999.0, "999999999999999"},
    {"the first with an exponent", 1e15, "1E+15"},
    {"rounded up to the exponent form", 999999999999999.9, "1E+15"},
    {"digits in the exponent form", 1234567890123456.0, "1.23456789012346E+15"},
    {"the smallest without an exponent", 0.0001, "0.0001"},
    {"rounded up out of the exponent form", 0.00009999999999999999, "0.0001"},
    {"below it", 0.000037, "3.7E-05"},
    {"negative with an exponent", -0.00001, "-1E-05"},
    {"three digits in the exponent", 1e300, "1E+300"},
    {"the smallest of all", 5e-324, "4.94065645841247E-324"},
};

const TextRow<Single> kSingleRows[] = {
    {"zero", 0.0F, "0"},
    {"negative zero", -0.0F, "0"},
    {"a tenth", 0.1F, "0.1"},
    {"seven digits", 1.0F / 3.0F, "0.3333333"},
    {"the seventh digit rounds up", 2.0F / 3.0F, "0.6666667"},
    {"more digits than a Single has", 123456792.0F, "123456800"},
    {"no exponent at eight digits", 1e7F, "10000000"},
    {"the exponent form begins where a Double's does", 1e15F, "1E+15"},
    {"just below it", 9.999999e14F, "999999900000000"},
    {"the smallest without an exponent", 0.0001F, "0.0001"},
    {"below it", 0.00001F, "1E-05"},
    {"negative", -114.6F, "-114.6"},
};

TEST(NumberText, OfADoubleHasFifteenDigits) {
  for (const auto& row : kDoubleRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(NumberText(row.Value), row.Expected);
  }
}

TEST(NumberText, OfASingleHasSevenDigits) {
  for (const auto& row : kSingleRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(NumberText(row.Value), row.Expected);
  }
}

TEST(NumberText, OfWhatIsNoNumberOverflows) {
  EXPECT_EQ(ErrorNumber([] { return NumberText(std::numeric_limits<Double>::infinity()); }), 6);
  EXPECT_EQ(ErrorNumber([] { return NumberText(std::numeric_limits<Double>::quiet_NaN()); }), 6);
  EXPECT_EQ(ErrorNumber([] { return NumberText(-std::numeric_limits<Single>::infinity()); }), 6);
}

TEST(FourDecimalText, HasAllDigitsOfTheRoundedNumberAndNoExponent) {
  EXPECT_EQ(FourDecimalText(332008345238.46777), "332008345238.4678");
  EXPECT_EQ(FourDecimalText(-332008345238.46777), "-332008345238.4678");
  EXPECT_EQ(FourDecimalText(900000000000000.0), "900000000000000");
  EXPECT_EQ(FourDecimalText(0.466666), "0.4667");
  EXPECT_EQ(FourDecimalText(0.5), "0.5");
  EXPECT_EQ(FourDecimalText(-2.0), "-2");
  EXPECT_EQ(FourDecimalText(0.0001), "0.0001");
  EXPECT_EQ(FourDecimalText(0.00005), "0") << "half a ten-thousandth goes to the even one";
  EXPECT_EQ(FourDecimalText(-0.00003), "0") << "there is no -0";
}

TEST(FourDecimalText, OfWhatSixtyFourBitsDoNotHoldOverflows) {
  EXPECT_EQ(FourDecimalText(922337203685477.0), "922337203685477");
  EXPECT_EQ(ErrorNumber([] { return FourDecimalText(922337203685478.0); }), 6);
  EXPECT_EQ(ErrorNumber([] { return FourDecimalText(std::numeric_limits<Double>::quiet_NaN()); }), 6);
}

TEST(AppendUtf8, WritesEveryLengthOfACharacter) {
  String text = "x";
  const char32_t characters[] = {0x01, 0x7F, 0x80, 0x7FF, 0x800, 0x20FF, 0xFFFD, 0x10000, 0x1F9FF, 0x10FFFD};
  for (const char32_t character : characters) AppendUtf8(text, character);
  EXPECT_EQ(
      text,
      "x\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xE2\x83\xBF\xEF\xBF\xBD\xF0\x90\x80\x80\xF0\x9F\xA7\xBF\xF4\x8F\xBF\xBD");
}

}  // namespace
}  // namespace Tarnwise
