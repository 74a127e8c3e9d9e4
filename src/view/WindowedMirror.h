// A form whose controls have windows of the platform's own: which window is whose, and the clocks of its timers.
// Windows are known by their addresses; a toolkit knows what stands there.
#pragma once

#include "view/Carrying.h"
#include "view/Mirror.h"

#include <map>

namespace Tarnwise {

class WindowedMirror : public Mirror {
 public:
  WindowedMirror(Form& form, Carrying& carrying) : Mirror(form), carrying_(carrying) {}

  bool HasWindow(const Control& control) const override { return NativeOf(control) != nullptr; }
  // What native controls tell, all of it by a person's hand; null: of one that has gone. Rows and tools count from 0.
  void Clicked(Control* control);  // a button's release, or a screen reader's press
  void RowChosen(Control* list, int row);
  void ToolPressed(Control* bar, int tool);
  void Scrolled(Control* bar, int value, bool dragging);

  void ShowCarried(const Carried& carried) override { carrying_.Show(*this, carried); }
  void HideCarried() override { carrying_.Hide(); }

 protected:
  void* NativeOf(const Control& control) const;      // null when it has none
  Control* OwnerOf(const void* window) const;        // null when the control has gone
  void Keep(const Control& control, void* window);   // it is the control's own
  void Watch(const void* window, Control& control);  // what happens to it happens to the control
  void Lose(const void* window);                     // the platform has destroyed it
  void* KeyboardWindow() const;                      // where the keyboard belongs
  void TimeUp(int clock);

  void Destroy(const Control& control) override;
  void DestroyAll() override;
  void RunTimer(Timer& timer, int interval) override;

  virtual void BuryWindow(void* window) = 0;  // hides it, and destroys it once nothing of its own can be on the stack
  virtual void HideForm() = 0;
  virtual int StartClock(int milliseconds) = 0;  // its number; TimeUp is told each time
  virtual void StopClock(int clock) = 0;

 private:
  struct Clock {
    int Number = 0;
    int Interval = 0;
  };

  Carrying& carrying_;
  std::map<const Control*, void*> windows_;
  std::map<const void*, Control*> owners_;
  std::map<const Control*, Clock> clocks_;
};

}  // namespace Tarnwise
