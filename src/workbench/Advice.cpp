#include "workbench/Advice.h"

#include "modelfiles/WholeFile.h"
#include "project/ProjectChecks.h"
#include "workbench/Texts.h"

#include <QCoreApplication>

namespace Tarnwise {

namespace {

struct AdviceTr {
  Q_DECLARE_TR_FUNCTIONS(Advice)
};

std::optional<Advice> MissingIn(const Project& project) {
  if (project.Units.empty()) {
    return Advice{AdviceTr::tr("There are no data yet: open a project or a CSV file, or paste a table."), true,
                  PageKind::Data};
  }
  const bool inputs = !ColumnsIn(project, Role::Input).empty();
  const bool outputs = !ColumnsIn(project, Role::Output).empty();
  if (!inputs && !outputs) {
    return Advice{AdviceTr::tr("No column has a role yet: say which columns are inputs and which are outputs."), true,
                  PageKind::Data};
  }
  try {
    CheckForResults(project);
  } catch (const ModelFault& fault) {
    return Advice{FromText(fault.what()), true, PageKind::Data};
  }
  if (!outputs)
    return Advice{AdviceTr::tr("No output yet: every unit counts as making the same."), false, PageKind::Data};
  if (!inputs) return Advice{AdviceTr::tr("No input yet: every unit counts as using the same."), false, PageKind::Data};
  return std::nullopt;
}

}  // namespace

Advice AdviceFor(const Project& project) {
  if (const auto missing = MissingIn(project)) return *missing;
  if (project.Sessions.empty()) {
    return {AdviceTr::tr("No judgments yet: every unit may pick its own weights. Elicit a decision maker's judgments."),
            false, PageKind::Judgments};
  }
  try {
    if (const auto session = SessionInUse(project)) CheckSession(project, *session);
  } catch (const ModelFault& fault) {
    return {FromText(fault.what()), true, PageKind::Judgments};
  }
  return {AdviceTr::tr("Nothing is missing."), false, PageKind::Results};
}

}  // namespace Tarnwise
