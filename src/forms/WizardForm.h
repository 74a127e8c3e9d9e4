// What all steps of the wizard share: the window's size, a heading, and the row of buttons at its foot.
#pragma once

#include "view/Form.h"

namespace Tarnwise {

constexpr Single kFormWidth = 15300.0F;
constexpr Single kFormHeight = 8340.0F;
constexpr Single kMargin = 300.0F;
constexpr Single kGap = 120.0F;
constexpr Single kHeadingHeight = 960.0F;  // of the band that the heading stands in
constexpr Single kFootTop = 7560.0F;       // where the row of buttons begins
constexpr Single kContentHeight = kFootTop - kHeadingHeight;
constexpr Single kButtonWidth = 1335.0F;
constexpr Single kButtonHeight = 420.0F;
constexpr Single kAttButtonHeight = 375.0F;  // of every attribute button
constexpr Single kScrollBarWidth = 255.0F;

// Both judging steps have their chart at the left of the page and, beside it, what is said of the target.
constexpr Single kChartFrameWidth = 6600.0F;
constexpr Single kChartFrameHeight = 6300.0F;
constexpr Single kRightLeft = kChartFrameWidth + 360.0F;
constexpr Single kRightWidth = kFormWidth - 2 * kMargin - kRightLeft;
constexpr Single kRestartWidth = 1530.0F;

constexpr Colour kBenefitColour = 0xC0C0FF;  // light red
constexpr Colour kCostColour = 0xFFC0C0;     // light blue

// Moves a control to its place, in the scale of its container.
void Place(Control& control, Single left, Single top, Single width, Single height);
// A line of text there.
void PutText(Label& label, const char* caption, Single left, Single top, Single width, Align alignment = Align::Left);

struct WizardForm : Form {
  WizardForm(std::shared_ptr<Platform> platform, const String& name, const String& helpName);

  // The words over the step: what is asked, and how it is done.
  void SetHeading(const String& title, const String& hint);

  Label lblHeading{*this, this, "lblHeading"};
  Label lblHint{*this, this, "lblHint"};
  CommandButton cmdBack{*this, this, "cmdBack"};
  CommandButton cmdNext{*this, this, "cmdNext"};
  CommandButton cmdFinish{*this, this, "cmdFinish"};
  CommandButton cmdCancel{*this, this, "cmdCancel"};
  CommandButton cmdHelp;
};

}  // namespace Tarnwise
