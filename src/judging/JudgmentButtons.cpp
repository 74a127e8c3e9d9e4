#include "judging/JudgmentButtons.h"

#include "judging/Intervals.h"

namespace Tarnwise {

void AfterCommit(const JudgmentButtons& buttons, const WizardData& data) {
  buttons.cmdEnter.Enabled = false;
  buttons.cmdReStart.Enabled = true;
  if (!AllJudged(data)) return;
  buttons.cmdFinish.Enabled = true;
  buttons.cmdNext.Enabled = true;
}

void AfterRestart(const JudgmentButtons& buttons) {
  buttons.cmdEnter.Enabled = true;
  buttons.cmdReStart.Enabled = false;
  buttons.cmdNext.Enabled = false;
}

}  // namespace Tarnwise
