#include "view/Platform.h"

#include "view/Dispatch.h"
#include "view/Reach.h"
#include "view/Speech.h"

#include <algorithm>
#include <utility>

namespace Tarnwise {

namespace {

template <class T>
void Remove(std::vector<T>& from, T what) {
  from.erase(std::remove(from.begin(), from.end(), what), from.end());
}

constexpr int kCritical = 16;

// A form's place among the modal calls that are running, given back however the call ends.
class ModalCall {
 public:
  ModalCall(std::vector<Form*>& calls, Form& form) : calls_(calls), form_(&form) { calls_.push_back(form_); }
  ModalCall(const ModalCall&) = delete;
  ModalCall& operator=(const ModalCall&) = delete;
  ~ModalCall() {
    const auto call = std::find(calls_.rbegin(), calls_.rend(), form_);
    if (call != calls_.rend()) calls_.erase(std::next(call).base());
  }

 private:
  std::vector<Form*>& calls_;
  Form* const form_;
};

// A message box, a modal form or a host's help inside a handler: handlers that run meanwhile bring their own changes to
// the screen.
class FreshHandlers {
 public:
  explicit FreshHandlers(int& depth) : depth_(depth), outside_(std::exchange(depth, 0)) {}
  FreshHandlers(const FreshHandlers&) = delete;
  FreshHandlers& operator=(const FreshHandlers&) = delete;
  ~FreshHandlers() { depth_ = outside_; }

 private:
  int& depth_;
  const int outside_;
};

}  // namespace

String HandlerName(const Form& form, const String& control, const char* event) {
  return form.Name + "." + control + "_" + event;
}

Platform::Platform(std::shared_ptr<Toolkit> toolkit) : toolkit_(std::move(toolkit)) {}

Platform::~Platform() = default;

void Platform::Created(Form& form) { forms_.push_back(&form); }

void Platform::Show(Form& form) {
  if (form.Released) return;
  if (form.Visible) {  // behind another one perhaps, which is gone now
    if (!IsBlocked(form)) toolkit_->Show(form, ShowingOf(form));
    return;
  }
  form.Visible = true;
  Remove(shownOrder_, &form);
  shownOrder_.push_back(&form);
  if (form.ActiveControl == nullptr) form.ActiveControl = NextInTabOrder(form, false);
  form.Activate();
  if (Trace.Shown) Trace.Shown(form, false);
  TakeAsTold(form);
  SyncAll();
  toolkit_->Show(form, ShowingOf(form));
}

void Platform::ShowModal(Form& form) {
  if (form.Released) return;
  const bool hidden = !form.Visible;
  form.Visible = true;
  Remove(shownOrder_, &form);
  shownOrder_.push_back(&form);
  const ModalCall call(modal_, form);
  if (form.ActiveControl == nullptr) form.ActiveControl = NextInTabOrder(form, false);
  form.Activate();
  if (hidden && Trace.Shown) Trace.Shown(form, true);
  if (hidden) TakeAsTold(form);
  SyncAll();
  toolkit_->Show(form, Showing::Modal);
  const FreshHandlers fresh(HandlerDepth);
  toolkit_->RunModal(form);
}

void Platform::Hide(Form& form) {
  if (!form.Visible) return;
  form.Visible = false;
  Remove(shownOrder_, &form);
  if (Drag.Active() && &Drag.Source()->Owner == &form) Drag.Forget(*Drag.Source());
  if (Trace.Hidden) Trace.Hidden(form);
  toolkit_->Hide(form);
  Hand.CancelDrag();
}

void Platform::Release(Form& form) {
  if (form.Released) return;
  Hide(form);
  form.Released = true;
  form.Disconnect();
  Remove(forms_, &form);
  if (Trace.Released) Trace.Released(form);
  toolkit_->Release(form);
}

bool Platform::IsModal(const Form& form) const {
  return std::find(modal_.begin(), modal_.end(), &form) != modal_.end();
}

bool Platform::IsBlocked(const Form& form) const {
  if (IsModal(form)) return ActiveForm() != &form;
  return std::any_of(modal_.begin(), modal_.end(), [](const Form* other) { return !other->Released; });
}

Showing Platform::ShowingOf(const Form& form) const {
  return IsBlocked(form) ? Showing::Blocked : IsModal(form) ? Showing::Modal : Showing::Modeless;
}

Form* Platform::ActiveForm() const {
  for (auto form = modal_.rbegin(); form != modal_.rend(); ++form) {
    if ((*form)->Visible) return *form;
  }
  return shownOrder_.empty() ? nullptr : shownOrder_.back();
}

void Platform::MessageBox(const String& text, int style, const String& title) {
  ++messagesShown_;
  if (Trace.MessageBox) Trace.MessageBox(text, style, title);
  SyncAll();
  const FreshHandlers fresh(HandlerDepth);
  toolkit_->MessageBox(ActiveForm(), text, style, title);
}

void Platform::Beep() {
  if (Trace.Beep) Trace.Beep();
  toolkit_->Beep();
}

void Platform::SetPointer(int pointer) {
  pointer_ = pointer;
  if (Trace.Pointer) Trace.Pointer(pointer);
  toolkit_->SetPointer(pointer);
}

void Platform::Help(Form& form, const String& path, int command, int context) {
  if (Trace.Help) Trace.Help(path, command, context);
  SyncAll();
  const FreshHandlers fresh(HandlerDepth);  // it may show a window and wait
  const HelpOperation help = HostsHelp;     // it may set another one
  if (help)
    help(toolkit_->WindowOf(form), path, command, context);
  else
    toolkit_->Help(form, path, command, context);
}

void Platform::SetFocus(Control& control) {
  Form& form = control.Owner;
  if (form.Released || !IsUsable(control) || form.ActiveControl == &control) return;
  Control* const former = form.ActiveControl;
  form.ActiveControl = &control;
  if (Trace.Focus) Trace.Focus(control);
  // What had the focus only on the way to a message raises no check of its own.
  if (former != nullptr && LosingFocus == 0) RaiseEvent(*former, "LostFocus", former->LostFocus);
  if (form.ActiveControl == &control) {
    toolkit_->Focus(control);
    RaiseEvent(control, "GotFocus", control.GotFocus);
  }
}

void Platform::ReportError(const RuntimeError& error, const String& in) {
  if (pointer_ != 0) SetPointer(0);
  if (Trace.Failed && Trace.Failed(error, in)) {
    ++messagesShown_;
    return;
  }
  MessageBox("Run-time error '" + std::to_string(error.Number()) + "':\n\n" + error.Description(), kCritical, "KESTA");
}

void Platform::ReportForeignError(const String& what, const String& in) {
  if (pointer_ != 0) SetPointer(0);
  MessageBox("The application that opened this window reported a fault in " + in + ":\n\n" + what, kCritical, "KESTA");
}

void Platform::SyncAll() {
  for (Form* form : std::vector<Form*>(forms_)) {
    if (form->ChangedControls.empty()) continue;
    toolkit_->Sync(*form);
    const std::vector<Label*> news = form->Visible ? TakeNews(*form) : std::vector<Label*>();
    for (Control* control : form->ChangedControls) control->Changed = false;
    form->ChangedControls.clear();
    for (Label* label : news) {
      toolkit_->AnnounceChange(*label);
      if (Trace.Announced) Trace.Announced(*label);
    }
  }
}

void Platform::Forget(Control& control) {
  Drag.Forget(control);
  Hand.Forget(control);
  toolkit_->ControlUnloaded(control);
}

}  // namespace Tarnwise
