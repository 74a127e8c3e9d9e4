// The forms on a real screen, by Qt Widgets. Needs a QApplication.
#pragma once

#include "view/Platform.h"
#include "view/qt/QtDrag.h"

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

  // For a script player: it pushes what comes instead of a person.
  std::function<bool()> Pump;                    // the next thing while a modal form is up, false when nothing comes
  std::function<void(QMessageBox&)> AutoAnswer;  // answers a message box that has come up
  bool RealTimers = true;                        // false: a form's timers wait for the script

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
  QtDrag& Drag() { return drag_; }

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
  QtDrag drag_;
  bool waiting_ = false;  // the pointer says so
};

}  // namespace Tarnwise
