// The program as a process of its own, for the benchmarks.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Tarnwise {

struct ProcessUse {
  double Seconds = 0.0;  // of processor time, user and system
  double Bytes = 0.0;    // at its largest
};

// Runs `tarnwise` with these arguments, what it prints thrown away; nothing when it could not be run or when it ended
// with a status above 1.
std::optional<ProcessUse> RunProgram(const std::vector<std::string>& arguments);

}  // namespace Tarnwise
