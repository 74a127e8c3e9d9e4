// The writer of model files. docs/model-format.md describes them; the reader is frame/ModelFile.h.
#pragma once

#include "model/mdTRNMain.h"
#include "modelfiles/WholeFile.h"
#include "runtime/CodePage.h"

#include <optional>

namespace Tarnwise {

// The eight items of the model in the file's form. Every array has the size that ClearModel gives it. What the format
// can't hold is a ModelFault that names the field and whose it is: text that the code page lacks, or a text of more
// than 65535 bytes in it.
std::vector<char> ModelBytes(const WizardData& data, const CodePage& texts = SystemCodePage());

// How bytes that were read as this model differ from what would be written for it, as a clause such as "it ends within
// the model, after 120 bytes"; nothing when they are the same. A file with such a difference must not be rewritten.
std::optional<String> Difference(const std::vector<char>& bytes, const WizardData& data,
                                 const CodePage& texts = SystemCodePage());

// How attributes and alternatives are called in messages: "attribute 3 (Nurses)". Ids count from 0.
String NameInMessages(const char* kind, int id, const String& name);

}  // namespace Tarnwise
