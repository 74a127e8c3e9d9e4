// What the user finds when the direct step opens.
#include "direct/Ward.h"
#include "direct/frmDirectB.h"
#include "support/TestHost.h"
#include "view/Input.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

WizardData WardData() {
  WizardData data = RankedData(WardRanks(), 0, 3);
  const WizardData model = WardModel();
  data.AttributeList = model.AttributeList;
  data.AttValueData = model.AttValueData;
  return data;
}

TEST(Opening, SaysItsPromptUnderTheHourglassBeforeItIsShown) {
  Session session(WardModel());
  const String way = ToDirectStep(WardRanks(), 0, 3);
  session.Given(way.substr(0, way.rfind("click cmdNext")));
  EXPECT_EQ(
      session.Play("click cmdNext"),
      (Lines{R"({"hide":"frmIniImpOrder"})", R"({"pointer":11})",
             R"({"event":"SendMasseges","Msg":" Indicate a value reference region on the two selected attributes."})",
             R"({"pointer":0})", R"({"show":"frmDirectB","modal":true})"}));
}

TEST(Opening, ShowsTheFirstTargetWithItsDefaultAndAllButNextAndFinish) {
  EXPECT_EQ(Ward().Ask("get frmDirectB.Caption\nget imgcmbTargetAtt.SelectedItem\nget txtWRLower.Text\n"
                       "get txtWRUpper.Text\nget cmdEnter.Enabled\nget cmdReStart.Enabled\nget cmdBack.Enabled\n"
                       "get cmdNext.Enabled\nget cmdFinish.Enabled\nget cmdCancel.Enabled\nget cmdHelp.Enabled\n"
                       "get tsTab.SelectedItem\ndata BRankCount\ndata CRankCount"),
            (Lines{R"("Tarnwise: Estimate intervals of the weight ratios")", "2", R"("1.20")", R"("1.20")", "true",
                   "true", "true", "false", "false", "true", "true", "1", "4", "3"}));
}

TEST(Opening, SizesTheChartToTwoHundredAndFiftyTwoUnits) {
  EXPECT_EQ(Ward().Ask("get picTradeOffsRange.Width\nget picTradeOffsRange.Height\nget picHandle(0).Width\n"
                       "get picHandle(1).Height"),
            (Lines{"252", "252", "6", "6"}));
}

TEST(Opening, BringsTheTargetGroupsOrderPanelToTheFront) {
  Ward session;
  EXPECT_EQ(session.Play("click lblOID1(0)"), Lines{});
  EXPECT_EQ(Only(session.Play("click lblOID(0)"), "lblOID(0): covered").size(), 1U);
  EXPECT_EQ(session.Status(), 1);
}

TEST(Opening, HasTheWordsOfTheStage) {
  EXPECT_EQ(Ward().Ask("get Frame3.Caption\nget lblseries(0).Caption\nget lblseries(2).Caption\nget cmdEnter.Caption\n"
                       "get cmdReStart.Caption\nget tsTab.Items\nget cmdHelp.Caption\nget cmdCancel.Caption\n"
                       "get cmdBack.Caption\nget cmdNext.Caption\nget cmdFinish.Caption\nget labPCWorstT.Caption\n"
                       "get labPCBestT.Caption"),
            (Lines{R"j("Relative importance (weight ratio Wj/Wr)")j", R"("Target attribute:")",
                   R"("Status of the current judgment:")", R"("&Enter")", R"("&Re-start All")",
                   R"(["Importance order","Performance range"])", R"("&Help")", R"("&Cancel")", R"("< &Back")",
                   R"("&Next >")", R"("&Finish")", R"("Wj")", R"("Wr")"}));
}

TEST(Opening, LabelsTheBoxesAndTheRanges) {
  Lines captions =
      Ward().Ask("get Label1(0).Caption\nget Label1(1).Caption\nget Label1(2).Caption\nget Label1(3).Caption");
  std::sort(captions.begin(), captions.end());
  EXPECT_EQ(captions, (Lines{R"("/1")", R"("/1")", R"("From:")", R"("To:")"}));
  Lines series = Ward().Ask(
      "get lblseries(1).Caption\nget lblseries(3).Caption\nget lblseries(4).Caption\nget lblseries(5).Caption");
  std::sort(series.begin(), series.end());
  EXPECT_EQ(series, (Lines{R"("From")", R"("From")", R"("to")", R"("to")"}));
}

