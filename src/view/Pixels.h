// Where controls stand on a screen, in the pixels of their container. `scale` is how many of them make a pixel of the
// design, of which there are 96 to the inch.
#pragma once

#include "view/Form.h"

namespace Tarnwise {

struct PixelRect {  // right and bottom are just outside
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;
  int Width() const { return Right - Left; }
  int Height() const { return Bottom - Top; }
  PixelRect Grown(int by) const { return {Left - by, Top - by, Right + by, Bottom + by}; }
  bool Meets(const PixelRect& r) const { return Left < r.Right && r.Left < Right && Top < r.Bottom && r.Top < Bottom; }
  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

constexpr double kTwipsPerDesignPixel = 15.0;
constexpr int kGrabMargin = 5;  // design pixels around a small handle that can be pressed too

int Scaled(int designPixels, double scale);
double PixelsPerUnit(const Control& container, double scale);  // in a unit of its scale
PixelRect PixelPlace(const Control& control, double scale);    // edges on whole pixels
PixelRect PaintedPlace(const Control& control, double scale);  // of a line or a shape, with room for its ink
PixelRect WindowPlace(const Control& control, double scale);   // of its window: around a handle there is a margin

struct Tools {  // in a row from the left, or from the top
  int Side = 0;
  bool Upright = false;
};
Tools ToolsOf(const Toolbar& bar, double scale);

bool IsPainted(const Control& control);  // it has no window of its own: its container draws it
bool IsHandle(const Control& control);   // a small drag source: drawn as a handle

}  // namespace Tarnwise
