// What a person does with the mouse to the windows of a form, on its way to the tree. Windows follow the mouse
// themselves only where their own behaviour is wanted; what they would choose or toggle by themselves is put to the
// tree, which decides.
#include "view/Dispatch.h"
#include "view/Input.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinToolkit.h"

#include <commctrl.h>
#include <windowsx.h>

#include <utility>

namespace Tarnwise {

namespace {

constexpr UINT kDpiChanged = 0x02E0;

POINT PointOf(LPARAM lParam) { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

POINT Mapped(HWND from, HWND to, POINT at) {
  MapWindowPoints(from, to, &at, 1);
  return at;
}

bool IsOfInputMethod(UINT message) {
  return message == WM_IME_CHAR || message == WM_IME_STARTCOMPOSITION || message == WM_IME_COMPOSITION ||
         message == WM_IME_ENDCOMPOSITION;
}

bool IsInside(HWND window, POINT at) {
  RECT client{};
  GetClientRect(window, &client);
  return PtInRect(&client, at) != 0;
}

}  // namespace

// What a click or key without a handler changed still has to be seen, and what the window did by itself to be undone.
void WinForm::Settle(Control* control) {
  if (form_ == nullptr) return;
  if (form_->Screen().HandlerDepth == 0) form_->Screen().SyncAll();
  if (form_ == nullptr) return;
  if (control != nullptr && WindowOf(*control) != nullptr) SyncControl(*control);
  FocusTree();
  toolkit_.Drag().Show(*this);
}

std::optional<LRESULT> WinForm::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCDESTROY) {
    Lost(window);
    return std::nullopt;  // the class takes down what it keeps of it
  }
  Control* const control = ControlOf(window);
  if (form_ == nullptr || control == nullptr) return std::nullopt;
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) return Mouse(window, *control, message, wParam, lParam);
  if (message >= WM_KEYFIRST && message <= WM_KEYLAST) return Keyboard(window, *control, message, wParam, lParam);
  if (control->Type == Kind::TextBox && IsOfInputMethod(message)) return InputMethod(window, message, wParam, lParam);
  if (IsContainer(*control)) {
    if (auto answer = Parent(message, wParam, lParam)) return answer;
  }
  return Window(*control, window, message, wParam, lParam);
}

std::optional<LRESULT> WinForm::Mouse(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT at = PointOf(lParam);
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (Press(window, control, Mapped(window, window_, at))) return 0;
      return std::nullopt;
    case WM_MOUSEMOVE:
      if (Move(window, at, (wParam & MK_LBUTTON) != 0)) return 0;
      return std::nullopt;
    case WM_LBUTTONUP:
      if (LetGo(window, message, wParam, lParam)) return 0;
      return std::nullopt;
    case WM_MOUSEWHEEL: return Wheel(window, control, wParam, lParam);
    default: return std::nullopt;
  }
}

// An input method composes beside the box, and what it hands over comes as characters like any other.
LRESULT WinForm::InputMethod(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_IME_CHAR) return DefWindowProcW(window, message, wParam, lParam);
  const auto held = shared_from_this();
  Character(window, wParam);
  return 0;
}

// True: the window itself must not see it.
bool WinForm::Press(HWND window, Control& control, POINT inWindow) {
  const auto held = shared_from_this();
  const WinEntry entry(*form_);
  const bool native = !control.DragAutomatic && FollowsMouse(control);
  press_ = {&control, -1, false, native};
  toolkit_.Drag().Cancel();
  if (form_->Screen().Drag.Active()) form_->Screen().Drag.Cancel();
  if (!IsUsable(control)) {
    press_.Refused = true;
    return true;
  }
  if (HasRows(control)) press_.Row = RowAt(control, window, Mapped(window_, window, inWindow));
  const bool good = Input::Press(control);
  // The focus that has moved may have taken the control or the whole form away.
  if (form_ == nullptr || press_.On != &control || !good) {
    press_.Refused = true;
    Settle(nullptr);
    return true;
  }
  Settle(nullptr);
  if (form_ == nullptr || press_.On != &control) return true;
  if (control.DragAutomatic) toolkit_.Drag().Arm(*this, control, inWindow);
  if (!native) SetCapture(window_);
  return !native;
}

