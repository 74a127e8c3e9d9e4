// Whole files in and out, for the host's own use.
#pragma once

#include "runtime/Paths.h"

#include <stdexcept>
#include <vector>

namespace Tarnwise {

// What is wrong with a model, its description or its file, as one line for the user.
struct ModelFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// All bytes of a file that exists. It is never created; a folder or a file that can't be read is a ModelFault.
std::vector<char> FileBytes(const String& path);

// The file has either its old contents or the new ones, never a part: the bytes go to a temporary file beside it, which
// then takes its name. An existing file keeps its permissions, and one that may not be written is left alone. A
// ModelFault says why nothing was written; the temporary file is gone then.
void WriteFileAtomically(const String& path, const std::vector<char>& bytes);

}  // namespace Tarnwise
