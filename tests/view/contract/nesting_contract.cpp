// Message boxes, modal forms and handlers inside handlers, and what a screen reader is told, on every screen.
#include "view/contract/Contract.h"

namespace Tarnwise {
namespace {

TEST_F(Contract, AMessageBoxIsAnsweredAndItsHandlerGoesOn) {
  screen->Trace.MessageBox = [this](const String& text, int style, const String& title) {
    form->Log.push_back(title + std::to_string(style) + ": " + text);
  };
  form->cmdGo.Click = [this] {
    screen->MessageBox("No number.", 48, "Check");
    form->Log.push_back("after");
  };
  driver->Click(form->cmdGo);
  EXPECT_EQ(Took(), (Lines{"txtFirst lost", "cmdGo got", "Check48: No number.", "after"}));
}

TEST_F(Contract, AMessageMayFollowAMessage) {
  form->cmdGo.Click = [this] {
    screen->MessageBox("One.", 64, "Check");
    screen->MessageBox("Two.", 64, "Check");
  };
  driver->Click(form->cmdGo);
  EXPECT_EQ(screen->MessagesShown(), 2);
  driver->Click(form->chkBox);
  EXPECT_EQ(form->chkBox.Value(), 1);
}

TEST_F(Contract, AModalFormMayReleaseTheOneThatShowedIt) {
  const auto second = std::make_shared<ContractForm>(screen, "frmSecond");
  screen->Created(*second);
  driver->SetPump([&] {
    if (!second->Visible) return false;
    driver->Click(second->cmdGo);
    return true;
  });
  second->cmdGo.Click = [&] {
    screen->Release(*form);
    screen->Hide(*second);
  };
  bool back = false;
  form->cmdGo.Click = [&] {
    screen->ShowModal(*second);
    back = true;
  };
  driver->Click(form->cmdGo);
  EXPECT_TRUE(back);
  EXPECT_TRUE(form->Released);
  screen->Release(*second);
  EXPECT_TRUE(screen->Forms().empty());
}

TEST_F(Contract, AModalFormMayShowAnother) {
  const auto second = std::make_shared<ContractForm>(screen, "frmSecond");
  const auto third = std::make_shared<ContractForm>(screen, "frmThird");
  screen->Created(*second);
  screen->Created(*third);
  Lines seen;
  second->cmdGo.Click = [&] {
    screen->ShowModal(*third);
    seen.push_back("second is back");
    screen->Hide(*second);
  };
  third->cmdGo.Click = [&] {
    seen.push_back(screen->IsBlocked(*second) ? "second is blocked" : "second is free");
    screen->Hide(*third);
  };
  driver->SetPump([&] {
    ContractForm& top = third->Visible ? *third : *second;
    if (!top.Visible) return false;
    driver->Click(top.cmdGo);
    return true;
  });
  screen->ShowModal(*second);
  EXPECT_EQ(seen, (Lines{"second is blocked", "second is back"}));
  EXPECT_FALSE(screen->IsBlocked(*form));
  screen->Release(*third);
  screen->Release(*second);
}

TEST_F(Contract, AClickMayUnloadItsControl) {
  Place(form->cmdSource.Load(1), 150, 6000, 1500, 375);
  form->cmdSource[1].Click = [this] {
    form->cmdSource.Unload(1);
    form->Log.push_back("unloaded");
  };
  screen->SyncAll();
  driver->Click(form->cmdSource[1]);
  EXPECT_EQ(Took().back(), "unloaded");
  EXPECT_FALSE(form->cmdSource.Has(1));
  driver->Click(form->chkBox);
  EXPECT_EQ(form->chkBox.Value(), 1);
}

TEST_F(Contract, TheFocusThatComesMayMoveOn) {
  form->txtSecond.GotFocus = [this] { screen->SetFocus(form->cmdGo); };
  driver->Focus(form->txtFirst);
  driver->Click(form->txtSecond);
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
}

TEST_F(Contract, ASignIsToldAsItLightsUpAndNoBlinkIs) {
  Lines told;
  screen->Trace.Announced = [&](const Label& label) { told.push_back(label.Caption); };
  form->lblText.Announces = Announce::Lit;
  form->lblText.Caption = "Inconsistent";
  screen->SyncAll();
  EXPECT_EQ(told, Lines{}) << "it does not light";
  form->lblText.ForeColor = kHighlightText;
  screen->SyncAll();
  form->lblText.Visible = false;
  form->cmdGo.Caption = "Another";
  screen->SyncAll();
  EXPECT_EQ(told, Lines{"Inconsistent"});
}

TEST_F(Contract, ACaptionIsToldEachTimeThatItIsAnother) {
  Lines told;
  screen->Trace.Announced = [&](const Label& label) { told.push_back(label.Caption); };
  form->lblText.Announces = Announce::Caption;
  for (const char* const caption : {"Nurses", "Nurses", "Doctors"}) {
    form->lblText.Caption = caption;
    screen->SyncAll();
  }
  EXPECT_EQ(told, (Lines{"Nurses", "Doctors"}));
}

}  // namespace
}  // namespace Tarnwise
