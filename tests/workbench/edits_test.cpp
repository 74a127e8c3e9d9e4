#include "workbench/Edits.h"
#include "Window.h"
#include "workbench/History.h"

namespace Tarnwise {
namespace {

TEST(Roles, AColumnThatGetsOneGetsTheRangeOfItsDataTheRightWayRound) {
  Project project = HospitalsFromTable();
  DataColumn& doctors = project.Columns[0];
  doctors.Role = Role::Unused;
  doctors.Worst.reset();
  doctors.Best.reset();
  SetRole(project, 0, Role::Input);
  EXPECT_EQ(doctors.Worst, 60.0);
  EXPECT_EQ(doctors.Best, 15.0);
  SetRole(project, 0, Role::Output);
  EXPECT_EQ(doctors.Worst, 15.0);
  EXPECT_EQ(doctors.Best, 60.0);
}

TEST(Roles, AColumnWithoutNumbersCannotHaveOne) {
  Project project = HospitalsFromTable();
  project.Columns[0].Worst.reset();
  for (auto& value : project.Columns[0].Values) value.reset();
  EXPECT_THROW(SetRole(project, 0, Role::Input), ModelFault);
}

TEST(Names, OfAColumnChangeInTheSessionsToo) {
  Project project = JudgedHospitals();
  RenameColumn(project, 1, "Nursing staff");
  EXPECT_EQ(project.Sessions[0].CostReference, "Nursing staff");
  RenameColumn(project, 0, "Physicians");
  EXPECT_EQ(project.Sessions[0].Attributes[0].Name, "Physicians");
  EXPECT_THROW(RenameColumn(project, 0, "Inpatients"), ModelFault);
}

TEST(Cells, AreNumbersWithPointOrCommaOrMissing) {
  EXPECT_EQ(CellOf("1.25"), 1.25);
  EXPECT_EQ(CellOf(" 1,25 "), 1.25);
  EXPECT_EQ(CellOf("-3"), -3.0);
  EXPECT_EQ(CellOf(""), std::nullopt);
  EXPECT_EQ(CellOf("n/a"), std::nullopt);
  EXPECT_THROW(CellOf("twelve"), ModelFault);
}

TEST(Blocks, GoIntoTheCellsFromAPlaceOn) {
  Project project = HospitalsFromTable();
  PutBlock(project, 2, 1, BlockOf("7,5\t\n8\t9\n"));
  EXPECT_EQ(project.Columns[0].Values[2], 7.5);
  EXPECT_EQ(project.Columns[1].Values[2], std::nullopt);
  EXPECT_EQ(project.Columns[1].Values[3], 9.0);
}

TEST(Blocks, ThatGoOverTheEdgeAreRefused) {
  Project project = HospitalsFromTable();
  EXPECT_THROW(PutBlock(project, 11, 1, BlockOf("1\n2\n")), ModelFault);
  EXPECT_THROW(PutBlock(project, 0, 4, BlockOf("1\t2\n")), ModelFault);
}

TEST(Units, AreAddedWithoutValuesAndRemovedWithThem) {
  Project project = HospitalsFromTable();
  AddUnit(project, "Hospital M");
  EXPECT_EQ(project.Columns[3].Values.back(), std::nullopt);
  RemoveUnits(project, {0, 12});
  EXPECT_EQ(project.Units.size(), 11U);
  EXPECT_EQ(project.Units.front(), "Hospital B");
  EXPECT_EQ(project.Columns[0].Values.front(), 19.0);
}

TEST(CurvePoints, StayBetweenTheirNeighboursAndZeroAndOne) {
  const std::vector<ValuePoint> curve = {{15.0, 0.0}, {37.5, 0.46}, {60.0, 1.0}};
  EXPECT_LT(WithPointMoved(curve, 1, {70.0, 0.5})[1].Score, 60.0);
  EXPECT_GT(WithPointMoved(curve, 1, {3.0, 0.5})[1].Score, 15.0);
  EXPECT_EQ(WithPointMoved(curve, 1, {40.0, 1.7})[1], (ValuePoint{40.0, 1.0}));
  EXPECT_EQ(WithPointMoved(curve, 2, {80.0, -0.3})[2], (ValuePoint{80.0, 0.0}));
}

TEST(CurvePoints, AreAddedInOrderAndAtMostEleven) {
  std::vector<ValuePoint> curve = {{0.0, 0.0}, {10.0, 1.0}};
  for (int i = 1; i <= 9; ++i) curve = WithPointAdded(curve, {10.0 - i, 0.1 * i});
  EXPECT_EQ(curve[1].Score, 1.0);
  EXPECT_THROW(WithPointAdded(curve, {0.5, 0.5}), ModelFault);
  EXPECT_THROW(WithoutPoint({{0.0, 0.0}, {1.0, 1.0}}, 0), ModelFault);
}

TEST(History, GoesBackAndForthAndForgetsWhatWasUndone) {
  Project project = HospitalsFromTable();
  History history(project);
  const Project first = project;
  project.Columns[0].Values[0] = 21.5;
  history.Add(project, "one");
  const Project second = project;
  EXPECT_EQ(history.Undo(), first);
  EXPECT_EQ(history.Redo(), second);
  history.Undo();
  project.Name = "Other";
  history.Add(project, "two");
  EXPECT_FALSE(history.CanRedo());
  EXPECT_EQ(history.UndoText(), "two");
}

TEST(History, KeepsWhatAChangeLeftAloneOnce) {
  Project project = HospitalsFromTable();
  const Snapshot first = SnapshotOf(project, nullptr);
  project.Columns[2].Values[5] = 1.25;
  const Snapshot second = SnapshotOf(project, &first);
  EXPECT_EQ(first.Units, second.Units);
  EXPECT_EQ(first.Columns[0], second.Columns[0]);
  EXPECT_NE(first.Columns[2], second.Columns[2]);
}

}  // namespace
}  // namespace Tarnwise
