// What of a form is painted and not left to native controls: labels, frames, charts, drawings, lines, shapes, handles,
// pictures, coloured buttons. Once for every toolkit.
#pragma once

#include "view/Look.h"
#include "view/Pixels.h"
#include "view/Surface.h"

namespace Tarnwise {

struct Brushes {
  Surface& On;
  const Palette& Colours;
  double Scale = 1.0;  // pixels in one of the design
};

// What a person does to a control.
struct PaintState {
  bool Focused = false;
  bool Hovered = false;
  bool Pressed = false;
};

Box ToBox(const PixelRect& place);

// A control, of its window `client` what meets the area. What is behind one that is not opaque is there already.
void PaintControl(const Brushes& brushes, const Control& control, const PixelRect& client, const PixelRect& area,
                  PaintState state);
bool IsOpaque(const Control& control);

// Of a container what meets the area: its ground, its picture and its drawing, or its title, then its lines and shapes.
void PaintContainer(const Brushes& brushes, const Control& container, const PixelRect& client, const PixelRect& area);
// The lines and shapes alone.
void PaintChildren(const Brushes& brushes, const Control& container, const PixelRect& area);
void PaintFrameLine(const Brushes& brushes, const PixelRect& client, int titleHeight);

// A small drag source in the middle of its window.
void PaintHandle(const Brushes& brushes, const Control& handle, const PixelRect& client, PaintState state);
void PaintSign(const Brushes& brushes, const PixelRect& client, Colour colour);  // the ground of a lit label
// The face of a button that the form gives a colour of its own.
void PaintFace(const Brushes& brushes, const PixelRect& client, const ButtonLook& look, bool focused);

// The picture fitted into the place, in colours for the ground that it stands on. Nothing where there is no picture of
// that name.
void PaintPicture(Surface& on, const String& name, const Box& place, Colour ground);

}  // namespace Tarnwise
