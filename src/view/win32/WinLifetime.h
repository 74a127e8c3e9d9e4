// Windows of this module, and how those that are buried are dug for.
#pragma once

#include "view/win32/WinApi.h"

namespace Tarnwise {

// Graves are dug by a timer of the thread.
void BuryOnThisThread();

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
