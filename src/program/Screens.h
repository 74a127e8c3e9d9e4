// The screens that a build of the program has beside none at all. There is a file for each kind; one of them is built.
#pragma once

#include "play/Hosted.h"
#include "view/Driver.h"

#include <functional>
#include <memory>
#include <optional>

namespace Tarnwise {

// What `tarnwise run` shows the wizard on, and the wait for its end.
struct RunScreen {
  MakeHosted Make;             // a wizard on this screen
  std::function<void()> Wait;  // lets events in until End is called
  std::function<void()> End;
};

// What `tarnwise play` drives it on.
struct PlayScreen {
  std::shared_ptr<void> Application;  // outlives the others
  std::unique_ptr<Driver> User;
  MakeHosted Make;  // null: the linked class
};

extern const char* const kToolkits;  // what --toolkit may name, for the help
extern const bool kHasCom;           // whether the registered COM class can be driven

// `com`: the registered class instead of the linked one. A std::runtime_error where there is no screen.
RunScreen OpenScreen(int& argc, char** argv, bool com);

// Nothing where this build has no toolkit of that name. "headless" is everybody's and not asked here.
std::optional<PlayScreen> OpenPlayScreen(const String& toolkit, bool com, int& argc, char** argv);

}  // namespace Tarnwise
