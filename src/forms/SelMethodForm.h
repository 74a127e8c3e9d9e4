// Controls of the first step: the choice of an approach.
#pragma once

#include "forms/WizardForm.h"

namespace Tarnwise {

struct SelMethodForm : WizardForm {
  explicit SelMethodForm(std::shared_ptr<Platform> platform);

  ListBox lstMethods{*this, this, "lstMethods"};
  Label lblDescription{*this, this, "lblDescription"};
  PictureBox picPicture{*this, this, "picPicture"};
  ControlArray<Image> imgPicture;  // the stored images: 0 direct, 1 trade-offs
  CheckBox chkIncnsistCtrl{*this, this, "chkIncnsistCtrl"};
};

}  // namespace Tarnwise
