// Presses, choices and the focus, on every screen.
#include "view/contract/Contract.h"

namespace Tarnwise {
namespace {

TEST_F(Contract, APressMovesTheFocusBeforeItClicks) {
  driver->Focus(form->txtFirst);
  Took();
  driver->Click(form->cmdGo);
  EXPECT_EQ(Took(), (Lines{"txtFirst lost", "cmdGo got", "cmdGo click"}));
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
}

TEST_F(Contract, AMessageOnTheWayEndsThePress) {
  driver->Focus(form->txtFirst);
  form->txtFirst.LostFocus = [this] { screen->MessageBox("No number.", 0, "Check"); };
  Took();
  driver->Click(form->cmdGo);
  EXPECT_EQ(Took(), Lines{});
}

TEST_F(Contract, WhatTheFocusDisablesOnItsWayIsNotPressed) {
  driver->Focus(form->txtFirst);
  form->txtFirst.LostFocus = [this] { form->cmdGo.Enabled = false; };
  Took();
  driver->Click(form->cmdGo);
  EXPECT_EQ(Took(), Lines{"cmdGo got"});
}

TEST_F(Contract, ALabelIsClickedAndLeavesTheFocusWhereItWas) {
  driver->Focus(form->txtSecond);
  Took();
  driver->Click(form->lblText);
  EXPECT_EQ(Took(), Lines{"lblText click"});
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
}

TEST_F(Contract, ACheckBoxTogglesBeforeItsClick) {
  int seen = -1;
  form->chkBox.Click = [&] { seen = form->chkBox.Value; };
  driver->Click(form->chkBox);
  EXPECT_EQ(seen, 1);
  driver->Click(form->chkBox);
  EXPECT_EQ(seen, 0);
}

TEST_F(Contract, AnOptionPutsTheOthersOut) {
  driver->Click(form->optOne);
  driver->Click(form->optTwo);
  EXPECT_FALSE(form->optOne.Value());
  EXPECT_TRUE(form->optTwo.Value());
}

TEST_F(Contract, ARowThatIsChosenIsClickedOnce) {
  struct Case {
    Control& List;
    int Row;
  };
  for (const Case& of :
       {Case{form->lstRows, 2}, Case{form->cmbRows, 1}, Case{form->imgcmbRows, 2}, Case{form->tsTabs, 2}}) {
    Took();
    driver->Select(of.List, of.Row);
    const Lines took = Took();
    EXPECT_EQ(std::count(took.begin(), took.end(), of.List.FullName() + " click"), 1) << of.List.Name;
  }
  EXPECT_EQ(form->lstRows.ListIndex(), 2);
  EXPECT_EQ(form->cmbRows.ListIndex(), 1);
  EXPECT_EQ(form->imgcmbRows.SelectedItem(), 2);
  EXPECT_EQ(form->tsTabs.SelectedItem(), 2);
}

TEST_F(Contract, AToolTellsItsKeyAndTakesNoFocus) {
  driver->Focus(form->txtFirst);
  Took();
  driver->PressTool(form->tbTools, "Down");
  EXPECT_EQ(Took(), Lines{"tool Down"});
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(Contract, AToolThatIsDisabledIsNotPressed) {
  form->tbTools.EnableButton(2, false);
  screen->SyncAll();
  driver->PressTool(form->tbTools, "Down");
  EXPECT_EQ(Took(), Lines{});
}

TEST_F(Contract, ABarTellsOfItsNewValueOnce) {
  driver->Focus(form->vsrBar);
  Took();
  driver->Scroll(form->vsrBar, 137);
  EXPECT_EQ(Took(), Lines{"vsrBar change 137"});
}

TEST_F(Contract, TheWindowsOwnButtonAsksTheForm) {
  driver->Close(*form);
  EXPECT_EQ(Took(), Lines{"close"});
  EXPECT_TRUE(form->Visible());
}

TEST_F(Contract, ATimerTicksWhenTheScriptSaysSo) {
  driver->Tick(form->tmrClock);
  EXPECT_EQ(Took(), Lines{"tick"});
}

TEST_F(Contract, AFaultEndsItsHandlerAndIsToldOnce) {
  form->cmdGo.Click = [] { throw RuntimeError(11); };
  const int before = screen->MessagesShown();
  driver->Click(form->cmdGo);
  EXPECT_EQ(screen->MessagesShown(), before + 1);
  driver->Click(form->chkBox);
  EXPECT_EQ(form->chkBox.Value(), 1);
}

TEST_F(Contract, AClickMayReleaseTheForm) {
  form->cmdGo.Click = [this] { screen->Release(*form); };
  driver->Click(form->cmdGo);
  EXPECT_TRUE(form->Released);
  EXPECT_TRUE(screen->Forms().empty());
}

TEST_F(Contract, AModalFormKeepsTheInputUntilItIsHidden) {
  const auto second = std::make_shared<ContractForm>(screen, "frmSecond");
  screen->Created(*second);
  Lines seen;
  driver->SetPump([&] {
    if (!second->Visible) return false;
    seen.push_back(screen->IsBlocked(*form) ? "blocked" : "free");
    driver->Click(second->cmdGo);
    return true;
  });
  second->cmdGo.Click = [&] { screen->Hide(*second); };
  form->cmdGo.Click = [&] {
    screen->ShowModal(*second);
    seen.push_back("back");
  };
  driver->Click(form->cmdGo);
  EXPECT_EQ(seen, (Lines{"blocked", "back"}));
  EXPECT_FALSE(screen->IsBlocked(*form));
  screen->Release(*second);
}

}  // namespace
}  // namespace Tarnwise
