#include "project/SessionModel.h"

#include "Hospitals.h"
#include "modelfiles/Judgments.h"
#include "project/Shown.h"
#include "runtime/CodePage.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Tarnwise {
namespace {

class SessionModelTest : public testing::Test {
 protected:
  SessionModelTest() { project.Sessions.clear(); }

  SessionModel Made() const { return SessionModelOf(project, {}, CodePage1252()); }
  String Fault() const {
    return FaultOf([this] { (void)Made(); });
  }

  Project project = Hospitals();
};

TEST_F(SessionModelTest, AttributesAreTheUsedColumnsInTheirOrder) {
  const SessionModel model = Made();
  EXPECT_EQ(model.Names, (std::vector<String>{"Doctors", "Nurses", "Outpatients", "Inpatients"}));
  EXPECT_EQ(model.Data.NumAtts(), 4);
  EXPECT_EQ(String(model.Data.AttName(0)), "Doctors");
  EXPECT_EQ(String(model.Data.AttributeList.AttOrientation[1]), "1");
  EXPECT_EQ(String(model.Data.AttributeList.AttOrientation[2]), "0");
  EXPECT_EQ(String(model.Data.AttributeList.AttDescription[0]), "in posts");
}

TEST_F(SessionModelTest, ScoresGoFromWorstToBestRoundedOutward) {
  project.Columns[1].Worst = 319.4;
  project.Columns[1].Best = 121.3;
  const SessionModel model = Made();
  const AttValueData& values = model.Data.AttValueData;
  EXPECT_EQ(values.WorstScore[1], 319.4);
  EXPECT_EQ(values.BestScore[1], 121.3);
  EXPECT_EQ(values.ScoreMin[1], 120.0);
  EXPECT_EQ(values.ScoreMax[1], 320.0);
}

TEST_F(SessionModelTest, AColumnWithoutACurveHasTheStraightLineOverItsRange) {
  const SessionModel model = Made();
  const AttValueData& values = model.Data.AttValueData;
  EXPECT_EQ(values.ValuePointCount[1], 2);
  EXPECT_EQ(ToDouble(values.ValuePointX(1, 0)), 120.0);
  EXPECT_EQ(ToDouble(values.ValuePointY(1, 0)), 0.0);
  EXPECT_EQ(ToDouble(values.ValuePointX(1, 1)), 320.0);
  EXPECT_EQ(ToDouble(values.ValuePointY(1, 1)), 1.0);
}

TEST_F(SessionModelTest, ACurveIsHandedOverAsItIs) {
  const SessionModel model = Made();
  EXPECT_EQ(model.Data.AttValueData.ValuePointCount[0], 3);
  EXPECT_EQ(ToDouble(model.Data.AttValueData.ValuePointX(0, 1)), 37.5);
  EXPECT_EQ(ToDouble(model.Data.AttValueData.ValuePointY(0, 1)), 0.46);
}

TEST_F(SessionModelTest, LettersThatTheCodePageLacksAreReplacedAndTold) {
  project.Columns[0].Name = "Λékaři";
  const SessionModel model = Made();
  EXPECT_EQ(String(model.Data.AttName(0)), "?éka?i");
  EXPECT_EQ(model.Names[0], "Λékaři");
  ASSERT_EQ(model.Notes.size(), 1U);
  EXPECT_EQ(model.Notes[0], "\"Λékaři\" is called \"?éka?i\" in the wizard: code page 1252 lacks some of its letters.");
}

TEST_F(SessionModelTest, NamesThatBecomeTheSameStayApart) {
  project.Columns[0].Name = "Λ";
  project.Columns[1].Name = "Ω";
  const SessionModel model = Made();
  EXPECT_EQ(String(model.Data.AttName(0)), "?");
  EXPECT_EQ(String(model.Data.AttName(1)), "? (2)");
}

TEST_F(SessionModelTest, OneAttributeIsNothingToJudge) {
  for (const std::size_t column : {1U, 2U, 3U}) project.Columns[column].Role = Role::Unused;
  EXPECT_EQ(Fault(), "columns: 1 input or output, so there is nothing to judge");
}

TEST_F(SessionModelTest, ThirtyOneAttributesAreTakenAndThirtyTwoRefused) {
  DataColumn column = project.Columns[1];
  for (int k = 0; k < 27; ++k) {
    column.Name = "More " + std::to_string(k);
    project.Columns.push_back(column);
  }
  EXPECT_EQ(Made().Data.NumAtts(), 31);
  column.Name = "One too many";
  project.Columns.push_back(column);
  EXPECT_EQ(Fault(), "columns: 32 are inputs and outputs, more than 31, the most that can be judged");
}

TEST_F(SessionModelTest, AColumnWithoutARangeIsRefused) {
  project.Columns[2].Best = project.Columns[2].Worst;
  EXPECT_EQ(Fault(), "column Outpatients: worst and best are the same, so there is nothing to judge");
}

TEST_F(SessionModelTest, ScoresThatSinglesCannotTellApartAreTold) {
  project.Columns[1].Worst = 1e9 + 2;
  project.Columns[1].Best = 1e9;
  const SessionModel model = Made();
  ASSERT_EQ(model.Notes.size(), 1U);
  EXPECT_EQ(model.Notes[0], "Nurses: the wizard's trade-offs can't tell its scores apart; take direct comparisons.");
}

// What the wizard hands over.
class SessionOfTest : public SessionModelTest {
 protected:
  SessionOfTest() {
    judgments.RJType = "DEA_DIRECT";
    judgments.BRefAttID = 2;
    judgments.CRefAttID = 1;
    judgments.RefAttWR = 1.15;
    judgments.WeightsL = {3.0, 1.0, 1.0, 2.0};
    judgments.Weights = {3.545, 1.0, 1.0, 2.25};
    judgments.WeightsH = {4.09, 1.0, 1.0, 2.5};
    after.WeightDone.Allocate(4);
    for (int i = 0; i < 4; ++i) after.WeightDone[i] = true;
  }

