#include "view/qt/QtKeys.h"

#include <QKeyEvent>
#include <utility>
#include <vector>

namespace Tarnwise {

namespace {

// The first of several is the one that a script presses.
const std::vector<std::pair<Qt::Key, int>> kCodes{
    {Qt::Key_Backspace, kKeyBackspace},
    {Qt::Key_Tab, kKeyTab},
    {Qt::Key_Backtab, kKeyTab},
    {Qt::Key_Return, kKeyReturn},
    {Qt::Key_Enter, kKeyReturn},
    {Qt::Key_Escape, kKeyEscape},
    {Qt::Key_Space, kKeySpace},
    {Qt::Key_PageUp, kKeyPageUp},
    {Qt::Key_PageDown, kKeyPageDown},
    {Qt::Key_End, kKeyEnd},
    {Qt::Key_Home, kKeyHome},
    {Qt::Key_Left, kKeyLeft},
    {Qt::Key_Up, kKeyUp},
    {Qt::Key_Right, kKeyRight},
    {Qt::Key_Down, kKeyDown},
    {Qt::Key_Insert, kKeyInsert},
    {Qt::Key_Delete, kKeyDelete},
    {Qt::Key_Period, kKeyPeriod},
    {Qt::Key_Comma, kKeyComma},
    {Qt::Key_Minus, kKeyMinus},
    {Qt::Key_Plus, kKeyPlus},
};

}  // namespace

int VirtualKey(const QKeyEvent& event) {
  const int key = event.key();
  for (const auto& [native, code] : kCodes) {
    if (native == key) return code;
  }
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return kKeyF1 + key - Qt::Key_F1;
  return CharacterOf(event) != 0 ? kKeyOther : 0;
}

Qt::Key QtKeyOf(int code) {
  for (const auto& [native, known] : kCodes) {
    if (known == code) return native;
  }
  return code >= '0' && code <= 'Z' ? static_cast<Qt::Key>(code) : Qt::Key_unknown;
}

Qt::KeyboardModifiers ModifiersOf(int shift) {
  Qt::KeyboardModifiers held;
  held.setFlag(Qt::ShiftModifier, (shift & kShift) != 0);
  held.setFlag(Qt::ControlModifier, (shift & kControl) != 0);
  held.setFlag(Qt::AltModifier, (shift & kAlt) != 0);
  return held;
}

int CharacterOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const int key = event.key();
  // Right Alt comes as Ctrl and Alt together on some keyboards, and types.
  if (modifiers == Qt::ControlModifier) return key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + 1 : 0;
  if (modifiers == Qt::AltModifier) return 0;
  if (key == Qt::Key_Backspace) return kTypedBackspace;
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return kTypedReturn;
  if (key == Qt::Key_Escape) return kTypedEscape;
  const auto typed = event.text().toUcs4();
  if (typed.isEmpty() || typed.first() < kBlank || typed.first() == kRubOut) return 0;
  return static_cast<int>(typed.first());
}

int ShiftOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  return (modifiers.testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab ? kShift : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? kControl : 0) | (modifiers.testFlag(Qt::AltModifier) ? kAlt : 0);
}

}  // namespace Tarnwise
