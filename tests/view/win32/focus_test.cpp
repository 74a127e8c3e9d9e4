#include "TestForm.h"

namespace Tarnwise {

class WinFocus : public WinFormTest {
 protected:
  bool IsChecked(const Control& control) const { return SendMessageW(WindowOf(control), BM_GETCHECK, 0, 0) != 0; }
};

TEST_F(WinFocus, TheFirstControlInTabOrderHasItAndTabGoesOn) {
  Show();
  EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
  SendKey(VK_TAB, L"\t");
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  EXPECT_EQ(GetFocus(), WindowOf(form->txtSecond));
  SendKey(VK_TAB, L"\t", 1);
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  EXPECT_EQ(form->txtFirst.Text(), "");
}

TEST_F(WinFocus, TabVisitsEveryStopAndSkipsWhatIsDisabledOrHidden) {
  form->cmdGo.Enabled = false;
  form->optOne.Visible = false;
  Show();
  String way;
  for (int i = 0; i < 11; ++i) {
    SendKey(VK_TAB, L"\t");
    way += form->ActiveControl->Name + " ";
    EXPECT_TRUE(GetFocus() == WindowOf(*form->ActiveControl) ||
                IsChild(WindowOf(*form->ActiveControl), GetFocus()) != 0)
        << form->ActiveControl->Name;
  }
  EXPECT_EQ(way, "txtSecond cmdSource optTwo chkBox lstRows tbMoves tsTab cmbRows imgcmbRows txtName txtFirst ");
}

TEST_F(WinFocus, AClickMovesItBeforeTheButtonIsToldOfTheClickOnce) {
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  form->cmdGo.GotFocus = [this] { form->Log.push_back("got"); };
  form->cmdGo.Click = [this] { form->Log.push_back("click"); };
  Show();
  Click(form->cmdGo);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "lost got click");
  EXPECT_EQ(GetFocus(), WindowOf(form->cmdGo));
}

TEST_F(WinFocus, APressThatIsLetGoElsewhereIsNoClick) {
  NoteClick(form->cmdGo);
  Show();
  PressAt(WindowOf(form->cmdGo), MiddleOf(WindowOf(form->cmdGo)));
  LetGoAt(WindowOf(form->cmdGo), {-20, -20});
  EXPECT_EQ(Joined(form->Log), "");
  Click(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "cmdGo");
}

TEST_F(WinFocus, ADoubleClickIsTwoClicks) {
  NoteClick(form->cmdGo);
  Show();
  Click(form->cmdGo);
  SendMessageW(WindowOf(form->cmdGo), WM_LBUTTONDBLCLK, MK_LBUTTON, At(MiddleOf(WindowOf(form->cmdGo))));
  LetGoAt(WindowOf(form->cmdGo), MiddleOf(WindowOf(form->cmdGo)));
  EXPECT_EQ(Joined(form->Log), "cmdGo cmdGo");
}

