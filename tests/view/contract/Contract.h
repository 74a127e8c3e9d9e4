// A form of every kind of control under whichever toolkit the tests are built with, acted on by that toolkit's way of
// playing a person: what must come out the same on every screen.
#pragma once

#include "forms/WizardForm.h"
#include "view/Driver.h"
#include "view/Platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Tarnwise {

std::unique_ptr<Driver> MakeContractDriver();  // each toolkit's tests have theirs

struct ContractForm : Form {
  explicit ContractForm(std::shared_ptr<Platform> platform, const String& name = "frmContract");
  void CloseBox() override { Log.push_back("close"); }
  void Note(Control& control);  // its focus and its clicks

  std::vector<String> Log;
  TextBox txtFirst{*this, this, "txtFirst"};
  TextBox txtSecond{*this, this, "txtSecond"};
  CommandButton cmdGo{*this, this, "cmdGo"};
  OptionButton optOne{*this, this, "optOne"};
  OptionButton optTwo{*this, this, "optTwo"};
  CheckBox chkBox{*this, this, "chkBox"};
  ListBox lstRows{*this, this, "lstRows"};
  ComboBox cmbRows{*this, this, "cmbRows"};
  ImageCombo imgcmbRows{*this, this, "imgcmbRows"};
  TabStrip tsTabs{*this, this, "tsTabs"};
  Toolbar tbTools{*this, this, "tbTools"};
  VScrollBar vsrBar{*this, this, "vsrBar"};
  Label lblText{*this, this, "lblText"};
  Frame fraBox{*this, this, "fraBox"};
  Timer tmrClock{*this, this, "tmrClock"};
  PictureBox picRows{*this, this, "picRows"};
  ControlArray<PictureBox> picRow{*this, &picRows, "picRow", [](PictureBox& /*row*/) {}};
  ControlArray<CommandButton> cmdSource{*this, this, "cmdSource", [](CommandButton& /*source*/) {}};
};

class Contract : public testing::Test {
 protected:
  Contract() { screen->Created(*form); }
  ~Contract() override {
    screen->Release(*form);
    driver->SetPump(nullptr);
  }
  void SetUp() override { screen->Show(*form); }
  std::vector<String> Took() { return std::exchange(form->Log, {}); }
  void Key(int code, int character = 0, int shift = 0) { driver->Key(*form, {code, character, shift}); }

  const std::unique_ptr<Driver> driver = MakeContractDriver();
  const std::shared_ptr<Platform> screen = driver->Screen();
  const std::shared_ptr<ContractForm> form = std::make_shared<ContractForm>(screen);
};

using Lines = std::vector<String>;

}  // namespace Tarnwise
