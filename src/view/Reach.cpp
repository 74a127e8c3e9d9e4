#include "view/Reach.h"

#include "view/Platform.h"

#include <algorithm>

namespace Tarnwise {

namespace {

bool IsPanel(const Control& control) {
  return control.Type == Kind::PictureBox || control.Type == Kind::Frame || control.Type == Kind::Grid;
}

bool HasPlace(const Control& control) { return control.Type != Kind::Timer && control.Type != Kind::Line; }

Rect Intersection(const Rect& a, const Rect& b) {
  Rect r;
  r.X = std::max(a.X, b.X);
  r.Y = std::max(a.Y, b.Y);
  r.W = std::max(0.0, std::min(a.X + a.W, b.X + b.W) - r.X);
  r.H = std::max(0.0, std::min(a.Y + a.H, b.Y + b.H) - r.Y);
  return r;
}

// One container, front to back. `blocked` comes back true when a panel hides whatever is farther back.
Control* TargetIn(const Form& form, const Control& container, FormPoint at, bool& blocked) {
  std::vector<Control*> children = ChildrenOf(form, &container);
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    Control& control = **child;
    if (!control.Visible || !HasPlace(control) || !PlaceOnForm(control).Contains(at.X, at.Y)) continue;
    bool inside = false;
    if (Control* const found = TargetIn(form, control, at, inside)) return found;
    if (control.Enabled && control.TakesDrags()) return &control;
    if (inside || (IsPanel(control) && !control.DragAutomatic)) {
      blocked = true;
      return nullptr;
    }
  }
  return nullptr;
}

// What has a place in the tab order, in that order.
std::vector<Control*> TabStops(const Form& form) {
  std::vector<Control*> stops;
  for (Control* control : form.Controls()) {
    if (control->TabIndex >= 0 && TakesTab(*control)) stops.push_back(control);
  }
  std::stable_sort(stops.begin(), stops.end(), [](const Control* a, const Control* b) {
    return a->TabIndex != b->TabIndex ? a->TabIndex < b->TabIndex : a->Index < b->Index;
  });
  return stops;
}

}  // namespace

Double UnitOf(const Control& container) {
  return container.Scale == ScaleMode::Pixels ? static_cast<Double>(kTwipsPerPixel) : 1.0;
}

Rect PlaceOnForm(const Control& control) {
  const auto width = static_cast<Double>(control.Width());
  const auto height = static_cast<Double>(control.Height());
  if (control.Parent == nullptr) return {0.0, 0.0, width, height};
  const Rect around = PlaceOnForm(*control.Parent);
  const Double unit = UnitOf(*control.Parent);
  return {around.X + static_cast<Double>(control.Left()) * unit, around.Y + static_cast<Double>(control.Top()) * unit,
          width * unit, height * unit};
}

FormPoint OnForm(const Control& control, ControlPoint at) {
  const Rect place = PlaceOnForm(control);
  const Double unit = UnitOf(control);
  return {place.X + static_cast<Double>(at.X) * unit, place.Y + static_cast<Double>(at.Y) * unit};
}

ControlPoint InScaleOf(const Control& control, FormPoint at) {
  const Rect place = PlaceOnForm(control);
  const Double unit = UnitOf(control);
  return {static_cast<Single>((at.X - place.X) / unit), static_cast<Single>((at.Y - place.Y) / unit)};
}

FormPoint MiddleOnForm(const Control& control) {
  const Rect place = PlaceOnForm(control);
  return {place.X + place.W / 2.0, place.Y + place.H / 2.0};
}

Rect VisiblePlace(const Control& control) {
  Rect place = PlaceOnForm(control);
  for (const Control* around = control.Parent; around != nullptr; around = around->Parent) {
    place = Intersection(place, PlaceOnForm(*around));
  }
  return place;
}

bool IsOnScreen(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->Parent) {
    if (!c->Visible) return false;
  }
  return true;
}

bool IsUsable(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->Parent) {
    if (!c->Visible || !c->Enabled) return false;
  }
  return true;
}

