#include "view/Painting.h"

#include "view/Captions.h"
#include "view/Pictures.h"
#include "view/Reach.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kSlantedLine = 1.6;    // times the width, since smooth lines look thinner
constexpr double kPictureMargin = 6.0;  // pixels of the design, around a box's picture
constexpr double kHandlePicture = 1.5;  // around a handle's
constexpr double kHandleRadius = 5.0;   // as drawn, whatever its size in the tree
constexpr double kCorner = 2.0;
constexpr double kFrameCorner = 4.0;
constexpr double kSignCorner = 6.0;
constexpr double kSame = 0.01;

Spot SpotOf(Single x, Single y, double unit) { return {static_cast<double>(x) * unit, static_cast<double>(y) * unit}; }

std::vector<Spot> SpotsOf(const std::vector<Single>& points, double unit, Spot origin = {}) {
  std::vector<Spot> spots;
  for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
    const Spot spot = SpotOf(points[i], points[i + 1], unit);
    spots.push_back({spot.X + origin.X, spot.Y + origin.Y});
  }
  return spots;
}

// Upright and level lines stay on whole pixels, slanted ones are smoothed.
void PaintLine(Surface& on, Spot from, Spot to, Colour colour, double width) {
  if (std::abs(from.X - to.X) < kSame || std::abs(from.Y - to.Y) < kSame)
    on.Straight(from, to, colour, width);
  else
    on.Polyline({from, to}, {std::nullopt, colour, width * kSlantedLine});
}

void PaintDrawn(const Brushes& brushes, const Drawn& drawn, double unit, Colour ground) {
  const std::vector<Spot> spots = SpotsOf(drawn.Points, unit);
  const Colour ink = InkOf(drawn, ground);
  const double width = drawn.LineWidth * brushes.Scale;
  if (drawn.Shape == Drawn::What::Polygon) {
    brushes.On.Polygon(spots, {ink, std::nullopt, 0.0, 1.0, true});
  } else if (spots.size() >= 2 && drawn.Shape == Drawn::What::Line) {
    PaintLine(brushes.On, spots[0], spots[1], ink, width);
  } else if (spots.size() >= 2) {
    const Spot across{spots[1].X, spots[0].Y};
    const Spot down{spots[0].X, spots[1].Y};
    PaintLine(brushes.On, spots[0], across, ink, width);
    PaintLine(brushes.On, across, spots[1], ink, width);
    PaintLine(brushes.On, down, spots[1], ink, width);
    PaintLine(brushes.On, spots[0], down, ink, width);
  }
}

void PaintBody(Surface& on, const Box& box, bool round, double corner, const Ink& ink) {
  if (round)
    on.Ellipse(box, ink);
  else
    on.RoundBox(box, corner, ink);
}

void PaintShape(const Brushes& brushes, const Shape& shape) {
  const ShapeLook look = LookOf(shape, brushes.Colours);
  const Box place = ToBox(PixelPlace(shape, brushes.Scale)).Shrunk(0.75 * brushes.Scale);
  PaintBody(brushes.On, place, shape.Round, kCorner * brushes.Scale, {look.Fill, look.Edge, brushes.Scale});
}

void PaintTitle(const Brushes& brushes, const Frame& frame, const PixelRect& client, int height) {
  const TypeFace bold{9, true, kNormalStretch};
  const Palette& colours = brushes.Colours;
  const int left = Scaled(kFrameTitleLeft, brushes.Scale);
  const int gap = Scaled(kFrameTitleGap, brushes.Scale);
  const int room = client.Width() - 2 * left;
  const int width = std::min(brushes.On.WidthOf(UnmarkedCaption(frame.Caption), bold), room);
  brushes.On.Fill(ToBox({left - gap, 0, left + width + gap, height}), colours.Window);
  const Colour ink = IsUsable(frame) ? colours.WindowText : FaintOf(colours.WindowText, colours.Window);
  brushes.On.Text(ToBox({left, 0, left + room, height}), {MarkedCaption(frame.Caption), bold, Align::Left, false}, ink);
}

void PaintFrame(const Brushes& brushes, const Frame& frame, const PixelRect& client) {
  const int titleHeight = frame.Caption().empty() ? 0 : Scaled(kFrameTitleHeight, brushes.Scale);
  PaintFrameLine(brushes, client, titleHeight);
  if (titleHeight > 0) PaintTitle(brushes, frame, client, titleHeight);
}

