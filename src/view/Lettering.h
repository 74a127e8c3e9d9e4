// How the captions of controls are set: in which type, a little narrower where they would not fit otherwise, cut where
// they don't fit even so, and then told in full by the tool tip.
#pragma once

#include "view/Controls.h"

#include <compare>
#include <functional>

namespace Tarnwise {

constexpr int kNormalStretch = 100;

struct TypeFace {
  int Points = 9;
  bool Bold = false;
  int Stretch = kNormalStretch;  // percent of the ordinary width
  friend auto operator<=>(const TypeFace&, const TypeFace&) = default;
};

// A text as a surface sets it.
struct Writing {
  String Text;  // an ampersand underlines what is behind it, two of them are one
  TypeFace Face;
  Align Across = Align::Left;
  bool Wraps = false;  // lines from the top; else one line in the middle of the height, cut where it is too long
};

// The width of a text without marks in pixels of the screen.
using WidthOfText = std::function<int(const String& text, const TypeFace& face)>;

struct FittedCaption {
  Writing Shown;
  int Room = 0;      // pixels
  bool Cut = false;  // it is longer than its room
  String Tip;        // what the tool tip says: the control's own, else the whole of a caption that is cut; empty: none
};

String CaptionOf(const Control& control);  // empty where it has none
FittedCaption FitCaption(const Control& control, double scale, const WidthOfText& widthOf);

}  // namespace Tarnwise
