#include "view/headless/HeadlessToolkit.h"

#include "runtime/Text.h"
#include "view/Input.h"
#include "view/Platform.h"

#include <algorithm>

namespace Tarnwise {

namespace {

enum KeyCode { kBackspace = 8, kTab = 9, kEnd = 35, kHome = 36, kLeft = 37, kRight = 39, kInsert = 45, kDelete = 46 };
enum Character { kCtrlA = 1, kCtrlV = 22, kBlank = 32 };

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
    case kDelete: RemoveAt(box, start); break;
    case kHome: MoveCaret(box, 0); break;
    case kEnd: MoveCaret(box, Length(box.Text())); break;
    case kLeft: MoveCaret(box, length > 0 ? start : start - 1); break;
    case kRight: MoveCaret(box, length > 0 ? start + length : start + 1); break;
    default: break;  // Insert with Shift would paste, and nothing is on the clipboard of a script
  }
}

void CharacterAction(TextBox& box, int character) {
  if (character == kBackspace) {
    RemoveAt(box, box.SelStart() - 1);
  } else if (character == kCtrlA) {
    box.SelStart = 0;
    box.SelLength = Length(box.Text());
  } else if (character >= kBlank && character != 127) {
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
  if (code == kTab) {
    Input::TabKey(form, (shift & 1) != 0);
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
