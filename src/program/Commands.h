// The commands of the program. Each returns the exit status.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

struct PlayOptions {
  String Script;  // "-": standard input
  String Toolkit = "headless";
  String Shots = "out";  // folder of the pictures, made when the first is taken
  bool Com = false;      // the registered class instead of the linked one
};

int PlaySession(const PlayOptions& options, int& argc, char** argv);

struct RunOptions {
  String Model;
  bool Save = false;
  bool Com = false;
};

int RunWizard(const RunOptions& options, int& argc, char** argv);

}  // namespace Tarnwise
