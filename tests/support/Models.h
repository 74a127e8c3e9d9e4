// Small models for tests, and files of them.
#pragma once

#include "model/Groups.h"

#include <filesystem>
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

// A folder of its own, gone with all that is in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  String Path() const { return path_.string(); }
  String Path(const String& file) const { return (path_ / file).string(); }

 private:
  std::filesystem::path path_;
};

void WriteModel(const String& path, const WizardData& model);

}  // namespace Tarnwise
