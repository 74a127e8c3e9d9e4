// The projects that are shipped, and what the README says of them.
#include "Samples.h"
#include "modelfiles/WholeFile.h"
#include "program/SolveCommand.h"
#include "project/ProjectFile.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

String Table(const String& sample, const std::optional<String>& session = std::nullopt) {
  SolveOptions options;
  options.Project = kSamples + sample;
  options.Wishes.Session = session;
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(SolveProject(options, {out, err}), 0) << err.str();
  return out.str();
}

bool Has(const String& text, const String& part) { return text.find(part) != String::npos; }

TEST(SampleProjects, AreWrittenAsTheProgramWritesThem) {
  for (const char* const sample : {"hospitals.tarnwise", "universities.tarnwise"}) {
    const Project project = ReadProjectForResults(kSamples + sample);
    const std::vector<char> bytes = FileBytes(kSamples + sample);
    EXPECT_EQ(ProjectText(project), String(bytes.begin(), bytes.end())) << sample;
  }
}

TEST(SampleProjects, TheHospitalsTellWhatTheJudgmentsDo) {
  const String table = Table("hospitals.tarnwise");
  EXPECT_TRUE(Has(table,
                  "unit         no judgments   judged          ranks   held back by\n"
                  "Hospital A   1.000          1.000           1\n"
                  "Hospital B   1.000          0.809 - 0.854   3-4     Inpatients >= 2.00 (0.146), "
                  "Doctors >= 3.00 (0.053)\n"))
      << table;
  EXPECT_TRUE(Has(table, "3 of 12 units are efficient without judgments, 1 with them.\n")) << table;
  EXPECT_TRUE(Has(table, "1 Doctors = 14.583 .. 19.882 Nurses\n1 Inpatients = 3.4227 .. 4.2784 Outpatients\n"))
      << table;
  EXPECT_TRUE(Has(table, "Doctors 0.025, Nurses 0.000, Outpatients 0.079, Inpatients 0.044.\n")) << table;
}

TEST(SampleProjects, TheSecondSessionOfTheHospitalsIsTheTradeOffs) {
  EXPECT_TRUE(Has(Table("hospitals.tarnwise", "1"), "1 Doctors = 6.1416 .. 9.2875 Nurses\n"));
}

TEST(SampleProjects, OfTheTwelveUniversitiesOneIsLeft) {
  EXPECT_TRUE(Has(Table("universities.tarnwise"), "12 of 12 units are efficient without judgments, 1 with them.\n"));
}

}  // namespace
}  // namespace Tarnwise
