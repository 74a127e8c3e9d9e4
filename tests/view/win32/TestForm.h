// A form with a control of every kind on real windows, and what the tests do to it.
#pragma once

#include "Messages.h"
#include "forms/WizardForm.h"
#include "view/Form.h"
#include "view/Input.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Tarnwise {

struct TestForm : Form {
  explicit TestForm(std::shared_ptr<Platform> platform, const String& name = "frmTest")
      : Form(std::move(platform), name) {
    Place(*this, 0, 0, 9000, 6000);
    PlaceControls();
    int tab = 0;
    for (Control* stop : std::vector<Control*>{&txtFirst, &txtSecond, &cmdGo, &cmdSource, &optOne, &optTwo, &chkBox,
                                               &lstRows, &tbMoves, &tsTab, &cmbRows, &imgcmbRows, &lblName, &txtName}) {
      stop->TabIndex = tab++;
    }
    cmdGo.Caption = "&Go";
    optOne.Caption = "One";
    optTwo.Caption = "Two";
    chkBox.Caption = "&Box";
    lblName.Caption = "&Name:";
    cmdSource.DragAutomatic = true;
    lstRows.List = std::vector<String>{"one", "two", "three"};
    cmbRows.List = std::vector<String>{"red", "green", "blue"};
    imgcmbRows.Add({"a", "first", "Smiling", "Smiling1"});
    imgcmbRows.Add({"b", "second", "Crying", "Crying1"});
    tsTab.Tabs = {{"One", "1"}, {"Two", "2"}, {"Three", "3"}};
    tbMoves.Buttons = {{"Up", "Move up", "up"}, {"Down", "Move down", "down"}};
  }
  void CloseBox() override { Log.push_back("close"); }

  TextBox txtFirst{*this, this, "txtFirst"};
  TextBox txtSecond{*this, this, "txtSecond"};
  CommandButton cmdGo{*this, this, "cmdGo"};
  CommandButton cmdSource{*this, this, "cmdSource"};
  OptionButton optOne{*this, this, "optOne"};
  OptionButton optTwo{*this, this, "optTwo"};
  CheckBox chkBox{*this, this, "chkBox"};
  ListBox lstRows{*this, this, "lstRows"};
  Toolbar tbMoves{*this, this, "tbMoves"};
  TabStrip tsTab{*this, this, "tsTab"};
  ComboBox cmbRows{*this, this, "cmbRows"};
  ImageCombo imgcmbRows{*this, this, "imgcmbRows"};
  Grid grdRows{*this, this, "grdRows"};
  Label lblName{*this, this, "lblName"};
  TextBox txtName{*this, this, "txtName"};
  VScrollBar vsrBar{*this, this, "vsrBar"};
  Timer tmrBlink{*this, this, "tmrBlink"};
  PictureBox picRows{*this, this, "picRows"};
  ControlArray<PictureBox> picRow{*this, &picRows, "picRow", [](PictureBox& /*row*/) {}};
  std::vector<String> Log;

 private:
  void PlaceControls() {
    Place(txtFirst, 150, 150, 1500, 375);
    Place(txtSecond, 150, 600, 1500, 375);
    Place(cmdGo, 150, 1050, 1500, 420);
    Place(cmdSource, 150, 1500, 1500, 375);
    Place(optOne, 150, 2000, 1500, 300);
    Place(optTwo, 150, 2300, 1500, 300);
    Place(chkBox, 150, 2600, 1500, 300);
    Place(lstRows, 150, 3000, 1500, 1200);
    Place(tbMoves, 150, 4300, 900, 450);
    Place(tsTab, 3000, 3300, 3000, 390);
    Place(cmbRows, 3000, 3800, 3000, 375);
    Place(imgcmbRows, 3000, 4300, 3000, 375);
    Place(grdRows, 6200, 150, 2200, 2400);
    Place(lblName, 6200, 2700, 900, 300);
    Place(txtName, 7200, 2700, 1200, 375);
    Place(vsrBar, 8550, 150, 255, 3000);
    Place(picRows, 3000, 150, 3000, 3000);
    Place(picRow[0], 150, 150, 1500, 600);
    Place(picRow.Load(1), 150, 900, 1500, 600);
  }
};

class WinFormTest : public testing::Test {
 protected:
  WinFormTest() {
    toolkit->RealTimers = false;
    toolkit->AutoAnswer = true;
    platform->Created(*form);
  }

  // Whatever a test does to its forms, none of their windows may be left.
  void TearDown() override {
    if (form) platform->Release(*form);
    EXPECT_TRUE(Until([this] { return WindowsAlive() == before_; })) << WindowsAlive() - before_ << " windows left";
  }

  void Show() {
    platform->Show(*form);
    TakeMessages();
  }
  HWND WindowOf(const Control& control) const {
    const WinForm* const shown = toolkit->FormOf(control.Owner);
    return shown == nullptr ? nullptr : shown->WindowOf(control);
  }
  HWND Window() const { return WindowOf(*form); }

  void Click(const Control& control) const { ClickAt(WindowOf(control), MiddleOf(WindowOf(control))); }
  void Type(const std::wstring& text) const {
    for (const wchar_t unit : text) {
      const int code = unit >= L'a' && unit <= L'z' ? unit - L'a' + 'A' : unit == L'.' ? 190 : static_cast<int>(unit);
      SendKey(code, std::wstring(1, unit));
    }
  }
  void NoteClick(Control& control) {
    control.Click = [this, &control] { form->Log.push_back(control.Name); };
  }

  std::shared_ptr<WinToolkit> toolkit = std::make_shared<WinToolkit>();
  std::shared_ptr<Platform> platform = std::make_shared<Platform>(toolkit);
  std::shared_ptr<TestForm> form = std::make_shared<TestForm>(platform);

 private:
  const long before_ = WindowsAlive();
};

inline String Joined(const std::vector<String>& log) {
  String all;
  for (const String& entry : log) all += (all.empty() ? "" : " ") + entry;
  return all;
}

}  // namespace Tarnwise
