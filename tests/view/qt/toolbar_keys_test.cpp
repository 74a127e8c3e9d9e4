#include "TestForm.h"

#include <QToolButton>

namespace Tarnwise {

class QtToolbarKeys : public QtFormTest {
 protected:
  QtToolbarKeys() {
    Place(tbMoves, 150, 4300, 900, 450);
    tbMoves.TabIndex = 9;
    tbMoves.Buttons = {{"Up", "Move up", "up"}, {"Down", "Move down", "down"}};
    tbMoves.ButtonClick = [this](const String& key) { form->Log.push_back(key); };
  }
  ~QtToolbarKeys() override { platform->Release(*form); }
  bool HasRing(const char* key) const { return !Tool(key)->styleSheet().isEmpty(); }
  QToolButton* Tool(const char* key) const { return WidgetOf(tbMoves)->findChild<QToolButton*>(key); }

  Toolbar tbMoves{*form, form.get(), "tbMoves"};
};

TEST_F(QtToolbarKeys, TabGoesThereAndArrowsChooseWhatSpaceAndReturnPress) {
  Show();
  Input::MoveFocus(form->cmdSource);
  Key(Qt::Key_Tab);
  EXPECT_EQ(form->ActiveControl, &tbMoves);
  EXPECT_TRUE(HasRing("Up"));
  Key(Qt::Key_Space);
  Key(Qt::Key_Right);
  EXPECT_TRUE(HasRing("Down"));
  EXPECT_FALSE(HasRing("Up"));
  Key(Qt::Key_Right);
  Key(Qt::Key_Return);
  Key(Qt::Key_Up);
  Key(Qt::Key_Space);
  EXPECT_EQ(Joined(form->Log), "Up Down Up");
  Key(Qt::Key_Tab);
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  EXPECT_FALSE(HasRing("Up"));
}

TEST_F(QtToolbarKeys, PressNoDisabledButton) {
  tbMoves.Buttons[0].Enabled = false;
  Show();
  Input::MoveFocus(tbMoves);
  Key(Qt::Key_Space);
  EXPECT_EQ(Joined(form->Log), "");
  Key(Qt::Key_Down);
  Key(Qt::Key_Space);
  EXPECT_EQ(Joined(form->Log), "Down");
}

TEST_F(QtToolbarKeys, APressByTheMouseMovesNoFocus) {
  Show();
  QTest::mouseClick(Tool("Down"), Qt::LeftButton);
  EXPECT_EQ(Joined(form->Log), "Down");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

}  // namespace Tarnwise
