// A form of a few controls on real widgets, and what the tests do to it.
#pragma once

#include "forms/WizardForm.h"
#include "view/Form.h"
#include "view/Input.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtToolkit.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

namespace Tarnwise {

struct TestForm : Form {
  explicit TestForm(std::shared_ptr<Platform> platform, const String& name = "frmTest")
      : Form(std::move(platform), name) {
    Place(*this, 0, 0, 9000, 6000);
    Place(txtFirst, 150, 150, 1500, 375);
    Place(txtSecond, 150, 600, 1500, 375);
    Place(cmdGo, 150, 1050, 1500, 420);
    Place(cmdSource, 150, 1500, 1500, 375);
    Place(picRows, 3000, 150, 3000, 3000);
    Place(picRow[0], 150, 150, 1500, 600);
    Place(picRow.Load(1), 150, 900, 1500, 600);
    txtFirst.TabIndex = 0;
    txtSecond.TabIndex = 1;
    cmdGo.TabIndex = 2;
    cmdSource.TabIndex = 3;
    cmdGo.Caption = "&Go";
    cmdSource.DragAutomatic = true;
  }
  void CloseBox() override { Log.push_back("close"); }

  TextBox txtFirst{*this, this, "txtFirst"};
  TextBox txtSecond{*this, this, "txtSecond"};
  CommandButton cmdGo{*this, this, "cmdGo"};
  CommandButton cmdSource{*this, this, "cmdSource"};
  PictureBox picRows{*this, this, "picRows"};
  ControlArray<PictureBox> picRow{*this, &picRows, "picRow", [](PictureBox& /*row*/) {}};
  std::vector<String> Log;
};

class QtFormTest : public testing::Test {
 protected:
  QtFormTest() {
    toolkit->RealTimers = false;
    toolkit->AutoAnswer = true;
    platform->Created(*form);
  }
  ~QtFormTest() override {
    if (form) platform->Release(*form);
    QCoreApplication::processEvents();
  }

  void Show() { platform->Show(*form); }
  QWidget* WidgetOf(const Control& control) const {
    QtForm* const shown = toolkit->FormOf(control.Owner);
    return shown == nullptr ? nullptr : shown->WidgetOf(control);
  }
  template <class Widget>
  Widget& As(const Control& control) const {
    return *dynamic_cast<Widget*>(WidgetOf(control));
  }
  QWidget& Window() const { return *WidgetOf(*form); }
  QWidget* Keyboard() const { return Window().focusWidget(); }

  void Click(const Control& control) const { QTest::mouseClick(WidgetOf(control), Qt::LeftButton); }
  void Type(const char* text) const {
    for (const char* c = text; *c != 0; ++c) QTest::keyClick(Keyboard(), *c);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(Keyboard(), key, modifiers);
  }

  std::shared_ptr<QtToolkit> toolkit = std::make_shared<QtToolkit>();
  std::shared_ptr<Platform> platform = std::make_shared<Platform>(toolkit);
  std::shared_ptr<TestForm> form = std::make_shared<TestForm>(platform);
};

inline String Joined(const std::vector<String>& log) {
  String all;
  for (const String& entry : log) all += (all.empty() ? "" : " ") + entry;
  return all;
}

}  // namespace Tarnwise
