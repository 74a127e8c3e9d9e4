// What the tree paints: labels, frames, picture boxes, images, handles, coloured buttons; and what containers contain
// of lines and shapes. What is behind a see-through window is painted once more inside it.
#include "runtime/windows/OwnModule.h"
#include "view/Painting.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinSurface.h"

#include <algorithm>

namespace Tarnwise {

namespace {

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

RECT ClientOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return client;
}

// How finely a control wants to be drawn: where there is nothing but texts and grounds, a pixel is a pixel.
int FineFor(const Control& control) {
  if (control.Type == Kind::Label && !IsSign(static_cast<const Label&>(control))) return FineFor(*control.Parent);
  if (!IsOpaque(control)) return kSmooth;
  if (control.Type == Kind::PictureBox) {
    const auto& box = static_cast<const PictureBox&>(control);
    if (!box.Drawing.empty() || !box.Picture().empty()) return kSmooth;
  }
  const auto& controls = control.Owner.Controls();
  const bool paints = std::any_of(controls.begin(), controls.end(), [&control](const Control* child) {
    return child->Parent == &control && IsPainted(*child);
  });
  return paints ? kSmooth : 1;
}

// The area of what the container itself shows.
void PaintGround(Canvas& canvas, const WinForm& form, const Control& container, const RECT& area) {
  WinSurface surface(canvas, form.Scale(), {area.left, area.top});
  const RECT client = ClientOf(form.WindowOf(container));
  PaintContainer({surface, form.Colours(), form.Scale()}, container, ToPixelRect(client), ToPixelRect(area));
}

// Without it a press goes to what contains the label.
void Notify(WinForm& /*form*/, Control& control, HWND window) {
  if (!control.Click && !control.DragAutomatic) return;
  SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | SS_NOTIFY);
}

void SyncLabel(WinForm& /*form*/, Control& /*control*/, HWND window) { InvalidateRect(window, nullptr, FALSE); }

void SyncBox(WinForm& form, Control& control, HWND window) {
  const bool box = control.Type == Kind::PictureBox && IsOpaque(control);
  if (box && static_cast<PictureBox&>(control).Bordered) SyncBorder(window, form.Scale());
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

}  // namespace

void PaintOnto(HDC dc, const WinForm& form, const Control& control, const RECT& wanted, bool pressed) {
  const HWND window = form.WindowOf(control);
  const RECT client = ClientOf(window);
  const RECT area = IsOpaque(control) ? wanted : client;
  if (WidthOf(area) <= 0 || HeightOf(area) <= 0) return;
  Canvas canvas(WidthOf(area), HeightOf(area), FineFor(control));
  if (!IsOpaque(control)) PaintGround(canvas, form, *control.Parent, AreaBehind(control, form, client));
  WinSurface surface(canvas, form.Scale(), {area.left, area.top});
  PaintControl({surface, form.Colours(), form.Scale()}, control, ToPixelRect(client), ToPixelRect(area),
               {GetFocus() == window, false, pressed});
  surface.PutOnto(dc);
}

void PaintBoxWindow(const WinForm& form, const Control& control, HWND window) {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window, &paint);
  PaintOnto(dc, form, control, paint.rcPaint, false);
  EndPaint(window, &paint);
}

const WinKind kWinLabel{L"STATIC", SS_OWNERDRAW, 0, SyncLabel, Notify};
const WinKind kWinBox{kBoxClass, WS_CLIPCHILDREN, 0, SyncBox};

}  // namespace Tarnwise
