// A device context as a surface: of a canvas, which is drawn larger than it becomes, so that edges are smooth. Texts
// are smooth by themselves: they come last, in their own size.
#pragma once

#include "view/Surface.h"
#include "view/win32/WinPaint.h"

namespace Tarnwise {

class WinSurface : public Surface {
 public:
  // What is at `origin` falls on the canvas's first pixel. `scale`: of the texts.
  explicit WinSurface(Canvas& canvas, double scale = 1.0, POINT origin = {0, 0})
      : canvas_(canvas), dc_(canvas.Dc()), fine_(canvas.Fine()), scale_(scale), origin_(origin) {}

  void Fill(const Box& box, Colour colour) override;
  void Straight(Spot from, Spot to, Colour colour, double width) override;
  void Polyline(const std::vector<Spot>& spots, const Ink& ink) override;
  void Polygon(const std::vector<Spot>& spots, const Ink& ink) override;
  void Ellipse(const Box& box, const Ink& ink) override;
  void RoundBox(const Box& box, double radius, const Ink& ink) override;
  void Text(const Box& room, const Writing& text, Colour ink) override;
  int WidthOf(const String& text, const TypeFace& face) const override;

  void PutOnto(HDC target) const;  // the canvas and the texts

 private:
  POINT At(Spot spot) const;
  std::vector<POINT> At(const std::vector<Spot>& spots) const;
  RECT At(const Box& box) const;

  struct Written {
    RECT Room;
    Writing Text;
    Colour Ink = 0;
  };

  Canvas& canvas_;
  HDC dc_;
  int fine_;
  double scale_;
  POINT origin_;
  std::vector<Written> texts_;
};

}  // namespace Tarnwise
