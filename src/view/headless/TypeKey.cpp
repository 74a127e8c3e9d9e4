#include "view/headless/HeadlessToolkit.h"

#include "runtime/Utf8.h"
#include "view/Gesture.h"
#include "view/Input.h"
#include "view/Keys.h"
#include "view/Platform.h"
#include "view/headless/HeadlessMirror.h"

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

void TypeIntoBox(HeadlessMirror& mirror, TextBox& box, const KeyStroke& key) {
  Gesture& hand = mirror.Hand();
  KeyEvent down{key.Code, key.Shift};
  if (!hand.BoxKeyDown(mirror, box, down)) return;
  if (key.Character == 0) {
    KeyAction(box, down.Code);
    return;
  }
  KeyEvent press{key.Character, key.Shift};
  if (hand.BoxKeyPress(mirror, box, press)) CharacterAction(box, press.Code);
}

}  // namespace

void TypeKey(Form& form, int code, int character, int shift) {
  const std::shared_ptr<Form> held = form.shared_from_this();
  if (form.ActiveControl == nullptr && code != kKeyTab) return;
  HeadlessMirror mirror(form);
  Gesture& hand = mirror.Hand();
  const Control& at = form.ActiveControl != nullptr ? *form.ActiveControl : form;
  const KeyGoes goes = hand.KeyDown(mirror, at, {code, shift});
  if (goes == KeyGoes::ToBox) {
    TypeIntoBox(mirror, *static_cast<TextBox*>(form.ActiveControl), {code, character, shift});
  } else if (goes == KeyGoes::ToMenu) {
    hand.Mnemonic(mirror, character);
  }
  // Where the focus has gone elsewhere meanwhile, the key comes up there.
  hand.KeyUp(mirror, {code, shift});
}

}  // namespace Tarnwise
