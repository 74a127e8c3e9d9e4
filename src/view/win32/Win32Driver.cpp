// Real mouse and key messages to the real windows: a script's user under the Windows toolkit.
#include "view/win32/Win32Driver.h"

#include "view/Input.h"
#include "view/Lifetime.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"
#include "view/win32/WindowPicture.h"

#include <commctrl.h>

#include <array>
#include <cmath>
#include <utility>

namespace Tarnwise {

namespace {

constexpr BYTE kUp = 0;
constexpr BYTE kDown = 0x80;

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

// Shift and control as if they were held.
class Held {
 public:
  explicit Held(int shift) {
    GetKeyboardState(former_.data());
    std::array<BYTE, 256> now = former_;
    now[VK_SHIFT] = (shift & kShift) != 0 ? kDown : kUp;
    now[VK_CONTROL] = (shift & kControl) != 0 ? kDown : kUp;
    now[VK_MENU] = kUp;
    SetKeyboardState(now.data());
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  ~Held() { SetKeyboardState(former_.data()); }

 private:
  std::array<BYTE, 256> former_{};
};

class Win32Driver : public Driver {
 public:
  explicit Win32Driver(std::shared_ptr<Platform> screen)
      : screen_(std::move(screen)), toolkit_(static_cast<WinToolkit&>(screen_->Tools())) {
    toolkit_.RealTimers = false;
    toolkit_.AutoAnswer = true;
  }

  std::shared_ptr<Platform> Screen() override { return screen_; }
  void SetPump(std::function<bool()> pump) override { toolkit_.Pump = std::move(pump); }

  void Click(Control& control) override {
    const auto held = Ready(control);
    const HWND window = WindowOf(control);
    if (window == nullptr) return;
    POINT at = MiddleOf(window);
    if (control.Type == Kind::TextBox) at.x = 2 * at.x - 2;  // behind the text
    if (control.Type == Kind::OptionButton || control.Type == Kind::CheckBox) at.x = 6;
    ClickAt(window, at);
    WinToolkit::TakeMessages();
  }

