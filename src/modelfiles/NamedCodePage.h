// Code pages by name: what `--code-page` takes.
#pragma once

#include "runtime/CodePage.h"

namespace Tarnwise {

// How names are looked up here, as a clause for messages.
extern const char* const kCodePageNames;

// Nothing where the system knows none of that name.
std::optional<CodePage> NamedCodePage(const String& name);

}  // namespace Tarnwise
