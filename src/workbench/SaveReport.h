// Results as files for other people and programs.
#pragma once

#include "project/Report.h"
#include "workbench/ResultsModel.h"

class QWidget;

namespace Tarnwise {

// What was computed, and of what.
struct Found {
  std::shared_ptr<const Project> Of;
  SharedEvaluation Results;  // null: nothing yet
};

enum class ReportKind { WebPage, Pdf, Table, RScript };

// By its ending; a web page for any that is not known.
ReportKind KindOfReport(const QString& path);

// Writes the report, the results as CSV, or the script that checks them. A ModelFault where that can't be done; the
// file is as it was then.
void WriteReportFile(const QString& path, ReportKind kind, const Found& found);

// Asks for the file, one of that kind or, without it, of any; writes it and tells what went wrong. True: it is there.
bool AskAndSaveReport(QWidget* window, std::optional<ReportKind> kind, const Found& found);

// The report as it would be written now.
Report ReportNow(const Found& found);

}  // namespace Tarnwise
