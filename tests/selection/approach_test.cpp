// The first step: which approach, and whether consistency is controlled.
#include "selection/frmTRNSelMethod.h"
#include "support/TestHost.h"
#include "view/Input.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

constexpr const char* kDirectText = "Give attribute weights by directly presenting ranges of the weight ratios ";
constexpr const char* kTradeOffsText =
    "Elict attribute weights by numerical trade-off between two random alternatives. The weight will be infered by "
    "ratio value judgments.";

struct Approach : OpenForm<frmTRNSelMethod> {
  explicit Approach(const String& type = {}) : OpenForm(With(type)) {
    Form->ShowTRNIniImpOrder = [this] { Notes.push_back("order"); };
    Form->UnloadTarnwise = [this](Integer fIndex, Boolean done) {
      Notes.push_back("unload " + std::to_string(fIndex) + (done ? " done" : " cancelled"));
    };
    Open();
  }

  static WizardData With(const String& type) {
    WizardData model = ModelOf(2, 1);
    model.SavedJudgments.RJType = type;
    model.FileIndex = 4;
    model.KestaDir = "C:\\KESTA";
    model.IncnsistCtrl = 0;
    model.MethodIndex = 1;
    return model;
  }

  void Select(int row) { Input::SelectRow(Form->lstMethods, row); }
};

TEST(ApproachStep, OffersTheTwoApproachesInTheirOrder) {
  const Approach a;
  EXPECT_EQ(a.Form->Caption(), "Tarnwise: Select an approach to elicit attribute weights");
  EXPECT_EQ(a.Form->lstMethods.List(),
            std::vector<String>({"Direct Pairwise Comparisons", "Numerial Pairwise TradeOffs"}));
}

TEST(ApproachStep, OpensWithTheDirectApproachWhenNothingIsStored) {
  const Approach a;
  EXPECT_EQ(a.Form->lstMethods.ListIndex(), 0);
  EXPECT_EQ(a.Form->lblDescription.Caption(), kDirectText);
  EXPECT_EQ(a.Form->picPicture.Picture(), a.Form->imgPicture[0].Picture());
}

TEST(ApproachStep, OpensWithTheStoredApproachItsTextAndItsImage) {
  const Approach direct(kDirectType);
  EXPECT_EQ(direct.Form->lstMethods.ListIndex(), 0);
  const Approach tradeOffs(kTradeOffsType);
  EXPECT_EQ(tradeOffs.Form->lstMethods.ListIndex(), 1);
  EXPECT_EQ(tradeOffs.Form->lblDescription.Caption(), kTradeOffsText);
  EXPECT_EQ(tradeOffs.Form->picPicture.Picture(), tradeOffs.Form->imgPicture[1].Picture());
  EXPECT_NE(tradeOffs.Form->imgPicture[0].Picture(), tradeOffs.Form->imgPicture[1].Picture());
}

TEST(ApproachStep, ReadsTheStoredApproachByCaseAndAsAWhole) {
  for (const char* type : {"dea_tradeoffs", "DEA_TRADEOFFS ", "DEA_TRADEOFF"}) {
    const Approach a(type);
    EXPECT_EQ(a.Form->lstMethods.ListIndex(), 0) << type;
  }
}

TEST(ApproachStep, OpensWithTheControlOnAndSendsItsPrompt) {
  const Approach a;
  EXPECT_EQ(a.Form->chkIncnsistCtrl.Value(), 1);
  EXPECT_EQ(a.Data.IncnsistCtrl, 1);
  EXPECT_EQ(a.Data.MethodIndex, 1) << "that is left to Next";
  EXPECT_EQ(Only(a.Notes, "say"), Lines({"say Select a method to make value judgments between the attributes."}));
}

TEST(ApproachStep, HasNoWayBackAndNoFinish) {
  Approach a;
  EXPECT_FALSE(a.Form->cmdBack.Enabled);
  EXPECT_FALSE(a.Form->cmdFinish.Enabled);
  EXPECT_TRUE(a.Form->cmdNext.Enabled);
  a.Form->cmdBack.Enabled = true;
  a.Form->cmdFinish.Enabled = true;
  a.Screen->Hide(*a.Form);
  a.Screen->Show(*a.Form);
  EXPECT_FALSE(a.Form->cmdBack.Enabled) << "activation disables them again";
  EXPECT_FALSE(a.Form->cmdFinish.Enabled);
}

