// The shared wizard data as JSON, by the names of its variables and of the model's fields.
#pragma once

#include "model/mdTRNMain.h"
#include "modelfiles/PlainJson.h"

#include <optional>

namespace Tarnwise {

// Nothing when there is no variable of that name.
std::optional<Json> DataJson(const WizardData& data, const String& name);

}  // namespace Tarnwise
