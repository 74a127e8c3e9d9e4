#include "judging/NumberKeys.h"

#include "view/Keys.h"

namespace Tarnwise {

bool IsNumeric(int character) { return (character >= '0' && character <= '9') || character == '.'; }

void FilterNumberKey(TextBox& box, KeyEvent& key) {
  if (key.Code == kCtrlV) key.Code = 0;
  if (key.Code < kBlank) return;
  RemoveSecondPoint(box);
  if (!IsNumeric(key.Code)) key.Code = 0;
}

void DropPasting(KeyEvent& key) {
  if (key.Code == kKeyInsert && (key.Shift & kShift) != 0) key.Code = 0;
}

void RemoveSecondPoint(TextBox& box) {
  const String& text = box.Text();
  const auto point = text.find('.');
  if (point == String::npos || text.find('.', point + 1) == String::npos) return;
  if (box.SelStart < 1) return;
  box.SelStart = box.SelStart - 1;
  box.SelLength = 1;
  box.SetSelText("");
}

}  // namespace Tarnwise