TEST(ApproachStep, AChoiceShowsItsTextAndImage) {
  Approach a;
  a.Select(1);
  EXPECT_EQ(a.Form->lblDescription.Caption(), kTradeOffsText);
  EXPECT_EQ(a.Form->picPicture.Picture(), a.Form->imgPicture[1].Picture());
  a.Select(0);
  EXPECT_EQ(a.Form->lblDescription.Caption(), kDirectText);
  EXPECT_EQ(a.Form->picPicture.Picture(), a.Form->imgPicture[0].Picture());
  EXPECT_EQ(a.Data.MethodIndex, 1) << "nothing is taken before Next";
}

TEST(ApproachStep, NextTakesTheApproachAndTheSwitch) {
  Approach a;
  a.TakeNotes();
  a.Click("cmdNext");
  EXPECT_EQ(a.Data.MethodIndex, 0);
  EXPECT_EQ(a.Data.IncnsistCtrl, 1);
  EXPECT_EQ(a.Notes, Lines({"order"}));
  a.Select(1);
  a.Click("chkIncnsistCtrl");
  EXPECT_EQ(a.Data.IncnsistCtrl, 1) << "the switch is read by Next only";
  a.Click("cmdNext");
  EXPECT_EQ(a.Data.MethodIndex, 1);
  EXPECT_EQ(a.Data.IncnsistCtrl, 0);
  EXPECT_EQ(a.Notes, Lines({"order", "order"}));
}

TEST(ApproachStep, NextWithoutASelectionGoesNowhere) {
  Approach a;
  a.TakeNotes();
  a.Form->lstMethods.ListIndex = -1;
  a.Click("chkIncnsistCtrl");
  a.Click("cmdNext");
  EXPECT_EQ(a.Data.IncnsistCtrl, 0);
  EXPECT_EQ(a.Data.MethodIndex, -1);
  EXPECT_TRUE(a.Notes.empty());
}

TEST(ApproachStep, CancelAndTheCloseButtonEndTheWizardUndone) {
  Approach a;
  a.TakeNotes();
  a.Click("cmdCancel");
  a.Close();
  EXPECT_EQ(a.Notes, Lines(2, "unload 4 cancelled"));
  EXPECT_TRUE(a.Form->Visible);
}

TEST(ApproachStep, HelpOpensItsPage) {
  Approach a;
  a.TakeNotes();
  a.Click("cmdHelp");
  EXPECT_EQ(a.Notes, Lines({"help C:\\KESTA\\KESTA.HLP 1 4005025"}));
}

TEST(ApproachStep, ComesBackAsTheUserLeftIt) {
  Session s(ModelOf(2, 1));
  s.Given("host show");
  EXPECT_EQ(s.Ask("select lstMethods 1\n"
                  "click chkIncnsistCtrl\n"
                  "click cmdNext\n"
                  "data IncnsistCtrl\n"
                  "click cmdBack\n"
                  "get lstMethods.ListIndex\n"
                  "get chkIncnsistCtrl.Value\n"
                  "click chkIncnsistCtrl\n"
                  "data IncnsistCtrl\n"
                  "select lstMethods 0\n"
                  "click cmdNext\n"
                  "data IncnsistCtrl\n"
                  "data MethodIndex"),
            Lines({"0", "1", "0", "0", "1", "0"}));
}

TEST(ApproachStep, SendsItsPromptOnceHoweverOftenItComesBack) {
  Session s(ModelOf(2, 1));
  const Lines lines = s.Play("host show\nclick cmdNext\nclick cmdBack\nclick cmdNext\nclick cmdBack");
  EXPECT_EQ(Only(lines, "Select a method").size(), 1U);
  EXPECT_EQ(Only(lines, "Rank the attributes").size(), 2U);
}

}  // namespace
}  // namespace Tarnwise
