#include "host/RunScreen.h"

#include <QApplication>

namespace Tarnwise {

RunScreen OpenScreen(int& argc, char** argv, bool /*com*/) {
  const auto application = std::make_shared<QApplication>(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return {[application] { return HostLinked(MakeQtPlatform()); }, [] { QApplication::exec(); },
          [] { QApplication::quit(); }};
}

}  // namespace Tarnwise
