#include "TradeOffs.h"

#include "curves/mdGraphs.h"
#include "modelfiles/PlainJson.h"
#include "runtime/Text.h"

namespace Tarnwise {
namespace {

WizardData Judged(WizardData data, const char* type) {
  data.SavedJudgments.RJType = type;
  for (int i = 0; i < data.NumAtts(); ++i) data.WeightDone[i] = true;
  return data;
}

// Opening.

TEST(OpeningFresh, SuggestsPointsFromTheRanksAndLeavesNextAndFinishDisabled) {
  TradeOffStep step(Ward());
  EXPECT_FALSE(step.Form->cmdNext.Enabled);
  EXPECT_FALSE(step.Form->cmdFinish.Enabled);
  EXPECT_FALSE(step.Form->cmdReStart.Enabled);
  EXPECT_TRUE(step.EnterAllowed());
  WizardData expected = Ward();
  SuggestABPoints(expected, 0, 1, 1.2);
  SuggestABPoints(expected, 2, 1, 0.8);
  SuggestABPoints(expected, 4, 1, 1.0);
  SuggestABPoints(expected, 5, 6, 1.2);
  SuggestRefPairPoints(expected, 6, 1);
  SuggestRefPairPoints(expected, 1, 6);
  for (const int att : {0, 1, 2, 4, 5, 6}) {
    EXPECT_EQ(step.Record(att).AX, expected.ABPoints2[att].AX) << att;
    EXPECT_EQ(step.Record(att).AY, expected.ABPoints2[att].AY) << att;
    EXPECT_EQ(step.Record(att).BX, expected.ABPoints2[att].BX) << att;
    EXPECT_EQ(step.Record(att).BY, expected.ABPoints2[att].BY) << att;
  }
}

TEST(OpeningFresh, TheRecordsOfBothReferencesServeTheirPairWithTheAxesExchanged) {
  WizardData data = Ward();
  GiveScale(data, 1, 0.0, 30.0);
  GiveScale(data, 6, 0.0, 300.0);
  TradeOffStep step(data);
  EXPECT_EQ(step.Record(6).AX, 130.0F);
  EXPECT_EQ(step.Record(6).AY, 13.0F);
  EXPECT_EQ(step.Record(1).AX, 13.0F);
  EXPECT_EQ(step.Record(1).AY, 130.0F);
}

TEST(OpeningFresh, NothingIsUncertain) {
  WizardData data = Ward();
  for (int i = 0; i < data.NumAtts(); ++i) {
    data.ABPoints2[i].AOrientation = 2;
    data.ABPoints2[i].ALX = 77.0F;
  }
  TradeOffStep step(data);
  for (int i = 0; i < data.NumAtts(); ++i) {
    const ABPoint& p = step.Record(i);
    EXPECT_EQ(p.AOrientation, 0);
    EXPECT_EQ(p.ALX, p.AX);
    EXPECT_EQ(p.AUX, p.AX);
    EXPECT_EQ(p.ALY, p.AY);
    EXPECT_EQ(p.AUY, p.AY);
  }
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(OpeningFresh, IsAlsoWhatChangedRanksAndUnknownTypesLeadTo) {
  WizardData changed = Judged(Ward(), kTradeOffsType);
  changed.OrderChanged = true;
  WizardData unknown = Judged(Ward(), "DEA_OTHER");
  for (WizardData& data : std::vector<WizardData>{changed, unknown}) {
    data.ABPoints2[0] = PointsAt(1, 2, 3, 4);
    TradeOffStep step(data);
    EXPECT_NE(step.Record(0).AX, 1.0F);
    EXPECT_FALSE(step.Form->cmdNext.Enabled);
    EXPECT_FALSE(step.Form->cmdFinish.Enabled);
  }
}

TEST(OpeningResumed, ShowsThePointsAsTheHostSentThem) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[0] = PointsAt(60, 40, 20, 80);
  data.ABPoints2[0].AOrientation = 2;
  data.ABPoints2[0].ALY = 30;
  data.ABPoints2[0].AUY = 45;
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AX, 60.0F);
  EXPECT_EQ(step.Points().ALY, 30.0F);
  EXPECT_EQ(step.Points().AOrientation, 2);
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
  EXPECT_FALSE(step.Form->cmdReStart.Enabled);
  EXPECT_TRUE(step.EnterAllowed());
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U) << "its line is there at once";
  EXPECT_FALSE(step.Form->Uncertainty.tbMovLeft.Buttons[0].Enabled);
}

