// From stage 2 back to stage 1, and there again.
#include "ReferenceStage.h"
#include "Rows.h"

namespace Tarnwise {
namespace {

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
  EXPECT_EQ(Rows(o.BRows), "");
  EXPECT_EQ(Rows(o.CRows), "");
  EXPECT_EQ(o.Data.BRefAttID, 1);
  EXPECT_EQ(o.Data.CRefAttID, 3);
  EXPECT_EQ(Rows(o.B), "1@120+515 [0] | 2@755+515 [] | *3@1390+910 [2 1]");
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
  EXPECT_EQ(Rows(o.BRows), "1@120+1265 [0 1 2]") << "without the second row of the earlier visit";
  o.Click("cmdBack");
  o.Drag("cmdAttB(0)", "picOrder(0)");
  o.Drag("cmdAttB(1)", "picOrder(1)");
  o.Click("cmdNext");
  EXPECT_EQ(Rows(o.BRows), "1@120+515 [0] | 2@755+515 [2] | 3@1390+515 [1]");
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
  EXPECT_EQ(Rows(o.BRows), "1@120+515 [2] | 2@755+515 [1] | 3@1390+515 [0]");
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

}  // namespace
}  // namespace Tarnwise
