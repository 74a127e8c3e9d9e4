#include "project/Csv.h"

#include "support/Bytes.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

CsvTable Read(const String& text, const CsvOptions& options = {}) { return ReadCsv(BytesOf(text), options); }

String CsvFault(const String& text, const CsvOptions& options = {}) {
  return FaultOf([&] { (void)Read(text, options); });
}

CsvOptions WithHeader(bool header) {
  CsvOptions options;
  options.Header = header;
  return options;
}

CsvOptions AskingFor(const std::vector<String>& columns) {
  CsvOptions options;
  options.Columns = columns;
  return options;
}

// Names, then each row's line and cells.
String ShownTable(const CsvTable& table) {
  String text;
  for (const String& name : table.Names) text += "<" + name + ">";
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    text += " " + std::to_string(table.Lines[row]);
    for (std::size_t i = 0; i < table.Columns(); ++i) text += "[" + String(table.Cell(row, i)) + "]";
  }
  return text;
}

String ShownTable(const String& text, const CsvOptions& options = {}) { return ShownTable(Read(text, options)); }

TEST(Csv, IsNamesAndRowsOfCells) {
  EXPECT_EQ(ShownTable("Unit;X;Y\nA;1;2\nB;3;4\n"), "<Unit><X><Y> 2[A][1][2] 3[B][3][4]");
}

TEST(Csv, TellsWhatItUnderstood) {
  const CsvTable table = Read("\xEF\xBB\xBFUnit;X\nA;1\n\nB;2\n;\n");
  EXPECT_EQ(table.Encoding, TextEncoding::Utf8);
  EXPECT_EQ(table.Delimiter, ';');
  EXPECT_TRUE(table.Header);
  EXPECT_EQ(table.BlankRows, 2U);
  EXPECT_EQ(table.RowsInFile(), 2U);
}

TEST(Csv, OfEveryEncodingGivesTheSameTable) {
  const String table = "<Unit><X> 2[M\xC3\xBCnchen][1]";
  EXPECT_EQ(ShownTable("Unit,X\nM\xC3\xBCnchen,1\n"), table);
  EXPECT_EQ(ShownTable("\xEF\xBB\xBFUnit,X\nM\xC3\xBCnchen,1\n"), table);
  EXPECT_EQ(ShownTable("Unit,X\nM\xFCnchen,1\n"), table);
  String utf16 = "\xFF\xFE";
  for (const char c : String("Unit,X\nM\xFCnchen,1\n")) utf16 += {c, '\0'};
  EXPECT_EQ(ShownTable(utf16), table);
}

TEST(Csv, RowsAreCountedByTheLinesOfTheFile) {
  EXPECT_EQ(ShownTable("Unit,X\n\n\"A\nA\",1\n\n\nB,2\n"), "<Unit><X> 3[A\nA][1] 7[B][2]");
}

TEST(Csv, DoubledQuotesAreOne) {
  EXPECT_EQ(ShownTable("Unit,\"X \"\"net\"\"\"\n\"\"\"A\"\"\",1\n"), "<Unit><X \"net\"> 2[\"A\"][1]");
}

TEST(Csv, TableOutlivesTheWayItWasMade) {
  CsvTable table = Read("Unit,X\n\"say \"\"A\"\"\",1\nB,2\n");
  const CsvTable moved = std::move(table);
  EXPECT_EQ(ShownTable(moved), "<Unit><X> 2[say \"A\"][1] 3[B][2]");
}

TEST(Csv, LineThatNamesTheDelimiterIsNoRow) {
  EXPECT_EQ(ShownTable("sep=;\nUnit;X,Y\nA;1,2\n"), "<Unit><X,Y> 3[A][1,2]");
  EXPECT_EQ(ShownTable("sep=,\r\nUnit,X\r\nA,1\r\n"), "<Unit><X> 3[A][1]");
  EXPECT_EQ(ShownTable("sep=;,X\nA,1\n"), "<sep=;><X> 2[A][1]");
}

TEST(Csv, DelimiterThatIsToldIsNotLookedFor) {
  CsvOptions options;
  options.Delimiter = ',';
  EXPECT_EQ(ShownTable("Unit;A,B\nx;y,2\n", options), "<Unit;A><B> 2[x;y][2]");
  options.Delimiter = ':';
  EXPECT_EQ(ShownTable("Unit:X\nA:1\n", options), "<Unit><X> 2[A][1]");
}

TEST(Csv, RaggedRowsAreAllNamed) {
  EXPECT_EQ(CsvFault("Unit,X,Y\nA,1,2\nB,3\nC,4,5,6\nD,7,8\n"),
            "line 1 has 3 cells, but line 3 (B) has 2, line 4 (C) has 4");
}

TEST(Csv, EmptyCellsAtTheEndOfRowsAreNoColumns) {
  EXPECT_EQ(ShownTable("Unit;X;Y;\nA;1;2;\n"), "<Unit><X><Y> 2[A][1][2]");
  EXPECT_EQ(ShownTable("Unit;X;Y\nA;1;2;;\nB;3;4\n"), "<Unit><X><Y> 2[A][1][2] 3[B][3][4]");
  EXPECT_EQ(ShownTable("Unit;X;Y;\nA;1;2\nB;3;4;\n"), "<Unit><X><Y> 2[A][1][2] 3[B][3][4]");
}

TEST(Csv, ShortRowIsNotFilledUp) {
  EXPECT_EQ(CsvFault("Unit;X;Y\nA;1;2\nB;3\n"), "line 1 has 3 cells, but line 3 (B) has 2");
  EXPECT_EQ(ShownTable("Unit;X;Y\nA;1;2\nB;3;\n"), "<Unit><X><Y> 2[A][1][2] 3[B][3][]");
}

