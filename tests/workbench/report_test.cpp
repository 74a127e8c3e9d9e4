// The report from the window.
#include "Window.h"

namespace Tarnwise {
namespace {

class WindowReport : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
  static String TextOf(const QString& path) {
    const std::vector<char> bytes = FileBytes(ToText(path));
    return {bytes.begin(), bytes.end()};
  }
  static Asked JudgedFirst() {
    Asked asked;
    asked.Session = 0;
    return asked;
  }
  static String FakePdf(const Report& report) { return "%PDF of " + report.Title; }

 private:
  QTemporaryDir folder_;
};

TEST_F(WindowReport, IsHtmlOrPdfByItsEnding) {
  WriteReportFile(Path("report.html"), JudgedHospitals(), JudgedFirst(), FakePdf);
  EXPECT_NE(TextOf(Path("report.html")).find("<td>0.809 - 0.854</td>"), String::npos);
  WriteReportFile(Path("report.PDF"), JudgedHospitals(), JudgedFirst(), FakePdf);
  EXPECT_EQ(TextOf(Path("report.PDF")), "%PDF of Hospitals");
}

TEST_F(WindowReport, OfWhatCannotBeWorkedOutWritesNothing) {
  Project project = JudgedHospitals();
  project.Columns[1].Values[2] = -3.17;
  EXPECT_THROW(WriteReportFile(Path("report.html"), project, JudgedFirst(), FakePdf), ModelFault);
  EXPECT_FALSE(QFileInfo::exists(Path("report.html")));
  EXPECT_THROW(WriteReportFile(Path("nowhere/report.html"), JudgedHospitals(), JudgedFirst(), FakePdf), ModelFault);
}

TEST_F(WindowReport, WithoutResultsSaysSo) {
  MainWindow window;
  window.show();
  QString said;
  AnswerNext("OK", [&said](QDialog& dialog) { said = qobject_cast<QMessageBox*>(&dialog)->text(); });
  for (QAction* const action : window.menuBar()->actions().front()->menu()->actions()) {
    if (action->text().remove(QLatin1Char('&')).startsWith("Save report")) action->trigger();
  }
  EXPECT_EQ(said, "There are no results to report yet.");
}

}  // namespace
}  // namespace Tarnwise
