// Text boxes: the line edit and the tree's caret and selection.
#pragma once

#include "view/Mirror.h"

#include <QLineEdit>

namespace Tarnwise {

Entered EnteredInto(const QLineEdit& edit);

// What the character does in the box by itself: types, removes, selects all, uses the clipboard.
void TypeCharacter(QLineEdit& edit, int character);
// What a key does that types nothing.
void PressEditingKey(QLineEdit& edit, int code, int shift);

}  // namespace Tarnwise
