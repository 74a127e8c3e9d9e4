#include "view/win32/WinForm.h"

#include "runtime/windows/OwnModule.h"
#include "view/Lifetime.h"
#include "view/Platform.h"
#include "view/Speech.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinNames.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr DWORD kFormStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD kFormExStyle = WS_EX_CONTROLPARENT | WS_EX_APPWINDOW;
constexpr UINT_PTR kSubclass = 1;

LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/, DWORD_PTR data) {
  auto* const form = reinterpret_cast<WinForm*>(data);
  const std::shared_ptr<WinForm> held = form->weak_from_this().lock();  // null while it goes, and its windows with it
  if (const auto answer = form->Handle(window, message, wParam, lParam)) return *answer;
  return DefSubclassProc(window, message, wParam, lParam);
}

// The size of the whole window around a client area.
SIZE OuterSize(SIZE client, double scale) {
  RECT r{0, 0, client.cx, client.cy};
  AdjustForDpi(r, kFormStyle, kFormExStyle, static_cast<UINT>(std::lround(scale * 96)));
  return {r.right - r.left, r.bottom - r.top};
}

// Small screens: the form gets smaller as a whole rather than losing its buttons.
double FittingScale(const Form& form, double wanted, const RECT& workArea) {
  // The window's frame keeps its size; one pixel is for the edges that are rounded.
  const SIZE frame = OuterSize({0, 0}, wanted);
  const double roomX = static_cast<double>(WidthOf(workArea) - frame.cx - 1);
  const double roomY = static_cast<double>(HeightOf(workArea) - frame.cy - 1);
  const double unit = wanted / static_cast<double>(kTwipsPerPixel);
  const double fit =
      std::min(roomX / (static_cast<double>(form.Width()) * unit), roomY / (static_cast<double>(form.Height()) * unit));
  return fit >= 1.0 ? wanted : std::max(wanted * fit, 0.5);
}

RECT WorkAreaOf(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  if (GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor) != 0) return monitor.rcWork;
  return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

// Its window's text is what it shows. That of all others is not seen, and read by a screen reader.
bool ShowsItsText(const Control& control) {
  if (HasCaption(control)) return control.Type != Kind::Label;
  return control.Type == Kind::TextBox || control.Type == Kind::ComboBox || control.Type == Kind::ImageCombo;
}

void SetName(HWND window, const Control& control) {
  const std::wstring name = Wide(SpokenName(control));
  if (!ShowsItsText(control)) {
    SetText(window, name);
  } else if (!name.empty()) {
    NameWindow(window, name);
    if (const HWND part = GetWindow(window, GW_CHILD)) NameWindow(part, name);
  }
}

}  // namespace

WinForm::WinForm(Form& form, WinToolkit& toolkit) : WindowedMirror(form, toolkit.Seen()), toolkit_(toolkit) {}

WinForm::~WinForm() {
  Orphan();
  if (window_ != nullptr) DestroyWindow(window_);
}

void WinForm::MakeWindow() {
  if (window_ != nullptr) return;
  const OwnLook look;
  window_ = CreateWindowExW(kFormExStyle, OwnClass(L"TarnwiseForm"), Wide(Tree()->Caption).c_str(), kFormStyle, 0, 0,
                            100, 100, nullptr, nullptr, OwnModule(), nullptr);
  if (window_ == nullptr) throw RuntimeError(7, "Out of memory: Windows has no room for another window");
  OwnClass(kBoxClass);
  tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0,
                          window_, nullptr, OwnModule(), nullptr);
  SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, 400);
  SendMessageW(window_, WM_SETICON, ICON_SMALL,
               reinterpret_cast<LPARAM>(toolkit_.WindowIcon(GetSystemMetrics(SM_CXSMICON))));
  SendMessageW(window_, WM_SETICON, ICON_BIG,
               reinterpret_cast<LPARAM>(toolkit_.WindowIcon(GetSystemMetrics(SM_CXICON))));
  scale_ = FittingScale(*Tree(), DpiOf(window_) / 96.0, WorkAreaOf(window_));
  Keep(*Tree(), window_);
  Watch(window_, *Tree());
  SyncAll();
  SendMessageW(window_, WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS), 0);
}

