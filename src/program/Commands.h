// The commands of the program. Each returns the exit status.
#pragma once

#include "play/Hosted.h"

namespace Tarnwise {

struct JudgeOptions;

struct PlayOptions {
  String Script;  // "-": standard input
  String Toolkit = "headless";
  String Shots = "out";  // folder of the pictures, made when the first is taken
  bool Com = false;      // the registered class instead of the linked one
};

// `wrap`: what becomes of each wizard that the script makes; `first` is called before its first line.
int PlaySession(const PlayOptions& options, int& argc, char** argv,
                const std::function<std::unique_ptr<Hosted>(std::unique_ptr<Hosted> wizard)>& wrap = nullptr,
                const std::function<void()>& first = nullptr);

struct RunOptions {
  String Model;
  bool Save = false;
  bool Com = false;
};

int RunWizard(const RunOptions& options, int& argc, char** argv);

// The wizard on a project, on the screen or by a script.
int RunJudging(const JudgeOptions& options, int& argc, char** argv);

}  // namespace Tarnwise
