#include "program/JudgeCommand.h"

#include "play/Player.h"
#include "project/ProjectFile.h"
#include "support/TemporaryFolder.h"
#include "view/Platform.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace Tarnwise {
namespace {

const char* const kProject = R"({
  "tarnwise": 1,
  "units": ["North", "South"],
  "columns": [
    {"name": "Staff", "role": "input", "worst": 60, "best": 15, "values": [20, 19.25]},
    {"name": "Rooms", "role": "input", "worst": 320, "best": 120, "values": [151, 131]},
    {"name": "Cases", "role": "output", "worst": 80, "best": 280, "values": [100, 150]},
    {"name": "Tests", "role": "output", "worst": 40, "best": 150, "values": [90, 50]}
  ]
}
)";

// A wizard without forms: the test raises its events.
struct Raised : Hosted {
  TRN_DEA_Events& Events() override { return events; }
  void ShowTarnwise() override { calls.emplace_back("show"); }
  void GetCurFileData(const String& /*KestaDir*/, Integer /*FileIndex*/, const String& path) override {
    calls.emplace_back(std::filesystem::exists(PathFromText(path)) ? "load" : "load of nothing");
  }
  void UnloadTarnwise() override { calls.emplace_back("unload"); }
  void TranferABCoordinates(const PointArrays& points) override {
    calls.push_back("points " + std::to_string(points[0].size()));
  }
  WizardData& Data() override { return data; }

  void Export(const String& type, const Variant& cross) {
    data.WeightDone.Allocate(4);
    for (int i = 0; i < 4; ++i) data.WeightDone[i] = i != 3;
    Variant ratio = cross;
    VariantArray low{3.0, 1.0, 1.0, 0.8};
    VariantArray middle{3.545, 1.0, 1.0, 0.8};
    VariantArray high{4.09, 1.0, 1.0, 0.8};
    events.ExportDirectBW(type, 2, 1, ratio, middle, high, low);
  }
  void ExportPoints() {
    VariantArray zeros(4, static_cast<Single>(0));
    events.ExportABScores(zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros);
  }

  TRN_DEA_Events events;
  WizardData data;
  std::vector<String> calls;
};

class JudgeCommand : public testing::Test {
 protected:
  JudgeCommand() { options.Project = folder.Write("a.tarnwise", String(kProject)); }

  int Judge(const ShowWizard& show) { return JudgeProject(options, "2024-05-17T09:30:00Z", show, out, err); }
  int JudgeRaising(const std::function<void(Raised& wizard)>& raise) {
    return Judge([&raise](const WrapWizard& wrap) {
      auto wizard = std::make_unique<Raised>();
      Raised& raised = *wizard;
      const auto host = wrap(std::move(wizard));
      host->ShowTarnwise();
      raise(raised);
      return 0;
    });
  }
  int JudgeByScript(const String& script) {
    return Judge([&](const WrapWizard& wrap) {
      mdTRNMain() = WizardData();
      std::istringstream lines(script);
      const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
      Player player(*driver, lines, folder.Path(), "shots", transcript, err,
                    [&] { return wrap(HostLinked(driver->Screen())); });
      return player.Play();
    });
  }
  Project Stored() const { return ReadProject(options.Project); }

  TemporaryFolder folder;
  JudgeOptions options;
  std::ostringstream out;
  std::ostringstream err;
  std::ostringstream transcript;
};

TEST_F(JudgeCommand, TheWizardGetsTheModelThenThePointsThenIsShown) {
  JudgeRaising([](const Raised& wizard) {
    EXPECT_EQ(wizard.calls, (std::vector<String>{"load", "points 4", "show"}));
  });
}

TEST_F(JudgeCommand, TheSessionIsInTheFileWhileTheEventIsStillRaised) {
  options.By = "Dr. Müller";
  options.Note = "First try";
  const int status = JudgeRaising([this](Raised& wizard) {
    wizard.Export("DEA_DIRECT", 1.15);
    const Project now = Stored();
    ASSERT_EQ(now.Sessions.size(), 1U);
    EXPECT_EQ(now.Sessions[0].Made, "2024-05-17T09:30:00Z");
    EXPECT_EQ(now.Sessions[0].By, "Dr. Müller");
    EXPECT_EQ(now.Sessions[0].Note, "First try");
    EXPECT_EQ(now.Sessions[0].Attributes[0].High, 4.09);
  });
  EXPECT_EQ(status, 0);
}

