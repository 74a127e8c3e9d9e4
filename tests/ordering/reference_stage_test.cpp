// Stage 2 of the ordering step: the finished orders, the references, and what the judgment steps start from.
#include "Ordering.h"

namespace Tarnwise {
namespace {

using enum Group;

constexpr Single kH = 375.0F;
constexpr Colour kRed = 255;
constexpr Colour kBlue = 16711680;
constexpr const char* kStage1Title = "Tarnwise: Give rank orders of the attirbutes";
constexpr const char* kStage2Title = "Tarnwise: Designate reference attributes";

using Integers = std::vector<Integer>;

// Benefit 0 on rank 1, 1 and 2 on rank 2, an empty rank between; cost 3 on rank 1.
struct Ranked : Ordering {
  explicit Ranked(const WizardData& model = ModelOf(3, 1)) : Ordering(model) {
    Open();
    TakeNotes();
  }
  Ranked& PlaceAll() {
    Click("cmdAdd", 2);
    Place(0, 0);
    Place(2, 2);
    Place(1, 2);
    PlaceCost(0, 0);
    return *this;
  }
  OrderDisplay& BRows = Form->BReference.Rows;
  OrderDisplay& CRows = Form->CReference.Rows;
  Label& BName = Form->BReference.lblRefAtt;
  Label& CName = Form->CReference.lblRefAtt;
};

WizardData Judged(const char* type = kDirectType) {
  WizardData model = ModelOf(3, 2);
  StoreJudgments(model, type, 1, 4, 1.75, {0.5, 1.0, 1.0, 2.0, 1.0});
  return model;
}

std::vector<Double> Numbers(const Array<Variant>& values) {
  std::vector<Double> numbers;
  for (const Variant& value : values.Items()) numbers.push_back(ToDouble(value));
  return numbers;
}

void ExpectRow(const OrderDisplay& rows, int k, Single top, Single height) {
  SCOPED_TRACE("row " + std::to_string(k));
  EXPECT_TRUE(rows.picO[k].Visible);
  EXPECT_EQ(rows.picO[k].Top(), top);
  EXPECT_EQ(rows.picO[k].Height(), height);
  EXPECT_EQ(rows.picO[k].Tag(), std::to_string(k + 1));
  EXPECT_TRUE(rows.lblOID[k].Visible);
  EXPECT_EQ(rows.lblOID[k].Top(), top);
  EXPECT_EQ(rows.lblOID[k].Tag(), std::to_string(k + 1));
  EXPECT_EQ(rows.lblOID[k].Caption(), std::to_string(k + 1));
}

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
  EXPECT_EQ(o.BRows.picO.Count(), 2);
  ExpectRow(o.BRows, 0, 120.0F, kH + 140.0F);
  ExpectRow(o.BRows, 1, 120.0F + 515.0F + 120.0F, 2.0F * kH + 140.0F);
  ExpectRow(o.CRows, 0, 120.0F, kH + 140.0F);
  const Single tops[] = {180.0F, 755.0F + 60.0F, 755.0F + 60.0F + kH};
  for (int k = 0; k < 3; ++k) {
    const CommandButton& button = o.BRows.cmdAttButtons[k];
    EXPECT_EQ(button.Tag(), "A" + std::to_string(k));
    EXPECT_EQ(button.Caption(), "Benefit " + std::to_string(k));
    EXPECT_EQ(button.Top(), tops[k]) << "ascending id, whatever the order of the drops";
    EXPECT_EQ(button.Left(), 770.0F);
    EXPECT_EQ(button.Height(), kH);
    EXPECT_EQ(button.BackColor(), 192U * 65536U + 192U * 256U + 255U);
    EXPECT_TRUE(button.Visible);
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
  ExpectRow(o.BRows, 1, 120.0F + 515.0F + 120.0F, 2.0F * kH + 140.0F);
  EXPECT_TRUE(o.BRows.cmdAttButtons[1].Visible);
  EXPECT_FALSE(o.BRows.cmdAttButtons[2].Visible);
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

TEST(Seeding, ComparesRanksWithTheReferenceOfTheGroup) {
  Ranked o(ModelOf(4, 2));
  o.Click("cmdAdd", 2);
  o.Click("cmdAdd1");
  o.Place(0, 0);
  o.Place(1, 1);
  o.Place(2, 1);
  o.Place(3, 2);
  o.PlaceCost(0, 0);
  o.PlaceCost(1, 1);
  o.Click("cmdNext");
  o.Click("cmdAttButtons(1)");
  o.Click("cmdAttButtons1(1)");
  o.Data.RefAttWR = 7.5;
  o.Click("cmdNext");
  const std::vector<Double> seeds = {1.2, 1.0, 1.0, 0.8, 1.2, 1.0};
  EXPECT_EQ(Numbers(o.Data.WeightsL), seeds);
  EXPECT_EQ(Numbers(o.Data.Weights), seeds);
  EXPECT_EQ(Numbers(o.Data.WeightsH), seeds);
  EXPECT_EQ(o.Data.WeightDone.Items(), std::vector<bool>({false, true, true, false, false, true}));
  EXPECT_EQ(o.Data.RefAttWR, Variant(Integer(1)));
}

TEST(Seeding, SkipsAnAttributeOfNeitherGroup) {
  WizardData model = Judged();
  model.AttributeList.AttOrientation[2] = "7";
  Ranked o(model);
  o.Data.OrderChanged = true;
  o.Click("cmdNext");
  o.Click("cmdNext");
  EXPECT_EQ(o.Data.Weights[2], Variant());
  EXPECT_FALSE(o.Data.WeightDone[2]);
  EXPECT_EQ(ToDouble(o.Data.Weights[1]), 1.0);
}

TEST(StoredJudgments, ReferencesAreChosenByNextOfStage1) {
  Ranked o(Judged());
  o.Form->cmdNext.Enabled = true;
  o.Click("cmdNext");
  EXPECT_EQ(o.Data.BRefAttID, 1);
  EXPECT_EQ(o.Data.CRefAttID, 4);
  EXPECT_EQ(o.BName.Caption(), "Benefit 1");
  EXPECT_EQ(o.CName.Caption(), "Cost 1");
  EXPECT_TRUE(o.Form->picIndicator[0].Visible);
  EXPECT_TRUE(o.Form->picIndicator[1].Visible);
  EXPECT_FALSE(o.Data.OrderChanged);
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
}

TEST(StoredJudgments, ComeBackWhenNothingWasChanged) {
  for (const char* type : {kDirectType, kTradeOffsType}) {
    Ranked o(Judged(type));
    o.Click("cmdNext");
    o.Click("cmdNext");
    EXPECT_EQ(Numbers(o.Data.Weights), std::vector<Double>({0.5, 1.0, 1.0, 2.0, 1.0}));
    EXPECT_EQ(Numbers(o.Data.WeightsL), std::vector<Double>({0.375, 0.875, 0.875, 1.875, 0.875}));
    EXPECT_EQ(Numbers(o.Data.WeightsH), std::vector<Double>({0.625, 1.125, 1.125, 2.125, 1.125}));
    EXPECT_EQ(o.Data.WeightDone.Items(), std::vector<bool>(5, true));
    EXPECT_EQ(o.Data.RefAttWR, Variant(1.75));
  }
}

TEST(StoredJudgments, GiveWayToSeedsWhenAnotherReferenceWasChosen) {
  Ranked o(Judged());
  o.Click("cmdNext");
  o.Click("cmdAttButtons(0)");
  EXPECT_TRUE(o.Data.OrderChanged);
  o.Click("cmdAttButtons(1)");
  EXPECT_TRUE(o.Data.OrderChanged) << "choosing the stored one again does not clear the flag";
  o.Click("cmdNext");
  EXPECT_EQ(Numbers(o.Data.Weights), std::vector<Double>({0.8, 1.0, 1.0, 1.2, 1.0}));
  EXPECT_EQ(o.Data.RefAttWR, Variant(Integer(1)));
}

TEST(StoredJudgments, GiveWayToSeedsWhenAnotherCostReferenceWasChosen) {
  Ranked o(Judged());
  o.Click("cmdNext");
  o.Click("cmdAttButtons1(0)");
  EXPECT_TRUE(o.Data.OrderChanged);
}

TEST(StoredJudgments, GiveWayToSeedsWhenAnAttributeWasMovedAndMovedBack) {
  Ranked o(Judged());
  o.Drag("cmdAttB(0)", "picOrder(0)");
  o.Drag("cmdAttB(0)", "picOrder(1)");
  o.Click("cmdNext");
  o.Click("cmdNext");
  EXPECT_EQ(Numbers(o.Data.Weights), std::vector<Double>({0.8, 1.0, 1.0, 1.2, 1.0}));
}

TEST(StoredJudgments, ComeBackAgainAfterBackFromTheNextStep) {
  Ranked o(Judged());
  o.Click("cmdNext");
  o.Click("cmdNext");
  o.Data.Weights[0] = 9.0;
  o.Data.WeightDone[0] = false;
  o.Click("cmdNext");
  EXPECT_EQ(ToDouble(o.Data.Weights[0]), 0.5);
  EXPECT_TRUE(o.Data.WeightDone[0]);
}

TEST(StoredJudgments, AReferenceThatIsNotOfItsGroupIsNotFound) {
  WizardData model = Judged();
  model.SavedJudgments.SavedBRefAttID = Integer(4);
  Ranked o(model);
  o.Data.BRefAttID = 2;
  o.Click("cmdNext");
  EXPECT_EQ(o.BName.Caption(), "");
  EXPECT_EQ(o.Data.BRefAttID, 2);
  EXPECT_FALSE(o.Form->picIndicator[0].Visible);
  EXPECT_EQ(o.CName.Caption(), "Cost 1");
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
  EXPECT_EQ(o.Form->Stage, 1);
}

TEST(StoredJudgments, ReferenceIdsOfAnyNumericKindAreFound) {
  const Variant kinds[] = {Variant(1.0), Variant(Long(1)), Variant(1.0F), Variant(String("1")),
                           Variant(std::uint8_t(1))};
  for (const Variant& kind : kinds) {
    WizardData model = Judged();
    model.SavedJudgments.SavedBRefAttID = kind;
    Ranked o(model);
    o.Click("cmdNext");
    EXPECT_EQ(o.Data.BRefAttID, 1) << kind.index();
    EXPECT_FALSE(o.Data.OrderChanged) << kind.index();
  }
}

TEST(StoredJudgments, AReferenceThatIsNoNumberIsNotFoundAndDiffersFromAnyThatIsChosen) {
  const Variant kinds[] = {Variant(), Variant(Null()), Variant(String()), Variant(String("abc")),
                           Variant(String("1e999"))};
  for (const Variant& kind : kinds) {
    WizardData model = Judged();
    model.SavedJudgments.SavedBRefAttID = kind;
    Ranked o(model);
    o.Click("cmdNext");
    EXPECT_TRUE(Only(o.Notes, "error").empty()) << kind.index();
    EXPECT_EQ(o.BName.Caption(), "") << kind.index();
    EXPECT_EQ(o.CName.Caption(), "Cost 1") << kind.index();
    EXPECT_EQ(o.Form->Stage, 1) << kind.index();
    EXPECT_FALSE(o.Data.OrderChanged) << kind.index();
    o.Click("cmdAttButtons(0)");
    EXPECT_TRUE(o.Data.OrderChanged) << kind.index();
    EXPECT_EQ(o.Data.BRefAttID, 0) << kind.index();
  }
}

TEST(StoredJudgments, AFractionNamesNoAttribute) {
  WizardData model = Judged();
  model.SavedJudgments.SavedBRefAttID = 1.4;
  Ranked o(model);
  o.Click("cmdNext");
  EXPECT_EQ(o.BName.Caption(), "");
  o.Click("cmdAttButtons(1)");
  EXPECT_TRUE(o.Data.OrderChanged);
}

TEST(BackOfStage2, ShowsStage1AsItWasEmptyRowsIncluded) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  o.Click("cmdAttButtons(1)");
  o.Click("cmdAttButtons1(0)");
  o.Form->cmdNext.Enabled = false;
  o.Click("cmdBack");
  EXPECT_EQ(o.Form->Stage, 0);
  EXPECT_EQ(o.Form->Caption(), kStage1Title);
  EXPECT_EQ(o.Form->Timer1.Interval(), 0);
  EXPECT_GT(o.Form->picPanel[0].Order(), o.Form->picPanel[1].Order());
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
  EXPECT_EQ(o.BName.Caption(), "");
  EXPECT_EQ(o.CName.Caption(), "");
  EXPECT_FALSE(o.Form->picIndicator[0].Visible);
  EXPECT_FALSE(o.Form->picIndicator[1].Visible);
  for (int k = 0; k < 2; ++k) {
    EXPECT_FALSE(o.BRows.picO[k].Visible);
    EXPECT_FALSE(o.BRows.lblOID[k].Visible);
  }
  EXPECT_FALSE(o.CRows.picO[0].Visible);
  EXPECT_FALSE(o.CRows.lblOID[0].Visible);
  EXPECT_EQ(o.Data.BRefAttID, 1);
  EXPECT_EQ(o.Data.CRefAttID, 3);
  EXPECT_EQ(o.B.picOrder.Count(), 3);
  EXPECT_EQ(o.B.cmdAttB[1].Top(), o.B.picOrder[2].Top + 60.0F);
  EXPECT_TRUE(o.Notes.empty());
}

TEST(BackOfStage2, AndNextAgainCommitsTheChangedOrder) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  o.Click("cmdBack");
  o.Drag("cmdAttB(0)", "picOrder(2)");  // attribute 0 to the others
  o.Click("cmdNext");
  EXPECT_EQ(o.Data.AttO.Items(), Integers({1, 1, 1, 1}));
  EXPECT_EQ(o.Data.BAttCount, 1);
  ExpectRow(o.BRows, 0, 120.0F, 3.0F * kH + 140.0F);
  EXPECT_FALSE(o.BRows.picO[1].Visible) << "the second row of the earlier visit";
  EXPECT_FALSE(o.BRows.lblOID[1].Visible);
  o.Click("cmdBack");
  o.Drag("cmdAttB(0)", "picOrder(0)");
  o.Drag("cmdAttB(1)", "picOrder(1)");
  o.Click("cmdNext");
  EXPECT_EQ(o.BRows.picO.Count(), 3);
  ExpectRow(o.BRows, 2, 1390.0F, kH + 140.0F);
  EXPECT_EQ(o.BRows.cmdAttButtons[1].Top(), 1450.0F);
}

TEST(BackOfStage2, AndAResetThenNextReusesTheRowsThatStand) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  o.Click("cmdBack");
  o.Click("cmdResetB");
  o.Click("cmdAdd", 2);
  for (int k = 0; k < 3; ++k) o.Place(k, 2 - k);
  o.Click("cmdNext");
  EXPECT_TRUE(Only(o.Notes, "error").empty());
  EXPECT_EQ(o.BRows.picO.Count(), 3);
  for (int k = 0; k < 3; ++k) ExpectRow(o.BRows, k, 120.0F + 635.0F * static_cast<Single>(k), kH + 140.0F);
  EXPECT_EQ(o.BRows.cmdAttButtons[0].Top(), 1450.0F);
  EXPECT_EQ(o.Data.AttO.Items(), Integers({3, 2, 1, 1}));
}

TEST(BackOfStage2, AndNextWithoutStoredJudgmentsAsksForTheReferencesAnew) {
  Ranked o;
  o.PlaceAll().Click("cmdNext");
  o.Click("cmdAttButtons(1)");
  o.Click("cmdBack");
  o.Click("cmdNext");
  EXPECT_EQ(o.BName.Caption(), "");
  EXPECT_FALSE(o.Form->picIndicator[0].Visible);
  EXPECT_EQ(o.Data.BRefAttID, 1);
}

TEST(ReferenceStage, AGroupWithoutAttributesShowsNoRowAndHasNoReference) {
  Ranked o(ModelOf(2, 0));
  o.Place(0, 0);
  o.Place(1, 0);
  o.Click("cmdNext");
  EXPECT_TRUE(Only(o.Notes, "error").empty());
  EXPECT_FALSE(o.CRows.picO[0].Visible);
  EXPECT_FALSE(o.CRows.lblOID[0].Visible);
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
