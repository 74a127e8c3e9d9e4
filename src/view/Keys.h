// Keys as forms and toolkits know them.
#pragma once

namespace Tarnwise {

// Which key went down or up: the virtual key numbers that Windows has made usual.
enum Key {
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
  kKeyF1 = 112,
  kKeyPlus = 187,
  kKeyComma = 188,
  kKeyMinus = 189,
  kKeyPeriod = 190,
  kKeyOther = 231,  // types a character that no key of its own stands for
};

// What a key press types, where that is no character that is seen.
enum Typed {
  kCtrlA = 1,
  kCtrlC = 3,
  kTypedBackspace = 8,
  kTypedTab = 9,
  kTypedReturn = 13,
  kCtrlV = 22,
  kCtrlX = 24,
  kCtrlZ = 26,
  kTypedEscape = 27,
  kBlank = 32,  // the first that is seen
  kRubOut = 127,
};

// What is held with it.
enum Shift { kShift = 1, kControl = 2, kAlt = 4 };

struct KeyStroke {
  int Code = 0;       // a Key
  int Character = 0;  // what it types as a code point, 0: nothing
  int Shift = 0;
};

}  // namespace Tarnwise
