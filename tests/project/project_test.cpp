#include "project/Project.h"

#include "Hospitals.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(Project, ColumnsAreFoundByNameAndRole) {
  const Project project = Hospitals();
  EXPECT_EQ(FindColumn(project, "Nurses"), &project.Columns[1]);
  EXPECT_EQ(FindColumn(project, "nurses"), nullptr);
  EXPECT_EQ(ColumnsIn(project, Role::Input), (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(ColumnsIn(project, Role::Output), (std::vector<std::size_t>{2, 3}));
  EXPECT_EQ(ColumnsIn(project, Role::Unused), (std::vector<std::size_t>{4}));
}

TEST(Project, ReferenceIsThatOfTheGroup) {
  const Project project = Hospitals();
  EXPECT_EQ(ReferenceIn(project.Sessions[0], Role::Output), "Outpatients");
  EXPECT_EQ(ReferenceIn(project.Sessions[0], Role::Input), "Nurses");
}

TEST(Project, AttributeIsJudgedWhereItIsListedWithABound) {
  Project project = Hospitals();
  JudgmentSession& session = project.Sessions[0];
  EXPECT_TRUE(IsJudged(session, "Doctors"));
  EXPECT_TRUE(IsJudged(session, "Inpatients"));
  EXPECT_FALSE(IsJudged(session, "Nurses"));
  EXPECT_FALSE(IsJudged(session, "Outpatients"));
  session.Attributes[2].Low = 0.0;
  EXPECT_FALSE(IsJudged(session, "Inpatients"));
  session.Attributes[0].Judged = false;
  EXPECT_FALSE(IsJudged(session, "Doctors"));
}

TEST(Project, ScaleIsTheSessionsCopyOrTheColumnsOwn) {
  const Project project = Hospitals();
  const JudgmentSession* const session = &project.Sessions[0];
  const DataColumn& doctors = project.Columns[0];
  EXPECT_EQ(ScaleOf(doctors, nullptr).Curve.size(), 3U);
  EXPECT_EQ(ScaleOf(doctors, session).Curve.size(), 2U);
  EXPECT_EQ(ScaleOf(project.Columns[1], session), (ColumnScale{320, 120, {}}));
  EXPECT_EQ(ScaleOf(project.Columns[3], session), (ColumnScale{40, 150, {}}));
}

TEST(Project, SessionInUseIsTheOneChosenOrTheLast) {
  Project project = Hospitals();
  EXPECT_EQ(SessionInUse(project), 0U);
  project.Use->Session.reset();
  EXPECT_EQ(SessionInUse(project), 1U);
  project.Use->NoSession = true;
  EXPECT_EQ(SessionInUse(project), std::nullopt);
  project.Use.reset();
  EXPECT_EQ(SessionInUse(project), 1U);
  project.Sessions.clear();
  EXPECT_EQ(SessionInUse(project), std::nullopt);
}

TEST(Project, WordsAreKnownByTheirNames) {
  for (const Role role : {Role::Input, Role::Output, Role::Unused}) EXPECT_EQ(RoleNamed(NameOf(role)), role);
  for (const auto basis : {JudgmentBasis::Range, JudgmentBasis::Scale, JudgmentBasis::Unit}) {
    EXPECT_EQ(BasisNamed(NameOf(basis)), basis);
  }
  for (const auto form : {ScoreForm::Ratio, ScoreForm::Value}) EXPECT_EQ(FormNamed(NameOf(form)), form);
  for (const auto returns : {ScoreReturns::Crs, ScoreReturns::Vrs, ScoreReturns::Nirs, ScoreReturns::Ndrs}) {
    EXPECT_EQ(ReturnsNamed(NameOf(returns)), returns);
  }
  for (const auto way : {ScoreOrientation::In, ScoreOrientation::Out}) EXPECT_EQ(OrientationNamed(NameOf(way)), way);
  EXPECT_EQ(RoleNamed("Input"), std::nullopt);
  EXPECT_EQ(ReturnsNamed(""), std::nullopt);
}

}  // namespace
}  // namespace Tarnwise
