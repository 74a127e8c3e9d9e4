// The screen that `tarnwise run` shows the wizard on, and the wait for its end.
#pragma once

#include "host/Hosted.h"

namespace Tarnwise {

struct RunScreen {
  MakeHosted Make;             // a wizard on this screen
  std::function<void()> Wait;  // lets events in until End is called
  std::function<void()> End;
};

// `com`: the registered class instead of the linked one; Windows only.
RunScreen OpenScreen(int& argc, char** argv, bool com);

}  // namespace Tarnwise
