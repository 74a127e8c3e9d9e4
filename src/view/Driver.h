// How a script's user acts under one toolkit: the control tree itself, or real mouse and key events to real widgets.
// The player has tested beforehand that a person could do it.
#pragma once

#include "view/Form.h"
#include "view/Keys.h"
#include "view/Reach.h"

#include <functional>
#include <memory>

namespace Tarnwise {

class Platform;

class Driver {
 public:
  virtual ~Driver() = default;

  virtual std::shared_ptr<Platform> Screen() = 0;
  // What a modal call does until its form is hidden: the script's next line; false at its end.
  virtual void SetPump(std::function<bool()> pump) = 0;

  virtual void Click(Control& control) = 0;
  virtual void Select(Control& list, int index) = 0;  // in the control's own numbers
  virtual void PressTool(Toolbar& toolbar, const String& key) = 0;
  virtual void Focus(Control& control) = 0;  // in a text box the caret stands at the end
  virtual void Key(Form& form, const KeyStroke& key) = 0;
  virtual void Grab(Control& source) = 0;
  virtual void Over(Control& target, ControlPoint at) = 0;
  virtual void OverNothing() = 0;  // that takes drags
  virtual void Drop() = 0;
  virtual void Scroll(VScrollBar& bar, int value) = 0;
  virtual void Tick(Timer& timer) = 0;
  virtual void Close(Form& form) = 0;
  virtual bool TakesPictures() const { return true; }
  virtual bool Shot(Form& form, const String& path) = 0;  // false: there is no picture there
};

std::unique_ptr<Driver> MakeHeadlessDriver();
std::unique_ptr<Driver> MakeQtDriver();  // needs a QApplication

}  // namespace Tarnwise
