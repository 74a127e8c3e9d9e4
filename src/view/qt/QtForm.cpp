#include "view/qt/QtForm.h"

#include "view/Platform.h"
#include "view/Reach.h"
#include "view/Speech.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtLifetime.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtPictureBox.h"
#include "view/qt/QtToolkit.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <algorithm>

namespace Tarnwise {

namespace {

// The window. Its children never hand the keyboard to each other: the tree says who has it.
class FormWindow : public QWidget {
 public:
  explicit FormWindow(QtForm& form) : QWidget(nullptr, Qt::Dialog), form_(form) {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    form_.CloseWanted();
  }
  bool focusNextPrevChild(bool /*next*/) override {
    setFocus(Qt::OtherFocusReason);
    return true;
  }
  void paintEvent(QPaintEvent* event) override {
    if (form_.Tree() == nullptr) return;
    QPainter painter(this);
    PaintChildren(painter, form_, *form_.Tree(), event->rect());
  }

 private:
  QtForm& form_;
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
  const int pointer = PointerOver(control);
  if (pointer == 0 && !control.DragAutomatic) {
    if (widget.testAttribute(Qt::WA_SetCursor) && control.Type != Kind::TextBox) widget.unsetCursor();
    return;
  }
  const Qt::CursorShape shape = pointer == 0 ? Qt::OpenHandCursor : CursorFor(pointer);
  if (widget.cursor().shape() != shape) widget.setCursor(shape);
}

}  // namespace

void SetFullText(QWidget& widget, const Control& control, const QString& text, bool cut) {
  const QString tip = cut && control.ToolTipText().empty() ? text : Text(control.ToolTipText);
  if (widget.toolTip() != tip) widget.setToolTip(tip);
}

QtForm::QtForm(Form& form, QtToolkit& toolkit)
    : form_(&form), toolkit_(toolkit), window_(std::make_unique<FormWindow>(*this)) {
  window_->setObjectName(Text(form.Name));
  window_->setFont(BaseFont());
  window_->setWindowIcon(WindowIcon());
  TakeColours();
  window_->setFocus();
  Watch(*window_, form);
  SyncWindow();
  for (Control* control : form.Controls()) SyncControl(*control);
  // Labels once more, as those that they stand for are there now.
  for (Control* control : form.Controls()) {
    if (control->Type == Kind::Label) SyncControl(*control);
  }
  Sync();
}

QtForm::~QtForm() = default;

QWidget* QtForm::WidgetOf(const Control& control) const {
  if (form_ != nullptr && &control == form_) return window_.get();
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second.data();
}

Control* QtForm::ControlOf(const QObject* object) const {
  const auto found = controls_.find(object);
  return found == controls_.end() ? nullptr : found->second;
}

void QtForm::Watch(QObject& object, Control& control) {
  controls_[&object] = &control;
  object.installEventFilter(this);
}

void QtForm::Make(Control& control) {
  const QtKind* const kind = KindOf(control);
  if (kind == nullptr) return;
  QWidget* parent = WidgetOf(*control.Parent);
  if (parent == nullptr) {
    SyncControl(*control.Parent);
    parent = WidgetOf(*control.Parent);
  }
  QWidget* const widget = kind->Make(*this, control, *parent);
  widget->setObjectName(Text(control.FullName()));
  widgets_[&control] = widget;
  Watch(*widget, control);
  if (TakesFocus(control)) widget->setFocusPolicy(Qt::TabFocus);  // a press moves the focus the tree's way
  SyncPlace(control, *widget);
  kind->Sync(*this, control, *widget);
  SyncLook(control, *widget);
  restack_.push_back(control.Parent);
}

void QtForm::Sync() {
  if (form_ == nullptr) return;
  for (Control* control : std::vector<Control*>(form_->ChangedControls)) SyncControl(*control);
  for (const Control* container : std::exchange(restack_, {})) Restack(*container);
  FocusTree();
}

void QtForm::SyncControl(Control& control) {
  if (&control == form_) {
    SyncWindow();
  } else if (control.Type == Kind::Timer) {
    SyncTimer(control);
  } else if (IsPainted(control)) {
    SyncPainted(control);
  } else if (QWidget* const widget = WidgetOf(control)) {
    SyncPlace(control, *widget);
    KindOf(control)->Sync(*this, control, *widget);
    SyncLook(control, *widget);
  } else {
    Make(control);
  }
}

void QtForm::SyncPlace(Control& control, QWidget& widget) {
  QRect place = PixelPlace(control);
  if (IsHandle(control)) place.adjust(-kGrabMargin, -kGrabMargin, kGrabMargin, kGrabMargin);
  if (widget.geometry() != place) widget.setGeometry(place);
  int& order = orders_[&control];
  if (order == control.Order) return;
  order = control.Order;
  if (std::find(restack_.begin(), restack_.end(), control.Parent) == restack_.end()) restack_.push_back(control.Parent);
}

void QtForm::SyncLook(Control& control, QWidget& widget) {
  if (!HasCaption(control)) SetFullText(widget, control, {}, false);
  SetName(widget, control);
  if (HasOutline(control)) ShowOutline(widget, colours_);
  SetCursorOf(widget, control);
  if (widget.isEnabledTo(widget.parentWidget()) != control.Enabled) widget.setEnabled(control.Enabled);
  if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
}

void QtForm::SyncWindow() {
  const QString title = Text(form_->Caption);
  if (window_->windowTitle() != title) window_->setWindowTitle(title);
  const QRect place = PixelPlace(*form_);
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
  if (&control != form_) return;
  TakeColours();
  for (Control* each : form_->Controls()) SyncControl(*each);
}

void QtForm::SyncPainted(const Control& control) {
  QWidget* const container = WidgetOf(*control.Parent);
  if (container == nullptr) return;
  QRect& place = painted_[&control];
  container->update(place);
  place = PaintedPlace(control);
  container->update(place);
}

void QtForm::SyncTimer(Control& control) {
  QTimer*& timer = timers_[&control];
  if (timer == nullptr) {
    timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this, &control] { Ticked(control); });
  }
  const auto& record = static_cast<const Timer&>(control);
  const bool runs = record.Interval > 0 && record.Enabled && toolkit_.RealTimers;
  if (!runs)
    timer->stop();
  else if (!timer->isActive() || timer->interval() != record.Interval)
    timer->start(record.Interval);
}

