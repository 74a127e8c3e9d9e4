// What the Help buttons call: the screen's own way, or the host's.
#include "Navigating.h"

#include <stdexcept>

namespace Tarnwise {
namespace {

TEST(Help, OfEveryStepOpensTheSamePage) {
  Navigation n;
  const Lines page = {"help C:/KESTA\\KESTA.HLP 1 4005025"};
  int places = 0;
  Steps steps = {n.Shows()};
  const auto ask = [&] {
    n.TakeNotes();
    n.Click("cmdHelp");
    EXPECT_EQ(n.Notes, page) << n.Active();
    ++places;
  };
  steps.push_back(ask);
  const Steps way = n.ToJudgments();
  for (std::size_t i = 1; i < way.size(); ++i) {
    steps.push_back(way[i]);
    if (i == 1 || i + 1 == way.size()) steps.push_back(ask);
  }
  n.Run(steps);
  EXPECT_EQ(places, 3);
}

// A host with a way of its own.
struct OwnHelp : Navigation {
  OwnHelp() {
    SetHelp(*Screen, [this](WindowHandle window, const String& path, int command, int context) {
      Notes.push_back("own help " + std::to_string(window) + " " + path + " " + std::to_string(command) + " " +
                      std::to_string(context));
      if (Inside) Inside();
      return false;  // whatever it means, nobody looks at it
    });
  }
  // What a press of the first step's Help leads to.
  Lines Asked() {
    Lines notes;
    Run({Shows(), [this] { TakeNotes(); }, Clicks("cmdHelp"), [&] { notes = TakeNotes(); }});
    return notes;
  }
  std::function<void()> Inside;
};

TEST(Help, OfTheHostIsCalledWithTheWindowThePathTheCommandAndTheContext) {
  OwnHelp n;
  EXPECT_EQ(n.Asked(), Lines({"help C:/KESTA\\KESTA.HLP 1 4005025", "own help 0 C:/KESTA\\KESTA.HLP 1 4005025"}));
}

TEST(Help, OfTheHostMaySetAnotherOneOrNone) {
  OwnHelp n;
  n.Inside = [&n] { SetHelp(*n.Screen, nullptr); };
  EXPECT_EQ(Only(n.Asked(), "own help").size(), 1U);
  n.Click("cmdHelp");
  EXPECT_EQ(n.Notes, Lines{"help C:/KESTA\\KESTA.HLP 1 4005025"}) << "the screen's own way again";
}

TEST(Help, OfTheHostMayEndTheWizardOrLetItGo) {
  OwnHelp n;
  n.Inside = [&n] { n.Wizard->UnloadTarnwise(); };
  n.Asked();
  EXPECT_TRUE(n.Screen->Forms().empty());
  n.Inside = [&n] { n.Wizard.reset(); };
  n.Asked();
  EXPECT_EQ(n.Wizard, nullptr);
}

TEST(Help, OfTheHostThatFailsIsToldAsTheHostsFaultAndTheWizardGoesOn) {
  OwnHelp n;
  n.Inside = [] { throw std::runtime_error("no browser"); };
  const Lines told = Only(n.Asked(), "msgbox");
  ASSERT_EQ(told.size(), 1U);
  EXPECT_NE(told[0].find("reported a fault in frmTRNSelMethod.cmdHelp_Click:\n\nno browser"), String::npos) << told[0];
  n.Click("cmdNext");
  EXPECT_EQ(n.Active(), "frmIniImpOrder");
}

}  // namespace
}  // namespace Tarnwise
