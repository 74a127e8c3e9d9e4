#include "project/CsvRows.h"

#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

// All rows with their lines, cells in brackets; doubled quotes as they stand.
String Rows(std::string_view text, char delimiter = ',') {
  String all;
  CsvRows rows(text, delimiter);
  while (rows.Next()) {
    all += std::to_string(rows.Line());
    for (const CsvCell& cell : rows.Cells()) all += "[" + String(cell.Text) + (cell.Doubled ? "]*" : "]");
    all += " ";
  }
  return all;
}

struct RowsRow {
  const char* Name;
  std::string_view Text;
  const char* Rows;
};

const RowsRow kRowCases[] = {
    {"nothing", "", ""},
    {"one cell", "a", "1[a] "},
    {"an empty line", "\n", "1[] "},
    {"the last line without an end", "a,b\nc,d", "1[a][b] 2[c][d] "},
    {"the last line with an end", "a,b\nc,d\n", "1[a][b] 2[c][d] "},
    {"lines of Windows", "a,b\r\nc,d\r\n", "1[a][b] 2[c][d] "},
    {"lines of old Macs", "a,b\rc,d\r", "1[a][b] 2[c][d] "},
    {"lines of all kinds", "a\r\nb\nc\r\n\rd", "1[a] 2[b] 3[c] 4[] 5[d] "},
    {"a delimiter at the end of the text", "a,", "1[a][] "},
    {"a delimiter at the end of a line", "a,\nb,\n", "1[a][] 2[b][] "},
    {"only delimiters", ",,\n", "1[][][] "},
    {"blanks around cells stay", " a , b", "1[ a ][ b] "},
    {"a delimiter in quotes", R"("a,b",c)", "1[a,b][c] "},
    {"a line end in quotes", "\"a\nb\",c\nd,e\n", "1[a\nb][c] 3[d][e] "},
    {"a line end of Windows in quotes", "\"a\r\nb\",c\r\nd,e\r\n", "1[a\r\nb][c] 3[d][e] "},
    {"many lines in quotes", "\"\n\n\n\"\nd\n", "1[\n\n\n] 5[d] "},
    {"doubled quotes", R"("say ""hello""",b)", "1[say \"\"hello\"\"]*[b] "},
    {"nothing in quotes", "\"\",\"\"\n", "1[][] "},
    {"only a doubled quote", R"("""")", "1[\"\"]* "},
    {"quotes within a cell", R"(5" pipe,6" pipe)", "1[5\" pipe][6\" pipe] "},
    {"blanks before the quote", R"(a, "b,c")", "1[a][b,c] "},
    {"blanks behind the quote", "\"a\" ,\"b\"\t\n", "1[a][b] "},
    {"quotes at the end of the text", R"(a,"b")", "1[a][b] "},
    {"bytes beyond ASCII", "\xC3\xA4,\xE2\x82\xAC", "1[\xC3\xA4][\xE2\x82\xAC] "},
};

TEST(CsvRows, AreTakenApart) {
  for (const RowsRow& row : kRowCases) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Rows(row.Text), row.Rows);
  }
}

TEST(CsvRows, PartAtTheirDelimiterAlone) {
  EXPECT_EQ(Rows("a;1,5;b", ';'), "1[a][1,5][b] ");
  EXPECT_EQ(Rows("a\t\"b\tc\"\td", '\t'), "1[a][b\tc][d] ");
  EXPECT_EQ(Rows("a\t\tb", '\t'), "1[a][][b] ");
  EXPECT_EQ(Rows("a|b,c", '|'), "1[a][b,c] ");
}

TEST(CsvRows, CountLinesFromTheOneTheyAreTold) {
  CsvRows rows("a\nb", ',', 7);
  ASSERT_TRUE(rows.Next());
  EXPECT_EQ(rows.Line(), 7U);
  ASSERT_TRUE(rows.Next());
  EXPECT_EQ(rows.Line(), 8U);
  EXPECT_FALSE(rows.Next());
}

