#include "view/Driver.h"
#include "view/Gesture.h"
#include "view/Input.h"
#include "view/Platform.h"
#include "view/headless/HeadlessMirror.h"
#include "view/headless/HeadlessToolkit.h"

namespace Tarnwise {

namespace {

class HeadlessDriver : public Driver {
 public:
  HeadlessDriver() {
    toolkit_->Released = [this](const Form& form) {
      if (held_ && held_->Tree() == &form) held_->LetFormGo();
    };
  }
  ~HeadlessDriver() override { toolkit_->Released = {}; }

  std::shared_ptr<Platform> Screen() override { return screen_; }
  void SetPump(std::function<bool()> pump) override { toolkit_->Pump = std::move(pump); }

  void Click(Control& control) override {
    const auto held = control.Owner.shared_from_this();
    HeadlessMirror mirror(control.Owner);
    if (mirror.Press(control)) mirror.LetGo(control);
  }

  void Select(Control& list, int index) override {
    const auto held = list.Owner.shared_from_this();
    HeadlessMirror mirror(list.Owner, index);
    if (!mirror.Press(list)) return;
    if (HasRows(list))
      mirror.LetGo(list);
    else
      mirror.Hand().RowChosen(mirror, list, index);
  }

  void PressTool(Toolbar& toolbar, const String& key) override {
    const auto held = toolbar.Owner.shared_from_this();
    HeadlessMirror mirror(toolbar.Owner);
    for (std::size_t i = 0; i < toolbar.Buttons.size(); ++i) {
      if (toolbar.Buttons[i].Key == key && mirror.Press(toolbar)) {
        mirror.Hand().ToolPressed(mirror, toolbar, i);
        break;
      }
    }
  }

  void Focus(Control& control) override {
    const auto held = control.Owner.shared_from_this();
    if (Input::MoveFocus(control)) Input::PutCaretAtEnd(control);
  }

  void Key(Form& form, const KeyStroke& key) override { TypeKey(form, key.Code, key.Character, key.Shift); }

  void Grab(Control& source) override {
    held_ = std::make_unique<HeadlessMirror>(source.Owner);
    held_->Press(source);
    screen_->Hand.BeginDrag();
  }
  void Over(Control& target, ControlPoint at) override { screen_->Drag.Over(target, at.X, at.Y); }
  void OverNothing() override { screen_->Drag.OverNothing(); }
  void Drop() override {
    const auto mirror = std::move(held_);
    if (mirror && screen_->Hand.DragsByMouse())
      mirror->LetGo(*screen_->Drag.Source());
    else
      screen_->Drag.Drop();
  }

  void Scroll(VScrollBar& bar, int value) override {
    const auto held = bar.Owner.shared_from_this();
    HeadlessMirror mirror(bar.Owner);
    if (mirror.Press(bar)) mirror.Hand().Scrolled(mirror, bar, value, false);
  }

  void Tick(Timer& timer) override { Input::Tick(timer); }
  void Close(Form& form) override {
    HeadlessMirror mirror(form);
    screen_->Hand.CloseWanted(mirror);
  }
  bool TakesPictures() const override { return false; }
  bool Shot(Form& /*form*/, const String& /*path*/) override { return false; }

 private:
  std::shared_ptr<HeadlessToolkit> toolkit_ = std::make_shared<HeadlessToolkit>();
  std::shared_ptr<Platform> screen_ = std::make_shared<Platform>(toolkit_);
  std::unique_ptr<HeadlessMirror> held_;  // shows the source of a drag
};

}  // namespace

std::unique_ptr<Driver> MakeHeadlessDriver() { return std::make_unique<HeadlessDriver>(); }

}  // namespace Tarnwise
