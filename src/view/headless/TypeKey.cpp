#include "view/headless/HeadlessToolkit.h"

#include "runtime/Utf8.h"
#include "view/Input.h"
#include "view/Keys.h"
#include "view/Platform.h"

#include <algorithm>

namespace Tarnwise {

namespace {

void RemoveAt(TextBox& box, int from) {
  if (box.SelLength == 0) {
    if (from < 0 || from >= Length(box.Text())) return;
    box.SelStart = from;
    box.SelLength = 1;
  }
  box.SetSelText("");
}

void MoveCaret(TextBox& box, int to) {
  box.SelStart = std::clamp(to, 0, Length(box.Text()));
  box.SelLength = 0;
}

// What a key does that types nothing.
void KeyAction(TextBox& box, int code) {
  const int start = box.SelStart;
  const int length = box.SelLength;
  switch (code) {
    case kKeyDelete: RemoveAt(box, start); break;
    case kKeyHome: MoveCaret(box, 0); break;
    case kKeyEnd: MoveCaret(box, Length(box.Text())); break;
    case kKeyLeft: MoveCaret(box, length > 0 ? start : start - 1); break;
    case kKeyRight: MoveCaret(box, length > 0 ? start + length : start + 1); break;
    default: break;  // Insert with Shift would paste, and nothing is on the clipboard of a script
  }
}

void CharacterAction(TextBox& box, int character) {
  if (character == kTypedBackspace) {
    RemoveAt(box, box.SelStart() - 1);
  } else if (character == kCtrlA) {
    box.SelStart = 0;
    box.SelLength = Length(box.Text());
  } else if (character >= kBlank && character != kRubOut) {
    String typed;
    AppendUtf8(typed, static_cast<char32_t>(character));
    box.SetSelText(typed);
  }
}

void TypeIntoBox(TextBox& box, int code, int character, int shift) {
  KeyEvent down{code, shift};
  const bool passes = Input::KeyDown(box, down);
  if (passes && character == 0) KeyAction(box, down.Code);
  if (passes && character != 0) {
    KeyEvent press{character, shift};
    if (Input::KeyPress(box, press)) CharacterAction(box, press.Code);
  }
  // Where the focus has gone elsewhere meanwhile, the key comes up there.
  Control* const now = box.Owner.ActiveControl;
  if (now == &box)
    Input::KeyUp(box, {code, shift});
  else if (now != nullptr && now->Type == Kind::TextBox)
    Input::KeyUp(*static_cast<TextBox*>(now), {code, shift});
}

}  // namespace

void TypeKey(Form& form, int code, int character, int shift) {
  const std::shared_ptr<Form> held = form.shared_from_this();
  if (code == kKeyTab) {
    Input::TabKey(form, (shift & kShift) != 0);
    return;
  }
  Control* const control = form.ActiveControl;
  if (control == nullptr) return;
  if (control->Type == Kind::TextBox) {
    TypeIntoBox(*static_cast<TextBox*>(control), code, character, shift);
  } else {
    Input::ControlKey(*control, code, shift);
  }
}

}  // namespace Tarnwise
