// The component as a loaded module: what keeps it loaded, and where it is.
#pragma once

#include <windows.h>

#include <string>

namespace Tarnwise {

// The module stays loaded for as long as one of these lives.
class ModuleUse {
 public:
  ModuleUse();
  ModuleUse(const ModuleUse&);
  ModuleUse& operator=(const ModuleUse&) = default;
  ~ModuleUse();
};

void LockModule(bool lock);  // for class factories

// The path of our own file; a failure of the system is a ComFailure.
std::wstring ModulePath();

}  // namespace Tarnwise
