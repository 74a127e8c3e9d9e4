// The keyboard on lists, tabs and scroll bars; what a person's typing leaves in a box.
#include "view/Bench.h"
#include "view/Keys.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Lists : Bench {
  ~Lists() { Screen->Release(*On); }
  bool Key(Control& control, int code) { return Input::ControlKey(control, code, 0); }
};

TEST(ListKeys, ChooseTheItemsOfAnImageComboFromOne) {
  Lists lists;
  ImageCombo combo(*lists.On, lists.On.get(), "combo");
  for (const char* const name : {"a", "b", "c"}) combo.Add({name, name, "", ""});
  combo.SelectedItem = 2;
  combo.Click = [&] { lists.Notes.push_back(std::to_string(combo.SelectedItem())); };
  for (const int code : {kKeyDown, kKeyRight, kKeyUp, kKeyLeft, kKeyLeft, kKeyEnd, kKeyHome})
    EXPECT_TRUE(lists.Key(combo, code));
  EXPECT_EQ(lists.Notes, (Lines{"3", "2", "1", "3", "1"}));
}

TEST(ListKeys, ChooseTheTabsOfAStripFromOne) {
  Lists lists;
  TabStrip strip(*lists.On, lists.On.get(), "strip");
  strip.Tabs = {{"One", "one"}, {"Two", "two"}};
  strip.Click = [&] { lists.Notes.push_back(std::to_string(strip.SelectedItem())); };
  for (const int code : {kKeyUp, kKeyRight, kKeyDown, kKeyHome, kKeyEnd}) EXPECT_TRUE(lists.Key(strip, code));
  EXPECT_EQ(lists.Notes, (Lines{"2", "1", "2"}));
}

TEST(ListKeys, ChooseTheRowsOfAComboBoxFromNought) {
  Lists lists;
  ComboBox box(*lists.On, lists.On.get(), "box");
  box.List = std::vector<String>{"3.33", "2.50", "2.00"};
  box.ListIndex = 0;
  box.Click = [&] { lists.Notes.push_back(std::to_string(box.ListIndex())); };
  for (const int code : {kKeyUp, kKeyDown, kKeyEnd, kKeyDown, kKeyHome}) EXPECT_TRUE(lists.Key(box, code));
  EXPECT_EQ(lists.Notes, (Lines{"1", "2", "0"}));
}

TEST(ListKeys, ChooseNothingInAnEmptyList) {
  Lists lists;
  ImageCombo combo(*lists.On, lists.On.get(), "combo");
  combo.Click = [&] { lists.Notes.emplace_back("click"); };
  for (const int code : {kKeyUp, kKeyDown, kKeyHome, kKeyEnd}) EXPECT_TRUE(lists.Key(combo, code));
  EXPECT_EQ(combo.SelectedItem(), 0);
  EXPECT_EQ(lists.Notes, Lines{});
}

TEST(ImageCombo, ClearedHasNoItemAndNoSelection) {
  Lists lists;
  ImageCombo combo(*lists.On, lists.On.get(), "combo");
  combo.Add({"a", "a", "", ""});
  combo.SelectedItem = 1;
  combo.Clear();
  EXPECT_TRUE(combo.Items.empty());
  EXPECT_EQ(combo.SelectedItem(), 0);
}

TEST(ListKeys, LettersAndDigitsGoToTheNextRowThatBeginsWithThem) {
  Lists lists;
  ListBox& list = lists.On->lstRows;
  list.List = std::vector<String>{"Beds", "  care", "2 beds", "Born", "\xC2\xA4 Doctors", "\xC3\x84rzte"};
  list.ListIndex = 0;
  list.Click = [&] { lists.Notes.push_back(std::to_string(list.ListIndex())); };
  for (const int code : {'B', 'B', 'C', '2', 'D', 'D', 'X', 'A', 'R'}) EXPECT_TRUE(lists.Key(list, code));
  EXPECT_EQ(lists.Notes, (Lines{"3", "0", "1", "2", "4"}));

  ImageCombo combo(*lists.On, lists.On.get(), "combo");
  for (const char* const name : {"Alpha", "Beta", "Bravo"}) combo.Add({name, name, "", ""});
  combo.Click = [&] { lists.Notes.push_back(combo.Items[static_cast<std::size_t>(combo.SelectedItem()) - 1].Text); };
  lists.Notes.clear();
  for (const int code : {'A', 'B', 'B', 'B'}) EXPECT_TRUE(lists.Key(combo, code));
  EXPECT_EQ(lists.Notes, (Lines{"Alpha", "Beta", "Bravo", "Beta"}));

  ComboBox box(*lists.On, lists.On.get(), "box");
  box.List = std::vector<String>{"3.33", "2.50", "2.00"};
  box.ListIndex = -1;
  EXPECT_TRUE(lists.Key(box, '3'));
  EXPECT_EQ(box.ListIndex(), 0);
  EXPECT_TRUE(lists.Key(box, '2'));
  EXPECT_EQ(box.ListIndex(), 1);

  TabStrip strip(*lists.On, lists.On.get(), "strip");
  strip.Tabs = {{"One", "one"}, {"Two", "two"}};
  EXPECT_FALSE(lists.Key(strip, 'T'));
}

