#include "view/Dispatch.h"
#include "view/Driver.h"
#include "view/Input.h"
#include "view/Platform.h"
#include "view/headless/HeadlessToolkit.h"

namespace Tarnwise {

namespace {

class HeadlessDriver : public Driver {
 public:
  std::shared_ptr<Platform> Screen() override { return screen_; }
  void SetPump(std::function<bool()> pump) override { toolkit_->Pump = std::move(pump); }

  void Click(Control& control) override {
    const auto held = control.Owner.shared_from_this();
    if (!Input::Press(control)) return;
    Input::PutCaretAtEnd(control);
    Input::Activate(control);
  }

  void Select(Control& list, int index) override {
    const auto held = list.Owner.shared_from_this();
    if (Input::Press(list)) Input::SelectRow(list, index);
  }

  void PressTool(Toolbar& toolbar, const String& key) override {
    const auto held = toolbar.Owner.shared_from_this();
    if (Input::Press(toolbar)) Input::PressToolButton(toolbar, key);
  }

  void Focus(Control& control) override {
    const auto held = control.Owner.shared_from_this();
    if (Input::MoveFocus(control)) Input::PutCaretAtEnd(control);
  }

  void Key(Form& form, const KeyStroke& key) override { TypeKey(form, key.Code, key.Character, key.Shift); }

  void Grab(Control& source) override { screen_->Drag.Begin(source); }
  void Over(Control& target, ControlPoint at) override { screen_->Drag.Over(target, at.X, at.Y); }
  void OverNothing() override { screen_->Drag.OverNothing(); }
  void Drop() override { screen_->Drag.Drop(); }

  void Scroll(VScrollBar& bar, int value) override {
    const auto held = bar.Owner.shared_from_this();
    if (Input::Press(bar)) Input::ScrollTo(bar, value, false);
  }

  void Tick(Timer& timer) override { Input::Tick(timer); }
  void Close(Form& form) override { Input::CloseForm(form); }
  bool TakesPictures() const override { return false; }
  bool Shot(Form& /*form*/, const String& /*path*/) override { return false; }

 private:
  std::shared_ptr<HeadlessToolkit> toolkit_ = std::make_shared<HeadlessToolkit>();
  std::shared_ptr<Platform> screen_ = std::make_shared<Platform>(toolkit_);
};

}  // namespace

std::unique_ptr<Driver> MakeHeadlessDriver() { return std::make_unique<HeadlessDriver>(); }

}  // namespace Tarnwise
