// What screen readers see beyond Qt's own widgets: drag sources that can be read and moved, and verdicts as they
// change.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

class QtForm;

void InstallAccessibility();
void TellOf(QtForm& form, const Label& label);

}  // namespace Tarnwise
