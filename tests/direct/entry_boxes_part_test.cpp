// The two entry boxes of the direct step by themselves.
#include "direct/EntryBoxes.h"
#include "runtime/Text.h"
#include "support/PartForm.h"
#include "view/Input.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct BoxesForm : PartForm {
  explicit BoxesForm(std::shared_ptr<Platform> screen) : PartForm(std::move(screen)) {
    for (TextBox* box : {&txtLower, &txtUpper}) Place(*box, 120.0F, box == &txtLower ? 120.0F : 620.0F, 900.0F, 300.0F);
    Place(cmdAway, 120.0F, 1120.0F, 900.0F, 400.0F);
    Boxes.Typed = [this](EntryBox which) {
      Told.push_back((which == EntryBox::Lower ? "lower " : "upper ") + NumberText(Boxes.Lower()) + " " +
                     NumberText(Boxes.Upper()));
    };
  }

  TextBox txtLower{*this, &picStage, "txtLower"};
  TextBox txtUpper{*this, &picStage, "txtUpper"};
  CommandButton cmdAway{*this, &picStage, "cmdAway"};
  EntryBoxes Boxes{txtLower, txtUpper, cmdAway};
  Lines Told;
};

struct TwoBoxes : PartOnScreen<BoxesForm> {
  TwoBoxes(const String& lower, const String& upper) { Form->Boxes.Show(lower, upper); }

  void Enter(TextBox& box) {
    Input::MoveFocus(box);
    TakeNotes();
  }
  void Return() { TypeKey(*Form, 13, 13, 0); }
};

const String kTooLarge =
    "msgbox The weight ratio you entered should be greater than zero and less than or equal to 1.5!";

TEST(EntryBoxes, TellOfAValueThatPassesWhenABoxIsLeft) {
  TwoBoxes o("1.25", "1.5");
  o.Enter(o.Form->txtLower);
  EXPECT_TRUE(o.Form->Told.empty());
  Input::MoveFocus(o.Form->txtUpper);
  Input::MoveFocus(o.Form->cmdAway);
  EXPECT_EQ(o.Form->Told, (Lines{"lower 1.25 1.5", "upper 1.25 1.5"}));
  EXPECT_EQ(o.Form->Boxes.mEntryOK, 1);
}

TEST(EntryBoxes, TellOnceWhereReturnLeadsAway) {
  TwoBoxes o("1.25", "1.5");
  o.Enter(o.Form->txtUpper);
  o.Return();
  EXPECT_EQ(o.Form->Told, Lines{"upper 1.25 1.5"});
  EXPECT_EQ(o.Form->ActiveControl, &o.Form->cmdAway);
}

TEST(EntryBoxes, KeepALowerValueAboveTheUpperOneAndSayWhatIsWanted) {
  TwoBoxes o("1.75", "1.5");
  o.Enter(o.Form->txtLower);
  Input::MoveFocus(o.Form->cmdAway);
  EXPECT_EQ(Only(o.TakeNotes(), "msgbox"), Lines{kTooLarge});
  EXPECT_EQ(o.Form->ActiveControl, &o.Form->txtLower);
  EXPECT_EQ(o.Form->txtLower.SelLength(), 4) << "all of it is selected";
  EXPECT_EQ(o.Form->Boxes.mEntryOK, 0);
  EXPECT_TRUE(o.Form->Told.empty());
}

TEST(EntryBoxes, RefuseZero) {
  TwoBoxes o("0", "1.5");
  o.Enter(o.Form->txtLower);
  o.Return();
  EXPECT_EQ(Only(o.TakeNotes(), "msgbox"), Lines{kTooLarge});
  EXPECT_TRUE(o.Form->Told.empty());
}

TEST(EntryBoxes, CanCheckTheUpperValueAgainstTheLowerOne) {
  TwoBoxes o("2", "1.5");
  o.Form->Boxes.CheckUpperEntry(o.Form->txtUpper);
  EXPECT_EQ(Only(o.TakeNotes(), "msgbox"),
            Lines{"msgbox The weight ratio you entered should be greater than or equal to 2!"});
  o.Form->Boxes.Show("2", "2");
  o.Form->Boxes.CheckUpperEntry(o.Form->txtUpper);
  EXPECT_EQ(o.Form->Boxes.mEntryOK, 1);
}

}  // namespace
}  // namespace Tarnwise
