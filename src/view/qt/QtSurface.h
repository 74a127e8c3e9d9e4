// A widget's painter as a surface.
#pragma once

#include "view/Surface.h"

#include <QPainter>

namespace Tarnwise {

class QtSurface : public Surface {
 public:
  explicit QtSurface(QPainter& painter) : painter_(painter) {}

  void Fill(const Box& box, Colour colour) override;
  void Straight(Spot from, Spot to, Colour colour, double width) override;
  void Polyline(const std::vector<Spot>& spots, const Ink& ink) override;
  void Polygon(const std::vector<Spot>& spots, const Ink& ink) override;
  void Ellipse(const Box& box, const Ink& ink) override;
  void RoundBox(const Box& box, double radius, const Ink& ink) override;
  void Text(const Box& room, const Writing& text, Colour ink) override;
  int WidthOf(const String& text, const TypeFace& face) const override;

 private:
  void Take(const Ink& ink);

  QPainter& painter_;
};

}  // namespace Tarnwise
