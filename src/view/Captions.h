// Captions with their mnemonics: "&Enter" underlines the E. An ampersand inside a name ("R&D", "bed & board") is no
// mnemonic and stays visible.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

// With every ampersand that is no mnemonic doubled, as toolkits want it.
String MarkedCaption(const String& caption);
// Without marks, for what is read aloud or shown in a tool tip.
String UnmarkedCaption(const String& caption);
// The mnemonic in lower case, 0 when there is none or it is no plain letter or digit.
char MnemonicOf(const String& caption);

}  // namespace Tarnwise
