#include "project/ImportTable.h"

#include "project/ProjectChecks.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TableOptions Roles(const std::vector<String>& inputs, const std::vector<String>& outputs) {
  TableOptions options;
  options.Unit = "Unit";
  options.Inputs = inputs;
  options.Outputs = outputs;
  return options;
}

ImportedTable Import(const String& text, const TableOptions& options) {
  return ImportTable({text.begin(), text.end()}, options);
}

String TableFault(const String& text, const TableOptions& options) {
  return FaultOf([&] { (void)Import(text, options); });
}

// Role, name, range and values of each column.
String ShownProject(const Project& project) {
  String text;
  for (const DataColumn& column : project.Columns) {
    text += String(NameOf(column.Role)) + " " + column.Name;
    if (column.Worst) text += " " + ShortestText(*column.Worst) + ".." + ShortestText(*column.Best);
    for (const auto& value : column.Values) text += value ? " " + ShortestText(*value) : " -";
    text += "; ";
  }
  return text;
}

TEST(ImportTable, MakesColumnsWithTheirRolesAndRanges) {
  const ImportedTable imported = Import("Unit,X,Y,Z\nA,19,94,7\nB,55,260,\n", Roles({"X"}, {"Y"}));
  EXPECT_EQ(imported.Project.Units, (std::vector<String>{"A", "B"}));
  EXPECT_EQ(ShownProject(imported.Project), "input X 60..15 19 55; output Y 80..280 94 260; unused Z 7 -; ");
  EXPECT_EQ(FaultOf([&] { CheckProject(imported.Project); }), "no fault");
}

TEST(ImportTable, TellsWhatItUnderstood) {
  const ImportedTable imported = Import("Unit;X;Y;\nA;1,5;NA\n;;\nB;2;3\n", Roles({"X"}, {"Y"}));
  const TableReport& report = imported.Report;
  EXPECT_EQ(report.Delimiter, ';');
  EXPECT_EQ(report.Numbers.Format.Decimal, ',');
  EXPECT_TRUE(report.Numbers.Seen);
  EXPECT_EQ(report.Rows, 2U);
  EXPECT_EQ(report.Columns, 3U);
  EXPECT_EQ(report.BlankRows, 1U);
  ASSERT_EQ(report.Missing.size(), 1U);
  EXPECT_EQ(report.Missing[0].Column, "Y");
  EXPECT_EQ(report.Missing[0].Count, 1U);
}

TEST(ImportTable, NamesEveryCellThatItCouldNotRead) {
  String text = "Unit,X,Y\n";
  for (int i = 0; i < 1000; ++i) text += "U" + std::to_string(i) + "," + (i % 2 == 0 ? "1" : "one") + ",2\n";
  const ImportedTable imported = Import(text, Roles({"X"}, {"Y"}));
  ASSERT_EQ(imported.Report.Unread.size(), 500U);
  const UnreadCell& last = imported.Report.Unread.back();
  EXPECT_EQ(last.Line, 1001U);
  EXPECT_EQ(last.Unit, "U999");
  EXPECT_EQ(last.Column, "X");
  EXPECT_EQ(last.Text, "one");
  EXPECT_EQ(imported.Project.Columns[0].Values[999], std::nullopt);
}

TEST(ImportTable, QuestionMarkIsAMissingValue) {
  const ImportedTable imported = Import("Unit,X\nA,?\nB,2\n", Roles({"X"}, {}));
  EXPECT_EQ(ShownProject(imported.Project), "input X 2.2..1.8 - 2; ");
  EXPECT_TRUE(imported.Report.Unread.empty());
}

TEST(ImportTable, TextsToldToBeMissingAre) {
  TableOptions options = Roles({"X"}, {});
  options.Numbers.Missing = {"-99", "none yet"};
  EXPECT_EQ(ShownProject(Import("Unit,X\nA,-99\nB,2\nC,none yet\n", options).Project), "input X 2.2..1.8 - 2 -; ");
}

