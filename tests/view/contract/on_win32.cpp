#include "view/contract/Contract.h"

#include "view/win32/Win32Driver.h"

#include <tarnwise/Platform.h>

std::unique_ptr<Tarnwise::Driver> Tarnwise::MakeContractDriver() { return MakeWin32Driver(MakeWin32Platform()); }
