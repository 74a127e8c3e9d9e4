// Stage 2 of the ordering step: the finished orders and the choice of the references.
#include "ReferenceStage.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

using enum Group;

constexpr Colour kRed = 255;
constexpr Colour kBlue = 16711680;

TEST(OrderingStep, OpensInStage1AndSaysSo) {
  Ordering o(ModelOf(2, 1));
  o.Open();
  EXPECT_EQ(o.Form->Stage, 0);
  EXPECT_EQ(o.Form->Caption(), kStage1Title);
  EXPECT_EQ(o.Form->Timer1.Interval(), 0);
  EXPECT_GT(o.Form->picPanel[0].Order(), o.Form->picPanel[1].Order());
  EXPECT_EQ(Only(o.Notes, "say"), Lines({"say Rank the attributes according to their relative importance."}));
}

TEST(OrderingStep, BackFromStage1RaisesTheTwoEventsInTheirOrder) {
  Ranked o;
  o.Click("cmdBack");
  EXPECT_EQ(o.Notes, Lines({"method", "close"}));
}

TEST(OrderingStep, CancelAndTheCloseButtonAreTheSameInBothStages) {
  Ranked o;
  o.Data.FileIndex = 5;
  o.Click("cmdCancel");
  o.Close();
  o.PlaceAll();
  o.Click("cmdNext");
  o.Click("cmdCancel");
  o.Close();
  EXPECT_EQ(o.Notes, Lines(4, "unload 5 cancelled"));
}

TEST(OrderingStep, HelpOpensItsPage) {
  Ranked o;
  o.Data.KestaDir = "D:\\KESTA";
  o.Click("cmdHelp");
  EXPECT_EQ(o.Notes, Lines({"help D:\\KESTA\\KESTA.HLP 1 4005025"}));
}

TEST(ReferenceStage, NextOfStage1ShowsItAndBlinks) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  EXPECT_EQ(o.Form->Stage, 1);
  EXPECT_EQ(o.Form->Caption(), kStage2Title);
  EXPECT_EQ(o.Form->Timer1.Interval(), 300);
  EXPECT_GT(o.Form->picPanel[1].Order(), o.Form->picPanel[0].Order());
  EXPECT_EQ(o.Form->Label3[0].Caption(), "Rank order of benefit-oriented attributes:");
  EXPECT_EQ(o.Form->Label3[1].Caption(), "Rank order of cost-oriented attributes:");
  EXPECT_EQ(o.Form->Label3[2].Caption(), "Reference for the benefit-oriented attributes:");
  EXPECT_EQ(o.Form->Label3[3].Caption(), "Reference for the cost-oriented attributes:");
}

TEST(ReferenceStage, EachTickTurnsRedIntoBlueAndAnythingElseIntoRed) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  PictureBox& benefit = o.Form->picIndicator[0];
  PictureBox& cost = o.Form->picIndicator[1];
  benefit.BackColor = kRed;
  cost.BackColor = 0x123456;
  Input::Tick(o.Form->Timer1);
  EXPECT_EQ(benefit.BackColor(), kBlue);
  EXPECT_EQ(cost.BackColor(), kRed);
  Input::Tick(o.Form->Timer1);
  EXPECT_EQ(benefit.BackColor(), kRed);
  EXPECT_EQ(cost.BackColor(), kBlue);
}

TEST(ReferenceStage, GivesItsButtonsTheirSizeBeforeItIsShown) {
  Ranked o;
  for (const CommandButton* button :
       {&o.BRows.cmdAttButtons[0], &o.BRows.cmdAttButtons[2], &o.CRows.cmdAttButtons[0]}) {
    EXPECT_EQ(button->Left(), 770.0F);
    EXPECT_EQ(button->Height(), kH);
    EXPECT_GT(button->Width(), 0.0F);
    EXPECT_FALSE(button->Visible);
  }
}

TEST(ReferenceStage, ShowsTheOrderWithoutItsEmptyRows) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  EXPECT_EQ(o.Data.AttO.Items(), Integers({1, 2, 2, 1}));
  EXPECT_EQ(o.Data.BOM.Items(), Integers({0, 1, 2}));
  EXPECT_EQ(o.Data.BAttCount, 2);
  EXPECT_EQ(Rows(o.BRows), "1@120+515 [0] | 2@755+890 [1 2]") << "ascending id, whatever the order of the drops";
  EXPECT_EQ(Rows(o.CRows), "1@120+515 [3]");
  for (int k = 0; k < 3; ++k) {
    const CommandButton& button = o.BRows.cmdAttButtons[k];
    EXPECT_EQ(button.Tag(), "A" + std::to_string(k));
    EXPECT_EQ(button.Caption(), "Benefit " + std::to_string(k));
    EXPECT_EQ(button.Left(), 770.0F);
    EXPECT_EQ(button.Height(), kH);
    EXPECT_EQ(button.BackColor(), 192U * 65536U + 192U * 256U + 255U);
    EXPECT_GT(button.Order(), o.BRows.picO[k == 0 ? 0 : 1].Order());
  }
  EXPECT_EQ(o.CRows.cmdAttButtons[0].Tag(), "C3");
  EXPECT_EQ(o.CRows.cmdAttButtons[0].BackColor(), 255U * 65536U + 192U * 256U + 192U);
}

