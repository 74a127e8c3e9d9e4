#include "project/ResumeSession.h"

#include "Hospitals.h"
#include "modelfiles/Judgments.h"
#include "runtime/CodePage.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

class ResumeSessionTest : public testing::Test {
 protected:
  ResumeSessionTest() {
    project.Sessions.resize(1);
    session().Attributes = {Judged("Doctors", 3.0, 4.09), Judged("Nurses", 1.0, 1.0), Judged("Inpatients", 2.0, 2.5)};
  }

  JudgmentSession& session() { return project.Sessions.back(); }
  SessionAttribute Judged(const String& name, double low, double high) const {
    SessionAttribute attribute;
    attribute.Name = name;
    attribute.Low = low;
    attribute.Ratio = (low + high) / 2.0;
    attribute.High = high;
    attribute.Snapshot = ScaleOf(*FindColumn(project, name), nullptr);
    return attribute;
  }
  SessionModel Resumed(const Beginning& beginning = {}) const {
    return SessionModelOf(project, beginning, CodePage1252());
  }
  static void ExpectInterval(const SessionModel& model, int attribute, double low, double high) {
    EXPECT_NEAR(model.Data.SavedJudgments.SavedWeightsL[attribute], low, 1e-12 * low);
    EXPECT_NEAR(model.Data.SavedJudgments.SavedWeightsH[attribute], high, 1e-12 * high);
  }

  Project project = Hospitals();
};

TEST_F(ResumeSessionTest, JudgmentsComeBackAsTheyWere) {
  const SessionModel model = Resumed();
  const SavedJudgments& saved = model.Data.SavedJudgments;
  EXPECT_EQ(model.Resumed, 0U);
  EXPECT_EQ(saved.RJType, "DEA_DIRECT");
  EXPECT_EQ(ToDouble(saved.SavedBRefAttID), 2.0);
  EXPECT_EQ(ToDouble(saved.SavedCRefAttID), 1.0);
  EXPECT_EQ(ToDouble(saved.SavedRefAttWR), 1.15);
  ExpectInterval(model, 0, 3.0, 4.09);
  ExpectInterval(model, 1, 1.0, 1.0);
  ExpectInterval(model, 2, 1.0, 1.0);
  ExpectInterval(model, 3, 2.0, 2.5);
  EXPECT_TRUE(model.Placeholders.empty());
}

TEST_F(ResumeSessionTest, ACrossRatioThatWasNeverJudgedGoesInAsAnInteger) {
  session().Cross->Judged = false;
  EXPECT_TRUE(std::holds_alternative<Integer>(Resumed().Data.SavedJudgments.SavedRefAttWR));
  session().Cross.reset();
  EXPECT_TRUE(std::holds_alternative<Integer>(Resumed().Data.SavedJudgments.SavedRefAttWR));
}

TEST_F(ResumeSessionTest, ACrossRatioThatWasJudgedGoesInAsADouble) {
  session().Cross->Ratio = 1.0;
  EXPECT_TRUE(std::holds_alternative<Double>(Resumed().Data.SavedJudgments.SavedRefAttWR));
}

TEST_F(ResumeSessionTest, AFreshBeginningHoldsNothing) {
  const SessionModel model = Resumed({true, {}});
  EXPECT_FALSE(model.Resumed);
  EXPECT_EQ(model.Data.SavedJudgments.RJType, "");
}

TEST_F(ResumeSessionTest, AChangedScaleConvertsTheRatios) {
  // The step of doctors was 45 and is 36, that of nurses 200 and is 175.
  project.Columns[0].Worst = 55;
  project.Columns[0].Best = 19;
  project.Columns[1].Worst = 306;
  project.Columns[1].Best = 131;
  const SessionModel model = Resumed();
  const double factor = (36.0 / 45.0) / (175.0 / 200.0);
  ExpectInterval(model, 0, 3.0 * factor, 4.09 * factor);
  EXPECT_EQ(model.Notes,
            (std::vector<String>{"Doctors, Nurses: the scale has changed since; the ratios are converted to the one of "
                                 "today."}));
}

TEST_F(ResumeSessionTest, WhatWasNotJudgedComesBackAsNotJudged) {
  session().Attributes[2].Judged = false;
  const SessionModel model = Resumed();
  ASSERT_EQ(model.Placeholders.size(), 1U);
  EXPECT_EQ(model.Placeholders[0].Attribute, 3);
  EXPECT_NE(model.Data.SavedJudgments.SavedWeightsL[3], 2.0);
  EXPECT_EQ(model.Notes, (std::vector<String>{"Inpatients: not judged in that session, or without a bound; not judged "
                                              "until you judge it."}));
}

