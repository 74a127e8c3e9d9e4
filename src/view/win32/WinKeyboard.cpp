// Keys on their way from Windows to the tree.
#include "view/Gesture.h"
#include "view/Keys.h"
#include "view/Platform.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"

#include <commctrl.h>

#include <utility>

namespace Tarnwise {

namespace {

int ShiftNow() {
  const auto down = [](int key) { return GetKeyState(key) < 0; };
  return (down(VK_SHIFT) ? kShift : 0) | (down(VK_CONTROL) ? kControl : 0) | (down(VK_MENU) ? kAlt : 0);
}

bool IsModifier(WPARAM code) {
  return code == VK_SHIFT || code == VK_CONTROL || code == VK_MENU || code == VK_LWIN || code == VK_RWIN ||
         code == VK_CAPITAL || code == VK_NUMLOCK;
}

bool IsOpen(const Control& control, HWND window) {
  if (control.Type != Kind::ComboBox && control.Type != Kind::ImageCombo) return false;
  return SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

int CharacterOf(wchar_t high, wchar_t low) { return 0x10000 + ((high & 0x3FF) << 10) + (low & 0x3FF); }

}  // namespace

std::optional<LRESULT> WinForm::Keyboard(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
  if (Tree()->Screen().IsBlocked(*Tree())) return 0;
  bool taken = false;
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: taken = KeyDown(window, control, message, wParam, lParam); break;
    case WM_CHAR: taken = Character(window, wParam); break;
    case WM_SYSCHAR: taken = Hand().Mnemonic(*this, static_cast<int>(wParam)); break;
    case WM_KEYUP: Hand().KeyUp(*this, {static_cast<int>(wParam), ShiftNow()}); break;
    default: break;
  }
  if (taken) return 0;
  if (control.Type != Kind::ListBox || (message != WM_KEYDOWN && message != WM_CHAR)) return std::nullopt;
  // A list box finds its rows by letters and pages; the tree hears of the row it has gone to.
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  const int row = ChosenRow(control, window);
  if (row != static_cast<ListBox&>(control).ListIndex) RowChosen(&control, row);
  return answer;
}

// True: the window itself must not see it.
bool WinForm::KeyDown(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
  if (IsModifier(wParam)) return false;
  dropCharacter_ = false;
  const Control* const active = Tree()->ActiveControl;
  if (active != nullptr && WindowOf(*active) != nullptr && IsOpen(*active, WindowOf(*active))) return false;
  // What comes as a key of the system's, F10 too, is for its menus.
  const int shift = message == WM_SYSKEYDOWN ? kAlt : ShiftNow();
  KeyEvent key{static_cast<int>(wParam), shift};
  switch (Hand().KeyDown(*this, control, key)) {
    case KeyGoes::ToMenu:  // its character may be a mnemonic
    case KeyGoes::ToNative: return false;
    case KeyGoes::ToBox: break;
    case KeyGoes::Nowhere: dropCharacter_ = true; return true;
  }
  auto& box = static_cast<TextBox&>(*Tree()->ActiveControl);
  if (!Hand().BoxKeyDown(*this, box, key)) {
    dropCharacter_ = true;
    return true;
  }
  if (WindowOf(box) != window) return true;
  typingNow_ = true;
  DefSubclassProc(window, message, static_cast<WPARAM>(key.Code), lParam);
  typingNow_ = false;
  Hand().BoxChanged(*this, box);
  return true;
}

// What a key types; the form's key press event may drop it or put another in its place.
bool WinForm::Character(HWND window, WPARAM unit) {
  Control* const active = Tree()->ActiveControl;
  const bool high = unit >= 0xD800 && unit <= 0xDBFF;
  const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
  if (dropCharacter_) {
    dropCharacter_ = high;  // its other half is still to come
    return true;
  }
  if (active == nullptr || active->Type != Kind::TextBox || !IsUsable(*active)) {
    return ControlOf(window) == nullptr || !AnswersKeys(*ControlOf(window));
  }
  if (high) {
    highSurrogate_ = static_cast<wchar_t>(unit);
    return true;
  }
  if (low && highSurrogate_ == 0) return true;
  const int character =
      low ? CharacterOf(std::exchange(highSurrogate_, L'\0'), static_cast<wchar_t>(unit)) : static_cast<int>(unit);
  auto& box = static_cast<TextBox&>(*active);
  KeyEvent press{character, ShiftNow()};
  if (!Hand().BoxKeyPress(*this, box, press)) return true;
  typingNow_ = true;
  if (press.Code != 0) TypeCharacter(WindowOf(box), press.Code);
  typingNow_ = false;
  Hand().BoxChanged(*this, box);
  return true;
}

}  // namespace Tarnwise
