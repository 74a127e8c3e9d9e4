#include "TestForm.h"

namespace Tarnwise {

class WinMnemonics : public WinFormTest {};

TEST_F(WinMnemonics, ALabelsGoesToTheControlBehindIt) {
  Show();
  SendAlt('n');
  EXPECT_EQ(form->ActiveControl, &form->txtName);
  EXPECT_EQ(GetFocus(), WindowOf(form->txtName));
  EXPECT_EQ(form->txtName.Text(), "");
}

TEST_F(WinMnemonics, PressesOnlyWhatAPersonCanReach) {
  NoteClick(form->cmdGo);
  Show();
  SendAlt('g');
  EXPECT_EQ(Joined(form->Log), "cmdGo");
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
  form->cmdGo.Enabled = false;
  platform->SyncAll();
  SendAlt('g');
  EXPECT_EQ(Joined(form->Log), "cmdGo");
  form->cmdGo.Enabled = true;
  PictureBox panel(*form, form.get(), "picPanel");
  Place(panel, 0, 0, 9000, 6000);
  platform->SyncAll();
  SendAlt('g');
  EXPECT_EQ(Joined(form->Log), "cmdGo");
  platform->Release(*form);
}

TEST_F(WinMnemonics, TogglesACheckBoxFromATextBox) {
  NoteClick(form->chkBox);
  Show();
  SendAlt('B');
  EXPECT_EQ(form->chkBox.Value, 1);
  EXPECT_NE(SendMessageW(WindowOf(form->chkBox), BM_GETCHECK, 0, 0), 0);
  EXPECT_EQ(Joined(form->Log), "chkBox");
}

TEST_F(WinMnemonics, OfSeveralControlsWalksThroughThemAndPressesNone) {
  form->chkBox.Caption = "&Grow";
  NoteClick(form->cmdGo);
  NoteClick(form->chkBox);
  Show();
  SendAlt('g');
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
  SendAlt('g');
  EXPECT_EQ(form->ActiveControl, &form->chkBox);
  SendAlt('g');
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "");
}

TEST_F(WinMnemonics, StopAtTheMessageOfTheControlThatLosesTheFocus) {
  form->txtFirst.LostFocus = [this] {
    platform->MessageBox("wrong", 48, "KESTA");
    platform->SetFocus(form->txtFirst);
  };
  NoteClick(form->cmdGo);
  Show();
  SendAlt('g');
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
}

TEST_F(WinMnemonics, AnAmpersandInANameIsNone) {
  form->cmdGo.Caption = "R&D";
  NoteClick(form->cmdGo);
  Show();
  SendAlt('d');
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(WinMnemonics, NeedAlt) {
  NoteClick(form->cmdGo);
  Show();
  Type(L"g");
  Input::MoveFocus(form->chkBox);
  platform->SyncAll();
  Type(L"g");
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(form->txtFirst.Text(), "g");
}

}  // namespace Tarnwise