TEST(OpeningFromDirect, AnIntervalOpensAsALine) {
  WizardData data = Judged(Ward(), kDirectType);
  StoreInterval(data, 0, {2.0, 2.5, 3.0});
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AOrientation, 1);
  EXPECT_EQ(step.Points().ALY, step.Points().AY);
  EXPECT_NE(step.Points().ALX, step.Points().AUX);
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.Drawing.size(), 1U);
  EXPECT_NEAR(
      Val(PointRatio(step.Data, 0, 1, step.Points().ALX, step.Points().ALY, step.Points().BX, step.Points().BY)), 2.0,
      0.01);
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
  EXPECT_TRUE(step.Form->cmdFinish.Enabled);
}

TEST(OpeningFromDirect, APointOpensWithoutALine) {
  WizardData data = Judged(Ward(), kDirectType);
  StoreInterval(data, 0, {2.5, 2.5, 2.5});
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AOrientation, 0);
  EXPECT_EQ(step.Points().ALX, step.Points().AX);
  EXPECT_EQ(step.Points().AUY, step.Points().AY);
  EXPECT_TRUE(step.Form->Chart.picTradeOffsRange.Drawing.empty());
}

TEST(OpeningFromDirect, DoesNotAskWhetherTheOrderChanged) {
  WizardData data = Judged(Ward(), kDirectType);
  data.OrderChanged = true;
  StoreInterval(data, 0, {2.0, 2.5, 3.0});
  TradeOffStep step(data);
  EXPECT_EQ(step.Points().AOrientation, 1);
  EXPECT_TRUE(step.Form->cmdNext.Enabled);
}

TEST(OpeningFromDirect, GivesTheReferencesTheirOwnPairWithThemselves) {
  TradeOffStep step(Judged(Ward(), kDirectType));
  // Ratio 1 of an ordinary pair: A to the right of B and below it.
  EXPECT_GT(step.Record(6).AX, step.Record(6).BX);
  EXPECT_LT(step.Record(6).AY, step.Record(6).BY);
}

TEST(Opening, SendsItsPromptWithinTheHourglass) {
  OpenForm<frmTradeOffsB> form(Ward());
  form.Open();
  EXPECT_EQ(form.Notes, (Lines{"pointer 11", "say  Give your preference between the two selected criteria.",
                               "pointer 0", "show frmTradeOffsB"}));
  EXPECT_EQ(form.Form->mPage, 1);
  EXPECT_EQ(form.Form->mLoading, 0);
  EXPECT_EQ(form.Form->Entry.mScoresBad, 0);
  EXPECT_EQ(form.Form->Entry.mScoresDirty, 0);
}

TEST(Opening, WithoutTheControlShowsTheLightInvalidOnly) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  const LightControls& lights = step.Form->Lights;
  for (const int i : {0, 2}) {
    EXPECT_FALSE(lights.shpAlarm[i].Visible);
    EXPECT_FALSE(lights.lblAlarm[i].Visible);
  }
  EXPECT_TRUE(lights.shpAlarm[1].Visible);
  EXPECT_TRUE(lights.lblAlarm[1].Visible);
}

TEST(Opening, WithTheControlShowsAllLights) {
  TradeOffStep step(Ward());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(step.Form->Lights.shpAlarm[i].Visible);
}

TEST(Opening, WithoutTheControlLeavesTheLightsAtRest) {
  WizardData data = Ward();
  data.IncnsistCtrl = 0;
  TradeOffStep step(data);
  const LightControls& lights = step.Form->Lights;
  EXPECT_EQ(lights.Timer1.Interval, 0);
  EXPECT_EQ(lights.shpAlarm[0].FillColor, 0x00FF00U);
  EXPECT_EQ(lights.shpAlarm[1].FillColor, 0x000808U);
  EXPECT_EQ(lights.shpAlarm[2].FillColor, 0x004080U);
  EXPECT_EQ(lights.lblAlarm[0].ForeColor, 0x8000000EU);
  EXPECT_EQ(lights.lblAlarm[1].ForeColor, 0U);
  EXPECT_EQ(lights.lblAlarm[2].ForeColor, 0U);
}