void PaintCaption(const Brushes& brushes, const Control& control, const PixelRect& room, Colour ink) {
  const Surface& on = brushes.On;
  const auto widthOf = [&on](const String& text, const TypeFace& face) { return on.WidthOf(text, face); };
  brushes.On.Text(ToBox(room), FitCaption(control, brushes.Scale, widthOf).Shown, ink);
}

void PaintLabel(const Brushes& brushes, const Label& label, const PixelRect& client) {
  const LabelLook look = LookOf(label, brushes.Colours);
  PixelRect room = client;
  if (look.Lit) {
    PaintSign(brushes, client, *look.Ground);
    room.Left += Scaled(kSignPadding, brushes.Scale);
    room.Right -= Scaled(kSignPadding, brushes.Scale);
  } else if (look.Ground) {
    brushes.On.Fill(ToBox(client), *look.Ground);
  }
  const Colour ground = look.Ground.value_or(GroundOf(label, brushes.Colours));
  PaintCaption(brushes, label, room, IsUsable(label) ? look.Ink : FaintOf(look.Ink, ground));
}

void PaintButton(const Brushes& brushes, const CommandButton& button, const PixelRect& client, PaintState state) {
  const Pressed how = state.Pressed ? Pressed::Down : state.Hovered ? Pressed::Hover : Pressed::No;
  const ButtonLook look = LookOf(button, brushes.Colours, IsUsable(button), how);
  PaintFace(brushes, client, look, state.Focused);
  const int padding = Scaled(kSidePadding, brushes.Scale);
  const int sunk = state.Pressed ? Scaled(1, brushes.Scale) : 0;
  PaintCaption(brushes, button, {client.Left + padding, client.Top, client.Right - padding, client.Bottom + sunk},
               look.Ink);
}

Ink InkOf(const PictureShape& shape, Colour ground, double scale) {
  Ink ink;
  if (shape.Fill) ink.Fill = MarkOn(*shape.Fill, ground);
  if (shape.Stroke) ink.Edge = MarkOn(*shape.Stroke, ground);
  ink.Width = static_cast<double>(shape.StrokeWidth) * scale;
  return ink;
}

}  // namespace

Box ToBox(const PixelRect& place) {
  return {static_cast<double>(place.Left), static_cast<double>(place.Top), static_cast<double>(place.Right),
          static_cast<double>(place.Bottom)};
}

void PaintPicture(Surface& on, const String& name, const Box& place, Colour ground) {
  const Picture* const picture = FindPicture(name);
  if (picture == nullptr || place.Width() <= 0.0 || place.Height() <= 0.0) return;
  const auto width = static_cast<double>(picture->Width);
  const auto height = static_cast<double>(picture->Height);
  const double scale = std::min(place.Width() / width, place.Height() / height);
  const Spot origin{place.Middle().X - width * scale / 2.0, place.Middle().Y - height * scale / 2.0};
  for (const PictureShape& shape : picture->Shapes) {
    const std::vector<Spot> spots = SpotsOf(shape.Points, scale, origin);
    const Ink ink = InkOf(shape, ground, scale);
    switch (shape.Shape) {
      case PictureShape::What::Polygon: on.Polygon(spots, ink); break;
      case PictureShape::What::Polyline: on.Polyline(spots, ink); break;
      case PictureShape::What::Ellipse:
        on.Ellipse({spots.front().X, spots.front().Y, spots.back().X, spots.back().Y}, ink);
        break;
    }
  }
}

void PaintChildren(const Brushes& brushes, const Control& container, const PixelRect& area) {
  for (const Control* control : ChildrenOf(container.Owner, &container)) {
    if (!IsPainted(*control) || !control->Visible || !PaintedPlace(*control, brushes.Scale).Meets(area)) continue;
    if (control->Type == Kind::Line) {
      const auto& line = static_cast<const Line&>(*control);
      const double unit = PixelsPerUnit(container, brushes.Scale);
      PaintLine(brushes.On, SpotOf(line.X1, line.Y1, unit), SpotOf(line.X2, line.Y2, unit),
                InkOf(line, brushes.Colours), brushes.Scale);
    } else {
      PaintShape(brushes, static_cast<const Shape&>(*control));
    }
  }
}

