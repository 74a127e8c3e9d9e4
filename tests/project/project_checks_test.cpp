#include "project/ProjectChecks.h"

#include "Hospitals.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tarnwise {
namespace {

class ProjectChecks : public testing::Test {
 protected:
  Project project = Hospitals();

  String ResultsFault() {
    return FaultOf([this] { CheckForResults(project); });
  }
  String SessionFault(std::size_t session) {
    return FaultOf([this, session] { CheckSession(project, session); });
  }
  String RecordsFault() {
    return FaultOf([this] { CheckRecords(project); });
  }
  DataColumn& Column(std::size_t i) { return project.Columns[i]; }
};

TEST_F(ProjectChecks, GoodProjectPassesThemAll) {
  EXPECT_EQ(FaultOf([this] { CheckProject(project); }), "no fault");
}

TEST_F(ProjectChecks, ResultsNeedAnInputOrAnOutput) {
  for (DataColumn& column : project.Columns) column.Role = Role::Unused;
  EXPECT_EQ(ResultsFault(), "columns: none of them is an input or an output");
  Column(2).Role = Role::Output;
  EXPECT_EQ(ResultsFault(), "no fault");
}

TEST_F(ProjectChecks, ResultsNeedUnits) {
  project.Units.clear();
  EXPECT_EQ(ResultsFault(), "units: there are none");
}

TEST_F(ProjectChecks, ResultsNeedAUnitWithAllItsValues) {
  Column(1).Values[0].reset();
  EXPECT_EQ(ResultsFault(), "no fault");
  Column(3).Values[1].reset();
  EXPECT_EQ(ResultsFault(),
            "units: all of them lack a value: Hospital A in Nurses, Hospital B in Inpatients, Hospital C in Doctors");
}

TEST_F(ProjectChecks, MissingValueOfAnUnusedColumnDoesNotMatter) {
  for (auto& value : Column(4).Values) value.reset();
  EXPECT_EQ(ResultsFault(), "no fault");
}

TEST_F(ProjectChecks, ThereIsRoomForThirtyOneAttributes) {
  while (project.Columns.size() < 32) {
    project.Columns.push_back(Column(3));
    project.Columns.back().Name = "Output " + std::to_string(project.Columns.size());
  }
  EXPECT_EQ(ResultsFault(), "no fault");  // the beds are not used
  project.Columns.push_back(Column(3));
  project.Columns.back().Name = "one more";
  EXPECT_EQ(ResultsFault(), "columns: 32 are inputs and outputs, more than 31, the most that can be judged");
}

TEST_F(ProjectChecks, SessionNeedsTheReferenceOfAGroupOfTwo) {
  project.Sessions[0].CostReference.clear();
  EXPECT_EQ(SessionFault(0), "costReference of session 0: it is missing, and there are 2 inputs");
  Column(0).Role = Role::Unused;
  EXPECT_EQ(SessionFault(0), "no fault");
}

TEST_F(ProjectChecks, ReferenceIsInItsGroup) {
  project.Sessions[1].BenefitReference = "Doctors";
  EXPECT_EQ(SessionFault(1), "benefitReference of session 1: \"Doctors\" is no output, its role is input");
  project.Sessions[1].BenefitReference = "Beds";
  EXPECT_EQ(SessionFault(1), "benefitReference of session 1: \"Beds\" is no output, its role is unused");
  project.Sessions[1].BenefitReference = "Beds 2";
  EXPECT_EQ(SessionFault(1), "benefitReference of session 1: there is no column \"Beds 2\"");
  EXPECT_EQ(FaultOf([this] { CheckProject(project); }), SessionFault(1));
}

TEST_F(ProjectChecks, RecordsHoldFiniteNumbers) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Column(1).Values[2] = kInfinity;
  EXPECT_EQ(RecordsFault(), "values of column 1 (Nurses): that of Hospital C is no finite number");
  project = Hospitals();
  Column(1).Best = -kInfinity;
  EXPECT_EQ(RecordsFault(), "best of column 1 (Nurses): it is no finite number");
  project = Hospitals();
  Column(0).Curve[1].Value = kInfinity;
  EXPECT_EQ(RecordsFault(), "curve of column 0 (Doctors): it is no finite number");
  project = Hospitals();
  project.Sessions[0].Attributes[0].High = kInfinity;
  EXPECT_EQ(RecordsFault(), "high of attribute 0 (Doctors) of session 0: it is no finite number");
  project = Hospitals();
  project.Sessions[0].Cross->Ratio = kInfinity;
  EXPECT_EQ(RecordsFault(), "ratio of cross of session 0: it must be above 0 and finite");
}

TEST_F(ProjectChecks, RecordsHoldAValueForEachUnit) {
  Column(4).Values.pop_back();
  EXPECT_EQ(RecordsFault(), "values of column 4 (Beds): there are 2 for 3 units");
}

TEST_F(ProjectChecks, CurvesHoldElevenPointsAtMost) {
  Column(0).Curve.clear();
  for (int k = 0; k < 11; ++k) Column(0).Curve.push_back({k * 1.0, 0.5});
  EXPECT_EQ(RecordsFault(), "no fault");
  Column(0).Curve.push_back({11.0, 0.5});
  EXPECT_EQ(RecordsFault(), "curve of column 0 (Doctors): it has 12 points, 2 to 11 are wanted");
}

TEST_F(ProjectChecks, NotesNameWhatASessionHoldsWithoutEffect) {
  JudgmentSession& session = project.Sessions[0];
  EXPECT_EQ(SessionNotes(project, 0), std::vector<String>());
  session.Attributes.push_back({"Beds", 1.0, 1.0, 1.0, true, {}, {}});
  session.Attributes.push_back({"Gone", 1.0, 1.0, 1.0, true, {}, {}});
  EXPECT_EQ(SessionNotes(project, 0),
            (std::vector<String>{"session 0: Beds is passed over: it is not used.",
                                 "session 0: Gone is passed over: there is no such column."}));
  EXPECT_EQ(SessionNotes(project, 1), std::vector<String>());
}

}  // namespace
}  // namespace Tarnwise
