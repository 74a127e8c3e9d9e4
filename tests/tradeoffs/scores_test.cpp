#include "TradeOffs.h"

#include "runtime/Numbers.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

struct ScoreStep : TradeOffStep {
  explicit ScoreStep(const WizardData& model = Ward()) : TradeOffStep(model) {
    MoveA(60, 40);
    MoveB(40, 80);
    TakeNotes();
  }

  TextBox& Box(int number) {
    ScoreControls& s = Form->Scores;
    TextBox* const boxes[] = {&s.txtTradeOffAFirstScore, &s.txtTradeOffASecondScore, &s.txtTradeOffBFirstScore,
                              &s.txtTradeOffBSecondScore};
    return *boxes[number - 1];
  }

  String Text(int number) { return Box(number).Text; }
  Lines Messages() { return Only(TakeNotes(), "msgbox"); }
};

String RangeMessage(const String& range) {
  return "msgbox The data you entered should be in the relevant score range " + range + "!";
}

TEST(ScoreBoxes, ShowTheRecordAtTwoDecimalsWithoutATrailingPoint) {
  WizardData data = Ward();
  data.SavedJudgments.RJType = kTradeOffsType;
  data.ABPoints2[0] = PointsAt(12.0F, 33.3333F, 56.7F, 0.004F);
  TradeOffStep step(data);
  const ScoreControls& s = step.Form->Scores;
  EXPECT_EQ(Shown(s), "12 33.33 | 56.7 0 | -44.7 33.33");
  EXPECT_EQ(s.labPCCriterion1.Caption(), "Att 0");
  EXPECT_EQ(s.labPCCriterion2.Caption(), "Att 1");
}

TEST(ScoreBoxes, AreNamedByTheirNumbers) {
  ScoreStep step;
  const ScoreControls& s = step.Form->Scores;
  String names;
  for (int i = 0; i < 4; ++i) names += s.lblScore[i].Caption() + " ";
  EXPECT_EQ(names, "(&1): (&2): (&3): (&4): ");
}

TEST(ScoreDifferences, FollowEachChangeOfABox) {
  ScoreStep step;
  EXPECT_EQ(Shown(step.Form->Scores), "60 40 | 40 80 | 20 -40");
  step.Fill(step.Box(1), "40.25");
  EXPECT_EQ(Shown(step.Form->Scores), "40.25 40 | 40 80 | 0.25 -40") << "with its leading zero";
  step.Fill(step.Box(4), "");
  EXPECT_EQ(Shown(step.Form->Scores), "40.25 40 | 40  | 0.25 40");
}

TEST(ScoreDifferences, AreRoundedToFourDecimals) {
  ScoreStep step;
  step.Fill(step.Box(1), "40.30005");
  step.Fill(step.Box(3), "0.1");
  // 40.20005 is no exact tie as a Double; the product with 10000 decides.
  EXPECT_EQ(step.Form->Scores.labTradeOffDiff1.Caption(), NumberText(RoundToFourDecimals(40.30005 - 0.1)));
  step.Fill(step.Box(1), "0.10001");
  EXPECT_EQ(step.Form->Scores.labTradeOffDiff1.Caption(), "0");
}

TEST(ScoreKeys, OnlyDigitsAndThePointAreTyped) {
  ScoreStep step;
  step.Fill(step.Box(1), "-1a2 ,+3e.5");
  EXPECT_EQ(step.Text(1), "123.5");
}

TEST(ScoreKeys, CharactersBelowTheBlankPass) {
  ScoreStep step;
  step.Fill(step.Box(1), "123");
  step.Key(8, 8);
  EXPECT_EQ(step.Text(1), "12");
}

TEST(ScoreKeys, PasteKeysAreDropped) {
  ScoreStep step;
  TextBox& box = step.Box(1);
  for (const int shift : {1, 3, 5, 7}) {
    KeyEvent insert{45, shift};
    box.KeyDown(insert);
    EXPECT_EQ(insert.Code, 0) << shift << ", whatever else is held";
  }
  KeyEvent paste{22, 2};
  box.KeyPress(paste);
  EXPECT_EQ(paste.Code, 0);
}

TEST(ScoreKeys, InsertAloneAndOtherShiftedKeysPass) {
  ScoreStep step;
  TextBox& box = step.Box(1);
  KeyEvent insert{45, 0};
  box.KeyDown(insert);
  EXPECT_EQ(insert.Code, 45);
  KeyEvent home{36, 1};
  box.KeyDown(home);
  EXPECT_EQ(home.Code, 36);
}

