// How a caller follows a computation and ends it early. Nothing here starts a thread; the computation may run on any.
#pragma once

#include <tarnwise/Scalars.h>

#include <atomic>
#include <functional>
#include <stdexcept>

namespace Tarnwise::Dea {

// Data, scales, judgments or options that cannot be computed with. The text names the column, the unit or the session
// and what about it.
class Refused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The caller's flag was seen. There is no result then.
class Cancelled : public std::runtime_error {
 public:
  Cancelled() : std::runtime_error("cancelled") {}
};

// A fault inside the solver of linear programs, or an answer of its that does not stand up to a check.
class SolverFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Watch {
  std::function<void(Double share)> Progress;  // 0 to 1, never falling; on the thread that computes
  const std::atomic<bool>* Cancel = nullptr;   // any thread may set it; answered within 100 ms

  void Report(Double share) const;  // also looks at the flag
  void Report(int done, int all) const;
  void LookAtFlag() const;  // throws Cancelled
  Watch Part(Double from, Double to) const;
};

}  // namespace Tarnwise::Dea