TEST_F(JudgeCommand, SaysWhatWasJudgedAndWhatWasNot) {
  JudgeRaising([](Raised& wizard) { wizard.Export("DEA_DIRECT", static_cast<Integer>(1)); });
  EXPECT_EQ(out.str(), options.Project +
                           ": stored as session 0, made 2024-05-17T09:30:00Z\n"
                           "Staff 3.0000 .. 4.0900 times Rooms\n"
                           "Tests not judged\n"
                           "1 Staff = 13.333 .. 18.178 Rooms\n"
                           "Not judged: Tests, Rooms to Cases.\n");
}

TEST_F(JudgeCommand, PointsJoinTheSessionOfTheirExport) {
  JudgeRaising([this](Raised& wizard) {
    wizard.Export("DEA_TRADEOFFS", 1.15);
    EXPECT_EQ(Stored().Sessions.at(0).Points, "");
    wizard.ExportPoints();
  });
  ASSERT_EQ(Stored().Sessions.size(), 1U);
  EXPECT_NE(Stored().Sessions[0].Points.find("\"AUY\":[0,0,0,0]"), String::npos) << Stored().Sessions[0].Points;
}

TEST_F(JudgeCommand, ACancelledWizardLeavesTheFileAsItWas) {
  const std::vector<char> before = TemporaryFolder::Read(options.Project);
  EXPECT_EQ(JudgeRaising([](Raised& wizard) { wizard.events.UnloadTarnwise(1, false); }), 1);
  EXPECT_EQ(TemporaryFolder::Read(options.Project), before);
  EXPECT_EQ(out.str(), "");
  EXPECT_NE(err.str().find("No judgments were handed over"), String::npos);
}

TEST_F(JudgeCommand, WhatOthersChangedMeanwhileIsKept) {
  JudgeRaising([this](Raised& wizard) {
    Project other = Stored();
    other.Name = "Renamed meanwhile";
    WriteProject(options.Project, other);
    wizard.Export("DEA_DIRECT", 1.15);
  });
  EXPECT_EQ(Stored().Name, "Renamed meanwhile");
  EXPECT_EQ(Stored().Sessions.size(), 1U);
}

TEST_F(JudgeCommand, JudgmentsThatCannotBeStoredAreToldToTheUserAndPrinted) {
  const int status = JudgeRaising([this](Raised& wizard) {
    std::filesystem::remove(PathFromText(options.Project));
    EXPECT_THROW(wizard.Export("DEA_DIRECT", 1.15), std::runtime_error);
  });
  EXPECT_EQ(status, 1);
  EXPECT_NE(err.str().find("The judgments could not be stored"), String::npos);
  EXPECT_NE(err.str().find("\"low\": 3, \"ratio\": 3.545, \"high\": 4.09"), String::npos) << err.str();
}

TEST_F(JudgeCommand, AfterAFailureTheUserCanFinishAgain) {
  const int status = JudgeRaising([this](Raised& wizard) {
    const std::vector<char> project = TemporaryFolder::Read(options.Project);
    std::filesystem::remove(PathFromText(options.Project));
    EXPECT_THROW(wizard.Export("DEA_DIRECT", 1.15), std::runtime_error);
    folder.Write("a.tarnwise", project);
    wizard.Export("DEA_DIRECT", 1.15);
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Stored().Sessions.size(), 1U);
}

TEST_F(JudgeCommand, ABadProjectIsRefusedBeforeAnythingIsShown) {
  options.Project = folder.Write("bad.tarnwise", String(R"({"tarnwise": 1, "units": [], "columns": []})"));
  bool shown = false;
  EXPECT_EQ(Judge([&shown](const WrapWizard& /*wrap*/) {
              shown = true;
              return 0;
            }),
            2);
  EXPECT_FALSE(shown);
  EXPECT_NE(err.str(), "");
}

TEST_F(JudgeCommand, ASessionThatIsNotThereIsRefused) {
  options.Session = "3";
  EXPECT_EQ(JudgeRaising([](const Raised& /*wizard*/) {}), 2);
  EXPECT_EQ(err.str(), options.Project + ": there is no session 3\n");
}

const char* const kRanked = R"(host load whatever.kst
host points zero
host show
click cmdNext
drag cmdAttA(0) picOrder(0)
click cmdAdd
drag cmdAttA(1) picOrder(1)
drag cmdAttA1(0) picOrder1(0)
click cmdAdd1
drag cmdAttA1(1) picOrder1(1)
click cmdNext
click cmdAttButtons(0)
click cmdAttButtons1(1)
click cmdNext
)";

