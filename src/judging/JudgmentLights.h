// How a verdict shows: the light in force, the others out, Enter allowed or not, and the blinking.
#pragma once

#include "forms/LightControls.h"
#include "judging/Consistency.h"

namespace Tarnwise {

// The verdicts kConsistent, kInvalid and kInconsistent.
void ShowVerdict(LightControls& lights, CommandButton& cmdEnter, JudgmentState state);

// The light "Consistent" at rest with Enter allowed, whatever the verdict was: a just shown judgment can be entered.
void ShowAtRest(LightControls& lights, CommandButton& cmdEnter);

// No verdict yet: green and the two warnings in their resting colours, nothing blinks.
void ShowLampsAtRest(LightControls& lights);

// One tick.
void BlinkJudgmentLight(LightControls& lights, JudgmentState state);

// Without the consistency control only "Invalid" can be seen.
void ShowLightsFor(LightControls& lights, bool consistencyControl);

}  // namespace Tarnwise