bool IsCovered(const Control& control) {
  for (const Control* c = &control; c->Parent != nullptr; c = c->Parent) {
    const Rect place = PlaceOnForm(*c);
    for (const Control* other : c->Owner.Controls()) {
      if (other->Parent != c->Parent || other == c || other->Order() < c->Order()) continue;
      if (!other->Visible || !IsPanel(*other) || other->DragAutomatic) continue;
      if (PlaceOnForm(*other).Contains(place)) return true;
    }
  }
  return false;
}

bool TakesFocus(const Control& control) {
  switch (control.Type) {
    case Kind::CommandButton:
    case Kind::TextBox:
    case Kind::ListBox:
    case Kind::OptionButton:
    case Kind::CheckBox:
    case Kind::VScrollBar:
    case Kind::TabStrip:
    case Kind::ImageCombo:
    case Kind::ComboBox:
    case Kind::Grid: return true;
    case Kind::Toolbar: return false;       // its buttons are pressed without taking the focus from where it is
    default: return control.DragAutomatic;  // so that the keyboard can pick it up
  }
}

bool TakesTab(const Control& control) { return TakesFocus(control) || control.Type == Kind::Toolbar; }

bool FollowsMouse(const Control& control) {
  switch (control.Type) {
    case Kind::CommandButton:
    case Kind::OptionButton:
    case Kind::CheckBox:
    case Kind::TextBox:
    case Kind::VScrollBar:
    case Kind::ComboBox:
    case Kind::ImageCombo:
    case Kind::Toolbar:
    case Kind::Grid: return true;
    default: return false;
  }
}

bool HasCaption(const Control& control) {
  return control.Type == Kind::Label || control.Type == Kind::CommandButton || control.Type == Kind::OptionButton ||
         control.Type == Kind::CheckBox;
}

bool HasRows(const Control& control) { return control.Type == Kind::ListBox || control.Type == Kind::TabStrip; }

bool AnswersKeys(const Control& control) {
  return control.Type == Kind::ListBox || control.Type == Kind::ComboBox || control.Type == Kind::ImageCombo ||
         control.Type == Kind::Grid;
}

Control* LabelledBy(const Label& label) {
  if (label.TabIndex < 0) return nullptr;
  for (Control* stop : TabStops(label.Owner)) {
    if (stop->TabIndex >= label.TabIndex) return stop;
  }
  return nullptr;
}

String Refusal(const Control& control) {
  const Form& form = control.Owner;
  if (!IsOnScreen(control)) return "hidden";
  if (form.Screen().IsBlocked(form) || form.Screen().ActiveForm() != &form) return "blocked by a modal form";
  if (!IsUsable(control)) return "disabled";
  if (IsCovered(control)) return "covered";
  return {};
}

Control* DragTargetAt(const Form& form, FormPoint at) {
  bool blocked = false;
  if (Control* const found = TargetIn(form, form, at, blocked)) return found;
  if (!PlaceOnForm(form).Contains(at.X, at.Y)) return nullptr;
  return form.TakesDrags() ? const_cast<Form*>(&form) : nullptr;  // NOLINT: the form was const for looking only
}

FormPoint PointerOf(const DragSession& drag) {
  return drag.Target() != nullptr ? OnForm(*drag.Target(), {drag.X(), drag.Y()}) : MiddleOnForm(*drag.Source());
}

Control* DragTargetFor(Control& control) {
  for (Control* c = &control; c != nullptr; c = c->Parent) {
    if (c->TakesDrags()) return c;
  }
  return nullptr;
}

std::vector<Control*> ChildrenOf(const Form& form, const Control* container) {
  std::vector<Control*> children;
  for (Control* control : form.Controls()) {
    if (control->Parent == container) children.push_back(control);
  }
  std::stable_sort(children.begin(), children.end(),
                   [](const Control* a, const Control* b) { return a->Order() < b->Order(); });
  return children;
}

Control* NextInTabOrder(const Form& form, bool back) {
  std::vector<Control*> stops = TabStops(form);
  if (back) std::reverse(stops.begin(), stops.end());
  const auto present = std::find(stops.begin(), stops.end(), form.ActiveControl);
  if (present != stops.end()) std::rotate(stops.begin(), std::next(present), stops.end());
  const auto next = std::find_if(stops.begin(), stops.end(), [](const Control* control) {
    return IsUsable(*control) && !IsCovered(*control) && control->Width > 0.0F;
  });
  return next == stops.end() ? nullptr : *next;
}

}  // namespace Tarnwise
