// The step inside of the wizard, from the first form to the host.
#include "tradeoffs/TradeOffs.h"

#include "modelfiles/PlainJson.h"

namespace Tarnwise {
namespace {

const std::vector<RankedAtt> kAtts = {B(1), B(2), B(2), C(1), C(2)};

WizardData WardModel() { return ModelFor(kAtts); }

// Everything up to the step: benefits 0 and 1 to 2, costs 3 and 4, the references 1 and 4.
String ToTradeOffs(const String& points = "host points zero\n") {
  String lines = ToDirectStep(kAtts, 1, 4);
  const String show = "host show\n";
  lines.insert(lines.find(show) + show.size(), "select lstMethods 1\n");
  return points + lines;
}

// A session that stands on the step.
struct TradeOffSession : Session {
  explicit TradeOffSession(const WizardData& model = WardModel()) : Session(model) { Given(ToTradeOffs()); }
};

std::vector<Json> Parsed(const Lines& lines) {
  std::vector<Json> objects;
  for (const String& line : lines) objects.push_back(Json::parse(line));
  return objects;
}

Lines NamesOf(const std::vector<Json>& objects) {
  Lines names;
  for (const Json& object : objects) {
    const String first = object.begin().key();
    names.push_back(object.contains("event")     ? String(object["event"])
                    : object.contains("show")    ? "show " + String(object["show"])
                    : object.contains("hide")    ? "hide " + String(object["hide"])
                    : object.contains("pointer") ? "pointer " + object["pointer"].dump()
                    : object.contains("release") ? "release " + String(object["release"])
                                                 : first);
  }
  return names;
}

TEST(TradeOffSessionOf, EnterOfEveryTargetLeadsToTheExports) {
  TradeOffSession session;
  const std::vector<Json> printed =
      Parsed(session.Play("click cmdEnter\nselect imgcmbTargetAtt 4\nclick cmdEnter\nclick cmdNext\nclick cmdFinish"));
  EXPECT_EQ(session.Status(), 0);
  const Lines names = NamesOf(printed);
  ASSERT_GE(names.size(), 5U);
  const auto weights = std::find(names.begin(), names.end(), "ExportDirectBW");
  ASSERT_NE(weights, names.end());
  const auto at = static_cast<std::size_t>(weights - names.begin());
  EXPECT_EQ(names[at - 1], "pointer 11");
  EXPECT_EQ(names[at + 1], "ExportABScores");
  EXPECT_EQ(names[at + 2], "pointer 0");
  EXPECT_EQ(names[at + 3], "UnloadTarnwise");
  EXPECT_EQ(printed[at]["RJType"], "DEA_TRADEOFFS");
  EXPECT_EQ(printed[at]["BRefAttID"], 1);
  EXPECT_EQ(printed[at]["CRefAttID"], 4);
  EXPECT_EQ(printed[at]["Weights"][1], 1);
  EXPECT_EQ(printed[at + 1]["AX"].size(), 5U);
  EXPECT_EQ(printed[at + 1]["AOrientation"], Json::parse("[0,0,0,0,0]"));
  EXPECT_EQ(printed[at + 3]["WeightsDone"], true);
  EXPECT_EQ(std::count(names.begin(), names.end(), "ExportTradeOffsBW"), 0);
}

TEST(TradeOffSessionOf, BackReleasesTheStepAndShowsTheOrderingStepAgain) {
  TradeOffSession session;
  EXPECT_EQ(NamesOf(Parsed(session.Play("click cmdBack"))),
            (Lines{"hide frmTradeOffsB", "show frmIniImpOrder", "release frmTradeOffsB"}));
}

TEST(TradeOffSessionOf, TypedScoresAndKeysGoTheWayOfAPerson) {
  TradeOffSession session;
  const Lines values = session.Ask(
      "focus txtTradeOffAFirstScore\nkey Ctrl+A\nkey Backspace\ntype 1.2.3\nget txtTradeOffAFirstScore.Text\n"
      "key Ctrl+V\nkey Shift+Insert\nget txtTradeOffAFirstScore.Text\n"
      "key Ctrl+A\nkey Backspace\ntype -60\nkey Return\nget txtTradeOffAFirstScore.Text\nget shpPCA.Left");
  EXPECT_EQ(values, (Lines{R"("1.23")", R"("1.23")", R"("60")", "2445"}));
}

TEST(TradeOffSessionOf, ANoteOfTheRangeIsTheOneMessageOfAMistake) {
  TradeOffSession session;
  const Lines printed = session.Play(
      "focus txtTradeOffAFirstScore\nkey Ctrl+A\nkey Backspace\ntype 500\nfocus txtTradeOffBSecondScore\n"
      "click cmdEnter");
  const Lines messages = Only(printed, "msgbox");
  ASSERT_EQ(messages.size(), 2U) << "one for each attempt to leave";
  EXPECT_EQ(
      messages[0],
      R"({"msgbox":"The data you entered should be in the relevant score range [0, 100]!","style":48,"title":"KESTA"})");
  EXPECT_TRUE(Only(printed, "refused").empty());
  EXPECT_TRUE(Only(printed, "pointer").empty()) << "the click on Enter does not happen";
}

TEST(TradeOffSessionOf, TheToolsAreReachedByTheirTab) {
  TradeOffSession session;
  EXPECT_EQ(Only(session.Play("press tbMovRight MovRight"), "refused").size(), 1U);
  EXPECT_TRUE(Only(session.Play("select tbsTradeOffs 2\npress tbMovRight MovRight"), "refused").empty());
  EXPECT_EQ(Only(session.Play("select tbsTradeOffs 2\npress tbScoreChanger(0) Up"), "refused").size(), 1U);
}

TEST(TradeOffSessionOf, PrintLeavesThePlotBlackAndTheFrameAtItsPlace) {
  TradeOffSession session;
  EXPECT_EQ(session.Ask("click cmdTarnwisePrint\nget framePCNumericalC.Left\nget framePCNumericalC.Top\n"
                        "get picTradeOffsRange.BackColor"),
            (Lines{"3855", "2700", "0"}));
}

TEST(TradeOffSessionOf, StoredTradeOffsResumeWithTheHostsPoints) {
  WizardData model = WardModel();
  StoreJudgments(model, kTradeOffsType, 1, 4, 1.5, {1.5, 1.0, 1.0, 1.5, 1.0});
  Session session(model);
  session.Given(
      R"(host points {"AX":[60,0,0,0,0],"AY":[40,0,0,0,0],"BX":[20,0,0,0,0],"BY":[90,0,0,0,0],)"
      R"("AOrientation":[1,0,0,0,0],"ALX":[55,0,0,0,0],"ALY":[40,0,0,0,0],"AUX":[65,0,0,0,0],"AUY":[40,0,0,0,0]})"
      "\nhost show\nclick cmdNext\nclick cmdNext\nclick cmdNext");
  EXPECT_EQ(session.Ask("get lblWeightRatio.Caption\nget cmdNext.Enabled\nget cmdFinish.Enabled\nget cmdEnter.Enabled\n"
                        "get tbMovUp.Buttons"),
            (Lines{R"("1.11/1,    1.43/1")", "true", "true", "true", R"({"MovUp":false,"MovUpBack":false})"}));
  const std::vector<Json> printed = Parsed(Only(session.Play("click cmdFinish"), "Export"));
  ASSERT_EQ(printed.size(), 2U);
  EXPECT_EQ(printed[0]["RefAttWR"], 1.5);
  EXPECT_EQ(printed[1]["AUX"][0], 65);
  EXPECT_EQ(printed[1]["AOrientation"][0], 1);
}

TEST(TradeOffSessionOf, WithoutPointsTheOrderingStepComesBackWithTheFault) {
  Session session(WardModel());
  const String lines = ToTradeOffs("");
  const String last = "click cmdNext\n";
  session.Given(lines.substr(0, lines.size() - last.size()));
  const Lines printed = session.Play("click cmdNext\nforms");
  ASSERT_EQ(Only(printed, "runtime_error").size(), 1U);
  EXPECT_NE(Only(printed, "runtime_error")[0].find(R"("runtime_error":9)"), String::npos);
  EXPECT_NE(Only(printed, "runtime_error")[0].find("frmTradeOffsB.Form_Load"), String::npos);
  const Json forms = Json::parse(Only(printed, R"("forms")")[0])["forms"];
  ASSERT_EQ(forms.size(), 2U);
  EXPECT_EQ(forms[1]["name"], "frmIniImpOrder");
  EXPECT_EQ(forms[1]["visible"], true);
  EXPECT_EQ(Only(printed, R"("pointer")").back(), R"({"pointer":0})");
}

TEST(TradeOffSessionOf, ACurveWithEqualAbscissaeIsAFaultAtOpeningAndTheWizardLives) {
  WizardData model = WardModel();
  GiveCurve(model, 0, {0, 50, 50, 100}, {0, 0.4, 0.6, 1});
  Session session(model);
  const String lines = ToTradeOffs();
  const String last = "click cmdNext\n";
  session.Given(lines.substr(0, lines.size() - last.size()));
  const Lines printed = session.Play("click cmdNext\nclick cmdBack\nget cmdNext.Enabled");
  ASSERT_EQ(Only(printed, "runtime_error").size(), 1U);
  EXPECT_NE(Only(printed, "runtime_error")[0].find(R"("runtime_error":11)"), String::npos);
  EXPECT_EQ(printed.back().find("refused"), String::npos);
}

TEST(TradeOffSessionOf, CurvesOfNoneOneTwoAndThreePointsOpenOrFaultButShowNoFalseNumber) {
  const std::vector<std::vector<Double>> xs = {{}, {50}, {0, 100}, {0, 50, 100}};
  const std::vector<std::vector<Double>> ys = {{}, {0.5}, {0, 1}, {0, 0.5, 1}};
  const char* const ratios[] = {R"("Infinity!")", R"("Infinity!")", R"("1.20/1,    1.20/1")", R"("1.20/1,    1.20/1")"};
  for (std::size_t points = 0; points < 4; ++points) {
    SCOPED_TRACE(points);
    WizardData model = WardModel();
    GiveCurve(model, 0, xs[points], ys[points]);
    TradeOffSession session(model);
    EXPECT_EQ(session.Ask("get lblWeightRatio.Caption"), Lines{ratios[points]});
  }
  // The reference's curve is asked for scores too.
  WizardData model = WardModel();
  GiveCurve(model, 1, {}, {});
  Session session(model);
  const String lines = ToTradeOffs();
  const String last = "click cmdNext\n";
  session.Given(lines.substr(0, lines.size() - last.size()));
  EXPECT_NE(Only(session.Play("click cmdNext"), "runtime_error").at(0).find(R"("runtime_error":9)"), String::npos);
}

TEST(TradeOffSessionOf, AStoredBoundOfZeroIsAFaultAtOpeningFromDirectJudgments) {
  WizardData model = WardModel();
  StoreJudgments(model, kDirectType, 1, 4, 1.5, {1.5, 1.0, 1.0, 1.5, 1.0});
  model.SavedJudgments.SavedWeightsL[0] = 0.0;
  Session session(model);
  session.Given("host points zero\nhost show\nselect lstMethods 1\nclick cmdNext\nclick cmdNext");
  const Lines printed = session.Play("click cmdNext");
  EXPECT_NE(Only(printed, "runtime_error").at(0).find(R"("runtime_error":11)"), String::npos);
}

TEST(TradeOffSessionOf, CallsOfTheCurvesPrintTheirResults) {
  WizardData model = WardModel();
  model.AttValueData.ValueFuncType[0] = 0;
  Session session(model);
  EXPECT_EQ(session.Ask("call GetAttValue 0 25\ncall GetAttScore 0 0.5\ncall GetAttValueFunc 0 33.333"),
            (Lines{"0.25", "50", "0.3333"}));
  const Lines printed = session.Play("call GetAttValue 31 25\ncall GetAttValue 0 150");
  EXPECT_EQ(Only(printed, "runtime_error").size(), 1U);
  EXPECT_EQ(printed.back(), R"({"call":"GetAttValue","value":1})");
}

}  // namespace
}  // namespace Tarnwise
