#include "view/win32/WinToolkit.h"

#include "view/Lifetime.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <tarnwise/Platform.h>

#include <commctrl.h>

#include <utility>

namespace Tarnwise {

namespace {

constexpr int kDesignDpi = 96;

template <class Function>
Function FromUser32(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

UINT ScreenDpi() {
  const HDC screen = GetDC(nullptr);
  const auto dpi = static_cast<UINT>(GetDeviceCaps(screen, LOGPIXELSX));
  ReleaseDC(nullptr, screen);
  return dpi;
}

Single TwipsOf(int pixels) {
  return static_cast<Single>(MulDiv(pixels, kDesignDpi, static_cast<int>(ScreenDpi()))) * kTwipsPerPixel;
}

void UseCommonControls() {
  INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES | ICC_USEREX_CLASSES};
  InitCommonControlsEx(&wanted);
}

}  // namespace

// While a modal form is up nothing else of this thread takes input, the host's windows included.
class OthersDisabled {
 public:
  OthersDisabled(std::vector<OthersDisabled*>& calls, const Form& form, HWND but)
      : calls_(calls), form_(form), but_(but) {
    calls_.push_back(this);
    Disable();
  }
  OthersDisabled(const OthersDisabled&) = delete;
  OthersDisabled& operator=(const OthersDisabled&) = delete;
  ~OthersDisabled() {
    Enable();
    std::erase(calls_, this);
    // The form around it may have come back while this one's call was the innermost.
    if (!calls_.empty() && calls_.back()->form_.Visible) calls_.back()->Disable();
  }

  bool IsOf(const Form& form) const { return &form_ == &form; }
  void Disable() {
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(this));
    for (const HWND window : windows_) EnableWindow(window, FALSE);
  }
  void Enable() {
    for (const HWND window : std::exchange(windows_, {})) {
      if (IsWindow(window) != 0) EnableWindow(window, TRUE);
    }
  }

 private:
  static BOOL CALLBACK Collect(HWND window, LPARAM self) {
    auto& others = *reinterpret_cast<OthersDisabled*>(self);
    if (window != others.but_ && IsWindowVisible(window) != 0 && IsWindowEnabled(window) != 0) {
      others.windows_.push_back(window);
    }
    return TRUE;
  }

  std::vector<OthersDisabled*>& calls_;
  const Form& form_;
  HWND but_;
  std::vector<HWND> windows_;
};

UINT DpiOf(HWND window) {
  static const auto dpiForWindow = FromUser32<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const UINT dpi = dpiForWindow != nullptr ? dpiForWindow(window) : 0;
  return dpi != 0 ? dpi : ScreenDpi();
}

void AdjustForDpi(RECT& client, DWORD style, DWORD exStyle, UINT dpi) {
  using Adjust = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
  static const auto adjust = FromUser32<Adjust>("AdjustWindowRectExForDpi");
  if (adjust == nullptr || adjust(&client, style, FALSE, exStyle, dpi) == 0) {
    AdjustWindowRectEx(&client, style, FALSE, exStyle);
  }
}

WinToolkit::WinToolkit() {
  BuryOnThisThread();
  UseCommonControls();
}

WinToolkit::~WinToolkit() {
  for (const auto& [side, icon] : icons_) DestroyIcon(icon);
}

HICON WinToolkit::WindowIcon(int side) {
  HICON& icon = icons_[side];
  if (icon == nullptr) icon = MakePictureIcon("window", side, kAsDrawn);
  return icon;
}

WinForm* WinToolkit::FormOf(const Form& form) const { return static_cast<WinForm*>(MirrorOf(form)); }

std::shared_ptr<Mirror> WinToolkit::MakeMirror(Form& form) { return std::make_shared<WinForm>(form, *this); }

void WinToolkit::Bring(Mirror& shown, Showing how, Mirror* front) {
  auto& form = static_cast<WinForm&>(shown);
  form.Show(how, front != nullptr ? static_cast<WinForm*>(front)->Window() : nullptr);
  // It was hidden, and its call still runs; or it came while another one's does.
  if (!modal_.empty() && (how == Showing::Blocked || modal_.back()->IsOf(*form.Tree()))) modal_.back()->Disable();
}

void WinToolkit::Hide(Form& form) {
  // Others come to life before it goes, or Windows would make another program's window the active one.
  if (!modal_.empty() && modal_.back()->IsOf(form)) modal_.back()->Enable();
  // A handler may run inside a message that another thread has sent: the loop has to look again.
  if (!modal_.empty()) PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
  if (WinForm* const shown = FormOf(form)) ShowWindow(shown->Window(), SW_HIDE);
}

void WinToolkit::TakeEvents() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void WinToolkit::RunModal(Form& form) {
  const auto held = form.shared_from_this();
  const WinForm* const shown = FormOf(form);
  const OthersDisabled others(modal_, form, shown != nullptr ? shown->Window() : nullptr);
  WindowedToolkit::RunModal(form);
}

bool WinToolkit::WaitFor(const Form& /*form*/) {
  MSG message;
  const BOOL got = GetMessageW(&message, nullptr, 0, 0);
  if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));  // the host ends: its own loop must hear of it
  if (got <= 0) return false;
  TranslateMessage(&message);
  DispatchMessageW(&message);
  return true;
}

void WinToolkit::SetPointer(int pointer) {
  pointer_ = pointer;
  SetCursor(CursorFor(pointer));
}

WindowHandle WinToolkit::WindowOf(const Form& form) {
  const WinForm* const shown = FormOf(form);
  return shown == nullptr ? 0 : reinterpret_cast<WindowHandle>(shown->Window());
}

void WinToolkit::Beep() { MessageBeep(MB_OK); }

Single WinToolkit::TextWidth(const String& text) {
  return static_cast<Single>(TextWidthIn(BaseFont(1.0), Wide(text))) * kTwipsPerPixel;
}

Single WinToolkit::ScreenWidth() { return TwipsOf(GetSystemMetrics(SM_CXSCREEN)); }

Single WinToolkit::ScreenHeight() { return TwipsOf(GetSystemMetrics(SM_CYSCREEN)); }

std::shared_ptr<Platform> MakeWin32Platform() { return std::make_shared<Platform>(std::make_shared<WinToolkit>()); }

}  // namespace Tarnwise
