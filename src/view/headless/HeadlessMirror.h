// A form on no screen: what a script's user touches is where the script says.
#pragma once

#include "view/Mirror.h"

#include <memory>

namespace Tarnwise {

class HeadlessMirror : public Mirror {
 public:
  explicit HeadlessMirror(Form& form, int row = -1);
  ~HeadlessMirror() override;

  bool HasWindow(const Control& /*control*/) const override { return true; }
  void FocusTree() override {}
  Touch TouchOf(const Control& /*control*/, FormPoint /*at*/) const override { return {true, row_}; }
  bool IsFar(FormPoint /*from*/, FormPoint /*to*/) const override { return true; }
  Entered EnteredIn(const TextBox& box) const override;
  void Announce(const Label& /*label*/, bool /*renamed*/) override {}
  void ShowCarried(const Carried& /*carried*/) override {}
  void HideCarried() override {}

  // The left button on a control's middle: down, and up again.
  bool Press(Control& control);
  void LetGo(Control& control);
  void LetFormGo();  // it has been released

 protected:
  bool Create(Control& /*control*/) override { return true; }
  void PutAt(Control& /*control*/, const PixelRect& /*place*/) override {}
  void Apply(Control& /*control*/) override {}
  void ShowTip(const Control& /*control*/, const String& /*tip*/) override {}
  int TextWidth(const String& /*text*/, const TypeFace& /*face*/) const override { return 0; }
  void ApplyForm() override {}
  void Destroy(const Control& /*control*/) override {}
  void DestroyAll() override {}
  void Repaint(const Control& /*container*/, const PixelRect& /*area*/) override {}
  void ToFront(const Control& /*control*/) override {}
  void BorderToFront(const Control& /*container*/) override {}
  void RunTimer(Timer& /*timer*/, int /*interval*/) override {}

 private:
  std::shared_ptr<Form> held_;
  int row_;
};

}  // namespace Tarnwise
