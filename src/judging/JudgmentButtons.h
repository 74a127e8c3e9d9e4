// The buttons of a judgment step that follow the judgments.
#pragma once

#include "forms/WizardForm.h"
#include "model/mdTRNMain.h"

namespace Tarnwise {

struct JudgmentButtons {
  CommandButton& cmdEnter;
  CommandButton& cmdReStart;
  CommandButton& cmdNext;
  CommandButton& cmdFinish;
};

// A judgment has been entered: it can't be entered again as it stands, and where it was the last one the step can end.
void AfterCommit(const JudgmentButtons& buttons, const WizardData& data);

// All judgments are at their defaults again. Finish is left as it was.
void AfterRestart(const JudgmentButtons& buttons);

}  // namespace Tarnwise
