#include "TradeOffs.h"

namespace Tarnwise {
namespace {

TEST(FirstTargetShown, SkipsWhatSharesTheReferencesRank) {
  TradeOffStep step(TradeOffData({B(1), B(1), B(2), C(1), C(2)}, 0, 3));
  EXPECT_EQ(step.Target(), "2 against 0, item 3");
  EXPECT_TRUE(Only(step.Notes, "msgbox").empty());
}

TEST(FirstTargetShown, BeginsAtTheSecondAttributeWhereThereIsOneBenefitOnly) {
  TradeOffStep step(TradeOffData({B(1), C(1), C(2)}, 0, 1));
  EXPECT_EQ(step.Target(), "2 against 1, item 3");
}

TEST(FirstTargetShown, GoesOnIntoTheCosts) {
  TradeOffStep step(TradeOffData({B(1), B(1), C(1), C(2)}, 0, 3));
  EXPECT_EQ(step.Target(), "2 against 3, item 3");
}

TEST(FirstTargetShown, WhereEverythingTiesThereIsNoneAndTheOpeningFails) {
  EXPECT_EQ(ErrorNumber([] { return (TradeOffStep(TradeOffData({B(1), B(1), C(1)}, 0, 2)), 0); }), 9);
}

TEST(TargetItems, AreTrimmedNumberedByGroupAndPictured) {
  WizardData data = Ward();
  data.AttributeList.AttName[0] = " Beds  ";
  TradeOffStep step(data);
  const auto& items = step.Form->imgcmbTargetAtt.Items;
  ASSERT_EQ(items.size(), 8U);
  EXPECT_EQ(items[0].Text, "Beds");
  Lines keys;
  for (const auto& item : items) keys.push_back(item.Key + " " + item.Picture + " " + item.SelectedPicture);
  EXPECT_EQ(keys, (Lines{"Benefit1 Smiling Smiling1", "Benefit2 Smiling2 Smiling2", "Benefit3 Smiling Smiling1",
                         "Benefit4 Smiling Smiling1", "Benefit5 Smiling Smiling1", "Cost1 Crying Crying1",
                         "Cost2 Crying2 Crying2", "Cost3 Crying Crying1"}));
  EXPECT_EQ(step.Data.BRankCount, 5);
  EXPECT_EQ(step.Data.CRankCount, 3);
}

TEST(TargetItems, JudgedAttributesAreMarkedTheReferencesExcepted) {
  WizardData data = Ward();
  data.WeightDone[5] = true;
  data.AttributeList.AttName[5] = " Nurses ";
  TradeOffStep step(data);
  EXPECT_EQ(step.Items(), (Lines{"Att 0", "Att 1", "Att 2", "Att 3", " ¤ Att 4", " ¤  Nurses ", "Att 6", " ¤ Att 7"}));
}

TEST(ChosenTarget, ShowsItsPairWithEnterAllowed) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Choose(5);
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(step.Target(), "5 against 6, item 6");
  EXPECT_EQ(Scores(step.Points()), Scores(step.Record(5)));
  EXPECT_EQ(step.Form->Scores.labPCCriterion1.Caption(), "Att 5");
  EXPECT_EQ(step.Form->Scores.labPCCriterion2.Caption(), "Att 6");
  EXPECT_TRUE(step.EnterAllowed());
}

TEST(ChosenTarget, IsIgnoredWhileTheFormOpens) {
  TradeOffStep step(Ward());
  step.Form->mLoading = 1;
  step.TakeNotes();
  step.Choose(5);
  EXPECT_EQ(step.Form->mTargetAtt, 0);
  EXPECT_TRUE(step.TakeNotes().empty());
}

TEST(ChosenTarget, CanBeEnteredWhateverItsState) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[2] = PointsAt(60, 80, 40, 40);
  TradeOffStep step(data);
  step.Choose(2);
  EXPECT_EQ(step.Form->mJudgmentState, kInvalid);
  EXPECT_EQ(step.Form->Lights.Timer1.Interval, 300);
  EXPECT_TRUE(step.EnterAllowed());
}

TEST(ChosenTarget, DropsWhatWasNotEntered) {
  TradeOffStep step(Ward());
  const Single before = step.Points().AX;
  step.MoveA(77, 40);
  step.Choose(2);
  step.Choose(0);
  EXPECT_EQ(step.Points().AX, before);
}

TEST(ChosenTarget, AStoredLineIsShownWithItsTools) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[2] = PointsAt(60, 40, 20, 80);
  data.ABPoints2[2].AOrientation = 1;
  data.ABPoints2[2].AUX = 70;
  TradeOffStep step(data);
  step.Choose(2);
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U);
  EXPECT_EQ(Shown(step.Form->Uncertainty), "left right | across");
}

TEST(ChosenReference, OfEitherGroupShowsTheReferencePairAndTheItemStays) {
  for (const int att : {1, 6}) {
    TradeOffStep step(Ward());
    step.Choose(att);
    EXPECT_EQ(step.Target(), "6 against 1, item " + std::to_string(att + 1));
    EXPECT_EQ(Scores(step.Points()), Scores(step.Record(6)));
    EXPECT_EQ(step.Ratio().find(','), String::npos);
  }
}

TEST(RefusedTarget, TiedWithTheBenefitReferenceHasItsMessageAndKeepsTheMoves) {
  TradeOffStep step(Ward());
  step.MoveA(77, 40);
  step.TakeNotes();
  step.Choose(4);
  EXPECT_EQ(step.TakeNotes(),
            (Lines{"beep",
                   "msgbox The selected attribute is in the same group with the reference attribute for the "
                   "benefit-oriened ones. It is not necessary to make tradeoffs between them."}));
  EXPECT_EQ(step.Target(), "0 against 1, item 1");
  EXPECT_EQ(step.Points().AX, 77.0F);
}

TEST(RefusedTarget, TiedWithTheCostReferenceHasItsOwnMessage) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Choose(7);
  EXPECT_EQ(step.TakeNotes(),
            (Lines{"beep",
                   "msgbox The selected attribute is in the same group with the reference attribute for the "
                   "cost-oriented ones. It is not necessary to make tradeoffs between them."}));
}

TEST(RefusedTarget, WhileTheReferencePairIsShownTheItemOfItsTargetComesBack) {
  TradeOffStep step(Ward());
  step.Choose(1);
  step.Choose(4);
  EXPECT_EQ(step.Target(), "6 against 1, item 7");
}

TEST(GroupWithoutAttributes, HasNoReferencePair) {
  TradeOffStep step(TradeOffData({C(1), C(2), C(3)}, 0, 1));
  EXPECT_EQ(step.Form->mTargetAtt, 0) << "the empty group's reference number 0 stands for no attribute";
  EXPECT_EQ(step.Form->mRefAtt, 1);
  step.TakeNotes();
  step.Choose(1);
  EXPECT_EQ(Only(step.TakeNotes(), "msgbox").size(), 1U);
  step.Choose(2);
  EXPECT_EQ(step.Form->mTargetAtt, 2);
}

}  // namespace
}  // namespace Tarnwise
