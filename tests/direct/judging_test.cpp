// Enter, Re-start All, the results page, and how the step hands over.
#include "direct/Ward.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(Enter, StoresWhatTheBoxesShowAndNotTheHandlesFullPrecision) {
  EXPECT_EQ(
      Ward().Ask(
          "drag picHandle(0) picTradeOffsRange 99 126\ndrag picHandle(1) picTradeOffsRange 97 100\nclick cmdEnter\n"
          "data WeightsL\ndata Weights\ndata WeightsH"),
      (Lines{"[1,1.27,1.2,1,0.8,0.8,0.8]", "[1,1.42,1.2,1,0.8,0.8,0.8]", "[1,1.57,1.2,1,0.8,0.8,0.8]"}));
}

TEST(Enter, RunsUnderTheHourglassAndDisablesItself) {
  EXPECT_EQ(
      Ward()
          .Play("click cmdReStart\nclick cmdEnter\nget cmdEnter.Enabled\nget cmdReStart.Enabled\nget cmdNext.Enabled")
          .back(),
      R"({"get":"cmdNext.Enabled","value":false})");
  EXPECT_EQ(
      Ward().Play(
          "click cmdEnter\nget cmdEnter.Enabled\nget cmdReStart.Enabled\nget cmdNext.Enabled\nget cmdFinish.Enabled"),
      (Lines{R"({"pointer":11})", R"({"pointer":0})", R"({"get":"cmdEnter.Enabled","value":false})",
             R"({"get":"cmdReStart.Enabled","value":true})", R"({"get":"cmdNext.Enabled","value":false})",
             R"({"get":"cmdFinish.Enabled","value":false})"}));
}

TEST(Enter, MarksTheTargetAndItsPeersWithTheirNamesAsStored) {
  EXPECT_EQ(
      Ward().Ask(Enter(kResearch, 30, 60) + "get imgcmbTargetAtt.Items\ndata WeightDone\ndata WeightsL\ndata WeightsH\n"
                                            "get imgcmbTargetAtt.SelectedItem"),
      (Lines{R"(["Beds","Doctors","Care","Nurses"," ¤ Research","Night"," ¤ Rest "])",
             "[true,false,false,true,true,false,true]", "[1,1.2,1.2,1,0.3,0.8,0.3]", "[1,1.2,1.2,1,0.6,0.8,0.6]",
             "5"}));
}

TEST(Enter, OfTheLastRankEnablesNextAndFinish) {
  Ward session;
  EXPECT_EQ(session.Ask(Enter(kCare, 120, 150) + Enter(kDoctors, 130, 140) + Enter(kResearch, 30, 60) +
                        "get cmdNext.Enabled\nget cmdFinish.Enabled\n" + Enter(kNight, 70, 70) +
                        "get cmdNext.Enabled\nget cmdFinish.Enabled\ndata WeightDone"),
            (Lines{"false", "false", "true", "true", "[true,true,true,true,true,true,true]"}));
}

TEST(Enter, OnThePairOfReferencesSetsTheirRatioAndNothingElse) {
  Ward session;
  EXPECT_EQ(session
                .Play("click cmdReStart\n" + Choose(kBeds) +
                      "drag picHandle(0) picTradeOffsRange 100 51\nclick cmdEnter\ndata RefAttWR\ndata WeightDone\n"
                      "get cmdEnter.Enabled\nget cmdReStart.Enabled\nget imgcmbTargetAtt.Items\ndata Weights")
                .back(),
            R"({"data":"Weights","value":[1,1.2,1.2,1,0.8,0.8,0.8]})");
  EXPECT_EQ(session.Ask("click cmdReStart\n" + Choose(kBeds) +
                        "drag picHandle(0) picTradeOffsRange 100 51\nclick cmdEnter\ndata RefAttWR\ndata WeightDone\n"
                        "get cmdEnter.Enabled\nget cmdReStart.Enabled\nget imgcmbTargetAtt.Items"),
            (Lines{"2.01", "[true,false,false,true,false,false,false]", "true", "false",
                   R"(["Beds","Doctors","Care","Nurses","Research","Night","Rest"])"}));
}

