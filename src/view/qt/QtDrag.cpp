#include "view/qt/QtDrag.h"

#include "view/Pictures.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtLifetime.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtPictureBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QLabel>

namespace Tarnwise {

namespace {

constexpr int kIconSide = 28;  // pixels, of the picture that stands for a mark
constexpr double kOpacity = 0.7;
constexpr double kTwips = 15.0;  // in a pixel

QPixmap Translucent(const QPixmap& picture) {
  QPixmap faint(picture.size());
  faint.setDevicePixelRatio(picture.devicePixelRatio());
  faint.fill(Qt::transparent);
  QPainter painter(&faint);
  painter.setOpacity(kOpacity);
  painter.drawPixmap(0, 0, picture);
  return faint;
}

// By its file, or where that is missing by the picture of the same name.
QPixmap IconOf(const String& path, double ratio, Colour ground) {
  if (FindPicture(path) != nullptr) return PicturePixmap(path, kIconSide, ratio, ground);
  QString file = Text(path);
  file.replace('\\', '/');
  const QPixmap loaded(file);
  if (!loaded.isNull()) return loaded;
  return PicturePixmap(Text(QFileInfo(file).baseName().toLower()), kIconSide, ratio, ground);
}

}  // namespace

void QtDrag::Arm(QtForm& form, Control& source, const QPointF& inWindow) {
  Clear();
  form_ = &form;
  source_ = &source;
  start_ = inWindow;
}

void QtDrag::Begin() {
  if (on_ || source_ == nullptr || form_.isNull() || form_->Tree() == nullptr) return;
  on_ = true;
  if (auto* const button = dynamic_cast<QAbstractButton*>(form_->WidgetOf(*source_))) button->setDown(false);
  form_->Tree()->Screen().Drag.Begin(*source_);
}

bool QtDrag::Move(const QPointF& inWindow) {
  if (source_ == nullptr || form_.isNull() || form_->Tree() == nullptr) return false;
  if (!on_ && (inWindow - start_).manhattanLength() < QApplication::startDragDistance()) return false;
  QtForm& form = *form_;
  const QtEntry entry(*form.Tree());
  Begin();
  Platform& platform = form.Tree()->Screen();
  if (QRectF(form.Window().rect()).contains(inWindow)) {
    platform.Drag.OverPoint(inWindow.x() * kTwips, inWindow.y() * kTwips);
  } else {
    platform.Drag.OverNothing();
  }
  if (on_) Follow(form, inWindow);
  return true;
}

bool QtDrag::Release() { return End(&DragSession::Drop); }

bool QtDrag::Cancel() { return End(&DragSession::Cancel); }

bool QtDrag::End(void (DragSession::*how)()) {
  if (!on_ || form_.isNull() || form_->Tree() == nullptr) {
    Clear();
    return false;
  }
  const QtEntry entry(*form_->Tree());
  Platform& platform = form_->Tree()->Screen();
  Clear();
  (platform.Drag.*how)();
  return true;
}

void QtDrag::Forget(const Control& control) {
  if (source_ == &control) Clear();
}

void QtDrag::Show(QtForm& form) {
  if (on_ || form.Tree() == nullptr) return;
  const DragSession& drag = form.Tree()->Screen().Drag;
  if (!drag.Active() || &drag.Source()->Owner != form.Tree()) {
    if (source_ == nullptr) Clear();
    return;
  }
  const FormPoint at = PointerOf(drag);
  Follow(form, QPointF(at.X, at.Y) / kTwips);
}

QPixmap QtDrag::PictureOf(QtForm& form, const DragSession& drag) {
  const Control& source = *drag.Source();
  const double ratio = form.Window().devicePixelRatioF();
  if (!drag.Icon().empty()) {
    const QPixmap icon = IconOf(drag.Icon(), ratio, form.Colours().Base);
    if (!icon.isNull()) return icon;
  }
  // What the handlers move themselves needs no second picture.
  if (source.KeyboardDrag == DragBy::Units) return {};
  QWidget* const widget = form.WidgetOf(source);
  return widget == nullptr ? QPixmap() : Translucent(widget->grab());
}

void QtDrag::Follow(QtForm& form, const QPointF& inWindow) {
  const DragSession& drag = form.Tree()->Screen().Drag;
  if (!drag.Active()) {
    Clear();
    return;
  }
  const String looks = drag.Source()->FullName() + "|" + drag.Icon();
  auto* ghost = static_cast<QLabel*>(ghost_.data());
  if (ghost == nullptr || ghostOf_ != looks) {
    const QPixmap picture = PictureOf(form, drag);
    if (ghost == nullptr) ghost = new QLabel(&form.Window());
    ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
    ghost->setPixmap(picture);
    ghost->resize(picture.deviceIndependentSize().toSize());
    ghost->setVisible(!picture.isNull());
    ghost_ = ghost;
    ghostOf_ = looks;
  }
  const bool beside = on_ && !drag.Icon().empty();
  const QPointF corner =
      beside ? QPointF(kIconBesidePointer, kIconBesidePointer) : QPointF(-ghost->width() / 2.0, -ghost->height() / 2.0);
  ghost->move((inWindow + corner).toPoint());
  ghost->raise();
  if (on_) SetCursor(drag.WouldBeTaken());
}

void QtDrag::SetCursor(bool taken) {
  const Qt::CursorShape shape = taken ? Qt::ClosedHandCursor : CursorFor(kNoDrop);
  if (pointed_)
    QApplication::changeOverrideCursor(shape);
  else
    QApplication::setOverrideCursor(shape);
  pointed_ = true;
}

void QtDrag::Clear() {
  if (pointed_) QApplication::restoreOverrideCursor();
  pointed_ = false;
  on_ = false;
  source_ = nullptr;
  form_ = nullptr;
  if (!ghost_.isNull()) {
    ghost_->hide();
    Bury(ghost_);
  }
  ghost_ = nullptr;
  ghostOf_.clear();
}

}  // namespace Tarnwise