TEST(CsvRows, QuoteThatIsNeverClosedIsAFaultWithItsLine) {
  EXPECT_EQ(FaultOf([] { Rows("a,b\nc,\"d\ne\n"); }), "line 2: the quote before \"d\\x0Ae\\x0A\" is never closed");
  EXPECT_EQ(FaultOf([] { Rows("\""); }), "line 1: the quote before \"\" is never closed");
  EXPECT_EQ(FaultOf([] { Rows("\"\"\""); }), "line 1: the quote before \"\"\"\" is never closed");
}

TEST(CsvRows, TextBehindAClosingQuoteIsAFaultWithItsLine) {
  EXPECT_EQ(FaultOf([] { Rows("a\n\"b\nc\"d,e\n"); }),
            "line 3: behind the closing quote of \"b\\x0Ac\" stands \"d,e\\x0A\"");
  EXPECT_EQ(FaultOf([] { Rows("\"a\" \"b\""); }), "line 1: behind the closing quote of \"a\" stands \"\"b\"\"");
}

TEST(CsvRows, AreBlankWhereNoCellHoldsMoreThanBlanks) {
  for (const std::string_view text : {"\n", "  \n", ",,\n", " ,\t, \n", "\xC2\xA0\n", "\"\",\" \"\n"}) {
    CsvRows rows(text, ',');
    ASSERT_TRUE(rows.Next());
    EXPECT_TRUE(rows.IsBlank()) << text;
  }
  CsvRows rows(",-,\n", ',');
  ASSERT_TRUE(rows.Next());
  EXPECT_FALSE(rows.IsBlank());
}

TEST(Blanks, AreTakenFromBothEndsWhateverTheirKind) {
  EXPECT_EQ(WithoutBlanks("  a b\t"), "a b");
  EXPECT_EQ(WithoutBlanks("\xC2\xA0"
                          "12\xE2\x80\xAF"),
            "12");
  EXPECT_EQ(WithoutBlanks("\xEF\xBB\xBF"
                          "a"),
            "a");
  EXPECT_EQ(WithoutBlanks(" \t "), "");
  EXPECT_EQ(WithoutBlanks(""), "");
  EXPECT_EQ(WithoutBlanks("\xC3\xA4"), "\xC3\xA4");
}

TEST(Names, StandOnOneLine) {
  EXPECT_EQ(OnOneLine(" Doctors\r\n(full time)  "), "Doctors (full time)");
  EXPECT_EQ(OnOneLine("Hospital A"), "Hospital A");
  EXPECT_EQ(OnOneLine(" \n "), "");
}

TEST(CsvCellText, IsReadAsTheTextThatItWasMadeOf) {
  for (const String& text :
       {String("plain"), String("a,b"), String("a;b"), String("say \"hello\""), String("\"quoted\""),
        String(" blanks "), String("two\nlines"), String("two\rlines"), String()}) {
    const String line = CsvCellText(text, ',') + ",x";
    CsvRows again(line, ',');
    ASSERT_TRUE(again.Next());
    String single;
    const std::string_view cell = again.Cells()[0].Text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
      single += cell[i];
      if (again.Cells()[0].Doubled && cell[i] == '"') ++i;
    }
    EXPECT_EQ(single, text);
    EXPECT_EQ(again.Cells().size(), 2U);
  }
}

TEST(CsvCellText, HasQuotesOnlyWhereItNeedsThem) {
  EXPECT_EQ(CsvCellText("Hospital A", ','), "Hospital A");
  EXPECT_EQ(CsvCellText("1,5", ';'), "1,5");
  EXPECT_EQ(CsvCellText("1,5", ','), "\"1,5\"");
  EXPECT_EQ(CsvCellText("5\" pipe", ','), "5\" pipe");
  EXPECT_EQ(CsvCellText("\"5\"", ','), "\"\"\"5\"\"\"");
}

}  // namespace
}  // namespace Tarnwise
