#include "host/Commands.h"
#include "host/Player.h"
#include "runtime/Paths.h"

#include <fstream>
#include <iostream>
#include <sstream>

#ifdef TARNWISE_QT
#include <QApplication>
#endif
#ifdef TARNWISE_WIN32
#include "host/ComHost.h"
#include "host/Win32Driver.h"

#include <fcntl.h>
#include <io.h>
#endif

namespace Tarnwise {

namespace {

constexpr int kUnreadable = 2;

int Play(Driver& driver, const PlayOptions& options, const MakeHosted& make = nullptr) {
  std::error_code error;
  if (options.Shots != ".") std::filesystem::create_directories(PathFromText(options.Shots), error);
  if (options.Script == "-") {
    return Player(driver, std::cin, ".", options.Shots, std::cout, std::cerr, make).Play();
  }
  const std::filesystem::path path = PathFromText(options.Script);
  std::ifstream script(path);
  if (!script || std::filesystem::is_directory(path, error)) {
    std::cerr << "The script " << options.Script << " can't be read.\n";
    return kUnreadable;
  }
  const String folder = path.has_parent_path() ? TextFromPath(path.parent_path()) : String(".");
  return Player(driver, script, folder, options.Shots, std::cout, std::cerr, make).Play();
}

}  // namespace

int PlaySession(const PlayOptions& options, int& argc, char** argv) {
#ifdef TARNWISE_WIN32
  _setmode(_fileno(stdout), _O_BINARY);  // the same bytes as everywhere
#endif
  if (options.Toolkit == "headless") return Play(*MakeHeadlessDriver(), options);
#ifdef TARNWISE_QT
  if (options.Toolkit == "qt") {
    const QApplication application(argc, argv);
    return Play(*MakeQtDriver(), options);
  }
#endif
#ifdef TARNWISE_WIN32
  if (options.Com) {
    const ComApartment apartment;
    const std::unique_ptr<Driver> driver = DriveByCom();
    return Play(*driver, options, [&driver] { return HostByCom(driver->Screen()); });
  }
  if (options.Toolkit == "win32") return Play(*MakeWin32Driver(MakeWin32Platform()), options);
#endif
  (void)argc;
  (void)argv;
  std::cerr << "This program has no toolkit \"" << options.Toolkit << "\".\n";
  return kUnreadable;
}

}  // namespace Tarnwise