TEST(Opening, IsTitledAndNamesItsControls) {
  TradeOffStep step(Ward());
  const frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.Caption(), "Tarnwise: Give your preference between the two selected criteria");
  EXPECT_EQ(f.cmdEnter.Caption(), "&Enter");
  EXPECT_EQ(f.cmdReStart.Caption(), "&Re-start All");
  EXPECT_EQ(f.lblRatioTitle.Caption(), "Relative importance (weight  ratio Wj/Wr):");
  EXPECT_EQ(f.lblWeightRatio.Alignment(), Align::Centre);
  EXPECT_EQ(f.tbsTradeOffs.Tabs[0].Caption, "Attribute differences");
  EXPECT_EQ(f.tbsTradeOffs.Tabs[0].Key, "AttDiff");
  EXPECT_EQ(f.tbsTradeOffs.Tabs[1].Caption, "Judgment uncertainty");
  EXPECT_EQ(f.tbsTradeOffs.Tabs[1].Key, "JdgUnctn");
}

TEST(OpeningWithoutPoints, IsASubscriptError) {
  WizardData data = Ward();
  data.ABPoints2.Allocate(0);
  EXPECT_EQ(ErrorNumber([&] { return (TradeOffStep(data), 0); }), 9);
}

// Targets.

TEST(FirstTargetShown, SkipsWhatSharesTheReferencesRank) {
  TradeOffStep step(TradeOffData({B(1), B(1), B(2), C(1), C(2)}, 0, 3));
  EXPECT_EQ(step.Form->mTargetAtt, 2);
  EXPECT_EQ(step.Form->mRefAtt, 0);
  EXPECT_EQ(step.Form->imgcmbTargetAtt.SelectedItem, 3);
  EXPECT_TRUE(Only(step.Notes, "msgbox").empty());
}

TEST(FirstTargetShown, BeginsAtTheSecondAttributeWhereThereIsOneBenefitOnly) {
  TradeOffStep step(TradeOffData({B(1), C(1), C(2)}, 0, 1));
  EXPECT_EQ(step.Form->mTargetAtt, 2);
  EXPECT_EQ(step.Form->mRefAtt, 1);
}

TEST(FirstTargetShown, GoesOnIntoTheCosts) {
  TradeOffStep step(TradeOffData({B(1), B(1), C(1), C(2)}, 0, 3));
  EXPECT_EQ(step.Form->mTargetAtt, 2);
  EXPECT_EQ(step.Form->mRefAtt, 3);
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
  Lines texts;
  for (const auto& item : step.Form->imgcmbTargetAtt.Items) texts.push_back(item.Text);
  EXPECT_EQ(texts, (Lines{"Att 0", "Att 1", "Att 2", "Att 3", " ¤ Att 4", " ¤  Nurses ", "Att 6", " ¤ Att 7"}));
}

TEST(ChosenTarget, ShowsItsPairWithEnterAllowed) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Choose(5);
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(step.Form->mTargetAtt, 5);
  EXPECT_EQ(step.Form->mRefAtt, 6);
  EXPECT_EQ(step.Points().AX, step.Record(5).AX);
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
  EXPECT_FALSE(step.Form->Uncertainty.tbMovUp.Buttons[0].Enabled);
  EXPECT_TRUE(step.Form->Uncertainty.cmbChangeH.Visible);
}

TEST(ChosenReference, OfEitherGroupShowsTheReferencePairAndTheItemStays) {
  for (const int att : {1, 6}) {
    TradeOffStep step(Ward());
    step.Choose(att);
    EXPECT_EQ(step.Form->mTargetAtt, 6);
    EXPECT_EQ(step.Form->mRefAtt, 1);
    EXPECT_EQ(step.Form->imgcmbTargetAtt.SelectedItem, att + 1);
    EXPECT_EQ(step.Points().AX, step.Record(6).AX);
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
  EXPECT_EQ(step.Form->mTargetAtt, 0);
  EXPECT_EQ(step.Form->imgcmbTargetAtt.SelectedItem, 1);
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
  EXPECT_EQ(step.Form->imgcmbTargetAtt.SelectedItem, 7);
  EXPECT_EQ(step.Form->mTargetAtt, 6);
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

// Pages and buttons.

TEST(ResultsPage, IsTitledAndFilledAndLeavesFinishOpen) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.mPage, 2);
  EXPECT_EQ(f.Caption(), "Tarnwise: Results of the value judgments");
  EXPECT_TRUE(f.cmdBack.Enabled);
  EXPECT_TRUE(f.cmdFinish.Enabled);
  EXPECT_FALSE(f.cmdNext.Enabled);
  EXPECT_GT(f.picTabs[1].Order(), f.picTabs[0].Order());
  EXPECT_EQ(f.Results.gridBRJ.Rows(), 6);
  EXPECT_EQ(f.Results.gridCRJ.Rows(), 4);
  EXPECT_EQ(f.Results.gridBRJ.TextMatrix[1][4], "1.20,     1.20");
}

