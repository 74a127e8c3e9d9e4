// The forms on a real screen, by Qt Widgets. Needs a QApplication.
#pragma once

#include "view/WindowedToolkit.h"
#include "view/qt/QtCarried.h"

#include <QIcon>
#include <memory>
#include <vector>

class QEventLoop;

namespace Tarnwise {

class QtForm;

class QtToolkit : public WindowedToolkit {
 public:
  QtToolkit();
  ~QtToolkit() override;

  void Hide(Form& form) override;
  void Beep() override;
  void SetPointer(int pointer) override;
  WindowHandle WindowOf(const Form& form) override;
  Single TextWidth(const String& text) override;
  Single ScreenWidth() override;
  Single ScreenHeight() override;
  void TakeEvents() override;

  QtForm* FormOf(const Form& form) const;  // null while it has no window
  QtCarried& Seen() { return seen_; }
  const QIcon& WindowIcon();  // has a ground of its own

 protected:
  std::shared_ptr<Mirror> MakeMirror(Form& form) override;
  void Bring(Mirror& shown, Showing how, Mirror* front) override;
  bool WaitFor(const Form& form) override;
  void Wake(const Form& form) override;
  void Ask(Mirror* over, const String& text, int style, const String& title) override;
  void OpenHelp(Form& form, const String& path, int command, int context) override;

 private:
  struct ModalCall {
    const Form* On = nullptr;
    QEventLoop* Loop = nullptr;
    bool Woken = false;
  };

  std::vector<ModalCall*> calls_;
  QtCarried seen_;
  QIcon icon_;
  bool waiting_ = false;  // the pointer says so
};

}  // namespace Tarnwise
