#include "play/Player.h"
#include "program/Commands.h"
#include "program/Screens.h"
#include "runtime/Paths.h"

#include <fstream>
#include <iostream>

namespace Tarnwise {

namespace {

constexpr int kUnreadable = 2;

int Play(Driver& driver, const PlayOptions& options, const MakeHosted& make) {
  if (options.Script == "-") {
    return Player(driver, std::cin, ".", options.Shots, std::cout, std::cerr, make).Play();
  }
  const std::filesystem::path path = PathFromText(options.Script);
  std::ifstream script(path);
  std::error_code error;
  if (!script || std::filesystem::is_directory(path, error)) {
    std::cerr << "The script " << options.Script << " can't be read.\n";
    return kUnreadable;
  }
  const String folder = path.has_parent_path() ? TextFromPath(path.parent_path()) : String(".");
  return Player(driver, script, folder, options.Shots, std::cout, std::cerr, make).Play();
}

}  // namespace

int PlaySession(const PlayOptions& options, int& argc, char** argv) {
  if (options.Toolkit == "headless" && !options.Com) return Play(*MakeHeadlessDriver(), options, nullptr);
  const std::optional<PlayScreen> screen = OpenPlayScreen(options.Toolkit, options.Com, argc, argv);
  if (screen) return Play(*screen->User, options, screen->Make);
  std::cerr << "This program has no toolkit \"" << options.Toolkit << "\".\n";
  return kUnreadable;
}

}  // namespace Tarnwise
