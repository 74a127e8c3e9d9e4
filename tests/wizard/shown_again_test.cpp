// The first step shown again while a later one is open.
#include "Navigating.h"
#include "view/Reach.h"

namespace Tarnwise {
namespace {

// A host that shows the first step again while a later one is open.
struct ShownAgain : Navigation {
  // The button that nobody can see to press is pressed all the same.
  void PressNextOfFirst() {
    Control& next = Named("frmTRNSelMethod.cmdNext");
    EXPECT_EQ(Refusal(next), "blocked by a modal form");
    if (Input::Press(next)) Input::Activate(next);
  }
};

TEST(FirstStepShownAgain, BecomesVisibleAndStaysBlockedByEachLaterStep) {
  for (const bool atLast : {false, true}) {
    SCOPED_TRACE(atLast);
    ShownAgain n;
    bool asked = false;
    Steps steps = atLast ? n.ToJudgments() : n.ToOrdering();
    steps.push_back([&] {
      const String later = n.Active();
      const Lines forms = n.Forms();
      n.TakeNotes();
      n.Wizard->ShowTarnwise();
      EXPECT_EQ(n.TakeNotes(), Lines{"show frmTRNSelMethod"});
      EXPECT_EQ(n.Active(), later);
      n.PressNextOfFirst();
      Input::CloseForm(n.Named("frmTRNSelMethod.cmdNext").Owner);
      EXPECT_EQ(n.Notes, Lines{});
      EXPECT_EQ(n.Forms(), forms);
      asked = true;
    });
    n.Run(steps);
    EXPECT_TRUE(asked);
  }
}

TEST(FirstStepShownAgain, StaysBlockedWhileOneLaterStepMakesWayForTheNext) {
  ShownAgain n;
  int prompts = 0;
  n.InEvent = [&](const String& event) {
    if (event != "SendMasseges" || n.Forms().size() < 3) return;
    ++prompts;  // the ordering step is hidden, the direct one not shown yet
    n.PressNextOfFirst();
  };
  Steps steps = n.ToReferences();
  steps.push_back([&n] { n.Wizard->ShowTarnwise(); });
  n.Run(Wizarding::Joined(steps, {n.Clicks("cmdNext"), [&n] { EXPECT_EQ(n.Active(), "frmDirectB"); }}));
  EXPECT_EQ(prompts, 1);
  EXPECT_EQ(Only(n.Notes, "show frmIniImpOrder").size(), 1U);
}

TEST(FirstStepShownAgain, TakesTheInputWhenBackLeadsToIt) {
  ShownAgain n;
  Steps steps = n.ToOrdering();
  steps.push_back([&n] { n.Wizard->ShowTarnwise(); });
  const Lines moves = n.MovesOf(steps, {n.Clicks("cmdBack")});
  EXPECT_EQ(moves, Lines({"hide frmIniImpOrder", "release frmIniImpOrder"})) << "it is visible already";
  n.Run({[&n] { EXPECT_EQ(n.Active(), "frmTRNSelMethod"); }, n.Clicks("cmdNext")});
  EXPECT_EQ(n.Active(), "frmIniImpOrder");
}

}  // namespace
}  // namespace Tarnwise
