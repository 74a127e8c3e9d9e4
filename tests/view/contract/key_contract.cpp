// Keys and drags, on every screen.
#include "view/contract/Contract.h"

namespace Tarnwise {
namespace {

TEST_F(Contract, AKeyInATextBoxIsToldDownPressedChangedAndUp) {
  driver->Focus(form->txtFirst);
  form->txtFirst.KeyDown = [this](KeyEvent& key) { form->Log.push_back("down " + std::to_string(key.Code)); };
  form->txtFirst.KeyPress = [this](KeyEvent& key) { form->Log.push_back("press " + std::to_string(key.Code)); };
  form->txtFirst.KeyUp = [this](KeyEvent& key) { form->Log.push_back("up " + std::to_string(key.Code)); };
  form->txtFirst.Change = [this] { form->Log.push_back("change " + form->txtFirst.Text()); };
  Took();
  Key('A', 'a');
  EXPECT_EQ(Took(), (Lines{"down 65", "press 97", "change a", "up 65"}));
}

TEST_F(Contract, AKeyPressMayBeDroppedOrPutAnotherInItsPlace) {
  driver->Focus(form->txtFirst);
  form->txtFirst.KeyPress = [](KeyEvent& key) { key.Code = key.Code == 'x' ? 0 : 'Q'; };
  Key('X', 'x');
  EXPECT_EQ(form->txtFirst.Text(), "");
  Key('A', 'a');
  EXPECT_EQ(form->txtFirst.Text(), "Q");
}

TEST_F(Contract, KeysOfTheBoxsOwnMoveAndRemove) {
  driver->Focus(form->txtFirst);
  for (const char c : String("123")) Key(c, c);
  Key(kKeyHome);
  Key(kKeyDelete);
  EXPECT_EQ(form->txtFirst.Text(), "23");
  Key(kKeyEnd);
  Key(kKeyBackspace, kTypedBackspace);
  EXPECT_EQ(form->txtFirst.Text(), "2");
  EXPECT_EQ(form->txtFirst.SelStart(), 1);
}

TEST_F(Contract, TabGoesOnAndBack) {
  driver->Focus(form->txtFirst);
  Key(kKeyTab, kTypedTab);
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  Key(kKeyTab, kTypedTab, kShift);
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(Contract, SpacePressesAndArrowsChoose) {
  driver->Focus(form->cmdGo);
  Took();
  Key(kKeySpace, kBlank);
  EXPECT_EQ(Took(), Lines{"cmdGo click"});
  driver->Focus(form->lstRows);
  Key(kKeyDown);
  Key(kKeyDown);
  EXPECT_EQ(form->lstRows.ListIndex(), 1);
}

TEST_F(Contract, TheKeyboardThatComesToAListChoosesNoRow) {
  driver->Focus(form->lstRows);
  EXPECT_EQ(form->lstRows.ListIndex(), -1);
  EXPECT_EQ(Took(), (Lines{"txtFirst lost", "lstRows got"}));
}

TEST_F(Contract, AltWithItsLetterPressesAButton) {
  form->cmdGo.Caption = "&Go";
  screen->SyncAll();
  driver->Focus(form->txtFirst);
  Took();
  Key('G', 'g', kAlt);
  EXPECT_EQ(Took(), (Lines{"txtFirst lost", "cmdGo got", "cmdGo click"}));
  form->cmdGo.Enabled = false;
  screen->SyncAll();
  Key('G', 'g', kAlt);
  EXPECT_EQ(Took(), Lines{});
}

TEST_F(Contract, AltWithALabelsLetterGoesToWhatItNames) {
  form->lblText.Caption = "&Second:";
  form->lblText.TabIndex = form->txtSecond.TabIndex;
  screen->SyncAll();
  driver->Focus(form->cmdGo);
  Key('S', 's', kAlt);
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  EXPECT_EQ(form->txtFirst.Text(), "");
  EXPECT_EQ(form->txtSecond.Text(), "") << "it types nothing";
}

TEST_F(Contract, ADragEntersIsOverAndDrops) {
  driver->Grab(form->cmdSource[0]);
  driver->Over(form->picRow[0], {300, 150});
  driver->Over(form->picRow[1], {300, 150});
  driver->Drop();
  EXPECT_EQ(Took(),
            (Lines{"picRow(0) enter cmdSource(0)", "picRow(0) over cmdSource(0)", "picRow(0) leave cmdSource(0)",
                   "picRow(1) enter cmdSource(0)", "picRow(1) over cmdSource(0)", "picRow(1) drop cmdSource(0)"}));
  EXPECT_FALSE(screen->Drag.Active());
  EXPECT_FALSE(screen->Hand.DragsByMouse());
}

TEST_F(Contract, EscapeGivesADragUp) {
  driver->Focus(form->cmdGo);
  driver->Grab(form->cmdSource[0]);
  driver->Over(form->picRow[0], {300, 150});
  Took();
  Key(kKeyEscape, kTypedEscape);
  EXPECT_EQ(Took(), Lines{"picRow(0) leave cmdSource(0)"});
  EXPECT_FALSE(screen->Drag.Active());
}

TEST_F(Contract, TheKeyboardDragsWithTheSameNotifications) {
  driver->Focus(form->cmdSource[0]);
  Took();
  Key(kKeySpace, kBlank);
  Key(kKeyDown);
  Key(kKeySpace, kBlank);
  EXPECT_EQ(Took(),
            (Lines{"picRow(0) enter cmdSource(0)", "picRow(0) over cmdSource(0)", "picRow(0) drop cmdSource(0)"}));
}

TEST_F(Contract, ADropMayUnloadItsSource) {
  Place(form->cmdSource.Load(1), 150, 6000, 1500, 375);
  form->cmdSource[1].DragAutomatic = true;
  form->picRow[0].DragDrop = [this](Control& /*source*/, Single /*x*/, Single /*y*/) { form->cmdSource.Unload(1); };
  screen->SyncAll();
  driver->Grab(form->cmdSource[1]);
  driver->Over(form->picRow[0], {300, 150});
  driver->Drop();
  EXPECT_FALSE(form->cmdSource.Has(1));
  EXPECT_FALSE(screen->Hand.DragsByMouse());
  Took();
  driver->Click(form->cmdGo);
  EXPECT_EQ(Took().back(), "cmdGo click");
}

}  // namespace
}  // namespace Tarnwise