TEST(ResultsPage, BackLeadsToTheJudgmentsAndClosesFinishUntilNext) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  step.Click("cmdBack");
  frmTradeOffsB& f = *step.Form;
  EXPECT_EQ(f.mPage, 1);
  EXPECT_EQ(f.Caption(), "Tarnwise: Give your preference between the two selected criteria");
  EXPECT_FALSE(f.cmdFinish.Enabled);
  EXPECT_TRUE(f.cmdNext.Enabled);
  EXPECT_GT(f.picTabs[0].Order(), f.picTabs[1].Order());
  step.Click("cmdNext");
  EXPECT_TRUE(f.cmdFinish.Enabled);
}

TEST(ResultsPage, IsFilledAnewAfterAnotherJudgment) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  step.Click("cmdBack");
  step.MoveA(60, 40);
  step.MoveB(40, 80);
  step.Click("cmdEnter");
  step.Click("cmdNext");
  EXPECT_EQ(step.Form->Results.gridBRJ.TextMatrix[1][4], "2.00,     2.00");
}

TEST(ResultsPage, ItsTabsBringTheGridsForward) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  step.Click("cmdNext");
  ResultsControls& results = step.Form->Results;
  EXPECT_GT(results.gridBRJ.Order(), results.gridCRJ.Order());
  Input::SelectRow(results.tsWeightRatios, 2);
  EXPECT_GT(results.gridCRJ.Order(), results.gridBRJ.Order());
  Input::SelectRow(results.tsWeightRatios, 1);
  EXPECT_GT(results.gridBRJ.Order(), results.gridCRJ.Order());
}

TEST(ResultsPage, KeepsTheTabThatWasChosenOnAnEarlierVisit) {
  TradeOffStep step(Judged(Ward(), kTradeOffsType));
  ResultsControls& results = step.Form->Results;
  step.Click("cmdNext");
  Input::SelectRow(results.tsWeightRatios, 2);
  step.Click("cmdBack");
  step.Click("cmdNext");
  EXPECT_EQ(results.tsWeightRatios.SelectedItem(), 2);
  EXPECT_GT(results.gridCRJ.Order(), results.gridBRJ.Order());
}

TEST(ToolTabs, BringTheirFrameForward) {
  TradeOffStep step(Ward());
  const Frame& differences = step.Form->Scores.framePCNumericalC;
  const Frame& uncertainty = step.Form->Uncertainty.frameJdgUnctn;
  EXPECT_GT(differences.Order(), uncertainty.Order());
  Input::SelectRow(step.Form->tbsTradeOffs, 2);
  EXPECT_GT(uncertainty.Order(), differences.Order());
  Input::SelectRow(step.Form->tbsTradeOffs, 1);
  EXPECT_GT(differences.Order(), uncertainty.Order());
}

TEST(BackFromTheJudgments, HidesTheFormBeforeItTellsSo) {
  TradeOffStep step(Ward());
  step.Form->UnloadTRNTradeOffsB = [&step] { step.Notes.push_back("back"); };
  step.TakeNotes();
  step.Click("cmdBack");
  EXPECT_EQ(step.TakeNotes(), (Lines{"hide frmTradeOffsB", "back"}));
}

TEST(CancelOfTradeOffs, GivesTheFileBackWithoutWeights) {
  TradeOffStep step(Ward());
  step.Form->UnloadTarnwise = [&step](Integer index, Boolean done) {
    step.Notes.push_back("unload " + std::to_string(index) + (done ? " done" : ""));
  };
  step.TakeNotes();
  step.Click("cmdCancel");
  step.Close();
  EXPECT_EQ(step.TakeNotes(), (Lines{"unload 3", "unload 3"}));
}

TEST(HelpOfTradeOffs, IsThePageOfAllSteps) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Click("cmdTarnwiseHelp");
  EXPECT_EQ(step.TakeNotes(), (Lines{"help C:/KESTA\\KESTA.HLP 1 4005025"}));
}

TEST(PrintOfTradeOffs, LeavesTheFrameAtItsPlaceAndThePlotBlack) {
  TradeOffStep step(Ward());
  step.TakeNotes();
  step.Click("cmdTarnwisePrint");
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "pointer 0"}));
  EXPECT_EQ(step.Form->Scores.framePCNumericalC.Left(), 3855.0F);
  EXPECT_EQ(step.Form->Scores.framePCNumericalC.Top(), 2700.0F);
  EXPECT_EQ(step.Form->Chart.picTradeOffsRange.BackColor(), 0U);
}

