#include "Person.h"
#include "forms/TradeOffsBForm.h"
#include "judging/NumberKeys.h"
#include "view/Input.h"

#include <QClipboard>
#include <QLineEdit>

namespace Tarnwise {

class XTextBox : public testing::Test {
 protected:
  XTextBox() {
    toolkit->RealTimers = false;
    platform->Created(*form);
    form->picTabs[0].ZOrder();
    form->Scores.framePCNumericalC.ZOrder();
    box.Text = "16";
    box.KeyDown = DropPasting;
    platform->Show(*form);
    Person::TurnTo(toolkit->FormOf(*form)->Window());
    Input::MoveFocus(box);
    QApplication::clipboard()->setText("876.67", QClipboard::Clipboard);
    QApplication::clipboard()->setText("876.67", QClipboard::Selection);
  }
  ~XTextBox() override { platform->Release(*form); }
  QLineEdit& Edit() const { return *dynamic_cast<QLineEdit*>(toolkit->FormOf(*form)->WidgetOf(box)); }

  std::shared_ptr<QtToolkit> toolkit = std::make_shared<QtToolkit>();
  std::shared_ptr<Platform> platform = std::make_shared<Platform>(toolkit);
  std::shared_ptr<TradeOffsBForm> form = std::make_shared<TradeOffsBForm>(platform);
  TextBox& box = form->Scores.txtTradeOffAFirstScore;
  Person person;
};

TEST_F(XTextBox, TheMiddleButtonPastesNoSelection) {
  person.Click(Edit(), 2);
  EXPECT_EQ(Edit().text(), "16");
  EXPECT_EQ(box.Text(), "16");
  person.Click(Edit(), 3);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "no menu either";
  person.Keys({"End", "5"});
  EXPECT_EQ(box.Text(), "165");
  EXPECT_EQ(Edit().text(), "165");
}

TEST_F(XTextBox, InsertWithShiftPastesNothingWhateverElseIsHeld) {
  person.Keys({"shift+Insert", "ctrl+shift+Insert", "shift+KP_Insert"});
  EXPECT_EQ(Edit().text(), "16");
  EXPECT_EQ(box.Text(), "16");
}

}  // namespace Tarnwise
