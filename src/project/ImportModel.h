// A project made of a decision model: its alternatives become units, its attributes columns, and what was judged in it
// last a session.
#pragma once

#include "project/Project.h"

namespace Tarnwise {

struct WizardData;

struct ImportedModel {
  struct Project Project;
  std::vector<String> Notes;  // what of the model did not go into the project, a sentence each
};

// Benefits become outputs, costs inputs, all other attributes unused columns, each with its performance range and
// curve. A score that the model lacks is missing. Stored judgments of the direct approach have the basis Range, those
// of the trade-offs Scale; the session copies all scales. The cross ratio counts as judged unless the model holds it as
// an Integer, as it does until somebody enters one. Without the attributes' references there is no session, but a note.
// Points is the content of the model's file of trade-off points, JSON, or empty.
// A ModelFault names the attribute or alternative without a name, a curve's point that is no number, and what
// CheckRecords names.
ImportedModel ImportModel(const WizardData& data, const String& points);

// The same of a model that need not have alternatives: without units.
ImportedModel ImportScalesAndJudgments(const WizardData& data, const String& points);

}  // namespace Tarnwise
