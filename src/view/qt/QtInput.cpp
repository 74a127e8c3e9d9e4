// What a person does to the widgets of a form, on its way to the tree. Widgets follow the mouse themselves only where
// their own behaviour is wanted; what they would choose or toggle by themselves is put to the tree, which decides.
#include "view/Gesture.h"
#include "view/Keys.h"
#include "view/Rows.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKeys.h"
#include "view/qt/QtTextBox.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QShortcutEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>
#include <QWheelEvent>

namespace Tarnwise {

namespace {

// A text box would paste as the middle button comes up.
bool IgnoresOtherButtons(const Control& control) {
  return control.Type == Kind::TextBox || !Gesture::FollowsMouse(control);
}

// Of the whole event only this position has kept its fractions of a pixel.
FormPoint PointOf(const QObject& object, const QMouseEvent& event) {
  const auto& widget = static_cast<const QWidget&>(object);
  const QPointF inWindow = widget.mapTo(widget.window(), event.position());
  return {inWindow.x() * kTwipsPerDesignPixel, inWindow.y() * kTwipsPerDesignPixel};
}

}  // namespace

QPointF QtForm::InPixels(FormPoint at) { return QPointF(at.X, at.Y) / kTwipsPerDesignPixel; }

Touch QtForm::TouchOf(const Control& control, FormPoint at) const {
  const QWidget* const widget = WidgetOf(control);
  if (widget == nullptr) return {false, -1};
  const QPoint inside = widget->mapFrom(&Window(), InPixels(at)).toPoint();
  int row = -1;
  if (const auto* const list = qobject_cast<const QListWidget*>(widget)) {
    row = list->indexAt(list->viewport()->mapFrom(&Window(), InPixels(at)).toPoint()).row();
  } else if (const auto* const tabs = qobject_cast<const QTabBar*>(widget)) {
    row = tabs->tabAt(inside);
  }
  return {widget->rect().contains(inside), row < 0 ? -1 : RowsOf(control).First + row};
}

bool QtForm::IsFar(FormPoint from, FormPoint to) const {
  return (InPixels(to) - InPixels(from)).manhattanLength() >= QApplication::startDragDistance();
}

bool QtForm::eventFilter(QObject* object, QEvent* event) {
  Control* const control = ControlOf(object);
  if (Tree() == nullptr || control == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: return Mouse(*object, *control, *static_cast<QMouseEvent*>(event));
    case QEvent::Wheel: return Hand().Wheel(*this, *control, static_cast<QWheelEvent*>(event)->angleDelta().y());
    case QEvent::KeyPress: return KeyDown(*control, *static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod: return Commit(*control, static_cast<QInputMethodEvent*>(event)->commitString());
    case QEvent::KeyRelease: return KeyUp(*static_cast<QKeyEvent*>(event));
    case QEvent::Shortcut: return Mnemonic(*control, *static_cast<QShortcutEvent*>(event));
    case QEvent::FocusIn: FocusCame(*object, *control, static_cast<QFocusEvent*>(event)->reason()); return false;
    case QEvent::ApplicationPaletteChange: PaletteCame(*control); return false;
    default: return false;
  }
}

bool QtForm::Mouse(QObject& object, Control& control, QMouseEvent& event) {
  const FormPoint at = PointOf(object, event);
  if (event.type() == QEvent::MouseMove) return Hand().Move(*this, at, event.buttons().testFlag(Qt::LeftButton));
  if (event.button() != Qt::LeftButton) return IgnoresOtherButtons(control);
  if (event.type() != QEvent::MouseButtonRelease) return Hand().Press(*this, control, at);
  return control.Type != Kind::Grid && Hand().Release(*this, at, [&] { object.event(&event); });
}

void QtForm::CloseWanted() {
  if (Tree() != nullptr) Hand().CloseWanted(*this);
}

// Qt has found the letter in a caption; which one is meant, of several too, is the tree's to say.
bool QtForm::Mnemonic(const Control& control, const QShortcutEvent& event) {
  if (!HasCaption(control) || event.key().isEmpty()) return false;
  Hand().Mnemonic(*this, event.key()[0].key());
  return true;
}

bool QtForm::KeyDown(const Control& control, const QKeyEvent& event) {
  const KeyEvent key{VirtualKey(event), ShiftOf(event)};
  switch (Hand().KeyDown(*this, control, key)) {
    case KeyGoes::ToNative: return false;
    case KeyGoes::ToMenu: {
      const Control* const active = Tree()->ActiveControl;
      return active == nullptr || active->Type == Kind::TextBox || !IsUsable(*active) || !AnswersKeys(control);
    }
    case KeyGoes::ToBox:
      if (key.Code != 0) BoxKey(static_cast<TextBox&>(*Tree()->ActiveControl), key, CharacterOf(event));
      return true;
    case KeyGoes::Nowhere: break;
  }
  return true;
}

// Key down, key press, then what the key itself does; handlers may drop it or put another in its place.
void QtForm::BoxKey(TextBox& box, KeyEvent down, int character) {
  const QPointer<QLineEdit> edit = static_cast<QLineEdit*>(WidgetOf(box));
  KeyEvent press{character, down.Shift};
  if (!Hand().BoxKeyDown(*this, box, down)) return;
  if (character != 0 && !Hand().BoxKeyPress(*this, box, press)) return;
  {
    const QSignalBlocker known(*edit);
    if (character == 0)
      PressEditingKey(*edit, down.Code, down.Shift);
    else
      TypeCharacter(*edit, press.Code);
  }
  Hand().BoxChanged(*this, box);
}

// What an input method hands over goes the way of the keys that type it.
bool QtForm::Commit(const Control& control, const QString& text) {
  if (control.Type != Kind::TextBox) return false;
  for (const auto code : text.toUcs4()) {
    const int key = code < 128U ? QChar(code).toUpper().unicode() : static_cast<int>(Qt::Key_unknown);
    const QString typed = QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1);
    const QPointer<QWidget> widget = WidgetOf(control);
    KeyDown(control, QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, typed));
    if (Tree() != nullptr) KeyUp(QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, typed));
    if (Tree() == nullptr || widget.isNull() || ControlOf(widget) != &control) break;
  }
  return true;
}

bool QtForm::KeyUp(const QKeyEvent& event) {
  return !event.isAutoRepeat() && Hand().KeyUp(*this, {VirtualKey(event), ShiftOf(event)});
}

void QtForm::FocusCame(QObject& object, const Control& control, int reason) {
  if (Tree()->ActiveControl == &control || &control == Tree()) return;
  const bool meant = reason == Qt::OtherFocusReason || reason == Qt::ShortcutFocusReason;
  QTimer::singleShot(0, this, [this, meant, watched = QPointer<QObject>(&object)] {
    Control* const now = watched.isNull() ? nullptr : ControlOf(watched);
    if (Tree() == nullptr || now == nullptr || Tree()->ActiveControl == now) return;
    if (meant && static_cast<QWidget*>(watched.data())->hasFocus())
      Hand().FocusCame(*this, *now);
    else
      Settle(nullptr);
  });
}

}  // namespace Tarnwise
