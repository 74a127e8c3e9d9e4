#include "view/Pixels.h"

#include "view/Reach.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr int kHandleSide = 16;  // design pixels: a drag source up to this size is a handle
constexpr int kInkMargin = 2;

}  // namespace

int Scaled(int designPixels, double scale) { return static_cast<int>(std::lround(designPixels * scale)); }

double PixelsPerUnit(const Control& container, double scale) {
  return UnitOf(container) / kTwipsPerDesignPixel * scale;
}

PixelRect PixelPlace(const Control& control, double scale) {
  const double unit = control.Parent == nullptr ? scale / kTwipsPerDesignPixel : PixelsPerUnit(*control.Parent, scale);
  const auto edge = [unit](Single at) { return static_cast<int>(std::lround(static_cast<double>(at) * unit)); };
  return {edge(control.Left), edge(control.Top), edge(control.Left + control.Width),
          edge(control.Top + control.Height)};
}

PixelRect PaintedPlace(const Control& control, double scale) {
  if (control.Type != Kind::Line) return PixelPlace(control, scale).Grown(1);
  const auto& line = static_cast<const Line&>(control);
  const double unit = PixelsPerUnit(*control.Parent, scale);
  const auto first = [unit](Single a, Single b) {
    return static_cast<int>(std::floor(static_cast<double>(std::min(a, b)) * unit));
  };
  const auto last = [unit](Single a, Single b) {
    return static_cast<int>(std::ceil(static_cast<double>(std::max(a, b)) * unit));
  };
  const PixelRect between{first(line.X1, line.X2), first(line.Y1, line.Y2), last(line.X1, line.X2),
                          last(line.Y1, line.Y2)};
  return between.Grown(Scaled(kInkMargin, scale) + 1);
}

PixelRect WindowPlace(const Control& control, double scale) {
  const PixelRect place = PixelPlace(control, scale);
  return IsHandle(control) ? place.Grown(Scaled(kGrabMargin, scale)) : place;
}

Tools ToolsOf(const Toolbar& bar, double scale) {
  const PixelRect place = PixelPlace(bar, scale);
  const bool upright = place.Height() > place.Width();
  const int count = std::max(static_cast<int>(bar.Buttons.size()), 1);
  const int along = upright ? place.Height() : place.Width();
  return {std::min(upright ? place.Width() : place.Height(), along / count), upright};
}

bool IsPainted(const Control& control) {
  return control.Type == Kind::Line ||
         (control.Type == Kind::Shape && !control.DragAutomatic && !control.TakesDrags() && !control.Click);
}

bool IsHandle(const Control& control) {
  if (!control.DragAutomatic || (control.Type != Kind::PictureBox && control.Type != Kind::Shape)) return false;
  const PixelRect place = PixelPlace(control, 1.0);
  return place.Width() <= kHandleSide && place.Height() <= kHandleSide;
}

}  // namespace Tarnwise
