// The toolkit without a screen: scripts and tests drive the control tree itself.
#pragma once

#include "view/Platform.h"

#include <functional>

namespace Tarnwise {

class HeadlessToolkit : public Toolkit {
 public:
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

  std::function<void(const Form&)> Released;  // who still shows the form lets it go
};

// A key typed at the control with the focus of a form: events, then what the key itself does.
// `code` is the virtual key, `character` what it types (0: nothing), `shift` as of Shift.
void TypeKey(Form& form, int code, int character, int shift);

}  // namespace Tarnwise
