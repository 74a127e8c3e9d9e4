// A finished rank order of one group, to look at or to choose from: rows of buttons in a scrolled viewport.
#pragma once

#include "forms/WizardForm.h"
#include "model/Groups.h"

namespace Tarnwise {

constexpr Single kOrderFrameHeight = 3000.0F;
constexpr Single kOrderContentHeight = 32000.0F;
constexpr Single kRowHeight = kAttButtonHeight + 140.0F;  // of a row with one button or none
constexpr Single kRowLeft = 480.0F;
constexpr Colour kRowColour = 0xF4F1EE;

struct OrderDisplay {
  OrderDisplay(Form& form, Control& stage, bool benefit, int tabIndex);

  PictureBox picOrderFrame;
  PictureBox picOP;
  VScrollBar vsrO;
  ControlArray<PictureBox> picO;
  ControlArray<Label> lblOID;
  ControlArray<CommandButton> cmdAttButtons;
};

String Named(const char* name, bool benefit);  // the cost group's names end in 1

void PlaceViewport(PictureBox& box, Single left, Single top, Single width, Single height);
void PlaceBar(VScrollBar& bar, const Control& viewport, int max);  // at the viewport's right edge
void Scrolls(VScrollBar& bar, PictureBox& content);                // the content goes up as the bar goes down
void PlaceDisplay(OrderDisplay& display, Single left, Single top, Single width);

// One row for each rank, as high as its size, with the buttons of its attributes (found by their Tags) one below the
// other. Rows are made as they are needed. Returns where the last row ends.
Single LayOutRows(OrderDisplay& display, const std::vector<FinishedRank>& ranks);

}  // namespace Tarnwise
