// Message boxes and help.
#include "view/win32/WinForm.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"

namespace Tarnwise {

namespace {

BOOL CALLBACK PressOk(HWND window, LPARAM /*unused*/) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  if (std::wstring(name) == L"#32770" && IsWindowVisible(window) != 0) {
    PostMessageW(window, WM_COMMAND, IDOK, 0);
    PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
  }
  return TRUE;
}

void CALLBACK AnswerBoxes(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
  EnumThreadWindows(GetCurrentThreadId(), PressOk, 0);
}

// Answers the box that this thread is about to open.
class Answers {
 public:
  explicit Answers(bool on) : timer_(on ? SetTimer(nullptr, 0, USER_TIMER_MINIMUM, AnswerBoxes) : 0) {}
  Answers(const Answers&) = delete;
  Answers& operator=(const Answers&) = delete;
  ~Answers() {
    if (timer_ != 0) KillTimer(nullptr, timer_);
  }

 private:
  UINT_PTR timer_;
};

}  // namespace

void WinToolkit::Ask(Mirror* over, const String& text, int style, const String& title) {
  const HWND owner = over != nullptr ? static_cast<WinForm*>(over)->Window() : GetActiveWindow();
  if (GetCapture() != nullptr) ReleaseCapture();
  const Answers answers(AutoAnswer);
  const OwnLook look;
  const UINT modality = owner == nullptr ? MB_TASKMODAL | MB_SETFOREGROUND : 0U;
  MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(), MB_OK | static_cast<UINT>(style) | modality);
}

void WinToolkit::OpenHelp(Form& form, const String& path, int command, int context) {
  const std::wstring wide = Wide(path);
  const int length = WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, nullptr, 0, nullptr, nullptr);
  String ansi(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, ansi.data(), length, nullptr, nullptr);
  WinHelpA(reinterpret_cast<HWND>(WindowOf(form)), ansi.c_str(), static_cast<UINT>(command),
           static_cast<ULONG_PTR>(context));
}

}  // namespace Tarnwise
