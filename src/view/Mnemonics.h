// Mnemonics: the letters that captions underline, and what Alt with one of them does.
#pragma once

#include "view/Form.h"

namespace Tarnwise::Input {

// Alt with a letter or a digit, in either case. What bears it as its mnemonic is pressed; a label's leads to the
// control that it names. Where several bear the same, the focus walks through what they lead to. Only what a person can
// reach counts. False: nothing bears it.
bool Mnemonic(Form& form, int character);

}  // namespace Tarnwise::Input