TEST(ScoreKeys, ASecondPointIsAcceptedAndTheNextKeyRemovesIt) {
  ScoreStep step;
  step.Fill(step.Box(1), "1.2.");
  EXPECT_EQ(step.Text(1), "1.2.");
  step.Type("3");
  EXPECT_EQ(step.Text(1), "1.23");
}

TEST(ScoreKeys, AKeyThatIsDroppedRemovesTheSecondPointToo) {
  ScoreStep step;
  step.Fill(step.Box(1), "1.2.");
  step.Type("x");
  EXPECT_EQ(step.Text(1), "1.2");
}

TEST(ScoreKeys, TheCharacterRemovedIsTheOneBeforeTheCaret) {
  ScoreStep step;
  step.Fill(step.Box(1), "1.25.");
  step.Box(1).SelStart = 1;
  step.Box(1).SelLength = 0;
  step.Type("7");
  EXPECT_EQ(step.Text(1), "7.25.");
  step.Box(1).SelStart = 0;
  step.Type("4");
  EXPECT_EQ(step.Text(1), "47.25.") << "nothing stands before the caret";
}

TEST(ScoresDirty, IsSetByAnyKeyAndByAChangerAndClearedByShowingATarget) {
  ScoreStep step;
  EXPECT_EQ(step.Form->Entry.mScoresDirty, 0);
  step.Focus(step.Box(1));
  step.Key(37);
  EXPECT_EQ(step.Form->Entry.mScoresDirty, -1);
  step.Choose(2);
  EXPECT_EQ(step.Form->Entry.mScoresDirty, 0);
  step.Press(step.Form->Scores.tbScoreChanger[3], "Up");
  EXPECT_EQ(step.Form->Entry.mScoresDirty, -1);
}

TEST(ScoresDirty, IsNotClearedByACommitSoThatEveryLaterLeavingCommitsAgain) {
  ScoreStep step;
  step.Fill(step.Box(1), "50");
  step.Return();
  EXPECT_EQ(step.Form->Entry.mScoresDirty, -1);
  step.Form->Points.AX = 1.0F;
  step.Focus(step.Box(3));
  EXPECT_EQ(step.Points().AX, 50.0F);
}

TEST(ScoresDirty, LeavingABoxWithoutAnEditChecksAndCommitsNothing) {
  ScoreStep step;
  step.Form->Points.AX = 1.0F;
  step.Focus(step.Box(1));
  step.Focus(step.Box(3));
  Input::TabKey(*step.Form, false);
  EXPECT_EQ(step.Points().AX, 1.0F);
  EXPECT_TRUE(step.TakeNotes().empty());
}

TEST(ScoreCommit, OnReturnMovesTheMarksAndDecidesTheState) {
  ScoreStep step;
  step.Fill(step.Box(1), "80");
  step.Return();
  EXPECT_EQ(Scores(step.Points()), "80 40 | 40 80");
  EXPECT_EQ(step.Form->Chart.shpPCA.Left(), 80.0F * 42.0F - 75.0F);
  EXPECT_EQ(step.Ratio(), "1.00/1,    1.00/1");
}

TEST(ScoreCommit, TakesAllFourBoxesAsSingles) {
  ScoreStep step;
  step.Fill(step.Box(1), "70.1");
  step.Fill(step.Box(2), "20.2");
  step.Fill(step.Box(3), "30.3");
  step.Fill(step.Box(4), "60.4");
  step.Return();
  EXPECT_EQ(Scores(step.Points()), "70.1 20.2 | 30.3 60.4");
}

TEST(ScoreCommit, OnLeavingABoxAfterAnEdit) {
  ScoreStep step;
  step.Fill(step.Box(1), "80");
  EXPECT_EQ(step.Points().AX, 60.0F);
  step.Focus(step.Box(2));
  EXPECT_EQ(step.Points().AX, 80.0F);
}

TEST(ScoreCommit, KeepsTheOrientationThoughTheCornersCollapse) {
  ScoreStep step;
  step.Press(step.Form->Uncertainty.tbMovRight, "MovRight");
  EXPECT_GT(step.Points().AUX, 60.0F);
  step.Fill(step.Box(1), "50");
  step.Return();
  EXPECT_EQ(Scores(step.Points()), "50 40 across | 40 80");
  EXPECT_EQ(Shown(step.Form->Uncertainty), "left right | across") << "its tools stay";
}

