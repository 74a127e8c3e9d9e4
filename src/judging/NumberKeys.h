// What both judgment steps do with what is typed into their number boxes.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

// Digits and the point; there are no signs and no exponents.
bool IsNumeric(int character);

// What becomes of a character that is typed, Return aside: Ctrl+V is dropped; before a printing one a second point
// goes, and it is dropped itself unless it is numeric. Control characters pass.
void FilterNumberKey(TextBox& box, KeyEvent& key);

// At a key down: Insert with Shift would paste, whatever else is held.
void DropPasting(KeyEvent& key);

// Where the text holds two points, the character before the caret goes; with the caret at the start, none.
void RemoveSecondPoint(TextBox& box);

}  // namespace Tarnwise
