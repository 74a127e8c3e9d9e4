// A model as a JSON description that people write: attributes with their scales and curves, alternatives with their
// scores, stored judgments, and under "unused" whatever else the file has room for. docs/model-format.md tells the
// keys.
#pragma once

#include "model/mdTRNMain.h"
#include "modelfiles/DescriptionJson.h"

namespace Tarnwise {

// The model of a description. A ModelFault says which field, whose, and why.
WizardData ModelFromJson(const Json& description);

// The description of a model, in one fixed form: what is at its default is left out, and building it gives the same
// model to the last bit.
Json ModelToJson(const WizardData& data);

// What a model may hold, but hardly means: value curves that fall, abscissae that do not ascend, and the like.
std::vector<String> ModelWarnings(const WizardData& data);

}  // namespace Tarnwise
