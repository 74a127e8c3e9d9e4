#include "direct/EntryBoxes.h"

#include "judging/NumberKeys.h"
#include "model/mdTRNMain.h"
#include "runtime/Text.h"
#include "view/Keys.h"
#include "view/Platform.h"

namespace Tarnwise {

EntryBoxes::EntryBoxes(TextBox& lower, TextBox& upper, Control& away) : lower_(lower), upper_(upper), away_(away) {
  Connect(lower_, EntryBox::Lower);
  Connect(upper_, EntryBox::Upper);
}

void EntryBoxes::Connect(TextBox& box, EntryBox which) {
  box.KeyDown = DropPasting;
  box.KeyPress = [this, &box, which](KeyEvent& key) { FilterEntryKey(box, which, key); };
  box.KeyUp = [&box](KeyEvent&) { RemoveSecondPoint(box); };
  box.LostFocus = [this, &box, which] { EntryLeft(box, which); };
}

Double EntryBoxes::Lower() const { return Val(lower_.Text()); }

Double EntryBoxes::Upper() const { return Val(upper_.Text()); }

void EntryBoxes::Show(const String& lower, const String& upper) {
  lower_.SetText(lower);
  upper_.SetText(upper);
}

void EntryBoxes::FilterEntryKey(TextBox& box, EntryBox which, KeyEvent& key) {
  if (key.Code != kTypedReturn) {
    FilterNumberKey(box, key);
    return;
  }
  returning_ = true;
  box.Owner.Screen().SetFocus(away_);
  returning_ = false;
  key.Code = kTypedBackspace;
  const String text = Trim(box.Text());
  box.SetText("");
  box.SetText(text);
  CheckEntry(box);
  if (mEntryOK == 1) {
    Typed(which);
  } else {
    key.Code = 0;  // the whole text is selected now, and Backspace would take it
  }
}

void EntryBoxes::CheckEntry(TextBox& box) {
  const Double v = Val(Trim(box.Text()));
  const Double hi = Upper();
  if (v > 0.0 && v <= hi) {
    mEntryOK = 1;
  } else {
    RefuseEntry(box, "greater than zero and less than or equal to " + NumberText(hi));
  }
}

void EntryBoxes::CheckUpperEntry(TextBox& box) {
  const Double v = Val(Trim(box.Text()));
  const Double lo = Lower();
  if (v >= lo) {
    mEntryOK = 1;
  } else {
    RefuseEntry(box, "greater than or equal to " + NumberText(lo));
  }
}

void EntryBoxes::RefuseEntry(TextBox& box, const String& wanted) {
  mEntryOK = 0;
  Platform& screen = box.Owner.Screen();
  screen.Beep();
  screen.SetFocus(box);
  box.SelStart = 0;
  box.SelLength = Length(box.Text());
  screen.MessageBox("The weight ratio you entered should be " + wanted + "!", kExclamation, kKesta);
}

void EntryBoxes::EntryLeft(TextBox& box, EntryBox which) {
  if (returning_) return;
  CheckEntry(box);
  if (mEntryOK == 1) Typed(which);
}

}  // namespace Tarnwise
