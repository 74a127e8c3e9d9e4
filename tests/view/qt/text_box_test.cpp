#include "TestForm.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

namespace Tarnwise {

class QtTextBox : public QtFormTest {
 protected:
  QLineEdit& Edit() const { return As<QLineEdit>(form->txtFirst); }
};

TEST_F(QtTextBox, TypingRaisesTheKeysAndTheChange) {
  TextBox& box = form->txtFirst;
  box.KeyDown = [this](KeyEvent& key) { form->Log.push_back("down" + std::to_string(key.Code)); };
  box.KeyPress = [this](KeyEvent& key) { form->Log.push_back("press" + std::to_string(key.Code)); };
  box.Change = [this] { form->Log.push_back("change"); };
  box.KeyUp = [this](KeyEvent& key) { form->Log.push_back("up" + std::to_string(key.Code)); };
  Show();
  Type("1.");
  EXPECT_EQ(Joined(form->Log), "down49 press49 change up49 down190 press46 change up190");
  EXPECT_EQ(box.Text(), "1.");
  EXPECT_EQ(Edit().text(), "1.");
  EXPECT_EQ(box.SelStart, 2);
}

TEST_F(QtTextBox, AKeyThatAHandlerDropsDoesNothing) {
  form->txtFirst.KeyPress = [](KeyEvent& key) {
    if (key.Code == 'x') key.Code = 0;
  };
  form->txtFirst.KeyDown = [](KeyEvent& key) {
    if (key.Code == 46) key.Code = 0;
  };
  Show();
  Type("1x2");
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  EXPECT_EQ(form->txtFirst.Text(), "12");
}

TEST_F(QtTextBox, ACharacterThatAHandlerPutsInPlaceIsTyped) {
  form->txtFirst.Text = "123";
  form->txtFirst.SelStart = 3;
  form->txtFirst.KeyPress = [](KeyEvent& key) { key.Code = key.Code == 13 ? 8 : '7'; };
  Show();
  Key(Qt::Key_Return);
  EXPECT_EQ(form->txtFirst.Text(), "12");
  Type("a");
  EXPECT_EQ(Edit().text(), "127");
}

TEST_F(QtTextBox, ReturnAndEscapeDoNothingByThemselves) {
  form->txtFirst.Text = "123";
  Show();
  Key(Qt::Key_Return);
  Key(Qt::Key_Escape);
  EXPECT_EQ(form->txtFirst.Text(), "123");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(QtTextBox, HandlersSeeTheCaretAndTheSelection) {
  form->txtFirst.Text = "0.5\xC3\xA9z";
  Show();
  form->txtFirst.KeyDown = [this](KeyEvent& key) {
    if (key.Code == 46)
      form->Log.push_back(std::to_string(form->txtFirst.SelStart) + "+" + std::to_string(form->txtFirst.SelLength));
  };
  Key(Qt::Key_End);
  Key(Qt::Key_Left);
  Key(Qt::Key_Left, Qt::ShiftModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Joined(form->Log), "3+1");
  EXPECT_EQ(form->txtFirst.Text(), "0.5z");
}

TEST_F(QtTextBox, WhatAHandlerSelectsIsSelectedAndTypedOver) {
  form->txtFirst.Text = "12.5";
  form->txtFirst.GotFocus = [this] {
    form->txtFirst.SelStart = 0;
    form->txtFirst.SelLength = 4;
  };
  Show();
  Key(Qt::Key_Tab);
  Key(Qt::Key_Backtab);
  EXPECT_EQ(Edit().selectedText(), "12.5");
  Type("3");
  EXPECT_EQ(form->txtFirst.Text(), "3");
}

TEST_F(QtTextBox, TheKeyComesUpInTheBoxThatHasTheFocusThen) {
  form->txtFirst.KeyPress = [this](KeyEvent& key) {
    if (key.Code == 13) platform->SetFocus(form->txtSecond);
  };
  form->txtFirst.KeyUp = [this](KeyEvent&) { form->Log.push_back("first"); };
  form->txtSecond.KeyUp = [this](KeyEvent&) { form->Log.push_back("second"); };
  Show();
  QTest::keyPress(Keyboard(), Qt::Key_Return);
  QTest::keyRelease(Keyboard(), Qt::Key_Return);
  EXPECT_EQ(Joined(form->Log), "second");
}

TEST_F(QtTextBox, PastingGoesThroughTheKeyEvents) {
  QApplication::clipboard()->setText("42");
  Show();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form->txtFirst.Text(), "42");
  form->txtFirst.KeyPress = [](KeyEvent& key) {
    if (key.Code == 22) key.Code = 0;
  };
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form->txtFirst.Text(), "42");
  QTest::mouseClick(&Edit(), Qt::MiddleButton);
  EXPECT_EQ(form->txtFirst.Text(), "42");
  QApplication::clipboard()->clear();
}