  JudgmentSession Session() const { return SessionOf(model, judgments, after); }

  SessionModel model = Made();
  Judgments judgments;
  WizardData after;
};

TEST_F(SessionOfTest, HoldsIntervalsReferencesAndACopyOfTheScales) {
  const JudgmentSession session = Session();
  EXPECT_EQ(session.Approach, "DEA_DIRECT");
  EXPECT_EQ(session.Basis, JudgmentBasis::Range);
  EXPECT_EQ(session.BenefitReference, "Outpatients");
  EXPECT_EQ(session.CostReference, "Nurses");
  ASSERT_EQ(session.Attributes.size(), 4U);
  EXPECT_EQ(session.Attributes[0].Name, "Doctors");
  EXPECT_EQ(session.Attributes[0].Low, 3.0);
  EXPECT_EQ(session.Attributes[0].Ratio, 3.545);
  EXPECT_EQ(session.Attributes[0].High, 4.09);
  EXPECT_TRUE(session.Attributes[0].Judged);
  EXPECT_EQ(session.Attributes[0].Snapshot, ScaleOf(project.Columns[0], nullptr));
  ASSERT_TRUE(session.Cross);
  EXPECT_EQ(session.Cross->Ratio, 1.15);
  EXPECT_TRUE(session.Cross->Judged);
}

TEST_F(SessionOfTest, TradeOffsAreOfTheWholeScale) {
  judgments.RJType = "DEA_TRADEOFFS";
  EXPECT_EQ(Session().Basis, JudgmentBasis::Scale);
}

TEST_F(SessionOfTest, AnIntegerCrossRatioWasNeverJudged) {
  judgments.RefAttWR = static_cast<Integer>(1);
  const JudgmentSession session = Session();
  ASSERT_TRUE(session.Cross);
  EXPECT_EQ(session.Cross->Ratio, 1.0);
  EXPECT_FALSE(session.Cross->Judged);
}

TEST_F(SessionOfTest, ACrossRatioOfOneThatWasEnteredIsJudged) {
  judgments.RefAttWR = 1.0;
  EXPECT_TRUE(Session().Cross->Judged);
}

TEST_F(SessionOfTest, AnAttributeThatIsNotDoneIsNotJudged) {
  after.WeightDone[3] = false;
  const JudgmentSession session = Session();
  EXPECT_TRUE(session.Attributes[0].Judged);
  EXPECT_FALSE(session.Attributes[3].Judged);
}

TEST_F(SessionOfTest, BoundsThatAreNoneAreNotJudged) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const auto& [low, high] : std::vector<std::pair<double, double>>{
           {0.0, 2.0}, {-1.0, 2.0}, {2.0, 1.0}, {1.0, infinity}, {std::nan(""), 1.0}}) {
    judgments.WeightsL[0] = low;
    judgments.WeightsH[0] = high;
    EXPECT_FALSE(Session().Attributes[0].Judged) << low << " to " << high;
  }
}

TEST_F(SessionOfTest, AGroupWithoutAttributesHasNoReferenceAndNoCrossRatio) {
  project.Columns[2].Role = Role::Unused;
  project.Columns[3].Role = Role::Unused;
  model = Made();
  judgments.BRefAttID = 0;
  const JudgmentSession session = Session();
  EXPECT_EQ(session.BenefitReference, "");
  EXPECT_EQ(session.CostReference, "Nurses");
  EXPECT_FALSE(session.Cross);
}

}  // namespace
}  // namespace Tarnwise
