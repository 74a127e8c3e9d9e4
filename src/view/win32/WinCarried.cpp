#include "view/win32/WinCarried.h"

#include "runtime/windows/OwnModule.h"
#include "view/Gesture.h"
#include "view/Pictures.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <algorithm>
#include <utility>

namespace Tarnwise {

namespace {

constexpr BYTE kOpaque = 255 * kCarriedOpacity / 100;

const wchar_t* GhostClass() {
  static const wchar_t* const name = [] {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.lpfnWndProc = DefWindowProcW;
    type.hInstance = OwnModule();
    type.lpszClassName = L"TarnwiseDrag";
    RegisterClassExW(&type);
    return L"TarnwiseDrag";
  }();
  return name;
}

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

void WinCarried::MakeGhost(const WinForm& form, const Carried& carried) {
  if (ghost_ != nullptr) DestroyWindow(std::exchange(ghost_, nullptr));
  const HWND window = form.WindowOf(carried.Source);
  const bool marked = !carried.Picture.empty();
  if (window == nullptr || (!marked && !carried.Own)) return;
  const int side = Scaled(kCarriedSide, form.Scale());
  RECT place{0, 0, side, side};
  if (!marked) GetClientRect(window, &place);
  ghostSize_ = {WidthOf(place), HeightOf(place)};
  Canvas canvas(ghostSize_.cx, ghostSize_.cy, 1);
  canvas.Fill(form.Colours().Base);
  if (marked) {
    const HICON icon = IconOf(carried.Picture, side, form.Colours().Base);
    DrawIconEx(canvas.Dc(), 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
    if (icon != nullptr) DestroyIcon(icon);
  } else {
    CopyWindow(window, canvas.Dc(), ghostSize_);
  }
  ghost_ = CreateWindowExW(WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST,
                           GhostClass(), nullptr, WS_POPUP, 0, 0, ghostSize_.cx, ghostSize_.cy, form.Window(), nullptr,
                           OwnModule(), nullptr);
  BLENDFUNCTION blend{AC_SRC_OVER, 0, kOpaque, 0};
  POINT origin{0, 0};
  const COLORREF behind = marked ? form.Colours().Base : CLR_INVALID;
  UpdateLayeredWindow(ghost_, nullptr, nullptr, &ghostSize_, canvas.Dc(), &origin, marked ? behind : 0, &blend,
                      marked ? ULW_COLORKEY | ULW_ALPHA : ULW_ALPHA);
}

void WinCarried::Show(const WinForm& form, const Carried& carried) {
  const String looks = carried.Source.FullName() + "|" + carried.Picture;
  if (ghostOf_ != looks) {
    MakeGhost(form, carried);
    ghostOf_ = looks;
  }
  const LONG beside = Scaled(kIconBesidePointer, form.Scale());
  const bool isIcon = carried.ByMouse && !carried.Picture.empty();
  POINT at = form.InPixels(carried.At);
  at.x += isIcon ? beside : -ghostSize_.cx / 2;
  at.y += isIcon ? beside : -ghostSize_.cy / 2;
  ClientToScreen(form.Window(), &at);
  if (ghost_ != nullptr) {
    SetWindowPos(ghost_, HWND_TOPMOST, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  }
  if (carried.ByMouse) SetCursor(CursorFor(ShownPointer(carried)));
}

void WinCarried::Hide() {
  if (ghost_ != nullptr) DestroyWindow(std::exchange(ghost_, nullptr));
  ghostOf_.clear();
}

}  // namespace Tarnwise
