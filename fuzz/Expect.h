// What has to hold in a fuzz target. A failure ends the process, so that the fuzzer keeps the input.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstdio>
#include <cstdlib>

namespace Tarnwise {

inline void Expect(bool holds, const String& what) {
  if (holds) return;
  std::fprintf(stderr, "BROKEN: %s\n", what.c_str());
  std::abort();
}

}  // namespace Tarnwise
