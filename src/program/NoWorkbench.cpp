#include "program/Workbench.h"

#include <stdexcept>

namespace Tarnwise {

int OpenWorkbench(const OpenOptions& /*options*/, int& /*argc*/, char** /*argv*/) {
  throw std::runtime_error("this program was built without the analyst's window; tarnwise --help lists its commands");
}

}  // namespace Tarnwise