TEST_F(WinFocus, AMessageOnTheWayEndsTheClick) {
  form->txtFirst.LostFocus = [this] {
    platform->MessageBox("wrong", 48, "KESTA");
    platform->SetFocus(form->txtFirst);
  };
  NoteClick(form->cmdGo);
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(platform->MessagesShown(), 1);
  EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
  EXPECT_EQ(SendMessageW(WindowOf(form->cmdGo), BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WinFocus, APressThatTheLostFocusDisabledOrHidIsNoClick) {
  for (const bool hide : {false, true}) {
    CommandButton button(*form, form.get(), "cmdOther");
    Place(button, 3000, 5000, 1500, 375);
    NoteClick(button);
    platform->Show(*form);
    platform->SyncAll();
    Input::MoveFocus(form->txtFirst);
    form->txtFirst.LostFocus = [&] { (hide ? button.Visible : button.Enabled) = false; };
    Click(button);
    EXPECT_EQ(Joined(form->Log), "") << hide;
  }
  platform->Release(*form);
}

TEST_F(WinFocus, ADisabledControlAnswersNoPress) {
  NoteClick(form->cmdGo);
  NoteClick(form->chkBox);
  NoteClick(form->lstRows);
  for (Control* control : std::vector<Control*>{&form->cmdGo, &form->chkBox, &form->lstRows}) control->Enabled = false;
  Show();
  for (const Control* control : std::vector<Control*>{&form->cmdGo, &form->chkBox, &form->lstRows}) {
    ClickAt(WindowOf(*control), {6, 6});
    // Windows gives the press to what the control stands in.
    POINT inForm{6, 6};
    MapWindowPoints(WindowOf(*control), Window(), &inForm, 1);
    ClickAt(Window(), inForm);
  }
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(form->chkBox.Value, 0);
  EXPECT_EQ(form->lstRows.ListIndex, -1);
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(WinFocus, TheMouseFindsWhatCoversAControl) {
  PictureBox panel(*form, form.get(), "picPanel");
  Place(panel, 0, 0, 2500, 4200);
  NoteClick(form->cmdGo);
  NoteClick(panel);
  Show();
  POINT middle = MiddleOf(WindowOf(form->cmdGo));
  MapWindowPoints(WindowOf(form->cmdGo), Window(), &middle, 1);
  const HWND found = ChildWindowFromPoint(Window(), middle);
  EXPECT_EQ(found, WindowOf(panel));
  ClickAt(found, middle);
  EXPECT_EQ(Joined(form->Log), "picPanel");
  panel.Visible = false;
  platform->SyncAll();
  EXPECT_EQ(ChildWindowFromPointEx(Window(), middle, CWP_SKIPINVISIBLE), WindowOf(form->cmdGo));
  platform->Release(*form);
}

TEST_F(WinFocus, AControlThatIsDisabledKeepsItInTheTreeAndTabGoesOnFromThere) {
  Show();
  form->txtFirst.Enabled = false;
  platform->SyncAll();
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  EXPECT_EQ(GetFocus(), Window());
  Type(L"1");
  EXPECT_EQ(form->txtFirst.Text(), "");
  SendKey(VK_TAB, L"\t");
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  EXPECT_EQ(GetFocus(), WindowOf(form->txtSecond));
}

TEST_F(WinFocus, AControlThatIsEnabledInTheSameHandlerCanTakeIt) {
  form->txtSecond.Enabled = false;
  form->cmdGo.Click = [this] {
    form->txtSecond.Enabled = true;
    platform->SetFocus(form->txtSecond);
  };
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(GetFocus(), WindowOf(form->txtSecond));
}

TEST_F(WinFocus, ThatComesByAWayOfWindowsOwnIsTheTreesToo) {
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  Show();
  SetFocus(WindowOf(form->txtSecond));
  TakeMessages();
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  EXPECT_EQ(Joined(form->Log), "lost");
}

TEST_F(WinFocus, SpaceAndReturnPressTheButtonThatHasIt) {
  NoteClick(form->cmdGo);
  Show();
  Input::MoveFocus(form->cmdGo);
  SendKey(VK_SPACE, L" ");
  SendKey(VK_RETURN, L"\r");
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "cmdGo cmdGo");
}

TEST_F(WinFocus, AScreenReadersPressIsAPress) {
  NoteClick(form->cmdGo);
  Show();
  SendMessageW(WindowOf(form->cmdGo), BM_CLICK, 0, 0);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "cmdGo");
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
}

TEST_F(WinFocus, TheFormSaysWhatACheckBoxShows) {
  Show();
  ClickAt(WindowOf(form->chkBox), {6, 10});
  EXPECT_EQ(form->chkBox.Value, 1);
  EXPECT_TRUE(IsChecked(form->chkBox));
  form->chkBox.Click = [this] { form->chkBox.Value = 1; };
  ClickAt(WindowOf(form->chkBox), {6, 10});
  EXPECT_EQ(form->chkBox.Value, 1);
  EXPECT_TRUE(IsChecked(form->chkBox));
  form->chkBox.Value = 0;
  platform->SyncAll();
  EXPECT_FALSE(IsChecked(form->chkBox));
}

TEST_F(WinFocus, OneOptionOfAContainerIsOn) {
  NoteClick(form->optOne);
  NoteClick(form->optTwo);
  Show();
  EXPECT_FALSE(IsChecked(form->optOne));
  ClickAt(WindowOf(form->optOne), {6, 10});
  EXPECT_TRUE(form->optOne.Value);
  EXPECT_TRUE(IsChecked(form->optOne));
  ClickAt(WindowOf(form->optTwo), {6, 10});
  EXPECT_FALSE(IsChecked(form->optOne));
  EXPECT_TRUE(IsChecked(form->optTwo));
  EXPECT_EQ(Joined(form->Log), "optOne optTwo");
}

TEST_F(WinFocus, OnAnOptionDoesNotTurnItOn) {
  NoteClick(form->optOne);
  Show();
  Input::MoveFocus(form->optOne);
  platform->SyncAll();
  SetFocus(WindowOf(form->txtSecond));
  TakeMessages();
  SetFocus(WindowOf(form->optTwo));
  TakeMessages();
  EXPECT_FALSE(form->optOne.Value);
  EXPECT_FALSE(form->optTwo.Value);
  EXPECT_EQ(Joined(form->Log), "");
  SendKey(VK_SPACE, L" ");
  EXPECT_TRUE(form->optTwo.Value);
  EXPECT_TRUE(IsChecked(form->optTwo));
}

TEST_F(WinFocus, TheCloseButtonAsksTheFormAndLeavesTheWindow) {
  Show();
  SendMessageW(Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "close");
  EXPECT_TRUE(IsWindowVisible(Window()));
  SendKey(VK_ESCAPE, L"\x1b");
  EXPECT_EQ(Joined(form->Log), "close");
  EnableWindow(Window(), FALSE);
  SendMessageW(Window(), WM_CLOSE, 0, 0);
  EXPECT_EQ(Joined(form->Log), "close");
  EXPECT_TRUE(IsWindow(Window()));
}

}  // namespace Tarnwise
