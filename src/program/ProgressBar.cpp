#include "program/ProgressBar.h"

#include <tarnwise/Scalars.h>

#include <algorithm>
#include <ostream>

namespace Tarnwise {

namespace {

constexpr int kMarks = 40;

String BarOf(double share) {
  const auto full = static_cast<std::size_t>(std::clamp(share, 0.0, 1.0) * kMarks);
  const int percent = static_cast<int>(std::clamp(share, 0.0, 1.0) * 100.0);
  return "[" + String(full, '#') + String(kMarks - full, ' ') + "] " + std::to_string(percent) + " %";
}

}  // namespace

ProgressBar::~ProgressBar() {
  if (shown_) terminal_ << "\r" << String(BarOf(1.0).size(), ' ') << "\r" << std::flush;
}

void ProgressBar::Show(double share, Clock::time_point now) {
  if (now < next_) return;
  next_ = now + kPause;
  shown_ = true;
  terminal_ << "\r" << BarOf(share) << std::flush;
}

}  // namespace Tarnwise
