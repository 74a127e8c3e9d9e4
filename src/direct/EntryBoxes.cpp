// The two boxes in which an interval is typed: which keys pass, what is checked on leaving, and how the typed value
// moves its handle.
#include "direct/frmDirectB.h"
#include "judging/NumberKeys.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

enum Key { kBackspace = 8, kReturn = 13, kCtrlV = 22, kBlank = 32 };

}  // namespace

void frmDirectB::ConnectEntryBox(TextBox& box, Box which) {
  box.KeyDown = DropPasting;
  box.KeyPress = [this, &box, which](KeyEvent& key) {
    if (key.Code == kCtrlV) key.Code = 0;
    FilterEntryKey(box, which, key);
  };
  box.KeyUp = [&box](KeyEvent&) { RemoveSecondPoint(box); };
  box.LostFocus = [this, &box, which] { EntryLeft(box, which); };
}

void frmDirectB::FilterEntryKey(TextBox& box, Box which, KeyEvent& key) {
  if (key.Code == kReturn) {
    returning_ = true;
    Screen().SetFocus(cmdReStart);
    returning_ = false;
    key.Code = kBackspace;
    const String text = Trim(box.Text());
    box.SetText("");
    box.SetText(text);
    CheckEntry(box);
    if (mEntryOK == 1) {
      ApplyTypedValue(which);
    } else {
      key.Code = 0;  // the whole text is selected now, and Backspace would take it
    }
    return;
  }
  if (key.Code < kBlank) return;
  RemoveSecondPoint(box);
  if (!IsNumeric(key.Code)) key.Code = 0;
}

void frmDirectB::CheckEntry(TextBox& box) {
  const Double v = Val(Trim(box.Text()));
  const Double hi = Val(txtWRUpper.Text());
  if (v > 0.0 && v <= hi) {
    mEntryOK = 1;
  } else {
    RefuseEntry(box, "greater than zero and less than or equal to " + NumberText(hi));
  }
}

// Ready for use, but no event calls it: an upper value below the lower one is let through, and the chart sorts the two.
void frmDirectB::CheckUpperEntry(TextBox& box) {
  const Double v = Val(Trim(box.Text()));
  const Double lo = Val(txtWRLower.Text());
  if (v >= lo) {
    mEntryOK = 1;
  } else {
    RefuseEntry(box, "greater than or equal to " + NumberText(lo));
  }
}

void frmDirectB::RefuseEntry(TextBox& box, const String& wanted) {
  mEntryOK = 0;
  Screen().Beep();
  Screen().SetFocus(box);
  box.SelStart = 0;
  box.SelLength = Length(box.Text());
  Screen().MessageBox("The weight ratio you entered should be " + wanted + "!", kExclamation, kKesta);
}

void frmDirectB::EntryLeft(TextBox& box, Box which) {
  if (returning_) return;
  CheckEntry(box);
  if (mEntryOK == 1) ApplyTypedValue(which);
}

void frmDirectB::ApplyTypedValue(Box which) {
  HandlePoints at = HandleCentres();
  const bool firstIsLower = PointToRatio(at.X0, at.Y0) < PointToRatio(at.X1, at.Y1);
  const int moved = (which == kLowerBox) == firstIsLower ? 0 : 1;
  const Double lo = Val(txtWRLower.Text());
  const Double hi = Val(txtWRUpper.Text());
  const ChartPoint other = moved == 0 ? ChartPoint{at.X1, at.Y1} : ChartPoint{at.X0, at.Y0};
  const ChartPoint to = hi == lo ? other : RatioToPoint(which == kLowerBox ? lo : hi);
  if (moved == 0) {
    at.X0 = to.X;
    at.Y0 = to.Y;
  } else {
    at.X1 = to.X;
    at.Y1 = to.Y;
  }
  PlaceHandles(at);
  DrawRegion(at);
  mJudgmentState = kNoneDecided;
  CheckJudgment(at);
}

}  // namespace Tarnwise
