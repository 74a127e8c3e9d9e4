// Focus, presses and keys as a person makes them.
#include "view/Bench.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(Focus, LeavesTheFormerControlBeforeItComesToTheNew) {
  Bench bench;
  EXPECT_TRUE(Input::MoveFocus(bench.On->txtFirst));
  bench.NoteFocus();
  EXPECT_TRUE(Input::MoveFocus(bench.On->txtSecond));
  EXPECT_TRUE(Input::MoveFocus(bench.On->txtSecond));
  EXPECT_EQ(bench.Notes, (Lines{"txtFirst lost", "txtSecond got"}));
  EXPECT_EQ(bench.On->ActiveControl, &bench.On->txtSecond);
}

TEST(Focus, IsOnTheFirstStopWhenAFormIsShown) {
  const Bench bench;
  EXPECT_EQ(bench.On->ActiveControl, &bench.On->txtFirst);
}

TEST(Focus, ByTheProgramRaisesBothEventsAndIsTold) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.NoteFocus();
  bench.Screen->SetFocus(bench.On->cmdGo);
  EXPECT_EQ(bench.Notes, (Lines{"focus cmdGo", "txtFirst lost", "cmdGo got"}));
}

TEST(Focus, ByTheProgramDoesNothingWhereTheControlCannotTakeIt) {
  Bench bench;
  bench.NoteFocus();
  bench.On->cmdGo.Enabled = false;
  bench.Screen->SetFocus(bench.On->cmdGo);
  bench.On->cmdGo.Enabled = true;
  bench.On->cmdGo.Visible = false;
  bench.Screen->SetFocus(bench.On->cmdGo);
  bench.On->cmdGo.Visible = true;
  bench.On->picPanel[0].Visible = false;
  bench.Screen->SetFocus(bench.On->cmdGo);
  EXPECT_EQ(bench.Notes, Lines{});
}

TEST(Mistake, GivesOneMessageThoughTheControlThatHadJustGotTheFocusHasACheckToo) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.RefuseEmpty(bench.On->txtFirst);
  bench.RefuseEmpty(bench.On->txtSecond);
  EXPECT_FALSE(Input::MoveFocus(bench.On->txtSecond));
  EXPECT_EQ(bench.Notes, (Lines{"txtFirst lost", "beep", "focus txtFirst", "msgbox empty"}));
  EXPECT_EQ(bench.On->ActiveControl, &bench.On->txtFirst);
}

TEST(Mistake, RefusesTheClickThatMovedTheFocus) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.NoteClicks();
  bench.RefuseEmpty(bench.On->txtFirst);
  bench.Click("cmdGo");
  EXPECT_EQ(bench.Notes, (Lines{"txtFirst lost", "beep", "focus txtFirst", "msgbox empty"}));
  bench.On->txtFirst.SetText("x");
  bench.TakeNotes();
  bench.Click("cmdGo");
  EXPECT_EQ(bench.Notes, (Lines{"txtFirst lost", "cmdGo click"}));
}

TEST(Mistake, IsToldAgainAtTheNextTry) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.RefuseEmpty(bench.On->txtFirst);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(Input::MoveFocus(bench.On->cmdGo));
  EXPECT_EQ(Only(bench.Notes, "msgbox").size(), 3U);
}

TEST(Mistake, InAFaultOfTheCheckCountsAsAMessage) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.NoteClicks();
  bench.On->txtFirst.LostFocus = [] { throw RuntimeError(11); };
  bench.Click("cmdGo");
  EXPECT_EQ(bench.Notes, Lines{"error 11 in frmBench.txtFirst_LostFocus"});
}

TEST(Press, IsLostWhereTheCheckDisabledOrHidTheButton) {
  for (const bool hide : {false, true}) {
    Bench bench;
    Input::MoveFocus(bench.On->txtFirst);
    bench.NoteClicks();
    bench.On->txtFirst.LostFocus = [&] {
      if (hide) bench.On->cmdGo.Visible = false;
      if (!hide) bench.On->cmdGo.Enabled = false;
    };
    bench.Click("cmdGo");
    EXPECT_EQ(bench.Notes, Lines{}) << hide;
  }
}

TEST(Press, IsLostWhereTheCheckReleasedTheForm) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.NoteClicks();
  bench.On->txtFirst.LostFocus = [&] { bench.Screen->Release(*bench.On); };
  EXPECT_FALSE(Input::Press(bench.On->cmdGo));
}

TEST(Press, OnADragSourceOrALabelMovesNoFocus) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.NoteFocus();
  EXPECT_TRUE(Input::Press(bench.On->cmdSource));
  EXPECT_TRUE(Input::Press(bench.On->lblText));
  EXPECT_TRUE(Input::Press(bench.On->picHandle[0]));
  EXPECT_EQ(bench.Notes, Lines{});
}

