// Run-time errors on the way: what the user sees of them, and what is left to go on with.
#include "Places.h"

#include <stdexcept>

namespace Tarnwise {
namespace {

// All attributes of both groups tie, so there is nothing to judge and the judgment step can't be set up.
Steps ToAllTied(Wizarding& host) {
  return Wizarding::Joined(host.ToOrdering(),
                           {host.Drags("cmdAttA(0)", "picOrder(0)"), host.Drags("cmdAttA(1)", "picOrder(0)"),
                            host.Drags("cmdAttA1(0)", "picOrder1(0)"), host.Drags("cmdAttA1(1)", "picOrder1(0)"),
                            host.Clicks("cmdNext"), host.Clicks("cmdAttButtons(0)"), host.Clicks("cmdAttButtons1(0)")});
}

TEST(Faults, AModelInWhichAllTieEndsOverTheOrderingStep) {
  Wizarding host(Wizarding::Model());
  host.Load();
  bool asked = false;
  host.Run(Wizarding::Joined(
      ToAllTied(host), {[&] { host.TakeNotes(); }, host.Clicks("cmdNext"),
                        [&] {
                          EXPECT_EQ(host.Notes,
                                    Lines({"hide frmIniImpOrder", "pointer 11", "release frmDirectB",
                                           "show frmIniImpOrder", "pointer 0", "error 9 in frmDirectB.Form_Load"}));
                          EXPECT_EQ(host.Active(), "frmIniImpOrder");
                          EXPECT_EQ(host.Forms(), Lines({"frmTRNSelMethod", "frmIniImpOrder"}));
                          EXPECT_EQ(host.Screen->Pointer(), 0);
                          EXPECT_EQ(host.Named("frmIniImpOrder").Visible(), true);
                          asked = true;
                        }}));
  EXPECT_TRUE(asked) << "the ordering step blocks on";
}

TEST(Faults, AfterTheFaultTheUserCanGoBackAndRankOtherwise) {
  Wizarding host(Wizarding::Model());
  host.Load();
  bool asked = false;
  host.Run(Wizarding::Joined(ToAllTied(host),
                             {host.Clicks("cmdNext"), host.Clicks("cmdBack"), host.Clicks("cmdAdd"),
                              host.Drags("cmdAttB(1)", "picOrder(1)"), host.Clicks("cmdNext"), host.Clicks("cmdNext"),
                              [&] {
                                EXPECT_EQ(host.Active(), "frmDirectB");
                                asked = true;
                              },
                              host.Clicks("cmdBack"), host.Clicks("cmdCancel")}));
  EXPECT_TRUE(asked);
  EXPECT_TRUE(host.Screen->Forms().empty());
}

TEST(Faults, TheModalCallsUnwindAfterAFaultInTheirMiddle) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.Run(Wizarding::Joined(ToAllTied(host), {host.Clicks("cmdNext"), host.Clicks("cmdNext"), host.Clicks("cmdNext"),
                                               [&] { host.Close(); }}));
  EXPECT_EQ(Only(host.Notes, "error 9").size(), 3U);
  EXPECT_TRUE(host.Screen->Forms().empty());
  EXPECT_EQ(host.Screen->ActiveForm(), nullptr);
  EXPECT_FALSE(host.StepsLeft());
}

TEST(Faults, MoreAttributesThanTheModelHoldsEndOverTheFirstStep) {
  WizardData model = ModelOf(2, 2);
  model.ModelHeader.NumAtts = 32;
  Wizarding host(model);
  host.Load();
  bool asked = false;
  host.Run({host.Shows(), [&] { host.TakeNotes(); }, host.Clicks("cmdNext"),
            [&] {
              EXPECT_EQ(host.Notes, Lines({"hide frmTRNSelMethod", "release frmIniImpOrder", "show frmTRNSelMethod",
                                           "error 9 in frmIniImpOrder.Form_Load"}));
              EXPECT_EQ(host.Active(), "frmTRNSelMethod");
              asked = true;
            }});
  EXPECT_TRUE(asked);
}

TEST(Faults, PointsThatWereNeverGivenEndOverTheOrderingStep) {
  Wizarding host(Wizarding::Judged(kTradeOffsType));
  host.Load();
  host.Run(Wizarding::Joined(host.ToStoredJudgments(), {[&] {
                               EXPECT_EQ(host.Active(), "frmIniImpOrder");
                               EXPECT_EQ(Only(host.Notes, "error"), Lines({"error 9 in frmTradeOffsB.Form_Load"}));
                               EXPECT_EQ(host.Screen->Pointer(), 0);
                             }}));
  EXPECT_EQ(Only(host.Notes, "release frmTradeOffsB").size(), 1U);
}

TEST(Faults, InAHandlerEndTheHandlerAndNothingElse) {
  Wizarding host(Wizarding::Model());
  host.Load();
  bool asked = false;
  host.Run(Wizarding::Joined(host.ToReferences(),
                             {[&] {
                                host.TakeNotes();
                                mdTRNMain().AttributeList.AttName.Allocate(0);
                                host.Click("cmdAttButtons(1)");
                                EXPECT_EQ(host.Notes, Lines({"error 9 in frmIniImpOrder.cmdAttButtons_Click"}));
                                EXPECT_EQ(host.Active(), "frmIniImpOrder");
                                EXPECT_EQ(host.Screen->HandlerDepth, 0)
                                    << "the handler that shows the form waits and does not count";
                                asked = true;
                              },
                              host.Clicks("cmdCancel")}));
  EXPECT_TRUE(asked);
  EXPECT_TRUE(host.Screen->Forms().empty());
}

TEST(Faults, AreToldInAMessageBoxWhereNobodyWatches) {
  Wizarding host(Wizarding::Model());
  host.Load();
  host.Screen->Trace.Failed = nullptr;
  host.Run(Wizarding::Joined(ToAllTied(host), {host.Clicks("cmdNext")}));
  EXPECT_EQ(Only(host.Notes, "msgbox"), Lines({"msgbox Run-time error '9':\n\nSubscript out of range"}));
}

TEST(Faults, OfTheHostAsRunTimeErrorsAreToldLikeTheWizardsOwn) {
  Wizarding host(Wizarding::Judged());
  host.Load();
  host.InEvent = [](const String& event) {
    if (event == "ExportDirectBW") throw RuntimeError(13);
  };
  bool asked = false;
  host.Run(Wizarding::Joined(host.ToStoredJudgments(),
                             {[&] { host.TakeNotes(); }, host.Clicks("cmdFinish"),
                              [&] {
                                EXPECT_EQ(host.Notes, Lines({"pointer 11", "export DEA_DIRECT", "pointer 0",
                                                             "error 13 in frmDirectB.cmdFinish_Click"}));
                                EXPECT_EQ(host.Active(), "frmDirectB");
                                asked = true;
                              }}));
  EXPECT_TRUE(asked);
}

TEST(Faults, OfTheHostThatAreNoExceptionsLeaveTheWizardInOrder) {
  Wizarding host(Wizarding::Judged());
  host.Load();
  host.InEvent = [](const String& event) {
    if (event == "ExportDirectBW") throw 7;  // NOLINT: a host may do it
  };
  try {
    host.Run(Wizarding::Joined(host.ToStoredJudgments(), {host.Clicks("cmdFinish")}));
  } catch (int) {
    SUCCEED();
  }
  host.InEvent = nullptr;
  EXPECT_EQ(host.Screen->HandlerDepth, 0);
  host.Wizard->UnloadTarnwise();
  EXPECT_EQ(host.Screen->ActiveForm(), nullptr);
  host.Run({host.Shows(), [&] { EXPECT_EQ(host.Active(), "frmTRNSelMethod"); }, host.Clicks("cmdNext"),
            [&] { EXPECT_EQ(host.Active(), "frmIniImpOrder"); }});
}

TEST(Faults, ArePrintedByTheSessionPlayer) {
  Session s(ModelOf(2, 2));
  s.Given(String(kOpenOrdering) + Drags("cmdAttA", {"picOrder(0)", "picOrder(0)"}) +
          Drags("cmdAttA1", {"picOrder1(0)", "picOrder1(0)"}) + "click cmdNext");
  EXPECT_EQ(s.Play("click cmdNext\nforms"),
            Lines({R"({"hide":"frmIniImpOrder"})", R"({"pointer":11})", R"({"release":"frmDirectB"})",
                   R"({"show":"frmIniImpOrder","modal":false})", R"({"pointer":0})",
                   R"({"runtime_error":9,"description":"Subscript out of range","in":"frmDirectB.Form_Load"})",
                   R"({"forms":[{"name":"frmTRNSelMethod","visible":false,"modal":false},)"
                   R"({"name":"frmIniImpOrder","visible":true,"modal":true}]})"}));
}

TEST(Faults, OfAHostsCallArePrintedAsOfThatMethod) {
  Session s(ModelOf(2, 2));
  EXPECT_EQ(
      s.Play(R"(host points {"AX":[1]})"),
      Lines({R"({"runtime_error":9,"description":"Subscript out of range","in":"TRN_DEA.TranferABCoordinates"})"}));
  EXPECT_EQ(s.Play("host load model.kst C:/KESTA 40000"),
            Lines({R"({"runtime_error":6,"description":"Overflow","in":"TRN_DEA.GetCurFileData"})"}));
}

}  // namespace
}  // namespace Tarnwise
