#include "Samples.h"
#include "modelfiles/WholeFile.h"
#include "program/ImportCommand.h"
#include "project/ProjectChecks.h"
#include "project/ProjectFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

const char* const kNow = "2024-05-17T09:30:00Z";

class ImportCommand : public testing::Test {
 protected:
  TemporaryFolder folder;
  std::ostringstream out;
  std::ostringstream err;
  ImportOptions options;

  ImportCommand() { options.To = folder.File("out.tarnwise"); }

  int Import(const String& from) {
    options.From = from;
    return ImportProject(options, kNow, out, err);
  }

  int ImportText(const String& text) {
    options.Unit = "Unit";
    options.Inputs = {"X"};
    return Import(folder.Write("in.csv", text));
  }

  void ExpectRefused(int status) {
    EXPECT_EQ(status, 2);
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(std::filesystem::exists(options.To));
  }

  Project Written() { return ReadProject(options.To); }
};

TEST_F(ImportCommand, MakesTheHospitalsOfTheReadme) {
  options.Unit = "Hospital";
  options.Inputs = {"Doctors,Nurses"};
  options.Outputs = {"Outpatients,Inpatients"};
  ASSERT_EQ(Import(kSamples + "hospitals.csv"), 0) << err.str();
  EXPECT_EQ(err.str(), "");
  const String from = kSamples + "hospitals.csv: ";
  const String to = options.To + ": ";
  EXPECT_EQ(out.str(), from +
                           "delimiter comma, decimal sign point (no number has one), encoding UTF-8, with a header\n" +
                           from + "12 rows, 5 columns\n" + to + "input Doctors, worst 60, best 15\n" + to +
                           "input Nurses, worst 320, best 120\n" + to + "output Outpatients, worst 80, best 280\n" +
                           to + "output Inpatients, worst 40, best 150\n" + to + "12 units, 2 inputs, 2 outputs\n");
  const Project project = Written();
  EXPECT_EQ(project.Name, "hospitals");
  EXPECT_EQ(project.Source->File, "hospitals.csv");
  EXPECT_EQ(project.Source->Sha256.size(), 64U);
  EXPECT_EQ(project.Source->Imported, kNow);
  EXPECT_EQ(project.Source->Delimiter, ",");
  EXPECT_EQ(project.Source->Decimal, ".");
  EXPECT_EQ(project.Source->Encoding, "UTF-8");
}

TEST_F(ImportCommand, SampleHoldsTheDataOfTheSampleModel) {
  options.Unit = "Hospital";
  options.Inputs = {"Doctors,Nurses"};
  options.Outputs = {"Outpatients,Inpatients"};
  ASSERT_EQ(Import(kSamples + "hospitals.csv"), 0) << err.str();
  const Project table = Written();
  options = {};
  options.To = folder.File("model.tarnwise");
  ASSERT_EQ(Import(kSamples + "hospitals.kst"), 0) << err.str();
  const Project model = Written();
  EXPECT_EQ(table.Units, model.Units);
  ASSERT_EQ(table.Columns.size(), model.Columns.size());
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(table.Columns[i].Name, model.Columns[i].Name);
    EXPECT_EQ(table.Columns[i].Role, model.Columns[i].Role);
    EXPECT_EQ(table.Columns[i].Values, model.Columns[i].Values);
  }
}

TEST_F(ImportCommand, PrintsWhatItCouldNotRead) {
  ASSERT_EQ(ImportText("Unit;X;Region\nA;1,5;north\nB;?;south\n\nC;about 3;east\nD;\x1b;x\n"), 2);
  err.str("");
  ASSERT_EQ(ImportText("Unit;X;Region\nA;1,5;north\nB;?;south\n\nC;about 3;east\n"), 0) << err.str();
  const String from = options.From + ": ";
  EXPECT_NE(out.str().find(from + "delimiter semicolon, decimal sign comma, encoding UTF-8, with a header\n"),
            String::npos);
  EXPECT_NE(out.str().find(from + "3 rows, 3 columns; 1 empty row passed over\n"), String::npos);
  EXPECT_NE(out.str().find(from + "missing values: X 1\n"), String::npos);
  EXPECT_NE(out.str().find(from + "not read: line 5 (C), X: \"about 3\"; it counts as missing\n"), String::npos);
  EXPECT_NE(out.str().find(from + "no numbers, and not kept: Region 3\n"), String::npos);
  EXPECT_NE(out.str().find(options.To + ": unused Region\n"), String::npos);
}

