#include "view/Form.h"

#include "runtime/Utf8.h"
#include "view/Dispatch.h"
#include "view/Platform.h"

#include <algorithm>

namespace Tarnwise {

Form::Form(std::shared_ptr<Platform> platform, String name)
    : Control(*this, nullptr, Kind::Form, std::move(name)), platform_(std::move(platform)) {
  Visible = false;
}

Form::~Form() = default;

void Form::Register(Control& control) {
  control.Order = nextOrder_++;
  controls_.push_back(&control);
}

void Form::Unregister(Control& control) {
  controls_.erase(std::remove(controls_.begin(), controls_.end(), &control), controls_.end());
  ChangedControls.erase(std::remove(ChangedControls.begin(), ChangedControls.end(), &control), ChangedControls.end());
  if (ActiveControl == &control) ActiveControl = nullptr;
  platform_->Forget(control);
}

Control* Form::Find(const String& name, int index) const {
  Control* only = nullptr;
  for (Control* control : controls_) {
    if (control->Name != name) continue;
    if (control->Index == index) return control;
    if (index < 0 && control->Index == 0) only = control;
    if (index == 0 && control->Index < 0) return control;
  }
  return only != nullptr && CountOf(name) == 1 ? only : nullptr;
}

int Form::CountOf(const String& name) const {
  return static_cast<int>(std::count_if(controls_.begin(), controls_.end(), [&name](const Control* control) {
    return control->Index >= 0 && control->Name == name;
  }));
}

void TextBox::SetSelText(const String& text) {
  const std::size_t from = ByteOf(Text(), SelStart);
  const std::size_t to = ByteOf(Text(), SelStart() + SelLength());
  String now = Text;
  now.replace(from, to - from, text);
  SelStart = SelStart() + Length(text);
  SelLength = 0;
  if (now == Text()) return;
  Text = now;
  RaiseEvent(*this, "Change", Change);
}

}  // namespace Tarnwise
