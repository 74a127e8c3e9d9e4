#include "view/qt/QtTextBox.h"

#include "runtime/Utf8.h"
#include "view/Gesture.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKeys.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace Tarnwise {

namespace {

int SelectionStart(const QLineEdit& edit) {
  return edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
}

QWidget* MakeTextBox(QtForm& form, Control& control, QWidget& parent) {
  auto* const edit = new QLineEdit(&parent);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
  edit->setDragEnabled(false);
  edit->setAcceptDrops(false);
  edit->setAttribute(Qt::WA_InputMethodEnabled, false);  // every character goes through the form's key events
  const auto caretMoved = [&form, edit] {
    if (Control* const box = form.ControlOf(edit)) Gesture::StoreCaret(form, static_cast<TextBox&>(*box));
  };
  QObject::connect(edit, &QLineEdit::cursorPositionChanged, &form, caretMoved);
  QObject::connect(edit, &QLineEdit::selectionChanged, &form, caretMoved);
  // A text that came by none of its keys is put back: the box shows what the tree has.
  QObject::connect(edit, &QLineEdit::textChanged, &form, [&form, edit] {
    if (Control* const box = form.ControlOf(edit)) form.SyncControl(*box);
  });
  // The caret stands where the tree says until a person moves it.
  edit->setText(Text(static_cast<TextBox&>(control).Text));
  return edit;
}

void SyncTextBox(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& box = static_cast<TextBox&>(control);
  auto& edit = static_cast<QLineEdit&>(widget);
  const QSignalBlocker quiet(edit);
  const QString text = Text(box.Text);
  if (edit.text() != text) edit.setText(text);
  const int start = Utf16UnitsBefore(box.Text(), box.SelStart);
  const int length = Utf16UnitsBefore(box.Text(), box.SelStart() + box.SelLength()) - start;
  if (SelectionStart(edit) == start && edit.selectedText().size() == length) return;
  if (length > 0) {
    edit.setSelection(start, length);
  } else {
    edit.deselect();
    edit.setCursorPosition(start);
  }
}

}  // namespace

Entered EnteredInto(const QLineEdit& edit) {
  const String text = Text(edit.text());
  const int from = SelectionStart(edit);
  const int start = CharactersBefore(text, from);
  const int end = CharactersBefore(text, from + static_cast<int>(edit.selectedText().size()));
  return {text, start, end - start, CharactersBefore(text, edit.cursorPosition())};
}

void TypeCharacter(QLineEdit& edit, int character) {
  switch (character) {
    case kCtrlA: edit.selectAll(); break;
    case kCtrlC: edit.copy(); break;
    case kTypedBackspace: edit.backspace(); break;
    case kCtrlV: edit.paste(); break;
    case kCtrlX: edit.cut(); break;
    case kCtrlZ: edit.undo(); break;
    default:
      if (character < kBlank || character == kRubOut) return;
      const auto code = static_cast<char32_t>(character);
      edit.insert(QString::fromUcs4(&code, 1));
  }
}

void PressEditingKey(QLineEdit& edit, int code, int shift) {
  const bool edits = code == kKeyDelete || code == kKeyInsert || (code >= kKeyEnd && code <= kKeyRight);
  if (!edits || code == kKeyUp) return;
  QKeyEvent press(QEvent::KeyPress, QtKeyOf(code), ModifiersOf(shift));
  static_cast<QObject&>(edit).event(&press);
}

const QtKind kQtTextBox{MakeTextBox, SyncTextBox};

}  // namespace Tarnwise