const char* const kStaffJudged = R"(focus txtWRUpper
key Ctrl+A
type 4.09
key Return
focus txtWRLower
key Ctrl+A
type 3
key Return
click cmdEnter
)";

TEST_F(JudgeCommand, AScriptThatLoadsAModelOfItsOwnGetsTheProjects) {
  JudgeByScript("host load whatever.kst\nhost points zero\nhost show\ndata AttName\nclose\n");
  EXPECT_NE(transcript.str().find(R"({"data":"AttName","value":["Staff","Rooms","Cases","Tests")"), String::npos)
      << transcript.str();
  EXPECT_FALSE(std::filesystem::exists(PathFromText(folder.File("whatever.kst"))));
}

// With everything done Finish is enabled; "Re-start All" leaves it so.
TEST_F(JudgeCommand, WhatRestartAllLeavesOpenIsNotJudged) {
  const String script = String(kRanked) + kStaffJudged +
                        "select imgcmbTargetAtt 4\nclick cmdEnter\nselect imgcmbTargetAtt 2\nclick cmdEnter\n"
                        "get cmdFinish.Enabled\nclick cmdReStart\ndata WeightDone\nget cmdFinish.Enabled\n" +
                        "click cmdFinish\n";
  const int status = JudgeByScript(script);
  ASSERT_EQ(status, 0) << transcript.str();
  EXPECT_NE(transcript.str().find(R"("WeightsL":[1.2,1,1,0.8]})"), String::npos) << transcript.str();
  const JudgmentSession session = Stored().Sessions.at(0);
  EXPECT_FALSE(session.Attributes[0].Judged);
  EXPECT_FALSE(session.Attributes[3].Judged);
  EXPECT_TRUE(out.str().ends_with("Not judged: Staff, Tests.\n")) << out.str();
}

TEST_F(JudgeCommand, ACrossRatioThatNobodyEnteredIsNotJudged) {
  const int status =
      JudgeByScript(String(kRanked) + kStaffJudged + "select imgcmbTargetAtt 4\nclick cmdEnter\nclick cmdFinish\n");
  ASSERT_EQ(status, 0) << transcript.str();
  EXPECT_FALSE(Stored().Sessions.at(0).Cross->Judged);
  EXPECT_TRUE(Stored().Sessions[0].Attributes[3].Judged);
  EXPECT_TRUE(out.str().ends_with("Not judged: Rooms to Cases.\n")) << out.str();
}

// Nobody touches anything on the way.
const char* const kThrough = "click cmdNext\nclick cmdNext\nclick cmdNext\nclick cmdFinish\n";

TEST_F(JudgeCommand, AResumedSessionThatNobodyTouchesComesBackTheSame) {
  ASSERT_EQ(
      JudgeByScript(String(kRanked) + kStaffJudged + "select imgcmbTargetAtt 4\nclick cmdEnter\nclick cmdFinish\n"), 0);
  ASSERT_EQ(JudgeByScript(String("host show\n") + kThrough), 0) << transcript.str();
  ASSERT_EQ(Stored().Sessions.size(), 2U);
  EXPECT_EQ(Stored().Sessions[1], Stored().Sessions[0]);
}

TEST_F(JudgeCommand, WhatWasNotJudgedStaysSoWhenNobodyTouchesIt) {
  ASSERT_EQ(
      JudgeByScript(String(kRanked) + kStaffJudged + "select imgcmbTargetAtt 4\nclick cmdEnter\nclick cmdFinish\n"), 0);
  Project project = Stored();
  project.Sessions[0].Attributes[3].Judged = false;
  WriteProject(options.Project, project);
  ASSERT_EQ(JudgeByScript(String("host show\n") + kThrough), 0) << transcript.str();
  ASSERT_EQ(Stored().Sessions.size(), 2U);
  EXPECT_TRUE(Stored().Sessions[1].Attributes[0].Judged);
  EXPECT_FALSE(Stored().Sessions[1].Attributes[3].Judged);
}

}  // namespace
}  // namespace Tarnwise