TEST(Opening, KeysTheTabsByTheirNames) {
  OpenForm<frmDirectB> step(WardData());
  step.Open();
  Lines keys;
  for (const auto& tab : step.Form->tsTab.Tabs) keys.push_back(tab.Key);
  EXPECT_EQ(keys, (Lines{"PreOrder", "PerfRange"}));
}

TEST(Opening, HasTheChartsGridAndItsNumbers) {
  const Lines asked = Ward().Ask(
      "get GridV.Count\nget GridH.Count\nget labPCX.Count\nget labPCY.Count\nget GridV(0).BorderColor\n"
      "get GridH(4).BorderColor\nget BorderL(0).BorderColor\nget BorderL(0).X1\nget BorderL(0).Y1\nget BorderL(1).Y1\n"
      "get GridH(0).Y1\nget GridH(4).Y2\nget labPCX(1).Caption\nget labPCX(6).Caption\nget labPCY(0).Caption\n"
      "get labPCY(6).Caption");
  EXPECT_EQ(asked, (Lines{"5", "5", "6", "7", "14737632", "14737632", "192", "0", "250", "250", "42", "210", R"("1")",
                          R"("6")", R"("0")", R"("6")"}));
  OpenForm<frmDirectB> step(WardData());
  for (int i = 0; i < 5; ++i) {
    EXPECT_FLOAT_EQ(step.Form->Chart.GridV[i].X1() * 15.0F, 625.0F * static_cast<Single>(i + 1));
    EXPECT_FLOAT_EQ(step.Form->Chart.GridV[i].X2() * 15.0F, 625.0F * static_cast<Single>(i + 1));
  }
}

TEST(TargetList, NumbersEachGroupFromOneAndMarksTheReferencesByTheirPictures) {
  OpenForm<frmDirectB> step(WardData());
  step.Open();
  EXPECT_EQ(Shown(step.Form->imgcmbTargetAtt),
            (Lines{"Benefit1|Beds|Smiling2|Smiling2", "Cost1|Doctors|Crying|Crying1", "Benefit2|Care|Smiling|Smiling1",
                   "Cost2|Nurses|Crying2|Crying2", "Benefit3|Research|Smiling|Smiling1", "Cost3|Night|Crying|Crying1",
                   "Benefit4|Rest|Smiling|Smiling1"}));
}

TEST(TargetList, CountsAnAttributeOfNeitherGroupAsCost) {
  WizardData data = WardData();
  data.AttributeList.AttOrientation[4] = "2";
  OpenForm<frmDirectB> step(data);
  step.Open();
  EXPECT_EQ(Shown(step.Form->imgcmbTargetAtt),
            (Lines{"Benefit1|Beds|Smiling2|Smiling2", "Cost1|Doctors|Crying|Crying1", "Benefit2|Care|Smiling|Smiling1",
                   "Cost2|Nurses|Crying2|Crying2", "Cost3|Research|Crying|Crying1", "Cost4|Night|Crying|Crying1",
                   "Benefit3|Rest|Smiling|Smiling1"}));
  EXPECT_EQ(std::pair(step.Data.BRankCount, step.Data.CRankCount), std::pair(Integer{3}, Integer{4}));
  EXPECT_EQ(step.Form->mTargetAtt, 1);
}

TEST(TargetList, TakesTheReferenceOfTheCostGroupForAnAttributeOfNeither) {
  WizardData data = WardData();
  data.AttributeList.AttOrientation[4] = "2";
  OpenForm<frmDirectB> step(data);
  step.Open();
  step.Form->imgcmbTargetAtt.SelectedItem = kResearch;
  step.Form->imgcmbTargetAtt.Click();
  EXPECT_EQ(step.Form->mTargetAtt, 4);
  EXPECT_EQ(step.Form->mRefAtt, 3);
}

TEST(TargetList, MarksWhatIsDoneBeforeTheNameAsItIsStoredButNeverAReference) {
  WizardData data = WardData();
  Judge(data, 2, 1.3, 1.4);
  Judge(data, 6, 0.3, 0.4);
  OpenForm<frmDirectB> step(data);
  step.Open();
  EXPECT_EQ(Texts(step.Form->imgcmbTargetAtt),
            (Lines{"Beds", "Doctors", " ¤  Care ", "Nurses", "Research", "Night", " ¤ Rest "}));
}

