// What a form's colours come to on the screen. The tree names them as on a light screen, and its numbers never change;
// people have dark screens and screens of high contrast. Toolkits ask here and hand in the platform's palette.
#pragma once

#include "view/Form.h"

#include <optional>

namespace Tarnwise {

// The colours that the platform gives to all programs, grounds with the text on them.
struct Palette {
  Colour Window = 0;  // forms
  Colour WindowText = 0;
  Colour Base = 0;  // lists and boxes to write in
  Colour Text = 0;
  Colour Button = 0;
  Colour ButtonText = 0;
  Colour Highlight = 0;
  Colour HighlightText = 0;
  friend bool operator==(const Palette&, const Palette&) = default;
};

// From 1, no difference, to 21, black on white: the ratio of the two luminances as seen on a screen.
double Contrast(Colour a, Colour b);

constexpr Colour kAsDrawn = 0xFFFFFF;  // a ground that leaves a picture's colours as they are
constexpr double kReadable = 4.5;      // the least contrast of a text with its ground
constexpr int kDisabledOpacity = 35;   // percent, of a tool's picture

bool IsDark(Colour ground);

// The same, with grounds moved away from texts that could not be read on them.
Palette Readable(const Palette& palette);

Colour Blend(Colour a, Colour b, int percentOfB);

// What a container is filled with. A paper that the form made white is the platform's base; a box whose own captions
// have an ink by rule gets a ground on which that ink can be read.
Colour FillOf(const Control& container, const Palette& palette);
// What a control stands on: the fill of what contains it.
Colour GroundOf(const Control& control, const Palette& palette);
// The text colour for a ground of any colour.
Colour TextOn(Colour ground, const Palette& palette);

struct LabelLook {
  Colour Ink = 0;
  std::optional<Colour> Ground;  // none: what is behind it shines through
  bool Lit = false;              // a sign: its ground is rounded
};
LabelLook LookOf(const Label& label, const Palette& palette);
bool IsSign(const Label& label);            // its caption is in the colour of highlighted text
Colour FaintOf(Colour ink, Colour ground);  // of what is disabled

// Sizes, in pixels of the design.
constexpr int kSidePadding = 6;  // beside a button's caption
constexpr int kSignPadding = 4;  // beside a lit one
constexpr int kFrameTitleLeft = 12;
constexpr int kFrameTitleHeight = 16;
constexpr int kFrameTitleGap = 4;       // of the line, on both sides
constexpr int kIndicatorRoom = 24;      // of a check box or an option button
constexpr int kCarriedSide = 28;        // the picture that stands for what is dragged
constexpr int kCarriedOpacity = 70;     // percent
constexpr int kIconBesidePointer = 10;  // a mouse's pointer would cover the letter of an icon under it

enum class Pressed { No, Hover, Down };
struct ButtonLook {
  Colour Face = 0;
  Colour Edge = 0;
  Colour Ink = 0;
};
// Of a button that the form gives a colour of its own.
ButtonLook LookOf(const CommandButton& button, const Palette& palette, bool enabled, Pressed pressed);

// Lines, handles, pictures: a colour made for a light ground, on any ground. On a light one it is itself. On a dark one
// greys keep their place between ink and paper, tints darken, and what was made to be seen is readable.
Colour MarkOn(Colour mark, Colour ground);
Colour InkOf(const Line& line, const Palette& palette);
Colour InkOf(const Drawn& drawn, Colour ground);  // a region keeps its own colour on any ground

struct ShapeLook {
  Colour Fill = 0;
  Colour Edge = 0;
};
ShapeLook LookOf(const Shape& shape, const Palette& palette);

// The lines around boxes and frames, clear where contrast is high.
Colour BoxEdge(const Palette& palette);
Colour FrameEdge(const Palette& palette);

}  // namespace Tarnwise
