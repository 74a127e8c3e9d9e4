// What a person does with the mouse to the windows of a form, on its way to the tree. Windows follow the mouse
// themselves only where their own behaviour is wanted; what they would choose or toggle by themselves is put to the
// tree, which decides.
#include "view/Gesture.h"
#include "view/Platform.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinToolkit.h"

#include <commctrl.h>
#include <windowsx.h>

#include <cmath>
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

}  // namespace

POINT WinForm::InPixels(FormPoint at) const {
  const double pixels = scale_ / kTwipsPerDesignPixel;
  return {static_cast<LONG>(std::lround(at.X * pixels)), static_cast<LONG>(std::lround(at.Y * pixels))};
}

FormPoint WinForm::PointIn(HWND window, LPARAM at) const {
  const POINT inForm = Mapped(window, window_, PointOf(at));
  const double twips = kTwipsPerDesignPixel / scale_;
  return {inForm.x * twips, inForm.y * twips};
}

Touch WinForm::TouchOf(const Control& control, FormPoint at) const {
  const HWND window = WindowOf(control);
  if (window == nullptr) return {false, -1};
  const POINT inside = Mapped(window_, window, InPixels(at));
  RECT client{};
  GetClientRect(window, &client);
  return {PtInRect(&client, inside) != 0, RowAt(control, window, inside)};
}

bool WinForm::IsFar(FormPoint from, FormPoint to) const {
  const POINT a = InPixels(from);
  const POINT b = InPixels(to);
  return std::abs(b.x - a.x) >= GetSystemMetrics(SM_CXDRAG) || std::abs(b.y - a.y) >= GetSystemMetrics(SM_CYDRAG);
}

void WinForm::LetMouseGo() {
  if (GetCapture() == window_) ReleaseCapture();
}

std::optional<LRESULT> WinForm::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCDESTROY) {
    Lost(window);
    return std::nullopt;  // the class takes down what it keeps of it
  }
  Control* const control = ControlOf(window);
  if (Tree() == nullptr || control == nullptr) return std::nullopt;
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) return Mouse(window, *control, message, wParam, lParam);
  if (message >= WM_KEYFIRST && message <= WM_KEYLAST) return Keyboard(window, *control, message, wParam, lParam);
  if (control->Type == Kind::TextBox && IsOfInputMethod(message)) return InputMethod(window, message, wParam, lParam);
  if (IsContainer(*control)) {
    if (auto answer = Parent(message, wParam, lParam)) return answer;
  }
  return Window(*control, window, message, wParam, lParam);
}

std::optional<LRESULT> WinForm::Mouse(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
  bool taken = false;
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: taken = Hand().Press(*this, control, PointIn(window, lParam)); break;
    case WM_MOUSEMOVE: taken = Hand().Move(*this, PointIn(window, lParam), (wParam & MK_LBUTTON) != 0); break;
    case WM_LBUTTONUP:
      taken = Hand().Release(*this, PointIn(window, lParam), [&] {
        DefSubclassProc(window, message, wParam, lParam);
        Control* const box = ControlOf(window);
        if (box != nullptr && box->Type == Kind::TextBox) Gesture::StoreCaret(*this, static_cast<TextBox&>(*box));
      });
      break;
    case WM_MOUSEWHEEL: return Wheel(window, control, wParam, lParam);
    default: break;
  }
  if (taken) return 0;
  return std::nullopt;
}

// An input method composes beside the box, and what it hands over comes as characters like any other.
LRESULT WinForm::InputMethod(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_IME_CHAR) return DefWindowProcW(window, message, wParam, lParam);
  Character(window, wParam);
  return 0;
}

// It comes to where the keyboard is, or to where the pointer is, as Windows is set up. The pointer's place is meant.
std::optional<LRESULT> WinForm::Wheel(HWND window, Control& control, WPARAM wParam, LPARAM lParam) {
  const HWND under = WindowFromPoint(PointOf(lParam));
  if (under != window && ControlOf(under) != nullptr) return SendMessageW(under, WM_MOUSEWHEEL, wParam, lParam);
  if (!Hand().Wheel(*this, control, GET_WHEEL_DELTA_WPARAM(wParam))) return std::nullopt;
  return 0;
}

// The rest: painting, the pointer's shape, focus, timers, the window's own buttons.
std::optional<LRESULT> WinForm::Window(Control& control, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      if (!IsBox(control) && &control != Tree()) return std::nullopt;
      PaintBoxWindow(*this, control, window);
      return 0;
    case WM_ERASEBKGND: return Erase(control, window, reinterpret_cast<HDC>(wParam));
    case WM_SETCURSOR: {
      if (LOWORD(lParam) != HTCLIENT) return std::nullopt;
      SetCursor(CursorFor(toolkit_.Pointer() != 0 ? toolkit_.Pointer() : ShownPointer(control)));
      return TRUE;
    }
    case WM_SETFOCUS:
      if (window == window_)
        FocusTree();
      else if (!focusing_ && Tree()->ActiveControl != &control)
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
      Hand().MouseLost();
      return std::nullopt;
    case WM_TIMER:
      if (window != window_) return std::nullopt;
      TimeUp(static_cast<int>(wParam));
      return 0;
    case WM_CLOSE:
      if (window != window_) return std::nullopt;
      if (IsWindowEnabled(window_) != 0) Hand().CloseWanted(*this);
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
      if (Control* const list = ControlOf(reinterpret_cast<HWND>(lParam))) {
        RowChosen(list, ChosenRow(*list, WindowOf(*list)));
      }
      return 0;
    case kGivenUp: Settle(ControlOf(reinterpret_cast<HWND>(lParam))); return 0;
    case kFocusCame: {
      const auto came = reinterpret_cast<HWND>(lParam);
      Control* const now = ControlOf(came);
      const bool still = GetFocus() == came || IsChild(came, GetFocus()) != 0;
      if (still && now != nullptr && now != Tree()->ActiveControl) Hand().FocusCame(*this, *now);
      return 0;
    }
    default: return std::nullopt;
  }
}

// What paints itself whole wants no erasing; some native parts leave theirs to whoever is around them.
std::optional<LRESULT> WinForm::Erase(const Control& control, HWND window, HDC dc) {
  if (IsBox(control) || &control == Tree()) return 1;
  const bool header = control.Type == Kind::Grid && window != WindowOf(control);
  if (!header && control.Type != Kind::Toolbar) return std::nullopt;
  RECT client{};
  GetClientRect(window, &client);
  FillRect(dc, &client, BrushOf(header ? colours_.Base : GroundOf(control, colours_)));
  return 1;
}

}  // namespace Tarnwise