TEST(Enter, OnThePairOfReferencesReadsTheLowerBoxAlone) {
  EXPECT_EQ(Ward().Ask(Choose(kBeds) +
                       "focus txtWRUpper\nkey Ctrl+A\ntype 2\nkey Return\nget txtWRLower.Text\nget txtWRUpper.Text\n"
                       "click cmdEnter\ndata RefAttWR"),
            (Lines{R"("1.00")", R"("2.00")", "1"}));
}

TEST(Enter, AgainOnAJudgedTargetCommitsAnew) {
  EXPECT_EQ(Ward().Ask(Enter(kCare, 120, 150) + Enter(kCare, 160, 170) + "data WeightsL\ndata WeightsH"),
            (Lines{"[1,1.2,1.6,1,0.8,0.8,0.8]", "[1,1.2,1.7,1,0.8,0.8,0.8]"}));
}

const char* const kPrompt =
    R"({"event":"SendMasseges","Msg":" Indicate a value reference region on the two selected attributes."})";

TEST(ReStart, SetsEverythingBackButTheRatioOfTheReferences) {
  EXPECT_EQ(Ward().Ask(Choose(kBeds) + "drag picHandle(0) picTradeOffsRange 100 52\nclick cmdEnter\n" + JudgeAll() +
                       "click cmdReStart\ndata WeightsL\ndata Weights\ndata WeightsH\ndata WeightDone\ndata RefAttWR\n"
                       "get imgcmbTargetAtt.Items\nget imgcmbTargetAtt.SelectedItem\nget lblChartTarAtt.Caption\n"
                       "get txtWRLower.Text\nget txtWRUpper.Text\nget picHandle(0).Left"),
            (Lines{"[1,1.2,1.2,1,0.8,0.8,0.8]", "[1,1.2,1.2,1,0.8,0.8,0.8]", "[1,1.2,1.2,1,0.8,0.8,0.8]",
                   "[true,false,false,true,false,false,false]", "2",
                   R"(["Beds","Doctors","Care","Nurses","Research","Night","Rest"])", "2", R"("Doctors")", R"("1.20")",
                   R"("1.20")", "144"}));
}

TEST(ReStart, EnablesEnterDisablesItselfAndNextAndLeavesFinish) {
  EXPECT_EQ(
      Ward().Ask(JudgeAll() + "click cmdReStart\nget cmdEnter.Enabled\nget cmdReStart.Enabled\nget cmdNext.Enabled\n"
                              "get cmdFinish.Enabled"),
      (Lines{"true", "false", "false", "true"}));
  EXPECT_EQ(Ward().Ask("click cmdReStart\nget cmdFinish.Enabled"), Lines{"false"});
}

TEST(ReStart, SendsThePromptAgainUnderTheHourglass) {
  EXPECT_EQ(Ward().Play("click cmdReStart"),
            (Lines{R"({"pointer":11})", R"({"pointer":11})", kPrompt, R"({"pointer":0})", R"({"pointer":0})"}));
}

TEST(ReStart, FromThePairOfReferencesShowsTheFirstTargetsOrderPanel) {
  Ward session;
  EXPECT_EQ(session.Play(Choose(kCare) + "click cmdReStart\nclick lblOID1(0)").size(), 5U);
  EXPECT_EQ(session.Status(), 0);
}

TEST(ReStart, LeavesTheRangesInFrontWhereTheirTabIsChosen) {
  Ward session;
  EXPECT_EQ(session.Ask("select tsTab 2\nclick cmdReStart\nclick lblTargetAtt\nget tsTab.SelectedItem"), Lines{"2"});
  EXPECT_EQ(session.Status(), 0);
}

TEST(ReStart, NeedsAnotherCommitBeforeItCanBeClickedAgain) {
  Ward session;
  EXPECT_EQ(Only(session.Play("click cmdReStart\nclick cmdReStart"), "refused").size(), 1U);
  EXPECT_EQ(session.Play("click cmdReStart\nclick cmdEnter\nclick cmdReStart").size(), 12U);
  EXPECT_EQ(session.Status(), 0);
}

