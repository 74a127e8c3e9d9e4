// A surface that keeps what was drawn on it, a line of text for each shape.
#pragma once

#include "view/Surface.h"

#include <cstdio>
#include <string>
#include <vector>

namespace Tarnwise {

class RecordingSurface : public Surface {
 public:
  std::vector<std::string> Lines;

  void Fill(const Box& box, Colour colour) override { Lines.push_back("fill " + Of(box) + " " + Of(colour)); }
  void Straight(Spot from, Spot to, Colour colour, double width) override {
    Lines.push_back("straight " + Of(from) + " " + Of(to) + " " + Of(colour) + " " + Of(width));
  }
  void Polyline(const std::vector<Spot>& spots, const Ink& ink) override { Add("polyline", spots, ink); }
  void Polygon(const std::vector<Spot>& spots, const Ink& ink) override { Add("polygon", spots, ink); }
  void Ellipse(const Box& box, const Ink& ink) override { Lines.push_back("ellipse " + Of(box) + Of(ink)); }
  void RoundBox(const Box& box, double radius, const Ink& ink) override {
    Lines.push_back("box " + Of(box) + " corner " + Of(radius) + Of(ink));
  }
  void Text(const Box& room, const Writing& text, Colour ink) override {
    std::string look = text.Face.Bold ? " bold" : "";
    if (text.Face.Stretch != kNormalStretch) look += " narrow " + std::to_string(text.Face.Stretch);
    if (text.Wraps) look += " wrapped";
    Lines.push_back("text " + Of(room) + " " + Of(ink) + look + ": " + text.Text);
  }
  // A hundredth of the stretch to a letter and point.
  int WidthOf(const String& text, const TypeFace& face) const override {
    return static_cast<int>(text.size()) * face.Points * face.Stretch / kNormalStretch;
  }

 private:
  static std::string Of(double number) {
    char text[32] = {};
    (void)std::snprintf(text, sizeof text, "%.2f", number);
    std::string digits = text;
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
    return digits;
  }
  static std::string Of(Spot spot) { return Of(spot.X) + "," + Of(spot.Y); }
  static std::string Of(const Box& box) {
    return Of(box.Left) + "," + Of(box.Top) + "-" + Of(box.Right) + "," + Of(box.Bottom);
  }
  static std::string Of(Colour colour) {
    char text[16] = {};
    (void)std::snprintf(text, sizeof text, "#%06X", static_cast<unsigned>(colour));
    return text;
  }
  static std::string Of(const Ink& ink) {
    std::string text = ink.Fill ? " of " + Of(*ink.Fill) : std::string();
    if (ink.Edge) text += " edge " + Of(*ink.Edge) + " " + Of(ink.Width);
    if (ink.Opacity < 1.0) text += " opacity " + Of(ink.Opacity);
    return ink.Winding ? text + " winding" : text;
  }
  void Add(const char* what, const std::vector<Spot>& spots, const Ink& ink) {
    std::string text = what;
    for (const Spot& spot : spots) text += " " + Of(spot);
    Lines.push_back(text + Of(ink));
  }
};

}  // namespace Tarnwise
