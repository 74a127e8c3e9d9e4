// The results page by itself.
#include "judging/ResultsPage.h"
#include "support/PartForm.h"
#include "support/Ranked.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct PagesForm : PartForm {
  explicit PagesForm(std::shared_ptr<Platform> screen) : PartForm(std::move(screen)) {
    picTabs.Load(1);
    cmdNext.Enabled = true;
    cmdFinish.Enabled = false;
  }

  // "Judge | Back Finish | page 0": the title, which buttons are on, and the page in front.
  String Shown() {
    String text = Caption() + " |";
    for (const auto& [button, name] : {std::pair(&cmdBack, " Back"), {&cmdNext, " Next"}, {&cmdFinish, " Finish"}}) {
      if (button->Enabled) text += name;
    }
    return text + " | page " + (picTabs[1].Order() > picTabs[0].Order() ? "1" : "0");
  }

  ControlArray<PictureBox> picTabs{*this, &picStage, "picTabs", [](PictureBox&) {}};
  ResultsControls Controls{*this, picStage};
  ResultsPage Pages{*this, picTabs, Controls, {"Judge", "How good is it?", "Drag it."}};
};

using TwoPages = PartOnScreen<PagesForm>;

TEST(ResultsPagePart, NamesTheJudgmentsAsTheStepOpens) {
  TwoPages o;
  o.Form->Pages.NameJudgments();
  EXPECT_EQ(o.Form->Caption(), "Judge");
  EXPECT_EQ(o.Form->lblHeading.Caption(), "How good is it?");
  EXPECT_EQ(o.Form->lblHint.Caption(), "Drag it.");
}

TEST(ResultsPagePart, ShowsTheResultsInFrontWithFinishAndWithoutNext) {
  TwoPages o;
  o.Form->Pages.Show(RankedData({B(1), B(2), C(1)}, 1, 2));
  EXPECT_EQ(o.Form->Shown(), "Tarnwise: Results of the value judgments | Back Finish | page 1");
  EXPECT_EQ(o.Form->Controls.gridBRJ.Rows(), 3);
  EXPECT_EQ(o.Form->Controls.gridCRJ.Rows(), 2);
}

TEST(ResultsPagePart, LeavesForTheJudgmentsWithNextAndWithoutFinish) {
  TwoPages o;
  o.Form->Pages.Show(RankedData({B(1), B(2), C(1)}, 1, 2));
  o.Form->Pages.Leave();
  EXPECT_EQ(o.Form->Shown(), "Judge | Back Next | page 0");
}

}  // namespace
}  // namespace Tarnwise