TEST(Activate, TogglesAndChoosesBeforeItClicks) {
  Bench bench;
  bench.On->chkBox.Click = [&] { bench.Notes.push_back(std::to_string(bench.On->chkBox.Value())); };
  bench.On->optTwo.Click = [&] { bench.Notes.push_back(bench.On->optTwo.Value ? "on" : "off"); };
  bench.Click("chkBox");
  bench.Click("chkBox");
  bench.Click("optTwo");
  bench.Click("optTwo");
  EXPECT_EQ(bench.Notes, (Lines{"1", "0", "on", "on"}));
}

TEST(SelectRow, ChoosesAndClicks) {
  Bench bench;
  bench.On->lstRows.Click = [&] { bench.Notes.push_back(std::to_string(bench.On->lstRows.ListIndex())); };
  Input::SelectRow(bench.On->lstRows, 2);
  Input::SelectRow(bench.On->lstRows, 0);
  EXPECT_EQ(bench.Notes, (Lines{"2", "0"}));
}

TEST(Tabbing, GoesByTheLayoutAndRound) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  Lines way;
  for (int i = 0; i < 11; ++i) {
    TypeKey(*bench.On, 9, 9, 0);
    way.push_back(bench.On->ActiveControl->FullName());
  }
  EXPECT_EQ(way, (Lines{"txtSecond", "cmdGo", "cmdSource", "optOne", "optTwo", "chkBox", "lstRows", "picHandle(0)",
                        "picHandle(1)", "txtFirst", "txtSecond"}));
  TypeKey(*bench.On, 9, 9, 1);
  TypeKey(*bench.On, 9, 9, 1);
  EXPECT_EQ(bench.On->ActiveControl, &bench.On->picHandle[1]);
}

TEST(Tabbing, SkipsWhatIsDisabledHiddenOrCovered) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.On->txtSecond.Enabled = false;
  bench.On->cmdGo.Visible = false;
  TypeKey(*bench.On, 9, 9, 0);
  EXPECT_EQ(bench.On->ActiveControl, &bench.On->cmdSource);
  CommandButton back(*bench.On, bench.On.get(), "cmdBack");
  Place(back, 0, 6600, 1000, 300);
  back.TabIndex = 100;
  bench.On->picPanel[1].ZOrder();
  TypeKey(*bench.On, 9, 9, 0);
  EXPECT_EQ(bench.On->ActiveControl, &back);
  TypeKey(*bench.On, 9, 9, 0);
  EXPECT_EQ(bench.On->ActiveControl, &back);
}

TEST(Tabbing, OutOfABoxWithAMistakeGoesBackToIt) {
  Bench bench;
  Input::MoveFocus(bench.On->txtFirst);
  bench.RefuseEmpty(bench.On->txtFirst);
  TypeKey(*bench.On, 9, 9, 0);
  EXPECT_EQ(bench.On->ActiveControl, &bench.On->txtFirst);
  EXPECT_EQ(Only(bench.Notes, "msgbox").size(), 1U);
}

// Text boxes.

struct Typing : Bench {
  Typing() {
    Input::MoveFocus(On->txtFirst);
    On->txtFirst.SetText("12.5");
    On->txtFirst.SelStart = 4;
  }
  String Type(int code, int character = 0, int shift = 0) {
    TypeKey(*On, code, character, shift);
    return Shown();
  }
  // The text with the caret as "|", the selection between "[" and "]".
  String Shown() const {
    const TextBox& box = On->txtFirst;
    String text = box.Text();
    const auto start = static_cast<std::size_t>(box.SelStart());
    if (box.SelLength == 0) return text.insert(start, "|");
    return text.insert(start + static_cast<std::size_t>(box.SelLength()), "]").insert(start, "[");
  }
};

TEST(Keys, EditATextBox) {
  Typing typing;
  EXPECT_EQ(typing.Type('7', '7'), "12.57|");
  EXPECT_EQ(typing.Type(8, 8), "12.5|");
  EXPECT_EQ(typing.Type(37), "12.|5");
  EXPECT_EQ(typing.Type(8, 8), "12|5");
  EXPECT_EQ(typing.Type(46), "12|");
  EXPECT_EQ(typing.Type(46), "12|");
  EXPECT_EQ(typing.Type(36), "|12");
  EXPECT_EQ(typing.Type(8, 8), "|12");
  EXPECT_EQ(typing.Type(37), "|12");
  EXPECT_EQ(typing.Type(39), "1|2");
  EXPECT_EQ(typing.Type(35), "12|");
  EXPECT_EQ(typing.Type(39), "12|");
}

TEST(Keys, WorkOnASelection) {
  Typing typing;
  EXPECT_EQ(typing.Type('A', 1, 2), "[12.5]");
  EXPECT_EQ(typing.Type(37), "|12.5");
  typing.Type('A', 1, 2);
  EXPECT_EQ(typing.Type(39), "12.5|");
  typing.Type('A', 1, 2);
  EXPECT_EQ(typing.Type('3', '3'), "3|");
  typing.Type('A', 1, 2);
  EXPECT_EQ(typing.Type(8, 8), "|");
}

