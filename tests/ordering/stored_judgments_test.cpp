// What the judgment steps start from: ratios seeded from the ranks, or the stored ones.
#include "ReferenceStage.h"

namespace Tarnwise {
namespace {

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

}  // namespace
}  // namespace Tarnwise
