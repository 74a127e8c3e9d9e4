#include "com/Screen.h"

#include "com/Module.h"

#include <tarnwise/TRN_DEA.h>

namespace Tarnwise {

namespace {

struct ScreenInUse {
  ModuleUse Use;
  std::shared_ptr<Platform> Screen;
};

}  // namespace

std::shared_ptr<Platform> MakeScreen() {
  const auto screen = std::make_shared<ScreenInUse>();
  screen->Screen = MakeWin32Platform();
  return {screen, screen->Screen.get()};
}

}  // namespace Tarnwise
