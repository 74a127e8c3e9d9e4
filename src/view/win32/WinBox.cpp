// Boxes: picture boxes, frames, images, handles; and what containers paint themselves: lines, shapes and drawings.
#include "runtime/windows/OwnModule.h"
#include "view/Captions.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kHandleRadius = 5.0;  // as drawn, whatever its size in the tree
constexpr double kSlantedLine = 1.6;   // pixels of the design
constexpr int kTitleLeft = 12;
constexpr int kPictureMargin = 6;
constexpr int kSmooth = 3;

// Where things of a container fall on a canvas that shows a part of it.
struct Onto {
  Canvas& To;
  RECT Area;
  double Scale;  // device pixels in a pixel of the design
  const Palette& Colours;

  double X(double pixel) const { return (pixel - Area.left) * To.Fine(); }
  double Y(double pixel) const { return (pixel - Area.top) * To.Fine(); }
  double Width(double design) const { return design * Scale * To.Fine(); }
};

struct Spot {
  double X;
  double Y;
};

Spot EndOf(Single x, Single y, double unit) { return {static_cast<double>(x) * unit, static_cast<double>(y) * unit}; }

Pen RoundPen(COLORREF colour, double width) {
  const LOGBRUSH ink{BS_SOLID, colour, 0};
  return Pen(ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_ROUND,
                          static_cast<DWORD>(std::max(1L, std::lround(width))), &ink, 0, nullptr));
}

void FillArea(HDC dc, const RECT& area, COLORREF colour) {
  const Brush brush(CreateSolidBrush(colour));
  FillRect(dc, &area, brush.get());
}

// Upright and level lines stay on whole pixels, slanted ones are smoothed.
void DrawLine(const Onto& onto, Spot from, Spot to, COLORREF colour, double width) {
  const int fine = onto.To.Fine();
  const bool upright = std::abs(from.X - to.X) < 0.01;
  const bool level = std::abs(from.Y - to.Y) < 0.01;
  if (upright || level) {
    const int thick = static_cast<int>(std::max(1L, std::lround(width * onto.Scale)));
    const auto place = [&](double a, double b, LONG origin, bool across) {
      const LONG first = static_cast<LONG>(std::floor(std::min(a, b))) - (across ? thick / 2 : 0);
      const LONG last = across ? first + thick : static_cast<LONG>(std::floor(std::max(a, b))) + 1;
      return std::pair<LONG, LONG>((first - origin) * fine, (last - origin) * fine);
    };
    const auto [left, right] = place(from.X, to.X, onto.Area.left, upright);
    const auto [top, bottom] = place(from.Y, to.Y, onto.Area.top, !upright);
    FillArea(onto.To.Dc(), {left, top, right, bottom}, colour);
    return;
  }
  const Pen pen = RoundPen(colour, onto.Width(width * kSlantedLine));
  const Selected selected(onto.To.Dc(), pen.get());
  MoveToEx(onto.To.Dc(), static_cast<int>(std::lround(onto.X(from.X))), static_cast<int>(std::lround(onto.Y(from.Y))),
           nullptr);
  LineTo(onto.To.Dc(), static_cast<int>(std::lround(onto.X(to.X))), static_cast<int>(std::lround(onto.Y(to.Y))));
}

void DrawRegion(const Onto& onto, const Drawn& drawn, double unit) {
  std::vector<POINT> points;
  for (std::size_t i = 0; i + 1 < drawn.Points.size(); i += 2) {
    const Spot spot = EndOf(drawn.Points[i], drawn.Points[i + 1], unit);
    points.push_back({static_cast<LONG>(std::lround(onto.X(spot.X))), static_cast<LONG>(std::lround(onto.Y(spot.Y)))});
  }
  const Brush brush(CreateSolidBrush(drawn.Ink));
  const Selected withBrush(onto.To.Dc(), brush.get());
  const Selected withPen(onto.To.Dc(), GetStockObject(NULL_PEN));
  SetPolyFillMode(onto.To.Dc(), WINDING);
  Polygon(onto.To.Dc(), points.data(), static_cast<int>(points.size()));
}

