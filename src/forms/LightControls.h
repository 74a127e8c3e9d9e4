// The three signal lights of a judgment step: 0 Consistent, 1 Invalid, 2 Inconsistent.
#pragma once

#include "forms/WizardForm.h"

namespace Tarnwise {

struct LightControls {
  LightControls(Form& form, Control& stage);

  PictureBox picJudgmentState;
  ControlArray<Shape> shpAlarm;
  ControlArray<Label> lblAlarm;
  Timer Timer1;  // blinks the light in force
};

void PlaceLights(LightControls& lights, Single left, Single top, Single width);

}  // namespace Tarnwise
