#include "program/ImportCommand.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>
#include <CLI/CLI.hpp>

namespace Tarnwise {
namespace {

ImportOptions Given() {
  ImportOptions given;
  given.Unit = "Unit";
  given.Inputs = {"X"};
  return given;
}

String Fault(const ImportOptions& given) {
  return FaultOf([&] { (void)TableOptionsOf(given); });
}

ImportOptions Parsed(std::vector<std::string> words) {
  CLI::App app;
  ImportOptions options;
  AddImportCommand(app, options);
  words.insert(words.begin(), "import");
  std::reverse(words.begin(), words.end());
  app.parse(words);
  return options;
}

TEST(ImportOptions, AreTakenFromTheCommandLine) {
  const ImportOptions options =
      Parsed({"in.csv", "out.tarnwise", "--unit", "Hospital", "--inputs", "Doctors,Nurses", "--outputs", "Out",
              "--outputs", "In, net", "--range", "Doctors=60..15", "--missing", "-99", "--no-header", "--force"});
  EXPECT_EQ(options.From, "in.csv");
  EXPECT_EQ(options.To, "out.tarnwise");
  EXPECT_EQ(options.Unit, "Hospital");
  EXPECT_EQ(options.Inputs, std::vector<String>{"Doctors,Nurses"});
  EXPECT_EQ(options.Outputs, (std::vector<String>{"Out", "In, net"}));
  EXPECT_EQ(options.Ranges, std::vector<String>{"Doctors=60..15"});
  EXPECT_EQ(options.Missing, std::vector<String>{"-99"});
  EXPECT_TRUE(options.NoHeader);
  EXPECT_TRUE(options.Force);
}

TEST(ImportOptions, DoNotSwallowTheFilesBehindThem) {
  const ImportOptions options = Parsed({"--unit", "U", "--inputs", "X", "in.csv", "out.tarnwise"});
  EXPECT_EQ(options.From, "in.csv");
  EXPECT_EQ(options.To, "out.tarnwise");
}

TEST(ImportOptions, CannotHaveAHeaderAndNone) {
  EXPECT_THROW(Parsed({"in.csv", "out.tarnwise", "--header", "--no-header"}), CLI::ParseError);
}

TEST(ImportOptions, MeanWhatTheTableIsReadWith) {
  ImportOptions given = Given();
  given.Delimiter = "semicolon";
  given.Decimal = "comma";
  given.Thousands = "blank";
  given.Encoding = "windows-1252";
  given.Ranges = {"X=60..15", "a=b=-0.5..1e3"};
  given.NoHeader = true;
  const TableOptions options = TableOptionsOf(given);
  EXPECT_EQ(options.Csv.Delimiter, ';');
  EXPECT_EQ(options.Csv.Encoding, TextEncoding::Windows1252);
  EXPECT_EQ(options.Csv.Header, false);
  EXPECT_EQ(options.Numbers.Decimal, ',');
  EXPECT_EQ(options.Numbers.Thousands, ' ');
  ASSERT_EQ(options.Ranges.size(), 2U);
  EXPECT_EQ(options.Ranges[0].Column, "X");
  EXPECT_EQ(options.Ranges[0].Worst, 60.0);
  EXPECT_EQ(options.Ranges[0].Best, 15.0);
  EXPECT_EQ(options.Ranges[1].Column, "a=b");
  EXPECT_EQ(options.Ranges[1].Worst, -0.5);
  EXPECT_EQ(options.Ranges[1].Best, 1000.0);
}

TEST(ImportOptions, ThatAreNotGivenAreLeftToTheFile) {
  const TableOptions options = TableOptionsOf(Given());
  EXPECT_EQ(options.Csv.Delimiter, std::nullopt);
  EXPECT_EQ(options.Csv.Encoding, std::nullopt);
  EXPECT_EQ(options.Csv.Header, std::nullopt);
  EXPECT_EQ(options.Numbers.Decimal, std::nullopt);
  EXPECT_EQ(options.Numbers.Thousands, std::nullopt);
}

TEST(ImportOptions, ThatAreNoneOfTheirWordsAreFaults) {
  ImportOptions given = Given();
  given.Delimiter = "colonel";
  EXPECT_EQ(Fault(given), "--delimiter: comma, semicolon, tab, bar or a sign is wanted, here is \"colonel\"");
  given = Given();
  given.Decimal = "blank";
  EXPECT_EQ(Fault(given), "--decimal: point or comma is wanted, here is \"blank\"");
  given = Given();
  given.Thousands = "none";
  EXPECT_EQ(Fault(given), "--thousands: point, comma, blank or apostrophe is wanted, here is \"none\"");
  given = Given();
  given.Encoding = "latin1";
  EXPECT_EQ(Fault(given), "--encoding: utf-8, utf-16le, utf-16be or windows-1252 is wanted, here is \"latin1\"");
  for (const char* const range : {"X", "X=1", "X=1..", "X=..2", "X=1,5..2", "1..2", "X=a..b"}) {
    given = Given();
    given.Ranges = {range};
    EXPECT_EQ(Fault(given),
              "--range: NAME=WORST..BEST is wanted, such as Doctors=60..15; here is \"" + String(range) + "\"");
  }
}

TEST(ImportOptions, NameTheUnitsAndAColumn) {
  ImportOptions given = Given();
  given.Unit = "";
  EXPECT_EQ(Fault(given), "which column holds the units' names? Say so with --unit");
  given = Given();
  given.Inputs.clear();
  EXPECT_EQ(Fault(given), "which columns are to be used? Name them with --inputs and --outputs");
}

TEST(ImportOptions, OfCsvFilesAreNotForModels) {
  EXPECT_EQ(FaultOf([] { RefuseTableOptions(ImportOptions()); }), "no fault");
  ImportOptions given;
  given.Name = "x";
  given.Force = true;
  EXPECT_EQ(FaultOf([&] { RefuseTableOptions(given); }), "no fault");
  given.Ranges = {"X=1..2"};
  EXPECT_EQ(FaultOf([&] { RefuseTableOptions(given); }), "--range is for CSV files; a model says this itself");
  given = {};
  given.NoHeader = true;
  EXPECT_EQ(FaultOf([&] { RefuseTableOptions(given); }), "--no-header is for CSV files; a model says this itself");
}

}  // namespace
}  // namespace Tarnwise
