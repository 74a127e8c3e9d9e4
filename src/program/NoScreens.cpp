#include "program/Screens.h"

#include <stdexcept>

namespace Tarnwise {

const char* const kToolkits = "headless";
const bool kHasCom = false;

RunScreen OpenScreen(int& /*argc*/, char** /*argv*/, bool /*com*/) {
  throw std::runtime_error("this program was built without a screen");
}

std::optional<PlayScreen> OpenPlayScreen(const String& /*toolkit*/, bool /*com*/, int& /*argc*/, char** /*argv*/) {
  return std::nullopt;
}

}  // namespace Tarnwise
