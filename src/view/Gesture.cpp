#include "view/Gesture.h"

#include "view/Dispatch.h"
#include "view/Input.h"
#include "view/Lifetime.h"
#include "view/Mnemonics.h"

#include <utility>

namespace Tarnwise {

bool Gesture::FollowsMouse(const Control& control) { return !control.DragAutomatic && Tarnwise::FollowsMouse(control); }

bool Gesture::Press(Mirror& mirror, Control& control, FormPoint at) {
  const Entry entry(*mirror.Tree());
  press_ = {&control, -1, false, FollowsMouse(control)};
  CancelDrag();
  if (platform_.Drag.Active()) platform_.Drag.Cancel();
  if (!PressIsGood(mirror, control, at)) {
    press_.Refused = true;
    return true;
  }
  mirror.Settle(nullptr);
  if (mirror.Tree() == nullptr || press_.On != &control) return true;
  if (control.DragAutomatic) {
    armed_ = &mirror;
    source_ = &control;
    start_ = at;
  }
  if (press_.Native) return false;
  mirror.HoldMouse();
  return true;
}

// The focus that moves may take the control or the whole form away.
bool Gesture::PressIsGood(Mirror& mirror, Control& control, FormPoint at) {
  if (mirror.Tree() == nullptr || press_.On != &control || !IsUsable(control)) return false;
  if (HasRows(control)) press_.Row = mirror.TouchOf(control, at).Row;
  const bool good = Input::Press(control);
  if (good && mirror.Tree() != nullptr && press_.On == &control) return true;
  mirror.Settle(nullptr);
  return false;
}

bool Gesture::Move(Mirror& mirror, FormPoint at, bool leftIsDown) {
  if (!leftIsDown || press_.Refused) return press_.Refused && leftIsDown;
  if (press_.On == nullptr) return false;
  const Entry entry(*mirror.Tree());
  return MoveDrag(at) || !press_.Native;
}

bool Gesture::Release(Mirror& mirror, FormPoint at, const std::function<void()>& native) {
  const Entry entry(*mirror.Tree());
  if (EndDrag(&DragSession::Drop)) {
    press_ = {};
    mirror.LetMouseGo();
    mirror.Settle(nullptr);
    return true;
  }
  const LeftButton press = press_;
  if (press.Native && !press.Refused && press.On != nullptr) {
    native();
    press_ = {};
    return true;
  }
  press_ = {};
  mirror.LetMouseGo();
  if (press.Refused || press.On == nullptr) return press.Refused;
  FinishPress(mirror, press, at);
  return true;
}

void Gesture::FinishPress(Mirror& mirror, const LeftButton& press, FormPoint at) {
  Control& control = *press.On;
  if (!mirror.HasWindow(control)) return;
  const Touch touch = mirror.TouchOf(control, at);
  if (!touch.Inside) return;
  if (HasRows(control)) {
    if (touch.Row < 0 || touch.Row != press.Row) return;
    Input::SelectRow(control, touch.Row);
  } else {
    Input::Activate(control);
  }
  mirror.Settle(&control);
}

void Gesture::MouseLost() {
  if (dragging_) CancelDrag();
  if (!press_.Native) press_ = {};
}

bool Gesture::Wheel(Mirror& mirror, Control& control, int by) {
  const Entry entry(*mirror.Tree());
  if (!Input::Wheel(control, by)) return false;
  mirror.Settle(nullptr);
  return true;
}

// By the mouse, whose press the tree knows, or without it, by a screen reader.
bool Gesture::WasPressed(Control& control) {
  if (press_.On != &control || press_.Refused) return Refusal(control).empty() && Input::Press(control);
  press_ = {};
  return true;
}

// Toggling of the native control's own is undone or confirmed by what the tree says afterwards.
void Gesture::Clicked(Mirror& mirror, Control& control) {
  const Entry entry(*mirror.Tree());
  if (WasPressed(control)) Input::Activate(control);
  mirror.Settle(&control);
}

void Gesture::ToolPressed(Mirror& mirror, Toolbar& bar, std::size_t button) {
  if (button >= bar.Buttons.size() || !bar.Buttons[button].Enabled) return;
  const Entry entry(*mirror.Tree());
  if (WasPressed(bar)) Input::PressToolButton(bar, String(bar.Buttons[button].Key));
  mirror.Settle(&bar);
}

void Gesture::RowChosen(Mirror& mirror, Control& list, int row) {
  const Entry entry(*mirror.Tree());
  if (row >= 0 && Refusal(list).empty()) Input::SelectRow(list, row);
  mirror.Settle(&list);
}

// What was dragged has told each step by Scroll; its end is a change, too.
void Gesture::Scrolled(Mirror& mirror, VScrollBar& bar, int value, bool dragging) {
  const Entry entry(*mirror.Tree());
  const bool dragged = std::exchange(scrolled_, dragging) && !dragging;
  if (dragged && value == bar.Value && bar.Change) {
    Dispatch(bar, "Change", [&bar] { bar.Change(); });
  } else {
    Input::ScrollTo(bar, value, dragging);
  }
  mirror.Settle(dragging ? nullptr : &bar);
}

void Gesture::FocusCame(Mirror& mirror, Control& control) {
  const Entry entry(*mirror.Tree());
  if (TakesFocus(control) && Refusal(control).empty()) Input::MoveFocus(control);
  mirror.Settle(nullptr);
}

void Gesture::CarriedTo(Control& source, Single x, Single y) {
  if (!Refusal(source).empty() || platform_.Drag.Active() || !source.Parent->TakesDrags()) return;
  const Entry entry(source.Owner);
  platform_.Drag.Begin(source);
  platform_.Drag.Over(*source.Parent, x, y);
  platform_.Drag.Drop();
}

void Gesture::CloseWanted(Mirror& mirror) {
  const Entry entry(*mirror.Tree());
  Input::CloseForm(*mirror.Tree());
  mirror.Settle(nullptr);
}

// Its message may still be under way when it has been stopped.
void Gesture::Ticked(Mirror& mirror, Timer& timer) {
  if (timer.Interval == 0 || !timer.Enabled) return;
  const Entry entry(*mirror.Tree());
  Input::Tick(timer);
  mirror.Settle(nullptr);
}

void Gesture::Forget(const Control& control) {
  if (press_.On == &control) press_ = {nullptr, -1, true, false};
  if (source_ == &control) ClearDrag();
}

void Gesture::Forget(const Mirror& mirror) {
  if (armed_ == &mirror || seenIn_ == &mirror) ClearDrag();
  if (press_.On != nullptr && &press_.On->Owner == mirror.Tree()) press_ = {};
}

int ShownPointer(const Control& control) {
  const int own = PointerOver(control);
  if (own != kDefaultPointer) return own;
  if (control.DragAutomatic && control.Enabled) return kGrabPointer;
  return control.Type == Kind::TextBox ? kTextPointer : kDefaultPointer;
}

int ShownPointer(const Carried& carried) { return carried.Taken ? kCarryPointer : kNoDrop; }

}  // namespace Tarnwise
