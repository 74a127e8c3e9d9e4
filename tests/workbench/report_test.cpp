// The report from the window: its page, its files, and pages of paper that end where they should.
#include "Window.h"
#include "support/FaultOf.h"
#include "workbench/KeepTogether.h"
#include "workbench/ReportDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QTextTable>

namespace Tarnwise {
namespace {

Found FoundOf(const Project& project) {
  const auto shared = std::make_shared<const Project>(project);
  return {shared, std::make_shared<const Evaluation>(Evaluate(project, AskedOf(project, {}), {}))};
}

String BytesOf(const QString& path) {
  const std::vector<char> bytes = FileBytes(ToText(path));
  return {bytes.begin(), bytes.end()};
}

TEST(WindowReport, IsWrittenInEachOfItsKinds) {
  const QTemporaryDir folder;
  const Found found = FoundOf(JudgedHospitals());
  const auto written = [&](const char* name) {
    const QString path = folder.filePath(name);
    WriteReportFile(path, KindOfReport(path), found);
    return BytesOf(path);
  };
  EXPECT_NE(written("report.html").find("<td>0.809 - 0.854</td>"), String::npos);
  EXPECT_EQ(written("report.PDF").substr(0, 5), "%PDF-");
  EXPECT_NE(written("results.csv").find("Hospital B,"), String::npos);
  EXPECT_NE(written("check.R").find("dea.dual"), String::npos);
}

TEST(WindowReport, ThatCannotBeWrittenSaysWhy) {
  const Found found = FoundOf(JudgedHospitals());
  EXPECT_EQ(FaultOf([&] { WriteReportFile("/nowhere/report.html", ReportKind::WebPage, found); }),
            "can't write /nowhere/report.html: No such file or directory");
}

TEST(WindowReport, WithoutResultsSaysSo) {
  MainWindow window;
  window.show();
  QString said;
  AnswerNext("OK", [&said](QDialog& dialog) { said = qobject_cast<QMessageBox*>(&dialog)->text(); });
  for (QAction* const action : window.menuBar()->actions().front()->menu()->actions()) {
    if (action->text().remove(QLatin1Char('&')).startsWith("Save report")) action->trigger();
  }
  EXPECT_EQ(said, "There are no results to report yet.");
}

TEST(ReportPage, ShowsTheReportOfTheResultsAndSavesIt) {
  const QTemporaryDir folder;
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  open.Window.ShowPage(PageKind::Report);
  const QTextBrowser& preview = Find<QTextBrowser>(open.Window, "reportPreview");
  EXPECT_TRUE(preview.toPlainText().contains("0.809 - 0.854"));
  Find<QDoubleSpinBox>(open.Window, "widen").setValue(2.0);
  ASSERT_TRUE(AwaitResults(open.Window));
  EXPECT_TRUE(preview.toPlainText().contains("intervals widened 2.000 times"));
  EXPECT_FALSE(preview.toPlainText().contains("0.809 - 0.854"));
  const QString path = folder.filePath("report.html");
  AnswerNext("Save", [&path](QDialog& dialog) { Find<QLineEdit>(dialog, "fileNameEdit").setText(path); });
  QTest::mouseClick(&Find<QPushButton>(open.Window, "saveWebPage"), Qt::LeftButton);
  EXPECT_NE(BytesOf(path).find("widened 2.000 times"), String::npos);
}

TEST(ReportPage, TellsWhyThereIsNone) {
  Project project = JudgedHospitals();
  project.Columns[1].Values[2] = -3.17;
  OpenWindow open(project);
  open.Window.ShowPage(PageKind::Report);
  ASSERT_TRUE(QTest::qWaitFor([&open] { return !open.Window.Results().IsBusy(); }, kPatience));
  EXPECT_TRUE(Find<QLabel>(open.Window, "reportMessage").text().contains("Nurses"));
  EXPECT_FALSE(Find<QPushButton>(open.Window, "saveWebPage").isVisible());
  EXPECT_TRUE(Find<QTextBrowser>(open.Window, "reportPreview").toPlainText().isEmpty());
}

double PageOf(const QTextDocument& document, const QTextBlock& block) {
  return std::floor(document.documentLayout()->blockBoundingRect(block).top() / document.pageSize().height());
}

// With so many lines above it that the heading comes to the last line of the first page.
TEST(Pages, DoNotEndWithAHeadingWhateverStandsAboveIt) {
  int moved = 0;
  for (int lines = 10; lines < 40; ++lines) {
    QString html;
    for (int i = 0; i < lines; ++i) html += "<p>Line</p>";
    html +=
        "<h2>Heading</h2><p><b>Caption</b></p><table><thead><tr><th>Head</th></tr></thead>"
        "<tr><td>0.375</td></tr><tr><td>0.625</td></tr></table>";
    QTextDocument document;
    document.setHtml(html);
    document.setPageSize(QSizeF(400, 600));
    const auto block = [&document](const char* text) { return document.find(QLatin1String(text)).block(); };
    const bool alone = PageOf(document, block("Heading")) != PageOf(document, block("0.375"));
    KeepHeadingsWithWhatFollows(document);
    ASSERT_EQ(PageOf(document, block("Heading")), PageOf(document, block("Caption"))) << lines;
    ASSERT_EQ(PageOf(document, block("Caption")), PageOf(document, block("0.375"))) << lines;
    if (alone) ++moved;
  }
  EXPECT_GT(moved, 1);
}

}  // namespace
}  // namespace Tarnwise