HWND WinForm::WindowOf(const Control& control) const { return static_cast<HWND>(NativeOf(control)); }

Control* WinForm::ControlOf(HWND window) const { return OwnerOf(window); }

void WinForm::Watch(HWND window, Control& control) {
  WindowedMirror::Watch(window, control);
  SetWindowSubclass(window, OnMessage, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  CountWindow(1);
}

HBRUSH WinForm::BrushOf(COLORREF colour) {
  Brush& brush = brushes_[colour];
  if (!brush) brush.reset(CreateSolidBrush(colour));
  return brush.get();
}

void WinForm::SetTip(HWND window, const std::wstring& text) {
  std::wstring& shown = tipTexts_[window];
  if (shown == text) return;
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  if (!shown.empty()) SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  shown = text;
  tool.lpszText = shown.data();
  if (!shown.empty()) SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void WinForm::KeepImages(HWND window, Images images, Images disabled) {
  images_[window] = {std::move(images), std::move(disabled)};
}

void WinForm::Show(Showing how, HWND behind) {
  MakeWindow();
  Sync();
  EnableWindow(window_, TRUE);
  if (how == Showing::Blocked) {
    const UINT keepOrder = behind == nullptr ? SWP_NOZORDER : 0U;
    SetWindowPos(window_, behind, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW | keepOrder);
    return;
  }
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  if (how == Showing::Modal) SetActiveWindow(window_);
  FocusTree();
}

bool WinForm::Create(Control& control) {
  const WinKind* const kind = KindOf(control);
  if (kind == nullptr) return false;
  const HWND window = CreateWindowExW(kind->ExStyle, kind->Class, L"", WS_CHILD | WS_CLIPSIBLINGS | kind->Style, 0, 0,
                                      10, 10, WindowOf(*control.Parent), nullptr, OwnModule(), nullptr);
  if (window == nullptr) throw RuntimeError(7, "Out of memory: Windows has no room for another window");
  UseBaseFont(*this, window);
  Keep(control, window);
  Watch(window, control);
  if (kind->Made != nullptr) kind->Made(*this, control, window);
  UseFittingStyle(window, colours_);
  return true;
}

void WinForm::Sync() {
  const OwnLook look;
  Mirror::Sync();
}

void WinForm::PutAt(Control& control, const PixelRect& place) {
  const HWND window = WindowOf(control);
  // A drop list is as high as its list when it is open.
  const bool combo = control.Type == Kind::ComboBox || control.Type == Kind::ImageCombo;
  RECT now{};
  GetWindowRect(window, &now);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&now), 2);
  const bool same = now.left == place.Left && now.top == place.Top && now.right == place.Right &&
                    (combo || now.bottom == place.Bottom);
  const int list = combo ? Scaled(320, scale_) : 0;
  if (!same) MoveWindow(window, place.Left, place.Top, place.Width(), place.Height() + list, TRUE);
}

void WinForm::Apply(Control& control) {
  const HWND window = WindowOf(control);
  KindOf(control)->Sync(*this, control, window);
  SetName(window, control);
  if ((IsWindowEnabled(window) != 0) != control.Enabled) {
    EnableWindow(window, control.Enabled ? TRUE : FALSE);
    InvalidateRect(window, nullptr, FALSE);
  }
  const bool shown = (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown != control.Visible) ShowWindow(window, control.Visible ? SW_SHOWNA : SW_HIDE);
}

void WinForm::ShowTip(const Control& control, const String& tip) { SetTip(WindowOf(control), Wide(tip)); }

int WinForm::TextWidth(const String& text, const TypeFace& face) const {
  return TextWidthIn(BaseFont(scale_, face), Wide(text));
}

void WinForm::Announce(const Label& label, bool renamed) {
  if (renamed) NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, WindowOf(label), OBJID_CLIENT, CHILDID_SELF);
  NotifyWinEvent(EVENT_SYSTEM_ALERT, WindowOf(label), OBJID_CLIENT, CHILDID_SELF);
}