TEST(TargetList, MarksAnAttributeOfTheReferencesRankFromTheStart) {
  EXPECT_EQ(DirectSession({B(1), B(1), B(2), C(1)}, 1, 3).Ask("get imgcmbTargetAtt.Items"),
            Lines{R"([" ¤ Att 0","Att 1","Att 2","Att 3"])"});
}

TEST(TargetList, IgnoresSelectionsWhileTheStepOpens) {
  OpenForm<frmDirectB> step(WardData());
  step.Open();
  EXPECT_EQ(step.Form->mLoading, 0);
  step.Form->mLoading = 1;
  step.Form->imgcmbTargetAtt.SelectedItem = kCare;
  step.Form->imgcmbTargetAtt.Click();
  EXPECT_EQ(step.Form->mTargetAtt, 1);
}

TEST(Pair, ShowsNamesDescriptionsAndMarks) {
  Ward session;
  const String ask =
      "get lblChartTarAtt.Caption\nget lblChartRefAtt.Caption\nget lblTargetAtt.Caption\nget lblRefAtt.Caption\n"
      "get imgTargetAtt.ToolTipText\nget imgRefAtt.ToolTipText";
  EXPECT_EQ(session.Ask(Choose(kCare) + ask),
            (Lines{R"("Care")", R"("Beds")", R"("Care")", R"("Beds")", R"("All about Care")", R"("All about Beds")"}));
  EXPECT_EQ(session.Ask(Choose(kBeds) + ask), (Lines{R"("Nurses")", R"("Beds")", R"("Nurses")", R"("Beds")",
                                                     R"("All about Nurses")", R"("All about Beds")"}));
}

TEST(Pair, TakesItsMarksFromTheFourStoredPictures) {
  OpenForm<frmDirectB> step(WardData());
  step.Open();
  const auto& chart = step.Form->Chart;
  ASSERT_EQ(chart.imgMarks.Count(), 4);
  const auto marksOf = [&step, &chart](Item item) {
    step.Form->imgcmbTargetAtt.SelectedItem = item;
    step.Form->imgcmbTargetAtt.Click();
    return chart.imgTargetAtt.Picture() + "|" + chart.imgRefAtt.Picture();
  };
  const auto stored = [&chart](int target, int reference) {
    return chart.imgMarks[target].Picture() + "|" + chart.imgMarks[reference].Picture();
  };
  EXPECT_EQ(marksOf(kCare), stored(0, 1));
  EXPECT_EQ(marksOf(kNight), stored(2, 3));
  EXPECT_EQ(marksOf(kNurses), stored(3, 1));
}

TEST(Pair, ShowsRangesWorstFirstForABenefitTargetAndBestFirstForACostTarget) {
  Ward session;
  const String ask =
      "get lblTarRangeLow.Caption\nget lblTarRangeHigh.Caption\nget lblRefRangeLow.Caption\nget "
      "lblRefRangeHigh.Caption";
  EXPECT_EQ(session.Ask(Choose(kCare) + ask), (Lines{R"("2.5")", R"("3000000.75")", R"("0.5")", R"("1000000.25")"}));
  EXPECT_EQ(session.Ask(Choose(kNight) + ask), (Lines{R"("6000001.5")", R"("5.5")", R"("4000001")", R"("3.5")"}));
}

TEST(Pair, OfTheReferencesShowsTheBenefitReferencesRangeBestFirstToo) {
  EXPECT_EQ(Ward().Ask(Choose(kBeds) + "get lblTarRangeLow.Caption\nget lblTarRangeHigh.Caption\n"
                                       "get lblRefRangeLow.Caption\nget lblRefRangeHigh.Caption"),
            (Lines{R"("4000001")", R"("3.5")", R"("1000000.25")", R"("0.5")"}));
}

TEST(Opening, OnABenefitGroupOfOneSeeksItsFirstTargetFromIdOne) {
  EXPECT_EQ(DirectSession({C(1), B(1), C(2), C(3)}, 1, 2).Ask("get imgcmbTargetAtt.SelectedItem"), Lines{"4"});
  EXPECT_EQ(DirectSession({B(1), C(1), C(2)}, 0, 2).Ask("get imgcmbTargetAtt.SelectedItem"), Lines{"2"});
}

