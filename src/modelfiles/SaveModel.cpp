#include "modelfiles/SaveModel.h"

#include "model/ModelFile.h"
#include "modelfiles/ModelWriter.h"

namespace Tarnwise {

namespace {

// The bytes of the model but for its judgments.
std::vector<char> BytesWithoutJudgments(WizardData data) {
  const WizardData empty;
  data.SavedJudgments = empty.SavedJudgments;
  return ModelBytes(data);
}

Array<Double> Stored(const VariantArray& weights, int count) {
  if (static_cast<int>(weights.size()) != count) {
    throw ModelFault("the judgments are for " + std::to_string(weights.size()) + " attributes, the model has " +
                     std::to_string(count));
  }
  Array<Double> stored;
  stored.Allocate(kMaxAtts);
  for (std::size_t i = 0; i < weights.size(); ++i) stored[static_cast<int>(i)] = ToDouble(weights[i]);
  return stored;
}

}  // namespace

void SaveJudgments(const String& modelPath, const WizardData& judged, const String& RJType, Integer BRefAttID,
                   Integer CRefAttID, const Variant& RefAttWR, const VariantArray& Weights,
                   const VariantArray& WeightsH, const VariantArray& WeightsL) {
  const std::vector<char> bytes = FileBytes(modelPath);
  WizardData data;
  ReadModel(data, bytes);
  if (const auto difference = Difference(bytes, data)) {
    throw ModelFault("the judgments were not saved, " + modelPath + " would lose data: " + *difference);
  }
  if (BytesWithoutJudgments(data) != BytesWithoutJudgments(judged)) {
    throw ModelFault("the judgments were not saved: " + modelPath + " holds another model than the one judged");
  }
  SavedJudgments& saved = data.SavedJudgments;
  saved.RJType = RJType;
  saved.SavedBRefAttID = BRefAttID;
  saved.SavedCRefAttID = CRefAttID;
  saved.SavedRefAttWR = RefAttWR;  // its type tells whether the pair was ever judged
  saved.SavedWeights = Stored(Weights, data.NumAtts());
  saved.SavedWeightsH = Stored(WeightsH, data.NumAtts());
  saved.SavedWeightsL = Stored(WeightsL, data.NumAtts());
  WriteFileAtomically(modelPath, ModelBytes(data));
}

}  // namespace Tarnwise