void PaintContainer(const Brushes& brushes, const Control& container, const PixelRect& client, const PixelRect& area) {
  const Colour ground = FillOf(container, brushes.Colours);
  brushes.On.Fill(ToBox(area), ground);
  if (container.Type == Kind::PictureBox) {
    const auto& box = static_cast<const PictureBox&>(container);
    PaintPicture(brushes.On, box.Picture, ToBox(client).Shrunk(kPictureMargin * brushes.Scale), ground);
    const double unit = PixelsPerUnit(box, brushes.Scale);
    for (const Drawn& drawn : box.Drawing) PaintDrawn(brushes, drawn, unit, ground);
  } else if (container.Type == Kind::Frame) {
    PaintFrame(brushes, static_cast<const Frame&>(container), client);
  }
  PaintChildren(brushes, container, area);
}

void PaintFrameLine(const Brushes& brushes, const PixelRect& client, int titleHeight) {
  Box line = ToBox(client).Shrunk(0.5);
  line.Top += titleHeight / 2;  // NOLINT: to a whole pixel
  brushes.On.RoundBox(line, kFrameCorner * brushes.Scale, {std::nullopt, FrameEdge(brushes.Colours), brushes.Scale});
}

void PaintHandle(const Brushes& brushes, const Control& handle, const PixelRect& client, PaintState state) {
  const bool isShape = handle.Type == Kind::Shape;
  const bool round = !isShape || static_cast<const Shape&>(handle).Round;
  const Colour colour =
      isShape ? static_cast<const Shape&>(handle).FillColor : static_cast<const PictureBox&>(handle).BackColor;
  const String picture = isShape ? String() : static_cast<const PictureBox&>(handle).Picture();
  const Colour ground = GroundOf(handle, brushes.Colours);
  const Spot middle = ToBox(client).Middle();
  const auto around = [&middle](double radius) {
    return Box{middle.X - radius, middle.Y - radius, middle.X + radius, middle.Y + radius};
  };
  const double side = std::min(client.Width(), client.Height()) / 2.0;
  if (!picture.empty()) {
    PaintPicture(brushes.On, picture, ToBox(client).Shrunk(kHandlePicture * brushes.Scale), ground);
  } else {
    const double own = std::max(side - kGrabMargin * brushes.Scale, kHandleRadius * brushes.Scale);
    const double radius = own - (state.Hovered ? 0.0 : 0.5) * brushes.Scale;
    PaintBody(brushes.On, around(radius), round, kCorner * brushes.Scale,
              {MarkOn(colour, ground), ground, 1.5 * brushes.Scale});
  }
  if (!state.Focused && !state.Hovered) return;
  brushes.On.Ellipse(around(side - brushes.Scale),
                     {std::nullopt, brushes.Colours.Highlight, 2.0 * brushes.Scale, state.Focused ? 1.0 : 0.5});
}

bool IsOpaque(const Control& control) {
  return control.Type == Kind::Form || control.Type == Kind::Frame ||
         (control.Type == Kind::PictureBox && !IsHandle(control));
}

void PaintControl(const Brushes& brushes, const Control& control, const PixelRect& client, const PixelRect& area,
                  PaintState state) {
  if (control.Type == Kind::Label) {
    PaintLabel(brushes, static_cast<const Label&>(control), client);
  } else if (control.Type == Kind::CommandButton) {
    PaintButton(brushes, static_cast<const CommandButton&>(control), client, state);
  } else if (control.Type == Kind::Image) {
    PaintPicture(brushes.On, static_cast<const Image&>(control).Picture, ToBox(client),
                 GroundOf(control, brushes.Colours));
  } else if (!IsOpaque(control)) {
    PaintHandle(brushes, control, client, state);
  } else {
    PaintContainer(brushes, control, client, area);
    if (!state.Focused || !control.DragAutomatic) return;
    const Ink ring{std::nullopt, brushes.Colours.Highlight, 2.0 * brushes.Scale};
    brushes.On.RoundBox(ToBox(client).Shrunk(brushes.Scale), 0.0, ring);
  }
}

void PaintSign(const Brushes& brushes, const PixelRect& client, Colour colour) {
  const double radius = std::min(client.Height() / 2.0, kSignCorner * brushes.Scale);
  brushes.On.RoundBox(ToBox(client), radius, {colour, std::nullopt});
}

void PaintFace(const Brushes& brushes, const PixelRect& client, const ButtonLook& look, bool focused) {
  const double scale = brushes.Scale;
  const double corner = kFrameCorner * scale;
  brushes.On.RoundBox(ToBox(client).Shrunk(1.5 * scale), corner, {look.Face, look.Edge, scale});
  if (!focused) return;
  brushes.On.RoundBox(ToBox(client).Shrunk(scale), corner + 0.5 * scale,
                      {std::nullopt, brushes.Colours.Highlight, 2.0 * scale});
}

}  // namespace Tarnwise
