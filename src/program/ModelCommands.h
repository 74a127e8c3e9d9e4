// The commands `tarnwise model build` and `tarnwise model show`.
#pragma once

#include <tarnwise/Scalars.h>

#include <iosfwd>

namespace Tarnwise {

// Both return the exit code: 0 done, 1 refused, with the reason in err. Warnings in err do not count. `codePage` names
// the one that the model file's texts are in; empty: the system's.

// Writes the model file that a JSON description describes.
int BuildModel(const String& jsonPath, const String& kstPath, const String& codePage, std::ostream& out,
               std::ostream& err);

// Prints the description of a model file. What is no whole model is shown as far as it goes, with a warning that
// building the description would not give that file again. A missing file stays missing.
int ShowModel(const String& kstPath, const String& codePage, std::ostream& out, std::ostream& err);

}  // namespace Tarnwise
