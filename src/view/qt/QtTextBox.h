// Text boxes: the line edit and the tree's caret and selection.
#pragma once

#include "view/Controls.h"

#include <QLineEdit>

namespace Tarnwise {

class QtForm;

// Keeps the tree's SelStart and SelLength equal to what the person sees.
void StoreCaret(TextBox& box, const QLineEdit& edit);

// What the character does in the box by itself: types, removes, selects all, uses the clipboard.
void TypeCharacter(QLineEdit& edit, int character);
// What a key does that types nothing. False: the widget's own way.
bool PressEditingKey(QLineEdit& edit, int code, int shift);

}  // namespace Tarnwise
