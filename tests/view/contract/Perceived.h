// What a screen shows and tells of a control, asked of the platform itself. Headless has neither a screen nor a clock:
// the tests of screen_contract.cpp are for toolkits with windows.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

struct Perceived {
  String Tip;   // of the mouse over it; empty: none
  String Name;  // that a screen reader reads
};

Perceived Perceive(const Control& control);  // each toolkit's tests have theirs

}  // namespace Tarnwise
