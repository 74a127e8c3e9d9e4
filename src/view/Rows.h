// Lists of every kind by their rows, in the control's own numbers: from 0 in a list box and a combo, from 1 in an image
// combo and a tab strip.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

struct Rows {
  int First = 0;
  int Count = 0;
  int Chosen = -1;  // First - 1 where none is

  int Last() const { return First + Count - 1; }
  bool Has(int row) const { return row >= First && row <= Last(); }
};

bool IsList(const Control& control);
Rows RowsOf(const Control& list);  // of no list: none
String RowText(const Control& list, int row);
std::vector<String> RowTexts(const Control& list);

}  // namespace Tarnwise