TEST_F(ImportCommand, UnclearFileIsRefusedWithTheOption) {
  ExpectRefused(ImportText("Unit;X\nA;1.234\n"));
  EXPECT_EQ(err.str(), options.From +
                           ": the decimal sign is unclear: \"1.234\" (line 2, X) may have decimals or thousands; say "
                           "--decimal point or --thousands point\n");
  options.Decimal = "point";
  EXPECT_EQ(ImportText("Unit;X\nA;1.234\n"), 0);
  EXPECT_EQ(Written().Columns[0].Values[0], 1.234);
}

TEST_F(ImportCommand, WithoutRolesIsRefused) {
  options.Unit = "Unit";
  ExpectRefused(Import(folder.Write("in.csv", String("Unit,X\nA,1\n"))));
  EXPECT_EQ(err.str(), options.From + ": which columns are to be used? Name them with --inputs and --outputs\n");
}

TEST_F(ImportCommand, MissingFileIsRefused) {
  ExpectRefused(Import(folder.File("none.csv")));
  EXPECT_EQ(err.str(), "there is no file " + folder.File("none.csv") + "\n");
}

TEST_F(ImportCommand, ProjectThatIsThereIsReplacedByForceOnly) {
  folder.Write("out.tarnwise", String("precious"));
  EXPECT_EQ(ImportText("Unit,X\nA,1\n"), 2);
  EXPECT_EQ(err.str(), options.To + " is there already; --force replaces it\n");
  EXPECT_EQ(TemporaryFolder::Read(options.To).size(), 8U);
  options.Force = true;
  EXPECT_EQ(ImportText("Unit,X\nA,1\n"), 0);
  EXPECT_EQ(Written().Units, std::vector<String>{"A"});
}

TEST_F(ImportCommand, RefusedImportLeavesTheOldProject) {
  folder.Write("out.tarnwise", String("precious"));
  options.Force = true;
  EXPECT_EQ(ImportText("Unit,X\nA,one\n"), 2);
  EXPECT_EQ(TemporaryFolder::Read(options.To).size(), 8U);
  EXPECT_EQ(folder.CountFiles(), 2U);
}

TEST_F(ImportCommand, ProjectDoesNotOverwriteItsSource) {
  options.To = folder.File("in.csv");
  options.Force = true;
  EXPECT_EQ(ImportText("Unit,X\nA,1\n"), 2);
  EXPECT_EQ(err.str(), "the project would overwrite " + options.From + "\n");
}

TEST_F(ImportCommand, GivenNameAndRangesAreTaken) {
  options.Name = "Wards";
  options.Ranges = {"X=10..0.5"};
  ASSERT_EQ(ImportText("Unit,X\nA,1\nB,2\n"), 0) << err.str();
  EXPECT_EQ(Written().Name, "Wards");
  EXPECT_EQ(Written().Columns[0].Worst, 10.0);
  EXPECT_EQ(Written().Columns[0].Best, 0.5);
}

TEST_F(ImportCommand, RangeTheWrongWayRoundIsRefused) {
  options.Ranges = {"X=1..10"};
  ExpectRefused(ImportText("Unit,X\nA,1\nB,2\n"));
  EXPECT_EQ(err.str(),
            options.To + ": worst of column 0 (X): worst 1 and best 10 are the wrong way round for an input\n");
}

TEST_F(ImportCommand, MoreThanThirtyOneAttributesAreRefused) {
  String names = "Unit";
  String values = "A";
  for (int i = 1; i <= 32; ++i) {
    names += ",X" + std::to_string(i);
    values += ",1";
  }
  options.Outputs = {names.substr(5)};
  options.Unit = "Unit";
  ExpectRefused(Import(folder.Write("in.csv", names + "\n" + values + "\n")));
  EXPECT_EQ(err.str(),
            options.From + ": columns: 32 are inputs and outputs, more than 31, the most that can be judged\n");
}

