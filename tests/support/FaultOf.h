#pragma once

#include "modelfiles/WholeFile.h"

namespace Tarnwise {

// The message of the fault that the call ends with, "no fault" where it ends well.
template <class Call>
String FaultOf(Call call) {
  try {
    call();
  } catch (const ModelFault& fault) {
    return fault.what();
  }
  return "no fault";
}

}  // namespace Tarnwise
