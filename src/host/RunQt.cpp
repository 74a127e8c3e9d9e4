#include "host/QtStart.h"
#include "host/RunScreen.h"

#include <cstdlib>
#include <iostream>

namespace Tarnwise {

namespace {

bool waiting = false;

// Where the screen goes away, its server ended, Qt ends the process; what it says is not about the judgments.
void TellOfLostScreen() {
  if (waiting) std::cerr << "The screen is gone. No judgments were handed over, and no file was changed." << std::endl;
}

void WaitForEnd() {
  static const bool asked = std::atexit(TellOfLostScreen) == 0;
  waiting = asked;
  QApplication::exec();
  waiting = false;
}

}  // namespace

RunScreen OpenScreen(int& argc, char** argv, bool /*com*/) {
  const std::shared_ptr<QApplication> application = StartQt(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return {[application] { return HostLinked(MakeQtPlatform()); }, WaitForEnd, [] { QApplication::quit(); }};
}

}  // namespace Tarnwise
