// The program or the library that this code was built into.
#pragma once

#include <windows.h>

namespace Tarnwise {

HINSTANCE OwnModule();

}  // namespace Tarnwise
