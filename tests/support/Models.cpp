#include "support/Models.h"

#include "modelfiles/ModelWriter.h"

#include <fstream>
#include <stdexcept>

namespace Tarnwise {

WizardData ModelOf(const std::vector<std::pair<String, Group>>& attributes) {
  WizardData model;
  model.ModelHeader.NumAtts = static_cast<Integer>(attributes.size());
  AttValueData& values = model.AttValueData;
  int i = 0;
  for (const auto& [name, group] : attributes) {
    model.AttributeList.AttName[i] = name;
    model.AttributeList.AttDescription[i] = "About " + name;
    model.AttributeList.AttOrientation[i] = group == Group::Benefit ? "0" : "1";
    values.ScoreMax[i] = 100.0;
    values.WorstScore[i] = group == Group::Benefit ? 10.0 : 90.0;
    values.BestScore[i] = group == Group::Benefit ? 90.0 : 10.0;
    values.ValuePointCount[i] = 3;
    for (int k = 0; k < 3; ++k) {
      values.ValuePointX(i, k) = 50.0 * k;
      values.ValuePointY(i, k) = 0.5 * k;
    }
    ++i;
  }
  return model;
}

WizardData ModelOf(int benefits, int costs) {
  std::vector<std::pair<String, Group>> attributes;
  for (int i = 0; i < benefits; ++i) attributes.emplace_back("Benefit " + std::to_string(i), Group::Benefit);
  for (int i = 0; i < costs; ++i) attributes.emplace_back("Cost " + std::to_string(i), Group::Cost);
  return ModelOf(attributes);
}

void StoreJudgments(WizardData& model, const String& type, int benefitReference, int costReference, Double ratio,
                    const std::vector<Double>& weights) {
  SavedJudgments& saved = model.SavedJudgments;
  saved.RJType = type;
  saved.SavedBRefAttID = static_cast<Integer>(benefitReference);
  saved.SavedCRefAttID = static_cast<Integer>(costReference);
  saved.SavedRefAttWR = ratio;
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const int att = static_cast<int>(i);
    saved.SavedWeights[att] = weights[i];
    saved.SavedWeightsL[att] = weights[i] - 0.125;
    saved.SavedWeightsH[att] = weights[i] + 0.125;
  }
}

void WriteModel(const String& path, const WizardData& model) {
  const std::vector<char> bytes = ModelBytes(model);
  std::ofstream file(PathFromText(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("the model of the test could not be written");
}

}  // namespace Tarnwise
