#include "view/qt/QtTextBox.h"

#include "view/qt/QtForm.h"
#include "view/qt/QtKeys.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

namespace Tarnwise {

namespace {

// Carets are counted in characters by the tree, in UTF-16 units by Qt.
int CharactersBefore(const QString& text, int units) { return static_cast<int>(text.left(units).toUcs4().size()); }

int UnitsBefore(const QString& text, int characters) {
  const auto codes = text.toUcs4().first(std::clamp(characters, 0, static_cast<int>(text.toUcs4().size())));
  return static_cast<int>(QString::fromUcs4(reinterpret_cast<const char32_t*>(codes.constData()), codes.size()).size());
}

int SelectionStart(const QLineEdit& edit) {
  return edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
}

QWidget* MakeTextBox(QtForm& form, Control& control, QWidget& parent) {
  auto* const edit = new QLineEdit(&parent);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
  edit->setDragEnabled(false);
  edit->setAcceptDrops(false);
  edit->setAttribute(Qt::WA_InputMethodEnabled, false);  // every character goes through the form's key events
  QObject::connect(edit, &QLineEdit::cursorPositionChanged, &form, [&form, edit] { form.CaretMoved(*edit); });
  QObject::connect(edit, &QLineEdit::selectionChanged, &form, [&form, edit] { form.CaretMoved(*edit); });
  QObject::connect(edit, &QLineEdit::textChanged, &form, [&form, edit] { form.TextCame(*edit); });
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
  const int start = UnitsBefore(text, box.SelStart);
  const int length = UnitsBefore(text, box.SelStart() + box.SelLength()) - start;
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
  const int from = SelectionStart(edit);
  const int start = CharactersBefore(edit.text(), from);
  const int end = CharactersBefore(edit.text(), from + static_cast<int>(edit.selectedText().size()));
  return {Text(edit.text()), start, end - start, CharactersBefore(edit.text(), edit.cursorPosition())};
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