TEST(ReferenceStage, ARowIsAsHighAsItsRankWasFilledWhateverIsLeftOfIt) {
  Ranked o;
  o.PlaceAll();
  o.Data.AttributeList.AttOrientation[2] = "1";  // the host has loaded another model
  o.Click("cmdNext");
  EXPECT_EQ(o.Data.BOM.Items(), Integers({0, 1, 2}));
  EXPECT_EQ(Rows(o.BRows), "1@120+515 [0] | 2@755+890 [1]");
}

TEST(ReferenceStage, ScrollsOnlyWhenTheLastRowPassesTheViewportByMoreThan20) {
  // Five rows end at 120 + 4 * 635 + 515 = 3175.
  const std::pair<Single, bool> cases[] = {{3000.0F, true}, {3154.0F, true}, {3155.0F, false}, {4000.0F, false}};
  for (const auto& [height, scrolls] : cases) {
    Ranked o(ModelOf(5, 1));
    o.BRows.picOrderFrame.Height = height;
    o.Click("cmdAdd", 4);
    for (int k = 0; k < 5; ++k) o.Place(k, k);
    o.PlaceCost(0, 0);
    o.Click("cmdNext");
    EXPECT_EQ(o.BRows.vsrO.Enabled(), scrolls) << height;
    EXPECT_EQ(o.BRows.vsrO.Top(), 0.0F);
    EXPECT_EQ(o.BRows.vsrO.Height(), height - 60.0F);
    EXPECT_FALSE(o.CRows.vsrO.Enabled);
  }
}

TEST(ReferenceStage, AClickTakesTheReferenceWithItsNameAsStored) {
  Ranked o(ModelOf({{" Beds ", Benefit}, {"Visits", Benefit}, {"Staff", Cost}}));
  o.Place(0, 0);
  o.Place(1, 0);
  o.PlaceCost(0, 0);
  o.Click("cmdNext");
  EXPECT_EQ(o.BName.Caption(), "");
  o.Click("cmdAttButtons(0)");
  EXPECT_EQ(o.Data.BRefAttID, 0);
  EXPECT_EQ(o.BName.Caption(), " Beds ");
  EXPECT_EQ(o.BRows.cmdAttButtons[0].Caption(), "Beds");
  const PictureBox& mark = o.Form->picIndicator[0];
  EXPECT_TRUE(mark.Visible);
  EXPECT_EQ(mark.Top(), o.BRows.cmdAttButtons[0].Top + (kH - mark.Height) * 0.5F);
  EXPECT_FALSE(o.Form->picIndicator[1].Visible);
  o.Click("cmdAttButtons(1)");
  EXPECT_EQ(o.Data.BRefAttID, 1);
  EXPECT_EQ(mark.Top(), o.BRows.cmdAttButtons[1].Top + (kH - mark.Height) * 0.5F);
  o.Click("cmdAttButtons1(0)");
  EXPECT_EQ(o.Data.CRefAttID, 2);
  EXPECT_EQ(o.CName.Caption(), "Staff");
  EXPECT_TRUE(o.Form->picIndicator[1].Visible);
}

TEST(ReferenceStage, ChoosingEnablesNextOnceBothNamesStand) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  o.Form->cmdNext.Enabled = false;
  o.Click("cmdAttButtons(1)");
  EXPECT_FALSE(o.Form->cmdNext.Enabled);
  o.Click("cmdAttButtons1(0)");
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
}

TEST(ReferenceStage, NextIsUsableWithNoReferenceChosen) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
  o.Click("cmdNext");
  EXPECT_EQ(o.Data.BRefAttID, 0);
  EXPECT_EQ(o.Data.CRefAttID, 0);
  EXPECT_EQ(o.Notes, Lines({"direct"}));
  EXPECT_EQ(Numbers(o.Data.Weights), std::vector<Double>({1.0, 0.8, 0.8, 1.0}))
      << "the cost group is compared with the rank of attribute 0 then";
}

TEST(ReferenceStage, NextRaisesTheStepOfTheApproach) {
  const std::pair<int, Lines> cases[] = {{0, {"direct"}}, {1, {"trade-offs"}}, {2, {}}, {-1, {}}};
  for (const auto& [method, notes] : cases) {
    Ranked o;
    o.Data.MethodIndex = static_cast<Integer>(method);
    o.PlaceAll().Click("cmdNext");
    o.Click("cmdNext");
    EXPECT_EQ(o.Notes, notes) << method;
    EXPECT_EQ(o.Form->Stage, 1) << "the step stays as it is";
  }
}

TEST(ReferenceStage, AGroupWithoutAttributesShowsNoRowAndHasNoReference) {
  Ranked o(ModelOf(2, 0));
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("cmdNext");
  EXPECT_TRUE(Only(o.Notes, "error").empty());
  EXPECT_EQ(Rows(o.CRows), "");
  EXPECT_FALSE(o.CRows.cmdAttButtons[0].Visible);
  EXPECT_EQ(o.Data.CAttCount, 0);
  o.Click("cmdAttButtons(1)");
  o.Click("cmdNext");
  EXPECT_EQ(o.Data.CRefAttID, 0);
  EXPECT_EQ(o.Data.RefAttWR, Variant(Integer(1)));
  o.Click("cmdBack");
  EXPECT_EQ(o.Form->Stage, 0);
}

}  // namespace
}  // namespace Tarnwise
