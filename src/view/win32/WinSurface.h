// A device context as a surface: of a canvas, which is drawn larger than it becomes, so that edges are smooth.
#pragma once

#include "view/Surface.h"
#include "view/win32/WinPaint.h"

namespace Tarnwise {

class WinSurface : public Surface {
 public:
  // What is at `origin` falls on the canvas's first pixel.
  explicit WinSurface(const Canvas& canvas, POINT origin = {0, 0})
      : dc_(canvas.Dc()), fine_(canvas.Fine()), origin_(origin) {}

  void Fill(const Box& box, Colour colour) override;
  void Straight(Spot from, Spot to, Colour colour, double width) override;
  void Polyline(const std::vector<Spot>& spots, const Ink& ink) override;
  void Polygon(const std::vector<Spot>& spots, const Ink& ink) override;
  void Ellipse(const Box& box, const Ink& ink) override;
  void RoundBox(const Box& box, double radius, const Ink& ink) override;

 private:
  POINT At(Spot spot) const;
  std::vector<POINT> At(const std::vector<Spot>& spots) const;
  RECT At(const Box& box) const;

  HDC dc_;
  int fine_;
  POINT origin_;
};

}  // namespace Tarnwise