TEST(Next, ShowsTheResultsOfWhatIsStored) {
  EXPECT_EQ(
      Ward().Ask(JudgeAll() +
                 "click cmdNext\nget frmDirectB.Caption\nget cmdBack.Enabled\nget cmdNext.Enabled\n"
                 "get cmdFinish.Enabled\nget gridBRJ.TextMatrix\nget gridCRJ.TextMatrix\nget gridBRJ.Rows\n"
                 "get gridCRJ.Cols\nget tsWeightRatios.Items"),
      (Lines{
          R"("Tarnwise: Results of the value judgments")", "true", "false", "true",
          R"([["ID","Attributes","Weights","Weight ratios","Ratio ranges"],["1","Beds","Wb1","Wb1/Wb1","1"],["2","Care","Wb2","Wb2/Wb1","1.20,     1.50"],["3","Research","Wb3","Wb3/Wb1","0.30,     0.60"],["4","Rest","Wb4","Wb4/Wb1","0.30,     0.60"]])",
          R"([["ID","Attributes","Weights","Weight ratios","Ratio ranges"],["1","Doctors","Wc1","Wc1/Wc2","1.30,     1.40"],["2","Nurses","Wc2","Wc2/Wc2","1"],["3","Night","Wc3","Wc3/Wc2","0.70,     0.70"]])",
          "5", "5", R"(["Benefit value judgments","Cost value judgments"])"}));
}

TEST(Next, BringsTheResultsAndOnThemTheBenefitGridToTheFront) {
  Ward session;
  EXPECT_EQ(
      Only(session.Play(JudgeAll() + "click cmdNext\nclick cmdEnter\nclick gridBRJ\nclick gridCRJ"), "refused").size(),
      2U);
  EXPECT_EQ(Only(session.Play(JudgeAll() + "click cmdNext\nclick gridBRJ"), "refused"), Lines{});
}

TEST(Results, TabsShowOneGridAndHideTheOther) {
  const String shown = "get gridBRJ.Visible\nget gridCRJ.Visible\n";
  EXPECT_EQ(
      Ward().Ask(JudgeAll() + "click cmdNext\nselect tsWeightRatios 2\n" + shown + "select tsWeightRatios 1\n" + shown),
      (Lines{"false", "true", "true", "false"}));
}

TEST(Results, KeepTheTabThatWasChosenOnAnEarlierVisit) {
  EXPECT_EQ(Ward().Ask(JudgeAll() + "click cmdNext\nselect tsWeightRatios 2\nclick cmdBack\nclick cmdNext\n"
                                    "get tsWeightRatios.SelectedItem\nget gridBRJ.Visible\nget gridCRJ.Visible"),
            (Lines{"2", "false", "true"}));
}

TEST(Back, FromTheResultsDisablesFinishAndEnablesNext) {
  EXPECT_EQ(
      Ward().Ask(JudgeAll() +
                 "click cmdNext\nclick cmdBack\nget frmDirectB.Caption\nget cmdFinish.Enabled\n"
                 "get cmdNext.Enabled\nget cmdBack.Enabled\nget cmdEnter.Enabled\n" +
                 Choose(kCare) + "get txtWRUpper.Text"),
      (Lines{R"("Tarnwise: Estimate intervals of the weight ratios")", "false", "true", "true", "false", R"("1.50")"}));
}

TEST(Back, FromTheJudgmentsGoesToTheOrderingStepAsItWasLeft) {
  EXPECT_EQ(
      Ward().Play("click cmdBack\nget frmIniImpOrder.Caption\nget lblBRefAtt.Caption"),
      (Lines{R"({"hide":"frmDirectB"})", R"({"show":"frmIniImpOrder","modal":false})", R"({"release":"frmDirectB"})",
             R"({"get":"frmIniImpOrder.Caption","value":"Tarnwise: Designate reference attributes"})",
             R"({"get":"lblBRefAtt.Caption","value":"Beds"})"}));
}

TEST(Back, AndForwardAgainSeedsTheRatiosAnew) {
  EXPECT_EQ(Ward().Ask(JudgeAll() +
                       "click cmdBack\nclick cmdNext\ndata WeightsH\nget cmdNext.Enabled\nget cmdFinish.Enabled\n"
                       "get cmdReStart.Enabled"),
            (Lines{"[1,1.2,1.2,1,0.8,0.8,0.8]", "false", "false", "true"}));
}

