#include "program/ReportCommand.h"

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "program/OutputFile.h"
#include "program/Watched.h"
#include "project/ProjectFile.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <ostream>

namespace Tarnwise {

namespace {

bool EndsIn(const String& path, const String& ending) {
  if (path.size() <= ending.size()) return false;
  String end = path.substr(path.size() - ending.size());
  std::transform(end.begin(), end.end(), end.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return end == ending;
}

bool IsPdf(const String& path) { return EndsIn(path, ".pdf"); }

void CheckOutput(const ReportOptions& options) {
  if (!IsPdf(options.Output) && !EndsIn(options.Output, ".html")) {
    throw ModelFault(options.Output + ": a report is a file that ends in .html or .pdf");
  }
  RefuseSameFile(options.Output, options.Project);
}

Report MakeReport(const ReportOptions& options, const String& now, const Console& console) {
  const Project project = ReadProject(options.Project);
  try {
    return ReportOf(project, EvaluateWatched(project, AskedOf(project, WishesOf(options.Wishes)), console), now);
  } catch (const ModelFault& fault) {
    throw ModelFault(options.Project + ": " + fault.what());
  }
}

}  // namespace

CLI::App* AddReportCommand(CLI::App& app, ReportOptions& options) {
  CLI::App* const report = app.add_subcommand("report", "Write a report of a project's results");
  report->add_option("PROJECT", options.Project, "Project file (.tarnwise)")->required();
  report->add_option("FILE", options.Output, "Report to write (.html or .pdf)")->required();
  AddWishOptions(*report, options.Wishes);
  return report;
}

int WriteReport(const ReportOptions& options, const String& now, const MakePdf& makePdf, const Console& console) {
  std::optional<Report> report;
  try {
    CheckOutput(options);
    (void)WishesOf(options.Wishes);  // told before a file is read
    report = MakeReport(options, now, console);
  } catch (const ModelFault& fault) {
    console.Err << fault.what() << "\n";
    return kRefused;
  } catch (const Dea::SolverFault& fault) {
    console.Err << options.Project << ": the solver failed, and no report is written. " << fault.what() << "\n";
    return kFailed;
  }
  try {
    WriteOutput(options.Output, IsPdf(options.Output) ? makePdf(*report) : ReportHtml(*report), console.Out);
    return kDone;
  } catch (const ModelFault& fault) {
    console.Err << fault.what() << "\n";
    return kFailed;
  }
}

}  // namespace Tarnwise
