// What a person sees of a drag on a screen: the picture that goes along, and the pointer's shape.
#pragma once

#include "view/Mirror.h"

namespace Tarnwise {

struct PixelSize {
  int Width = 0;
  int Height = 0;
};

class Carrying {
 public:
  virtual ~Carrying() = default;
  void Show(const Mirror& mirror, const Carried& carried);
  void Hide();

 protected:
  // The picture anew, of the side `side` where it is an icon, else what the source's window shows.
  virtual PixelSize Make(const Mirror& mirror, const Carried& carried, int side) = 0;
  virtual void MoveTo(const Mirror& mirror, int left, int top) = 0;  // pixels of the form; in front of all else
  virtual void Destroy() = 0;
  virtual void Point(int pointer) = 0;  // kDefaultPointer: the drag's shape is no more

 private:
  String looks_;  // of what is made now
  PixelSize size_;
};

}  // namespace Tarnwise
