// The four scores on their controls.
#include "TradeOffs.h"
#include "support/PartForm.h"

namespace Tarnwise {
namespace {

struct ScoresForm : PartForm {
  explicit ScoresForm(std::shared_ptr<Platform> screen) : PartForm(std::move(screen)) {
    Entry.Entered = [this] { ++Entered; };
  }

  ChartScale Scale{0.0F, 150.0F, 0.0F, 50.0F, 25.0F, 50.0F / 6.0F};
  ScoreControls Controls{*this, picStage};
  ScoreEntry Entry{Controls, Scale};
  int Entered = 0;
};

struct FourScores : PartOnScreen<ScoresForm> {
  FourScores() {
    ABPoint p;
    p.AX = 60.5F;
    p.AY = 40.0F;
    p.BX = 20.0F;
    p.BY = 48.25F;
    Form->Entry.Show(p);
  }

  void Enter(TextBox& box, const String& text) {
    Input::MoveFocus(box);
    box.SetText(text);
    TakeNotes();
    TypeKey(*Form, 13, 13, 0);
  }
};

TEST(ScoreEntry, ShowsAPairAndItsDifferences) {
  FourScores o;
  EXPECT_EQ(Shown(o.Form->Controls), "60.5 40 | 20 48.25 | 40.5 -8.25");
  EXPECT_EQ(o.Form->Entered, 0);
}

TEST(ScoreEntry, NamesTheCriteriaWithoutBlanksAroundThem) {
  FourScores o;
  o.Form->Entry.NameCriteria(" Beds ", "Staff  ");
  EXPECT_EQ(o.Form->Controls.labPCCriterion1.Caption(), "Beds");
  EXPECT_EQ(o.Form->Controls.labPCCriterion2.Caption(), "Staff");
}

TEST(ScoreEntry, ReturnTellsOfScoresThatPass) {
  FourScores o;
  o.Enter(o.Form->Controls.txtTradeOffBFirstScore, "150");
  EXPECT_EQ(o.Form->Entered, 1);
  ABPoint p;
  p.AOrientation = 2;
  o.Form->Entry.TakeScores(p);
  EXPECT_EQ(Scores(p), "60.5 40 upward | 150 48.25");
}

TEST(ScoreEntry, AScoreOutsideOfItsAxisIsKeptWithAMessage) {
  FourScores o;
  o.Enter(o.Form->Controls.txtTradeOffBSecondScore, "50.25");
  EXPECT_EQ(Only(o.TakeNotes(), "msgbox"),
            Lines{"msgbox The data you entered should be in the relevant score range [0, 50]!"});
  EXPECT_EQ(o.Form->Entered, 0);
  EXPECT_EQ(o.Form->Entry.mScoresBad, -1);
  EXPECT_EQ(o.Form->ActiveControl, &o.Form->Controls.txtTradeOffBSecondScore);
}

TEST(ScoreEntry, AChangerStepsByAHundredthOfItsAxisAndTellsNobodyYet) {
  FourScores o;
  Input::PressToolButton(o.Form->Controls.tbScoreChanger[0], "Up");
  Input::PressToolButton(o.Form->Controls.tbScoreChanger[3], "Down");
  EXPECT_EQ(Shown(o.Form->Controls), "62 40 | 20 47.75 | 42 -7.75");
  EXPECT_EQ(o.Form->Entry.mScoresDirty, -1);
  EXPECT_EQ(o.Form->Entered, 0);
}

}  // namespace
}  // namespace Tarnwise
