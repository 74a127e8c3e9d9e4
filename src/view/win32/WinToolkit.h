// The forms on the screen by Windows' own controls.
#pragma once

#include "view/Platform.h"
#include "view/win32/WinCarried.h"

#include "view/win32/WinApi.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace Tarnwise {

class WinForm;
class OthersDisabled;

// Pixels to the inch, by the window's monitor where Windows can tell.
UINT DpiOf(HWND window);
void AdjustForDpi(RECT& client, DWORD style, DWORD exStyle, UINT dpi);

class WinToolkit : public Toolkit {
 public:
  WinToolkit();
  ~WinToolkit() override;

  bool AutoAnswer = false;  // for a script player: boxes are answered as soon as they are up, help is not opened

  void Show(Form& form, Showing how) override;
  void Hide(Form& form) override;
  void Release(Form& form) override;
  void ControlUnloaded(Control& control) override;
  void Sync(Form& form) override;
  void RunModal(Form& form) override;
  void MessageBox(Form* over, const String& text, int style, const String& title) override;
  void Beep() override;
  void SetPointer(int pointer) override;
  void Help(Form& form, const String& path, int command, int context) override;
  WindowHandle WindowOf(const Form& form) override;
  void Focus(Control& control) override;
  void AnnounceChange(Label& label) override;
  Single TextWidth(const String& text) override;
  Single ScreenWidth() override;
  Single ScreenHeight() override;

  WinForm* FormOf(const Form& form) const;  // null while it has no window
  WinCarried& Seen() { return seen_; }
  int Pointer() const { return pointer_; }
  HICON WindowIcon(int side);
  static void TakeMessages();  // what is waiting, without waiting for more

 private:
  std::map<const Form*, std::shared_ptr<WinForm>> forms_;
  std::map<int, HICON> icons_;
  std::vector<OthersDisabled*> modal_;  // of the modal calls that run, the innermost last
  WinCarried seen_;
  int pointer_ = 0;
};

}  // namespace Tarnwise
