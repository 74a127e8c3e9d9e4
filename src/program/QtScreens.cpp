#include "program/QtStart.h"
#include "program/Screens.h"

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

const char* const kToolkits = "headless or qt";
const bool kHasCom = false;

RunScreen OpenScreen(int& argc, char** argv, bool /*com*/) {
  const std::shared_ptr<QApplication> application = StartQt(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return {[application] { return HostLinked(MakeQtPlatform()); }, WaitForEnd, [] { QApplication::quit(); }};
}

std::optional<PlayScreen> OpenPlayScreen(const String& toolkit, bool /*com*/, int& argc, char** argv) {
  if (toolkit != "qt") return std::nullopt;
  const std::shared_ptr<QApplication> application = StartQt(argc, argv);
  return PlayScreen{application, MakeQtDriver(), nullptr};
}

}  // namespace Tarnwise
