// Charts as lists of shapes, in tones of grey, for whatever draws them.
#pragma once

#include <tarnwise/Scalars.h>

#include <vector>

namespace Tarnwise {

enum class Tone { Black, Dark, Middle, Light, Pale };  // Pale is for fillings behind others

// What a tone is: 0 black to 255 white.
int GreyOf(Tone tone);

enum class Anchor { Start, Middle, End };

// Lengths are pixels of 96 to the inch, from the top left.
struct DrawnShape {
  enum class Kind { Line, Box, Text };
  enum Kind Kind = Kind::Line;
  double X1 = 0.0;
  double Y1 = 0.0;  // of a text: its base line
  double X2 = 0.0;
  double Y2 = 0.0;
  enum Tone Tone = Tone::Black;
  double Width = 1.0;  // of a line; of a text its size
  bool Dashed = false;
  String Text;
  enum Anchor Anchor = Anchor::Start;
};

struct Drawing {
  double Width = 0.0;
  double Height = 0.0;
  String Title;        // for whoever can't see it: what it is,
  String Description;  // and what it shows
  std::vector<DrawnShape> Shapes;

  void Line(double x1, double y1, double x2, double y2, Tone tone, double width = 1.0, bool dashed = false);
  void Box(double x1, double y1, double x2, double y2, Tone tone);
  void Text(double x, double y, const String& text, Anchor anchor = Anchor::Start, Tone tone = Tone::Black,
            double size = 12.0);
};

// An element for HTML, with its title and description; `id` is the drawing's own in the document.
String SvgOf(const Drawing& drawing, const String& id);

// The text with what HTML and SVG mean something else by written otherwise; control characters as WholeName shows them.
String Escaped(const String& text);

}  // namespace Tarnwise
