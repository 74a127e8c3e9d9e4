// The wizard's own forms on real windows.
#include "Messages.h"
#include "view/MnemonicRows.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinToolkit.h"

namespace Tarnwise {

TEST(WinForms, EveryMnemonicOfEveryFormLeadsWhereItShould) {
  const auto toolkit = std::make_shared<WinToolkit>();
  toolkit->RealTimers = false;
  const auto platform = std::make_shared<Platform>(toolkit);
  GoThroughMnemonics(
      platform,
      [&](Form& form) {
        const HWND window = toolkit->FormOf(form)->Window();
        ASSERT_TRUE(Until([window] { return GetForegroundWindow() == window; }));
      },
      [](char letter) {
        const bool small = letter >= 'a' && letter <= 'z';
        TypeReally({VK_MENU, static_cast<WORD>(small ? letter - 'a' + 'A' : letter)});
        EXPECT_TRUE(Until([] { return GetAsyncKeyState(VK_MENU) >= 0; }));
        TakeMessages();
      });
}

}  // namespace Tarnwise
