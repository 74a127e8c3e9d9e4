// What of a form is painted and not left to native controls: charts, drawings, lines, shapes, handles, signs, pictures,
// coloured buttons. Once for every toolkit.
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

Box ToBox(const PixelRect& place);

// Of a container what meets the area: its ground, its picture and its drawing, then its lines and shapes.
void PaintContainer(const Brushes& brushes, const Control& container, const PixelRect& client, const PixelRect& area);
// The lines and shapes alone.
void PaintChildren(const Brushes& brushes, const Control& container, const PixelRect& area);
void PaintFrameLine(const Brushes& brushes, const PixelRect& client, int titleHeight);

struct HandleState {
  bool Focused = false;
  bool Hovered = false;
};
// A small drag source in the middle of its window.
void PaintHandle(const Brushes& brushes, const Control& handle, const PixelRect& client, HandleState state);
void PaintSign(const Brushes& brushes, const PixelRect& client, Colour colour);  // the ground of a lit label
// The face of a button that the form gives a colour of its own.
void PaintFace(const Brushes& brushes, const PixelRect& client, const ButtonLook& look, bool focused);

// The picture fitted into the place, in colours for the ground that it stands on. Nothing where there is no picture of
// that name.
void PaintPicture(Surface& on, const String& name, const Box& place, Colour ground);

}  // namespace Tarnwise
