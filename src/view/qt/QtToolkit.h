// The forms on a real screen, by Qt Widgets. Needs a QApplication.
#pragma once

#include "view/Platform.h"
#include "view/qt/QtCarried.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QEventLoop;
class QMessageBox;

namespace Tarnwise {

class QtForm;

class QtToolkit : public Toolkit {
 public:
  QtToolkit();
  ~QtToolkit() override;

  std::function<void(QMessageBox&)> AutoAnswer;  // for a script player: answers a message box that has come up

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

  QtForm* FormOf(const Form& form) const;  // null while it has no window
  QtCarried& Seen() { return seen_; }

 private:
  struct ModalCall {
    const Form* On = nullptr;
    QEventLoop* Loop = nullptr;
    bool Woken = false;
  };

  QtForm& Window(Form& form);
  void Wake(const Form& form);

  std::map<const Form*, std::unique_ptr<QtForm>> forms_;
  std::vector<ModalCall*> calls_;
  QtCarried seen_;
  bool waiting_ = false;  // the pointer says so
};

}  // namespace Tarnwise
