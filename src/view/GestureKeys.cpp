// What keys mean on a form.
#include "view/Gesture.h"
#include "view/Input.h"
#include "view/Keys.h"
#include "view/Lifetime.h"
#include "view/Mnemonics.h"
#include "view/Platform.h"

#include <algorithm>
#include <utility>

namespace Tarnwise {

namespace {

bool IsThere(const Mirror& mirror, const TextBox& box) {
  if (mirror.Tree() == nullptr) return false;
  const auto& controls = mirror.Tree()->Controls();
  return std::find(controls.begin(), controls.end(), &box) != controls.end();
}

}  // namespace

KeyGoes Gesture::KeyDown(Mirror& mirror, const Control& at, KeyEvent key) {
  Form& form = *mirror.Tree();
  if (platform_.IsBlocked(form)) return KeyGoes::Nowhere;
  const Entry entry(form);
  const int held = key.Shift & (kControl | kAlt);
  if (dragging_) {
    if (key.Code == kKeyEscape) {
      press_.Refused = true;  // where the button comes up now is no click
      CancelDrag();
    }
    mirror.Settle(nullptr);
    return KeyGoes::Nowhere;
  }
  if (key.Code == kKeyTab && held == 0) {
    Input::TabKey(form, (key.Shift & kShift) != 0);
    mirror.Settle(nullptr);
    return KeyGoes::Nowhere;
  }
  if (held == kAlt) return KeyGoes::ToMenu;
  // Keys of a control that can't answer now go nowhere.
  Control* const active = form.ActiveControl;
  if (active == nullptr || !IsUsable(*active)) return KeyGoes::Nowhere;
  if (active->Type == Kind::TextBox) return KeyGoes::ToBox;
  if ((held & kControl) == 0 && key.Code != 0 && Input::ControlKey(*active, key.Code, key.Shift)) {
    mirror.Settle(form.ActiveControl);
    return KeyGoes::Nowhere;
  }
  return AnswersKeys(at) ? KeyGoes::ToNative : KeyGoes::Nowhere;
}

bool Gesture::BoxKeyDown(Mirror& mirror, TextBox& box, KeyEvent& down) {
  typing_ = down.Code;
  StoreCaret(mirror, box);
  const Entry entry(*mirror.Tree());
  if (Input::KeyDown(box, down) && IsThere(mirror, box)) {
    mirror.SyncControl(box);
    return true;
  }
  mirror.Settle(nullptr);
  return false;
}

bool Gesture::BoxKeyPress(Mirror& mirror, TextBox& box, KeyEvent& press) {
  StoreCaret(mirror, box);
  const Entry entry(*mirror.Tree());
  if (!Input::KeyPress(box, press)) press.Code = 0;
  if (IsThere(mirror, box)) {
    mirror.SyncControl(box);
    return true;
  }
  mirror.Settle(nullptr);
  return false;
}

void Gesture::BoxChanged(Mirror& mirror, TextBox& box) {
  const Entry entry(*mirror.Tree());
  const Entered entered = mirror.EnteredIn(box);
  if (entered.Text != box.Text())
    Input::TextEdited(box, entered.Text, entered.Caret);
  else
    StoreCaret(mirror, box);
  mirror.Settle(&box);
}

// A text on its way into the tree is told by BoxChanged, caret and all.
void Gesture::StoreCaret(const Mirror& mirror, TextBox& box) {
  const Entered entered = mirror.EnteredIn(box);
  if (entered.Text != box.Text()) return;
  box.SelStart = entered.SelStart;
  box.SelLength = entered.SelLength;
}

bool Gesture::KeyUp(Mirror& mirror, KeyEvent key) {
  if (key.Code == 0 || typing_ != key.Code) return false;
  typing_ = 0;
  const Entry entry(*mirror.Tree());
  Control* const active = mirror.Tree()->ActiveControl;
  if (active != nullptr && active->Type == Kind::TextBox) {
    Input::KeyUp(static_cast<TextBox&>(*active), key);
    mirror.Settle(nullptr);
  }
  return true;
}

bool Gesture::Mnemonic(Mirror& mirror, int character) {
  const Entry entry(*mirror.Tree());
  if (!Input::Mnemonic(*mirror.Tree(), character)) return false;
  mirror.Settle(nullptr);
  return true;
}

}  // namespace Tarnwise
