#include "project/CsvNumbers.h"

#include "support/FaultOf.h"

#include <gtest/gtest.h>

#include <numeric>

namespace Tarnwise {
namespace {

CsvTable TableOf(const String& text, char delimiter = ';') {
  CsvOptions options;
  options.Delimiter = delimiter;
  options.Header = true;
  return ReadCsv({text.begin(), text.end()}, options);
}

// The format of all columns; "point" or "comma" with "!" where a number has a decimal sign.
String Format(const String& text, const NumberOptions& options = {}, char delimiter = ';') {
  const CsvTable table = TableOf(text, delimiter);
  std::vector<std::size_t> columns(table.Columns());
  std::iota(columns.begin(), columns.end(), std::size_t{0});
  const FoundFormat found = FindFormat(table, columns, options);
  return String(NameOfSign(found.Format.Decimal)) + (found.Seen ? "!" : "");
}

String NumberFault(const String& text, const NumberOptions& options = {}) {
  return FaultOf([&] { (void)Format(text, options); });
}

TEST(DecimalSign, FollowsFromTheCells) {
  struct Row {
    const char* Name;
    const char* Text;
    const char* Sign;
  };
  const Row rows[] = {
      {"no number at all", "X\nabc\n", "point"},
      {"whole numbers", "X;Y\n1;2\n300;4\n", "point"},
      {"a point", "X\n1.5\n", "point!"},
      {"a comma", "X\n1,5\n", "comma!"},
      {"one comma among whole numbers", "X;Y\n1;2\n3;4\n5;6,25\n", "comma!"},
      {"thousands with points", "X\n1.234.567\n", "comma!"},
      {"thousands with commas and decimals", "X\n1,234.5\n", "point!"},
      {"three decimals beside two", "X\n1.234\n1.25\n", "point!"},
      {"three decimals beside two, with commas", "X\n1,234\n1,25\n", "comma!"},
      {"three decimals below one", "X\n0.123\n", "point!"},
      {"a date among the cells", "X\n01.02.2020\n1,5\n", "comma!"},
      {"texts with signs", "X\na.b\nc,d\n", "point"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Format(row.Text), row.Sign);
  }
}

TEST(DecimalSign, OfThreeDecimalsAloneIsUnclear) {
  EXPECT_EQ(NumberFault("Unit;X\nA;12\nB;1.234\n"),
            "the decimal sign is unclear: \"1.234\" (line 3, X) may have decimals or thousands; say --decimal point or "
            "--thousands point");
  EXPECT_EQ(NumberFault("Unit;X\nA;1,234\n"),
            "the decimal sign is unclear: \"1,234\" (line 2, X) may have decimals or thousands; say --decimal comma or "
            "--thousands comma");
}

TEST(DecimalSign, OfThreeDecimalsBetweenCommasIsThePoint) { EXPECT_EQ(Format("X,Y\n1.234,5\n", {}, ','), "point!"); }

TEST(DecimalSign, InQuotesBetweenCommasIsUnclearAllTheSame) {
  EXPECT_NE(FaultOf([] { (void)Format("X,Y\n\"1,234\",5\n", {}, ','); }), "no fault");
}

TEST(DecimalSign, OfTwoKindsIsUnclear) {
  EXPECT_EQ(NumberFault("X;Y\n1.5;2\n3;4,5\n"),
            "the decimal sign is unclear: it is the point in \"1.5\" (line 2, X) and the comma in \"4,5\" (line 3, Y); "
            "say which with --decimal");
  EXPECT_EQ(NumberFault("X;Y\n1.234;2\n3;4,567\n"),
            "the decimal sign is unclear: it is the point in \"1.234\" (line 2, X) and the comma in \"4,567\" (line 3, "
            "Y); say which with --decimal");
}

TEST(DecimalSign, ThatIsToldIsNotLookedFor) {
  NumberOptions options;
  options.Decimal = '.';
  EXPECT_EQ(Format("X\n1,5\n", options), "point!");
  options.Decimal = ',';
  EXPECT_EQ(Format("X\n1.234\n", options), "comma!");
}

TEST(DecimalSign, IsTheOneThatDoesNotMarkThousands) {
  NumberOptions options;
  options.Thousands = '.';
  EXPECT_EQ(Format("X\n1.234\n", options), "comma!");
  options.Thousands = ',';
  EXPECT_EQ(Format("X\n1,234\n", options), "point!");
  options.Thousands = ' ';
  EXPECT_EQ(Format("X\n1 234,5\n", options), "comma!");
}

TEST(DecimalSign, CannotMarkThousandsToo) {
  NumberOptions options;
  options.Decimal = ',';
  options.Thousands = ',';
  EXPECT_EQ(NumberFault("X\n1\n", options), "the comma can't be both --decimal and --thousands");
}

TEST(DecimalSign, IsNotLookedForInCellsThatCountAsMissing) {
  NumberOptions options;
  options.Missing = {"9,9"};
  EXPECT_EQ(Format("X\n9,9\n1.5\n", options), "point!");
}

TEST(DecimalSign, IsLookedForInTheColumnsAskedForAlone) {
  const CsvTable table = TableOf("Version;X\n1.2;3,4\n");
  EXPECT_EQ(FindFormat(table, {1}, {}).Format.Decimal, ',');
  EXPECT_EQ(FindFormat(table, {0}, {}).Format.Decimal, '.');
}

TEST(DecimalSign, OfAPreviewIsThatOfTheWholeFile) {
  CsvOptions options;
  options.MostRows = 1;
  const String text = "Unit;X\nA;1\nB;2,5\n";
  const CsvTable preview = ReadCsv({text.begin(), text.end()}, options);
  EXPECT_EQ(FindFormat(preview, {1}, {}).Format.Decimal, ',');
  EXPECT_EQ(NumbersOf(preview, 1, {',', '\0'}, {}).Values.size(), 1U);
}

TEST(ColumnNumbers, AreNumbersMissingOnesAndTheRest) {
  const CsvTable table = TableOf("X;Y\n1,5;a\n?;b\nabc;c\n1.5;d\n-99;e\n;f\n-2;g\n");
  const ColumnNumbers numbers = NumbersOf(table, 0, {',', '\0'}, {"-99"});
  const std::vector<std::optional<double>> values = {1.5, {}, {}, {}, {}, {}, -2.0};
  EXPECT_EQ(numbers.Values, values);
  EXPECT_EQ(numbers.Missing, 3U);
  EXPECT_EQ(numbers.Unread, (std::vector<std::size_t>{2}));
  EXPECT_EQ(numbers.Unclear, (std::vector<std::size_t>{3}));
}

TEST(Signs, HaveNamesAndAreKnownByThem) {
  for (const char sign : {'.', ',', ' ', '\''}) {
    EXPECT_EQ(SignNamed(NameOfSign(sign)), sign);
    EXPECT_EQ(SignNamed(String(1, sign)), sign);
  }
  EXPECT_EQ(SignNamed("none"), std::nullopt);
  EXPECT_EQ(SignNamed(""), std::nullopt);
  EXPECT_EQ(SignNamed(";"), std::nullopt);
}

}  // namespace
}  // namespace Tarnwise
