// What a person does to the widgets of a form, on its way to the tree. Widgets follow the mouse themselves only where
// their own behaviour is wanted; what they would choose or toggle by themselves is put to the tree, which decides.
#include "view/Dispatch.h"
#include "view/Input.h"
#include "view/Mnemonics.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKeys.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtLifetime.h"
#include "view/qt/QtTextBox.h"
#include "view/qt/QtToolkit.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QShortcutEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWheelEvent>

namespace Tarnwise {

namespace {

// In the control's own numbers, -1 where there is none.
int RowAt(const Control& control, const QWidget& widget, const QPoint& at) {
  if (control.Type == Kind::ListBox) return static_cast<const QListWidget&>(widget).indexAt(at).row();
  if (control.Type != Kind::TabStrip) return -1;
  const int tab = static_cast<const QTabBar&>(widget).tabAt(at);
  return tab < 0 ? -1 : tab + 1;
}

// A text box would paste as the middle button comes up.
bool IgnoresOtherButtons(const Control& control) { return control.Type == Kind::TextBox || !FollowsMouse(control); }

// Of the whole event only this position has kept its fractions of a pixel.
QPointF InWindow(const QObject& object, const QMouseEvent& event) {
  const auto& widget = static_cast<const QWidget&>(object);
  return widget.mapTo(widget.window(), event.position());
}

}  // namespace

// What a click or key without a handler changed still has to be seen, and what the widget did by itself to be undone.
void QtForm::Settle(Control* control) {
  if (form_ == nullptr) return;
  if (form_->Screen().HandlerDepth == 0) form_->Screen().SyncAll();
  if (form_ == nullptr) return;
  if (control != nullptr && WidgetOf(*control) != nullptr) SyncControl(*control);
  FocusTree();
  toolkit_.Drag().Show(*this);
}

bool QtForm::eventFilter(QObject* object, QEvent* event) {
  Control* const control = ControlOf(object);
  if (form_ == nullptr || control == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: return Press(*object, *control, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove: return Move(*object, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease: return LetGo(*object, *control, *static_cast<QMouseEvent*>(event));
    case QEvent::Wheel: return Wheel(*control, *static_cast<QWheelEvent*>(event));
    case QEvent::KeyPress: return KeyDown(*control, *static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod: return Commit(*control, static_cast<QInputMethodEvent*>(event)->commitString());
    case QEvent::KeyRelease: return KeyUp(*static_cast<QKeyEvent*>(event));
    case QEvent::Shortcut: return Mnemonic(*control, *static_cast<QShortcutEvent*>(event));
    case QEvent::FocusIn: FocusCame(*object, *control, static_cast<QFocusEvent*>(event)->reason()); return false;
    case QEvent::ApplicationPaletteChange: PaletteCame(*control); return false;
    default: return false;
  }
}

bool QtForm::Press(const QObject& object, Control& control, const QMouseEvent& event) {
  const bool native = FollowsMouse(control);
  if (event.button() != Qt::LeftButton) return IgnoresOtherButtons(control);
  const QtEntry entry(*form_);
  press_ = {&control, -1, false, native};
  toolkit_.Drag().Cancel();
  if (form_->Screen().Drag.Active()) form_->Screen().Drag.Cancel();
  if (!IsUsable(control)) {
    press_.Refused = true;
    return true;
  }
  if (HasRows(control)) press_.Row = RowAt(control, *WidgetOf(control), event.position().toPoint());
  const bool good = Input::Press(control);
  // The focus that has moved may have taken the control or the whole form away.
  if (form_ == nullptr || press_.On != &control || !good) {
    press_.Refused = true;
    Settle(nullptr);
    return true;
  }
  Settle(nullptr);
  if (form_ == nullptr || press_.On != &control) return true;
  if (control.DragAutomatic) toolkit_.Drag().Arm(*this, control, InWindow(object, event));
  return !native;
}

bool QtForm::Move(const QObject& object, const QMouseEvent& event) {
  if ((event.buttons() & Qt::LeftButton) == 0 || press_.Refused) return press_.Refused && event.buttons() != 0;
  if (press_.On == nullptr) return false;
  const QtEntry entry(*form_);
  if (toolkit_.Drag().Move(InWindow(object, event))) return true;
  return !press_.Native;
}

bool QtForm::LetGo(QObject& object, const Control& control, QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return IgnoresOtherButtons(control);
  const QtEntry entry(*form_);
  if (toolkit_.Drag().Release()) {
    press_ = {};
    Settle(nullptr);
    return true;
  }
  const QtPress press = press_;
  if (press.Refused || press.On == nullptr) {
    press_ = {};
    return press.Refused;
  }
  if (press.On->Type == Kind::Grid) return false;
  if (press.Native) {
    // Clicked comes from inside this call, so that a press can be told from anything else.
    object.event(&event);
    press_ = {};
    return true;
  }
  press_ = {};
  if (const QWidget* const widget = WidgetOf(*press.On)) FinishPress(press, *widget, event);
  return true;
}

void QtForm::FinishPress(const QtPress& press, const QWidget& widget, const QMouseEvent& event) {
  Control& control = *press.On;
  if (!widget.rect().contains(event.position().toPoint())) return;
  if (HasRows(control)) {
    const int row = RowAt(control, widget, event.position().toPoint());
    if (row < 0 || row != press.Row) return;
    Input::SelectRow(control, row);
  } else {
    Input::Activate(control);
  }
  Settle(ControlOf(&widget));
}

void QtForm::Clicked(QWidget& widget) {
  Control* const control = ControlOf(&widget);
  if (form_ == nullptr || control == nullptr) return;
  const QtEntry entry(*form_);
  const bool pressed = press_.On == control && !press_.Refused;
  if (pressed || (Refusal(*control).empty() && Input::Press(*control))) {
    if (ControlOf(&widget) == control) Input::Activate(*control);
  }
  Settle(ControlOf(&widget));
}

void QtForm::RowChosen(QWidget& widget, int row) {
  Control* const control = ControlOf(&widget);
  if (form_ == nullptr || control == nullptr || row < 0) return;
  const QtEntry entry(*form_);
  if (Refusal(*control).empty()) Input::SelectRow(*control, row);
  Settle(ControlOf(&widget));
}

void QtForm::ToolPressed(QWidget& widget, const String& key) {
  auto* const bar = static_cast<Toolbar*>(ControlOf(&widget));
  if (form_ == nullptr || bar == nullptr) return;
  const QtEntry entry(*form_);
  if (Refusal(*bar).empty()) Input::PressToolButton(*bar, key);
  Settle(ControlOf(&widget));
}

void QtForm::Scrolled(QWidget& widget, int value, bool dragging) {
  auto* const bar = static_cast<VScrollBar*>(ControlOf(&widget));
  if (form_ == nullptr || bar == nullptr) return;
  const QtEntry entry(*form_);
  Input::ScrollTo(*bar, value, dragging);
  Settle(dragging ? nullptr : ControlOf(&widget));
}

void QtForm::CloseWanted() {
  if (form_ == nullptr) return;
  const QtEntry entry(*form_);
  Input::CloseForm(*form_);
  Settle(nullptr);
}

void QtForm::Ticked(const Control& timer) {
  if (form_ == nullptr || timers_.count(&timer) == 0) return;
  const QtEntry entry(*form_);
  Input::Tick(const_cast<Timer&>(static_cast<const Timer&>(timer)));  // NOLINT: kept by its address only
  Settle(nullptr);
}

bool QtForm::Wheel(Control& control, const QWheelEvent& event) {
  const QtEntry entry(*form_);
  if (!Input::Wheel(control, event.angleDelta().y())) return false;
  Settle(nullptr);
  return true;
}

// Qt has found the letter in a caption; which one is meant, of several too, is the tree's to say.
bool QtForm::Mnemonic(const Control& control, const QShortcutEvent& event) {
  if (!HasCaption(control) || event.key().isEmpty()) return false;
  const QtEntry entry(*form_);
  Input::Mnemonic(*form_, event.key()[0].key());
  Settle(nullptr);
  return true;
}

bool QtForm::KeyDown(Control& control, QKeyEvent& event) {
  if (form_->Screen().IsBlocked(*form_)) return true;
  const int code = VirtualKey(event);
  const int shift = ShiftOf(event);
  const QtEntry entry(*form_);
  if (toolkit_.Drag().ByMouse()) {
    if (code == kKeyEscape) {
      press_.Refused = true;  // where the button comes up now is no click
      toolkit_.Drag().Cancel();
    }
    Settle(nullptr);
    return true;
  }
  if (code == kKeyTab && (shift & 6) == 0) {
    Input::TabKey(*form_, event.key() == Qt::Key_Backtab || (shift & 1) != 0);
    Settle(nullptr);
    return true;
  }
  // Keys of a control that can't answer now go nowhere.
  Control* const active = form_->ActiveControl;
  const bool altAlone = (shift & 6) == 4;
  if (active == nullptr || !IsUsable(*active)) return true;
  if (altAlone) return active->Type == Kind::TextBox || !AnswersKeys(control);
  if (active->Type == Kind::TextBox) return BoxKey(static_cast<TextBox&>(*active), event);
  if ((shift & 2) == 0 && code != 0 && Input::ControlKey(*active, code, shift)) {
    Settle(form_ != nullptr ? form_->ActiveControl : nullptr);
    return true;
  }
  return !AnswersKeys(control);
}

// Key down, key press, then what the key itself does; handlers may drop it or put another in its place.
bool QtForm::BoxKey(TextBox& box, QKeyEvent& event) {
  const int code = VirtualKey(event);
  const int character = CharacterOf(event);
  if (code == 0) return true;
  const QPointer<QLineEdit> edit = static_cast<QLineEdit*>(WidgetOf(box));
  typing_ = event.key();
  StoreCaret(box, *edit);
  const auto here = [&] { return form_ != nullptr && !edit.isNull() && ControlOf(edit) == &box; };
  KeyEvent down{code, ShiftOf(event)};
  if (!Input::KeyDown(box, down) || !here()) {
    Settle(nullptr);
    return true;
  }
  SyncControl(box);
  if (character == 0) {
    const QSignalBlocker known(*edit);
    PressEditingKey(*edit, down.Code, down.Shift);
  } else {
    KeyEvent press{character, ShiftOf(event)};
    const bool types = Input::KeyPress(box, press);
    if (!here()) {
      Settle(nullptr);
      return true;
    }
    SyncControl(box);
    const QSignalBlocker known(*edit);
    if (types) TypeCharacter(*edit, press.Code);
  }
  const QString text = edit->text();
  const auto caret = static_cast<int>(text.left(edit->cursorPosition()).toUcs4().size());
  if (text.toStdString() != box.Text())
    Input::TextEdited(box, text.toStdString(), caret);
  else
    StoreCaret(box, *edit);
  Settle(here() ? &box : nullptr);
  return true;
}

// What an input method hands over goes the way of the keys that type it.
bool QtForm::Commit(Control& control, const QString& text) {
  if (control.Type != Kind::TextBox) return false;
  for (const auto code : text.toUcs4()) {
    const int key = code < 128U ? QChar(code).toUpper().unicode() : static_cast<int>(Qt::Key_unknown);
    const QString typed = QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1);
    const QPointer<QWidget> widget = WidgetOf(control);
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, typed);
    KeyDown(control, down);
    if (form_ != nullptr) KeyUp(QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, typed));
    if (form_ == nullptr || widget.isNull() || ControlOf(widget) != &control) break;
  }
  return true;
}

// A text that came into a box by none of its keys is put back: it shows what the tree has.
void QtForm::TextCame(const QWidget& widget) {
  Control* const box = ControlOf(&widget);
  if (form_ != nullptr && box != nullptr) SyncControl(*box);
}

bool QtForm::KeyUp(const QKeyEvent& event) {
  if (event.isAutoRepeat() || typing_ != event.key()) return false;
  typing_ = 0;
  const QtEntry entry(*form_);
  Control* const active = form_->ActiveControl;
  if (active != nullptr && active->Type == Kind::TextBox) {
    Input::KeyUp(static_cast<TextBox&>(*active), {VirtualKey(event), ShiftOf(event)});
    Settle(nullptr);
  }
  return true;
}

// The focus came by a way of the platform's own, a screen reader's for one: the tree follows where it can.
void QtForm::FocusCame(QObject& object, Control& control, int reason) {
  if (form_->ActiveControl == &control || &control == form_) return;
  const bool meant = reason == Qt::OtherFocusReason || reason == Qt::ShortcutFocusReason;
  QTimer::singleShot(0, this, [this, meant, watched = QPointer<QObject>(&object)] {
    Control* const now = watched.isNull() ? nullptr : ControlOf(watched);
    if (form_ == nullptr || now == nullptr || form_->ActiveControl == now) return;
    const QtEntry entry(*form_);
    const bool still = static_cast<QWidget*>(watched.data())->hasFocus();
    if (meant && still && TakesFocus(*now) && Refusal(*now).empty()) Input::MoveFocus(*now);
    Settle(nullptr);
  });
}

}  // namespace Tarnwise
