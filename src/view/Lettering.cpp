#include "view/Lettering.h"

#include "view/Captions.h"
#include "view/Look.h"
#include "view/Pixels.h"

#include <algorithm>

namespace Tarnwise {

namespace {

// Pixels of the design beside the caption.
int PaddingOf(const Control& control) {
  switch (control.Type) {
    case Kind::CommandButton: return 2 * kSidePadding;
    case Kind::OptionButton:
    case Kind::CheckBox: return kIndicatorRoom;
    case Kind::Label: return IsSign(static_cast<const Label&>(control)) ? 2 * kSignPadding : 0;
    default: return 0;
  }
}

Writing WritingOf(const Control& control) {
  Writing writing{MarkedCaption(CaptionOf(control)), {}, Align::Left, false};
  if (control.Type == Kind::CommandButton) writing.Across = Align::Centre;
  if (control.Type != Kind::Label) return writing;
  const auto& label = static_cast<const Label&>(control);
  writing.Face = {label.Points, label.Bold, kNormalStretch};
  writing.Across = label.Alignment;
  writing.Wraps = label.WordWrap;
  return writing;
}

}  // namespace

String CaptionOf(const Control& control) {
  switch (control.Type) {
    case Kind::Label: return static_cast<const Label&>(control).Caption;
    case Kind::CommandButton: return static_cast<const CommandButton&>(control).Caption;
    case Kind::OptionButton: return static_cast<const OptionButton&>(control).Caption;
    case Kind::CheckBox: return static_cast<const CheckBox&>(control).Caption;
    case Kind::Frame: return static_cast<const Frame&>(control).Caption;
    default: return {};
  }
}

FittedCaption FitCaption(const Control& control, double scale, const WidthOfText& widthOf) {
  FittedCaption fitted{WritingOf(control), 0, false, control.ToolTipText};
  fitted.Room = std::max(WindowPlace(control, scale).Width() - Scaled(PaddingOf(control), scale), 1);
  if (fitted.Shown.Wraps) return fitted;
  const String plain = UnmarkedCaption(CaptionOf(control));
  int width = 0;
  for (const int stretch : {kNormalStretch, 95, 90, 85}) {
    fitted.Shown.Face.Stretch = stretch;
    width = widthOf(plain, fitted.Shown.Face);
    if (width <= fitted.Room) break;
  }
  fitted.Cut = width > fitted.Room + 1;
  if (fitted.Cut && fitted.Tip.empty()) fitted.Tip = plain;
  return fitted;
}

}  // namespace Tarnwise
