#include "project/ImportModel.h"

#include "modelfiles/ModelJson.h"
#include "project/ProjectChecks.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

const char* const kModel = R"({
  "alternatives": [
    {"name": "Ward A", "scores": {"Beds": 37, "Doctors": 3.17, "Nurses": 8}},
    {"name": "Ward B", "scores": {"Beds": 0, "Nurses": 11}}
  ],
  "attributes": [
    {"name": "Beds", "description": "beds in use", "orientation": "benefit", "scoreMin": 0, "scoreMax": 100,
     "worst": 10, "best": 90, "curve": [[0, 0], [37, 0.5], [100, 1]]},
    {"name": "Doctors", "orientation": "cost", "scoreMin": 1.5, "scoreMax": 9.5, "worst": 9, "best": 2},
    {"name": "Nurses", "orientation": "cost", "scoreMin": 1, "scoreMax": 20, "worst": 20, "best": 5,
     "curve": [[1, 0], [20, 1]]},
    {"name": "Remarks", "orientation": "2", "scoreMin": 0, "scoreMax": 0, "worst": 1, "best": 0}
  ],
  "judgments": {"type": "DEA_DIRECT", "benefitReference": "Beds", "costReference": "Nurses", "referenceRatio": 0.75,
                "weights": {"Beds": 1, "Doctors": 3.5, "Nurses": 1}, "low": {"Beds": 1, "Doctors": 3, "Nurses": 1},
                "high": {"Beds": 1, "Doctors": 4.09, "Nurses": 1}}
})";

class ImportModelTest : public testing::Test {
 protected:
  Json description = ParseDescription(kModel);

  ImportedModel Import(const String& points = {}) { return ImportModel(ModelFromJson(description), points); }
  String Fault() {
    return FaultOf([this] { (void)Import(); });
  }
  Json& Attribute(std::size_t i) { return description["attributes"][i]; }
  Json& Judgments() { return description["judgments"]; }
};

TEST_F(ImportModelTest, AlternativesBecomeUnitsAndAttributesColumns) {
  const Project project = Import().Project;
  EXPECT_EQ(project.Units, (std::vector<String>{"Ward A", "Ward B"}));
  ASSERT_EQ(project.Columns.size(), 4U);
  const DataColumn& beds = project.Columns[0];
  EXPECT_EQ(beds.Name, "Beds");
  EXPECT_EQ(beds.Role, Role::Output);
  EXPECT_EQ(beds.Description, "beds in use");
  EXPECT_EQ(beds.Worst, 10.0);
  EXPECT_EQ(beds.Best, 90.0);
  EXPECT_EQ(beds.Curve, (std::vector<ValuePoint>{{0, 0}, {37, 0.5}, {100, 1}}));
  EXPECT_EQ(project.Columns[1].Role, Role::Input);
  EXPECT_TRUE(project.Columns[1].Curve.empty());
  EXPECT_EQ(project.Columns[3].Role, Role::Unused);
  EXPECT_EQ(FaultOf([&] { CheckRecords(project); }), "no fault");
}

TEST_F(ImportModelTest, ScoreThatTheModelLacksIsMissing) {
  const Project project = Import().Project;
  EXPECT_EQ(project.Columns[0].Values, (std::vector<std::optional<double>>{37.0, 0.0}));
  EXPECT_EQ(project.Columns[1].Values, (std::vector<std::optional<double>>{3.17, std::nullopt}));
}

TEST_F(ImportModelTest, StoredJudgmentsBecomeASessionThatCopiesTheScales) {
  const ImportedModel imported = Import(R"({"AX":[1]})");
  ASSERT_EQ(imported.Project.Sessions.size(), 1U);
  const JudgmentSession& session = imported.Project.Sessions[0];
  EXPECT_EQ(session.Approach, "DEA_DIRECT");
  EXPECT_EQ(session.Basis, JudgmentBasis::Range);
  EXPECT_EQ(session.BenefitReference, "Beds");
  EXPECT_EQ(session.CostReference, "Nurses");
  EXPECT_EQ(session.Cross->Ratio, 0.75);
  EXPECT_TRUE(session.Cross->Judged);
  ASSERT_EQ(session.Attributes.size(), 3U);
  const SessionAttribute& doctors = session.Attributes[1];
  EXPECT_EQ(doctors.Low, 3.0);
  EXPECT_EQ(doctors.Ratio, 3.5);
  EXPECT_EQ(doctors.High, 4.09);
  EXPECT_EQ(doctors.Snapshot, (ColumnScale{9, 2, {}}));
  EXPECT_EQ(session.Attributes[0].Snapshot->Curve.size(), 3U);
  EXPECT_EQ(session.Points, R"({"AX":[1]})");
  EXPECT_TRUE(imported.Notes.empty());
}

