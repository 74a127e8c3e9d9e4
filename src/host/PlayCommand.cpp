#include "host/Commands.h"
#include "host/Player.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#ifdef TARNWISE_QT
#include "host/QtStart.h"
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
  if (options.Script == "-") {
    return Player(driver, std::cin, ".", options.Shots, std::cout, std::cerr, make).Play();
  }
  std::ifstream script(options.Script);
  std::error_code error;
  if (!script || std::filesystem::is_directory(options.Script, error)) {
    std::cerr << "The script " << options.Script << " can't be read.\n";
    return kUnreadable;
  }
  const std::filesystem::path folder = std::filesystem::path(options.Script).parent_path();
  return Player(driver, script, folder.empty() ? "." : folder.string(), options.Shots, std::cout, std::cerr, make)
      .Play();
}

}  // namespace

int PlaySession(const PlayOptions& options, int& argc, char** argv) {
#ifdef TARNWISE_WIN32
  _setmode(_fileno(stdout), _O_BINARY);  // the same bytes as everywhere
#endif
  if (options.Toolkit == "headless") return Play(*MakeHeadlessDriver(), options);
#ifdef TARNWISE_QT
  if (options.Toolkit == "qt") {
    const std::unique_ptr<QApplication> application = StartQt(argc, argv);
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
