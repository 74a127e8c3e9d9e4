#include "view/Driver.h"
#include "TestForm.h"

#include <filesystem>

namespace Tarnwise {

class QtDriverTest : public testing::Test {
 protected:
  QtDriverTest() {
    platform->Created(*form);
    Place(lstRows, 150, 2500, 1500, 900);
    Place(imgcmbRows, 150, 3500, 1500, 375);
    Place(tsTab, 3000, 3500, 3000, 390);
    Place(vsrBar, 8000, 150, 255, 3000);
    Place(tbMoves, 150, 4200, 800, 400);
    lstRows.List = std::vector<String>{"one", "two", "three"};
    imgcmbRows.Add({"a", "first", "Smiling", "Smiling1"});
    imgcmbRows.Add({"b", "second", "Crying", "Crying1"});
    tsTab.Tabs = {{"One", "1"}, {"Two", "2"}};
    tbMoves.Buttons = {{"Up", "Move up", "up"}, {"Down", "Move down", "down"}};
    lstRows.TabIndex = imgcmbRows.TabIndex = tsTab.TabIndex = vsrBar.TabIndex = 20;
  }
  ~QtDriverTest() override { platform->Release(*form); }

  std::unique_ptr<Driver> driver = MakeQtDriver();
  std::shared_ptr<Platform> platform = driver->Screen();
  std::shared_ptr<TestForm> form = std::make_shared<TestForm>(platform);
  ListBox lstRows{*form, form.get(), "lstRows"};
  ImageCombo imgcmbRows{*form, form.get(), "imgcmbRows"};
  TabStrip tsTab{*form, form.get(), "tsTab"};
  VScrollBar vsrBar{*form, form.get(), "vsrBar"};
  Toolbar tbMoves{*form, form.get(), "tbMoves"};
};

TEST_F(QtDriverTest, SelectsInEveryKindOfList) {
  int clicks = 0;
  for (Control* list : std::vector<Control*>{&lstRows, &imgcmbRows, &tsTab}) list->Click = [&clicks] { ++clicks; };
  platform->Show(*form);
  driver->Select(lstRows, 2);
  EXPECT_EQ(lstRows.ListIndex, 2);
  EXPECT_EQ(form->ActiveControl, &lstRows);
  driver->Select(imgcmbRows, 2);
  EXPECT_EQ(imgcmbRows.SelectedItem, 2);
  EXPECT_EQ(form->ActiveControl, &imgcmbRows);
  driver->Select(tsTab, 2);
  EXPECT_EQ(tsTab.SelectedItem, 2);
  driver->Select(imgcmbRows, 1);
  driver->Select(imgcmbRows, 1);
  EXPECT_EQ(imgcmbRows.SelectedItem, 1);
  EXPECT_EQ(clicks, 5);
}

TEST_F(QtDriverTest, ScrollsAndPressesTools) {
  String pressed;
  int changes = 0;
  tbMoves.ButtonClick = [&](const String& key) { pressed = key; };
  vsrBar.Change = [&changes] { ++changes; };
  platform->Show(*form);
  driver->PressTool(tbMoves, "Down");
  EXPECT_EQ(pressed, "Down");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  driver->Scroll(vsrBar, 500);
  EXPECT_EQ(vsrBar.Value, 500);
  EXPECT_EQ(changes, 1);
}

TEST_F(QtDriverTest, TypesAtTheControlWithTheFocus) {
  platform->Show(*form);
  form->txtSecond.Text = "1";
  driver->Focus(form->txtSecond);
  driver->Key(*form, {'5', '5', 0});
  driver->Key(*form, {190, '.', 0});
  driver->Key(*form, {8, 8, 0});
  driver->Key(*form, {231, 0xE9, 0});
  EXPECT_EQ(form->txtSecond.Text(), "15\xC3\xA9");
  driver->Key(*form, {65, 1, 2});
  EXPECT_EQ(form->txtSecond.SelLength, 3);
  driver->Key(*form, {9, 9, 1});
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(QtDriverTest, DragsToFractionsOfAPixel) {
  Single x = 0.0F;
  Single y = 0.0F;
  form->picRow[1].DragDrop = [&](Control& /*source*/, Single atX, Single atY) {
    x = atX;
    y = atY;
  };
  platform->Show(*form);
  driver->Grab(form->cmdSource);
  EXPECT_TRUE(platform->Drag.Active());
  driver->Over(form->picRow[1], {401.0F, 33.0F});
  driver->Drop();
  EXPECT_EQ(x, 401.0F);
  EXPECT_EQ(y, 33.0F);
}

TEST_F(QtDriverTest, TakesAPicture) {
  platform->Show(*form);
  const String path = (std::filesystem::temp_directory_path() / "tarnwise_qt_driver_test.png").string();
  EXPECT_TRUE(driver->Shot(*form, path));
  EXPECT_GT(std::filesystem::file_size(path), 500U);
  std::filesystem::remove(path);
}

TEST_F(QtDriverTest, RunsModalFormsByThePump) {
  int steps = 0;
  form->cmdGo.Click = [this] { platform->Hide(*form); };
  driver->SetPump([&] {
    if (++steps == 3) driver->Click(form->cmdGo);
    return true;
  });
  platform->ShowModal(*form);
  EXPECT_EQ(steps, 3);
  driver->SetPump([] { return false; });
  platform->ShowModal(*form);
  EXPECT_TRUE(form->Visible);
}

}  // namespace Tarnwise
