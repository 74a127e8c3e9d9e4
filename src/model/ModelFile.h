// The model file's reader. The format is described in docs/model-format.md; its writer belongs to the host.
#pragma once

#include "model/mdTRNMain.h"
#include "runtime/CodePage.h"

namespace Tarnwise {

class Platform;

// Reads the model at the path into the wizard data. Reading is lenient: what the file does not reach is zero or empty,
// and nobody is told. A missing file comes to be, empty. Only when the file can't be opened does the user get a
// message, and the earlier model stays wholly as it was.
void ReadModelFile(WizardData& data, Platform& platform, const String& PathAndFileName);

// The eight items from bytes, as far as they go, their texts in that code page.
void ReadModel(WizardData& data, const std::vector<char>& bytes, const CodePage& texts = SystemCodePage());

// Sizes every record of the model; its numbers are zero and its texts empty then.
void ClearModel(WizardData& data);

}  // namespace Tarnwise
