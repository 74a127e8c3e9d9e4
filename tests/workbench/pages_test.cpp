#include "Window.h"
#include "workbench/DataModel.h"
#include "workbench/charts/BarChart.h"
#include "workbench/charts/CurveChart.h"

namespace Tarnwise {
namespace {

void Activate(QWidget& window) {
  window.activateWindow();
  QApplication::setActiveWindow(&window);
  QCoreApplication::processEvents();
}

TEST(Window, SaysWhatIsMissing) {
  MainWindow window;
  window.show();
  QLabel& advice = Find<QLabel>(window, "advice");
  EXPECT_TRUE(advice.text().startsWith("Missing: There are no data yet"));
  Project project = JudgedHospitals();
  project.Sessions.clear();
  window.Work().Replace(project);
  EXPECT_TRUE(advice.text().startsWith("No judgments yet"));
  window.Work().Edit("roles", [](Project& changed) {
    for (DataColumn& column : changed.Columns) column.Role = Role::Unused;
  });
  EXPECT_TRUE(advice.text().startsWith("Missing: No column has a role yet"));
  window.Work().Undo();
  EXPECT_TRUE(advice.text().startsWith("No judgments yet"));
}

TEST(Window, GoesToItsPagesByKeys) {
  OpenWindow open;
  Activate(open.Window);
  QTabWidget& pages = Find<QTabWidget>(open.Window, "pages");
  QTest::keyClick(&open.Window, Qt::Key_4, Qt::ControlModifier);
  EXPECT_EQ(pages.currentIndex(), 3);
  QTest::keyClick(&open.Window, Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(pages.currentIndex(), 1);
}

TEST(DataPage, CellsAreTypedPastedAndUndone) {
  OpenWindow open;
  Activate(open.Window);
  QTableView& table = Find<QTableView>(open.Window, "dataTable");
  table.setFocus();
  table.setCurrentIndex(table.model()->index(2, 1));
  QTest::keyClick(&table, Qt::Key_F2);
  QWidget* const editor = QApplication::focusWidget();
  ASSERT_NE(editor, &table);
  QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(editor, "31,5");
  QTest::keyClick(editor, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(open.Window.Work().Data().Columns[0].Values[2], 31.5);
  QGuiApplication::clipboard()->setText("1\t2\n3\t\n");
  table.setCurrentIndex(table.model()->index(0, 3));
  QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(open.Window.Work().Data().Columns[2].Values[1], 3.0);
  EXPECT_EQ(open.Window.Work().Data().Columns[3].Values[1], std::nullopt);
  QTest::keyClick(&open.Window, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&open.Window, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(open.Window.Work().Data(), JudgedHospitals());
}

TEST(DataPage, WrongCellsAreRefusedWithTheReason) {
  OpenWindow open;
  QTableView& table = Find<QTableView>(open.Window, "dataTable");
  AnswerNext("OK", [](QDialog& dialog) {
    EXPECT_TRUE(static_cast<QMessageBox&>(dialog).text().contains("\"many\" is no number"));
  });
  table.model()->setData(table.model()->index(0, 1), "many");
  EXPECT_EQ(open.Window.Work().Data().Columns[0].Values[0], 20.0);
}

TEST(DataPage, ARoleIsChosenByKeys) {
  OpenWindow open;
  Activate(open.Window);
  QTableView& columns = Find<QTableView>(open.Window, "columnsTable");
  columns.setFocus();
  const QModelIndex role = columns.model()->index(1, ColumnsModel::kRole);
  columns.setCurrentIndex(role);
  columns.edit(role);
  auto* const box = columns.findChild<QComboBox*>("roleEditor");
  ASSERT_NE(box, nullptr);
  QTest::keyClick(box, Qt::Key_End);
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(open.Window.Work().Data().Columns[1].Role, Role::Unused);
}

TEST(AttributesPage, APointIsDraggedAndMovedByKeysAndTyped) {
  OpenWindow open;
  Activate(open.Window);
  open.Window.ShowPage(PageKind::Attributes);
  QCoreApplication::processEvents();
  CurveChart& chart = Find<CurveChart>(open.Window, "curveChart");
  QTest::mouseClick(&Find<QPushButton>(open.Window, "addPoint"), Qt::LeftButton);
  const auto curve = [&open] { return open.Window.Work().Data().Columns[0].Curve; };
  ASSERT_EQ(curve().size(), 3U);
  EXPECT_NEAR(curve()[1].Value, 0.5, 1e-9);
  const QPoint at = chart.PixelOf(1).toPoint();
  QTest::mousePress(&chart, Qt::LeftButton, Qt::NoModifier, at);
  QTest::mouseMove(&chart, at + QPoint(20, -30));
  QTest::mouseMove(&chart, at + QPoint(30, -40));
  QTest::mouseRelease(&chart, Qt::LeftButton, Qt::NoModifier, at + QPoint(30, -40));
  EXPECT_GT(curve()[1].Score, 38.0);
  EXPECT_GT(curve()[1].Value, 0.55);
  const ValuePoint dragged = curve()[1];
  chart.setFocus();
  QTest::keyClick(&chart, Qt::Key_Down);
  EXPECT_NEAR(curve()[1].Value, dragged.Value - 0.01, 1e-12);
  QTest::keyClick(&chart, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_NEAR(curve()[1].Value, dragged.Value - 0.11, 1e-12);
  QTableWidget& points = Find<QTableWidget>(open.Window, "curvePoints");
  points.item(1, 1)->setText("0,25");
  EXPECT_EQ(curve()[1].Value, 0.25);
  QTest::keyClick(&chart, Qt::Key_Delete);
  EXPECT_EQ(curve().size(), 2U);
}

TEST(AttributesPage, TellsWhereACurveFalls) {
  Project project = JudgedHospitals();
  project.Columns[0].Curve = {{15.0, 0.0}, {37.5, 0.9}, {60.0, 0.55}};
  OpenWindow open(project);
  EXPECT_TRUE(Find<QLabel>(open.Window, "curveNotes").text().contains("It falls from"));
}

TEST(JudgmentsPage, SaysEachJudgmentInOwnUnits) {
  OpenWindow open;
  QTableWidget& table = Find<QTableWidget>(open.Window, "judgments");
  ASSERT_EQ(table.rowCount(), 4);
  EXPECT_EQ(table.item(0, 1)->text(), "3 – 4.09 times Nurses");
  EXPECT_EQ(table.item(0, 2)->text(), "1 Doctors = 14.583 .. 19.882 Nurses");
  EXPECT_EQ(table.item(1, 1)->text(), "reference");
  const auto& rows = Find<BarChart>(open.Window, "intervalChart").Rows();
  EXPECT_EQ(rows[0].First.Low, 3.0);
  EXPECT_EQ(rows[0].First.High, 4.09);
}

TEST(JudgmentsPage, ComparesTwoSessions) {
  Project project = JudgedHospitals();
  project.Sessions.push_back(HospitalsSession());
  project.Sessions[1].Attributes[0].Judged = false;
  project.Sessions[1].Attributes[1].High = 3.25;
  OpenWindow open(project);
  EXPECT_EQ(Find<QTableWidget>(open.Window, "judgments").item(0, 1)->text(), "not judged");
  Find<QComboBox>(open.Window, "compare").setCurrentIndex(1);
  const auto& rows = Find<BarChart>(open.Window, "intervalChart").Rows();
  EXPECT_TRUE(rows[0].First.IsNothing);
  EXPECT_EQ(rows[0].Second.High, 4.09);
  EXPECT_EQ(rows[3].First.High, 3.25);
}

TEST(AttributesPage, ALongDescriptionIsSeenFromItsBeginning) {
  OpenWindow open;
  open.Window.ShowPage(PageKind::Attributes);
  open.Window.Work().Edit(QStringLiteral("Description"), [](Project& project) {
    for (DataColumn& column : project.Columns)
      column.Description = "Posts, full-time equivalents, at the end of the year";
  });
  const QLineEdit& description = Find<QLineEdit>(open.Window, "description");
  ASSERT_EQ(description.text(), QStringLiteral("Posts, full-time equivalents, at the end of the year"));
  EXPECT_EQ(description.cursorPosition(), 0);
}

TEST(JudgmentsPage, ANoteIsTypedAndKept) {
  OpenWindow open;
  Activate(open.Window);
  open.Window.ShowPage(PageKind::Judgments);
  QLineEdit& note = Find<QLineEdit>(open.Window, "note");
  note.setFocus();
  QTest::keyClicks(&note, "First try");
  QTest::keyClick(&note, Qt::Key_Return);
  EXPECT_EQ(open.Window.Work().Data().Sessions[0].Note, "First try");
}

TEST(ResultsPage, TableChartAndUnitAreLinked) {
  OpenWindow open;
  Activate(open.Window);
  open.Window.ShowPage(PageKind::Results);
  ASSERT_TRUE(AwaitResults(open.Window));
  QTableView& table = Find<QTableView>(open.Window, "results");
  BarChart& chart = Find<BarChart>(open.Window, "rangeChart");
  QTest::mouseClick(&chart, Qt::LeftButton, Qt::NoModifier, chart.Items()[1].Place.center());
  EXPECT_EQ(table.currentIndex().row(), 1);
  EXPECT_TRUE(Find<QTextBrowser>(open.Window, "details").toPlainText().contains("between 0.809 and 0.854 efficient"));
  table.setFocus();
  QTest::keyClick(&table, Qt::Key_Down);
  EXPECT_EQ(chart.Selected(), 2);
  QTest::keyClicks(&Find<QLineEdit>(open.Window, "find"), "tal K");
  QCoreApplication::processEvents();
  EXPECT_EQ(chart.Rows().size(), 1U);
  EXPECT_EQ(chart.Rows()[0].Name, "Hospital K");
}

TEST(ResultsPage, WideningTheIntervalsWidensTheRanges) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  const Dea::UnitResult before = open.Window.Results().Shown()->Results.Units[1];
  Find<QDoubleSpinBox>(open.Window, "widen").setValue(2.0);
  ASSERT_TRUE(AwaitResults(open.Window));
  const Dea::UnitResult after = open.Window.Results().Shown()->Results.Units[1];
  EXPECT_GT(*after.Max, *before.Max);
  EXPECT_LT(*after.Min, *before.Min);
}

TEST(ResultsPage, ComputesAnewWhatIsAskedFor) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  QComboBox& form = Find<QComboBox>(open.Window, "form");
  open.Window.ShowPage(PageKind::Results);
  form.setFocus();
  QTest::keyClick(&form, Qt::Key_Down);
  ASSERT_TRUE(AwaitResults(open.Window));
  EXPECT_EQ(open.Window.Results().Shown()->How.Form, ScoreForm::Value);
  EXPECT_EQ(open.Window.Work().Data().Use->Form, ScoreForm::Value);
  open.Window.Work().Undo();
  ASSERT_TRUE(AwaitResults(open.Window));
  EXPECT_EQ(open.Window.Results().Shown()->How.Form, ScoreForm::Ratio);
}

TEST(ResultsPage, TellsWhyThereAreNone) {
  Project project = JudgedHospitals();
  project.Columns[0].Values[2] = -4.0;
  OpenWindow open(project);
  ASSERT_TRUE(QTest::qWaitFor([&open] { return !open.Window.Results().IsBusy(); }, kPatience));
  EXPECT_TRUE(Find<QLabel>(open.Window, "summary").text().contains("Doctors"));
  EXPECT_EQ(open.Window.Results().Shown(), nullptr);
}

}  // namespace
}  // namespace Tarnwise
