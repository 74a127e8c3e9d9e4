#include "workbench/SaveReport.h"

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "workbench/Texts.h"

#include <QtWidgets>

namespace Tarnwise {

namespace {

bool IsPdf(const QString& path) { return path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive); }

String Now() { return ToText(QDateTime::currentDateTimeUtc().toString(Qt::ISODate)); }

}  // namespace

void WriteReportFile(const QString& path, const Project& project, const Asked& asked, const MakePdf& makePdf) {
  const Report report = ReportOf(project, Evaluate(project, asked, {}), Now());
  const String bytes = IsPdf(path) ? makePdf(report) : ReportHtml(report);
  WriteFileAtomically(ToText(path), {bytes.begin(), bytes.end()});
}

bool AskAndSaveReport(QWidget* window, const Project& project, const Asked& asked, const MakePdf& makePdf) {
  const QString name = project.Name.empty() ? QObject::tr("report") : FromText(project.Name);
  QString kinds = QObject::tr("Web pages (*.html)");
  if (makePdf) kinds += QObject::tr(";;PDF (*.pdf)");
  QString kind;
  QString path = QFileDialog::getSaveFileName(window, QObject::tr("Save report"), name + ".html", kinds, &kind);
  if (path.isEmpty()) return false;
  if (QFileInfo(path).suffix().isEmpty()) path += kind.contains("pdf") ? ".pdf" : ".html";
  QApplication::setOverrideCursor(Qt::WaitCursor);
  QString fault;
  try {
    WriteReportFile(path, project, asked, makePdf);
  } catch (const std::exception& reason) {
    fault = QString::fromUtf8(reason.what());
  }
  QApplication::restoreOverrideCursor();
  if (!fault.isEmpty()) QMessageBox::warning(window, QObject::tr("The report was not saved"), fault);
  return fault.isEmpty();
}

}  // namespace Tarnwise
