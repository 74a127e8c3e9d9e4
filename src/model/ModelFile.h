// The model file's reader. The format is described in docs/model-format.md; its writer belongs to the host.
#pragma once

#include "model/mdTRNMain.h"
#include "runtime/CodePage.h"

#include <optional>
#include <vector>

namespace Tarnwise {

// All bytes of the file; a missing one comes to be, empty. Nothing when it can't be opened.
std::optional<std::vector<char>> ModelFileContents(const String& PathAndFileName);

// The eight items from bytes, as far as they go, their texts in that code page. Reading is lenient: what the bytes do
// not reach is zero or empty.
void ReadModel(WizardData& data, const std::vector<char>& bytes, const CodePage& texts = SystemCodePage());

// Sizes every record of the model; its numbers are zero and its texts empty then.
void ClearModel(WizardData& data);

}  // namespace Tarnwise
