// The model file read a second time in the plainest way, field by field, to be compared with the real reader.
#pragma once

#include "model/mdTRNMain.h"

#include <vector>

namespace Tarnwise {

// The first field in which the model differs from what stands in the bytes; empty when there is none.
String FirstDifference(const WizardData& data, const std::vector<char>& bytes);

// The first field in which two models differ, empty when there is none.
String FirstDifference(const WizardData& a, const WizardData& b);

}  // namespace Tarnwise
