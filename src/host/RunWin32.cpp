#include "host/ComHost.h"
#include "host/RunScreen.h"
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

RunScreen OpenScreen(int& /*argc*/, char** /*argv*/, bool com) {
  const auto wait = [] { TakeMessagesUntilQuit(); };
  const auto end = [] { PostQuitMessage(0); };
  const auto apartment = std::make_shared<ComApartment>();  // accessibility wants one, too
  if (!com) return {[apartment] { return HostLinked(MakeWin32Platform()); }, wait, end};
  return {[apartment] { return HostByCom(nullptr); }, wait, end};
}

}  // namespace Tarnwise
