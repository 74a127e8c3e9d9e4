// A bar for whoever waits at a terminal.
#pragma once

#include <chrono>
#include <iosfwd>

namespace Tarnwise {

// Shows itself after half a second, is redrawn at most ten times a second, and goes without a trace.
class ProgressBar {
 public:
  using Clock = std::chrono::steady_clock;

  ProgressBar(std::ostream& terminal, Clock::time_point start) : terminal_(terminal), next_(start + kPatience) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar();

  void Show(double share, Clock::time_point now);  // 0 to 1

 private:
  static constexpr std::chrono::milliseconds kPatience{500};
  static constexpr std::chrono::milliseconds kPause{100};

  std::ostream& terminal_;
  Clock::time_point next_;
  bool shown_ = false;
};

}  // namespace Tarnwise
