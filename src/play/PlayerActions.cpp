// What a script's user does. Each action is tested first: could a person do it now?
#include "play/Player.h"
#include "play/ScriptLine.h"
#include "runtime/Utf8.h"
#include "view/Input.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/Rows.h"

#include <map>
#include <optional>

namespace Tarnwise {

namespace {

struct Spot {
  Control* Target = nullptr;
  ControlPoint At;
};

bool IsWithin(const Control& control, const Control& container) {
  for (const Control* c = control.Parent; c != nullptr; c = c->Parent) {
    if (c == &container) return true;
  }
  return false;
}

// The point of a control that a pointer is brought to: its middle, or another one that nothing covers.
Spot FreeSpot(Control& named, Control& target) {
  const Rect place = PlaceOnForm(named);
  for (const Double fy : {0.5, 0.25, 0.75, 0.05, 0.95, 0.01, 0.99}) {
    for (const Double fx : {0.5, 0.25, 0.75, 0.05, 0.95, 0.01, 0.99}) {
      const FormPoint at{place.X + place.W * fx, place.Y + place.H * fy};
      if (DragTargetAt(named.Owner, at) == &target) return {&target, InScaleOf(target, at)};
    }
  }
  return {&target, InScaleOf(target, MiddleOnForm(named))};
}

// A point that the script names. What the target itself contains may stand over it there and is met then.
Spot NamedSpot(Control& named, Control& target, ControlPoint point) {
  const FormPoint at = OnForm(named, point);
  Control* const hit = DragTargetAt(named.Owner, at);
  const bool met = hit != nullptr && PlaceOnForm(named).Contains(at.X, at.Y) && IsWithin(*hit, target);
  Control* const found = met ? hit : &target;
  return {found, InScaleOf(*found, at)};
}

std::optional<KeyStroke> StrokeOf(const String& name) {
  static const std::map<String, KeyStroke> strokes = {{"Return", {kKeyReturn, kTypedReturn, 0}},
                                                      {"Backspace", {kKeyBackspace, kTypedBackspace, 0}},
                                                      {"Delete", {kKeyDelete, 0, 0}},
                                                      {"Left", {kKeyLeft, 0, 0}},
                                                      {"Right", {kKeyRight, 0, 0}},
                                                      {"Up", {kKeyUp, 0, 0}},
                                                      {"Down", {kKeyDown, 0, 0}},
                                                      {"Home", {kKeyHome, 0, 0}},
                                                      {"End", {kKeyEnd, 0, 0}},
                                                      {"Tab", {kKeyTab, kTypedTab, 0}},
                                                      {"Shift+Tab", {kKeyTab, kTypedTab, kShift}},
                                                      {"Shift+Insert", {kKeyInsert, 0, kShift}},
                                                      {"Ctrl+V", {'V', kCtrlV, kControl}},
                                                      {"Ctrl+A", {'A', kCtrlA, kControl}},
                                                      {"Escape", {kKeyEscape, kTypedEscape, 0}},
                                                      {"Space", {kKeySpace, kBlank, 0}},
                                                      {"Shift+Left", {kKeyLeft, 0, kShift}},
                                                      {"Shift+Right", {kKeyRight, 0, kShift}},
                                                      {"Shift+Up", {kKeyUp, 0, kShift}},
                                                      {"Shift+Down", {kKeyDown, 0, kShift}}};
  const auto found = strokes.find(name);
  return found == strokes.end() ? std::nullopt : std::optional<KeyStroke>(found->second);
}

int CodeOf(char32_t character) {
  if (character >= 'a' && character <= 'z') return static_cast<int>(character - 'a' + 'A');
  if ((character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') || character == ' ') {
    return static_cast<int>(character);
  }
  if (character == '.') return kKeyPeriod;
  if (character == ',') return kKeyComma;
  return character == '-' ? kKeyMinus : kKeyOther;
}

// What lies in the middle of a list, a bar or a toolbar is another thing on every screen.
bool HasOneMeaningToAClick(const Control& control) {
  switch (control.Type) {
    case Kind::Line:
    case Kind::Timer:
    case Kind::VScrollBar:
    case Kind::Toolbar: return false;
    default: return !IsList(control);
  }
}

KeyStroke StrokeFor(char32_t character) { return {CodeOf(character), static_cast<int>(character), 0}; }

}  // namespace

Control& Player::Usable(const String& name) {
  Control& control = NamedControl(*screen_, name);
  const String why = Refusal(control);
  if (!why.empty()) throw Refused(name + ": " + why);
  return control;
}

void Player::RefuseDuringDrag() const {
  if (screen_->Drag.Active()) throw Refused("a drag is under way");
}

void Player::Click(const String& name) {
  RefuseDuringDrag();
  Control& control = Usable(name);
  if (!HasOneMeaningToAClick(control)) throw Refused(name + ": can't be clicked");
  driver_.Click(control);
}

void Player::Select(const String& name, int index) {
  RefuseDuringDrag();
  Control& list = Usable(name);
  if (!IsList(list)) throw Refused(name + ": has no rows to select");
  if (!RowsOf(list).Has(index)) throw Refused(name + ": has no such row");
  driver_.Select(list, index);
}

void Player::PressTool(const String& name, const String& key) {
  RefuseDuringDrag();
  Control& control = Usable(name);
  if (control.Type != Kind::Toolbar) throw Refused(name + ": is no toolbar");
  auto& toolbar = static_cast<Toolbar&>(control);
  const Toolbar::Button* const button = toolbar.Find(key);
  if (button == nullptr) throw Refused(name + ": has no button " + key);
  if (!button->Enabled) throw Refused(name + ": disabled");
  driver_.PressTool(toolbar, key);
}

void Player::Focus(const String& name) {
  RefuseDuringDrag();
  Control& control = Usable(name);
  if (!TakesFocus(control)) throw Refused(name + ": takes no focus");
  driver_.Focus(control);
}

void Player::Stroke(const KeyStroke& key) {
  Form* const form = screen_->ActiveForm();
  if (form == nullptr) throw Refused("no form takes keys");
  const Control* const control = form->ActiveControl;
  if (key.Code != kKeyTab) {
    if (control == nullptr) throw Refused("nothing has the focus");
    if (!IsOnScreen(*control)) throw Refused(control->FullName() + ": hidden");
    if (!IsUsable(*control)) throw Refused(control->FullName() + ": disabled");
  }
  const auto held = form->shared_from_this();
  driver_.Key(*form, key);
}

// The first character belongs to the line. The others come one by one, each after the modal calls that the one before
// has ended; what can't be typed any more is left.
void Player::Type(const String& text) {
  const std::vector<char32_t> characters = CharactersOf(text);
  if (characters.empty()) return;
  Stroke(StrokeFor(characters.front()));
  typed_.assign(characters.begin() + 1, characters.end());
}

bool Player::TypeOn() {
  if (typed_.empty()) return false;
  const char32_t character = typed_.front();
  typed_.pop_front();
  try {
    Stroke(StrokeFor(character));
  } catch (const Refused&) {
    typed_.clear();
  }
  return true;
}

void Player::Key(const String& name) {
  const auto stroke = StrokeOf(name);
  if (!stroke) throw ScriptFault("there is no key \"" + name + "\"");
  Stroke(*stroke);
}

void Player::Grab(const String& name) {
  RefuseDuringDrag();
  Control& source = Usable(name);
  if (!source.DragAutomatic) throw Refused(name + ": can't be dragged");
  driver_.Grab(source);
}

void Player::Over(const std::vector<String>& words, std::size_t first) {
  const std::size_t count = words.size() - first;
  if (count != 1 && count != 3) throw ScriptFault("a target stands alone or with its X and Y");
  std::optional<ControlPoint> point;
  if (count == 3) point = ControlPoint{ScaleNumber(words[first + 1]), ScaleNumber(words[first + 2])};
  if (!screen_->Drag.Active()) throw Refused("nothing is being dragged");
  Control& named = Usable(words[first]);
  Control* const target = DragTargetFor(named);
  if (target == nullptr) {
    driver_.OverNothing();
    return;
  }
  const Spot spot = point ? NamedSpot(named, *target, *point) : FreeSpot(named, *target);
  driver_.Over(*spot.Target, spot.At);
}

void Player::Drag(const std::vector<String>& words) {
  if (words.size() != 3 && words.size() != 5)
    throw ScriptFault("\"drag\" wants a source, a target and maybe its X and Y");
  Usable(words[2]);
  Grab(words[1]);
  try {
    Over(words, 2);
  } catch (...) {
    screen_->Hand.CancelDrag();
    screen_->Drag.Cancel();
    throw;
  }
  Drop();
}

void Player::Drop() {
  if (!screen_->Drag.Active()) throw Refused("nothing is being dragged");
  driver_.Drop();
}

void Player::Scroll(const String& name, int value) {
  RefuseDuringDrag();
  Control& control = Usable(name);
  if (control.Type != Kind::VScrollBar) throw Refused(name + ": is no scroll bar");
  auto& bar = static_cast<VScrollBar&>(control);
  if (value < bar.Min || value > bar.Max) throw Refused(name + ": does not scroll so far");
  driver_.Scroll(bar, value);
}

void Player::Tick(const String& name, int times) {
  Control& control = NamedControl(*screen_, name);
  if (control.Type != Kind::Timer) throw Refused(name + ": is no timer");
  auto& timer = static_cast<Timer&>(control);
  const auto held = timer.Owner.shared_from_this();
  if (timer.Interval == 0) throw Refused(name + ": stopped");
  for (int i = 0; i < times && timer.Interval != 0; ++i) driver_.Tick(timer);
}

void Player::Close() {
  RefuseDuringDrag();
  Form* const form = screen_->ActiveForm();
  if (form == nullptr) throw Refused("no form is open");
  const auto held = form->shared_from_this();
  driver_.Close(*form);
}

}  // namespace Tarnwise
