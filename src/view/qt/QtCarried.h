// What a person sees of a drag.
#pragma once

#include "view/Carrying.h"

#include <QLabel>
#include <QPointer>

namespace Tarnwise {

class QtCarried : public Carrying {
 protected:
  PixelSize Make(const Mirror& mirror, const Carried& carried, int side) override;
  void MoveTo(const Mirror& mirror, int left, int top) override;
  void Destroy() override;
  void Point(int pointer) override;

 private:
  bool pointed_ = false;  // the pointer has a shape of the drag's
  QPointer<QLabel> ghost_;
};

}  // namespace Tarnwise