  void Select(Control& list, int index) override {
    const auto held = Ready(list);
    const HWND window = WindowOf(list);
    if (window == nullptr) return;
    if (list.Type == Kind::ListBox) {
      SendMessageW(window, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
      RECT row{};
      SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
      ClickAt(window, {row.left + 4, (row.top + row.bottom) / 2});
    } else if (list.Type == Kind::TabStrip) {
      RECT tab{};
      TabCtrl_GetItemRect(window, index - 1, &tab);
      ClickAt(window, {(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2});
    } else {
      ChooseFromList(window, list.Type == Kind::ImageCombo ? index - 1 : index);
    }
    WinToolkit::TakeMessages();
  }

  void PressTool(Toolbar& toolbar, const String& key) override {
    const auto held = Ready(toolbar);
    const HWND window = WindowOf(toolbar);
    for (std::size_t i = 0; window != nullptr && i < toolbar.Buttons.size(); ++i) {
      if (toolbar.Buttons[i].Key != key) continue;
      RECT button{};
      SendMessageW(window, TB_GETITEMRECT, i, reinterpret_cast<LPARAM>(&button));
      ClickAt(window, {(button.left + button.right) / 2, (button.top + button.bottom) / 2});
      break;
    }
    WinToolkit::TakeMessages();
  }

  void Focus(Control& control) override {
    const auto held = Ready(control);
    const Entry entry(control.Owner);
    if (Input::MoveFocus(control)) Input::PutCaretAtEnd(control);
    screen_->SyncAll();
  }

  void Key(Form& form, const KeyStroke& key) override {
    const auto held = Ready(form);
    const Held modifiers(key.Shift);
    const auto code = static_cast<WPARAM>(key.Code);
    if (const HWND window = KeyboardOf(form)) SendMessageW(window, WM_KEYDOWN, code, 1);
    if (key.Character != 0) {
      for (const wchar_t unit : WideCharacter(static_cast<char32_t>(key.Character))) {
        if (const HWND window = KeyboardOf(form)) SendMessageW(window, WM_CHAR, unit, 1);
      }
    }
    if (const HWND window = KeyboardOf(form)) SendMessageW(window, WM_KEYUP, code, 1);
  }

  void Grab(Control& source) override {
    Ready(source);
    grabbed_ = WindowOf(source);
    if (grabbed_ == nullptr) return;
    PressAt(grabbed_, MiddleOf(grabbed_));
    screen_->Hand.BeginDrag();  // the first move may be as near as it likes
  }

  void Over(Control& target, ControlPoint at) override {
    const FormPoint onForm = OnForm(target, at);
    WinForm* const shown = toolkit_.FormOf(target.Owner);
    if (grabbed_ == nullptr || shown == nullptr || DragTargetAt(target.Owner, onForm) != &target) {
      const Entry entry(target.Owner);
      screen_->Drag.Over(target, at.X, at.Y);  // clipped by a viewport, or another one of the row stands in front
      return;
    }
    const double pixelX = onForm.X / 15.0 * shown->Scale();
    const double pixelY = onForm.Y / 15.0 * shown->Scale();
    const POINT pixel{static_cast<LONG>(std::lround(pixelX)), static_cast<LONG>(std::lround(pixelY))};
    if (pixelX == pixel.x && pixelY == pixel.y)
      SendMessageW(shown->Window(), WM_MOUSEMOVE, MK_LBUTTON, At(pixel));
    else
      screen_->Hand.MoveDrag(onForm);  // no mouse can point between two pixels
  }

  void OverNothing() override {
    const Entry entry(screen_->Drag.Source()->Owner);
    screen_->Drag.OverNothing();
  }

  void Drop() override {
    if (grabbed_ == nullptr) {
      screen_->Drag.Drop();
      return;
    }
    const HWND source = std::exchange(grabbed_, nullptr);
    LetGoAt(source, {-1, -1});
    WinToolkit::TakeMessages();
  }

  void Scroll(VScrollBar& bar, int value) override {
    const auto held = Ready(bar);
    const HWND window = WindowOf(bar);
    if (window == nullptr || !Input::Press(bar)) return;
    SCROLLINFO place{sizeof place, SIF_POS, 0, 0, 0, value, 0};
    SetScrollInfo(window, SB_CTL, &place, FALSE);
    SendMessageW(GetParent(window), WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value), reinterpret_cast<LPARAM>(window));
  }

  void Tick(Timer& timer) override {
    const auto held = timer.Owner.shared_from_this();
    const Entry entry(timer.Owner);
    Input::Tick(timer);
  }

  void Close(Form& form) override {
    const auto held = Ready(form);
    if (const HWND window = WindowOf(form)) SendMessageW(window, WM_CLOSE, 0, 0);
  }

  bool Shot(Form& form, const String& path) override {
    const HWND window = WindowOf(form);
    if (window == nullptr) return false;
    WinToolkit::TakeMessages();
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return SaveWindowPicture(window, Wide(path));
  }

 private:
  std::shared_ptr<Form> Ready(Control& control) {
    std::shared_ptr<Form> held = control.Owner.shared_from_this();
    WinToolkit::TakeMessages();
    return held;
  }

  HWND WindowOf(const Control& control) const {
    const WinForm* const shown = toolkit_.FormOf(control.Owner);
    return shown == nullptr ? nullptr : shown->WindowOf(control);
  }

  HWND KeyboardOf(const Form& form) const {
    const Control* const active = form.Released ? nullptr : form.ActiveControl;
    const HWND window = active != nullptr ? WindowOf(*active) : nullptr;
    return window != nullptr ? window : WindowOf(form);
  }

  // Opens the list by a press and goes to the row by keys.
  static void ChooseFromList(HWND window, int row) {
    const auto inner = reinterpret_cast<HWND>(SendMessageW(window, CBEM_GETCOMBOCONTROL, 0, 0));
    const HWND combo = IsWindow(inner) != 0 ? inner : window;
    ClickAt(combo, MiddleOf(combo));
    if (SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) == 0) return;
    SendMessageW(combo, WM_KEYDOWN, VK_HOME, 1);
    for (int i = 0; i < row; ++i) SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 1);
    SendMessageW(combo, WM_KEYDOWN, VK_RETURN, 1);
  }

  const std::shared_ptr<Platform> screen_;
  WinToolkit& toolkit_;
  HWND grabbed_ = nullptr;
};

}  // namespace

std::unique_ptr<Driver> MakeWin32Driver(std::shared_ptr<Platform> screen) {
  return std::make_unique<Win32Driver>(std::move(screen));
}

}  // namespace Tarnwise
