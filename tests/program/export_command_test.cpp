#include "program/ExportCommand.h"

#include "model/ModelFile.h"
#include "modelfiles/PointsFile.h"
#include "program/ImportCommand.h"
#include "project/ProjectFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

const char* const kWards = R"({
  "tarnwise": 1,
  "units": ["North", "South", "East"],
  "columns": [
    {"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [20, 19.25, null]},
    {"name": "Rooms", "role": "input", "worst": 320, "best": 120, "values": [151, 131, 160]},
    {"name": "Cases", "role": "output", "worst": 80, "best": 280, "values": [100, 150, 160]},
    {"name": "Remarks", "role": "unused", "values": ["good, on the whole", null, 3]}
  ],
  "sessions": [
    {"basis": "unit", "costReference": "Rooms", "attributes": [{"name": "Staff", "low": 12.5, "high": 20}]}
  ]
}
)";

class ExportCommand : public testing::Test {
 protected:
  ExportCommand() {
    options.Project = folder.Write("wards.tarnwise", String(kWards));
    options.To = "-";
  }

  int Export(const String& as) {
    options.As = as;
    out.str("");
    err.str("");
    return ExportProject(options, {out, err});
  }
  String Printed(const String& as) {
    EXPECT_EQ(Export(as), 0) << err.str();
    return out.str();
  }
  void Replace(const String& from, const String& to) {
    String text = kWards;
    const std::size_t at = text.find(from);
    ASSERT_NE(at, String::npos) << from;
    folder.Write("wards.tarnwise", text.replace(at, from.size(), to));
  }

  TemporaryFolder folder;
  ExportOptions options;
  std::ostringstream out;
  std::ostringstream err;
};

TEST_F(ExportCommand, PyDeaGetsARestrictionALine) {
  EXPECT_EQ(Printed("pydea"), "Staff/Rooms >= 12.5\nStaff/Rooms <= 20\n");
}

TEST_F(ExportCommand, ABoundThatWasNotJudgedIsNoLine) {
  Replace("\"high\": 20", "\"high\": 0");
  EXPECT_EQ(Printed("pydea"), "Staff/Rooms >= 12.5\n");
}

TEST_F(ExportCommand, PyDeaCannotReadANameWithASlash) {
  String text = kWards;
  for (std::size_t at = 0; (at = text.find("\"Staff\"", at)) != String::npos;) text.replace(at, 7, "\"Staff/day\"");
  folder.Write("wards.tarnwise", text);
  EXPECT_EQ(Export("pydea"), 2);
  EXPECT_NE(err.str().find("column Staff/day: pyDEA can't read a name with one of"), String::npos) << err.str();
}

TEST_F(ExportCommand, WithoutJudgmentsThereIsNothingToRestrict) {
  options.Wishes.Session = "none";
  EXPECT_EQ(Export("pydea"), 2);
  EXPECT_NE(err.str().find("there are no judgments"), String::npos);
}

TEST_F(ExportCommand, DataAreUnitsAndColumnsAsTheyAre) {
  EXPECT_EQ(Printed("data"),
            "unit,Staff,Rooms,Cases,Remarks\nNorth,20,151,100,\"good, on the whole\"\nSouth,19.25,131,150,\n"
            "East,,160,160,3\n");
}

TEST_F(ExportCommand, DataComeBackByAnImport) {
  options.To = folder.File("wards.csv");
  ASSERT_EQ(Export("data"), 0) << err.str();
  ImportOptions import;
  import.From = options.To;
  import.To = folder.File("again.tarnwise");
  import.Unit = "unit";
  import.Inputs = {"Staff,Rooms"};
  import.Outputs = {"Cases"};
  ASSERT_EQ(ImportProject(import, "now", out, err), 0) << err.str();
  const Project before = ReadProject(options.Project);
  const Project after = ReadProject(import.To);
  EXPECT_EQ(after.Units, before.Units);
  for (std::size_t j = 0; j < 3; ++j) EXPECT_EQ(after.Columns[j].Values, before.Columns[j].Values) << j;
}

TEST_F(ExportCommand, AColumnCalledUnitGivesWayToTheUnits) {
  Replace("\"Cases\"", "\"unit\"");
  EXPECT_TRUE(Printed("data").starts_with("unit 2,Staff,Rooms,unit,Remarks\n")) << out.str();
}

TEST_F(ExportCommand, AModelHoldsUnitsScalesAndJudgments) {
  options.To = folder.File("wards.kst");
  ASSERT_EQ(Export("kst"), 0) << err.str();
  WizardData model;
  ReadModel(model, TemporaryFolder::Read(options.To));
  EXPECT_EQ(model.NumAtts(), 3);
  EXPECT_EQ(String(model.AlternativeList.Unused1[2]), "East");
  EXPECT_EQ(Double(model.Scores.Scores(1, 0)), 19.25);
  EXPECT_EQ(String(model.SavedJudgments.RJType), "DEA_DIRECT");
  EXPECT_NEAR(model.SavedJudgments.SavedWeightsL[0], 12.5 * 45.0 / 200.0, 1e-12);  // of swings
  EXPECT_EQ(folder.CountFiles(), 2U);
}

TEST_F(ExportCommand, AModelAndItsImportGiveTheSameProject) {
  options.To = folder.File("wards.kst");
  ASSERT_EQ(Export("kst"), 0) << err.str();
  ImportOptions import;
  import.From = options.To;
  import.To = folder.File("again.tarnwise");
  ASSERT_EQ(ImportProject(import, "now", out, err), 0) << err.str();
  const Project before = ReadProject(options.Project);
  const Project after = ReadProject(import.To);
  EXPECT_EQ(after.Units, before.Units);
  for (std::size_t j = 0; j < 3; ++j) EXPECT_EQ(after.Columns[j].Values, before.Columns[j].Values) << j;
}

TEST_F(ExportCommand, UnknownFormatsAreRefused) {
  EXPECT_EQ(Export("xls"), 2);
  EXPECT_EQ(err.str(), "--as: r, pydea, csv, json, data or kst is wanted, here is \"xls\"\n");
}

TEST_F(ExportCommand, TheProjectIsNotOverwritten) {
  options.To = options.Project;
  EXPECT_EQ(Export("data"), 2);
  EXPECT_EQ(ReadProject(options.Project).Units.size(), 3U);
}

TEST_F(ExportCommand, ABadProjectWritesNothing) {
  options.Project = folder.Write("bad.tarnwise", String("{}"));
  options.To = folder.File("out.csv");
  for (const char* const as : {"r", "pydea", "csv", "json", "data", "kst"}) {
    EXPECT_EQ(Export(as), 2) << as;
    EXPECT_FALSE(std::filesystem::exists(PathFromText(options.To))) << as;
  }
}

}  // namespace
}  // namespace Tarnwise
