// The report from the window.
#pragma once

#include "project/Report.h"

#include <functional>

class QString;
class QWidget;

namespace Tarnwise {

// A report as the bytes of a PDF file.
using MakePdf = std::function<String(const Report& report)>;

// Works the results out anew, as `asked` says, and writes their report; by its ending, .pdf or anything else, as PDF or
// HTML. A ModelFault or a Dea::SolverFault where that can't be done; nothing is written then.
void WriteReportFile(const QString& path, const Project& project, const Asked& asked, const MakePdf& makePdf);

// Asks for the file, writes it, and tells what went wrong. True: it is there.
bool AskAndSaveReport(QWidget* window, const Project& project, const Asked& asked, const MakePdf& makePdf);

}  // namespace Tarnwise
