#include "runtime/Text.h"
#include "support/ErrorNumber.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Tarnwise {
namespace {

struct ValRow {
  const char* Name;
  String Text;
  Double Expected;
};

const ValRow kValRows[] = {
    {"nothing", "", 0.0},
    {"only blanks", "   ", 0.0},
    {"no number", "abc", 0.0},
    {"a number behind letters", "x12", 0.0},
    {"whole", "12", 12.0},
    {"point and decimals", "3.17", 3.17},
    {"decimals without a whole part", ".37", 0.37},
    {"a point at the end", "37.", 37.0},
    {"a point alone", ".", 0.0},
    {"minus alone", "-", 0.0},
    {"plus", "+0.37", 0.37},
    {"minus", "-3.17", -3.17},
    {"minus before a point", "-.5", -0.5},
    {"two signs", "--5", 0.0},
    {"mixed signs", "+-5", 0.0},
    {"a sign behind the number", "5-3", 5.0},
    {"letters behind the number", "12 hospitals", 12.0},
    {"a second point", "1.5.2", 1.5},
    {"a comma ends the number", "1,5", 1.0},
    {"a percent sign ends it", "50%", 50.0},
    {"an exclamation mark ends it", "0.5!", 0.5},
    {"blanks between digits", "1 2", 12.0},
    {"blanks around the point", " 3 . 1 7 ", 3.17},
    {"a blank behind the sign", "- 5", -5.0},
    {"tabs and line ends", "\t1\r\n2\n", 12.0},
    {"an exponent with E", "1E3", 1000.0},
    {"an exponent with e", "2.5e-1", 0.25},
    {"an exponent with D", "1D3", 1000.0},
    {"an exponent with d and a plus", "4d+2", 400.0},
    {"blanks in the exponent", "1 E 2", 100.0},
    {"an exponent without digits", "7E", 7.0},
    {"an exponent with its sign only", "7E-", 7.0},
    {"an exponent without a number", "E5", 0.0},
    {"an exponent behind a lone point", ".E5", 0.0},
    {"hexadecimal is no number", "&H10", 0.0},
    {"hexadecimal with an x ends at the x", "0x10", 0.0},
    {"infinity by name", "inf", 0.0},
    {"not a number by name", "nan", 0.0},
    {"leading zeros", "007", 7.0},
    {"zero with a huge exponent", "0E999", 0.0},
    {"zero with an exponent past all bounds", "0E99999999999999999999", 0.0},
    {"too small by an exponent past all bounds", "7E-99999999999999999999", 0.0},
    {"too small is zero", "1E-400", 0.0},
    {"too small without an exponent", "0." + String(400, '0') + "1", 0.0},
    {"too small in spite of its exponent", "0." + String(400, '0') + "1E5", 0.0},
    {"many zeros and an exponent that makes up for them", "0." + String(400, '0') + "1E401", 1.0},
    {"leading zeros in the exponent", "2e-0000000000000000000000003", 0.002},
    {"leading zeros before an exponent past all bounds", "-2e-00000000000000000000000852767761", 0.0},
    {"digits beyond what a Double holds", "0.333333333333333333333333333333333", 1.0 / 3.0},
    {"a control character behind the number", "2.5\x08", 2.5},
    {"a blank between the exponent's letter and its sign", "25 E - 1", 2.5},
    {"many digits and an exponent that makes up for them", "1" + String(400, '0') + "E-400", 1.0},
};

TEST(Val, TakesTheLeadingNumericPart) {
  for (const ValRow& row : kValRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Val(row.Text), row.Expected);
  }
}

TEST(Val, OfANumberThatIsTooLargeOverflows) {
  for (const String& text :
       {String("1E400"), String("-1E400"), String("7E99999999999999999999"), String("1E+888888888888852888888888"),
        "1" + String(400, '0'), "1" + String(400, '0') + "E-5"}) {
    SCOPED_TRACE(text.substr(0, 20));
    EXPECT_EQ(ErrorNumber([&] { return Val(text); }), 6);
  }
}

TEST(Val, ReadsTheLargestAndTheSmallestNumber) {
  EXPECT_EQ(Val("1.7976931348623157E308"), 0x1.fffffffffffffp1023);
  EXPECT_EQ(Val("4.9E-324"), 0x1p-1074);
}

TEST(StrictNumber, TakesTextThatIsANumberAsAWhole) {
  EXPECT_EQ(StrictNumber("0.37"), 0.37);
  EXPECT_EQ(StrictNumber("  -3.17 "), -3.17);
  EXPECT_EQ(StrictNumber("1E3"), 1000.0);
}

TEST(StrictNumber, RefusesOtherText) {
  for (const char* text : {"", "  ", "abc", "1x", "1 2", "- 2", "2e", "1 d", "Infinity!", "1,5", "1E", "."}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(ErrorNumber([&] { return StrictNumber(text); }), 13);
  }
}

TEST(Trim, TakesBlanksOffBothEnds) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("a"), "a");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("    "), "");
}

TEST(Trim, LeavesTabsAndLineEnds) { EXPECT_EQ(Trim(" \ta\n "), "\ta\n"); }

TEST(Length, CountsCharactersNotBytes) {
  EXPECT_EQ(Length(""), 0);
  EXPECT_EQ(Length("abc"), 3);
  EXPECT_EQ(Length("\xC2\xA4 \xC3\xA4\xE2\x82\xAC"), 4);
}

}  // namespace
}  // namespace Tarnwise
