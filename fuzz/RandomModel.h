// Small models out of bytes: mostly what a host would hand over, now and then what none should.
#pragma once

#include "ByteSource.h"
#include "model/mdTRNMain.h"

namespace Tarnwise {

WizardData RandomModel(ByteSource& bytes);

}  // namespace Tarnwise
