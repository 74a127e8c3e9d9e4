#include "view/win32/WinCarried.h"

#include "runtime/windows/OwnModule.h"
#include "view/Look.h"
#include "view/Pictures.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <algorithm>
#include <utility>

namespace Tarnwise {

namespace {

constexpr BYTE kOpaque = 255 * kCarriedOpacity / 100;

// By its file, or where that is missing by the picture of the same name. The caller destroys it.
HICON IconOf(const String& path, int side, Colour ground) {
  if (FindPicture(path) != nullptr) return MakePictureIcon(path, side, ground);
  std::wstring file = Wide(path);
  std::replace(file.begin(), file.end(), L'/', L'\\');
  const HANDLE loaded = LoadImageW(nullptr, file.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE);
  return loaded != nullptr ? static_cast<HICON>(loaded) : MakePictureIcon(PictureNameOf(path), side, ground);
}

// What the window shows, as a bitmap without see-through parts.
void CopyWindow(HWND window, HDC to, SIZE size) {
  const HDC from = GetDC(window);
  BitBlt(to, 0, 0, size.cx, size.cy, from, 0, 0, SRCCOPY);
  ReleaseDC(window, from);
}

}  // namespace

PixelSize WinCarried::Make(const Mirror& mirror, const Carried& carried, int side) {
  Destroy();
  const auto& form = static_cast<const WinForm&>(mirror);
  const HWND window = form.WindowOf(carried.Source);
  const bool marked = !carried.Picture.empty();
  if (window == nullptr || (!marked && !carried.Own)) return {};
  RECT place{0, 0, side, side};
  if (!marked) GetClientRect(window, &place);
  SIZE size{WidthOf(place), HeightOf(place)};
  Canvas canvas(size.cx, size.cy, 1);
  canvas.Fill(form.Colours().Base);
  if (marked) {
    const HICON icon = IconOf(carried.Picture, side, form.Colours().Base);
    DrawIconEx(canvas.Dc(), 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
    if (icon != nullptr) DestroyIcon(icon);
  } else {
    CopyWindow(window, canvas.Dc(), size);
  }
  ghost_ = CreateWindowExW(WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST,
                           OwnClass(L"TarnwiseDrag"), nullptr, WS_POPUP, 0, 0, size.cx, size.cy, form.Window(), nullptr,
                           OwnModule(), nullptr);
  BLENDFUNCTION blend{AC_SRC_OVER, 0, kOpaque, 0};
  POINT origin{0, 0};
  UpdateLayeredWindow(ghost_, nullptr, nullptr, &size, canvas.Dc(), &origin, marked ? form.Colours().Base : 0, &blend,
                      marked ? ULW_COLORKEY | ULW_ALPHA : ULW_ALPHA);
  return {size.cx, size.cy};
}

void WinCarried::MoveTo(const Mirror& mirror, int left, int top) {
  if (ghost_ == nullptr) return;
  POINT at{left, top};
  ClientToScreen(static_cast<const WinForm&>(mirror).Window(), &at);
  SetWindowPos(ghost_, HWND_TOPMOST, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void WinCarried::Destroy() {
  if (ghost_ != nullptr) DestroyWindow(std::exchange(ghost_, nullptr));
}

// Windows gives it another one as soon as it moves.
void WinCarried::Point(int pointer) {
  if (pointer != kDefaultPointer) SetCursor(CursorFor(pointer));
}

}  // namespace Tarnwise
