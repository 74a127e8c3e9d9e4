// When a toolkit's windows are made, brought up to date, restacked and destroyed, and what a hand does to them.
#include "view/Lifetime.h"

#include "forms/WizardForm.h"
#include "view/RecordingToolkit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace Tarnwise {
namespace {

using Lines = std::vector<String>;

struct SmallForm : Form {
  explicit SmallForm(std::shared_ptr<Platform> platform) : Form(std::move(platform), "frmSmall") {
    Place(*this, 0, 0, 6000, 4500);
    Place(picBox, 3000, 150, 2400, 2400);
    Place(lblInside, 150, 150, 1500, 300);
    Place(cmdGo, 150, 150, 1500, 420);
    Place(cmdSource, 150, 750, 1500, 420);
    cmdGo.TabIndex = 0;
    cmdSource.DragAutomatic = true;
    picBox.DragDrop = [this](Control& /*source*/, Single /*x*/, Single /*y*/) { ++Drops; };
    lneRule.X2 = 600;
  }
  // The inner one first: its container's window has to be there before.
  PictureBox picBox{*this, this, "picBox"};
  Label lblInside{*this, &picBox, "lblInside"};
  Line lneRule{*this, &picBox, "lneRule"};
  CommandButton cmdGo{*this, this, "cmdGo"};
  CommandButton cmdSource{*this, this, "cmdSource"};
  Timer tmrClock{*this, this, "tmrClock"};
  int Drops = 0;
};

struct Mirrored : testing::Test {
  Mirrored() {
    screen->Created(*form);
    screen->Show(*form);
    Seen().FocusTree();
  }
  ~Mirrored() override {
    if (form) screen->Release(*form);
  }
  Lines Took() { return std::exchange(toolkit->Lines, {}); }
  RecordingMirror& Seen() { return toolkit->MirrorOf(*form); }
  bool HasLine(const String& line) const {
    return std::find(toolkit->Lines.begin(), toolkit->Lines.end(), line) != toolkit->Lines.end();
  }

