// A range of round numbers around data.
#pragma once

namespace Tarnwise {

struct Range {
  double Low = 0.0;
  double High = 0.0;
};

// The range that `low` to `high` lies in without touching its ends, in steps of 1, 2 or 5 times a power of ten, the
// smallest step of which ten cover the data: 19 to 55 gives 15 to 60, 131 to 306 gives 120 to 320. It does not pass
// zero where the data do not: 0 to 55 gives 0 to 60. Around a single number the step is a tenth of it, around 0 it
// is 1. The ends are the doubles next to their decimals. Data are finite, low <= high; where steps are too small for a
// Double the ends are the data's own.
Range NiceRange(double low, double high);

// The ends rounded outward to steps of which a hundred cover the range: 15 to 60 stays, 17.23 to 58.3 gives 17 to 58.5.
// The ends of an import stay as they are. low < high, both finite; where steps are too small, the ends themselves.
Range RoundedOutward(double low, double high);

}  // namespace Tarnwise
