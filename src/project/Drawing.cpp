#include "project/Drawing.h"

#include "project/Shown.h"

namespace Tarnwise {

namespace {

String Pixels(double length) { return FixedText(length, 1); }

String Attribute(const char* name, const String& value) { return String(" ") + name + "=\"" + value + '"'; }

String ColourOf(Tone tone) {
  const String grey = std::to_string(GreyOf(tone));
  return "rgb(" + grey + "," + grey + "," + grey + ")";
}

const char* NameOf(Anchor anchor) {
  return anchor == Anchor::Start ? "start" : anchor == Anchor::End ? "end" : "middle";
}

String LineText(const DrawnShape& line) {
  return "<line" + Attribute("x1", Pixels(line.X1)) + Attribute("y1", Pixels(line.Y1)) +
         Attribute("x2", Pixels(line.X2)) + Attribute("y2", Pixels(line.Y2)) +
         Attribute("stroke", ColourOf(line.Tone)) + Attribute("stroke-width", Pixels(line.Width)) +
         (line.Dashed ? Attribute("stroke-dasharray", "4 3") : String()) + "/>";
}

String BoxText(const DrawnShape& box) {
  return "<rect" + Attribute("x", Pixels(box.X1)) + Attribute("y", Pixels(box.Y1)) +
         Attribute("width", Pixels(box.X2 - box.X1)) + Attribute("height", Pixels(box.Y2 - box.Y1)) +
         Attribute("fill", ColourOf(box.Tone)) + "/>";
}

String LetteringText(const DrawnShape& text) {
  return "<text" + Attribute("x", Pixels(text.X1)) + Attribute("y", Pixels(text.Y1)) +
         Attribute("fill", ColourOf(text.Tone)) + Attribute("font-size", Pixels(text.Width)) +
         Attribute("text-anchor", NameOf(text.Anchor)) + ">" + Escaped(text.Text) + "</text>";
}

String ShapeText(const DrawnShape& shape) {
  switch (shape.Kind) {
    case DrawnShape::Kind::Line: return LineText(shape);
    case DrawnShape::Kind::Box: return BoxText(shape);
    case DrawnShape::Kind::Text: return LetteringText(shape);
  }
  return {};
}

}  // namespace

int GreyOf(Tone tone) {
  switch (tone) {
    case Tone::Black: return 0;
    case Tone::Dark: return 64;
    case Tone::Middle: return 128;
    case Tone::Light: return 184;
    case Tone::Pale: return 232;
  }
  return 0;
}

void Drawing::Line(double x1, double y1, double x2, double y2, enum Tone tone, double width, bool dashed) {
  Shapes.push_back({DrawnShape::Kind::Line, x1, y1, x2, y2, tone, width, dashed, {}, Anchor::Start});
}

void Drawing::Box(double x1, double y1, double x2, double y2, enum Tone tone) {
  Shapes.push_back({DrawnShape::Kind::Box, x1, y1, x2, y2, tone, 0.0, false, {}, Anchor::Start});
}

void Drawing::Text(double x, double y, const String& text, enum Anchor anchor, enum Tone tone, double size) {
  Shapes.push_back({DrawnShape::Kind::Text, x, y, x, y, tone, size, false, text, anchor});
}

String SvgOf(const Drawing& drawing, const String& id) {
  const String width = FixedText(drawing.Width, 0);
  const String height = FixedText(drawing.Height, 0);
  String text = "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\"" +
                Attribute("viewBox", "0 0 " + width + " " + height) + Attribute("width", width) +
                Attribute("height", height) + Attribute("aria-label", Escaped(drawing.Title)) +
                Attribute("aria-describedby", id + "-text") + ">\n";
  text += "<title>" + Escaped(drawing.Title) + "</title>\n";
  text += "<desc" + Attribute("id", id + "-text") + ">" + Escaped(drawing.Description) + "</desc>\n";
  for (const DrawnShape& shape : drawing.Shapes) text += ShapeText(shape) + "\n";
  return text + "</svg>\n";
}

String Escaped(const String& text) {
  String escaped;
  for (const char c : WholeName(text)) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

}  // namespace Tarnwise
