#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

// The number of the run-time error that the action ends with, 0 when it ends well.
template <class Action>
int ErrorNumber(Action action) {
  try {
    static_cast<void>(action());
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace Tarnwise
