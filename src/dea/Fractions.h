// Least and greatest values of linear fractions over a box of prices, in closed form.
#pragma once

#include "dea/Region.h"

namespace Tarnwise::Dea {

// How much a fraction has to be beyond a limit for it to be beyond it whatever was rounded.
constexpr Double kSurely = 1e-9;

// The least a.w / b.w over the directions of the box; b has no negative number, a may. A direction in which both are
// zero is passed over, and where b alone is zero the fraction is without end. kNoBound when no direction has a finite
// fraction. (a and b: one number for each attribute of the box.)
Double LeastFraction(const Double* a, const Double* b, const Box& box);

// The greatest; not kNoBound but -kNoBound when no direction has one. b must be positive somewhere.
Double GreatestFraction(const Double* a, const Double* b, const Box& box);

// Whether (a - b).w is negative in no direction of the box.
bool NeverLess(const Double* a, const Double* b, const Box& box);

}  // namespace Tarnwise::Dea
