// Properties of each kind of control, as a script prints them.
#include "play/ControlJson.h"
#include "play/Played.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Everything : Form {
  explicit Everything(std::shared_ptr<Platform> screen) : Form(std::move(screen), "frmEverything") {}

  Label label{*this, this, "label"};
  CommandButton button{*this, this, "button"};
  TextBox box{*this, this, "box"};
  ListBox list{*this, this, "list"};
  OptionButton option{*this, this, "option"};
  CheckBox check{*this, this, "check"};
  Frame frame{*this, this, "frame"};
  VScrollBar bar{*this, this, "bar"};
  Timer timer{*this, this, "timer"};
  Image image{*this, this, "image"};
  Tarnwise::Shape shape{*this, this, "shape"};
  Line line{*this, this, "line"};
  PictureBox picture{*this, this, "picture"};
  TabStrip tabs{*this, this, "tabs"};
  Toolbar tools{*this, this, "tools"};
  ImageCombo images{*this, this, "images"};
  ComboBox combo{*this, this, "combo"};
  Grid grid{*this, this, "grid"};
};

TEST(Properties, AreThereForEveryKindThatHasThem) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  const auto form = std::make_shared<Everything>(driver->Screen());
  const auto has = [](const Control& control, const std::vector<const char*>& names) {
    for (const char* name : names) EXPECT_TRUE(PropertyJson(control, name)) << control.Name << '.' << name;
  };
  const std::vector<const char*> common = {"Left",    "Top", "Width",       "Height",      "Visible",
                                           "Enabled", "Tag", "ToolTipText", "MousePointer"};
  for (const Control* control : form->Controls()) {
    if (control->Type != Kind::Timer && control->Type != Kind::Line) has(*control, common);
    EXPECT_FALSE(PropertyJson(*control, "Nothing"));
  }
  has(*form, {"Caption", "Visible", "Left", "Top", "Width", "Height"});
  has(form->label, {"Caption", "ForeColor", "BackColor"});
  has(form->button, {"Caption", "BackColor"});
  has(form->box, {"Text", "SelStart", "SelLength"});
  has(form->list, {"ListIndex", "ListCount", "List"});
  has(form->combo, {"ListIndex", "ListCount", "List"});
  has(form->option, {"Caption", "Value"});
  has(form->check, {"Caption", "Value"});
  has(form->frame, {"Caption"});
  has(form->bar, {"Value", "Min", "Max"});
  has(form->timer, {"Interval", "Enabled"});
  has(form->shape, {"FillColor", "BorderColor"});
  has(form->line, {"X1", "Y1", "X2", "Y2", "BorderColor", "Visible"});
  has(form->picture, {"BackColor", "Drawing"});
  has(form->tabs, {"SelectedItem", "Items"});
  has(form->images, {"SelectedItem", "Items"});
  has(form->tools, {"Buttons"});
  has(form->grid, {"Rows", "Cols", "ColWidth", "TextMatrix"});
}

TEST(Properties, PrintTheirValues) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  const auto form = std::make_shared<Everything>(driver->Screen());
  const auto value = [](const Control& control, const char* name) { return JsonLine(*PropertyJson(control, name)); };
  form->list.List = Lines{"a", "b"};
  form->list.ListIndex = 1;
  EXPECT_EQ(value(form->list, "List") + value(form->list, "ListCount") + value(form->list, "ListIndex"),
            R"(["a","b"]21)");
  form->option.Value = true;
  form->check.Value = 1;
  EXPECT_EQ(value(form->option, "Value") + value(form->check, "Value"), "true1");
  form->label.ForeColor = kHighlightText;
  EXPECT_EQ(value(form->label, "ForeColor"), "2147483662");
  form->label.Left = 114.6F;
  EXPECT_EQ(value(form->label, "Left"), "114.6");
  form->tools.Buttons = {{"up", "", "", true}, {"down", "", "", false}};
  EXPECT_EQ(value(form->tools, "Buttons"), R"({"up":true,"down":false})");
  form->images.Items = {{"k", "one", "", ""}, {"l", "two", "", ""}};
  form->images.SelectedItem = 2;
  EXPECT_EQ(value(form->images, "Items") + value(form->images, "SelectedItem"), R"(["one","two"]2)");
  form->tabs.Tabs = {{"first", "f"}, {"second", "s"}};
  EXPECT_EQ(value(form->tabs, "Items") + value(form->tabs, "SelectedItem"), R"(["first","second"]1)");
  form->grid.Shape(2, 2);
  form->grid.SetCell(1, 0, "x");
  form->grid.SetColWidth(1, 630);
  EXPECT_EQ(value(form->grid, "TextMatrix") + value(form->grid, "ColWidth") + value(form->grid, "Rows") +
                value(form->grid, "Cols"),
            R"([["",""],["x",""]][0,630]22)");
}

TEST(Properties, ListADrawingInTheOrderDrawnUntilItIsCleared) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  const auto form = std::make_shared<Everything>(driver->Screen());
  form->picture.Draw({Drawn::What::Polygon, {0, 250, 126, 126, 118, 76}, 12640511, 1});
  form->picture.Draw({Drawn::What::Line, {100, 260.5F, 1900, 260}, 255, 2});
  form->picture.Draw({Drawn::What::Box, {1, 2, 3, 4}, 16711680, 1});
  EXPECT_EQ(
      JsonLine(*PropertyJson(form->picture, "Drawing")),
      R"([{"polygon":[[0,250],[126,126],[118,76]],"fill":12640511},{"line":[100,260.5,1900,260],"color":255,"width":2},{"box":[1,2,3,4],"color":16711680}])");
  form->picture.Cls();
  EXPECT_EQ(JsonLine(*PropertyJson(form->picture, "Drawing")), "[]");
}

}  // namespace
}  // namespace Tarnwise
