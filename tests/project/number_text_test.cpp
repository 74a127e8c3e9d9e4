#include "project/NumberText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace Tarnwise {
namespace {

constexpr NumberFormat kPoint{'.', '\0'};
constexpr NumberFormat kComma{',', '\0'};

TEST(NumberIn, ReadsWhatIsANumber) {
  struct Row {
    const char* Text;
    double Number;
  };
  const Row rows[] = {{"0", 0.0},
                      {"12", 12.0},
                      {"-3.17", -3.17},
                      {"+0.5", 0.5},
                      {".5", 0.5},
                      {"5.", 5.0},
                      {"1e3", 1000.0},
                      {"1E+03", 1000.0},
                      {"2.5e-2", 0.025},
                      {"007", 7.0},
                      {"0.1", 0.1},
                      {"1.7976931348623157e308", std::numeric_limits<double>::max()},
                      {"123456789012345678", 123456789012345678.0}};
  for (const Row& row : rows) EXPECT_EQ(NumberIn(row.Text, kPoint), row.Number) << row.Text;
}

TEST(NumberIn, ReadsNothingElse) {
  for (const char* const text : {"",      " ",
                                 "-",     "+",
                                 ".",     "-.",
                                 "e5",    ".e5",
                                 "1e",    "1e+",
                                 "1.2.3", "1,5",
                                 "1 5",   " 1",
                                 "1 ",    "--1",
                                 "+-1",   "0x10",
                                 "inf",   "nan",
                                 "NaN",   "Infinity",
                                 "1a",    "12%",
                                 "(12)",  "\xE2\x82\xAC 5",
                                 "1e5.5", "1'000",
                                 "1e400", "1e-400"}) {
    EXPECT_EQ(NumberIn(text, kPoint), std::nullopt) << text;
  }
}

TEST(NumberIn, TakesTheCommaWhereThatIsTheDecimalSign) {
  EXPECT_EQ(NumberIn("3,17", kComma), 3.17);
  EXPECT_EQ(NumberIn(",5", kComma), 0.5);
  EXPECT_EQ(NumberIn("1,234", kComma), 1.234);
  EXPECT_EQ(NumberIn("3.17", kComma), std::nullopt);
}

TEST(NumberIn, TakesThousandsMarksOnlyWhereTheyAreTold) {
  struct Row {
    const char* Text;
    char Mark;
    double Number;
  };
  const Row rows[] = {{"1,234", ',', 1234.0},
                      {"1,234,567.5", ',', 1234567.5},
                      {"12", ',', 12.0},
                      {"1234.5", ',', 1234.5},
                      {"-1 234", ' ', -1234.0},
                      {"1\xC2\xA0"
                       "234.5",
                       ' ', 1234.5},
                      {"1\xE2\x80\xAF"
                       "234",
                       ' ', 1234.0},
                      {"1'234'567", '\'', 1234567.0},
                      {"1\xE2\x80\x99"
                       "234",
                       '\'', 1234.0}};
  for (const Row& row : rows) {
    EXPECT_EQ(NumberIn(row.Text, {'.', row.Mark}), row.Number) << row.Text;
  }
  EXPECT_EQ(NumberIn("1.234.567,5", {',', '.'}), 1234567.5);
}

TEST(NumberIn, GroupsDigitsByThreesOrNotAtAll) {
  for (const char* const text : {"12,34", "1,2345", "1,234,56", "1234,567", ",234", "1,,234", "1,234,", "0,234",
                                 "012,345", "1,234e5", "1,23", "1.234,567"}) {
    EXPECT_EQ(NumberIn(text, {'.', ','}), std::nullopt) << text;
  }
}

TEST(Readings, TellWhatTheDecimalSignCanBe) {
  struct Row {
    const char* Text;
    std::optional<double> Point;
    std::optional<double> Comma;
  };
  const Row rows[] = {
      {"12", 12.0, 12.0},
      {"1.5", 1.5, std::nullopt},
      {"1,5", std::nullopt, 1.5},
      {"1.234", 1.234, 1234.0},
      {"1,234", 1234.0, 1.234},
      {"0.123", 0.123, std::nullopt},
      {"1234.567", 1234.567, std::nullopt},
      {"1.234e2", 123.4, std::nullopt},
      {"1.234,5", std::nullopt, 1234.5},
      {"1,234.5", 1234.5, std::nullopt},
      {"1.234.567", std::nullopt, 1234567.0},
      {"1,234,567", 1234567.0, std::nullopt},
      {"1 234", 1234.0, 1234.0},
      {"1 234,5", std::nullopt, 1234.5},
      {"1'234.5", 1234.5, std::nullopt},
      {"01.02.2020", std::nullopt, std::nullopt},
      {"12:30", std::nullopt, std::nullopt},
      {"abc", std::nullopt, std::nullopt},
      {"", std::nullopt, std::nullopt},
      {".", std::nullopt, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Text);
    const NumberReadings readings = ReadingsOf(row.Text);
    EXPECT_EQ(readings.Point, row.Point);
    EXPECT_EQ(readings.Comma, row.Comma);
  }
  EXPECT_TRUE(ReadingsOf("1.234").Differ());
  EXPECT_FALSE(ReadingsOf("12").Differ());
  EXPECT_FALSE(ReadingsOf("1.5").Differ());
}

TEST(MissingText, IsWhatPeopleWriteForIt) {
  for (const char* const text : {"", "-", "--", "\xE2\x80\x93", "\xE2\x80\x94", "?", ".", "..", ":", "NA", "na", "N/A",
                                 "n/a", "#N/A", "NaN", "nan", "NULL", "null", "None"}) {
    EXPECT_TRUE(IsMissingText(text)) << text;
  }
}

TEST(MissingText, IsNothingElse) {
  for (const char* const text : {"0", "---", "??", "x", "N", "NAN1", "missing", "nil", "-1", "...", " "}) {
    EXPECT_FALSE(IsMissingText(text)) << text;
  }
}

TEST(ShortestText, ReadsBackToTheSameNumber) {
  struct Row {
    double Number;
    const char* Text;
  };
  const Row rows[] = {{0.0, "0"},
                      {-0.0, "-0.0"},
                      {15.0, "15"},
                      {-3.17, "-3.17"},
                      {0.1, "0.1"},
                      {0.1 + 0.2, "0.30000000000000004"},
                      {100000.0, "100000"},
                      {1e14, "100000000000000"},
                      {1e15, "1e+15"},
                      {1.5e22, "1.5e+22"},
                      {0.00001, "0.00001"},
                      {0.000001, "1e-06"},
                      {1.0 / 3.0, "0.3333333333333333"},
                      {5e-324, "5e-324"},
                      {std::numeric_limits<double>::max(), "1.7976931348623157e+308"}};
  for (const Row& row : rows) {
    EXPECT_EQ(ShortestText(row.Number), row.Text);
    EXPECT_EQ(std::strtod(row.Text, nullptr), row.Number);
  }
}

}  // namespace
}  // namespace Tarnwise
