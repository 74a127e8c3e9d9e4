// The properties of controls as JSON, under their usual names.
#pragma once

#include "modelfiles/PlainJson.h"
#include "view/Controls.h"

#include <optional>

namespace Tarnwise {

// One property; nothing when this kind of control has none of that name.
std::optional<Json> PropertyJson(const Control& control, const String& property);

// The control's full name and all those properties.
Json ControlJson(const Control& control);

}  // namespace Tarnwise