TEST(ImportTable, NumberOfAnotherFormatIsNotTakenForMissing) {
  EXPECT_EQ(TableFault("Unit;X\nA;1.5\nB;1,234\nC;2,5 \n", Roles({"X"}, {})).substr(0, 30),
            "the decimal sign is unclear: i");
  EXPECT_EQ(
      TableFault("Unit;X\nA;1.5\nB;1,234\n", Roles({"X"}, {})),
      "column \"X\": \"1,234\" (line 3) can't be read with a decimal point and no thousands marks; say which with "
      "--decimal and --thousands, or what is missing with --missing");
  TableOptions options = Roles({"X"}, {});
  options.Numbers.Thousands = ',';
  EXPECT_EQ(Import("Unit;X\nA;1.5\nB;1,234\n", options).Project.Columns[0].Values[1], 1234.0);
  options.Numbers.Thousands = ' ';
  EXPECT_NE(TableFault("Unit;X\nA;1.5\nB;1,234\n", options).find("the thousands mark blank"), String::npos);
}

TEST(ImportTable, ColumnWithoutNumbersCannotBeUsed) {
  EXPECT_EQ(TableFault("Unit,X,Y\nA,low,1\nB,?,2\n", Roles({"X"}, {"Y"})),
            "column \"X\" has no numbers; its first cell is \"low\"");
  EXPECT_EQ(TableFault("Unit,X,Y\nA,,1\nB,,2\n", Roles({"X"}, {"Y"})),
            "column \"X\" has no numbers; its first cell is \"\"");
}

TEST(ImportTable, UnusedColumnsKeepTheirNumbers) {
  const ImportedTable imported = Import("Unit,Region,X,Code\nA,north,1,12\nB,south,2,A13\n", Roles({"X"}, {}));
  EXPECT_EQ(ShownProject(imported.Project), "unused Region - -; input X 2.1..0.9 1 2; unused Code 12 -; ");
  ASSERT_EQ(imported.Report.Texts.size(), 2U);
  EXPECT_EQ(imported.Report.Texts[0].Column, "Region");
  EXPECT_EQ(imported.Report.Texts[0].Count, 2U);
  EXPECT_EQ(imported.Report.Texts[1].Count, 1U);
  EXPECT_TRUE(imported.Report.Unread.empty());
}

TEST(ImportTable, OnlyTheUnusedColumnsThatAreNamedAreKeptIfAnyAre) {
  TableOptions options = Roles({"X"}, {});
  options.Unused = {"Code"};
  EXPECT_EQ(ShownProject(Import("Unit,Region,X,Code\nA,3,1,12\nB,4,2,13\n", options).Project),
            "input X 2.1..0.9 1 2; unused Code 12 13; ");
}

TEST(ImportTable, UnusedColumnsDecideOnTheDecimalSignWhereNoOtherDoes) {
  EXPECT_EQ(ShownProject(Import("Unit;X;Y\nA;1;2,5\n", Roles({"X"}, {})).Project),
            "input X 1.1..0.9 1; unused Y 2.5; ");
  EXPECT_EQ(ShownProject(Import("Unit;X;Y\nA;1.5;2,5\n", Roles({"X"}, {})).Project),
            "input X 1.6..1.4 1.5; unused Y -; ");
  EXPECT_NE(TableFault("Unit;X;Y\nA;1;2.345\n", Roles({"X"}, {})), "no fault");
}

TEST(ImportTable, NamesMayComeInListsOrOneByOne) {
  const char* const text = "Unit;X;Y;\"Z, net\"\nA;1;2;3\n";
  EXPECT_EQ(Import(text, Roles({"X,Y"}, {"Z, net"})).Project, Import(text, Roles({" X ", "Y"}, {"Z, net"})).Project);
}

TEST(ImportTable, NameThatNoColumnHasIsAFault) {
  EXPECT_EQ(TableFault("Unit,Doctors\nA,1\n", Roles({"Docters"}, {})),
            "there is no column \"Docters\"; did you mean \"Doctors\"?");
  EXPECT_EQ(TableFault("Name,X\nA,1\n", Roles({"X"}, {})), "there is no column \"Unit\"; there are \"Name\", \"X\"");
  EXPECT_EQ(TableFault("Unit,Wards\nA,1\n", Roles({"Wards,"}, {})),
            "there is no column \"\"; there are \"Unit\", \"Wards\"");
}

