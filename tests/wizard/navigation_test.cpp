// The way through the wizard: which forms are shown, hidden and released, and in which order.
#include "Navigating.h"

namespace Tarnwise {
namespace {

constexpr const char* kSaysMethod = "say Select a method to make value judgments between the attributes.";
constexpr const char* kSaysOrder = "say Rank the attributes according to their relative importance.";
constexpr const char* kSaysDirect = "say  Indicate a value reference region on the two selected attributes.";
constexpr const char* kSaysTradeOffs = "say  Give your preference between the two selected criteria.";

TEST(Navigation, NextOfTheFirstStepHidesItAndShowsTheOrderingStepModally) {
  Navigation n;
  EXPECT_EQ(n.MovesOf({n.Shows()}, {n.Clicks("cmdNext")}),
            Lines({"hide frmTRNSelMethod", kSaysOrder, "show frmIniImpOrder modal"}));
}

TEST(Navigation, BackOfTheOrderingStepReleasesItAndThenShowsTheFirst) {
  Navigation n;
  EXPECT_EQ(n.MovesOf(n.ToOrdering(), {n.Clicks("cmdBack")}),
            Lines({"hide frmIniImpOrder", "release frmIniImpOrder", "show frmTRNSelMethod"}));
  EXPECT_EQ(n.Forms(), Lines({"frmTRNSelMethod"}));
}

TEST(Navigation, NextBackNextKeepsTheFirstStepAndMakesTheOrderingStepAnew) {
  Navigation n;
  const Form* method = nullptr;
  bool asked = false;
  n.Run(Wizarding::Joined(n.ToOrdering(), {[&] { method = n.Screen->Forms().at(0); }, n.Clicks("cmdAdd"),
                                           n.Clicks("cmdBack"), n.Clicks("cmdNext"),
                                           [&] {
                                             EXPECT_EQ(n.Screen->Forms().at(0), method);
                                             EXPECT_EQ(n.Screen->Forms().at(1)->CountOf("picOrder"), 1);
                                             EXPECT_EQ(n.Active(), "frmIniImpOrder");
                                             asked = true;
                                           }}));
  EXPECT_TRUE(asked);
  EXPECT_EQ(Only(n.Notes, kSaysMethod).size(), 1U);
  EXPECT_EQ(Only(n.Notes, kSaysOrder).size(), 2U);
}

TEST(Navigation, NextOfTheReferencesHidesTheOrderingStepAndShowsTheDirectOneModally) {
  Navigation n;
  EXPECT_EQ(n.MovesOf(n.ToReferences(), {n.Clicks("cmdNext")}),
            Lines({"hide frmIniImpOrder", kSaysDirect, "show frmDirectB modal"}));
}

TEST(Navigation, NextOfTheReferencesShowsTheTradeOffStepForTheOtherApproach) {
  Navigation n;
  Steps steps = n.ToReferences();
  steps.insert(steps.begin() + 1, n.Chooses(1));
  EXPECT_EQ(n.MovesOf(steps, {n.Clicks("cmdNext")}),
            Lines({"hide frmIniImpOrder", kSaysTradeOffs, "show frmTradeOffsB modal"}));
}

TEST(Navigation, BackOfTheDirectStepShowsTheOrderingStepAndThenReleasesIt) {
  Navigation n;
  EXPECT_EQ(n.MovesOf(n.ToJudgments(), {n.Clicks("cmdBack")}),
            Lines({"hide frmDirectB", "show frmIniImpOrder", "release frmDirectB"}));
}

TEST(Navigation, BackOfTheTradeOffStepShowsTheOrderingStepAndThenReleasesIt) {
  Navigation n;
  Steps steps = n.ToJudgments();
  steps.insert(steps.begin() + 1, n.Chooses(1));
  EXPECT_EQ(n.MovesOf(steps, {n.Clicks("cmdBack")}),
            Lines({"hide frmTradeOffsB", "show frmIniImpOrder", "release frmTradeOffsB"}));
}

TEST(Navigation, TheOrderingStepComesBackAsItWasLeftAndStaysInCharge) {
  Navigation n;
  bool asked = false;
  n.Run(Wizarding::Joined(n.ToJudgments(), {n.Clicks("cmdBack"), [&] {
                                              Form* const form = n.Screen->ActiveForm();
                                              ASSERT_NE(form, nullptr);
                                              EXPECT_EQ(form->Name, "frmIniImpOrder");
                                              EXPECT_EQ(form->Caption(), "Tarnwise: Designate reference attributes");
                                              EXPECT_TRUE(n.Screen->IsModal(*form));
                                              EXPECT_FALSE(n.Screen->Forms().at(0)->Visible);
                                              asked = true;
                                            }}));
  EXPECT_TRUE(asked);
}

TEST(Navigation, ForwardAgainMakesTheDirectStepAnewFromTheWizardData) {
  Navigation n;
  EXPECT_EQ(n.MovesOf(n.ToJudgments(), {n.Clicks("cmdBack"), n.Clicks("cmdNext")}),
            Lines({"hide frmDirectB", "show frmIniImpOrder", "release frmDirectB", "hide frmIniImpOrder", kSaysDirect,
                   "show frmDirectB modal"}));
}

TEST(Navigation, BackToTheFirstStepAndForwardCanChangeTheApproach) {
  Navigation n;
  Steps steps = n.ToJudgments();
  for (const char* button : {"cmdBack", "cmdBack", "cmdBack"}) steps.push_back(n.Clicks(button));
  steps.push_back(n.Chooses(1));
  Steps again = n.ToReferences();
  steps.insert(steps.end(), again.begin() + 1, again.end());
  n.Run(Wizarding::Joined(steps, {n.Clicks("cmdNext"), [&n] { EXPECT_EQ(n.Active(), "frmTradeOffsB"); }}));
  EXPECT_EQ(Only(n.Notes, "show frmTradeOffsB modal").size(), 1U);
}

TEST(Navigation, ManyTimesThereAndBackLeavesNothingBehind) {
  Navigation n(Wizarding::Judged());
  Steps steps = {n.Shows()};
  for (int i = 0; i < 40; ++i) {
    for (const char* button : {"cmdNext", "cmdNext", "cmdNext", "cmdBack", "cmdBack", "cmdBack"}) {
      steps.push_back(n.Clicks(button));
    }
  }
  steps.push_back([&n] {
    EXPECT_EQ(n.Forms(), Lines({"frmTRNSelMethod"}));
    EXPECT_EQ(n.Active(), "frmTRNSelMethod");
  });
  n.Run(steps);
  EXPECT_FALSE(n.StepsLeft());
  EXPECT_EQ(Only(n.Notes, "release frmDirectB").size(), 40U);
}

TEST(Cancel, OfEachStepIsAnsweredByTheHost) {
  const auto places = [](Navigation& n) {
    return std::vector<Steps>{{n.Shows()}, n.ToOrdering(), n.ToReferences(), n.ToJudgments()};
  };
  for (std::size_t place = 0; place < 4; ++place) {
    for (const bool byCloseButton : {false, true}) {
      SCOPED_TRACE(place);
      Navigation n;
      Steps steps = places(n)[place];
      steps.push_back([&n] { n.TakeNotes(); });
      steps.push_back(byCloseButton ? std::function<void()>([&n] { n.Close(); }) : n.Clicks("cmdCancel"));
      n.Run(steps);
      ASSERT_FALSE(n.Notes.empty());
      EXPECT_EQ(n.Notes.front(), "unload 3 cancelled");
      EXPECT_EQ(Only(n.Notes, "unload").size(), 1U);
      EXPECT_EQ(Only(n.Notes, "export").size(), 0U);
      EXPECT_TRUE(n.Screen->Forms().empty());
      EXPECT_FALSE(n.StepsLeft());
    }
  }
}

TEST(Cancel, LeavesAllStepsInPlaceUntilTheHostAnswers) {
  Navigation n;
  n.Answers = false;
  bool asked = false;
  n.Run(Wizarding::Joined(n.ToJudgments(),
                          {[&n] { n.TakeNotes(); }, n.Clicks("cmdCancel"), [&n] { n.Close(); },
                           [&] {
                             EXPECT_EQ(n.Notes, Lines(2, "unload 3 cancelled"));
                             EXPECT_EQ(n.Forms(), Lines({"frmTRNSelMethod", "frmIniImpOrder", "frmDirectB"}));
                             EXPECT_EQ(n.Active(), "frmDirectB");
                             n.Wizard->UnloadTarnwise();
                             EXPECT_TRUE(n.Screen->Forms().empty());
                             asked = true;
                           }}));
  EXPECT_TRUE(asked);
}

TEST(Finish, OfTheDirectStepExportsAndThenEndsTheWizard) {
  Navigation n(Wizarding::Judged());
  n.Run(Wizarding::Joined(n.ToStoredJudgments(), {[&n] { n.TakeNotes(); }, n.Clicks("cmdFinish")}));
  EXPECT_EQ(n.Notes, Lines({"pointer 11", "export DEA_DIRECT", "pointer 0", "unload 3 done", "hide frmDirectB",
                            "release frmTRNSelMethod", "release frmDirectB", "release frmIniImpOrder"}));
}

TEST(Finish, OfTheTradeOffStepExportsByTheSameEventAndThenThePoints) {
  Navigation n(Wizarding::Judged(kTradeOffsType));
  n.Run(Wizarding::Joined(n.ToStoredJudgments(), {[&n] { n.TakeNotes(); }, n.Clicks("cmdFinish")}));
  EXPECT_EQ(n.Notes, Lines({"pointer 11", "export DEA_TRADEOFFS", "export points", "pointer 0", "unload 3 done",
                            "hide frmTradeOffsB", "release frmTRNSelMethod", "release frmIniImpOrder",
                            "release frmTradeOffsB"}));
}

TEST(Finish, HandsTheArraysOverByReference) {
  Navigation n(Wizarding::Judged());
  n.Wizard->Events().ExportDirectBW = [](const String& type, Integer benefit, Integer cost, Variant& ratio,
                                         VariantArray& weights, VariantArray& high, VariantArray& low) {
    EXPECT_EQ(type, "DEA_DIRECT");
    EXPECT_EQ(benefit, 0);
    EXPECT_EQ(cost, 2);
    EXPECT_EQ(ToDouble(ratio), 1.5);
    ASSERT_EQ(weights.size(), 4U);
    EXPECT_EQ(ToDouble(weights[1]), 0.5);
    EXPECT_EQ(ToDouble(high[1]), 0.625);
    EXPECT_EQ(ToDouble(low[1]), 0.375);
    weights[1] = 0.75;
    ratio = 2.0;
  };
  n.Run(Wizarding::Joined(n.ToStoredJudgments(), {n.Clicks("cmdFinish")}));
  EXPECT_EQ(ToDouble(mdTRNMain().Weights[1]), 0.75);
  EXPECT_EQ(ToDouble(mdTRNMain().RefAttWR), 2.0);
}

TEST(Finish, OfTheTradeOffStepHandsOverFreshPointsWithTheHostsOrientation) {
  Navigation n(Wizarding::Judged(kTradeOffsType));
  n.Wizard->Events().ExportABScores = [](VariantArray& AX, VariantArray& AY, VariantArray& BX, VariantArray& BY,
                                         VariantArray& AOrientation, VariantArray& ALX, VariantArray& ALY,
                                         VariantArray& AUX, VariantArray& AUY) {
    for (const VariantArray* array : {&AX, &AY, &BX, &BY, &AOrientation, &ALX, &ALY, &AUX, &AUY}) {
      EXPECT_EQ(array->size(), 4U);
    }
    EXPECT_EQ(AX[1], Variant(11.0F));
    EXPECT_EQ(AUY[3], Variant(33.0F));
    EXPECT_EQ(AOrientation[1], Variant(Integer(1))) << "as it came from the host";
    AX[1] = 99.0F;
  };
  n.Run(Wizarding::Joined(n.ToStoredJudgments(), {[] {
                                                    mdTRNMain().ABPoints2[1].AX = 11.0F;
                                                    mdTRNMain().ABPoints2[3].AUY = 33.0F;
                                                    mdTRNMain().ABPoints2[1].AOrientation = 2;
                                                    mdTRNMain().ABPoints1[1].AOrientation = 1;
                                                  },
                                                  n.Clicks("cmdFinish")}));
  EXPECT_EQ(mdTRNMain().ABPoints2[1].AX, 11.0F) << "the arrays are fresh ones";
}

TEST(Session, PrintsTheRoadThroughTheDirectApproach) {
  Session s(Wizarding::Judged());
  s.Given("host show\nclick cmdNext\nclick cmdNext");
  EXPECT_EQ(
      s.Play("forms\nclick cmdNext\nclick cmdNext\nget cmdFinish.Enabled\nclick cmdFinish\nforms"),
      Lines({R"({"forms":[{"name":"frmTRNSelMethod","visible":false,"modal":false},)"
             R"({"name":"frmIniImpOrder","visible":true,"modal":true}]})",
             R"({"hide":"frmIniImpOrder"})", R"({"pointer":11})",
             R"({"event":"SendMasseges","Msg":" Indicate a value reference region on the two selected attributes."})",
             R"({"pointer":0})", R"({"show":"frmDirectB","modal":true})", R"({"get":"cmdFinish.Enabled","value":true})",
             R"({"pointer":11})",
             R"({"event":"ExportDirectBW","RJType":"DEA_DIRECT","BRefAttID":0,"CRefAttID":2,"RefAttWR":1.5,)"
             R"("Weights":[1,0.5,1,0.5],"WeightsH":[1.125,0.625,1.125,0.625],"WeightsL":[0.875,0.375,0.875,0.375]})",
             R"({"pointer":0})", R"({"event":"UnloadTarnwise","fIndex":3,"WeightsDone":true})",
             R"({"hide":"frmDirectB"})", R"({"release":"frmTRNSelMethod"})", R"({"release":"frmDirectB"})",
             R"({"release":"frmIniImpOrder"})", R"({"forms":[]})"}));
  EXPECT_EQ(s.Status(), 0);
}

}  // namespace
}  // namespace Tarnwise
