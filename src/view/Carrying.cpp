#include "view/Carrying.h"

#include "view/Gesture.h"
#include "view/Look.h"

#include <cmath>

namespace Tarnwise {

void Carrying::Show(const Mirror& mirror, const Carried& carried) {
  const String looks = carried.Source.FullName() + "|" + carried.Picture;
  if (looks_ != looks) {
    size_ = Make(mirror, carried, Scaled(kCarriedSide, mirror.Scale()));
    looks_ = looks;
  }
  const bool beside = carried.ByMouse && !carried.Picture.empty();
  const double aside = Scaled(kIconBesidePointer, mirror.Scale());
  const double pixels = mirror.Scale() / kTwipsPerDesignPixel;
  const double left = carried.At.X * pixels + (beside ? aside : -size_.Width / 2.0);
  const double top = carried.At.Y * pixels + (beside ? aside : -size_.Height / 2.0);
  MoveTo(mirror, static_cast<int>(std::lround(left)), static_cast<int>(std::lround(top)));
  if (carried.ByMouse) Point(ShownPointer(carried));
}

void Carrying::Hide() {
  Destroy();
  Point(kDefaultPointer);
  looks_.clear();
}

}  // namespace Tarnwise
