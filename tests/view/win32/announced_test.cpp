// What a screen reader is told without asking, counted where Windows hands it over.
#include "view/Announced.h"

#include "Messages.h"
#include "view/win32/Win32Driver.h"
#include "view/win32/WinText.h"

#include <tarnwise/TRN_DEA.h>

namespace Tarnwise {

class WinAnnounced : public testing::Test {
 protected:
  WinAnnounced() {
    heard_ = {};
    hook_ = SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, Hear, GetCurrentProcessId(), GetCurrentThreadId(),
                            WINEVENT_OUTOFCONTEXT);
  }
  ~WinAnnounced() override { UnhookWinEvent(hook_); }

  void Expect(const AnnouncedWalk& walk) const {
    ASSERT_NE(hook_, nullptr);
    ExpectTold(walk, MakeWin32Driver(MakeWin32Platform()), [] {
      TakeMessages();
      return heard_.Take();
    });
  }

 private:
  static void CALLBACK Hear(HWINEVENTHOOK /*hook*/, DWORD event, HWND window, LONG /*object*/, LONG /*child*/,
                            DWORD /*thread*/, DWORD /*time*/) {
    if (event != EVENT_SYSTEM_ALERT && event != EVENT_OBJECT_NAMECHANGE) return;
    const String name = Utf8(TextOf(window));
    const bool verdict = name == "Consistent" || name == "Invalid" || name == "Inconsistent";
    if (!verdict && name.find(" reference: ") == String::npos) return;
    if (event == EVENT_SYSTEM_ALERT) ++heard_.Alerts[name];
    // Of a window's new text Windows tells by itself, Wine does not.
    if (event == EVENT_OBJECT_NAMECHANGE && verdict) ++heard_.Names[name];
  }

  static inline Heard heard_;
  HWINEVENTHOOK hook_ = nullptr;
};

TEST_F(WinAnnounced, EachVerdictIsOnceAndNoBlinkIs) { Expect(VerdictsOfTheDirectStep()); }

TEST_F(WinAnnounced, AVerdictOnATradeOffIsOnce) { Expect(VerdictsOfTheTradeOffs()); }

TEST_F(WinAnnounced, AChosenReferenceIsOnce) {
  Expect(References([](const String& /*name*/) { return String(); }));
}

}  // namespace Tarnwise