void PaintDrawn(const Onto& onto, const Drawn& drawn, double unit, Colour ground) {
  if (drawn.Shape == Drawn::What::Polygon) {
    DrawRegion(onto, drawn, unit);
    return;
  }
  if (drawn.Points.size() < 4) return;
  const Spot from = EndOf(drawn.Points[0], drawn.Points[1], unit);
  const Spot to = EndOf(drawn.Points[2], drawn.Points[3], unit);
  const COLORREF ink = InkOf(drawn, ground);
  if (drawn.Shape == Drawn::What::Line) {
    DrawLine(onto, from, to, ink, drawn.LineWidth);
    return;
  }
  DrawLine(onto, from, {to.X, from.Y}, ink, drawn.LineWidth);
  DrawLine(onto, {to.X, from.Y}, to, ink, drawn.LineWidth);
  DrawLine(onto, to, {from.X, to.Y}, ink, drawn.LineWidth);
  DrawLine(onto, {from.X, to.Y}, from, ink, drawn.LineWidth);
}

// A round or slightly rounded body inside the place, by its edges on the canvas.
void DrawBody(const Onto& onto, double left, double top, double right, double bottom, bool round, COLORREF fill,
              COLORREF edge, double edgeWidth) {
  const Brush brush(CreateSolidBrush(fill));
  const Pen pen = RoundPen(edge, onto.Width(edgeWidth));
  const Selected withBrush(onto.To.Dc(), brush.get());
  const Selected withPen(onto.To.Dc(), pen.get());
  const auto at = [](double value) { return static_cast<int>(std::lround(value)); };
  if (round) {
    Ellipse(onto.To.Dc(), at(onto.X(left)), at(onto.Y(top)), at(onto.X(right)), at(onto.Y(bottom)));
  } else {
    const int corner = at(onto.Width(4.0));
    RoundRect(onto.To.Dc(), at(onto.X(left)), at(onto.Y(top)), at(onto.X(right)), at(onto.Y(bottom)), corner, corner);
  }
}

void PaintShape(const Onto& onto, const Shape& shape) {
  const RECT place = ToRect(PixelPlace(shape, onto.Scale));
  const ShapeLook look = LookOf(shape, onto.Colours);
  const double inset = 0.75 * onto.Scale;
  DrawBody(onto, place.left + inset, place.top + inset, place.right - inset, place.bottom - inset, shape.Round,
           look.Fill, look.Edge, 1.0);
}

void PaintChildren(const Onto& onto, const Control& container) {
  for (const Control* control : ChildrenOf(container.Owner, &container)) {
    if (!IsPainted(*control) || !control->Visible) continue;
    RECT common{};
    const RECT place = ToRect(PaintedPlace(*control, onto.Scale));
    if (IntersectRect(&common, &place, &onto.Area) == 0) continue;
    if (control->Type == Kind::Line) {
      const auto& line = static_cast<const Line&>(*control);
      const double unit = PixelsPerUnit(container, onto.Scale);
      DrawLine(onto, EndOf(line.X1, line.Y1, unit), EndOf(line.X2, line.Y2, unit), InkOf(line, onto.Colours), 1.0);
    } else {
      PaintShape(onto, static_cast<const Shape&>(*control));
    }
  }
}

void PaintFrameLine(const Onto& onto, const Frame& frame, const RECT& client) {
  const int title = frame.Caption().empty() ? 0 : Scaled(16, onto.Scale);
  DrawBody(onto, client.left + 0.5, client.top + title / 2.0 + 0.5, client.right - 0.5, client.bottom - 0.5, false,
           onto.Colours.Window, FrameEdge(onto.Colours), 1.0);
}

void PaintFrameTitle(HDC dc, const Frame& frame, HWND window, const WinForm& form) {
  if (frame.Caption().empty()) return;
  const double scale = form.Scale();
  RECT client{};
  GetClientRect(window, &client);
  const std::wstring title = Wide(MarkedCaption(frame.Caption));
  const Selected font(dc, BaseFont(scale, 9, true));
  RECT place{Scaled(kTitleLeft, scale), 0, client.right - Scaled(kTitleLeft, scale), Scaled(16, scale)};
  const RECT room = place;
  DrawTextW(dc, title.c_str(), -1, &place, DT_CALCRECT | DT_SINGLELINE | DT_LEFT);
  RECT behind{place.left - Scaled(4, scale), 0, std::min(place.right + Scaled(4, scale), room.right), room.bottom};
  FillArea(dc, behind, form.Colours().Window);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, form.Colours().WindowText);
  place = room;
  DrawTextW(dc, title.c_str(), -1, &place, DT_SINGLELINE | DT_LEFT | DT_VCENTER | DT_END_ELLIPSIS);
}