TEST_F(ImportCommand, UnitsThatAllLackAValueAreRefused) {
  options.Outputs = {"Y"};
  ExpectRefused(ImportText("Unit,X,Y\nA,1,?\nB,-,2\n"));
  EXPECT_EQ(err.str(), options.From + ": units: all of them lack a value: A in Y, B in X\n");
}

TEST_F(ImportCommand, StoredJudgmentsComeAlong) {
  ASSERT_EQ(Import(kSamples + "universities.kst"), 0) << err.str();
  const Project project = Written();
  EXPECT_EQ(project.Units.size(), 12U);
  EXPECT_EQ(project.Columns.size(), 14U);
  ASSERT_EQ(project.Sessions.size(), 1U);
  EXPECT_EQ(project.Sessions[0].BenefitReference, "Employment rate");
  EXPECT_EQ(project.Sessions[0].Points, "");
  EXPECT_NE(out.str().find(": judgments of DEA_DIRECT, basis range\n"), String::npos) << out.str();
  EXPECT_EQ(project.Source->Delimiter, "");
}

TEST_F(ImportCommand, DescriptionGivesTheSameProjectAsItsModel) {
  ASSERT_EQ(Import(kSamples + "universities.kst"), 0) << err.str();
  Project model = Written();
  options.Force = true;
  ASSERT_EQ(Import(kSamples + "universities.json"), 0) << err.str();
  Project description = Written();
  model.Source.reset();
  description.Source.reset();
  EXPECT_EQ(model, description);
}

TEST_F(ImportCommand, TradeOffPointsBesideTheModelComeAlong) {
  const String model = folder.File("u.KST");
  std::filesystem::copy_file(kSamples + "universities.kst", model);
  String zeros = "0";
  for (int i = 1; i < 14; ++i) zeros += ",0.5";
  String points = "{";
  for (const char* const name : {"AX", "AY", "BX", "BY", "AOrientation", "ALX", "ALY", "AUX", "AUY"}) {
    points += String(points.size() > 1 ? "," : "") + '"' + name + "\":[" + zeros + "]";
  }
  points += "}";
  folder.Write("u.KST.points.json", points);
  ASSERT_EQ(Import(model), 0) << err.str();
  EXPECT_EQ(Written().Sessions[0].Points, points);
}

TEST_F(ImportCommand, ModelThatIsCutOffIsRefused) {
  std::vector<char> bytes = FileBytes(kSamples + "universities.kst");
  bytes.resize(10000);
  ExpectRefused(Import(folder.Write("cut.kst", bytes)));
  EXPECT_NE(err.str().find(options.From + ": it is no whole model file: "), String::npos) << err.str();
}

TEST_F(ImportCommand, ModelDoesNotTakeOptionsOfTables) {
  options.Unit = "Unit";
  ExpectRefused(Import(kSamples + "universities.kst"));
  EXPECT_EQ(err.str(), options.From + ": --unit is for CSV files; a model says this itself\n");
}

TEST_F(ImportCommand, ProjectIsNotImported) {
  ExpectRefused(Import(folder.Write("old.tarnwise", String("{}"))));
  EXPECT_EQ(err.str(), options.From + ": it is a project already\n");
}

TEST_F(ImportCommand, FileOfAnyEndingIsATable) {
  options.Unit = "Unit";
  options.Inputs = {"X"};
  EXPECT_EQ(Import(folder.Write("\xC3\xA4rzte.txt", String("Unit\tX\nA\t1\n"))), 0) << err.str();
  EXPECT_EQ(Written().Name, "\xC3\xA4rzte");
}

TEST(TimeNow, IsTheTimeInTheWorldsOwnZone) {
  const String now = TimeNow();
  ASSERT_EQ(now.size(), 20U);
  EXPECT_EQ(now[10], 'T');
  EXPECT_EQ(now[19], 'Z');
  EXPECT_GE(now, "2024");
}

}  // namespace
}  // namespace Tarnwise
