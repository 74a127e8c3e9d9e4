#include "view/win32/WinDrag.h"

#include "runtime/windows/OwnModule.h"
#include "view/Pictures.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr int kIconSide = 28;    // pixels of the design, of the picture that stands for a mark
constexpr BYTE kOpacity = 180;   // of 255
constexpr double kTwips = 15.0;  // in a pixel of the design

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

String BaseNameOf(const String& path) {
  const std::size_t slash = path.find_last_of("\\/");
  String name = slash == String::npos ? path : path.substr(slash + 1);
  name = name.substr(0, name.rfind('.'));
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return name;
}

// By its file, or where that is missing by the picture of the same name. The caller destroys it.
HICON IconOf(const String& path, int side, Colour ground) {
  if (FindPicture(path) != nullptr) return MakePictureIcon(path, side, ground);
  std::wstring file = Wide(path);
  std::replace(file.begin(), file.end(), L'/', L'\\');
  const HANDLE loaded = LoadImageW(nullptr, file.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE);
  return loaded != nullptr ? static_cast<HICON>(loaded) : MakePictureIcon(BaseNameOf(path), side, ground);
}

// What the window shows, as a bitmap without see-through parts.
void CopyWindow(HWND window, HDC to, SIZE size) {
  const HDC from = GetDC(window);
  BitBlt(to, 0, 0, size.cx, size.cy, from, 0, 0, SRCCOPY);
  ReleaseDC(window, from);
}

}  // namespace

bool WinDrag::Alive() const { return form_ != nullptr && form_->Tree() != nullptr; }

void WinDrag::Arm(WinForm& form, Control& source, POINT inWindow) {
  Clear();
  form_ = &form;
  source_ = &source;
  start_ = inWindow;
}

void WinDrag::Begin() {
  if (on_ || source_ == nullptr || !Alive()) return;
  on_ = true;
  form_->Tree()->Screen().Drag.Begin(*source_);
}

bool WinDrag::Move(double x, double y) {
  if (source_ == nullptr || !Alive()) return false;
  const bool gone =
      std::abs(x - start_.x) >= GetSystemMetrics(SM_CXDRAG) || std::abs(y - start_.y) >= GetSystemMetrics(SM_CYDRAG);
  if (!on_ && !gone) return false;
  WinForm& form = *form_;
  const auto held = form.shared_from_this();
  const WinEntry entry(*form.Tree());
  Begin();
  if (!Alive()) return true;
  Platform& platform = form.Tree()->Screen();
  RECT client{};
  GetClientRect(form.Window(), &client);
  if (x >= 0 && y >= 0 && x < client.right && y < client.bottom) {
    const double twips = kTwips / form.Scale();
    platform.Drag.OverPoint(x * twips, y * twips);
  } else {
    platform.Drag.OverNothing();
  }
  if (on_ && Alive()) Follow(form, x, y);
  return true;
}

bool WinDrag::Release() { return End(&DragSession::Drop); }

bool WinDrag::Cancel() { return End(&DragSession::Cancel); }

bool WinDrag::End(void (DragSession::*how)()) {
  if (!on_ || !Alive()) {
    Clear();
    return false;
  }
  const WinEntry entry(*form_->Tree());
  Platform& platform = form_->Tree()->Screen();
  Clear();
  (platform.Drag.*how)();
  return true;
}

void WinDrag::Forget(const Control& control) {
  if (source_ == &control) Clear();
}

void WinDrag::Forget(const WinForm& form) {
  if (form_ == &form) Clear();
}

void WinDrag::Show(WinForm& form) {
  if (on_ || form.Tree() == nullptr) return;
  const DragSession& drag = form.Tree()->Screen().Drag;
  if (!drag.Active() || &drag.Source()->Owner != form.Tree()) {
    if (source_ == nullptr) Clear();
    return;
  }
  const FormPoint at = PointerOf(drag);
  const double pixels = form.Scale() / kTwips;
  Follow(form, at.X * pixels, at.Y * pixels);
}

void WinDrag::MakeGhost(WinForm& form, const DragSession& drag) {
  if (ghost_ != nullptr) DestroyWindow(std::exchange(ghost_, nullptr));
  const Control& source = *drag.Source();
  const HWND window = form.WindowOf(source);
  const bool marked = !drag.Icon().empty();
  // What the handlers move themselves needs no second picture.
  if (window == nullptr || (!marked && source.KeyboardDrag == DragBy::Units)) return;
  const int side = Scaled(kIconSide, form.Scale());
  RECT place{0, 0, side, side};
  if (!marked) GetClientRect(window, &place);
  ghostSize_ = {WidthOf(place), HeightOf(place)};
  Canvas canvas(ghostSize_.cx, ghostSize_.cy, 1);
  canvas.Fill(form.Colours().Base);
  if (marked) {
    const HICON icon = IconOf(drag.Icon(), side, form.Colours().Base);
    DrawIconEx(canvas.Dc(), 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
    if (icon != nullptr) DestroyIcon(icon);
  } else {
    CopyWindow(window, canvas.Dc(), ghostSize_);
  }
  ghost_ = CreateWindowExW(WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST,
                           GhostClass(), nullptr, WS_POPUP, 0, 0, ghostSize_.cx, ghostSize_.cy, form.Window(), nullptr,
                           OwnModule(), nullptr);
  BLENDFUNCTION blend{AC_SRC_OVER, 0, kOpacity, 0};
  POINT origin{0, 0};
  const COLORREF behind = marked ? form.Colours().Base : CLR_INVALID;
  UpdateLayeredWindow(ghost_, nullptr, nullptr, &ghostSize_, canvas.Dc(), &origin, marked ? behind : 0, &blend,
                      marked ? ULW_COLORKEY | ULW_ALPHA : ULW_ALPHA);
}

void WinDrag::Follow(WinForm& form, double x, double y) {
  const DragSession& drag = form.Tree()->Screen().Drag;
  if (!drag.Active()) {
    Clear();
    return;
  }
  const String looks = drag.Source()->FullName() + "|" + drag.Icon();
  if (ghostOf_ != looks) {
    MakeGhost(form, drag);
    ghostOf_ = looks;
  }
  const LONG beside = Scaled(kIconBesidePointer, form.Scale());
  const bool isIcon = on_ && !drag.Icon().empty();
  POINT at{static_cast<LONG>(std::lround(x)) + (isIcon ? beside : -ghostSize_.cx / 2),
           static_cast<LONG>(std::lround(y)) + (isIcon ? beside : -ghostSize_.cy / 2)};
  ClientToScreen(form.Window(), &at);
  if (ghost_ != nullptr) {
    SetWindowPos(ghost_, HWND_TOPMOST, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  }
  if (on_) SetCursor(drag.WouldBeTaken() ? LoadCursorW(nullptr, IDC_HAND) : CursorFor(kNoDrop));
}

void WinDrag::Clear() {
  on_ = false;
  source_ = nullptr;
  form_ = nullptr;
  if (ghost_ != nullptr) DestroyWindow(std::exchange(ghost_, nullptr));
  ghostOf_.clear();
}

}  // namespace Tarnwise
