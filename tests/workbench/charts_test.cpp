#include "Window.h"
#include "support/FaultOf.h"
#include "workbench/charts/BarChart.h"
#include "workbench/charts/CurveChart.h"

#include <QtSvg/QSvgRenderer>

namespace Tarnwise {
namespace {

BarRow RowOf(const char* name, double low, double high) {
  BarRow row;
  row.Name = name;
  row.First = {low, high, std::nullopt, false};
  return row;
}

TEST(Charts, AreSavedAsPictureDrawingAndDocument) {
  const QTemporaryDir folder;
  BarChart chart(nullptr);
  chart.resize(400, 300);
  chart.SetTitle("Hospitals");
  chart.SetRows({RowOf("A", 0.5, 0.75), RowOf("B", 0.25, 1.0)});
  chart.show();
  QCoreApplication::processEvents();
  const QImage before = chart.toPixmap(400, 300).toImage();
  for (const char* const name : {"chart.png", "chart.svg", "chart.pdf"}) {
    chart.SavePicture(folder.filePath(name));
  }
  const QImage png(folder.filePath("chart.png"));
  EXPECT_EQ(png.size(), QSize(1280, 720));
  EXPECT_TRUE(QSvgRenderer(folder.filePath("chart.svg")).isValid());
  QFile pdf(folder.filePath("chart.pdf"));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_EQ(pdf.read(5), "%PDF-");
  EXPECT_EQ(chart.toPixmap(400, 300).toImage(), before);
}

TEST(Charts, TellWhyTheyCannotBeSavedWhateverTheKind) {
  BarChart chart(nullptr);
  chart.SetRows({RowOf("A", 0.5, 0.75)});
  for (const String path : {"/nowhere/chart.png", "/nowhere/chart.svg", "/nowhere/chart.pdf"}) {
    EXPECT_EQ(FaultOf([&] { chart.SavePicture(FromText(path)); }),
              "can't write " + path + ": No such file or directory");
  }
}

TEST(BarChart, TellsTheRowsInViewOnly) {
  BarChart chart(nullptr);
  chart.resize(300, 230);
  std::vector<BarRow> rows;
  for (int i = 0; i < 100000; ++i) rows.push_back(RowOf("unit", 0.25, 0.5));
  chart.StandBeside(30, 20, 0, 0);
  chart.SetRows(std::move(rows));
  EXPECT_EQ(chart.Items().size(), 10U);
}

TEST(BarChart, ARowIsChosenByAClickOnIt) {
  BarChart chart(nullptr);
  chart.resize(300, 230);
  chart.StandBeside(30, 20, 0, 0);
  chart.SetRows({RowOf("A", 0.5, 0.75), RowOf("B", 0.25, 1.0), RowOf("C", 0.3, 0.9)});
  chart.show();
  QCoreApplication::processEvents();
  QSignalSpy clicked(&chart, &BarChart::RowClicked);
  QTest::mouseClick(&chart, Qt::LeftButton, Qt::NoModifier, QPoint(100, 30 + 50));
  ASSERT_EQ(clicked.count(), 1);
  EXPECT_EQ(clicked[0][0].toInt(), 2);
  QTest::keyClick(&chart, Qt::Key_Up);
  EXPECT_EQ(chart.Selected(), 1);
}

TEST(CurveFalls, AreFoundBetweenPointsThatRise) {
  // Akima's curve overshoots before a plateau that is hardly one.
  const ColumnScale scale{0.0, 10.0, {{0, 0}, {4, 0.1}, {5, 0.9}, {6, 0.9001}, {10, 1.0}}};
  const auto falls = FallsOf(scale);
  for (const auto& [from, to] : falls) EXPECT_LT(from, to);
  EXPECT_TRUE(FallsOf({15.0, 60.0, {}}).empty());
  const auto fallen = FallsOf({0.0, 10.0, {{0, 0}, {5, 1.0}, {10, 0.5}}});
  ASSERT_EQ(fallen.size(), 1U);
  EXPECT_NEAR(fallen[0].second, 10.0, 0.03);
}

}  // namespace
}  // namespace Tarnwise
