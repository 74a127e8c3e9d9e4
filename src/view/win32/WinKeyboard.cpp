// Keys on their way from Windows to the tree.
#include "view/Input.h"
#include "view/Keys.h"
#include "view/Mnemonics.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"

#include <commctrl.h>

#include <algorithm>

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

}  // namespace

std::optional<LRESULT> WinForm::Keyboard(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto held = shared_from_this();
  if (form_->Screen().IsBlocked(*form_)) return 0;
  bool taken = false;
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: taken = KeyDown(window, control, message, wParam, lParam); break;
    case WM_CHAR: taken = Character(window, wParam); break;
    case WM_SYSCHAR: taken = Mnemonic(wParam); break;
    case WM_KEYUP: KeyUp(static_cast<int>(wParam)); break;
    default: break;
  }
  if (taken) return 0;
  if (control.Type != Kind::ListBox || (message != WM_KEYDOWN && message != WM_CHAR)) return std::nullopt;
  // A list box finds its rows by letters and pages; the tree hears of the row it has gone to.
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  if (ChosenRow(control, window) != static_cast<ListBox&>(control).ListIndex) RowChosen(control);
  return answer;
}

// True: the window itself must not see it.
bool WinForm::KeyDown(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
  if (IsModifier(wParam)) return false;
  const int code = static_cast<int>(wParam);
  const int shift = ShiftNow();
  const WinEntry entry(*form_);
  dropCharacter_ = false;
  if (toolkit_.Drag().ByMouse()) {
    if (code == VK_ESCAPE) {
      press_.Refused = true;  // where the button comes up now is no click
      toolkit_.Drag().Cancel();
    }
    dropCharacter_ = true;
    Settle(nullptr);
    return true;
  }
  if (message == WM_SYSKEYDOWN) return false;  // its character may be a mnemonic
  Control* const active = form_->ActiveControl;
  if (active != nullptr && WindowOf(*active) != nullptr && IsOpen(*active, WindowOf(*active))) return false;
  if (code == VK_TAB && (shift & 6) == 0) {
    dropCharacter_ = true;
    Input::TabKey(*form_, (shift & 1) != 0);
    Settle(nullptr);
    return true;
  }
  // Keys of a control that can't answer now go nowhere.
  if (active == nullptr || !IsUsable(*active)) {
    dropCharacter_ = true;
    return true;
  }
  if (active->Type == Kind::TextBox) {
    auto& box = static_cast<TextBox&>(*active);
    const HWND edit = WindowOf(box);
    typing_ = code;
    StoreCaret(box, edit);
    KeyEvent down{code, shift};
    const bool passes = Input::KeyDown(box, down);
    if (form_ == nullptr || ControlOf(edit) != &box || !passes) {
      dropCharacter_ = true;
      Settle(nullptr);
      return true;
    }
    SyncControl(box);
    if (edit != window) return true;
    typingNow_ = true;
    DefSubclassProc(window, message, static_cast<WPARAM>(down.Code), lParam);
    typingNow_ = false;
    TakeText(box, edit);
    return true;
  }
  if ((shift & 2) == 0 && Input::ControlKey(*active, code, shift)) {
    dropCharacter_ = true;
    Settle(form_ != nullptr ? form_->ActiveControl : nullptr);
    return true;
  }
  if (AnswersKeys(control)) return false;
  dropCharacter_ = true;
  return true;
}

// What a key types; the form's key press event may drop it or put another in its place.
bool WinForm::Character(HWND window, WPARAM unit) {
  Control* const active = form_->ActiveControl;
  const bool high = unit >= 0xD800 && unit <= 0xDBFF;
  const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
  if (dropCharacter_) {
    dropCharacter_ = high;  // its other half is still to come
    return true;
  }
  if (active == nullptr || active->Type != Kind::TextBox || !IsUsable(*active)) {
    return ControlOf(window) == nullptr || !AnswersKeys(*ControlOf(window));
  }
  int character = static_cast<int>(unit);
  if (high) {
    highSurrogate_ = static_cast<wchar_t>(unit);
    return true;
  }
  if (low) {
    if (highSurrogate_ == 0) return true;
    character = 0x10000 + ((highSurrogate_ & 0x3FF) << 10) + (character & 0x3FF);
    highSurrogate_ = 0;
  }
  auto& box = static_cast<TextBox&>(*active);
  const HWND edit = WindowOf(box);
  const WinEntry entry(*form_);
  StoreCaret(box, edit);
  KeyEvent press{character, ShiftNow()};
  const bool types = Input::KeyPress(box, press);
  if (form_ == nullptr || ControlOf(edit) != &box) {
    Settle(nullptr);
    return true;
  }
  SyncControl(box);
  typingNow_ = true;
  if (types) TypeCharacter(edit, press.Code);
  typingNow_ = false;
  TakeText(box, edit);
  return true;
}

// What a key left in the native box.
void WinForm::TakeText(TextBox& box, HWND edit) {
  const std::wstring text = TextOf(edit);
  if (Utf8(text) != box.Text())
    Input::TextEdited(box, Utf8(text), CharactersBefore(text, CaretOf(edit)));
  else
    StoreCaret(box, edit);
  Settle(form_ != nullptr ? ControlOf(edit) : nullptr);
}

void WinForm::KeyUp(int code) {
  if (typing_ != code || form_ == nullptr) return;
  typing_ = 0;
  const WinEntry entry(*form_);
  Control* const active = form_->ActiveControl;
  if (active == nullptr || active->Type != Kind::TextBox) return;
  Input::KeyUp(static_cast<TextBox&>(*active), {code, ShiftNow()});
  Settle(nullptr);
}

bool WinForm::Mnemonic(WPARAM character) {
  const WinEntry entry(*form_);
  if (!Input::Mnemonic(*form_, static_cast<int>(character))) return false;
  Settle(nullptr);
  return true;
}

}  // namespace Tarnwise