TEST(ListKeys, ReachEveryRowWhereNoneIsChosen) {
  Lists lists;
  ImageCombo combo(*lists.On, lists.On.get(), "combo");
  combo.Add({"Alpha", "Alpha", "", ""});
  EXPECT_TRUE(lists.Key(combo, 'A'));
  EXPECT_EQ(combo.SelectedItem(), 1);
  combo.Add({"Beta", "Beta", "", ""});
  combo.SelectedItem = 0;
  EXPECT_TRUE(lists.Key(combo, 'B'));
  EXPECT_EQ(combo.SelectedItem(), 2);
}

TEST(ListKeys, LeaveAllOtherKeysAlone) {
  Lists lists;
  lists.On->lstRows.ListIndex = 1;
  for (const int code : {33, 34, 41, 47, 58, 64, 91, 97}) EXPECT_FALSE(lists.Key(lists.On->lstRows, code)) << code;
  EXPECT_EQ(lists.On->lstRows.ListIndex(), 1);
  EXPECT_FALSE(lists.Key(lists.On->lblText, kKeyDown));
  EXPECT_FALSE(lists.Key(lists.On->picContent, 32));
}

TEST(SelectRow, OfWhatHasNoRowsDoesNothing) {
  Lists lists;
  lists.NoteClicks();
  Input::SelectRow(lists.On->cmdGo, 1);
  EXPECT_EQ(lists.Notes, Lines{});
}

TEST(ScrollKeys, EachGoItsWayAndOthersAreLeftAlone) {
  Lists lists;
  VScrollBar& bar = lists.On->vsrBar;
  bar.Min = 10;
  bar.Max = 1000;
  bar.SmallChange = 7;
  bar.LargeChange = 100;
  const auto after = [&](int code) {
    bar.SetValue(500);
    EXPECT_TRUE(lists.Key(bar, code));
    return bar.Value();
  };
  EXPECT_EQ(after(kKeyUp), 493);
  EXPECT_EQ(after(kKeyLeft), 493);
  EXPECT_EQ(after(kKeyDown), 507);
  EXPECT_EQ(after(kKeyRight), 507);
  EXPECT_EQ(after(kKeyPageUp), 400);
  EXPECT_EQ(after(kKeyPageDown), 600);
  EXPECT_EQ(after(kKeyHome), 10);
  EXPECT_EQ(after(kKeyEnd), 1000);
  EXPECT_FALSE(lists.Key(bar, 32));
  EXPECT_FALSE(lists.Key(bar, 41));
}

TEST(Typing, TakesTheCaretAndTellsOfAnotherTextOnly) {
  Lists lists;
  TextBox& box = lists.On->txtFirst;
  box.SetText("abc");
  box.SelLength = 2;
  box.Change = [&] { lists.Notes.push_back(box.Text()); };
  Input::TextEdited(box, "abc", 2);
  EXPECT_EQ(box.SelStart(), 2);
  EXPECT_EQ(box.SelLength(), 0);
  EXPECT_EQ(lists.Notes, Lines{});
  Input::TextEdited(box, "abxc", 3);
  EXPECT_EQ(box.SelStart(), 3);
  EXPECT_EQ(box.Text(), "abxc");
  EXPECT_EQ(lists.Notes, Lines{"abxc"});
}

}  // namespace
}  // namespace Tarnwise
