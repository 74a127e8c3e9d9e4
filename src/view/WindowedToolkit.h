// What toolkits with windows have in common: a mirror for each form, made when it is first shown, modal calls, and what
// a script's message boxes and help become.
#pragma once

#include "view/Platform.h"

#include <map>
#include <memory>

namespace Tarnwise {

class WindowedToolkit : public Toolkit {
 public:
  ~WindowedToolkit() override;

  // For a script player: message boxes are answered as soon as they are up, help is not opened.
  bool AutoAnswer = false;

  void Show(Form& form, Showing how) override;
  void Release(Form& form) override;
  void ControlUnloaded(Control& control) override;
  void Sync(Form& form) override;
  void RunModal(Form& form) override;
  void MessageBox(Form* over, const String& text, int style, const String& title) override;
  void Help(Form& form, const String& path, int command, int context) override;
  void Focus(Control& control) override;
  void AnnounceChange(Label& label) override;

  Mirror* MirrorOf(const Form& form) const;  // null while it has no window
  virtual void TakeEvents() = 0;             // what is waiting, without waiting for more

 protected:
  virtual std::shared_ptr<Mirror> MakeMirror(Form& form) = 0;
  // `front`: where the form is blocked, the one that stays in front of it and takes the keyboard; it may have no
  // window.
  virtual void Bring(Mirror& shown, Showing how, Mirror* front) = 0;
  // Lets events in until the form may have been hidden or released; false: the program ends.
  virtual bool WaitFor(const Form& form) = 0;
  virtual void Wake(const Form& /*form*/) {}  // what waits for it looks again
  // `over`: the form that the box stands in front of; null: none.
  virtual void Ask(Mirror* over, const String& text, int style, const String& title) = 0;
  virtual void OpenHelp(Form& form, const String& path, int command, int context) = 0;

 private:
  std::map<const Form*, std::shared_ptr<Mirror>> mirrors_;
};

}  // namespace Tarnwise
