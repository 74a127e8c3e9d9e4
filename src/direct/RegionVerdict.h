// The verdict on a region: is it on the chart at all, and does it respect the neighbours?
#pragma once

#include "direct/RegionGeometry.h"
#include "judging/Consistency.h"

namespace Tarnwise {

// What the two handles say. Texts are empty when the boxes are to keep theirs.
struct Verdict {
  JudgmentState State = kNoneDecided;
  String Lower;
  String Upper;
};

// An ordinary pair. With the consistency control off a region on the chart gets no state.
Verdict JudgePair(const WizardData& data, int target, const HandlePoints& at);

// The two references: their handles coincide, and no neighbour counts.
Verdict JudgeReferencePair(const HandlePoints& at);

}  // namespace Tarnwise