// The frame of a bordered box stands in front of whatever the box contains.
void SyncBorder(HWND box, double scale) {
  RECT client{};
  GetClientRect(box, &client);
  HWND border = GetDlgItem(box, kBorderId);
  if (border == nullptr) {
    border = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 0, 0, 0, box,
                             reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kBorderId)), OwnModule(), nullptr);
  }
  RECT now{};
  GetClientRect(border, &now);
  if (EqualRect(&now, &client) != 0) return;
  const int thick = std::max(Scaled(1, scale), 1);
  const HRGN frame = CreateRectRgnIndirect(&client);
  const HRGN inside = CreateRectRgn(thick, thick, client.right - thick, client.bottom - thick);
  CombineRgn(frame, frame, inside, RGN_DIFF);
  DeleteObject(inside);
  SetWindowRgn(border, frame, TRUE);  // the window owns it from now on
  SetWindowPos(border, HWND_TOP, 0, 0, client.right, client.bottom, SWP_NOACTIVATE);
}

// What stands behind a control, moved to where the control's own window begins.
RECT AreaBehind(const Control& control, const WinForm& form, const RECT& client) {
  RECT area = client;
  MapWindowPoints(form.WindowOf(control), form.WindowOf(*control.Parent), reinterpret_cast<POINT*>(&area), 2);
  return area;
}

void PaintHandle(const Onto& onto, const Control& control, const RECT& client, bool focused) {
  const bool isShape = control.Type == Kind::Shape;
  const String picture = isShape ? String() : static_cast<const PictureBox&>(control).Picture();
  const bool round = !isShape || static_cast<const Shape&>(control).Round;
  const Colour colour =
      isShape ? static_cast<const Shape&>(control).FillColor : static_cast<const PictureBox&>(control).BackColor;
  const Colour ground = GroundOf(control, onto.Colours);
  const double middleX = (client.left + client.right) / 2.0;
  const double middleY = (client.top + client.bottom) / 2.0;
  const double side = std::min(WidthOf(client), HeightOf(client)) / 2.0;
  if (!picture.empty()) {
    const int fine = onto.To.Fine();
    const RECT place{fine, fine, (WidthOf(client) - 1) * fine, (HeightOf(client) - 1) * fine};
    DrawPicture(onto.To.Dc(), picture, place, ground);
  } else {
    const double radius = std::max(side - kGrabMargin * onto.Scale, kHandleRadius * onto.Scale);
    DrawBody(onto, middleX - radius, middleY - radius, middleX + radius, middleY + radius, round,
             MarkOn(colour, ground), ground, 1.5);
  }
  if (!focused) return;
  const double ring = side - onto.Scale;
  const Pen pen = RoundPen(onto.Colours.Highlight, onto.Width(2.0));
  const Selected withPen(onto.To.Dc(), pen.get());
  const Selected withBrush(onto.To.Dc(), GetStockObject(NULL_BRUSH));
  const auto at = [](double value) { return static_cast<int>(std::lround(value)); };
  Ellipse(onto.To.Dc(), at(onto.X(middleX - ring)), at(onto.Y(middleY - ring)), at(onto.X(middleX + ring)),
          at(onto.Y(middleY + ring)));
}

HWND MakeBox(WinForm& form, Control& control, HWND parent) {
  static const bool registered = [] {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.lpfnWndProc = DefWindowProcW;
    type.hInstance = OwnModule();
    type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    type.lpszClassName = L"TarnwiseBox";
    return RegisterClassExW(&type) != 0;
  }();
  (void)registered;
  return NewChild(form, L"TarnwiseBox", IsContainer(control) ? WS_CLIPCHILDREN : 0, 0, parent);
}