TEST(Opening, OnAModelThatTiesEndsWithTheMessageOverTheOrderingStep) {
  const std::vector<RankedAtt> tied = {B(1), B(1), C(1)};
  Session session(ModelFor(tied));
  const String way = ToDirectStep(tied, 0, 2);
  session.Given(way.substr(0, way.rfind("click cmdNext")));
  EXPECT_EQ(
      session.Play("click cmdNext\nforms"),
      (Lines{
          R"({"hide":"frmIniImpOrder"})", R"({"pointer":11})", R"({"release":"frmDirectB"})",
          R"({"show":"frmIniImpOrder","modal":false})", R"({"pointer":0})",
          R"({"runtime_error":9,"description":"Subscript out of range","in":"frmDirectB.Form_Load"})",
          R"({"forms":[{"name":"frmTRNSelMethod","visible":false,"modal":false},{"name":"frmIniImpOrder","visible":true,"modal":true}]})"}));
}

// Stored judgments.

struct Resumed : Session {
  explicit Resumed(const String& type) : Session(Stored(type)) {
    Given("host show\nselect lstMethods 0\nclick cmdNext\nclick cmdNext\nclick cmdNext");
  }

  static WizardData Stored(const String& type) {
    WizardData model = WardModel();
    StoreJudgments(model, type, 0, 3, 0.37, {1.0, 2.0, 2.0, 1.0, 0.5, 0.5, 0.5});
    return model;
  }
};

TEST(Resuming, OpensWithEverythingDoneAndNextAndFinishEnabled) {
  for (const char* type : {kDirectType, kTradeOffsType}) {
    EXPECT_EQ(
        Resumed(type).Ask("data WeightDone\nget cmdNext.Enabled\nget cmdFinish.Enabled\nget imgcmbTargetAtt.Items\n"
                          "get cmdEnter.Enabled\ndata RefAttWR"),
        (Lines{"[true,true,true,true,true,true,true]", "true", "true",
               R"(["Beds"," ¤ Doctors"," ¤  Care ","Nurses"," ¤ Research"," ¤ Night"," ¤ Rest "])", "true", "0.37"}));
  }
}

TEST(Resuming, ShowsTheStoredIntervalOfTheFirstTargetAndOfAnyOther) {
  Resumed session(kDirectType);
  EXPECT_EQ(session.Ask("get txtWRLower.Text\nget txtWRUpper.Text"), (Lines{R"("1.87")", R"("2.13")"}));
  EXPECT_EQ(session.Ask(Choose(kNight) +
                        "get txtWRLower.Text\nget txtWRUpper.Text\nget picHandle(0).Left\nget picHandle(0).Top"),
            (Lines{R"("0.37")", R"("0.63")", "173.4", "182.85"}));
}

TEST(Resuming, ShowsTheStoredRatioOfTheReferences) {
  EXPECT_EQ(Resumed(kDirectType).Ask(Choose(kNurses) + "get txtWRLower.Text\nget txtWRUpper.Text"),
            (Lines{R"("0.37")", R"("0.37")"}));
}

TEST(Resuming, WithoutAStoredRatioPlacesThePairOfReferencesAtTheBottomAndKeepsTheBoxes) {
  WizardData model = WardModel();
  StoreJudgments(model, kDirectType, 0, 3, 0.37, {1.0, 2.0, 2.0, 1.0, 0.5, 0.5, 0.5});
  for (const Variant& none : {Variant(), Variant(Null()), Variant(String("abc"))}) {
    SCOPED_TRACE(none.index());
    model.SavedJudgments.SavedRefAttWR = none;
    Session session(model);
    session.Given("host show\nclick cmdNext\nclick cmdNext\nclick cmdNext");
    EXPECT_EQ(session.Ask(Choose(kNurses) + "get picHandle(0).Top\nget picHandle(1).Left\nget txtWRLower.Text\n"
                                            "get txtWRUpper.Text\nget cmdEnter.Enabled\nget Timer1.Interval\n"
                                            "get shpAlarm(0).FillColor\nget shpAlarm(1).FillColor"),
              (Lines{"249", "173.4", R"("1.87")", R"("2.13")", "true", "0", "65280", "8421504"}));
  }
}

