// The events that all step forms raise towards the class that owns them.
#pragma once

#include <tarnwise/Variant.h>
#include "runtime/Arrays.h"

#include <functional>
#include <utility>

namespace Tarnwise {

using ExportWeights = void(const String& RJType, Integer BRefAttID, Integer CRefAttID, Variant& RefAttWR,
                           Array<Variant>& Weights, Array<Variant>& WeightsH, Array<Variant>& WeightsL);

// Raises an event of a form. The callable is copied first: what it does may release the form and drop it.
template <class... Declared, class... Given>
void Raise(const std::function<void(Declared...)>& event, Given&&... arguments) {
  const std::function<void(Declared...)> handler = event;
  if (handler) handler(std::forward<Given>(arguments)...);
}

}  // namespace Tarnwise