bool WinForm::Move(HWND window, POINT at, bool down) {
  if (!down || press_.Refused) return press_.Refused && down;
  if (press_.On == nullptr) return false;
  const auto held = shared_from_this();
  const WinEntry entry(*form_);
  const POINT inWindow = Mapped(window, window_, at);
  if (toolkit_.Drag().Move(inWindow.x, inWindow.y)) return true;
  return !press_.Native;
}

bool WinForm::LetGo(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto held = shared_from_this();
  const WinEntry entry(*form_);
  const bool captured = GetCapture() == window_;
  if (toolkit_.Drag().Release()) {
    press_ = {};
    if (captured) ReleaseCapture();
    Settle(nullptr);
    return true;
  }
  const WinPress press = press_;
  if (press.Refused || press.On == nullptr) {
    press_ = {};
    if (captured) ReleaseCapture();
    return press.Refused;
  }
  if (press.Native) {
    // What it notifies comes from inside this call, so that a press can be told from anything else.
    DefSubclassProc(window, message, wParam, lParam);
    if (form_ != nullptr && press_.On != nullptr && press_.On->Type == Kind::TextBox) {
      StoreCaret(static_cast<TextBox&>(*press_.On), WindowOf(*press_.On));
    }
    press_ = {};
    return true;
  }
  press_ = {};
  if (captured) ReleaseCapture();
  FinishPress(press, Mapped(window, window_, PointOf(lParam)));
  return true;
}

void WinForm::FinishPress(const WinPress& press, POINT inForm) {
  Control& control = *press.On;
  const HWND window = WindowOf(control);
  const POINT at = Mapped(window_, window, inForm);
  if (window == nullptr || !IsInside(window, at)) return;
  if (HasRows(control)) {
    const int row = RowAt(control, window, at);
    if (row < 0 || row != press.Row) return;
    Input::SelectRow(control, row);
  } else {
    Input::Activate(control);
  }
  Settle(ControlOf(window));
}

// It comes to where the keyboard is, or to where the pointer is, as Windows is set up. The pointer's place is meant.
std::optional<LRESULT> WinForm::Wheel(HWND window, Control& control, WPARAM wParam, LPARAM lParam) {
  const HWND under = WindowFromPoint(PointOf(lParam));
  if (under != window && ControlOf(under) != nullptr) return SendMessageW(under, WM_MOUSEWHEEL, wParam, lParam);
  const auto held = shared_from_this();
  const WinEntry entry(*form_);
  if (!Input::Wheel(control, GET_WHEEL_DELTA_WPARAM(wParam))) return std::nullopt;
  Settle(nullptr);
  return 0;
}