TEST_F(ResumeSessionTest, APlaceholderThatComesBackUntouchedIsNotJudged) {
  session().Attributes[2].Judged = false;
  const SessionModel model = Resumed();
  const SavedJudgments& saved = model.Data.SavedJudgments;
  Judgments judgments;
  judgments.RJType = "DEA_DIRECT";
  judgments.BRefAttID = 2;
  judgments.CRefAttID = 1;
  judgments.RefAttWR = 1.15;
  for (int i = 0; i < 4; ++i) {
    judgments.WeightsL.emplace_back(Double(saved.SavedWeightsL[i]));
    judgments.Weights.emplace_back(Double(saved.SavedWeights[i]));
    judgments.WeightsH.emplace_back(Double(saved.SavedWeightsH[i]));
  }
  WizardData after;
  after.WeightDone.Allocate(4);
  for (int i = 0; i < 4; ++i) after.WeightDone[i] = true;
  EXPECT_TRUE(SessionOf(model, judgments, after).Attributes[0].Judged);
  EXPECT_FALSE(SessionOf(model, judgments, after).Attributes[3].Judged);
  judgments.WeightsH[3] = 2.75;
  EXPECT_TRUE(SessionOf(model, judgments, after).Attributes[3].Judged);
}

TEST_F(ResumeSessionTest, AJudgedColumnThatIsGoneIsTold) {
  project.Columns[3].Role = Role::Unused;
  const SessionModel model = Resumed();
  EXPECT_EQ(model.Names.size(), 3U);
  EXPECT_EQ(model.Notes, (std::vector<String>{"Inpatients: judged last time, but no input or output any more; that "
                                              "judgment is left."}));
}

TEST_F(ResumeSessionTest, ANewColumnStandsBehindAllOthersAndIsNotJudged) {
  DataColumn beds = project.Columns[1];
  beds.Name = "Costs";
  project.Columns.push_back(beds);
  const SessionModel model = Resumed();
  ASSERT_EQ(model.Placeholders.size(), 1U);
  EXPECT_EQ(model.Placeholders[0].Attribute, 4);
  EXPECT_LT(model.Data.SavedJudgments.SavedWeights[4], 1.0);
  EXPECT_GT(model.Data.SavedJudgments.SavedWeights[4], 0.0);
  EXPECT_EQ(model.Notes, (std::vector<String>{"Costs: not in that session; not judged until you judge it."}));
}

TEST_F(ResumeSessionTest, EqualMiddlesAreToldAsOneRank) {
  session().Attributes[2] = Judged("Inpatients", 0.75, 1.25);
  EXPECT_EQ(
      Resumed().Notes,
      (std::vector<String>{"Outpatients, Inpatients come back on one rank: the wizard ranks by the middles of "
                           "the intervals, and theirs are all 1.000. Changing the order begins all ratios anew."}));
}

TEST_F(ResumeSessionTest, TheLatestSessionThatFitsIsTaken) {
  project.Sessions.push_back(project.Sessions[0]);
  project.Sessions.push_back(project.Sessions[0]);
  project.Sessions[2].CostReference = "Beds";
  EXPECT_EQ(Resumed().Resumed, 1U);
  EXPECT_EQ(Resumed({false, 0U}).Resumed, 0U);
}

TEST_F(ResumeSessionTest, ASessionThatWasNamedAndDoesNotFitIsRefused) {
  session().CostReference = "Beds";
  EXPECT_EQ(FaultOf([this] {
              (void)Resumed({false, 0U});
            }),
            "session 0 does not fit: its references are not in their groups, or its scales have no range");
}

TEST_F(ResumeSessionTest, SessionsForColumnsThatAreGoneBeginAfresh) {
  session().CostReference = "Beds";
  const SessionModel model = Resumed();
  EXPECT_FALSE(model.Resumed);
  EXPECT_EQ(model.Notes,
            (std::vector<String>{"No earlier session fits the columns of today; the wizard begins afresh."}));
}

TEST_F(ResumeSessionTest, RatiosPerRawUnitBecomeRatiosOfSwings) {
  // 15 nurses for a doctor are 15 * 45 / 200 nurses' swings for that of doctors.
  session().Basis = JudgmentBasis::Unit;
  session().Attributes[0] = Judged("Doctors", 15.0, 20.0);
  ExpectInterval(Resumed(), 0, 15.0 * 45.0 / 200.0, 20.0 * 45.0 / 200.0);
}

TEST_F(ResumeSessionTest, TradeOffsWithoutTheirPointsComeBackAsDirectRatios) {
  session().Approach = "DEA_TRADEOFFS";
  session().Basis = JudgmentBasis::Scale;
  session().Points = "";
  const SessionModel model = Resumed();
  EXPECT_EQ(model.Data.SavedJudgments.RJType, "DEA_DIRECT");
  EXPECT_EQ(
      model.Notes,
      (std::vector<String>{"The points of the trade-offs do not hold any more; new ones follow from the ratios."}));
}

}  // namespace
}  // namespace Tarnwise
