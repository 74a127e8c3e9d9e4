// The verdict on a judgment: is it one at all, and does it respect the judged intervals of its neighbours in rank?
#pragma once

#include "model/Groups.h"

namespace Tarnwise {

enum JudgmentState : Integer { kNoneDecided = 0, kInvalid = 1, kConsistent = 2, kInconsistent = 3 };

// The whole interval of an attribute must lie between these, ends allowed. Only the nearest judged rank on each side
// counts.
struct Limits {
  Double Lower = 0.0;    // upper bound of the nearest judged less important attribute
  Double Upper = 100.0;  // lower bound of the nearest judged more important one; a bound of 0 counts as 100
  // The attributes that these are the bounds of; -1 where there is none.
  int LowerOf = -1;
  int UpperOf = -1;
};

Limits LimitsOf(const WizardData& data, int target);

bool IsWithin(const Limits& limits, Double a, Double b);  // whichever of the two is the smaller

}  // namespace Tarnwise
