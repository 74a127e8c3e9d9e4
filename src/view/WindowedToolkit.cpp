#include "view/WindowedToolkit.h"

#include "view/Lifetime.h"

#include <utility>

namespace Tarnwise {

namespace {

// Its windows go with it, once nothing of theirs is on the stack.
void BuryMirror(std::shared_ptr<Mirror> mirror, const Form* form) {
  Bury([kept = std::move(mirror)] { (void)kept; }, form);
}

}  // namespace

WindowedToolkit::~WindowedToolkit() {
  for (auto& [form, mirror] : mirrors_) {
    mirror->Orphan();
    BuryMirror(std::move(mirror), form);
  }
}

Mirror* WindowedToolkit::MirrorOf(const Form& form) const {
  const auto found = mirrors_.find(&form);
  return found == mirrors_.end() ? nullptr : found->second.get();
}

void WindowedToolkit::Show(Form& form, Showing how) {
  std::shared_ptr<Mirror>& mirror = mirrors_[&form];
  if (!mirror) mirror = MakeMirror(form);
  const std::shared_ptr<Mirror> shown = mirror;
  const Form* const active = how == Showing::Blocked ? form.Screen().ActiveForm() : nullptr;
  Bring(*shown, how, active != nullptr ? MirrorOf(*active) : nullptr);
}

void WindowedToolkit::Release(Form& form) {
  const auto found = mirrors_.find(&form);
  if (found != mirrors_.end()) {
    const std::shared_ptr<Mirror> mirror = std::move(found->second);
    mirrors_.erase(found);
    mirror->Release();
    BuryMirror(mirror, &form);
  }
  Wake(form);
}

void WindowedToolkit::ControlUnloaded(Control& control) {
  if (Mirror* const mirror = MirrorOf(control.Owner)) mirror->Forget(control);
}

void WindowedToolkit::Sync(Form& form) {
  if (Mirror* const mirror = MirrorOf(form)) mirror->Sync();
}

void WindowedToolkit::RunModal(Form& form) {
  const auto held = form.shared_from_this();
  while (form.Visible && !form.Released) {
    if (!Pump) {
      if (!WaitFor(form)) break;
      continue;
    }
    TakeEvents();
    if (!form.Visible || form.Released || !Pump()) break;
  }
}

void WindowedToolkit::MessageBox(Form* over, const String& text, int style, const String& title) {
  const std::shared_ptr<Form> held = over != nullptr ? over->shared_from_this() : nullptr;
  if (!AutoAnswer && over != nullptr) over->Screen().Hand.CancelDrag();  // the release goes to the box
  Ask(over != nullptr && over->Visible ? MirrorOf(*over) : nullptr, text, style, title);
}

void WindowedToolkit::Help(Form& form, const String& path, int command, int context) {
  if (!AutoAnswer) OpenHelp(form, path, command, context);
}

// What the program has just enabled or shown must be so on the screen before it can take the keyboard.
void WindowedToolkit::Focus(Control& control) { Sync(control.Owner); }

// Some platforms pass on an alert, others a changed name alone. A new caption has changed the window's name already.
void WindowedToolkit::AnnounceChange(Label& label) {
  Mirror* const mirror = MirrorOf(label.Owner);
  if (mirror != nullptr && mirror->HasWindow(label)) mirror->Announce(label, label.Announces == Announce::Lit);
}

}  // namespace Tarnwise
