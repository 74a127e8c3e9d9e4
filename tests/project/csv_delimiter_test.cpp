#include "project/CsvDelimiter.h"

#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

char Found(std::string_view text, const std::vector<String>& names = {}) { return FindDelimiter(text, 1, names); }

struct DelimiterRow {
  const char* Name;
  const char* Text;
  char Delimiter;
};

const DelimiterRow kDelimiterRows[] = {
    {"commas", "Unit,X,Y\nA,1,2\nB,3,4\n", ','},
    {"semicolons", "Unit;X;Y\nA;1;2\nB;3;4\n", ';'},
    {"tabs", "Unit\tX\tY\nA\t1\t2\n", '\t'},
    {"bars", "Unit|X|Y\nA|1|2\n", '|'},
    {"semicolons and decimal commas", "Unit;X;Y\nA;1,5;2,5\nB;3,5;4,5\n", ';'},
    {"semicolons and a decimal comma in each row", "Unit;X, net;Y\nA;1,5;2\nB;3,5;4\n", ';'},
    {"decimal commas without a header", "1,5;2,5\n3,5;4,5\n", ';'},
    {"tabs and decimal commas in each row", "1,5\t2,5\n3,5\t4,5\n", '\t'},
    {"commas and a semicolon in each name", "Unit; place,X,Y\nA; Bonn,1,2\nB; Kiel,3,4\n", ','},
    {"commas and a semicolon in quotes", "Unit,X\n\"A;B\",1\n\"C;D\",2\n", ','},
    {"semicolons and a comma in quotes", "Unit;X\n\"A,B\";1\n\"C\";2\n", ';'},
    {"a line end in quotes", "Unit;X\n\"A\nB, C\";1\nD;2\n", ';'},
    {"empty lines between", "Unit;X\n\nA;1\n\n\nB;2\n\n", ';'},
    {"a row that is too short, in commas", "Unit,X,Y\nA,1\nB,3,4\n", ','},
    {"decimal commas without quotes between commas", "Unit,X,Y\nA,1,5,2,5\nB,3,5,4,5\n", ','},
    {"a title above the table", "Hospitals of 2019\nUnit;X;Y\nA;1;2\n", ';'},
    {"missing values", "Unit;X;Y\nA;-;2\nB;1,5;NA\nC;?;4\n", ';'},
    {"a quote that is never closed", "Unit;X\n\"A;1\nB;2\n", ';'},
};

TEST(Delimiter, IsFound) {
  for (const DelimiterRow& row : kDelimiterRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Found(row.Text), row.Delimiter);
  }
}

TEST(Delimiter, UnderWhichTheFirstRowHoldsTheNamesAskedForIsIt) {
  const char* const text = "Unit;X,Y;Z\nA;1,2;3\nB;1,2;3\n";
  EXPECT_EQ(Found(text, {"Unit", "Z"}), ';');
  EXPECT_EQ(Found(text, {"Unit;X"}), ',');
}

TEST(Delimiter, OfRaggedRowsFollowsFromTheNamesAskedFor) {
  const char* const text = "Unit;X, net;Y\nA;1;2\nB;3\n";
  EXPECT_EQ(Found(text, {"Unit", "Y"}), ';');
  EXPECT_EQ(
      FaultOf([&] { Found(text); }),
      "what separates the cells is unclear: comma (2 columns) or semicolon (3 columns)? Say which with --delimiter");
}

TEST(Delimiter, OfTwoReadingsThatAreAsGoodIsUnclear) {
  EXPECT_EQ(
      FaultOf([] { Found("a,b;c\n1,x;2\n3,x;4\n"); }),
      "what separates the cells is unclear: comma (2 columns) or semicolon (2 columns)? Say which with --delimiter");
}

TEST(Delimiter, ThatIsNowhereHasToBeTold) {
  const String fault =
      "neither comma nor semicolon, tab or vertical bar separates cells in it; name what does with --delimiter";
  EXPECT_EQ(FaultOf([] { Found("Unit X Y\nA 1 2\n"); }), fault);
  EXPECT_EQ(FaultOf([] { Found("\"Unit,X\"\n\"A,1\"\n"); }), fault);
}

TEST(Delimiter, InNoFirstRowAndOfTwoKindsIsUnclear) {
  EXPECT_EQ(
      FaultOf([] { Found("Title\nA;1\nB,2\n"); }),
      "what separates the cells is unclear: comma (1 column) or semicolon (1 column)? Say which with --delimiter");
}

TEST(Delimiter, HasANameAndIsKnownByIt) {
  for (const char sign : {',', ';', '\t', '|'}) {
    EXPECT_EQ(DelimiterNamed(NameOfDelimiter(sign)), sign) << sign;
    EXPECT_EQ(DelimiterNamed(String(1, sign)), sign) << sign;
  }
  EXPECT_EQ(DelimiterNamed("\\t"), '\t');
  EXPECT_EQ(DelimiterNamed("bar"), '|');
  EXPECT_EQ(DelimiterNamed("pipe"), '|');
  EXPECT_EQ(DelimiterNamed(":"), ':');
  EXPECT_EQ(NameOfDelimiter(':'), "\":\"");
}

TEST(Delimiter, IsNothingThatNamesAndNumbersAreMadeOf) {
  for (const char* const name : {"", "a", "5", ".", "-", "+", "\"", "\n", "\r", " ", "comma ", ",,", "Comma"}) {
    EXPECT_EQ(DelimiterNamed(name), std::nullopt) << name;
  }
}

}  // namespace
}  // namespace Tarnwise
