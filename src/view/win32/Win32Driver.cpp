// Real mouse and key messages to the real windows: a script's user under the Windows toolkit.
#include "view/win32/Win32Driver.h"

#include "view/WindowedDriver.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"
#include "view/win32/WindowPicture.h"

#include <commctrl.h>

#include <array>
#include <utility>

namespace Tarnwise {

namespace {

constexpr BYTE kUp = 0;
constexpr BYTE kDown = 0x80;
constexpr LPARAM kAltIsDown = 1 << 29;

LPARAM At(POINT point) { return MAKELPARAM(point.x, point.y); }

POINT MiddleOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right / 2, client.bottom / 2};
}

void PressAt(HWND window, POINT point) { SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, At(point)); }

// The button comes up where the pointer is: with the window that has taken the mouse, else with the one below it.
void LetGoAt(HWND window, POINT point) {
  const HWND captured = GetCapture();
  if (captured != nullptr && captured != window) {
    MapWindowPoints(window, captured, &point, 1);
    window = captured;
  }
  if (IsWindow(window) != 0) SendMessageW(window, WM_LBUTTONUP, 0, At(point));
}

void ClickAt(HWND window, POINT point) {
  PressAt(window, point);
  LetGoAt(window, point);
}

// Shift, control and Alt as if they were held.
class Held {
 public:
  explicit Held(int shift) {
    GetKeyboardState(former_.data());
    std::array<BYTE, 256> now = former_;
    now[VK_SHIFT] = (shift & kShift) != 0 ? kDown : kUp;
    now[VK_CONTROL] = (shift & kControl) != 0 ? kDown : kUp;
    now[VK_MENU] = (shift & kAlt) != 0 ? kDown : kUp;
    SetKeyboardState(now.data());
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  ~Held() { SetKeyboardState(former_.data()); }

 private:
  std::array<BYTE, 256> former_{};
};

class Win32Driver : public WindowedDriver {
 public:
  using WindowedDriver::WindowedDriver;

 protected:
  void ClickOn(Control& control) override {
    const HWND window = WindowOf(control);
    POINT at = MiddleOf(window);
    if (control.Type == Kind::TextBox) at.x = 2 * at.x - 2;
    if (control.Type == Kind::OptionButton || control.Type == Kind::CheckBox) at.x = 6;
    ClickAt(window, at);
  }

  void ClickPart(Control& control, int part) override {
    const HWND window = WindowOf(control);
    const auto number = static_cast<WPARAM>(part);
    RECT place{};
    if (control.Type == Kind::ListBox) SendMessageW(window, LB_SETTOPINDEX, number, 0);
    const UINT asked = control.Type == Kind::ListBox    ? LB_GETITEMRECT
                       : control.Type == Kind::TabStrip ? TCM_GETITEMRECT
                                                        : TB_GETITEMRECT;
    SendMessageW(window, asked, number, reinterpret_cast<LPARAM>(&place));
    ClickAt(window, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }

  void ChooseFromOpened(Control& control, int row) override {
    const HWND window = WindowOf(control);
    const auto inner = reinterpret_cast<HWND>(SendMessageW(window, CBEM_GETCOMBOCONTROL, 0, 0));
    const HWND combo = IsWindow(inner) != 0 ? inner : window;
    ClickAt(combo, MiddleOf(combo));
    if (SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) == 0) return;
    SendMessageW(combo, WM_KEYDOWN, VK_HOME, 1);
    for (int i = 0; i < row; ++i) SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 1);
    SendMessageW(combo, WM_KEYDOWN, VK_RETURN, 1);
  }

  void PressKey(Form& form, const KeyStroke& key) override {
    const Held modifiers(key.Shift);
    const auto code = static_cast<WPARAM>(key.Code);
    const bool alt = (key.Shift & kAlt) != 0;
    const auto send = [&](UINT message, UINT withAlt, WPARAM what) {
      const HWND window = KeyboardOf(form);
      if (window != nullptr) SendMessageW(window, alt ? withAlt : message, what, alt ? kAltIsDown | 1 : 1);
    };
    send(WM_KEYDOWN, WM_SYSKEYDOWN, code);
    if (key.Character != 0) {
      for (const wchar_t unit : WideCharacter(static_cast<char32_t>(key.Character))) send(WM_CHAR, WM_SYSCHAR, unit);
    }
    send(WM_KEYUP, WM_SYSKEYUP, code);
  }

  void PressOn(Control& source) override {
    grabbed_ = WindowOf(source);
    PressAt(grabbed_, MiddleOf(grabbed_));
  }

  // No mouse can point between two pixels.
  bool MoveOver(const Form& form, FormPoint at) override {
    const WinForm& shown = *static_cast<WinForm*>(Tools().MirrorOf(form));
    const double pixels = shown.Scale() / kTwipsPerDesignPixel;
    const POINT pixel = shown.InPixels(at);
    if (at.X * pixels != pixel.x || at.Y * pixels != pixel.y) return false;
    SendMessageW(shown.Window(), WM_MOUSEMOVE, MK_LBUTTON, At(pixel));
    return true;
  }

  void LetGo() override { LetGoAt(std::exchange(grabbed_, nullptr), {-1, -1}); }

  void MoveThumb(const VScrollBar& bar, int value) override {
    const HWND window = WindowOf(bar);
    SCROLLINFO place{sizeof place, SIF_POS, 0, 0, 0, value, 0};
    SetScrollInfo(window, SB_CTL, &place, FALSE);
    SendMessageW(GetParent(window), WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value), reinterpret_cast<LPARAM>(window));
  }

  void PressClose(Form& form) override { SendMessageW(WindowOf(form), WM_CLOSE, 0, 0); }

  bool TakePicture(Form& form, const String& path) override {
    RedrawWindow(WindowOf(form), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return SaveWindowPicture(WindowOf(form), Wide(path));
  }

 private:
  HWND WindowOf(const Control& control) const {
    const auto* const shown = static_cast<WinForm*>(Tools().MirrorOf(control.Owner));
    return shown == nullptr ? nullptr : shown->WindowOf(control);
  }

  HWND KeyboardOf(const Form& form) const {
    const Control* const active = form.Released ? nullptr : form.ActiveControl;
    const HWND window = active != nullptr ? WindowOf(*active) : nullptr;
    return window != nullptr ? window : WindowOf(form);
  }

  HWND grabbed_ = nullptr;
};

}  // namespace

std::unique_ptr<Driver> MakeWin32Driver(std::shared_ptr<Platform> screen) {
  return std::make_unique<Win32Driver>(std::move(screen));
}

}  // namespace Tarnwise
