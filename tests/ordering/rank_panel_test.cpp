// One group's rank panel on its controls: no second group, no stage 2, no step.
#include "Rows.h"
#include "ordering/RankPanel.h"
#include "support/Models.h"
#include "support/PartForm.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct PanelForm : PartForm {
  PanelForm(std::shared_ptr<Platform> screen, const WizardData& model) : PartForm(std::move(screen)), Data(model) {
    OpenRankOrder(Order, Data);
    for (int k = 0; k < Data.NumAtts(); ++k) Panel.AddToList(k, k);
    Panel.FinishList(Data.NumAtts());
    Panel.BuildFirstRow();
  }

  RankControls Controls{*this, picStage, true};
  WizardData Data;
  RankOrder Order;
  RankPanel Panel{Group::Benefit, Controls, Controls, *this, Order, Data};
};

using OnePanel = PartOnScreen<PanelForm>;

TEST(RankPanel, BeginsWithItsListAndOneEmptyRow) {
  OnePanel o(ModelOf(3, 0));
  EXPECT_EQ(Rows(o.Form->Controls), "1@120+515 []");
  EXPECT_EQ(o.Form->Controls.cmdAttA.Count(), 3);
  EXPECT_EQ(o.Form->Controls.cmdAttA[2].Tag(), "A2");
}

TEST(RankPanel, PlacesAddsAndMovesAndKeepsTheRankingInStep) {
  OnePanel o(ModelOf(3, 0));
  o.Drag("cmdAttA(2)", "picOrder(0)");
  o.Click("cmdAdd");
  o.Drag("cmdAttA(0)", "picOrder(1)");
  o.Drag("cmdAttA(1)", "cmdAttB(0)");
  EXPECT_EQ(Rows(o.Form->Controls), "*1@120+910 [2 1] | 2@1130+515 [0]");
  EXPECT_EQ(o.Form->Order.AttRank[1], 1);
  EXPECT_EQ(o.Form->Order.RankSize(Group::Benefit)[1], 2);
  o.Drag("cmdAttB(0)", "picOrder(1)");
  EXPECT_EQ(Rows(o.Form->Controls), "1@120+535 [1] | *2@755+890 [0 2]");
  EXPECT_EQ(o.Form->Order.AttRank[2], 2);
}

TEST(RankPanel, TellsTheStepWhenAllArePlaced) {
  OnePanel o(ModelOf(2, 0));
  o.Form->cmdNext.Enabled = false;
  o.Drag("cmdAttA(0)", "picOrder(0)");
  EXPECT_FALSE(o.Form->cmdNext.Enabled);
  o.Drag("cmdAttA(1)", "picOrder(0)");
  EXPECT_TRUE(o.Form->cmdNext.Enabled);
}

TEST(RankPanel, ResetTakesEverythingBackToTheList) {
  OnePanel o(ModelOf(3, 0));
  o.Drag("cmdAttA(2)", "picOrder(0)");
  o.Click("cmdAdd");
  o.Click("cmdResetB");
  EXPECT_EQ(Rows(o.Form->Controls), "*1@120+515 []");
  EXPECT_EQ(o.Form->Order.AttRank[2], 0);
  EXPECT_TRUE(o.Form->Controls.cmdAttA[2].Visible);
}

TEST(RankPanel, ShowsARankingThatIsThereAlready) {
  WizardData model = ModelOf(3, 0);
  StoreJudgments(model, kDirectType, 0, 0, 1.0, {1.0, 3.0, 1.0});
  OnePanel o(model);
  RankFromSavedWeights(o.Form->Order, o.Form->Data);
  o.Form->Panel.RestorePanels();
  EXPECT_EQ(Rows(o.Form->Controls), "1@120+515 [1] | 2@755+890 [0 2]");
}

}  // namespace
}  // namespace Tarnwise
