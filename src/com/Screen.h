// The screen that a new object shows its steps on.
#pragma once

#include <memory>

namespace Tarnwise {

class Platform;

// For as long as anything of the screen is in use, its forms and their running handlers included, the module stays
// loaded.
std::shared_ptr<Platform> MakeScreen();

}  // namespace Tarnwise