TEST(ImportTable, ColumnHasOneRole) {
  EXPECT_EQ(TableFault("Unit,X\nA,1\n", Roles({"X"}, {"X"})), "column \"X\" is named twice: input and output");
  EXPECT_EQ(TableFault("Unit,X\nA,1\n", Roles({"X,X"}, {})), "column \"X\" is named twice: input and input");
  EXPECT_EQ(TableFault("Unit,X\nA,1\n", Roles({"X"}, {"Unit"})),
            "column \"Unit\" names the units and can't be output too");
}

TEST(ImportTable, UnitsHaveNames) {
  EXPECT_EQ(TableFault("Unit,X\nA,1\n\n ,2\n", Roles({"X"}, {})), "line 4: the unit has no name in \"Unit\"");
}

TEST(ImportTable, UnitsHaveDifferentNames) {
  EXPECT_EQ(TableFault("Unit,X\nA,1\nB,2\nA ,3\n", Roles({"X"}, {})),
            "line 4: the unit \"A\" stands in line 2 already");
  EXPECT_EQ(TableFault("Unit,X\nA,1\na,2\n", Roles({"X"}, {})), "no fault");
}

TEST(ImportTable, NamesThatLookLikeMissingValuesAreNames) {
  EXPECT_EQ(Import("Unit,X\nNA,1\n-,2\n", Roles({"X"}, {})).Project.Units, (std::vector<String>{"NA", "-"}));
}

TEST(ImportTable, NeedsRows) {
  EXPECT_EQ(TableFault("Unit,X\n", Roles({"X"}, {})), "there are no rows below the names of the columns");
}

TEST(ImportTable, WithoutAHeaderColumnsAreCalledByTheirNumbers) {
  TableOptions options = Roles({"Column 2"}, {"Column 3"});
  options.Unit = "Column 1";
  options.Csv.Header = false;
  EXPECT_EQ(ShownProject(Import("A,1,2\nB,3,4\n", options).Project),
            "input Column 2 3.2..0.8 1 3; output Column 3 1.8..4.2 2 4; ");
}

TEST(ImportTable, NamesOfTheFirstColumnMayBeMissingAsInR) {
  TableOptions options = Roles({"X"}, {});
  options.Unit = "Column 1";
  const ImportedTable imported = Import("\"\",\"X\"\n\"A\",1\n", options);
  EXPECT_EQ(imported.Project.Units, std::vector<String>{"A"});
  EXPECT_EQ(imported.Report.Unnamed, std::vector<String>{"Column 1"});
}

TEST(ImportTable, RangesThatAreGivenReplaceThoseOfTheData) {
  TableOptions options = Roles({"X"}, {"Y"});
  options.Ranges = {{"X", 50, 10}};
  EXPECT_EQ(ShownProject(Import("Unit,X,Y\nA,19,94\nB,55,260\n", options).Project),
            "input X 50..10 19 55; output Y 80..280 94 260; ");
  options.Ranges = {{"Z", 50, 10}};
  EXPECT_EQ(TableFault("Unit,X,Y,Z\nA,1,2,3\n", options),
            "the range of \"Z\" is given, but that is no input and no output");
}

TEST(ImportTable, ValuesMayBeNegativeOrZero) {
  EXPECT_EQ(ShownProject(Import("Unit,X,Y\nA,-5,0\nB,12,0\n", Roles({"X"}, {"Y"})).Project),
            "input X 14..-6 -5 12; output Y 0..1 0 0; ");
}

TEST(ImportTable, IsOfTheWholeFile) {
  TableOptions options = Roles({"X"}, {});
  options.Csv.MostRows = 1;
  EXPECT_EQ(Import("Unit,X\nA,1\nB,2\n", options).Project.Units.size(), 2U);
}

TEST(ImportTable, HundredThousandUnitsAreReadToTheLast) {
  String text = "Unit,X,Y\n";
  for (int i = 1; i <= 100000; ++i) text += "Unit " + std::to_string(i) + "," + std::to_string(i) + ",0.5\n";
  const Project project = Import(text, Roles({"X"}, {"Y"})).Project;
  ASSERT_EQ(project.Units.size(), 100000U);
  EXPECT_EQ(project.Units.back(), "Unit 100000");
  EXPECT_EQ(project.Columns[0].Values.back(), 100000.0);
}

}  // namespace
}  // namespace Tarnwise
