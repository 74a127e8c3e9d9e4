// Exports that need scores.
#include "modelfiles/Json.h"
#include "program/ExportCommand.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

// Two inputs, four units; the third lacks a number.
const char* const kPlants = R"({
  "tarnwise": 1,
  "units": ["North", "South", "East", "\"West\""],
  "columns": [
    {"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [1, 2, 7, 4]},
    {"name": "Rooms", "role": "input", "worst": 320, "best": 120, "values": [5, 2, null, 1]},
    {"name": "Cases", "role": "output", "worst": 1, "best": 5, "values": [3, 3, 3, 3]}
  ],
  "sessions": [
    {"basis": "unit", "costReference": "Rooms", "attributes": [{"name": "Staff", "low": 1.25, "high": 0}]}
  ]
}
)";

class ExportResults : public testing::Test {
 protected:
  String Printed(const String& as) {
    options.Project = folder.Write("plants.tarnwise", String(kPlants));
    options.To = "-";
    options.As = as;
    std::ostringstream out;
    status = ExportProject(options, {out, err});
    return out.str();
  }
  static bool Has(const String& text, const String& part) { return text.find(part) != String::npos; }

  TemporaryFolder folder;
  ExportOptions options;
  std::ostringstream err;
  int status = 0;
};

TEST_F(ExportResults, TheScriptHasTheReferenceFirstAndNoUnitThatIsLeftOut) {
  const String script = Printed("r");
  EXPECT_TRUE(Has(script, "units <- c(\n  \"North\",\n  \"South\",\n  \"\\\"West\\\"\")\n")) << script;
  EXPECT_TRUE(Has(script, "X <- c(\n  5.0, 1.0,\n  2.0, 2.0,\n  1.0, 4.0)\n")) << script;
  EXPECT_TRUE(Has(script, "colnames(X) <- c(\"Rooms\", \"Staff\")\n")) << script;
  EXPECT_TRUE(Has(script, "Y <- matrix(Y, ncol = 1, byrow = TRUE)\n")) << script;
}

TEST_F(ExportResults, TheScriptHoldsTheBoundsInRawPrices) {
  const String script = Printed("r");
  const std::size_t at = script.find("DUAL <- c(\n  ");
  ASSERT_NE(at, String::npos) << script;
  double low = 0.0;
  double high = 0.0;
  ASSERT_EQ(std::sscanf(script.c_str() + at, "DUAL <- c(\n  %lf, %lf)", &low, &high), 2);
  EXPECT_EQ(low, 1.25);
  EXPECT_GT(high, 1e8);  // none was judged
}

TEST_F(ExportResults, TheScriptStopsWhereAScoreDiffers) {
  const String script = Printed("r");
  EXPECT_TRUE(Has(script, "e <- dea.dual(X, Y, RTS = \"crs\", ORIENTATION = \"in\", DUAL = DUAL)\n")) << script;
  EXPECT_TRUE(script.ends_with("stopifnot(max(abs(e$eff - ours)) < 1e-6)\n")) << script;
}

TEST_F(ExportResults, TheScriptNamesReturnsAsThePackageDoes) {
  options.Wishes.Orientation = "out";
  for (const auto& [ours, theirs] :
       std::vector<std::pair<String, String>>{{"crs", "crs"}, {"vrs", "vrs"}, {"nirs", "drs"}, {"ndrs", "irs"}}) {
    options.Wishes.Returns = ours;
    EXPECT_TRUE(Has(Printed("r"), "RTS = \"" + theirs + "\", ORIENTATION = \"out\"")) << ours;
  }
}

TEST_F(ExportResults, WithoutJudgmentsTheScriptHasNoBounds) {
  options.Wishes.Session = "none";
  EXPECT_FALSE(Has(Printed("r"), "DUAL"));
}

TEST_F(ExportResults, TheScriptIsOfTheRatioFormOnly) {
  options.Wishes.Form = "value";
  EXPECT_EQ(Printed("r"), "");
  EXPECT_EQ(status, 2);
  EXPECT_TRUE(Has(err.str(), "an R script is there for the ratio form only"));
}

TEST_F(ExportResults, JsonAndCsvAreTheResults) {
  EXPECT_EQ(Json::parse(Printed("json")).at("units").size(), 3U);
  const String csv = Printed("csv");
  EXPECT_TRUE(
      csv.starts_with("unit,free,max,min,super,rankBest,rankWorst,rankSeenBest,rankSeenWorst,heldBackBy,"
                      "price Staff,price Rooms,price Cases,share Staff,share Rooms,share Cases,leftOut\n"))
      << csv;
  EXPECT_TRUE(Has(csv, "\nEast,,,,,,,,,,,,,,,,")) << csv;
}

}  // namespace
}  // namespace Tarnwise
