#include "view/Mirror.h"

#include "view/Platform.h"

#include <algorithm>
#include <utility>

namespace Tarnwise {

Gesture& Mirror::Hand() const { return form_->Screen().Hand; }

void Mirror::SyncAll() {
  if (form_ == nullptr) return;
  ApplyForm();
  for (Control* control : form_->Controls()) SyncControl(*control);
  Restack();
}

void Mirror::Sync() {
  if (form_ == nullptr || !HasWindow(*form_)) return;
  for (Control* control : std::vector<Control*>(form_->ChangedControls)) SyncControl(*control);
  Restack();
  FocusTree();
}

void Mirror::SyncControl(Control& control) {
  if (form_ == nullptr || !HasWindow(*form_)) return;
  if (&control == form_) {
    ApplyForm();
  } else if (control.Type == Kind::Timer) {
    auto& timer = static_cast<Timer&>(control);
    const bool runs = timer.Interval > 0 && timer.Enabled && form_->Screen().Tools().RealTimers;
    RunTimer(timer, runs ? timer.Interval() : 0);
  } else if (IsPainted(control)) {
    SyncPainted(control);
  } else if (HasWindow(control)) {
    Bring(control);
  } else {
    Make(control);
  }
}

void Mirror::Make(Control& control) {
  if (!HasWindow(*control.Parent)) SyncControl(*control.Parent);
  if (!Create(control)) return;
  Bring(control);
  RestackLater(*control.Parent);
}

void Mirror::Bring(Control& control) {
  PutAt(control, WindowPlace(control, Scale()));
  int& order = orders_[&control];
  if (order != control.Order) RestackLater(*control.Parent);
  order = control.Order;
  Apply(control);
  ShowTip(control, HasCaption(control) ? Fitted(control).Tip : control.ToolTipText());
}

FittedCaption Mirror::Fitted(const Control& control) const {
  return FitCaption(control, Scale(),
                    [this](const String& text, const TypeFace& face) { return TextWidth(text, face); });
}

// Where it was and where it is now.
void Mirror::SyncPainted(const Control& control) {
  if (!HasWindow(*control.Parent)) return;
  PixelRect& place = painted_[&control];
  Repaint(*control.Parent, place);
  place = PaintedPlace(control, Scale());
  Repaint(*control.Parent, place);
}

void Mirror::RestackLater(const Control& container) {
  if (std::find(restack_.begin(), restack_.end(), &container) == restack_.end()) restack_.push_back(&container);
}

void Mirror::Restack() {
  for (const Control* container : std::exchange(restack_, {})) {
    if (form_ == nullptr || !HasWindow(*container)) continue;
    for (const Control* child : ChildrenOf(*form_, container)) {
      if (HasWindow(*child)) ToFront(*child);
    }
    BorderToFront(*container);
  }
}

void Mirror::Settle(Control* control) {
  if (form_ == nullptr) return;
  if (form_->Screen().HandlerDepth == 0) form_->Screen().SyncAll();
  if (form_ == nullptr) return;
  const auto& controls = form_->Controls();
  const bool isThere = std::find(controls.begin(), controls.end(), control) != controls.end();
  if (isThere && HasWindow(*control)) SyncControl(*control);
  FocusTree();
  Hand().ShowDrag(*this);
}

void Mirror::Forget(const Control& control) {
  orders_.erase(&control);
  const auto painted = painted_.find(&control);
  if (painted != painted_.end()) {
    if (HasWindow(*control.Parent)) Repaint(*control.Parent, painted->second);
    painted_.erase(painted);
  }
  std::erase(restack_, &control);
  Destroy(control);
}

void Mirror::Release() {
  if (form_ == nullptr) return;
  Hand().Forget(*this);
  Orphan();
}

void Mirror::Orphan() {
  form_ = nullptr;
  DestroyAll();
}

}  // namespace Tarnwise
