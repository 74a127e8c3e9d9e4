#include "project/ImportSession.h"

#include "modelfiles/ModelJson.h"
#include "project/Evaluation.h"
#include "project/ProjectChecks.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

// Without alternatives, as the wizard's own models are.
const char* const kJudgedModel = R"({
  "attributes": [
    {"name": "Beds", "orientation": "benefit", "scoreMin": 0, "scoreMax": 100, "worst": 10, "best": 90},
    {"name": "Doctors", "orientation": "cost", "scoreMin": 1.5, "scoreMax": 9.5, "worst": 9, "best": 2},
    {"name": "Nurses", "orientation": "cost", "scoreMin": 1, "scoreMax": 20, "worst": 20, "best": 5}
  ],
  "judgments": {"type": "DEA_DIRECT", "benefitReference": "Beds", "costReference": "Nurses", "referenceRatio": 0.75,
                "weights": {"Beds": 1, "Doctors": 3.5, "Nurses": 1}, "low": {"Beds": 1, "Doctors": 3, "Nurses": 1},
                "high": {"Beds": 1, "Doctors": 4.09, "Nurses": 1}}
})";

DataColumn ColumnOf(const char* name, Role role, double worst, double best, std::vector<std::optional<double>> values) {
  DataColumn column;
  column.Name = name;
  column.Role = role;
  column.Worst = worst;
  column.Best = best;
  column.Values = std::move(values);
  return column;
}

class ImportSessionTest : public testing::Test {
 protected:
  Json description = ParseDescription(kJudgedModel);
  Project project;

  ImportSessionTest() {
    project.Units = {"Ward A", "Ward B"};
    project.Columns = {ColumnOf("Nurses", Role::Input, 25, 5, {8.0, 11.5}),
                       ColumnOf("Doctors", Role::Input, 12, 1, {3.17, 2.5}),
                       ColumnOf("Beds", Role::Output, 0, 100, {37.0, 41.0})};
  }
  ImportedSession Import(const String& points = {}) {
    return ImportSession(project, ModelFromJson(description), points);
  }
  String Fault() {
    return FaultOf([this] { (void)Import(); });
  }
};

TEST_F(ImportSessionTest, TakesTheJudgmentsByTheAttributesNames) {
  const ImportedSession imported = Import();
  EXPECT_TRUE(imported.Notes.empty());
  EXPECT_EQ(imported.Session.CostReference, "Nurses");
  EXPECT_EQ(imported.Session.Basis, JudgmentBasis::Range);
  const SessionAttribute* const doctors = FindAttribute(imported.Session, "Doctors");
  ASSERT_NE(doctors, nullptr);
  EXPECT_EQ(doctors->Low, 3.0);
  EXPECT_EQ(doctors->High, 4.09);
  // On the model's range, not on that of the column here.
  EXPECT_EQ(doctors->Snapshot, (ColumnScale{9.0, 2.0, {}}));
}

TEST_F(ImportSessionTest, CanBeComputedWithInTheProject) {
  project.Sessions.push_back(Import().Session);
  EXPECT_EQ(FaultOf([this] { CheckProject(project); }), "no fault");
  Asked asked;
  asked.Session = 0;
  const JudgedProblem judged = JudgedProblemOf(project, asked);
  ASSERT_EQ(judged.Equivalences.size(), 1U);
  EXPECT_NEAR(judged.Equivalences[0].Low, 3.0 * 15.0 / 7.0, 1e-9);
}

TEST_F(ImportSessionTest, WithoutJudgmentsIsAFault) {
  description.erase("judgments");
  EXPECT_EQ(Fault(), "the model has no stored judgments");
}

TEST_F(ImportSessionTest, ReferenceThatIsNotHereIsAFaultThatNamesIt) {
  project.Columns[0].Name = "Carers";
  EXPECT_EQ(Fault(),
            "the model judges against \"Nurses\", and there is no such column here; the inputs and outputs here are "
            "Carers, Doctors, Beds");
}

TEST_F(ImportSessionTest, InputThatIsAnOutputHereIsAFaultThatNamesIt) {
  project.Columns[1].Role = Role::Output;
  EXPECT_EQ(Fault(), "\"Doctors\" is an input in the model, but here it is an output");
  project.Columns[1].Role = Role::Unused;
  EXPECT_EQ(Fault(), "\"Doctors\" is an input in the model, but here it is not used");
}

TEST_F(ImportSessionTest, WhatOnlyOneOfThemHasIsTold) {
  project.Columns[1].Name = "Surgeons";
  const ImportedSession imported = Import();
  EXPECT_EQ(imported.Notes, (std::vector<String>{"Judged in the model, but no column here, so passed over: Doctors.",
                                                 "Not in the model, so not judged: Surgeons."}));
  EXPECT_EQ(FindAttribute(imported.Session, "Doctors"), nullptr);
}

TEST_F(ImportSessionTest, PointsAreKeptOnlyForTheSameAttributesInTheSameOrder) {
  description["judgments"]["type"] = "DEA_TRADEOFFS";
  EXPECT_EQ(Import("{\"A\":[1,2,3]}").Session.Points, "");
  EXPECT_EQ(Import("{\"A\":[1,2,3]}").Notes,
            (std::vector<String>{"The points of the trade-offs are left out: the attributes are not the same."}));
  project.Columns = {project.Columns[2], project.Columns[1], project.Columns[0]};
  EXPECT_EQ(Import("{\"A\":[1,2,3]}").Session.Points, "{\"A\":[1,2,3]}");
}

}  // namespace
}  // namespace Tarnwise
