// What a person sees of a drag: the picture that goes along, and the pointer's shape.
#pragma once

#include "view/Mirror.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace Tarnwise {

class QtForm;

class QtCarried {
 public:
  void Show(QtForm& form, const Carried& carried);
  void Hide();

 private:
  static QPixmap PictureOf(const QtForm& form, const Carried& carried);
  void SetCursor(Qt::CursorShape shape);

  bool pointed_ = false;  // the pointer has a shape of the drag's
  QPointer<QWidget> ghost_;
  String ghostOf_;
};

}  // namespace Tarnwise
