// The three lights: which is in force, and when a screen reader is told.
#include "judging/JudgmentLights.h"
#include "view/Platform.h"
#include "view/headless/HeadlessToolkit.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Telling : HeadlessToolkit {
  std::vector<String> Told;
  void AnnounceChange(Label& label) override { Told.push_back(label.Caption); }
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

  Lamps() {
    Screen->Created(*On);
    ShowVerdict(On->Lights, On->cmdEnter, kConsistent);
    Screen->Show(*On);
  }
  ~Lamps() { Screen->Release(*On); }
  Lamps(const Lamps&) = delete;
  Lamps& operator=(const Lamps&) = delete;

  std::vector<String> Heard() const {
    Screen->SyncAll();
    return std::exchange(Tools->Told, {});
  }
  std::vector<String> ToldOf(JudgmentState state) const {
    ShowVerdict(On->Lights, On->cmdEnter, state);
    return Heard();
  }
};

TEST(Lights, TellOfTheVerdictThatHasComeIntoForceOnce) {
  const Lamps lamps;
  EXPECT_EQ(lamps.Heard(), std::vector<String>{}) << "what stands there at the opening";
  EXPECT_EQ(lamps.ToldOf(kInvalid), std::vector<String>{"Invalid"});
  EXPECT_EQ(lamps.ToldOf(kInvalid), std::vector<String>{});
  EXPECT_EQ(lamps.ToldOf(kInconsistent), std::vector<String>{"Inconsistent"});
  EXPECT_EQ(lamps.ToldOf(kInconsistent), std::vector<String>{});
  EXPECT_EQ(lamps.ToldOf(kConsistent), std::vector<String>{"Consistent"});
  EXPECT_EQ(lamps.ToldOf(kConsistent), std::vector<String>{});
}

TEST(Lights, TellNothingOfABlink) {
  const Lamps lamps;
  lamps.ToldOf(kInvalid);
  for (int tick = 0; tick < 4; ++tick) BlinkJudgmentLight(lamps.On->Lights, kInvalid);
  EXPECT_EQ(lamps.Heard(), std::vector<String>{});
}

TEST(Lights, TellNothingOfAVerdictThatAHandlerTookBack) {
  const Lamps lamps;
  ShowVerdict(lamps.On->Lights, lamps.On->cmdEnter, kInvalid);
  EXPECT_EQ(lamps.ToldOf(kConsistent), std::vector<String>{});
}

TEST(Lights, TellNothingOfAVerdictThatIsNotShown) {
  const Lamps lamps;
  ShowLightsFor(lamps.On->Lights, false);
  EXPECT_EQ(lamps.ToldOf(kInconsistent), std::vector<String>{});
  EXPECT_EQ(lamps.ToldOf(kInvalid), std::vector<String>{"Invalid"});
}

}  // namespace
}  // namespace Tarnwise
