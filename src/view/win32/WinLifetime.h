// Windows of a form that is released, or of a control that is unloaded, inside one of its own handlers: code of theirs
// still runs then. They are hidden at once and destroyed when none of it can be on the stack any more.
#pragma once

#include "view/Form.h"

#include "view/win32/WinApi.h"

#include <memory>

namespace Tarnwise {

class WinForm;

// Stands on the stack while what a person did is carried out: holds the form, and with it the platform and the toolkit.
class WinEntry {
 public:
  explicit WinEntry(Form& form);
  ~WinEntry();
  WinEntry(const WinEntry&) = delete;
  WinEntry& operator=(const WinEntry&) = delete;

 private:
  std::shared_ptr<Form> form_;
};

// Destroys the window or the form's windows once what runs now has returned; at once when nothing runs.
void Bury(HWND window);
void Bury(std::shared_ptr<WinForm> form);

// Windows of this module that still exist, of all threads. The module must stay loaded until it is 0.
long WindowsAlive();
void CountWindow(int by);

// The look of this module's controls (common controls 6) for as long as this lives, whatever the host's is.
class OwnLook {
 public:
  OwnLook();
  ~OwnLook();
  OwnLook(const OwnLook&) = delete;
  OwnLook& operator=(const OwnLook&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
};

}  // namespace Tarnwise
