#include "view/WindowedDriver.h"

#include "view/Input.h"
#include "view/Lifetime.h"
#include "view/Rows.h"

#include <utility>

namespace Tarnwise {

WindowedDriver::WindowedDriver(std::shared_ptr<Platform> screen)
    : screen_(std::move(screen)), toolkit_(static_cast<WindowedToolkit&>(screen_->Tools())) {
  toolkit_.RealTimers = false;
  toolkit_.AutoAnswer = true;
}

bool WindowedDriver::IsReady(const Control& control) const {
  toolkit_.TakeEvents();
  const Mirror* const mirror = toolkit_.MirrorOf(control.Owner);
  return mirror != nullptr && mirror->HasWindow(control);
}

void WindowedDriver::Click(Control& control) {
  const auto held = control.Owner.shared_from_this();
  if (!IsReady(control)) return;
  ClickOn(control);
  toolkit_.TakeEvents();
}

void WindowedDriver::Select(Control& list, int index) {
  const auto held = list.Owner.shared_from_this();
  if (!IsReady(list)) return;
  const int row = index - RowsOf(list).First;
  if (HasRows(list))
    ClickPart(list, row);
  else
    ChooseFromOpened(list, row);
  toolkit_.TakeEvents();
}

void WindowedDriver::PressTool(Toolbar& toolbar, const String& key) {
  const auto held = toolbar.Owner.shared_from_this();
  const Toolbar::Button* const tool = toolbar.Find(key);
  if (tool == nullptr || !IsReady(toolbar)) return;
  ClickPart(toolbar, static_cast<int>(tool - toolbar.Buttons.data()));
  toolkit_.TakeEvents();
}

void WindowedDriver::Focus(Control& control) {
  const Entry entry(control.Owner);
  toolkit_.TakeEvents();
  if (Input::MoveFocus(control)) Input::PutCaretAtEnd(control);
  screen_->SyncAll();
}

void WindowedDriver::Key(Form& form, const KeyStroke& key) {
  const auto held = form.shared_from_this();
  if (IsReady(form)) PressKey(form, key);
}

void WindowedDriver::Grab(Control& source) {
  holds_ = IsReady(source);
  if (!holds_) return;
  PressOn(source);
  screen_->Hand.BeginDrag();  // the first move may be as near as it likes
}

void WindowedDriver::Over(Control& target, ControlPoint at) {
  const Entry entry(target.Owner);
  const FormPoint onForm = OnForm(target, at);
  if (!holds_ || DragTargetAt(target.Owner, onForm) != &target)
    screen_->Drag.Over(target, at.X, at.Y);  // clipped by a viewport, or another one of the row stands in front
  else if (!MoveOver(target.Owner, onForm))
    screen_->Hand.MoveDrag(onForm);
}

void WindowedDriver::OverNothing() {
  const Entry entry(screen_->Drag.Source()->Owner);
  screen_->Drag.OverNothing();
}

void WindowedDriver::Drop() {
  if (!std::exchange(holds_, false)) {
    screen_->Drag.Drop();
    return;
  }
  LetGo();
  toolkit_.TakeEvents();
}

void WindowedDriver::Scroll(VScrollBar& bar, int value) {
  const auto held = bar.Owner.shared_from_this();
  if (IsReady(bar) && Input::Press(bar)) MoveThumb(bar, value);
}

void WindowedDriver::Tick(Timer& timer) {
  const Entry entry(timer.Owner);
  Input::Tick(timer);
}

void WindowedDriver::Close(Form& form) {
  const auto held = form.shared_from_this();
  if (IsReady(form)) PressClose(form);
}

bool WindowedDriver::Shot(Form& form, const String& path) { return IsReady(form) && TakePicture(form, path); }

}  // namespace Tarnwise
