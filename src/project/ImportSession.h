// Judgments that are stored in a decision model, as a session of a project.
#pragma once

#include "project/Project.h"

namespace Tarnwise {

struct WizardData;

struct ImportedSession {
  JudgmentSession Session;
  std::vector<String> Notes;  // what of the model did not go into the session, and what it does not judge
};

// The model's attributes are the project's inputs and outputs of the same names, in any order; the model's scales come
// along, so the ratios keep their meaning. Points, the content of the model's file of trade-off points or empty, are
// kept where the attributes are the same in the same order. `project` stays as it is.
// A ModelFault where the model has no stored judgments, judges with a reference that is no such column here, has an
// attribute of the other kind, or judges nothing that the project has; and what ImportScalesAndJudgments refuses.
ImportedSession ImportSession(const Project& project, const WizardData& data, const String& points);

}  // namespace Tarnwise
