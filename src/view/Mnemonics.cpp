#include "view/Mnemonics.h"

#include "view/Captions.h"
#include "view/Input.h"
#include "view/Lettering.h"
#include "view/Reach.h"

#include <algorithm>

namespace Tarnwise::Input {

namespace {

// What the caption's mnemonic leads to now; null where a person can't get there.
Control* LedTo(Control& control) {
  if (!IsOnScreen(control) || IsCovered(control)) return nullptr;
  Control* const meant = control.Type == Kind::Label ? LabelledBy(static_cast<Label&>(control)) : &control;
  return meant != nullptr && Refusal(*meant).empty() ? meant : nullptr;
}

}  // namespace

bool Mnemonic(Form& form, int character) {
  const int lower = character >= 'A' && character <= 'Z' ? character - 'A' + 'a' : character;
  if (lower <= ' ') return false;
  std::vector<Control*> meant;
  bool names = false;  // the last one found is a label's
  for (Control* control : form.Controls()) {
    if (!HasCaption(*control) || MnemonicOf(CaptionOf(*control)) != lower) continue;
    Control* const found = LedTo(*control);
    if (found == nullptr) continue;
    meant.push_back(found);
    names = found != control;
  }
  if (meant.empty()) return false;
  if (meant.size() > 1 || names) {
    const auto present = std::find(meant.begin(), meant.end(), form.ActiveControl);
    const bool wraps = present == meant.end() || std::next(present) == meant.end();
    MoveFocus(wraps ? *meant.front() : **std::next(present));
  } else if (Press(*meant.front())) {
    Activate(*meant.front());
  }
  return true;
}

}  // namespace Tarnwise::Input
