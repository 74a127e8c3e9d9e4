// What is seen and heard of controls, and what comes by the clock, on every screen.
#include "view/contract/Contract.h"

#include "view/WindowedToolkit.h"
#include "view/contract/Perceived.h"

#include <chrono>
#include <thread>

namespace Tarnwise {
namespace {

struct ScreenContract : Contract {
  // Lets events in until it is so; false when that never comes.
  bool Until(const std::function<bool()>& so) const {
    auto& toolkit = static_cast<WindowedToolkit&>(screen->Tools());
    for (int i = 0; i < 2000 && !so(); ++i) {
      toolkit.TakeEvents();
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return so();
  }
};

TEST_F(ScreenContract, ACaptionThatIsCutIsToldByTheToolTip) {
  const String tooLong = "A caption that has no chance to fit into its room";
  struct Case {
    Control& Of;
    Property<String>& Caption;
  };
  for (const Case& of : {Case{form->cmdGo, form->cmdGo.Caption}, Case{form->optOne, form->optOne.Caption},
                         Case{form->chkBox, form->chkBox.Caption}, Case{form->lblText, form->lblText.Caption}}) {
    of.Caption = tooLong;
    screen->SyncAll();
    EXPECT_EQ(Perceive(of.Of).Tip, tooLong) << of.Of.Name;
    of.Caption = "Fits";
    screen->SyncAll();
    EXPECT_EQ(Perceive(of.Of).Tip, "") << of.Of.Name;
  }
}

TEST_F(ScreenContract, ACaptionIsToldWithoutItsMarks) {
  form->cmdGo.Caption = "&Research & development of the &whole";
  screen->SyncAll();
  EXPECT_EQ(Perceive(form->cmdGo).Tip, "Research & development of the whole");
}

TEST_F(ScreenContract, AToolTipOfItsOwnComesFirst) {
  form->cmdGo.Caption = "A caption that has no chance to fit into its room";
  form->cmdGo.ToolTipText = "Goes there";
  form->txtFirst.ToolTipText = "A ratio";
  screen->SyncAll();
  EXPECT_EQ(Perceive(form->cmdGo).Tip, "Goes there");
  EXPECT_EQ(Perceive(form->txtFirst).Tip, "A ratio");
}

TEST_F(ScreenContract, ALabelOfSeveralLinesIsNotCut) {
  form->lblText.WordWrap = true;
  form->lblText.Caption = "A caption that has no chance to fit into one line of its room";
  screen->SyncAll();
  EXPECT_EQ(Perceive(form->lblText).Tip, "");
}

TEST_F(ScreenContract, WhatACaptionSaysIsTheNameWithoutItsMarks) {
  form->cmdGo.Caption = "&Go";
  form->chkBox.Caption = "R&D";
  form->lblText.Caption = "&Number:";
  form->fraBox.Caption = "&Frame";
  screen->SyncAll();
  EXPECT_EQ(Perceive(form->cmdGo).Name, "Go");
  EXPECT_EQ(Perceive(form->chkBox).Name, "R&D");
  EXPECT_EQ(Perceive(form->lblText).Name, "Number:");
  EXPECT_EQ(Perceive(form->fraBox).Name, "Frame");
}

TEST_F(ScreenContract, WhatHasNoCaptionSaysItsAccessibleName) {
  form->lstRows.AccessibleName = "Approach";
  form->picRow[0].AccessibleName = "Rank row";
  form->vsrBar.AccessibleName = "Scroll the ranks";
  form->tbTools.AccessibleName = "Moves";
  screen->SyncAll();
  EXPECT_EQ(Perceive(form->lstRows).Name, "Approach");
  EXPECT_EQ(Perceive(form->picRow[0]).Name, "Rank row");
  EXPECT_EQ(Perceive(form->vsrBar).Name, "Scroll the ranks");
  EXPECT_EQ(Perceive(form->tbTools).Name, "Moves");
}

TEST_F(ScreenContract, ALabelsNameSaysWhatItIsAndWhatItShows) {
  form->lblText.AccessibleName = "Cost reference";
  form->lblText.Caption = "Nurses";
  screen->SyncAll();
  EXPECT_EQ(Perceive(form->lblText).Name, "Cost reference: Nurses");
}

TEST_F(ScreenContract, AClockTicksUntilItIsStopped) {
  screen->Tools().RealTimers = true;
  int ticks = 0;
  form->tmrClock.Tick = [&] { ++ticks; };
  form->tmrClock.Interval = 2;
  screen->SyncAll();
  EXPECT_TRUE(Until([&] { return ticks >= 3; }));
  form->tmrClock.Interval = 0;
  screen->SyncAll();
  const int then = ticks;
  EXPECT_FALSE(Until([&, left = 20]() mutable { return ticks != then || --left < 0; }) && ticks != then);
}

TEST_F(ScreenContract, AReleasedFormsClockTicksNoMore) {
  screen->Tools().RealTimers = true;
  int ticks = 0;
  form->tmrClock.Interval = 2;
  form->tmrClock.Tick = [&] {
    ++ticks;
    screen->Release(*form);
  };
  screen->SyncAll();
  EXPECT_TRUE(Until([&] { return ticks > 0; }));
  Until([left = 20]() mutable { return --left < 0; });
  EXPECT_EQ(ticks, 1);
}

}  // namespace
}  // namespace Tarnwise
