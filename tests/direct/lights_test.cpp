// The three lights: which is in force, and when a screen reader is told.
#include "judging/JudgmentLights.h"
#include "view/Platform.h"
#include "view/headless/HeadlessToolkit.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Telling : HeadlessToolkit {
  std::vector<String> Told;
  void AnnounceChange(Control& control) override { Told.push_back(static_cast<Label&>(control).Caption); }
};

struct LampForm : Form {
  explicit LampForm(std::shared_ptr<Platform> screen) : Form(std::move(screen), "frmLamps"), Lights(*this, *this) {}
  LightControls Lights;
  CommandButton cmdEnter{*this, this, "cmdEnter"};
};

struct Lamps {
  std::shared_ptr<Telling> Tools = std::make_shared<Telling>();
  std::shared_ptr<Platform> Screen = std::make_shared<Platform>(Tools);
  std::shared_ptr<LampForm> On = std::make_shared<LampForm>(Screen);

  std::vector<String> ToldOf(JudgmentState state) {
    Tools->Told.clear();
    ShowVerdict(On->Lights, On->cmdEnter, state);
    return Tools->Told;
  }
};

TEST(Lights, TellOfTheVerdictThatHasComeIntoForceOnce) {
  Lamps lamps;
  EXPECT_EQ(lamps.ToldOf(kInvalid), std::vector<String>{"Invalid"});
  EXPECT_EQ(lamps.ToldOf(kInvalid), std::vector<String>{});
  EXPECT_EQ(lamps.ToldOf(kInconsistent), std::vector<String>{"Inconsistent"});
  EXPECT_EQ(lamps.ToldOf(kInconsistent), std::vector<String>{});
  EXPECT_EQ(lamps.ToldOf(kConsistent), std::vector<String>{"Consistent"});
  EXPECT_EQ(lamps.ToldOf(kConsistent), std::vector<String>{});
}

}  // namespace
}  // namespace Tarnwise
