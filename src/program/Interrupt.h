// Ctrl+C while something is computed.
#pragma once

#include <atomic>

namespace Tarnwise {

// While there is one, the first signal that asks the program to end sets a flag; the second one ends it. There may be
// one at a time.
class Interrupt {
 public:
  Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;
  ~Interrupt();

  const std::atomic<bool>* Flag() const;
  int Status() const;  // the exit status that tells of the signal
};

}  // namespace Tarnwise