TEST(Resuming, ARatioBeyondTheChartsNumbersIsReportedAndPlacesNothing) {
  WizardData model = WardModel();
  StoreJudgments(model, kDirectType, 0, 3, -1e300, {1.0, 2.0, 2.0, 1.0, 0.5, 0.5, 0.5});
  Session session(model);
  session.Given("host show\nclick cmdNext\nclick cmdNext\nclick cmdNext");
  EXPECT_EQ(Only(session.Play(Choose(kNurses)), "runtime_error"),
            Lines{R"({"runtime_error":6,"description":"Overflow","in":"frmDirectB.imgcmbTargetAtt_Click"})"});
  EXPECT_EQ(session.Play(Choose(kNurses) + "get picHandle(0).Top").back(), session.Play("get picHandle(0).Top").back());
}

TEST(Resuming, GoesByTheStoredTypeAloneEvenWhenTheOrderHasChanged) {
  WizardData model = WardModel();
  StoreJudgments(model, kDirectType, 0, 3, 0.37, {1.0, 2.0, 2.0, 1.0, 0.5, 0.5, 0.5});
  Session session(model);
  session.Given("host show\nclick cmdNext\nclick cmdNext\nclick cmdAttButtons(1)\nclick cmdNext");
  EXPECT_EQ(
      session.Ask("data OrderChanged\ndata BRefAttID\nget cmdNext.Enabled\nget cmdFinish.Enabled\ndata WeightDone\n"
                  "data Weights\ndata RefAttWR"),
      (Lines{"true", "2", "true", "true", "[false,false,true,true,false,false,false]", "[0.8,1.2,1,1,0.8,0.8,0.8]",
             "1"}));
}

// A group without attributes.

TEST(EmptyGroup, OffersNoPairOfReferences) {
  DirectSession session({B(1), B(2), B(3)}, 1, -1);
  EXPECT_EQ(session.Ask("get imgcmbTargetAtt.Items\ndata CRankCount\ndata CRefAttID\ndata RefAttWR"),
            (Lines{R"(["Att 0","Att 1","Att 2"])", "0", "0", "1"}));
  const Lines refused = session.Play("select imgcmbTargetAtt 2\nget imgcmbTargetAtt.SelectedItem");
  ASSERT_EQ(refused.size(), 3U);
  EXPECT_EQ(refused[0], R"({"beep":true})");
  EXPECT_EQ(refused[2], R"({"get":"imgcmbTargetAtt.SelectedItem","value":1})");
}

TEST(EmptyGroup, DoesNotTakeAttributeZeroForItsReference) {
  DirectSession session({B(1), B(2), B(3)}, 1, -1);
  EXPECT_EQ(session.Ask(Wedge(120, 150) +
                        "click cmdEnter\nget imgcmbTargetAtt.Items\ndata WeightsH\nselect imgcmbTargetAtt 1\n"
                        "get lblChartTarAtt.Caption\nget lblChartRefAtt.Caption"),
            (Lines{R"([" ¤ Att 0","Att 1","Att 2"])", "[1.5,1,0.8]", R"("Att 0")", R"("Att 1")"}));
}

TEST(EmptyGroup, OfBenefitsLeavesTheCostGroupToBeJudgedAlone) {
  DirectSession session({C(1), C(2), C(3)}, -1, 1);
  EXPECT_EQ(
      session.Ask(Wedge(120, 150) + "click cmdEnter\nselect imgcmbTargetAtt 3\nclick cmdEnter\nget cmdNext.Enabled\n"
                                    "data Weights\nclick cmdNext\nget gridBRJ.Rows\nget gridCRJ.Rows"),
      (Lines{"true", "[1.35,1,0.8]", "1", "4"}));
}

TEST(EntryKeys, DropASecondPointBeforeTheNextCharacterToo) {
  OpenForm<frmDirectB> step(WardData());
  step.Open();
  TextBox& box = step.Form->txtWRLower;
  box.SetText("1.2.3");
  box.SelStart = 4;
  KeyEvent five{'5', 0};
  EXPECT_TRUE(Input::KeyPress(box, five));
  EXPECT_EQ(box.Text(), "1.23");
}

}  // namespace
}  // namespace Tarnwise
