#include "view/qt/QtCarried.h"

#include "view/Lifetime.h"
#include "view/Look.h"
#include "view/Pictures.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"

#include <QApplication>

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
QPixmap IconOf(const String& path, int side, double ratio, Colour ground) {
  if (FindPicture(path) != nullptr) return PicturePixmap(path, side, ratio, ground);
  QString file = Text(path);
  file.replace('\\', '/');
  const QPixmap loaded(file);
  return loaded.isNull() ? PicturePixmap(PictureNameOf(path), side, ratio, ground) : loaded;
}

QPixmap PictureOf(const QtForm& form, const Carried& carried, int side) {
  if (!carried.Picture.empty()) {
    return IconOf(carried.Picture, side, form.Window().devicePixelRatioF(), form.Colours().Base);
  }
  QWidget* const widget = carried.Own ? form.WidgetOf(carried.Source) : nullptr;
  return widget == nullptr ? QPixmap() : Translucent(widget->grab());
}

}  // namespace

PixelSize QtCarried::Make(const Mirror& mirror, const Carried& carried, int side) {
  const auto& form = static_cast<const QtForm&>(mirror);
  const QPixmap picture = PictureOf(form, carried, side);
  if (ghost_.isNull()) ghost_ = new QLabel(&form.Window());
  ghost_->setAttribute(Qt::WA_TransparentForMouseEvents);
  ghost_->setPixmap(picture);
  ghost_->resize(picture.deviceIndependentSize().toSize());
  ghost_->setVisible(!picture.isNull());
  return {ghost_->width(), ghost_->height()};
}

void QtCarried::MoveTo(const Mirror& /*mirror*/, int left, int top) {
  if (ghost_.isNull()) return;
  ghost_->move(left, top);
  ghost_->raise();
}

void QtCarried::Destroy() {
  if (ghost_.isNull()) return;
  ghost_->hide();
  Bury([ghost = ghost_] { delete ghost.data(); });
  ghost_ = nullptr;
}

void QtCarried::Point(int pointer) {
  const bool points = pointer != kDefaultPointer;
  if (pointed_ && points)
    QApplication::changeOverrideCursor(CursorFor(pointer));
  else if (points)
    QApplication::setOverrideCursor(CursorFor(pointer));
  else if (pointed_)
    QApplication::restoreOverrideCursor();
  pointed_ = points;
}

}  // namespace Tarnwise
