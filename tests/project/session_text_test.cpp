#include "project/SessionText.h"

#include "Hospitals.h"
#include "runtime/CodePage.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

using Texts = std::vector<String>;

Texts Meanings(const Project& project, bool fresh = false) {
  return MeaningLines(SessionModelOf(project, {fresh, {}}, CodePage1252()));
}

TEST(SessionText, MeaningsNameTheSwingsOfTheResumedReferences) {
  Project project = Hospitals();
  project.Sessions.resize(1);
  EXPECT_EQ(Meanings(project),
            (Texts{"1.5 means: Doctors from 60 to 15 is worth 1.5 times Nurses from 320 to 120.",
                   "1.5 means: Inpatients from 40 to 150 is worth 1.5 times Outpatients from 80 to 280."}));
}

TEST(SessionText, MeaningsOfAFreshSessionSuggestAReference) {
  EXPECT_EQ(Meanings(Hospitals(), true).front(),
            "With Nurses as the reference 1.5 means: Doctors from 60 to 15 is worth 1.5 times Nurses from 320 to 120.");
}

TEST(SessionText, ACurveBeyondTheRangeGivesTradeOffsALineOfTheirOwn) {
  Project project = Hospitals();
  project.Sessions.resize(1);
  project.Columns[0].Worst = 55;
  project.Columns[0].Best = 19;
  project.Sessions[0].Attributes[0].Snapshot.reset();
  const Texts lines = Meanings(project);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0],
            "Direct comparisons: 1.5 means: Doctors from 55 to 19 is worth 1.5 times Nurses from 320 to 120.");
  EXPECT_EQ(lines[1], "Trade-offs: 1.5 means: Doctors from 60 to 15 is worth 1.5 times Nurses from 320 to 120.");
}

TEST(SessionText, AGroupOfOneHasNoMeaning) {
  Project project = Hospitals();
  project.Columns[3].Role = Role::Unused;
  EXPECT_EQ(Meanings(project, true).size(), 1U);
}

TEST(SessionText, JudgmentsAreSaidInTheColumnsOrder) {
  EXPECT_EQ(JudgmentLines(Hospitals(), 0),
            (Texts{"Doctors 3.0000 .. 4.0900 times Nurses", "Inpatients at least 2.0000 times Outpatients",
                   "Nurses to Outpatients 1.1500"}));
  EXPECT_EQ(NotJudged(Hospitals(), 0), Texts());
}

TEST(SessionText, WhatWasNotJudgedIsListedTheCrossRatioToo) {
  Project project = Hospitals();
  project.Sessions[0].Attributes[0].Judged = false;
  project.Sessions[0].Cross->Judged = false;
  EXPECT_EQ(JudgmentLines(project, 0), (Texts{"Doctors not judged", "Inpatients at least 2.0000 times Outpatients"}));
  EXPECT_EQ(NotJudged(project, 0), (Texts{"Doctors", "Nurses to Outpatients"}));
}

TEST(SessionText, ARatioOfOneIsTheSameRank) {
  Project project = Hospitals();
  project.Sessions[0].Attributes[0].Low = 1.0;
  project.Sessions[0].Attributes[0].High = 1.0;
  EXPECT_EQ(JudgmentLines(project, 0).front(), "Doctors 1.0000 times Nurses (same rank)");
}

}  // namespace
}  // namespace Tarnwise
