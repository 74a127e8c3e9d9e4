#include "view/qt/QtCarried.h"

#include "view/Gesture.h"
#include "view/Lifetime.h"
#include "view/Look.h"
#include "view/Pictures.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"

#include <QApplication>
#include <QLabel>

namespace Tarnwise {

namespace {

QPixmap Translucent(const QPixmap& picture) {
  QPixmap faint(picture.size());
  faint.setDevicePixelRatio(picture.devicePixelRatio());
  faint.fill(Qt::transparent);
  QPainter painter(&faint);
  painter.setOpacity(kCarriedOpacity / 100.0);
  painter.drawPixmap(0, 0, picture);
  return faint;
}

// By its file, or where that is missing by the picture of the same name.
QPixmap IconOf(const String& path, double ratio, Colour ground) {
  if (FindPicture(path) != nullptr) return PicturePixmap(path, kCarriedSide, ratio, ground);
  QString file = Text(path);
  file.replace('\\', '/');
  const QPixmap loaded(file);
  return loaded.isNull() ? PicturePixmap(PictureNameOf(path), kCarriedSide, ratio, ground) : loaded;
}

}  // namespace

QPixmap QtCarried::PictureOf(const QtForm& form, const Carried& carried) {
  if (!carried.Picture.empty()) {
    return IconOf(carried.Picture, form.Window().devicePixelRatioF(), form.Colours().Base);
  }
  QWidget* const widget = carried.Own ? form.WidgetOf(carried.Source) : nullptr;
  return widget == nullptr ? QPixmap() : Translucent(widget->grab());
}

void QtCarried::Show(QtForm& form, const Carried& carried) {
  const String looks = carried.Source.FullName() + "|" + carried.Picture;
  auto* ghost = static_cast<QLabel*>(ghost_.data());
  if (ghost == nullptr || ghostOf_ != looks) {
    const QPixmap picture = PictureOf(form, carried);
    if (ghost == nullptr) ghost = new QLabel(&form.Window());
    ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
    ghost->setPixmap(picture);
    ghost->resize(picture.deviceIndependentSize().toSize());
    ghost->setVisible(!picture.isNull());
    ghost_ = ghost;
    ghostOf_ = looks;
  }
  const bool beside = carried.ByMouse && !carried.Picture.empty();
  const QPointF corner =
      beside ? QPointF(kIconBesidePointer, kIconBesidePointer) : QPointF(-ghost->width() / 2.0, -ghost->height() / 2.0);
  ghost->move((QtForm::InPixels(carried.At) + corner).toPoint());
  ghost->raise();
  if (carried.ByMouse) SetCursor(CursorFor(ShownPointer(carried)));
}

void QtCarried::SetCursor(Qt::CursorShape shape) {
  if (pointed_)
    QApplication::changeOverrideCursor(shape);
  else
    QApplication::setOverrideCursor(shape);
  pointed_ = true;
}

void QtCarried::Hide() {
  if (pointed_) QApplication::restoreOverrideCursor();
  pointed_ = false;
  if (!ghost_.isNull()) {
    ghost_->hide();
    Bury([ghost = ghost_] { delete ghost.data(); });
  }
  ghost_ = nullptr;
  ghostOf_.clear();
}

}  // namespace Tarnwise