void WinForm::ApplyForm() {
  SetText(window_, Wide(Tree()->Caption));
  const PixelRect place = PixelPlace(*Tree(), scale_);
  const SIZE outer = OuterSize({place.Width(), place.Height()}, DpiOf(window_) / 96.0);
  RECT now{};
  GetWindowRect(window_, &now);
  if (WidthOf(now) != outer.cx || HeightOf(now) != outer.cy) {
    SetWindowPos(window_, nullptr, 0, 0, outer.cx, outer.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  if (moved_ && place.Left == placed_.x && place.Top == placed_.y) return;
  moved_ = true;
  placed_ = {place.Left, place.Top};
  const RECT area = WorkAreaOf(window_);
  // The tree's place is that of a form of its full size; a frame and a small screen may need it moved.
  const auto within = [](LONG at, LONG size, LONG from, LONG to) { return std::max(from, std::min(at, to - size)); };
  const bool smaller = scale_ < DpiOf(window_) / 96.0;
  const LONG left = smaller ? area.left + (WidthOf(area) - outer.cx) / 2 : placed_.x;
  const LONG top = smaller ? area.top : placed_.y;
  SetWindowPos(window_, nullptr, within(left, outer.cx, area.left, area.right),
               within(top, outer.cy, area.top, area.bottom), 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WinForm::Repaint(const Control& container, const PixelRect& area) {
  const RECT place = ToRect(area);
  RedrawWindow(WindowOf(container), &place, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

int WinForm::StartClock(int milliseconds) {
  SetTimer(window_, static_cast<UINT_PTR>(++lastClock_), static_cast<UINT>(milliseconds), nullptr);
  return lastClock_;
}

void WinForm::StopClock(int clock) { KillTimer(window_, static_cast<UINT_PTR>(clock)); }

void WinForm::ToFront(const Control& control) {
  SetWindowPos(WindowOf(control), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void WinForm::BorderToFront(const Control& container) {
  const HWND border = GetDlgItem(WindowOf(container), kBorderId);
  if (border != nullptr) SetWindowPos(border, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

Entered WinForm::EnteredIn(const TextBox& box) const { return EnteredInto(WindowOf(box)); }

void WinForm::FocusTree() {
  if (Tree() == nullptr || window_ == nullptr || GetActiveWindow() != window_) return;
  const auto wanted = static_cast<HWND>(KeyboardWindow());
  const HWND now = GetFocus();
  if (now == wanted || (wanted != window_ && IsChild(wanted, now) != 0)) return;
  focusing_ = true;
  SetFocus(wanted);
  focusing_ = false;
}

void WinForm::Rescale(double scale) {
  if (Tree() == nullptr) return;
  scale_ = FittingScale(*Tree(), scale, WorkAreaOf(window_));
  moved_ = true;
  placed_ = {PixelPlace(*Tree(), scale_).Left, PixelPlace(*Tree(), scale_).Top};
  SyncAll();
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

// The person has chosen other colours. Windows tells the form alone.
void WinForm::Recolour() {
  if (Tree() == nullptr) return;
  colours_ = SystemColours();
  for (const Control* control : Tree()->Controls()) {
    const HWND window = WindowOf(*control);
    if (window == nullptr) continue;
    UseFittingStyle(window, colours_);
    SendMessageW(window, WM_SYSCOLORCHANGE, 0, 0);
  }
  SyncAll();
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void WinForm::BuryWindow(void* native) {
  const auto window = static_cast<HWND>(native);
  SetTip(window, {});
  tipTexts_.erase(window);
  ShowWindow(window, SW_HIDE);
  Bury([window] { DestroyWindow(window); }, Tree());
}

void WinForm::HideForm() {
  if (window_ != nullptr) ShowWindow(window_, SW_HIDE);
}

// Windows destroys it: by our own will, or because the host's thread or desktop ends.
void WinForm::Lost(HWND window) {
  RemoveWindowSubclass(window, OnMessage, kSubclass);
  ForgetName(window);
  CountWindow(-1);
  Lose(window);
  tipTexts_.erase(window);
  images_.erase(window);
  if (window != window_) return;
  window_ = nullptr;
  if (Tree() == nullptr) return;
  const Entry entry(*Tree());
  Tree()->Screen().Hide(*Tree());
}

}  // namespace Tarnwise
