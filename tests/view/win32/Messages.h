// What a person does, as the messages that Windows makes of it, and time for the message loop.
#pragma once

#include "view/win32/WinApi.h"

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Tarnwise {

inline POINT MiddleOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right / 2, client.bottom / 2};
}

inline LPARAM At(POINT point) { return MAKELPARAM(point.x, point.y); }

inline void PressAt(HWND window, POINT point) { SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, At(point)); }

// The button comes up with the window that has taken the mouse, else with the one below the pointer.
inline void LetGoAt(HWND window, POINT point) {
  const HWND captured = GetCapture();
  if (captured != nullptr && captured != window) {
    MapWindowPoints(window, captured, &point, 1);
    window = captured;
  }
  if (IsWindow(window) != 0) SendMessageW(window, WM_LBUTTONUP, 0, At(point));
}

inline void ClickAt(HWND window, POINT point) {
  PressAt(window, point);
  LetGoAt(window, point);
}

// Shift (1), control (2) and Alt (4) as if they were held.
class Held {
 public:
  explicit Held(int shift) {
    GetKeyboardState(former_.data());
    std::array<BYTE, 256> now = former_;
    now[VK_SHIFT] = (shift & 1) != 0 ? kDown : kUp;
    now[VK_CONTROL] = (shift & 2) != 0 ? kDown : kUp;
    now[VK_MENU] = (shift & 4) != 0 ? kDown : kUp;
    SetKeyboardState(now.data());
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  ~Held() { SetKeyboardState(former_.data()); }

 private:
  static constexpr BYTE kUp = 0;
  static constexpr BYTE kDown = 0x80;
  std::array<BYTE, 256> former_{};
};

// A key at whatever window has the keyboard by then; `typed` are the units it types.
inline void SendKey(int code, const std::wstring& typed = {}, int shift = 0) {
  const Held held(shift);
  SendMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(code), 1);
  for (const wchar_t unit : typed) SendMessageW(GetFocus(), WM_CHAR, unit, 1);
  SendMessageW(GetFocus(), WM_KEYUP, static_cast<WPARAM>(code), 1);
}

inline void SendAlt(char letter) {
  const Held held(4);
  constexpr LPARAM kAltIsDown = 1 << 29;
  const int code = letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter;
  SendMessageW(GetFocus(), WM_SYSKEYDOWN, static_cast<WPARAM>(code), kAltIsDown | 1);
  SendMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), kAltIsDown | 1);
  SendMessageW(GetFocus(), WM_SYSKEYUP, static_cast<WPARAM>(code), kAltIsDown | 1);
}

// The keys as the keyboard gives them to Windows: all down, then all up again.
inline void TypeReally(const std::vector<WORD>& chord) {
  std::vector<INPUT> inputs;
  const auto put = [&inputs](WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    inputs.push_back(input);
  };
  for (const WORD key : chord) put(key, 0);
  for (auto key = chord.rbegin(); key != chord.rend(); ++key) put(*key, KEYEVENTF_KEYUP);
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// A press and its release as the mouse gives them to Windows, at a point of the window. It goes back to where it was:
// on a screen without a window manager the windows of other tests would come up under it.
inline void ClickReally(HWND window, POINT at) {
  POINT before{};
  GetCursorPos(&before);
  ClientToScreen(window, &at);
  SetCursorPos(at.x, at.y);
  for (const DWORD flag : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flag;
    SendInput(1, &input, sizeof input);
  }
  SetCursorPos(before.x, before.y);
}

inline void TakeMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Lets events in until it is so; false when the time was not enough.
inline bool Until(const std::function<bool()>& so, DWORD milliseconds = 60000) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  TakeMessages();
  while (!so()) {
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
    TakeMessages();
  }
  return true;
}

inline void Wait(DWORD milliseconds) {
  Until([] { return false; }, milliseconds);
}

struct WantedWindow {
  std::wstring ClassName;
  HWND Found = nullptr;
};

inline BOOL CALLBACK LookAt(HWND window, LPARAM wanted) {
  auto& sought = *reinterpret_cast<WantedWindow*>(wanted);
  wchar_t name[32] = {};
  GetClassNameW(window, name, 32);
  if (sought.ClassName == name) sought.Found = window;
  return TRUE;
}

// The thread's top-level window of a class, null when there is none.
inline HWND ThreadWindow(const wchar_t* className) {
  WantedWindow wanted{className};
  EnumThreadWindows(GetCurrentThreadId(), LookAt, reinterpret_cast<LPARAM>(&wanted));
  return wanted.Found;
}

inline std::map<UINT_PTR, std::function<void()>>& WaitingByTimer() {
  static std::map<UINT_PTR, std::function<void()>> waiting;
  return waiting;
}

inline void CALLBACK DoLater(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  const auto found = WaitingByTimer().find(timer);
  if (found == WaitingByTimer().end()) return;
  const std::function<void()> now = std::move(found->second);
  WaitingByTimer().erase(found);
  now();
}

// Done by the message loop that runs then, a modal form's too.
inline void Later(UINT milliseconds, std::function<void()> what) {
  WaitingByTimer()[SetTimer(nullptr, 0, milliseconds, DoLater)] = std::move(what);
}

}  // namespace Tarnwise