const char* const kExport =
    R"({"event":"ExportDirectBW","RJType":"DEA_DIRECT","BRefAttID":0,"CRefAttID":3,"RefAttWR":1,"Weights":[1,1.35,1.35,1,0.44999999999999996,0.7,0.44999999999999996],"WeightsH":[1,1.4,1.5,1,0.6,0.7,0.6],"WeightsL":[1,1.3,1.2,1,0.3,0.7,0.3]})";

TEST(Finish, ExportsUnderTheHourglassAndEndsTheWizard) {
  for (const char* way : {"click cmdFinish", "click cmdNext\nclick cmdFinish"}) {
    const Lines printed = Ward().Play(JudgeAll() + way + "\nforms");
    EXPECT_EQ(Lines(printed.end() - 9, printed.end()),
              (Lines{R"({"pointer":11})", kExport, R"({"pointer":0})",
                     R"({"event":"UnloadTarnwise","fIndex":3,"WeightsDone":true})", R"({"hide":"frmDirectB"})",
                     R"({"release":"frmTRNSelMethod"})", R"({"release":"frmDirectB"})",
                     R"({"release":"frmIniImpOrder"})", R"({"forms":[]})"}))
        << way;
  }
}

TEST(Finish, AfterReStartExportsTheDefaults) {
  const Lines printed = Ward().Play(JudgeAll() + "click cmdReStart\nclick cmdFinish");
  EXPECT_EQ(
      Only(printed, "ExportDirectBW"),
      Lines{
          R"({"event":"ExportDirectBW","RJType":"DEA_DIRECT","BRefAttID":0,"CRefAttID":3,"RefAttWR":1,"Weights":[1,1.2,1.2,1,0.8,0.8,0.8],"WeightsH":[1,1.2,1.2,1,0.8,0.8,0.8],"WeightsL":[1,1.2,1.2,1,0.8,0.8,0.8]})"});
}

TEST(Finish, OfAResumedSessionHandsBackWhatWasStored) {
  WizardData model = WardModel();
  StoreJudgments(model, kDirectType, 0, 3, 0.37, {1.0, 2.0, 2.0, 1.0, 0.5, 0.5, 0.5});
  Session session(model);
  session.Given("host show\nclick cmdNext\nclick cmdNext\nclick cmdNext");
  EXPECT_EQ(
      Only(session.Play("click cmdFinish"), "ExportDirectBW"),
      Lines{
          R"({"event":"ExportDirectBW","RJType":"DEA_DIRECT","BRefAttID":0,"CRefAttID":3,"RefAttWR":0.37,"Weights":[1,2,2,1,0.5,0.5,0.5],"WeightsH":[1.125,2.125,2.125,1.125,0.625,0.625,0.625],"WeightsL":[0.875,1.875,1.875,0.875,0.375,0.375,0.375]})"});
}

TEST(Cancel, OnEitherPageOnlyUnloads) {
  for (const String& way :
       {String("click cmdCancel"), String("close"), JudgeAll() + "click cmdNext\nclick cmdCancel"}) {
    const Lines printed = Ward().Play("host answer off\n" + way + "\nget frmDirectB.Visible");
    EXPECT_EQ(Lines(printed.end() - 2, printed.end()),
              (Lines{R"({"event":"UnloadTarnwise","fIndex":3,"WeightsDone":false})",
                     R"({"get":"frmDirectB.Visible","value":true})"}));
    EXPECT_EQ(Only(printed, "Export"), Lines{});
  }
}

TEST(Help, OpensThePageOfAllStepsOnEitherPage) {
  const String help = R"({"help":"C:/KESTA\\KESTA.HLP","command":1,"context":4005025})";
  EXPECT_EQ(Ward().Play("click cmdHelp"), Lines{help});
  EXPECT_EQ(Ward().Play(JudgeAll() + "click cmdNext\nclick cmdHelp").back(), help);
}

}  // namespace
}  // namespace Tarnwise
