// The model of a session, as the class opens it.
#pragma once

#include "model/mdTRNMain.h"

namespace Tarnwise {

class Platform;

// Reads the model at the path into the wizard data, under the hourglass; nothing differs from the file then. When it
// can't be opened the user gets a message, and the earlier model stays wholly as it was.
void ReadModelFile(WizardData& data, Platform& platform, const String& PathAndFileName);

}  // namespace Tarnwise
