// The folder of the projects and models that are shipped, with its slash.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

inline const String kSamples = TARNWISE_SAMPLES "/";

}  // namespace Tarnwise
