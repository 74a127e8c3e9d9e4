#include "workbench/SaveReport.h"

#include "modelfiles/WholeFile.h"
#include "project/Exports.h"
#include "project/ResultsText.h"
#include "workbench/AskForFile.h"
#include "workbench/ReportDocument.h"
#include "workbench/Texts.h"

#include <QtWidgets>

namespace Tarnwise {

namespace {

constexpr const char* kEndings[] = {"html", "pdf", "csv", "R"};  // of the kinds

std::vector<FileKind> KindsFor(std::optional<ReportKind> kind) {
  const QString texts[] = {QObject::tr("Web pages"), QObject::tr("PDF"), QObject::tr("Tables of the results"),
                           QObject::tr("R scripts that check the scores")};
  std::vector<FileKind> kinds;
  for (int i = 0; i < 4; ++i) {
    if (!kind || i == static_cast<int>(*kind)) kinds.push_back({texts[i], QString::fromLatin1(kEndings[i])});
  }
  return kinds;
}

String TextOf(ReportKind kind, const Found& found) {
  switch (kind) {
    case ReportKind::WebPage: return ReportHtml(ReportNow(found));
    case ReportKind::Pdf: return ReportPdf(ReportNow(found));
    case ReportKind::Table: return ResultsCsv(*found.Results);
    case ReportKind::RScript: return RScript(*found.Results);
  }
  return {};
}

}  // namespace

Report ReportNow(const Found& found) {
  return ReportOf(*found.Of, *found.Results, ToText(QDateTime::currentDateTimeUtc().toString(Qt::ISODate)));
}

ReportKind KindOfReport(const QString& path) {
  for (int i = 0; i < 4; ++i) {
    const QString ending = "." + QString::fromLatin1(kEndings[i]);
    if (path.endsWith(ending, Qt::CaseInsensitive)) return static_cast<ReportKind>(i);
  }
  return ReportKind::WebPage;
}

void WriteReportFile(const QString& path, ReportKind kind, const Found& found) {
  const String text = TextOf(kind, found);
  WriteFileAtomically(ToText(path), {text.begin(), text.end()});
}

bool AskAndSaveReport(QWidget* window, std::optional<ReportKind> kind, const Found& found) {
  const QString name = found.Of->Name.empty() ? QObject::tr("report") : FromText(found.Of->Name);
  const QString path = AskForFile(window, QObject::tr("Save report"), name, KindsFor(kind));
  if (path.isEmpty()) return false;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  QString fault;
  try {
    WriteReportFile(path, kind.value_or(KindOfReport(path)), found);
  } catch (const std::exception& reason) {
    fault = QString::fromUtf8(reason.what());
  }
  QApplication::restoreOverrideCursor();
  if (!fault.isEmpty()) QMessageBox::warning(window, QObject::tr("The report was not saved"), fault);
  return fault.isEmpty();
}

}  // namespace Tarnwise
