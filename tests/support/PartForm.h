// A part of a form on its own controls, without the form that it is a part of.
#pragma once

#include "forms/WizardForm.h"
#include "support/TestHost.h"

namespace Tarnwise {

// What the form of a part's test begins with: the row of buttons, and a stage to put controls on.
struct PartForm : WizardForm {
  explicit PartForm(std::shared_ptr<Platform> screen) : WizardForm(std::move(screen), "frmPart", "cmdHelp") {
    Place(picStage, 0.0F, 0.0F, kFormWidth, kFootTop);
  }

  PictureBox picStage{*this, this, "picStage"};
};

// Such a form, made and shown.
template <class Parts>
struct PartOnScreen : TestScreen {
  template <class... Arguments>
  explicit PartOnScreen(const Arguments&... arguments) : Form(std::make_shared<Parts>(Screen, arguments...)) {
    Screen->Created(*Form);
    Screen->Show(*Form);
    TakeNotes();
  }
  ~PartOnScreen() { Screen->Release(*Form); }

  void DragOver(Control& source, Control& target, Single x, Single y) {
    Screen->Drag.Begin(source);
    Screen->Drag.Over(target, x, y);
  }

  std::shared_ptr<Parts> Form;
};

}  // namespace Tarnwise
