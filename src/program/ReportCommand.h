// The command `tarnwise report`.
#pragma once

#include "program/Console.h"
#include "program/WishOptions.h"
#include "project/Report.h"

#include <functional>

namespace Tarnwise {

struct ReportOptions {
  String Project;
  String Output;  // ends in .html or .pdf
  WishOptions Wishes;
};

CLI::App* AddReportCommand(CLI::App& app, ReportOptions& options);

// A report as the bytes of a PDF file. A ModelFault where this build can make none.
using MakePdf = std::function<String(const Report& report)>;

// Writes the report, whole or not at all; `now` is the time that stands in it. Returns the exit status: 2 for what
// can't be computed with or is no kind of report, with the reason in Err; 1 when the solver or a file failed. Where the
// user wants an end nothing is written, and it throws Dea::Cancelled.
int WriteReport(const ReportOptions& options, const String& now, const MakePdf& makePdf, const Console& console);

}  // namespace Tarnwise
