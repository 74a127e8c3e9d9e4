// Keys as the forms know them: virtual key numbers, characters, and the shift state.
#pragma once

class QKeyEvent;

namespace Tarnwise {

enum QtKeyCode {
  kKeyBackspace = 8,
  kKeyTab = 9,
  kKeyReturn = 13,
  kKeyEscape = 27,
  kKeySpace = 32,
  kKeyPageUp = 33,
  kKeyPageDown = 34,
  kKeyEnd = 35,
  kKeyHome = 36,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
  kKeyInsert = 45,
  kKeyDelete = 46,
  kKeyOther = 231,  // types a character that no key of its own stands for
};

int VirtualKey(const QKeyEvent& event);   // 0: a modifier alone, or nothing that the forms know
int CharacterOf(const QKeyEvent& event);  // the code point it types, 0: none
int ShiftOf(const QKeyEvent& event);      // 1 Shift, 2 Ctrl, 4 Alt

}  // namespace Tarnwise
