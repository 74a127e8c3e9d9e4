#include "view/win32/WinSurface.h"

#include "runtime/windows/WideText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tarnwise {

namespace {

// Pen and brush of a body in a device context for as long as this lives.
class Drawing {
 public:
  Drawing(HDC dc, const Ink& ink, int fine)
      : brush_(ink.Fill ? CreateSolidBrush(*ink.Fill) : nullptr),
        pen_(PenOf(ink, fine)),
        dc_(dc),
        withBrush_(dc, brush_ ? brush_.get() : GetStockObject(NULL_BRUSH)),
        withPen_(dc, pen_.get()) {
    SetPolyFillMode(dc, ink.Winding ? WINDING : ALTERNATE);
  }
  HDC Dc() const { return dc_; }

 private:
  static HPEN PenOf(const Ink& ink, int fine) {
    if (!ink.Edge) return CreatePen(PS_NULL, 0, 0);
    const LOGBRUSH colour{BS_SOLID, *ink.Edge, 0};
    const auto width = static_cast<DWORD>(std::max(1L, std::lround(ink.Width * fine)));
    return ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_ROUND, width, &colour, 0, nullptr);
  }

  const Brush brush_;
  const Pen pen_;
  HDC dc_;
  const Selected withBrush_;
  const Selected withPen_;
};

}  // namespace

POINT WinSurface::At(Spot spot) const {
  return {static_cast<LONG>(std::lround((spot.X - origin_.x) * fine_)),
          static_cast<LONG>(std::lround((spot.Y - origin_.y) * fine_))};
}

std::vector<POINT> WinSurface::At(const std::vector<Spot>& spots) const {
  std::vector<POINT> points;
  for (const Spot& spot : spots) points.push_back(At(spot));
  return points;
}

RECT WinSurface::At(const Box& box) const {
  const POINT first = At(Spot{box.Left, box.Top});
  const POINT last = At(Spot{box.Right, box.Bottom});
  return {first.x, first.y, last.x, last.y};
}

void WinSurface::Fill(const Box& box, Colour colour) {
  const Brush brush(CreateSolidBrush(colour));
  const RECT area = At(box);
  FillRect(dc_, &area, brush.get());
}

void WinSurface::Straight(Spot from, Spot to, Colour colour, double width) {
  const double thick = static_cast<double>(std::max(1L, std::lround(width)));
  const bool upright = std::abs(from.X - to.X) < std::abs(from.Y - to.Y);
  const auto along = [thick](double a, double b, bool across) {
    const double first = std::floor(std::min(a, b)) - (across ? std::floor(thick / 2.0) : 0.0);
    return std::pair(first, across ? first + thick : std::floor(std::max(a, b)) + 1.0);
  };
  const auto [left, right] = along(from.X, to.X, upright);
  const auto [top, bottom] = along(from.Y, to.Y, !upright);
  Fill({left, top, right, bottom}, colour);
}

void WinSurface::Polyline(const std::vector<Spot>& spots, const Ink& ink) {
  const Drawing drawing(dc_, ink, fine_);
  const std::vector<POINT> points = At(spots);
  ::Polyline(drawing.Dc(), points.data(), static_cast<int>(points.size()));
}

void WinSurface::Polygon(const std::vector<Spot>& spots, const Ink& ink) {
  const Drawing drawing(dc_, ink, fine_);
  const std::vector<POINT> points = At(spots);
  ::Polygon(drawing.Dc(), points.data(), static_cast<int>(points.size()));
}

void WinSurface::Ellipse(const Box& box, const Ink& ink) {
  const Drawing drawing(dc_, ink, fine_);
  const RECT r = At(box);
  ::Ellipse(drawing.Dc(), r.left, r.top, r.right, r.bottom);
}

void WinSurface::RoundBox(const Box& box, double radius, const Ink& ink) {
  const Drawing drawing(dc_, ink, fine_);
  const RECT r = At(box);
  const int corner = static_cast<int>(std::lround(2.0 * radius * fine_));
  RoundRect(drawing.Dc(), r.left, r.top, r.right, r.bottom, corner, corner);
}

void WinSurface::Text(const Box& room, const Writing& text, Colour ink) {
  const auto edge = [](double at) { return std::lround(at); };
  texts_.push_back({{edge(room.Left), edge(room.Top), edge(room.Right), edge(room.Bottom)}, text, ink});
}

int WinSurface::WidthOf(const String& text, const TypeFace& face) const {
  return TextWidthIn(BaseFont(scale_, face), Wide(text));
}

void WinSurface::PutOnto(HDC target) const {
  canvas_.PutOnto(target, origin_.x, origin_.y);
  SetBkMode(target, TRANSPARENT);
  for (Written text : texts_) {
    const Selected font(target, BaseFont(scale_, text.Text.Face));
    SetTextColor(target, text.Ink);
    const UINT across = text.Text.Across == Align::Left    ? DT_LEFT
                        : text.Text.Across == Align::Right ? DT_RIGHT
                                                           : DT_CENTER;
    const UINT lines = text.Text.Wraps ? DT_WORDBREAK | DT_TOP : DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
    DrawTextW(target, Wide(text.Text.Text).c_str(), -1, &text.Room, across | lines);
  }
}

}  // namespace Tarnwise
