#include "project/ImportSession.h"

#include "modelfiles/WholeFile.h"
#include "project/ImportModel.h"
#include "project/ProjectChecks.h"
#include "project/Shown.h"

#include <algorithm>

namespace Tarnwise {

namespace {

std::vector<String> UsedNames(const Project& project) {
  std::vector<String> names;
  for (const DataColumn& column : project.Columns) {
    if (column.Role != Role::Unused) names.push_back(column.Name);
  }
  return names;
}

bool Holds(const std::vector<String>& names, const String& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

const char* KindOf(Role role) {
  return role == Role::Unused ? "not used" : role == Role::Input ? "an input" : "an output";
}

// The same attribute has to be the same thing here: the judgments of inputs mean nothing for outputs.
void CheckRoles(const Project& project, const Project& model) {
  for (const DataColumn& judged : model.Columns) {
    const DataColumn* const column = FindColumn(project, judged.Name);
    if (judged.Role == Role::Unused || column == nullptr || column->Role == judged.Role) continue;
    throw ModelFault(Shown(judged.Name) + " is " + KindOf(judged.Role) + " in the model, but here it is " +
                     KindOf(column->Role));
  }
}

void CheckReferences(const Project& project, const JudgmentSession& session) {
  for (const String& reference : {session.BenefitReference, session.CostReference}) {
    if (reference.empty() || FindColumn(project, reference) != nullptr) continue;
    throw ModelFault("the model judges against " + Shown(reference) +
                     ", and there is no such column here; the inputs " + "and outputs here are " +
                     Enumerated(UsedNames(project)));
  }
}

// What one of them has and the other one lacks.
void TellDifferences(const Project& project, const Project& model, std::vector<String>& notes) {
  const std::vector<String> here = UsedNames(project);
  const std::vector<String> there = UsedNames(model);
  std::vector<String> gone;
  std::vector<String> added;
  for (const String& name : there) {
    if (!Holds(here, name)) gone.push_back(ShownName(name));
  }
  for (const String& name : here) {
    if (!Holds(there, name)) added.push_back(ShownName(name));
  }
  if (!gone.empty())
    notes.push_back("Judged in the model, but no column here, so passed over: " + Enumerated(gone) + ".");
  if (!added.empty()) notes.push_back("Not in the model, so not judged: " + Enumerated(added) + ".");
}

}  // namespace

ImportedSession ImportSession(const Project& project, const WizardData& data, const String& points) {
  ImportedModel model = ImportScalesAndJudgments(data, points);
  if (model.Project.Sessions.empty()) {
    throw ModelFault(model.Notes.empty() ? String("the model has no stored judgments") : model.Notes.front());
  }
  ImportedSession imported{std::move(model.Project.Sessions.front()), std::move(model.Notes)};
  const std::vector<String> here = UsedNames(project);
  CheckReferences(project, imported.Session);
  CheckRoles(project, model.Project);
  auto& attributes = imported.Session.Attributes;
  attributes.erase(std::remove_if(attributes.begin(), attributes.end(),
                                  [&](const SessionAttribute& attribute) { return !Holds(here, attribute.Name); }),
                   attributes.end());
  if (attributes.empty()) throw ModelFault("none of the model's attributes is an input or an output here");
  if (here != UsedNames(model.Project)) {
    if (!imported.Session.Points.empty()) {
      imported.Notes.emplace_back("The points of the trade-offs are left out: the attributes are not the same.");
    }
    imported.Session.Points.clear();
  }
  TellDifferences(project, model.Project, imported.Notes);
  Project checked = project;
  checked.Sessions = {imported.Session};
  CheckSession(checked, 0);
  return imported;
}

}  // namespace Tarnwise
