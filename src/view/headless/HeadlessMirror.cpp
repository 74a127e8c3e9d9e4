#include "view/headless/HeadlessMirror.h"

#include "view/Gesture.h"
#include "view/Input.h"

namespace Tarnwise {

HeadlessMirror::HeadlessMirror(Form& form, int row) : Mirror(form), held_(form.shared_from_this()), row_(row) {}

HeadlessMirror::~HeadlessMirror() { Release(); }

Entered HeadlessMirror::EnteredIn(const TextBox& box) const {
  return {box.Text, box.SelStart, box.SelLength, box.SelStart() + box.SelLength()};
}

bool HeadlessMirror::Press(Control& control) {
  Gesture& hand = Hand();
  const bool taken = hand.Press(*this, control, MiddleOnForm(control));
  return !taken || !Gesture::FollowsMouse(control);
}

// What follows the mouse by itself on a screen is a button that says it was clicked, or a box with its caret.
void HeadlessMirror::LetGo(Control& control) {
  Gesture& hand = Hand();
  hand.Release(*this, MiddleOnForm(control), [&] {
    Input::PutCaretAtEnd(control);
    hand.Clicked(*this, control);
  });
}

void HeadlessMirror::LetFormGo() {
  Release();
  held_.reset();
}

}  // namespace Tarnwise
