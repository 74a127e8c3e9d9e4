#include "runtime/windows/OwnModule.h"

// Where the linker puts its head: there is one in every program and library.
extern "C" IMAGE_DOS_HEADER __ImageBase;  // NOLINT: the linker's name

namespace Tarnwise {

HINSTANCE OwnModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

}  // namespace Tarnwise