  std::shared_ptr<RecordingToolkit> toolkit = std::make_shared<RecordingToolkit>();
  std::shared_ptr<Platform> screen = std::make_shared<Platform>(toolkit);
  std::shared_ptr<SmallForm> form = std::make_shared<SmallForm>(screen);
};

TEST_F(Mirrored, EveryControlWithAWindowIsMadeOnceWhenTheFormIsFirstShown) {
  for (const char* const name : {"picBox", "lblInside", "cmdGo", "cmdSource"}) {
    EXPECT_EQ(std::count(toolkit->Lines.begin(), toolkit->Lines.end(), String("create ") + name), 1) << name;
  }
  EXPECT_FALSE(HasLine("create lneRule"));
  EXPECT_FALSE(HasLine("create tmrClock"));
}

TEST_F(Mirrored, OnlyWhatHasChangedIsBroughtToTheScreen) {
  Took();
  form->lblInside.Caption = "anew";
  screen->SyncAll();
  EXPECT_EQ(toolkit->Lines, Lines{"apply lblInside"});
}

TEST_F(Mirrored, ANewOrderRestacksItsContainerAlone) {
  Took();
  form->cmdGo.ZOrder();
  screen->SyncAll();
  EXPECT_TRUE(HasLine("front cmdGo"));
  EXPECT_FALSE(HasLine("front lblInside"));
  EXPECT_EQ(toolkit->Lines.back(), "front cmdGo");  // the last one stands in front
}

TEST_F(Mirrored, ALineThatMovesIsRepaintedWhereItWasAndWhereItIs) {
  Took();
  form->lneRule.X2 = 1200;
  screen->SyncAll();
  EXPECT_EQ(toolkit->Lines, (Lines{"repaint picBox", "repaint picBox"}));
}

TEST_F(Mirrored, ATimerRunsWhileItHasAnInterval) {
  Took();
  form->tmrClock.Interval = 20;
  screen->SyncAll();
  form->tmrClock.Enabled = false;
  screen->SyncAll();
  EXPECT_EQ(toolkit->Lines, (Lines{"run tmrClock", "stop tmrClock"}));
}

TEST_F(Mirrored, AnUnloadedControlLosesItsWindow) {
  ControlArray<CommandButton> extra(*form, form.get(), "cmdExtra",
                                    [](CommandButton& button) { Place(button, 150, 3000, 1500, 375); });
  screen->SyncAll();
  EXPECT_TRUE(HasLine("create cmdExtra(0)"));
  extra.Unload(0);
  EXPECT_TRUE(HasLine("destroy cmdExtra(0)"));
}

TEST_F(Mirrored, AReleasedFormIsHeardOfNoMore) {
  screen->Release(*form);
  EXPECT_EQ(toolkit->Lines.back(), "destroy all");
  EXPECT_EQ(Seen().Tree(), nullptr);
}

TEST_F(Mirrored, AMoveWithinTheDistanceIsAClickAndOneBeyondItADrag) {
  int clicks = 0;
  form->cmdSource.Click = [&] { ++clicks; };
  Gesture& hand = screen->Hand;
  EXPECT_TRUE(hand.Press(Seen(), form->cmdSource, {300, 900}));
  EXPECT_TRUE(hand.Move(Seen(), {330, 930}, true));
  EXPECT_TRUE(hand.Release(Seen(), {330, 930}, [] {}));
  EXPECT_EQ(clicks, 1);
  hand.Press(Seen(), form->cmdSource, {300, 900});
  Took();
  hand.Move(Seen(), {3600, 900}, true);
  EXPECT_EQ(toolkit->Lines, Lines{"carried cmdSource"});
  hand.Move(Seen(), {300, 4000}, true);
  EXPECT_EQ(toolkit->Lines.back(), "refused cmdSource");
  hand.Move(Seen(), {3600, 900}, true);
  hand.Release(Seen(), {3600, 900}, [] {});
  EXPECT_EQ(form->Drops, 1);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(HasLine("carried no more"));
}

TEST_F(Mirrored, AReleaseBesideWhatWasPressedIsNoClick) {
  int clicks = 0;
  form->lblInside.Click = [&] { ++clicks; };
  Place(form->lblInside, 150, 150, 600, 300);
  screen->Hand.Press(Seen(), form->lblInside, {3200, 350});
  screen->Hand.Release(Seen(), {5000, 2000}, [] {});
  EXPECT_EQ(clicks, 0);
}

TEST_F(Mirrored, ANativeClickWithoutAPressIsAScreenReadersAndAsksWhetherItMay) {
  int clicks = 0;
  form->cmdGo.Click = [&] { ++clicks; };
  screen->Hand.Clicked(Seen(), form->cmdGo);
  EXPECT_EQ(clicks, 1);
  form->cmdGo.Enabled = false;
  screen->Hand.Clicked(Seen(), form->cmdGo);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Mirrored, EscapeMakesTheRestOfAPressNobodys) {
  int clicks = 0;
  form->cmdSource.Click = [&] { ++clicks; };
  Gesture& hand = screen->Hand;
  hand.Press(Seen(), form->cmdSource, {300, 900});
  hand.Move(Seen(), {3600, 900}, true);
  EXPECT_EQ(hand.KeyDown(Seen(), form->cmdSource, {27, 0}), KeyGoes::Nowhere);
  EXPECT_TRUE(hand.Move(Seen(), {300, 900}, true));
  EXPECT_TRUE(hand.Release(Seen(), {300, 900}, [] {}));
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(form->Drops, 0);
}

TEST_F(Mirrored, ThePointerSaysWhatCanBePickedUp) {
  EXPECT_EQ(ShownPointer(form->cmdSource), kGrabPointer);
  form->cmdSource.Enabled = false;
  EXPECT_EQ(ShownPointer(form->cmdSource), kDefaultPointer);
  form->cmdGo.MousePointer = kHourglass;
  EXPECT_EQ(ShownPointer(form->cmdGo), kHourglass);
}

TEST(Graves, WaitForTheEntriesThatWereOnTheStack) {
  const auto screen = std::make_shared<Platform>(std::make_shared<RecordingToolkit>());
  const auto form = std::make_shared<SmallForm>(screen);
  int dug = 0;
  DigBy([] {}, false);
  {
    const Entry outer(*form);
    {
      const Entry inner(*form);
      Bury([&] { ++dug; });
      Dig();
      EXPECT_EQ(dug, 0);
    }
    Dig();
    EXPECT_EQ(dug, 1);
    Bury([&] { ++dug; });
    Dig();
    EXPECT_EQ(dug, 1);
  }
  Dig();
  EXPECT_EQ(dug, 2);
  EXPECT_TRUE(IsDug());
}

TEST(Graves, AreDugAtOnceWhereNothingRuns) {
  int dug = 0;
  DigBy([] {}, true);
  Bury([&] { ++dug; });
  EXPECT_EQ(dug, 1);
  DigBy(nullptr, false);
}

}  // namespace
}  // namespace Tarnwise
