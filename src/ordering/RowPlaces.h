// Where the rank rows of stage 1 and the buttons on them stand, in twips.
#pragma once

#include "view/Controls.h"

namespace Tarnwise {

constexpr Single kFirstRowTop = 120.0F;
constexpr Single kRowGap = 120.0F;
constexpr Single kRowPadding = 140.0F;  // what an empty row is higher than one button
constexpr Single kButtonInset = 60.0F;

inline Single Bottom(const Control& control) { return control.Top + control.Height; }

}  // namespace Tarnwise