TEST_F(ImportModelTest, TradeOffsAreJudgedOnTheScale) {
  Judgments()["type"] = "DEA_TRADEOFFS";
  EXPECT_EQ(Import().Project.Sessions[0].Basis, JudgmentBasis::Scale);
}

TEST_F(ImportModelTest, WithoutStoredJudgmentsThereIsNoSession) {
  Judgments()["type"] = "";
  EXPECT_TRUE(Import().Project.Sessions.empty());
  description.erase("judgments");
  EXPECT_TRUE(Import().Project.Sessions.empty());
}

TEST_F(ImportModelTest, CrossRatioThatNobodyEnteredIsAnInteger) {
  Judgments()["referenceRatio"] = {{"integer", 1}};
  const auto cross = Import().Project.Sessions[0].Cross;
  EXPECT_EQ(cross->Ratio, 1.0);
  EXPECT_FALSE(cross->Judged);
}

TEST_F(ImportModelTest, CrossRatioThatIsNoneIsNotedAndNotJudged) {
  for (const Json& ratio : {Json(0), Json(-1), Json("abc"), Json({{"null", true}}), Json()}) {
    Judgments()["referenceRatio"] = ratio;
    const ImportedModel imported = Import();
    EXPECT_EQ(imported.Project.Sessions[0].Cross, std::nullopt) << ratio;
    EXPECT_EQ(imported.Notes.size(), 1U);
  }
}

TEST_F(ImportModelTest, GroupOfOneNeedsNoStoredReference) {
  Judgments()["benefitReference"] = nullptr;
  EXPECT_EQ(Import().Project.Sessions[0].BenefitReference, "Beds");
}

TEST_F(ImportModelTest, JudgmentsWithoutTheReferenceAreLeftOutAndNoted) {
  for (const Json& reference : {Json(), Json("Beds"), Json({{"value", "x"}}), Json(30)}) {
    Judgments()["costReference"] = reference;
    const ImportedModel imported = Import();
    EXPECT_TRUE(imported.Project.Sessions.empty()) << reference;
    EXPECT_EQ(imported.Notes,
              (std::vector<String>{"the stored judgments are left out: costReference of session 0: it is missing, and "
                                   "there are 2 inputs"}));
  }
}

TEST_F(ImportModelTest, WrongBoundsAreFaultsWithTheAttributesName) {
  Judgments()["low"]["Doctors"] = 4.5;
  EXPECT_EQ(Fault(), "low of attribute 1 (Doctors) of session 0: 4.5 is above high, 4.09");
  Judgments()["low"]["Doctors"] = -1;
  EXPECT_EQ(Fault(), "low of attribute 1 (Doctors) of session 0: -1 is negative");
  Judgments()["low"]["Doctors"] = {{"bits", "7ff8000000000000"}};
  EXPECT_EQ(Fault(), "low of attribute 1 (Doctors) of session 0: it is no finite number");
}

TEST_F(ImportModelTest, RangeTheWrongWayRoundIsAFault) {
  Attribute(1)["worst"] = 1;
  EXPECT_EQ(Fault(), "worst of column 1 (Doctors): worst 1 and best 2 are the wrong way round for an input");
}

TEST_F(ImportModelTest, CurveThatIsNoneIsAFault) {
  Attribute(0)["curve"] = {{0, 0}};
  EXPECT_EQ(Fault(), "curve of column 0 (Beds): it has 1 point, 2 to 11 are wanted");
  Attribute(0)["curve"] = {{0, 0}, {0, 1}};
  EXPECT_EQ(Fault(), "curve of column 0 (Beds): the score of point 1 is not above that of the point before");
  Attribute(0)["curve"] = {{0, 0}, {"x", 1}};
  EXPECT_EQ(Fault(), "curve of attribute 0 (Beds): a point is no number");
  Attribute(0)["curveCount"] = 12;
  EXPECT_EQ(Fault(), "curve of attribute 0 (Beds): it says that it has 12 points");
}

TEST_F(ImportModelTest, NamesAreNeitherEmptyNorTheSame) {
  Attribute(1)["name"] = " Nurses ";
  Judgments() = {{"type", ""}};
  description["alternatives"] = {{{"name", "A"}}, {{"name", ""}, {"scores", {1, 2}}}};
  EXPECT_EQ(Fault(), "name of unit 1: it is empty");
  description["alternatives"][1]["name"] = "B";
  EXPECT_EQ(Fault(), "name of column 2: \"Nurses\" is the name of column 1 already");
}

TEST_F(ImportModelTest, ModelNeedsAttributesAndAlternatives) {
  description["alternatives"] = Json::array();
  EXPECT_EQ(Fault(), "the model has no alternatives, which would be the units");
  EXPECT_EQ(FaultOf([] { (void)ImportModel(WizardData(), {}); }), "the model has no attributes");
}

}  // namespace
}  // namespace Tarnwise
