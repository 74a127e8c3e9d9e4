// Where a command says things, and how it is told to stop.
#pragma once

#include <atomic>
#include <iosfwd>

namespace Tarnwise {

// The exit statuses of the analyst's commands; a command that a signal ended has 128 and the signal's number.
enum ExitStatus { kDone = 0, kFailed = 1, kRefused = 2 };

struct Console {
  std::ostream& Out;
  std::ostream& Err;
  bool OutColours = false;  // Out is a terminal that shows them, and nobody asked for none
  bool ErrIsTerminal = false;
  const std::atomic<bool>* Cancel = nullptr;  // set when the user wants an end
};

}  // namespace Tarnwise
