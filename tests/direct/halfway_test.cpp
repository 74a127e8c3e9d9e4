// What stands when an action of the direct step fails halfway: what came before the fault, in the order of the actions.
#include "direct/Ward.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

// A host that loads another model while the step is open: more attributes than were ranked.
struct Reloaded : Ward {
  Reloaded() { With("larger.kst", ModelOf(5, 5)); }
  static constexpr const char* kReload = "host load larger.kst\n";
};

TEST(ResultsPage, IsInFrontOnlyWhenItsGridsAreFilled) {
  Reloaded session;
  const String next = JudgeAll() + Reloaded::kReload + "click cmdNext\n";
  EXPECT_EQ(Only(session.Play(next), "runtime_error"),
            Lines{R"({"runtime_error":9,"description":"Subscript out of range","in":"frmDirectB.cmdNext_Click"})"});
  EXPECT_EQ(session.Ask(next + "get cmdNext.Enabled\nget cmdFinish.Enabled\nget frmDirectB.Caption"),
            (Lines{"false", "true", R"("Tarnwise: Results of the value judgments")"}))
      << "the buttons and the title come before the grids";
  session.Play(next + "click picHandle(0)\nfocus txtWRLower");
  EXPECT_EQ(session.Status(), 0) << "the judgment page is still in front";
}

TEST(ReStart, HasEmptiedTheListWhenTheDefaultsFail) {
  Reloaded session;
  EXPECT_EQ(session.Ask(Enter(kCare, 120, 150) + Reloaded::kReload +
                        "click cmdReStart\nget imgcmbTargetAtt.Items\ndata WeightDone\ndata WeightsL"),
            (Lines{"[]", "[false,false,false,false,false,false,false]", "[1,1.2,1.2,1,0.8,0.8,0.8]"}));
}

TEST(AllJudged, CountsTheAttributesThatTheModelHasNow) {
  Session session(WardModel());
  session.Given(ToDirectStep(WardRanks(), 0, 3)).With("smaller.kst", ModelOf(1, 1)).With("larger.kst", ModelOf(5, 5));
  EXPECT_EQ(session.Ask(Enter(kDoctors, 130, 140) + "get cmdNext.Enabled"), Lines{"false"});
  EXPECT_EQ(session.Ask(Wedge(130, 140) + "host load smaller.kst\nclick cmdEnter\nget cmdNext.Enabled"), Lines{"true"})
      << "the two that are left are Beds, a reference, and Doctors";
  EXPECT_EQ(Only(session.Play(JudgeAll() + Wedge(71, 71) + "host load larger.kst\nclick cmdEnter"), "runtime_error"),
            Lines{R"({"runtime_error":9,"description":"Subscript out of range","in":"frmDirectB.cmdEnter_Click"})"});
}

}  // namespace
}  // namespace Tarnwise