// The rest: painting, the pointer's shape, focus, timers, the window's own buttons.
std::optional<LRESULT> WinForm::Window(Control& control, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto held = shared_from_this();
  switch (message) {
    case WM_PAINT:
      if (!IsBox(control) && &control != form_) return std::nullopt;
      PaintBoxWindow(*this, control, window);
      return 0;
    case WM_ERASEBKGND: return Erase(control, window, reinterpret_cast<HDC>(wParam));
    case WM_SETCURSOR: {
      if (LOWORD(lParam) != HTCLIENT) return std::nullopt;
      int shape = toolkit_.Pointer() != 0 ? toolkit_.Pointer() : PointerOver(control);
      if (shape == 0 && control.DragAutomatic && control.Enabled) {
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
      }
      if (shape == 0 && control.Type == Kind::TextBox) shape = 3;
      SetCursor(CursorFor(shape));
      return TRUE;
    }
    case WM_SETFOCUS:
      if (window == window_)
        FocusTree();
      else if (!focusing_ && form_->ActiveControl != &control)
        PostMessageW(window_, kFocusCame, 0, reinterpret_cast<LPARAM>(window));
      if (IsBox(control)) InvalidateRect(window, nullptr, FALSE);
      if (control.Type == Kind::OptionButton) {  // it would choose itself
        const bool former = std::exchange(focusing_, true);
        const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
        focusing_ = former;
        return answer;
      }
      return std::nullopt;
    case WM_KILLFOCUS:
      if (IsBox(control)) InvalidateRect(window, nullptr, FALSE);
      return std::nullopt;
    case WM_NCCALCSIZE:
      if (control.Type != Kind::TextBox) return std::nullopt;
      return NarrowEdit(window, wParam, lParam);
    case WM_NCPAINT:
      if (control.Type != Kind::TextBox) return std::nullopt;
      return PaintEditBorder(window, wParam, lParam);
    case WM_CONTEXTMENU: return 0;
    case WM_CAPTURECHANGED:
      if (window != window_ || reinterpret_cast<HWND>(lParam) == window_) return std::nullopt;
      if (toolkit_.Drag().ByMouse()) toolkit_.Drag().Cancel();
      if (!press_.Native) press_ = {};
      return std::nullopt;
    case WM_TIMER:
      if (window != window_) return std::nullopt;
      Ticked(wParam);
      return 0;
    case WM_CLOSE:
      if (window != window_) return std::nullopt;
      CloseWanted();
      return 0;
    case WM_SIZE:
      if (control.Type == Kind::Grid) {
        const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
        SpreadColumns(static_cast<Grid&>(control), window, scale_);
        return answer;
      }
      return std::nullopt;
    case WM_SYSCOLORCHANGE:
      if (window == window_) Recolour();
      return std::nullopt;
    case kDpiChanged:
      if (window != window_) return std::nullopt;
      Rescale(HIWORD(wParam) / 96.0);
      return 0;
    case kChoose:
      if (Control* const list = ControlOf(reinterpret_cast<HWND>(lParam))) RowChosen(*list);
      return 0;
    case kGivenUp: Settle(ControlOf(reinterpret_cast<HWND>(lParam))); return 0;
    case kFocusCame: FocusCame(reinterpret_cast<HWND>(lParam)); return 0;
    default: return std::nullopt;
  }
}

// What paints itself whole wants no erasing; some native parts leave theirs to whoever is around them.
std::optional<LRESULT> WinForm::Erase(const Control& control, HWND window, HDC dc) {
  if (IsBox(control) || &control == form_) return 1;
  const bool header = control.Type == Kind::Grid && window != WindowOf(control);
  if (!header && control.Type != Kind::Toolbar) return std::nullopt;
  RECT client{};
  GetClientRect(window, &client);
  FillRect(dc, &client, BrushOf(header ? colours_.Base : GroundOf(control, colours_)));
  return 1;
}

void WinForm::CloseWanted() {
  if (IsWindowEnabled(window_) == 0) return;
  const WinEntry entry(*form_);
  Input::CloseForm(*form_);
  Settle(nullptr);
}

void WinForm::Ticked(UINT_PTR id) {
  for (const auto& [control, timer] : timers_) {
    if (timer != id) continue;
    const auto& record = static_cast<const Timer&>(*control);
    if (record.Interval == 0 || !record.Enabled) return;  // stopped while its message was under way
    const WinEntry entry(*form_);
    Input::Tick(const_cast<Timer&>(record));  // NOLINT: kept by its address only
    Settle(nullptr);
    return;
  }
}

// The focus came by a way of the platform's own, a screen reader's for one: the tree follows where it can.
void WinForm::FocusCame(HWND window) {
  Control* const control = ControlOf(window);
  if (control == nullptr || control == form_->ActiveControl) return;
  const HWND now = GetFocus();
  if (now != window && IsChild(window, now) == 0) return;
  const WinEntry entry(*form_);
  if (TakesFocus(*control) && Refusal(*control).empty()) Input::MoveFocus(*control);
  Settle(nullptr);
}

}  // namespace Tarnwise
