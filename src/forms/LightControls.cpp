#include "forms/LightControls.h"

namespace Tarnwise {

LightControls::LightControls(Form& form, Control& stage)
    : picJudgmentState(form, &stage, "picJudgmentState"),
      shpAlarm(form, &picJudgmentState, "shpAlarm", [](Shape& /*lamp*/) {}),
      lblAlarm(form, &picJudgmentState, "lblAlarm", [](Label& label) { label.Announces = Announce::Lit; }),
      Timer1(form, &form, "Timer1") {
  const char* const captions[] = {"Consistent", "Invalid", "Inconsistent"};
  for (int i = 0; i < 3; ++i) {
    if (i > 0) {
      shpAlarm.Load(i);
      lblAlarm.Load(i);
    }
    lblAlarm[i].Caption = captions[i];
  }
}

void PlaceLights(LightControls& lights, Single left, Single top, Single width) {
  Place(lights.picJudgmentState, left, top, width, 480.0F);
  const Single step = width / 3.0F;
  for (int i = 0; i < 3; ++i) {
    const Single at = static_cast<Single>(i) * step;
    Place(lights.shpAlarm[i], at + 30.0F, 90.0F, 300.0F, 300.0F);
    Place(lights.lblAlarm[i], at + 420.0F, 90.0F, 1275.0F, 300.0F);
    lights.lblAlarm[i].Alignment = Align::Centre;
  }
}

}  // namespace Tarnwise
