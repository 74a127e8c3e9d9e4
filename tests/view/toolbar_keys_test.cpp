// The keyboard on a tool bar: Tab goes there, arrows choose one of its buttons, Space and Return press it.
#include "view/Bench.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Tools : Bench {
  Tools() {
    Place(Bar, 0, 6600, 900, 300);
    Bar.TabIndex = 8;  // behind the list, before the handles
    Bar.Buttons = {{"Up", "Move up", "up"}, {"Down", "Move down", "down"}};
    Bar.ButtonClick = [this](const String& key) { Notes.push_back(key); };
  }
  ~Tools() { Screen->Release(*On); }
  void Type(int code, int shift = 0) { TypeKey(*On, code, code, shift); }

  Toolbar Bar{*On, On.get(), "tbMoves"};
};

TEST(ToolbarKeys, TabGoesThereAndOn) {
  Tools tools;
  Input::MoveFocus(tools.On->lstRows);
  tools.Type(9);
  EXPECT_EQ(tools.On->ActiveControl, &tools.Bar);
  tools.Type(9);
  EXPECT_EQ(tools.On->ActiveControl, &tools.On->picHandle[0]);
  tools.Type(9, 1);
  EXPECT_EQ(tools.On->ActiveControl, &tools.Bar);
}

TEST(ToolbarKeys, ArrowsChooseWhatSpaceAndReturnPress) {
  Tools tools;
  Input::MoveFocus(tools.Bar);
  tools.Type(32);
  tools.Type(39);
  tools.Type(32);
  tools.Type(40);
  tools.Type(13);
  tools.Type(37);
  tools.Type(38);
  tools.Type(13);
  EXPECT_EQ(tools.Notes, (Lines{"Up", "Down", "Down", "Up"}));
  EXPECT_EQ(tools.Bar.Current, 1);
}

TEST(ToolbarKeys, PressNoDisabledButtonAndNoneWhereThereAreNone) {
  Tools tools;
  Input::MoveFocus(tools.Bar);
  tools.Bar.EnableButton(1, false);
  tools.Type(32);
  EXPECT_EQ(tools.Notes, Lines{});
  tools.Bar.Buttons.clear();
  tools.Type(39);
  tools.Type(32);
  EXPECT_EQ(tools.Notes, Lines{});
}

TEST(ToolbarKeys, SkipABarThatIsDisabledOrCovered) {
  Tools tools;
  Input::MoveFocus(tools.On->lstRows);
  tools.Bar.Enabled = false;
  tools.Type(9);
  EXPECT_EQ(tools.On->ActiveControl, &tools.On->picHandle[0]);
}

TEST(ToolbarKeys, APressByTheMouseMovesNoFocus) {
  Tools tools;
  Input::MoveFocus(tools.On->txtFirst);
  tools.NoteFocus();
  EXPECT_TRUE(Input::Press(tools.Bar));
  EXPECT_EQ(tools.Notes, Lines{});
  EXPECT_EQ(tools.On->ActiveControl, &tools.On->txtFirst);
}

}  // namespace
}  // namespace Tarnwise
