// A script's user by real mouse and key events to real windows. What is native of it are a handful of calls.
#pragma once

#include "view/Driver.h"
#include "view/WindowedToolkit.h"

#include <memory>

namespace Tarnwise {

class WindowedDriver : public Driver {
 public:
  // Of a platform with such a toolkit. From now on its timers, message boxes and modal calls wait for the script.
  explicit WindowedDriver(std::shared_ptr<Platform> screen);

  std::shared_ptr<Platform> Screen() override { return screen_; }
  void SetPump(std::function<bool()> pump) override { toolkit_.Pump = std::move(pump); }
  void Click(Control& control) override;
  void Select(Control& list, int index) override;
  void PressTool(Toolbar& toolbar, const String& key) override;
  void Focus(Control& control) override;
  void Key(Form& form, const KeyStroke& key) override;
  void Grab(Control& source) override;
  void Over(Control& target, ControlPoint at) override;
  void OverNothing() override;
  void Drop() override;
  void Scroll(VScrollBar& bar, int value) override;
  void Tick(Timer& timer) override;
  void Close(Form& form) override;
  bool Shot(Form& form, const String& path) override;

 protected:
  WindowedToolkit& Tools() const { return toolkit_; }

  // --- all on controls that have a window ---
  virtual void ClickOn(Control& control) = 0;                   // of a text box, behind its text
  virtual void ClickPart(Control& control, int part) = 0;       // a row, a tab, a tool, from 0
  virtual void ChooseFromOpened(Control& combo, int row) = 0;   // opens it by a press and goes there by keys
  virtual void PressKey(Form& form, const KeyStroke& key) = 0;  // down, and up again
  virtual void PressOn(Control& source) = 0;                    // the left button goes down in the middle
  virtual bool MoveOver(const Form& form, FormPoint at) = 0;    // the button still down; false: no mouse gets there
  virtual void LetGo() = 0;                                     // of the button
  virtual void MoveThumb(const VScrollBar& bar, int value) = 0;
  virtual void PressClose(Form& form) = 0;
  virtual bool TakePicture(Form& form, const String& path) = 0;  // PNG

 private:
  bool IsReady(const Control& control) const;

  const std::shared_ptr<Platform> screen_;
  WindowedToolkit& toolkit_;
  bool holds_ = false;  // the button is down on a drag's source
};

}  // namespace Tarnwise