TEST(Keys, TypeCharactersBeyondAscii) {
  Typing typing;
  typing.Type(231, 0xE9);
  typing.Type(231, 0x20AC);
  typing.Type(231, 0x1F600);
  EXPECT_EQ(typing.On->txtFirst.Text(), "12.5é€😀");
  EXPECT_EQ(typing.On->txtFirst.SelStart, 7);
}

TEST(Keys, RaiseDownPressAndUpInThisOrder) {
  Typing typing;
  TextBox& box = typing.On->txtFirst;
  box.KeyDown = [&](KeyEvent& key) {
    typing.Notes.push_back("down " + std::to_string(key.Code) + " " + std::to_string(key.Shift));
  };
  box.KeyPress = [&](KeyEvent& key) { typing.Notes.push_back("press " + std::to_string(key.Code) + " " + box.Text()); };
  box.KeyUp = [&](KeyEvent& key) { typing.Notes.push_back("up " + std::to_string(key.Code) + " " + box.Text()); };
  typing.Type('7', '7');
  typing.Type(46);
  typing.Type(45, 0, 1);
  EXPECT_EQ(typing.Notes, (Lines{"down 55 0", "press 55 12.5", "up 55 12.57", "down 46 0", "up 46 12.57", "down 45 1",
                                 "up 45 12.57"}));
}

TEST(Keys, AreDroppedByEitherHandlerAndComeUpAllTheSame) {
  Typing typing;
  TextBox& box = typing.On->txtFirst;
  int presses = 0;
  int ups = 0;
  box.KeyUp = [&](KeyEvent&) { ++ups; };
  box.KeyPress = [&](KeyEvent& key) {
    ++presses;
    key.Code = 0;
  };
  EXPECT_EQ(typing.Type('7', '7'), "12.5|");
  box.KeyDown = [](KeyEvent& key) { key.Code = 0; };
  EXPECT_EQ(typing.Type('7', '7'), "12.5|");
  EXPECT_EQ(typing.Type(46), "12.5|");
  EXPECT_EQ(typing.Type(36), "12.5|");
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(ups, 4);
}

TEST(Keys, MayBeReplacedByThePress) {
  Typing typing;
  typing.On->txtFirst.KeyPress = [](KeyEvent& key) { key.Code = 8; };
  EXPECT_EQ(typing.Type('7', '7'), "12.|");
}

TEST(Keys, ComeUpWhereTheFocusHasGone) {
  Typing typing;
  typing.On->txtFirst.KeyPress = [&](KeyEvent&) { typing.Screen->SetFocus(typing.On->txtSecond); };
  typing.On->txtFirst.KeyUp = [&](KeyEvent&) { typing.Notes.push_back("up first"); };
  typing.On->txtSecond.KeyUp = [&](KeyEvent&) { typing.Notes.push_back("up second"); };
  typing.Type('7', '7');
  EXPECT_EQ(typing.Notes, (Lines{"focus txtSecond", "up second"}));
}

TEST(Keys, TellOfChangedTextOnce) {
  Typing typing;
  typing.On->txtFirst.Change = [&] { typing.Notes.push_back(typing.On->txtFirst.Text()); };
  typing.Type('7', '7');
  typing.Type(37);
  typing.Type(46);
  typing.Type(46);
  EXPECT_EQ(typing.Notes, (Lines{"12.57", "12.5"}));
}

TEST(Keys, PressWhatIsNoTextBox) {
  Bench bench;
  bench.NoteClicks();
  const auto type = [&bench](Control& on, int code) {
    Input::MoveFocus(on);
    TypeKey(*bench.On, code, code, 0);
  };
  type(bench.On->cmdGo, 32);
  type(bench.On->cmdGo, 13);
  type(bench.On->chkBox, 32);
  type(bench.On->chkBox, 13);
  type(bench.On->optTwo, 32);
  type(bench.On->lstRows, 32);
  EXPECT_EQ(bench.Notes, (Lines{"cmdGo click", "cmdGo click", "chkBox click", "optTwo click"}));
}

TEST(Keys, ChooseTheRowsOfAList) {
  Bench bench;
  ListBox& list = bench.On->lstRows;
  list.ListIndex = 0;
  list.Click = [&] { bench.Notes.push_back(std::to_string(list.ListIndex())); };
  Input::MoveFocus(list);
  for (const int code : {40, 39, 40, 38, 36, 38, 35}) TypeKey(*bench.On, code, 0, 0);
  EXPECT_EQ(bench.Notes, (Lines{"1", "2", "1", "0", "2"}));
}

TEST(Keys, ScrollABar) {
  Bench bench;
  VScrollBar& bar = bench.On->vsrBar;
  bar.Max = 1000;
  bar.SmallChange = 100;
  bar.LargeChange = 500;
  bar.Change = [&] { bench.Notes.push_back(std::to_string(bar.Value())); };
  Input::MoveFocus(bar);
  for (const int code : {40, 34, 34, 38, 33, 36, 36, 35}) TypeKey(*bench.On, code, 0, 0);
  EXPECT_EQ(bench.Notes, (Lines{"100", "600", "1000", "900", "400", "0", "1000"}));
}

}  // namespace
}  // namespace Tarnwise
