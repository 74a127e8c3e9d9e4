#include "view/qt/QtKeys.h"

#include <QKeyEvent>
#include <map>

namespace Tarnwise {

int VirtualKey(const QKeyEvent& event) {
  static const std::map<int, int> codes{
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
      {Qt::Key_Period, 190},
      {Qt::Key_Comma, 188},
      {Qt::Key_Minus, 189},
      {Qt::Key_Plus, 187},
  };
  const int key = event.key();
  const auto found = codes.find(key);
  if (found != codes.end()) return found->second;
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + key - Qt::Key_F1;
  return CharacterOf(event) != 0 ? kKeyOther : 0;
}

int CharacterOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const int key = event.key();
  // Right Alt comes as Ctrl and Alt together on some keyboards, and types.
  if (modifiers == Qt::ControlModifier) return key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + 1 : 0;
  if (modifiers == Qt::AltModifier) return 0;
  if (key == Qt::Key_Backspace) return kKeyBackspace;
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return kKeyReturn;
  if (key == Qt::Key_Escape) return kKeyEscape;
  const auto typed = event.text().toUcs4();
  if (typed.isEmpty() || typed.first() < 32U || typed.first() == 127U) return 0;
  return static_cast<int>(typed.first());
}

int ShiftOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) | (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

}  // namespace Tarnwise
