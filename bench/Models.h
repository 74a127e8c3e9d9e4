// Models for the benchmarks: as large as the format allows.
#pragma once

#include "model/mdTRNMain.h"

namespace Tarnwise {

// `benefit` attributes and 31 - benefit cost ones, non-linear curves of 11 points, names of 40 characters, all Variants
// Doubles. Attribute i has rank i + 1 in its group, counted from the reference's end where `tied` is 0; the first
// `tied` benefit attributes after the reference share a rank.
WizardData FullModel(int benefit, int tied);

}  // namespace Tarnwise
