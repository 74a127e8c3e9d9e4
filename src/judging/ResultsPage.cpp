#include "judging/ResultsPage.h"

#include "judging/ResultsGrids.h"

namespace Tarnwise {

ResultsPage::ResultsPage(WizardForm& step, ControlArray<PictureBox>& pages, ResultsControls& controls,
                         const JudgmentWords& words)
    : step_(step), pages_(pages), controls_(controls), words_(words) {}

void ResultsPage::NameJudgments() {
  step_.Caption = words_.Title;
  step_.SetHeading(words_.Heading, words_.Hint);
}

void ResultsPage::Show(const WizardData& data) {
  step_.Caption = "Tarnwise: Results of the value judgments";
  step_.SetHeading("These are your judgments", "Go back to change one, or finish to hand them over.");
  step_.cmdBack.Enabled = true;
  step_.cmdFinish.Enabled = true;
  step_.cmdNext.Enabled = false;
  ShowResults(controls_.gridBRJ, controls_.gridCRJ, data);
  pages_[1].ZOrder();
}

void ResultsPage::Leave() {
  NameJudgments();
  step_.cmdFinish.Enabled = false;
  step_.cmdNext.Enabled = true;
  pages_[0].ZOrder();
}

}  // namespace Tarnwise
