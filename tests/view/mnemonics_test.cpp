// What Alt with a letter does, whatever the toolkit.
#include "view/Mnemonics.h"
#include "view/Bench.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Lettered : Bench {
  Lettered() {
    On->cmdGo.Caption = "&Go";
    On->chkBox.Caption = "&Box";
    On->lblText.Caption = "&Name:";
    On->lblText.TabIndex = On->txtSecond.TabIndex;
    NoteClicks();
  }
  bool Alt(char letter) const { return Input::Mnemonic(*On, letter); }
};

TEST(Mnemonics, PressesTheButtonAndMovesTheFocusThere) {
  Lettered form;
  EXPECT_TRUE(form.Alt('g'));
  EXPECT_EQ(form.Notes, Lines{"cmdGo click"});
  EXPECT_EQ(form.On->ActiveControl, &form.On->cmdGo);
  form.TakeNotes();
  EXPECT_TRUE(form.Alt('B'));
  EXPECT_EQ(form.Notes, Lines{"chkBox click"});
  EXPECT_EQ(form.On->chkBox.Value, 1);
}

TEST(Mnemonics, OfALabelPressesNothing) {
  Lettered form;
  EXPECT_TRUE(form.Alt('n'));
  EXPECT_EQ(form.On->ActiveControl, &form.On->txtSecond);
  form.On->lblText.TabIndex = form.On->cmdGo.TabIndex;
  EXPECT_TRUE(form.Alt('n'));
  EXPECT_EQ(form.On->ActiveControl, &form.On->cmdGo);
  EXPECT_EQ(form.Notes, Lines{});
}

TEST(Mnemonics, OfSeveralControlsWalkThroughThemAndPressNone) {
  Lettered form;
  form.On->chkBox.Caption = "&Grow";
  form.On->lblText.Caption = "&Gap:";
  for (const Control* next :
       std::vector<const Control*>{&form.On->cmdGo, &form.On->chkBox, &form.On->txtSecond, &form.On->cmdGo}) {
    EXPECT_TRUE(form.Alt('g'));
    EXPECT_EQ(form.On->ActiveControl, next) << form.On->ActiveControl->Name;
  }
  EXPECT_EQ(form.Notes, Lines{});
}

TEST(Mnemonics, OfWhatIsHiddenCoveredOrDisabledDoNothingAndDoNotCount) {
  Lettered form;
  CommandButton other(*form.On, &form.On->picPanel[1], "other");
  other.Caption = "&Go";
  EXPECT_TRUE(form.Alt('g')) << "the other one is covered";
  EXPECT_EQ(form.TakeNotes(), Lines{"cmdGo click"});
  form.On->cmdGo.Enabled = false;
  EXPECT_FALSE(form.Alt('g'));
  form.On->lblText.Visible = false;
  EXPECT_FALSE(form.Alt('n')) << "a label that nobody sees";
  form.On->lblText.Visible = true;
  form.On->txtSecond.Visible = false;
  EXPECT_FALSE(form.Alt('n')) << "what it leads to can't be reached, and what is behind that is not meant";
  EXPECT_EQ(form.Notes, Lines{});
  EXPECT_EQ(form.On->ActiveControl, &form.On->cmdGo);
}

TEST(Mnemonics, AreNoLettersOfAttributesAndNoBlanks) {
  Lettered form;
  form.On->lblText.Caption = "R&D";
  EXPECT_FALSE(form.Alt('d'));
  EXPECT_FALSE(form.Alt(' '));
  EXPECT_FALSE(form.Alt('\0'));
}

TEST(Mnemonics, StopAtTheMessageOfTheControlThatLosesTheFocus) {
  Lettered form;
  Input::MoveFocus(form.On->txtFirst);
  form.RefuseEmpty(form.On->txtFirst);
  form.TakeNotes();
  EXPECT_TRUE(form.Alt('g'));
  EXPECT_EQ(Only(form.Notes, "click"), Lines{});
  EXPECT_EQ(form.On->ActiveControl, &form.On->txtFirst);
}

}  // namespace
}  // namespace Tarnwise
