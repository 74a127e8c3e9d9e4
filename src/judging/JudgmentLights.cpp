#include "judging/JudgmentLights.h"

namespace Tarnwise {

namespace {

constexpr Colour kOut = 0x808080;
constexpr Colour kEntered[] = {0x00FF00, 0x000808, 0x004080};  // on coming into force
constexpr Colour kBlink[] = {0x00FF00, 0x00FFFF, 0x0080FF};    // alternates with white

int LightOf(JudgmentState state) { return state == kConsistent ? 0 : state == kInvalid ? 1 : 2; }

void Light(LightControls& lights, int inForce) {
  for (int i = 0; i < 3; ++i) {
    lights.shpAlarm[i].FillColor = i == inForce ? kEntered[i] : kOut;
    lights.lblAlarm[i].ForeColor = i == inForce ? kHighlightText : kBlack;
  }
}

}  // namespace

void ShowVerdict(LightControls& lights, CommandButton& cmdEnter, JudgmentState state) {
  cmdEnter.Enabled = state == kConsistent;
  lights.Timer1.Interval = state == kConsistent ? 0 : state == kInvalid ? 300 : 100;
  Light(lights, LightOf(state));
}

void ShowAtRest(LightControls& lights, CommandButton& cmdEnter) { ShowVerdict(lights, cmdEnter, kConsistent); }

void ShowLampsAtRest(LightControls& lights) {
  lights.Timer1.Interval = 0;
  for (int i = 0; i < 3; ++i) {
    lights.shpAlarm[i].FillColor = kEntered[i];
    lights.lblAlarm[i].ForeColor = i == 0 ? kHighlightText : kBlack;
  }
}

void BlinkJudgmentLight(LightControls& lights, JudgmentState state) {
  if (state == kNoneDecided) return;
  const int inForce = LightOf(state);
  for (int i = 0; i < 3; ++i) {
    if (i != inForce) lights.shpAlarm[i].FillColor = kOut;
  }
  if (state == kConsistent) return;
  Shape& lamp = lights.shpAlarm[inForce];
  lamp.FillColor = lamp.FillColor == kBlink[inForce] ? kWhite : kBlink[inForce];
}

void ShowLightsFor(LightControls& lights, bool consistencyControl) {
  for (const int i : {0, 2}) {
    lights.shpAlarm[i].Visible = consistencyControl;
    lights.lblAlarm[i].Visible = consistencyControl;
  }
}

}  // namespace Tarnwise
