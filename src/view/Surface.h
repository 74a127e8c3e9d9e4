// What shapes and texts are drawn on: a widget's painter, a bitmap of Windows, a test's list of what was drawn. Lengths
// are pixels of the container's window; edges are smooth but where it says otherwise.
#pragma once

#include "view/Lettering.h"

#include <optional>
#include <vector>

namespace Tarnwise {

struct Spot {
  double X = 0.0;
  double Y = 0.0;
};

struct Box {
  double Left = 0.0;
  double Top = 0.0;
  double Right = 0.0;
  double Bottom = 0.0;
  double Width() const { return Right - Left; }
  double Height() const { return Bottom - Top; }
  Spot Middle() const { return {(Left + Right) / 2.0, (Top + Bottom) / 2.0}; }
  Box Shrunk(double by) const { return {Left + by, Top + by, Right - by, Bottom - by}; }
};

// A body's inside and the line around it, whose ends and corners are round.
struct Ink {
  std::optional<Colour> Fill;
  std::optional<Colour> Edge;
  double Width = 1.0;
  double Opacity = 1.0;  // of the edge
  bool Winding = false;  // a point inside is one that the outline winds around, not one that it crosses an odd time
};

class Surface {
 public:
  virtual ~Surface() = default;

  virtual void Fill(const Box& box, Colour colour) = 0;  // on whole pixels
  // An upright or a level line, on whole pixels.
  virtual void Straight(Spot from, Spot to, Colour colour, double width) = 0;
  virtual void Polyline(const std::vector<Spot>& spots, const Ink& ink) = 0;
  virtual void Polygon(const std::vector<Spot>& spots, const Ink& ink) = 0;
  virtual void Ellipse(const Box& box, const Ink& ink) = 0;
  virtual void RoundBox(const Box& box, double radius, const Ink& ink) = 0;
  virtual void Text(const Box& room, const Writing& text, Colour ink) = 0;
  virtual int WidthOf(const String& text, const TypeFace& face) const = 0;  // without marks
};

}  // namespace Tarnwise