void SyncBox(WinForm& form, Control& control, HWND window) {
  const bool frame = control.Type == Kind::Frame;
  SetText(window, Wide(frame ? UnmarkedCaption(static_cast<Frame&>(control).Caption) : control.AccessibleName()));
  const bool box = control.Type == Kind::PictureBox && !IsHandle(control);
  if (box && static_cast<PictureBox&>(control).Bordered) SyncBorder(window, form.Scale());
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

// A box that nothing shines through.
bool IsOpaque(const Control& control) {
  return control.Type == Kind::Form || control.Type == Kind::Frame ||
         (control.Type == Kind::PictureBox && !IsHandle(control));
}

}  // namespace

int FineFor(const Control& container) {
  if (container.Type == Kind::PictureBox) {
    const auto& box = static_cast<const PictureBox&>(container);
    if (!box.Drawing.empty() || !box.Picture().empty()) return kSmooth;
  }
  const auto& controls = container.Owner.Controls();
  const bool paints = std::any_of(controls.begin(), controls.end(), [&container](const Control* control) {
    return control->Parent == &container && IsPainted(*control);
  });
  return paints ? kSmooth : 1;
}

void PaintGround(Canvas& canvas, const WinForm& form, const Control& container, const RECT& area) {
  const Onto onto{canvas, area, form.Scale(), form.Colours()};
  const bool isBox = container.Type == Kind::PictureBox;
  const Colour ground = FillOf(container, form.Colours());
  canvas.Fill(ground);
  RECT client{};
  GetClientRect(form.WindowOf(container), &client);
  if (isBox) {
    const auto& box = static_cast<const PictureBox&>(container);
    const int margin = Scaled(kPictureMargin, form.Scale());
    const auto x = [&onto](int pixel) { return static_cast<LONG>(onto.X(pixel)); };
    const auto y = [&onto](int pixel) { return static_cast<LONG>(onto.Y(pixel)); };
    DrawPicture(canvas.Dc(), box.Picture, {x(margin), y(margin), x(client.right - margin), y(client.bottom - margin)},
                ground);
    for (const Drawn& drawn : box.Drawing) PaintDrawn(onto, drawn, PixelsPerUnit(box, form.Scale()), ground);
  }
  if (container.Type == Kind::Frame) PaintFrameLine(onto, static_cast<const Frame&>(container), client);
  PaintChildren(onto, container);
}

void PaintBehind(HDC dc, const WinForm& form, const Control& control, const RECT& client) {
  Canvas canvas(WidthOf(client), HeightOf(client), FineFor(*control.Parent));
  PaintGround(canvas, form, *control.Parent, AreaBehind(control, form, client));
  canvas.PutOnto(dc, client.left, client.top);
}

void PaintBoxWindow(WinForm& form, Control& control, HWND window) {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window, &paint);
  const RECT area = paint.rcPaint;
  if (WidthOf(area) > 0 && HeightOf(area) > 0 && IsOpaque(control)) {
    Canvas canvas(WidthOf(area), HeightOf(area), FineFor(control));
    PaintGround(canvas, form, control, area);
    canvas.PutOnto(dc, area.left, area.top);
    if (control.Type == Kind::Frame) PaintFrameTitle(dc, static_cast<Frame&>(control), window, form);
  } else if (WidthOf(area) > 0 && HeightOf(area) > 0) {
    RECT client{};
    GetClientRect(window, &client);
    Canvas canvas(WidthOf(client), HeightOf(client), kSmooth);
    PaintGround(canvas, form, *control.Parent, AreaBehind(control, form, client));
    if (control.Type == Kind::Image) {
      DrawPicture(canvas.Dc(), static_cast<Image&>(control).Picture,
                  {0, 0, client.right * kSmooth, client.bottom * kSmooth}, GroundOf(control, form.Colours()));
    } else {
      PaintHandle({canvas, client, form.Scale(), form.Colours()}, control, client, GetFocus() == window);
    }
    canvas.PutOnto(dc, 0, 0);
  }
  EndPaint(window, &paint);
}

const WinKind kWinBox{MakeBox, SyncBox, nullptr};

}  // namespace Tarnwise
