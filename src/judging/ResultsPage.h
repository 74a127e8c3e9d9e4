// The two pages of a judgment step: the judgments, and the results that Next shows.
#pragma once

#include "forms/ResultsControls.h"
#include "model/mdTRNMain.h"

namespace Tarnwise {

// What stands over the judgments.
struct JudgmentWords {
  const char* Title;
  const char* Heading;
  const char* Hint;
};

struct ResultsPage {
  // Pages: 0 the judgments, 1 the results. All of it outlives this.
  ResultsPage(WizardForm& step, ControlArray<PictureBox>& pages, ResultsControls& controls, const JudgmentWords& words);

  void NameJudgments();               // titles alone, as the step opens
  void Show(const WizardData& data);  // Next: the grids are filled, then their page comes to the front
  void Leave();                       // Back

 private:
  WizardForm& step_;
  ControlArray<PictureBox>& pages_;
  ResultsControls& controls_;
  const JudgmentWords words_;
};

}  // namespace Tarnwise