// Finish.

struct Exports : TradeOffStep {
  explicit Exports(const WizardData& model) : TradeOffStep(model) {
    Form->ExportTradeOffsBW = [this](const String& type, Integer b, Integer c, Variant& ratio, Array<Variant>& weights,
                                     Array<Variant>& high, Array<Variant>& low) {
      Notes.push_back("weights " + type + " " + std::to_string(b) + " " + std::to_string(c) + " " + ToText(ratio));
      for (const Array<Variant>* array : {&weights, &high, &low}) {
        String line;
        for (const Variant& v : array->Items()) line += ToText(v) + " ";
        Notes.push_back(line);
      }
      if (InWeights) InWeights();
    };
    Form->ExportABScores = [this](PointArrays& points) {
      Notes.push_back("scores");
      Exported = points;
    };
    Form->UnloadTarnwise = [this](Integer index, Boolean done) {
      Notes.push_back("unload " + std::to_string(index) + (done ? " done" : ""));
    };
  }

  PointArrays Exported;
  const Variant& Field(PointField field, std::size_t att) const { return Exported[field][att]; }
  std::function<void()> InWeights;
};

TEST(FinishOfTradeOffs, ExportsWeightsThenPointsThenEnds) {
  Exports step(Judged(TradeOffData({B(1), B(2), C(1)}, 1, 2), kTradeOffsType));
  step.Data.RefAttWR = 1.5;
  StoreInterval(step.Data, 0, {1.25, 1.5, 2.0});
  step.TakeNotes();
  step.Click("cmdFinish");
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "weights DEA_TRADEOFFS 1 2 1.5", "1.5 1 1 ", "2 1 1 ", "1.25 1 1 ",
                                     "scores", "pointer 0", "unload 3 done"}));
}

TEST(FinishOfTradeOffs, ThePointsAreSinglesAndTheOrientationsIntegers) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[2] = PointsAt(60.5F, 40.25F, 20.125F, 80);
  data.ABPoints2[2].ALX = 50;
  data.ABPoints2[2].ALY = 41;
  data.ABPoints2[2].AUX = 70;
  data.ABPoints2[2].AUY = 42;
  Exports step(data);
  step.Click("cmdFinish");
  for (const VariantArray& array : step.Exported) EXPECT_EQ(array.size(), 8U);
  const Variant fields[] = {60.5F, 40.25F, 20.125F, 80.0F, Integer(0), 50.0F, 41.0F, 70.0F, 42.0F};
  for (int f = 0; f < kPointFields; ++f) EXPECT_EQ(step.Field(PointField(f), 2), fields[f]) << kPointNames[f];
}

TEST(FinishOfTradeOffs, OrientationsGoOutAsTheyCameFromTheHost) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints1[0].AOrientation = 2;
  data.ABPoints1[5].AOrientation = 1;
  data.ABPoints2[0] = PointsAt(60, 40, 20, 90);
  Exports step(data);
  step.Press(step.Form->Uncertainty.tbMovRight, "MovRight");
  step.Click("cmdEnter");
  EXPECT_EQ(step.Record(0).AOrientation, 1);
  step.Click("cmdFinish");
  EXPECT_EQ(step.Field(kAOrientation, 0), Variant(Integer(2)));
  EXPECT_EQ(step.Field(kAOrientation, 5), Variant(Integer(1)));
  EXPECT_EQ(step.Field(kAUX, 0), Variant(step.Record(0).AUX));
}

TEST(FinishOfTradeOffs, ThePointsAreThoseThatStandAfterTheWeightsWereTaken) {
  Exports step(Judged(Ward(), kTradeOffsType));
  step.InWeights = [&step] {
    step.Data.ABPoints2[2].AX = 12.5F;
    step.Data.ABPoints1[2].AOrientation = 2;
  };
  step.Click("cmdFinish");
  EXPECT_EQ(step.Field(kAX, 2), Variant(12.5F));
  EXPECT_EQ(step.Field(kAOrientation, 2), Variant(Integer(2)));
}

TEST(FinishOfTradeOffs, WithUnjudgedAttributesExportsWhatStands) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.WeightDone[0] = false;
  Exports step(data);
  step.TakeNotes();
  step.Click("cmdFinish");
  EXPECT_EQ(step.TakeNotes().back(), "unload 3 done");
}

}  // namespace
}  // namespace Tarnwise