TEST(ScoreCheck, RefusesWithABeepTheFocusTheWholeTextAndTheMessage) {
  ScoreStep step;
  step.Fill(step.Box(4), "500");
  step.TakeNotes();
  step.Return();
  EXPECT_EQ(step.TakeNotes()[0], "beep");
  EXPECT_EQ(step.Form->Entry.mScoresBad, -1);
  EXPECT_EQ(step.Form->ActiveControl, &step.Box(4));
  EXPECT_EQ(std::pair(step.Box(4).SelStart(), step.Box(4).SelLength()), std::pair(0, 3));
  EXPECT_EQ(Scores(step.Points()), "60 40 | 40 80") << "the fields are unchanged";
}

TEST(ScoreCheck, TakesTheFocusBackToTheBoxThatIsWrong) {
  ScoreStep step;
  step.Fill(step.Box(4), "500");
  step.Focus(step.Box(1));
  EXPECT_EQ(step.Messages(), Lines{RangeMessage("[0, 100]")});
  EXPECT_EQ(step.Form->ActiveControl, &step.Box(4));
}

TEST(ScoreCheck, NamesTheRangeAsPlainNumbers) {
  WizardData data = Ward();
  GiveScale(data, 0, 10.0, 20.5);
  GiveScale(data, 1, -3.25, 0.7);
  ScoreStep step(data);
  step.Fill(step.Box(1), "9.99");
  step.Return();
  EXPECT_EQ(step.Messages(), Lines{RangeMessage("[10, 20.5]")});
  step.Fill(step.Box(1), "15");
  step.TakeNotes();
  step.Fill(step.Box(2), "0.71");
  step.Return();
  EXPECT_EQ(step.Messages(), Lines{RangeMessage("[-3.25, 0.7]")});
}

TEST(ScoreCheck, AcceptsTheEndsOfTheScale) {
  WizardData data = Ward();
  GiveScale(data, 0, 0.1, 0.7);
  ScoreStep step(data);
  step.Fill(step.Box(1), "0.7");
  step.Fill(step.Box(3), "0.1");
  step.Return();
  EXPECT_TRUE(step.Messages().empty()) << "0.7 is compared as the Single that would be stored";
  EXPECT_EQ(step.Points().AX, 0.7F);
  EXPECT_EQ(step.Points().BX, 0.1F);
}

TEST(ScoreCheck, StopsAtTheFirstOfBoxesOneThreeTwoFour) {
  WizardData data = Ward();
  GiveScale(data, 1, 0.0, 50.0);
  TradeOffStep opened(data);
  ScoreControls& s = opened.Form->Scores;
  opened.Focus(s.txtTradeOffAFirstScore);
  const auto put = [&](const char* one, const char* two, const char* three, const char* four) {
    s.txtTradeOffAFirstScore.SetText(one);
    s.txtTradeOffASecondScore.SetText(two);
    s.txtTradeOffBFirstScore.SetText(three);
    s.txtTradeOffBSecondScore.SetText(four);
    opened.TakeNotes();
    opened.Return();
    EXPECT_EQ(Only(opened.TakeNotes(), "msgbox").size(), 1U);
    return opened.Form->ActiveControl->Name;
  };
  EXPECT_EQ(put("500", "500", "500", "500"), "txtTradeOffAFirstScore");
  EXPECT_EQ(put("50", "500", "500", "500"), "txtTradeOffBFirstScore");
  EXPECT_EQ(put("50", "500", "50", "500"), "txtTradeOffASecondScore");
  EXPECT_EQ(put("50", "40", "50", "500"), "txtTradeOffBSecondScore");
}

TEST(ScoreCheck, ReturnInOneBoxTellsOnceThatAnotherOneIsWrong) {
  ScoreStep step;
  step.Fill(step.Box(3), "0.5");
  step.Focus(step.Box(1));
  step.Press(step.Form->Scores.tbScoreChanger[2], "Down");
  step.TakeNotes();
  step.Return();
  EXPECT_EQ(step.Messages(), Lines{RangeMessage("[0, 100]")});
  EXPECT_EQ(step.Form->ActiveControl, &step.Box(3));
  EXPECT_EQ(step.Form->Entry.mScoresBad, -1);
}

