// The forms on the screen by Windows' own controls.
#pragma once

#include "view/WindowedToolkit.h"
#include "view/win32/WinCarried.h"

#include "view/win32/WinApi.h"

#include <map>
#include <memory>
#include <vector>

namespace Tarnwise {

class WinForm;
class OthersDisabled;

// Pixels to the inch, by the window's monitor where Windows can tell.
UINT DpiOf(HWND window);
void AdjustForDpi(RECT& client, DWORD style, DWORD exStyle, UINT dpi);

class WinToolkit : public WindowedToolkit {
 public:
  WinToolkit();
  ~WinToolkit() override;

  void Hide(Form& form) override;
  void RunModal(Form& form) override;
  void Beep() override;
  void SetPointer(int pointer) override;
  WindowHandle WindowOf(const Form& form) override;
  Single TextWidth(const String& text) override;
  Single ScreenWidth() override;
  Single ScreenHeight() override;
  void TakeEvents() override;

  WinForm* FormOf(const Form& form) const;  // null while it has no window
  WinCarried& Seen() { return seen_; }
  int Pointer() const { return pointer_; }
  HICON WindowIcon(int side);

 protected:
  std::shared_ptr<Mirror> MakeMirror(Form& form) override;
  void Bring(Mirror& shown, Showing how, Mirror* front) override;
  bool WaitFor(const Form& form) override;
  void Ask(Mirror* over, const String& text, int style, const String& title) override;
  void OpenHelp(Form& form, const String& path, int command, int context) override;

 private:
  std::map<int, HICON> icons_;
  std::vector<OthersDisabled*> modal_;  // of the modal calls that run, the innermost last
  WinCarried seen_;
  int pointer_ = 0;
};

}  // namespace Tarnwise