class QtTextBoxOnly : public QtTextBox {
 protected:
  // A box that takes digits, by the keys that type them, and says what it was told.
  void ShowDigits() {
    TextBox& box = form->txtFirst;
    box.Text = "12";
    box.SelStart = 1;
    box.KeyDown = [this](KeyEvent&) { ++downs; };
    box.KeyPress = [](KeyEvent& key) {
      if (key.Code >= 32 && (key.Code < '0' || key.Code > '9')) key.Code = 0;
    };
    box.Change = [this] { form->Log.push_back(form->txtFirst.Text()); };
    Show();
  }
  // What is seen is what the wizard has, and that is what it was.
  void ExpectUntouched(const char* way) {
    EXPECT_EQ(Edit().text(), "12") << way;
    EXPECT_EQ(form->txtFirst.Text(), "12") << way;
    EXPECT_EQ(Edit().cursorPosition(), 1) << way;
    EXPECT_EQ(form->txtFirst.SelStart, 1) << way;
    EXPECT_EQ(Joined(form->Log), "") << way;
  }

  int downs = 0;
};

TEST_F(QtTextBoxOnly, ByItsKeysATextCanComeIntoIt) {
  ShowDigits();
  QMimeData text;
  text.setText("67");
  QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&Edit(), &drop);
  ExpectUntouched("a drop");
  QApplication::clipboard()->setText("67");
  Edit().paste();
  ExpectUntouched("a paste by the widget itself");
  QApplication::clipboard()->clear();
  QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&Edit());
  read->setText(QAccessible::Value, "67");
  ExpectUntouched("a text set by a screen reader");
  if (auto* const editable = read->editableTextInterface()) editable->insertText(0, "67");
  ExpectUntouched("a text put in by a screen reader");
  Type("3");
  EXPECT_EQ(form->txtFirst.Text(), "132") << "keys go on where the caret was";
  EXPECT_EQ(Edit().text(), "132");
}

TEST_F(QtTextBoxOnly, AnInputMethodsTextComesAsKeysThatTypeIt) {
  ShowDigits();
  QInputMethodEvent commit;
  commit.setCommitString(QString::fromUtf8("x\xEF\xBC\x95-"));
  QCoreApplication::sendEvent(&Edit(), &commit);
  ExpectUntouched("what the keys would not have given");
  EXPECT_EQ(downs, 3);
  commit.setCommitString("3a4");
  QCoreApplication::sendEvent(&Edit(), &commit);
  EXPECT_EQ(form->txtFirst.Text(), "1342");
  EXPECT_EQ(Edit().text(), "1342");
  EXPECT_EQ(Joined(form->Log), "132 1342");
  QInputMethodEvent unfinished("5", {});
  QCoreApplication::sendEvent(&Edit(), &unfinished);
  EXPECT_EQ(Edit().displayText(), "1342");
}

TEST_F(QtTextBox, SelectAllAndBackspaceEmptyIt) {
  form->txtFirst.Text = "1234";
  Show();
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(form->txtFirst.SelLength, 4);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(form->txtFirst.Text(), "");
}

TEST_F(QtTextBox, ThePersonsCaretOutlivesOtherChanges) {
  form->txtFirst.Text = "1234";
  Show();
  Key(Qt::Key_Right);
  Key(Qt::Key_Right);
  form->txtFirst.ToolTipText = "news";
  platform->SyncAll();
  EXPECT_EQ(Edit().cursorPosition(), 2);
}

}  // namespace Tarnwise
