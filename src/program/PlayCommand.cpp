#include "play/Player.h"
#include "program/Commands.h"
#include "program/Screens.h"
#include "runtime/Paths.h"

#include <fstream>
#include <iostream>

namespace Tarnwise {

namespace {

constexpr int kUnreadable = 2;

// What is played, and how.
struct Playing {
  const PlayOptions& Options;
  const std::function<std::unique_ptr<Hosted>(std::unique_ptr<Hosted> wizard)>& Wrap;
  const std::function<void()>& First;

  MakeHosted Wrapped(Driver& driver, const MakeHosted& make) const {
    if (!Wrap) return make;
    return [this, &driver, make] { return Wrap(make ? make() : HostLinked(driver.Screen())); };
  }

  int Play(Driver& driver, const MakeHosted& make, std::istream& script, const String& folder) const {
    Player player(driver, script, folder, Options.Shots, std::cout, std::cerr, Wrapped(driver, make));
    if (First) First();
    return player.Play();
  }

  int Play(Driver& driver, const MakeHosted& make) const {
    if (Options.Script == "-") return Play(driver, make, std::cin, ".");
    const std::filesystem::path path = PathFromText(Options.Script);
    std::ifstream script(path);
    std::error_code error;
    if (!script || std::filesystem::is_directory(path, error)) {
      std::cerr << "The script " << Options.Script << " can't be read.\n";
      return kUnreadable;
    }
    return Play(driver, make, script, path.has_parent_path() ? TextFromPath(path.parent_path()) : String("."));
  }
};

}  // namespace

int PlaySession(const PlayOptions& options, int& argc, char** argv,
                const std::function<std::unique_ptr<Hosted>(std::unique_ptr<Hosted> wizard)>& wrap,
                const std::function<void()>& first) {
  const Playing playing{options, wrap, first};
  if (options.Toolkit == "headless" && !options.Com) return playing.Play(*MakeHeadlessDriver(), nullptr);
  const std::optional<PlayScreen> screen = OpenPlayScreen(options.Toolkit, options.Com, argc, argv);
  if (screen) return playing.Play(*screen->User, screen->Make);
  std::cerr << "This program has no toolkit \"" << options.Toolkit << "\".\n";
  return kUnreadable;
}

}  // namespace Tarnwise
