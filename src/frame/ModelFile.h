// The model file's reader. The format is described in docs/model-format.md; its writer belongs to the host.
#pragma once

#include "frame/mdTRNMain.h"

namespace Tarnwise {

class Platform;

// Reads the model at the path into the wizard data. Reading is lenient: what the file does not reach is zero or empty,
// and nobody is told. A missing file comes to be, empty. Only when the file can't be opened does the user get a
// message, and the earlier model stays wholly as it was.
void ReadModelFile(WizardData& data, Platform& platform, const String& PathAndFileName);

// The eight items from bytes, as far as they go.
void ReadModel(WizardData& data, const std::vector<char>& bytes);

// Sizes every record of the model and sets all of it to zero, empty, unallocated.
void ClearModel(WizardData& data);

}  // namespace Tarnwise
