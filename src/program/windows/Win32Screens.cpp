#include "com/player/ComHost.h"
#include "program/Screens.h"
#include "view/win32/Win32Driver.h"
#include "view/win32/WinApi.h"

namespace Tarnwise {

namespace {

void TakeMessagesUntilQuit() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

const char* const kToolkits = "headless or win32";
const bool kHasCom = true;

RunScreen OpenScreen(int& /*argc*/, char** /*argv*/, bool com) {
  const auto wait = [] { TakeMessagesUntilQuit(); };
  const auto end = [] { PostQuitMessage(0); };
  const auto apartment = std::make_shared<ComApartment>();  // accessibility wants one, too
  if (!com) return {[apartment] { return HostLinked(MakeWin32Platform()); }, wait, end};
  return {[apartment] { return HostByCom(nullptr); }, wait, end};
}

std::optional<PlayScreen> OpenPlayScreen(const String& toolkit, bool com, int& /*argc*/, char** /*argv*/) {
  if (com) {
    const auto apartment = std::make_shared<ComApartment>();
    std::unique_ptr<Driver> user = DriveByCom();
    const MakeHosted make = [screen = user->Screen()] { return HostByCom(screen); };
    return PlayScreen{apartment, std::move(user), make};
  }
  if (toolkit != "win32") return std::nullopt;
  return PlayScreen{nullptr, MakeWin32Driver(MakeWin32Platform()), nullptr};
}

}  // namespace Tarnwise
