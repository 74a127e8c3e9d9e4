// Code pages as Windows knows them.
#pragma once

#include "runtime/CodePage.h"

namespace Tarnwise {

// The one of this number; nothing where the system has none.
std::optional<CodePage> NumberedCodePage(unsigned number);

}  // namespace Tarnwise
