// Keys as the forms know them: virtual key numbers, characters, and the shift state.
#pragma once

#include "view/Keys.h"

#include <Qt>

class QKeyEvent;

namespace Tarnwise {

int VirtualKey(const QKeyEvent& event);  // 0: a modifier alone, or nothing that the forms know
Qt::Key QtKeyOf(int code);               // the other way round
Qt::KeyboardModifiers ModifiersOf(int shift);
int CharacterOf(const QKeyEvent& event);  // the code point it types, 0: none
int ShiftOf(const QKeyEvent& event);      // what is held, as of Shift

}  // namespace Tarnwise
