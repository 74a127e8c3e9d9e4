// Small models for tests, and files of them.
#pragma once

#include "model/Groups.h"
#include "support/TemporaryFolder.h"

#include <utility>
#include <vector>

namespace Tarnwise {

// A model of these attributes, by ascending id: scores 0 to 100, rising value curves, nothing judged before.
WizardData ModelOf(const std::vector<std::pair<String, Group>>& attributes);

// So many attributes of each group, the benefit group's first: "Benefit 0", "Benefit 1", ..., "Cost 0", ...
WizardData ModelOf(int benefits, int costs);

// Stores judgments in the model as an earlier run would have left them; weights by ascending id.
void StoreJudgments(WizardData& model, const String& type, int benefitReference, int costReference, Double ratio,
                    const std::vector<Double>& weights);

void WriteModel(const String& path, const WizardData& model);

}  // namespace Tarnwise