void QtForm::StopTimer(const Control& control) {
  const auto found = timers_.find(&control);
  if (found == timers_.end()) return;
  found->second->stop();
  Bury(found->second);
  timers_.erase(found);
}

void QtForm::Restack(const Control& container) {
  if (form_ == nullptr) return;
  QWidget* const around = WidgetOf(container);
  if (around == nullptr) return;
  for (const Control* child : ChildrenOf(*form_, &container)) {
    if (QWidget* const widget = WidgetOf(*child)) widget->raise();
  }
  if (auto* const border = around->findChild<QWidget*>("border", Qt::FindDirectChildrenOnly)) border->raise();
}

void QtForm::FocusTree() {
  if (form_ == nullptr) return;
  const Control* const active = form_->ActiveControl;
  QWidget* widget = active != nullptr && IsUsable(*active) ? WidgetOf(*active) : nullptr;
  if (widget == nullptr) widget = window_.get();
  if (window_->focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
}

void QtForm::Forget(const Control& control) {
  StopTimer(control);
  orders_.erase(&control);
  const auto painted = painted_.find(&control);
  if (painted != painted_.end()) {
    if (QWidget* const container = WidgetOf(*control.Parent)) container->update(painted->second);
    painted_.erase(painted);
  }
  std::erase(restack_, &control);
  std::erase_if(controls_, [&control](const auto& entry) { return entry.second == &control; });
  if (press_.On == &control) press_ = {nullptr, -1, true, false};
  const auto found = widgets_.find(&control);
  if (found == widgets_.end()) return;
  if (QWidget* const widget = found->second) {
    widget->hide();
    Bury(widget);
  }
  widgets_.erase(found);
}

void QtForm::Release() {
  form_ = nullptr;
  for (const auto& [control, timer] : timers_) timer->stop();
  timers_.clear();
  controls_.clear();
  widgets_.clear();
  press_ = {};
  window_->hide();
}

}  // namespace Tarnwise
