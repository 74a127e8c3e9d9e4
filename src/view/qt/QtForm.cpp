#include "view/qt/QtForm.h"

#include "view/Gesture.h"
#include "view/Lifetime.h"
#include "view/Painting.h"
#include "view/Platform.h"
#include "view/Speech.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtSurface.h"
#include "view/qt/QtTextBox.h"
#include "view/qt/QtToolkit.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QScreen>

namespace Tarnwise {

namespace {

// The window. Its children never hand the keyboard to each other: the tree says who has it.
class FormWindow : public Painted<QWidget> {
 public:
  explicit FormWindow(QtForm& form) : Painted(form, nullptr) { setWindowFlags(Qt::Dialog); }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    form_.CloseWanted();
  }
  bool focusNextPrevChild(bool /*next*/) override {
    setFocus(Qt::OtherFocusReason);
    return true;
  }
};

void SetName(QWidget& widget, const Control& control) {
  const QString name = Text(SpokenName(control));
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
  if (control.DragAutomatic && widget.accessibleDescription().isEmpty()) {
    widget.setAccessibleDescription("Space picks it up, the arrow keys move it, Space drops it, Escape gives up.");
  }
}

// By the platform's style.
bool HasOutline(const Control& control) {
  switch (control.Type) {
    case Kind::Label:
    case Kind::Image:
    case Kind::Frame:
    case Kind::Shape:
    case Kind::PictureBox:
    case Kind::TabStrip: return false;
    default: return true;
  }
}

void SetCursorOf(QWidget& widget, const Control& control) {
  const int pointer = ShownPointer(control);
  if (pointer == kDefaultPointer) {
    if (widget.testAttribute(Qt::WA_SetCursor)) widget.unsetCursor();
  } else if (widget.cursor().shape() != CursorFor(pointer)) {
    widget.setCursor(CursorFor(pointer));
  }
}

}  // namespace

QtForm::QtForm(Form& form, QtToolkit& toolkit)
    : WindowedMirror(form, toolkit.Seen()), window_(std::make_unique<FormWindow>(*this)) {
  window_->setObjectName(Text(form.Name));
  window_->setFont(FontOf());
  window_->setWindowIcon(toolkit.WindowIcon());
  TakeColours();
  window_->setFocus();
  Keep(form, static_cast<QObject*>(window_.get()));
  Watch(*window_, form);
  SyncAll();
  // Labels once more, as those that they stand for are there now.
  for (Control* control : form.Controls()) {
    if (control->Type == Kind::Label) SyncControl(*control);
  }
  Sync();
}

QtForm::~QtForm() = default;

QWidget* QtForm::WidgetOf(const Control& control) const {
  return static_cast<QWidget*>(static_cast<QObject*>(NativeOf(control)));
}

void QtForm::Watch(QObject& object, Control& control) {
  WindowedMirror::Watch(&object, control);
  object.installEventFilter(this);
  connect(&object, &QObject::destroyed, this, [this](QObject* gone) { Lose(gone); });
}

bool QtForm::Create(Control& control) {
  const QtKind* const kind = KindOf(control);
  if (kind == nullptr) return false;
  QWidget* const widget = kind->Make(*this, control, *WidgetOf(*control.Parent));
  widget->setObjectName(Text(control.FullName()));
  Keep(control, static_cast<QObject*>(widget));
  Watch(*widget, control);
  if (TakesFocus(control)) widget->setFocusPolicy(Qt::TabFocus);  // a press moves the focus the tree's way
  return true;
}

void QtForm::PutAt(Control& control, const PixelRect& place) {
  if (WidgetOf(control)->geometry() != ToQRect(place)) WidgetOf(control)->setGeometry(ToQRect(place));
}

void QtForm::Apply(Control& control) {
  QWidget& widget = *WidgetOf(control);
  KindOf(control)->Sync(*this, control, widget);
  SetName(widget, control);
  if (HasOutline(control)) ShowOutline(widget, colours_);
  SetCursorOf(widget, control);
  if (widget.isEnabledTo(widget.parentWidget()) != control.Enabled) widget.setEnabled(control.Enabled);
  if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
}

void QtForm::ShowTip(const Control& control, const String& tip) {
  QWidget& widget = *WidgetOf(control);
  if (widget.toolTip() != Text(tip)) widget.setToolTip(Text(tip));
}

int QtForm::TextWidth(const String& text, const TypeFace& face) const { return TextWidthIn(face, text); }

void QtForm::Paint(QWidget& widget, const QRect& area) const {
  const Control* const control = ControlOf(&widget);
  if (control == nullptr) return;
  QPainter painter(&widget);
  QtSurface surface(painter);
  const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
  const PaintState state{widget.hasFocus(), widget.underMouse(), button != nullptr && button->isDown()};
  PaintControl({surface, colours_}, *control, ToPixelRect(widget.rect()), ToPixelRect(area), state);
}

void QtForm::Announce(const Label& label, bool renamed) {
  QAccessibleEvent named(WidgetOf(label), QAccessible::NameChanged);
  if (renamed) QAccessible::updateAccessibility(&named);
  QAccessibleEvent alert(WidgetOf(label), QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void QtForm::ApplyForm() {
  const QString title = Text(Tree()->Caption);
  if (window_->windowTitle() != title) window_->setWindowTitle(title);
  const QRect place = ToQRect(PixelPlace(*Tree(), Scale()));
  if (window_->size() != place.size()) window_->setFixedSize(place.size());
  if (place.topLeft() != placed_) {
    placed_ = place.topLeft();
    window_->move(QApplication::primaryScreen()->geometry().topLeft() + placed_);
  }
}

// The application's palette, which a person may change at any time.
void QtForm::TakeColours() {
  const QPalette palette = QApplication::palette();
  colours_ = Readable(ColoursOf(palette));
  window_->setPalette(WithGrounds(palette, colours_));
}

void QtForm::PaletteCame(const Control& control) {
  if (&control != Tree()) return;
  TakeColours();
  SyncAll();
}

void QtForm::Repaint(const Control& container, const PixelRect& area) { WidgetOf(container)->update(ToQRect(area)); }

void QtForm::ToFront(const Control& control) { WidgetOf(control)->raise(); }

void QtForm::BorderToFront(const Control& container) {
  if (auto* const border = WidgetOf(container)->findChild<QWidget*>("border", Qt::FindDirectChildrenOnly)) {
    border->raise();
  }
}

void QtForm::FocusTree() {
  if (Tree() == nullptr) return;
  auto* const widget = static_cast<QWidget*>(static_cast<QObject*>(KeyboardWindow()));
  if (window_->focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
}

Entered QtForm::EnteredIn(const TextBox& box) const { return EnteredInto(static_cast<QLineEdit&>(*WidgetOf(box))); }

void QtForm::BuryWindow(void* window) {
  auto* const widget = static_cast<QWidget*>(static_cast<QObject*>(window));
  widget->hide();
  Bury([gone = QPointer<QWidget>(widget)] { delete gone.data(); }, Tree());
}

void QtForm::HideForm() { window_->hide(); }

void QtForm::timerEvent(QTimerEvent* event) { TimeUp(event->timerId()); }

}  // namespace Tarnwise
