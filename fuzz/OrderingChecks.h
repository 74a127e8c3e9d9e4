// What the ordering step's rows, buttons and numbers must always agree in.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

struct WizardData;
struct frmIniImpOrder;

void CheckOrderingStep(const frmIniImpOrder& form, const WizardData& data, const String& line);

}  // namespace Tarnwise
