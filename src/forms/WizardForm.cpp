#include "forms/WizardForm.h"

namespace Tarnwise {

namespace {

constexpr int kFootTabIndex = 900;  // behind everything that a step shows

void FootButton(CommandButton& button, const String& caption, Single left, int tabIndex) {
  button.Caption = caption;
  button.TabIndex = tabIndex;
  Place(button, left, kFootTop + 180.0F, kButtonWidth, kButtonHeight);
}

}  // namespace

void Place(Control& control, Single left, Single top, Single width, Single height) {
  control.Left = left;
  control.Top = top;
  control.Width = width;
  control.Height = height;
}

void PutText(Label& label, const char* caption, Single left, Single top, Single width, Align alignment) {
  label.Caption = caption;
  label.Alignment = alignment;
  Place(label, left, top, width, 285.0F);
}

WizardForm::WizardForm(std::shared_ptr<Platform> platform, const String& name, const String& helpName)
    : Form(std::move(platform), name), cmdHelp(*this, this, helpName) {
  Place(*this, 0.0F, 0.0F, kFormWidth, kFormHeight);
  Place(lblHeading, kMargin, 195.0F, kFormWidth - 2 * kMargin, 375.0F);
  lblHeading.Bold = true;
  lblHeading.Points = 13;
  Place(lblHint, kMargin, 570.0F, kFormWidth - 2 * kMargin, 285.0F);

  const Single right = kFormWidth - kMargin;
  const Single step = kButtonWidth + kGap;
  FootButton(cmdHelp, "&Help", kMargin, kFootTabIndex + 4);
  FootButton(cmdBack, "< &Back", right - 3 * step - kButtonWidth - kGap, kFootTabIndex);
  FootButton(cmdNext, "&Next >", right - 2 * step - kButtonWidth - kGap, kFootTabIndex + 1);
  FootButton(cmdFinish, "&Finish", right - step - kButtonWidth, kFootTabIndex + 2);
  FootButton(cmdCancel, "&Cancel", right - kButtonWidth, kFootTabIndex + 3);
  cmdNext.Default = true;
}

void WizardForm::SetHeading(const String& title, const String& hint) {
  lblHeading.Caption = title;
  lblHint.Caption = hint;
}

}  // namespace Tarnwise
