// What comes without the mouse and the keyboard: a screen reader's invoking and choosing.
#include "TestForm.h"

#include <commctrl.h>

namespace Tarnwise {

class WinInvoke : public WinFormTest {
 protected:
  // The button says that it was pressed, though nobody pressed it.
  void Invoke(const Control& control, int command = 0) const {
    const HWND window = WindowOf(control);
    SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(command, BN_CLICKED), reinterpret_cast<LPARAM>(window));
    TakeMessages();
  }
};

TEST_F(WinInvoke, ClicksAButtonAndMovesTheFocusAsAPressDoes) {
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  NoteClick(form->cmdGo);
  NoteClick(form->cmdSource);
  Show();
  Invoke(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "lost cmdGo");
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
  SendMessageW(WindowOf(form->cmdGo), BM_CLICK, 0, 0);
  Invoke(form->cmdSource);
  EXPECT_EQ(Joined(form->Log), "lost cmdGo cmdGo cmdSource") << "one click for each";
}

TEST_F(WinInvoke, TogglesAndChooses) {
  Show();
  Invoke(form->chkBox);
  EXPECT_EQ(form->chkBox.Value, 1);
  EXPECT_EQ(SendMessageW(WindowOf(form->chkBox), BM_GETCHECK, 0, 0), BST_CHECKED);
  Invoke(form->chkBox);
  EXPECT_EQ(form->chkBox.Value, 0);
  Invoke(form->optTwo);
  EXPECT_TRUE(form->optTwo.Value);
  Invoke(form->optOne);
  EXPECT_FALSE(form->optTwo.Value);
}

TEST_F(WinInvoke, OfAnOptionIsNotItsFocus) {
  NoteClick(form->optTwo);
  Show();
  SetFocus(WindowOf(form->optTwo));
  TakeMessages();
  EXPECT_EQ(form->ActiveControl, &form->optTwo);
  EXPECT_FALSE(form->optTwo.Value);
  EXPECT_EQ(Joined(form->Log), "");
}

TEST_F(WinInvoke, PressesATool) {
  form->tbMoves.ButtonClick = [this](const String& key) { form->Log.push_back(key); };
  form->tbMoves.Buttons[0].Enabled = false;
  Show();
  Invoke(form->tbMoves, 2);
  Invoke(form->tbMoves, 1);
  Invoke(form->tbMoves, 3);
  EXPECT_EQ(Joined(form->Log), "Down");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst) << "it takes no focus";
}

TEST_F(WinInvoke, ChoosesARowAndATab) {
  NoteClick(form->lstRows);
  NoteClick(form->tsTab);
  Show();
  const HWND list = WindowOf(form->lstRows);
  SendMessageW(list, LB_SETCURSEL, 2, 0);
  SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
  EXPECT_EQ(form->lstRows.ListIndex, 2);
  SendMessageW(WindowOf(form->tsTab), TCM_SETCURFOCUS, 1, 0);
  EXPECT_EQ(form->tsTab.SelectedItem, 2);
  EXPECT_EQ(Joined(form->Log), "lstRows tsTab");
}

TEST_F(WinInvoke, OfWhatAPersonCannotReachDoesNothing) {
  NoteClick(form->cmdGo);
  NoteClick(form->lstRows);
  form->tbMoves.ButtonClick = [this](const String& key) { form->Log.push_back(key); };
  Show();
  form->cmdGo.Enabled = false;
  form->lstRows.Enabled = false;
  form->tbMoves.Enabled = false;
  platform->SyncAll();
  Invoke(form->cmdGo);
  Invoke(form->tbMoves, 1);
  const HWND list = WindowOf(form->lstRows);
  SendMessageW(list, LB_SETCURSEL, 2, 0);
  SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
  EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), -1) << "the list shows what the tree has";
  form->cmdGo.Enabled = true;
  PictureBox panel(*form, form.get(), "picPanel");
  Place(panel, 0, 0, 9000, 6000);
  platform->SyncAll();
  Invoke(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "");
  platform->Release(*form);
}

TEST_F(WinInvoke, StopsAtTheMessageOfTheControlThatLosesTheFocus) {
  form->txtFirst.LostFocus = [this] {
    platform->MessageBox("wrong", 48, "KESTA");
    platform->SetFocus(form->txtFirst);
  };
  NoteClick(form->cmdGo);
  Show();
  Invoke(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
}

TEST_F(WinInvoke, MayReleaseItsForm) {
  form->cmdGo.Click = [this] { platform->Release(*form); };
  Show();
  Invoke(form->cmdGo);
  EXPECT_TRUE(form->Released);
}

}  // namespace Tarnwise