TEST(Csv, HeaderIsWhereWordsStandAboveNumbers) {
  EXPECT_TRUE(Read("Unit,X\nA,1\n").Header);
  EXPECT_TRUE(Read(",X\nA,1\n").Header);
  EXPECT_TRUE(Read("Unit;X\nA;\nB;2,5\n").Header);
  EXPECT_TRUE(Read("Unit;X\nA;abc\n").Header);
}

TEST(Csv, FirstRowWithNumbersMayBeAHeaderOrNot) {
  EXPECT_EQ(CsvFault("Unit,2019\nA,1\nB,2\n"),
            "line 1 may hold the columns' names or the first values (\"2019\" in column 2); say which with --header or "
            "--no-header");
  EXPECT_EQ(ShownTable("Unit,2019\nA,1\n", WithHeader(true)), "<Unit><2019> 2[A][1]");
  EXPECT_EQ(ShownTable("Unit,2019\nA,1\n", WithHeader(false)), "<Column 1><Column 2> 1[Unit][2019] 2[A][1]");
}

TEST(Csv, FirstRowThatLacksAValueMayBeAHeaderOrNot) {
  EXPECT_EQ(CsvFault("A,?\nB,2\n"),
            "line 1 may hold the columns' names or the first values (\"?\" in column 2); say which with --header or "
            "--no-header");
}

TEST(Csv, NamesAskedForSettleTheHeader) {
  EXPECT_EQ(ShownTable("Unit,2019\nA,1\n", AskingFor({"Unit", "2019"})), "<Unit><2019> 2[A][1]");
  EXPECT_EQ(ShownTable("Unit,\" 2019\n net\"\nA,1\n", AskingFor({"2019 net"})), "<Unit><2019 net> 3[A][1]");
  EXPECT_NE(CsvFault("Unit,2019\nA,1\n", AskingFor({"Unit", "2020"})), "no fault");
}

TEST(Csv, NamesStandOnOneLineWithoutBlanksAround) {
  EXPECT_EQ(ShownTable("Unit,\" Doctors\n(full time) \"\nA,1\n"), "<Unit><Doctors (full time)> 3[A][1]");
}

TEST(Csv, ColumnWithoutANameGetsOne) {
  const CsvTable table = Read(",X,\nA,1,2\n", WithHeader(true));
  EXPECT_EQ(ShownTable(table), "<Column 1><X><Column 3> 2[A][1][2]");
  EXPECT_EQ(table.Unnamed, (std::vector<std::size_t>{0, 2}));
}

TEST(Csv, ColumnsOfTheSameNameAreAFault) {
  EXPECT_EQ(CsvFault("Unit,X,Y,X \nA,1,2,3\n"), "columns 2 and 4 are both called \"X\"");
  EXPECT_EQ(CsvFault("Unit,Column 3,\nA,1,2\n", WithHeader(true)), "columns 2 and 3 are both called \"Column 3\"");
}

TEST(Csv, WithoutContentIsAFault) {
  for (const char* const text : {"", "\n\n", "\xEF\xBB\xBF", "  \r\n"})
    EXPECT_EQ(CsvFault(text), "it is empty") << text;
  CsvOptions options;
  options.Delimiter = ';';
  EXPECT_EQ(CsvFault(";;\n;;\n", options), "it has no rows");
}

TEST(Csv, WithAHeaderAloneHasNoRows) { EXPECT_EQ(Read("Unit,X\n").Rows(), 0U); }

TEST(Csv, WorkbookIsNotTakenForText) {
  EXPECT_EQ(CsvFault("PK\x03\x04\x14"), "it is a workbook or an archive; save the sheet as CSV");
}

TEST(Csv, PreviewIsTheTableCut) {
  String text = "Unit;X\n";
  for (int i = 0; i < 100; ++i) text += "U" + std::to_string(i) + ";" + std::to_string(i) + "\n\n";
  const CsvTable whole = Read(text);
  CsvOptions options;
  options.MostRows = 20;
  const CsvTable preview = Read(text, options);
  EXPECT_EQ(preview.Rows(), 20U);
  EXPECT_EQ(preview.RowsInFile(), whole.Rows());
  EXPECT_EQ(preview.BlankRows, whole.BlankRows);
  EXPECT_EQ(preview.Names, whole.Names);
  for (std::size_t row = 0; row < 20; ++row) {
    EXPECT_EQ(preview.Lines[row], whole.Lines[row]);
    EXPECT_EQ(preview.Cell(row, 0), whole.Cell(row, 0));
  }
}

TEST(Csv, PreviewFailsWhereTheWholeTableDoes) {
  CsvOptions options;
  options.MostRows = 1;
  EXPECT_EQ(CsvFault("Unit,X\nA,1\nB,2\nC\n", options), "line 1 has 2 cells, but line 4 (C) has 1");
}

TEST(Csv, ManyRowsAreReadToTheLast) {
  String text = "Unit,X,Y\n";
  for (int i = 1; i <= 100000; ++i) text += "Unit " + std::to_string(i) + "," + std::to_string(i) + ",0.5\n";
  const CsvTable table = Read(text);
  ASSERT_EQ(table.Rows(), 100000U);
  EXPECT_EQ(table.Cell(99999, 0), "Unit 100000");
  EXPECT_EQ(table.Cell(99999, 1), "100000");
  EXPECT_EQ(table.Lines[99999], 100001U);
}

TEST(Csv, FaultInTheLastOfManyRowsIsFound) {
  String text = "Unit,X\n";
  for (int i = 0; i < 50000; ++i) text += "U" + std::to_string(i) + ",1\n";
  EXPECT_EQ(CsvFault(text + "last,1,2\n"), "line 1 has 2 cells, but line 50002 (last) has 3");
}

}  // namespace
}  // namespace Tarnwise
