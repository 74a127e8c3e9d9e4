#include "Window.h"
#include "project/ResultsWords.h"
#include "workbench/DataModel.h"
#include "workbench/Edits.h"
#include "workbench/ResultsBars.h"

#include <QAbstractItemModelTester>

namespace Tarnwise {
namespace {

Project WithOddCells() {
  Project project = HospitalsFromTable();
  project.Columns[0].Values[4].reset();
  project.Columns[1].Values[2] = 0.0;
  project.Columns[2].Values[7] = -1.5;
  return project;
}

TEST(DataModel, KeepsTheRulesOfModels) {
  Document document;
  DataModel model(document);
  ColumnsModel columns(document);
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  const QAbstractItemModelTester columnsTester(&columns, QAbstractItemModelTester::FailureReportingMode::Fatal);
  document.Replace(WithOddCells());
  EXPECT_EQ(model.rowCount(), 12);
  EXPECT_EQ(model.columnCount(), 5);
  model.setData(model.index(3, 1), "28,5", Qt::EditRole);
  EXPECT_EQ(document.Data().Columns[0].Values[3], 28.5);
  document.Undo();
  document.Close();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(DataModel, ExplainsMissingZeroAndNegativeCells) {
  Document document;
  const DataModel model(document);
  document.Replace(WithOddCells());
  EXPECT_EQ(model.index(4, 1).data().toString(), "missing");
  EXPECT_TRUE(model.Explained(model.index(4, 1)).startsWith("Hospital E, Doctors: missing."));
  EXPECT_TRUE(model.Explained(model.index(2, 2)).contains("zero"));
  EXPECT_TRUE(model.Explained(model.index(7, 3)).contains("negative"));
  const CellCounts counts = CountCells(document.Data());
  EXPECT_EQ(counts.Missing, 1U);
  EXPECT_EQ(counts.Zero, 1U);
  EXPECT_EQ(counts.Negative, 1U);
  EXPECT_EQ(model.NextParticular({}), model.index(2, 2));
  EXPECT_EQ(model.NextParticular(model.index(7, 3)), model.index(2, 2));
}

TEST(DataModel, HoldsAHundredThousandUnits) {
  Project project;
  DataColumn column;
  column.Name = "Staff";
  for (int i = 0; i < 100000; ++i) {
    project.Units.push_back("Unit " + std::to_string(i));
    column.Values.emplace_back(i + 0.25);
  }
  project.Columns.push_back(column);
  Document document;
  const DataModel model(document);
  document.Replace(std::move(project));
  EXPECT_EQ(model.rowCount(), 100000);
  EXPECT_EQ(model.index(99999, 1).data().toString(), "99999.25");
}

TEST(ColumnsModel, ChangesRolesAndRanges) {
  Document document;
  ColumnsModel model(document);
  document.Replace(HospitalsFromTable());
  QSignalSpy refused(&document, &Document::Refused);
  EXPECT_TRUE(model.setData(model.index(0, ColumnsModel::kWorst), "70", Qt::EditRole));
  EXPECT_EQ(document.Data().Columns[0].Worst, 70.0);
  EXPECT_FALSE(model.setData(model.index(0, ColumnsModel::kBest), "80", Qt::EditRole));
  EXPECT_EQ(refused.count(), 1);
  EXPECT_TRUE(model.setData(model.index(0, ColumnsModel::kRole), static_cast<int>(Role::Unused), Qt::EditRole));
  EXPECT_EQ(model.index(0, ColumnsModel::kRole).data().toString(), "not used");
}

SharedEvaluation Evaluated(const Project& project) {
  return std::make_shared<const Evaluation>(Evaluate(project, AskedOf(project, {}), {}));
}

TEST(ResultsModel, SaysTheSentenceOfTheHospitals) {
  const SharedEvaluation evaluation = Evaluated(JudgedHospitals());
  const QString details = DetailsOf(*evaluation, evaluation->Results.Units[1], {0});
  EXPECT_TRUE(details.contains("between 0.809 and 0.854 efficient")) << details.toStdString();
  EXPECT_TRUE(details.contains("on rank 3–4")) << details.toStdString();
  EXPECT_TRUE(details.contains("Inpatients ≥ 2.00 (0.146)")) << details.toStdString();
  EXPECT_TRUE(details.contains("Better at all of the judged weights: Hospital A.")) << details.toStdString();
}

TEST(ResultsModel, SortsByNumbersAndFilters) {
  ResultsModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  ResultsFilter filter(model);
  model.Show(Evaluated(JudgedHospitals()));
  ASSERT_EQ(model.headerData(3, Qt::Horizontal, Qt::DisplayRole).toString(), "Greatest");
  filter.sort(3, Qt::AscendingOrder);
  for (int row = 1; row < filter.rowCount(); ++row) {
    EXPECT_LE(filter.index(row - 1, 3).data(Qt::UserRole).toDouble(),
              filter.index(row, 3).data(Qt::UserRole).toDouble());
  }
  filter.SetText("hospital b");
  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(filter.index(0, 0).data().toString(), "Hospital B");
  filter.SetText({});
  filter.SetOnlyBest(true);
  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(filter.index(0, 0).data().toString(), "Hospital A");
}

TEST(ResultsModel, FiltersManyUnitsTheSameWay) {
  Project project;
  DataColumn column;
  column.Name = "Staff";
  column.Role = Role::Input;
  column.Worst = 5001.0;
  column.Best = 0.0;
  for (int i = 0; i < 5000; ++i) {
    project.Units.push_back("Unit " + std::to_string(i));
    column.Values.emplace_back(5000.0 - i + 0.25);
  }
  project.Columns.push_back(column);
  ResultsModel model;
  ResultsFilter filter(model);
  model.Show(Evaluated(project));
  filter.sort(1, Qt::AscendingOrder);
  filter.SetText("77");
  ASSERT_EQ(filter.rowCount(), 95);
  EXPECT_EQ(filter.index(0, 0).data().toString(), "Unit 77");
  EXPECT_EQ(filter.index(94, 0).data().toString(), "Unit 4977");
  filter.SetText({});
  EXPECT_EQ(filter.rowCount(), 5000);
}

TEST(ResultsModel, TellsWhenEveryUnitPicksItsOwnWeights) {
  Project project = HospitalsFromTable();
  RemoveUnits(project, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
  EXPECT_EQ(
      SummaryText(*Evaluated(project)),
      "2 of 2 units are efficient without judgments: 4 attributes for 2 units let every unit pick its own weights.");
}

TEST(ResultsModel, SaysWhatIsToBeKnownBesidesByItsKind) {
  Project project = JudgedHospitals();
  project.Columns[0].Values[3] = 0.0;
  project.Columns[1].Values[4].reset();
  project.Sessions[0].Attributes[1].High = 0.0;
  const SharedEvaluation evaluation = Evaluated(project);
  QStringList notes;
  for (const Dea::Note& note : evaluation->Results.Notes) notes += NoteText(*evaluation, note);
  EXPECT_TRUE(notes.contains("Inpatients: the high bound is zero and counts as none."))
      << notes.join('\n').toStdString();
  EXPECT_TRUE(notes.join('\n').contains("Doctors is zero for Hospital D: as long as"))
      << notes.join('\n').toStdString();
  ASSERT_EQ(evaluation->Results.LeftOut.size(), 1U);
  EXPECT_EQ(ReasonText(*evaluation, evaluation->Results.LeftOut[0]), "no value in column Nurses");
}

TEST(ResultsModel, ShowsDistancesOfTheValueFormAsFarAsTheyHaveDigits) {
  Project project = JudgedHospitals();
  project.Use = ProjectUse();
  project.Use->Form = ScoreForm::Value;
  const SharedEvaluation evaluation = Evaluated(project);
  ResultsModel model;
  model.Show(evaluation);
  const auto head = [&model](int column) {
    return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  };
  ASSERT_EQ(head(3), "Distance");
  for (int row = 0; row < model.rowCount(); ++row) {
    EXPECT_EQ(ToText(model.index(row, 3).data().toString()),
              DistanceText(evaluation->Results.Units[static_cast<std::size_t>(row)].Distance));
  }
}

TEST(ResultsBars, OfRanksHaveThoseSeenBelowWhereTheyAreFewer) {
  const SharedEvaluation evaluation = Evaluated(JudgedHospitals());
  ASSERT_TRUE(HasRanks(*evaluation));
  Dea::UnitResult unit = evaluation->Results.Units[1];
  unit.Ranks = Dea::RankRange{3, 7};
  unit.RanksSeen = Dea::RankRange{4, 6};
  const BarRow row = BarRowOf(*evaluation, unit, BarKind::Ranks);
  EXPECT_EQ(row.First.Low, 3.0);
  EXPECT_EQ(row.First.High, 7.0);
  EXPECT_EQ(row.Second.Low, 4.0);
  EXPECT_FALSE(row.Second.IsNothing);
  EXPECT_EQ(row.Value, "ranks 3–7, seen 4–6");
  unit.RanksSeen = unit.Ranks;
  EXPECT_TRUE(BarRowOf(*evaluation, unit, BarKind::Ranks).Second.IsNothing);
}

}  // namespace
}  // namespace Tarnwise
