// Boxes: picture boxes, frames, images, handles; and what containers paint themselves: lines, shapes and drawings.
#include "runtime/windows/OwnModule.h"
#include "view/Captions.h"
#include "view/Painting.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinSurface.h"
#include "view/win32/WinText.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kTitleLeft = 12;  // pixels of the design
constexpr int kTitleHeight = 16;
constexpr int kSmooth = 3;

void FillArea(HDC dc, const RECT& area, COLORREF colour) {
  const Brush brush(CreateSolidBrush(colour));
  FillRect(dc, &area, brush.get());
}

void PaintFrameTitle(HDC dc, const Frame& frame, HWND window, const WinForm& form) {
  if (frame.Caption().empty()) return;
  const double scale = form.Scale();
  RECT client{};
  GetClientRect(window, &client);
  const std::wstring title = Wide(MarkedCaption(frame.Caption));
  const Selected font(dc, BaseFont(scale, 9, true));
  RECT place{Scaled(kTitleLeft, scale), 0, client.right - Scaled(kTitleLeft, scale), Scaled(kTitleHeight, scale)};
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
  WinSurface surface(canvas, {area.left, area.top});
  const Brushes brushes{surface, form.Colours(), form.Scale()};
  RECT client{};
  GetClientRect(form.WindowOf(container), &client);
  PaintContainer(brushes, container, ToPixelRect(client), ToPixelRect(area));
  if (container.Type != Kind::Frame) return;
  const bool hasTitle = !static_cast<const Frame&>(container).Caption().empty();
  PaintFrameLine(brushes, ToPixelRect(client), hasTitle ? Scaled(kTitleHeight, form.Scale()) : 0);
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
    WinSurface surface(canvas);
    if (control.Type == Kind::Image) {
      PaintPicture(surface, static_cast<Image&>(control).Picture, ToBox(ToPixelRect(client)),
                   GroundOf(control, form.Colours()));
    } else {
      PaintHandle({surface, form.Colours(), form.Scale()}, control, ToPixelRect(client), {GetFocus() == window, false});
    }
    canvas.PutOnto(dc, 0, 0);
  }
  EndPaint(window, &paint);
}

const WinKind kWinBox{MakeBox, SyncBox, nullptr};

}  // namespace Tarnwise
