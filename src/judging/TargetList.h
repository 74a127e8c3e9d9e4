// The list of target attributes that both judgment steps show: item i + 1 is attribute i.
#pragma once

#include "model/Groups.h"
#include "view/Controls.h"

namespace Tarnwise {

// Fills the list in ascending id, counts both groups anew (what is not benefit-oriented counts as cost), and marks the
// judged attributes.
void FillTargetItems(ImageCombo& list, WizardData& data);

// Everything is judged anew: the list is emptied, then the intervals take their defaults.
void RestartTargets(ImageCombo& list, WizardData& data);

// Puts the mark of a judged attribute in front of its name.
void MarkJudged(ImageCombo& list, const WizardData& data, int att);

}  // namespace Tarnwise