TEST(ScoreCheck, AFailedSecondScoreIsForgottenWhenTheFirstOnesPassAgain) {
  ScoreStep step;
  step.Fill(step.Box(2), "500");
  step.Return();
  EXPECT_EQ(step.Form->Entry.mScoresBad, -1);
  step.Fill(step.Box(2), "30");
  step.Return();
  EXPECT_EQ(step.Form->Entry.mScoresBad, 0);
  EXPECT_EQ(step.Points().AY, 30.0F);
}

TEST(ScoreCheck, APointAloneIsZero) {
  ScoreStep step;
  step.Fill(step.Box(1), ".");
  step.Return();
  EXPECT_TRUE(step.Messages().empty());
  EXPECT_EQ(step.Points().AX, 0.0F);
  WizardData data = Ward();
  GiveScale(data, 0, 10.0, 20.0);
  ScoreStep above(data);
  above.Fill(above.Box(1), ".");
  above.Return();
  EXPECT_EQ(above.Messages(), Lines{RangeMessage("[10, 20]")});
}

TEST(ScoreCheck, ANumberThatNoSingleHoldsIsOutOfRangeLikeAnyOther) {
  ScoreStep step;
  step.Box(1).Text = "1" + String(39, '0');
  step.Focus(step.Box(1));
  step.TakeNotes();
  step.Return();
  EXPECT_EQ(step.Messages(), Lines{RangeMessage("[0, 100]")});
}

TEST(ScoreCheck, AMessageLetsNoClickThrough) {
  ScoreStep step;
  step.Fill(step.Box(1), "500");
  step.TakeNotes();
  ASSERT_TRUE(step.EnterAllowed());
  step.Click("cmdEnter");
  EXPECT_EQ(step.Messages().size(), 1U);
  EXPECT_FALSE(step.Data.WeightDone[0]);
}

TEST(ScoreChanger, StepsAHundredthOfTheScale) {
  WizardData data = Ward();
  GiveScale(data, 0, 0.0, 250.0);
  TradeOffStep step(data);
  step.MoveA(100, 40);
  step.MoveB(50, 80);
  ScoreControls& s = step.Form->Scores;
  step.Press(s.tbScoreChanger[0], "Up");
  step.Press(s.tbScoreChanger[1], "Up");
  EXPECT_EQ(Shown(s), "102.5 41 | 50 80 | 52.5 -39");
  step.Press(s.tbScoreChanger[2], "Down");
  step.Press(s.tbScoreChanger[3], "Down");
  EXPECT_EQ(Shown(s), "102.5 41 | 47.5 79 | 55 -38");
}

TEST(ScoreChanger, ChangesTheTextOnly) {
  ScoreStep step;
  const Single left = step.Form->Chart.shpPCA.Left;
  step.Press(step.Form->Scores.tbScoreChanger[0], "Up");
  EXPECT_EQ(Shown(step.Form->Scores), "61 40 | 40 80 | 21 -40");
  EXPECT_EQ(Scores(step.Points()), "60 40 | 40 80");
  EXPECT_EQ(step.Form->Chart.shpPCA.Left(), left);
  EXPECT_TRUE(step.TakeNotes().empty());
}

TEST(ScoreChanger, TakesEffectWhenABoxIsLeft) {
  ScoreStep step;
  step.Focus(step.Box(2));
  step.Press(step.Form->Scores.tbScoreChanger[0], "Up");
  step.Focus(step.Box(3));
  EXPECT_EQ(step.Points().AX, 61.0F);
}

TEST(ScoreChanger, BelowTheScaleShowsTheValueAndTheNextCommitTheMessage) {
  ScoreStep step;
  step.Fill(step.Box(1), "0.5");
  step.Return();
  step.Press(step.Form->Scores.tbScoreChanger[0], "Down");
  EXPECT_EQ(step.Text(1), "-0.5");
  EXPECT_TRUE(step.Messages().empty());
  step.Return();
  EXPECT_EQ(step.Messages(), Lines{RangeMessage("[0, 100]")});
  EXPECT_EQ(step.Points().AX, 0.5F);
}

TEST(ScoreChanger, WorksFromTheNumberInFrontOfTheText) {
  ScoreStep step;
  step.Box(1).Text = "";
  step.Press(step.Form->Scores.tbScoreChanger[0], "Up");
  EXPECT_EQ(step.Text(1), "1");
}

}  // namespace
}  // namespace Tarnwise
