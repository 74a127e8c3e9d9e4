// A script's user under the Windows toolkit.
#pragma once

#include "view/Driver.h"

namespace Tarnwise {

// `screen` is one that MakeWin32Platform made. From then on its timers and message boxes wait for the script.
std::unique_ptr<Driver> MakeWin32Driver(std::shared_ptr<Platform> screen);

}  // namespace Tarnwise
