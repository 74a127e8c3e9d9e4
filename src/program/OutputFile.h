// Results to where the user wants them.
#pragma once

#include <tarnwise/Scalars.h>

#include <iosfwd>

namespace Tarnwise {

constexpr const char* kStandardOutput = "-";

// The text as a file, whole or not at all; on standard output for "-"; into what is there where that is no ordinary
// file, such as a pipe. A ModelFault where it can't be written.
void WriteOutput(const String& path, const String& text, std::ostream& out);

// A ModelFault where both paths are of one file.
void RefuseSameFile(const String& output, const String& input);

}  // namespace Tarnwise
