#include "view/Look.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr Colour kDarkInk = 0x37291F;     // on a coloured ground, softer than black
constexpr Colour kLightPlate = 0xD0D0D0;  // the ground of an ink that is dark by rule
constexpr Colour kDarkPlate = 0x202020;   // and of one that is light
constexpr double kMadeToBeSeen = 3.0;     // the contrast that such a colour has on white
constexpr double kVeryHighContrast = 19.0;
constexpr double kFirm = 6.0;   // of what is moved: thin strokes come out paler than their ink
constexpr double kTint = 1.25;  // of a tint, which has marks on it, with a dark ground
constexpr int kClearEdge = 60;  // percent of ink
constexpr int kBoxEdge = 28;
constexpr int kFrameEdge = 16;
constexpr int kShapeEdge = 55;  // percent of the edge's own colour
constexpr int kGreyWithin = 32;

using Channels = std::array<int, 3>;  // red, green, blue

Channels ChannelsOf(Colour colour) {
  return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
          static_cast<int>((colour >> 16U) & 0xFFU)};
}

Colour ColourOf(const Channels& c) {
  return static_cast<Colour>(c[0]) | (static_cast<Colour>(c[1]) << 8U) | (static_cast<Colour>(c[2]) << 16U);
}

double Linear(int channel) {
  const double part = channel / 255.0;
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(Colour colour) {
  const Channels c = ChannelsOf(colour);
  return 0.2126 * Linear(c[0]) + 0.7152 * Linear(c[1]) + 0.0722 * Linear(c[2]);
}

bool IsNamed(Colour colour) { return (colour & 0x80000000U) != 0; }

Colour Named(Colour colour, const Palette& palette) {
  switch (colour) {
    case kWindowBackground: return palette.Base;
    case kWindowText: return palette.Text;
    case kHighlightText: return palette.HighlightText;
    case kButtonFace: return palette.Window;
    case kButtonText: return palette.WindowText;
    default: return colour & 0xFFFFFFU;
  }
}

// The first of the ways from one colour to the other that contrasts enough with the ground; the end of it if none does.
Colour Toward(Colour from, Colour to, Colour ground, double wanted) {
  for (int percent = 0; percent < 100; percent += 2) {
    const Colour mixed = Blend(from, to, percent);
    if (Contrast(mixed, ground) >= wanted) return mixed;
  }
  return to;
}

Colour OppositeOf(Colour ground) { return IsDark(ground) ? kWhite : kBlack; }

bool IsGrey(Colour colour) {
  const Channels c = ChannelsOf(colour);
  const auto [least, most] = std::minmax_element(c.begin(), c.end());
  return *most - *least <= kGreyWithin;
}

// A grey lies as far between these two as between black and white. On a dark ground its tinge would be inverted.
Colour Between(Colour grey, Colour forBlack, Colour forWhite) {
  Channels c = ChannelsOf(grey);
  if (IsDark(forWhite)) c.fill((c[0] + c[1] + c[2]) / 3);
  const Channels black = ChannelsOf(forBlack);
  const Channels white = ChannelsOf(forWhite);
  Channels mixed{};
  for (std::size_t i = 0; i < 3; ++i) mixed[i] = black[i] + (white[i] - black[i]) * c[i] / 255;
  return ColourOf(mixed);
}

// The white in it gives way to the ground.
Colour TintOn(Colour tint, Colour ground) {
  Channels c = ChannelsOf(tint);
  const int white = *std::min_element(c.begin(), c.end());
  const Channels g = ChannelsOf(ground);
  for (std::size_t i = 0; i < 3; ++i) c[i] = c[i] - white + g[i] * white / 255;
  return ColourOf(c);
}

Colour ReadableGround(Colour ground, Colour text) { return Toward(ground, OppositeOf(text), text, kFirm); }

// The ink by rule of the first caption in the box that has one.
std::optional<Colour> InkByRule(const PictureBox& box) {
  for (const Control* control : box.Owner.Controls()) {
    if (control->Parent != &box || control->Type != Kind::Label) continue;
    const Colour ink = static_cast<const Label*>(control)->ForeColor;
    if (!IsNamed(ink)) return ink;
  }
  return std::nullopt;
}

Colour PlateFor(Colour ink) { return IsDark(ink) ? kLightPlate : kDarkPlate; }

Colour FillOfBox(const PictureBox& box, const Palette& palette) {
  const Colour own = box.BackColor;
  if (!IsNamed(own) && !IsGrey(own)) return MarkOn(own, GroundOf(box, palette));
  if (!IsNamed(own)) return IsDark(own) ? own : Between(own, palette.Text, palette.Base);
  const Colour ground = Named(own, palette);
  const std::optional<Colour> ink = InkByRule(box);
  return ink && Contrast(*ink, ground) < kReadable ? PlateFor(*ink) : ground;
}

Colour EdgeOn(Colour ground, int percent, const Palette& palette) {
  const bool clear = Contrast(palette.Window, palette.WindowText) > kVeryHighContrast;
  return Blend(ground, OppositeOf(ground), clear ? kClearEdge : percent);
}

// What reads on a coloured ground.
Colour InkFor(Colour ground, Colour text) {
  for (const Colour ink : {kDarkInk, text, kWhite}) {
    if (Contrast(ink, ground) >= kReadable) return ink;
  }
  return kBlack;
}

}  // namespace

double Contrast(Colour a, Colour b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

bool IsDark(Colour ground) { return Contrast(ground, kWhite) > Contrast(ground, kBlack); }

Palette Readable(const Palette& palette) {
  Palette readable = palette;
  readable.Window = ReadableGround(palette.Window, palette.WindowText);
  readable.Base = ReadableGround(palette.Base, palette.Text);
  readable.Button = ReadableGround(palette.Button, palette.ButtonText);
  readable.Highlight = ReadableGround(palette.Highlight, palette.HighlightText);
  return readable;
}

Colour Blend(Colour a, Colour b, int percentOfB) {
  Channels mixed = ChannelsOf(a);
  const Channels other = ChannelsOf(b);
  for (std::size_t i = 0; i < 3; ++i) mixed[i] = (mixed[i] * (100 - percentOfB) + other[i] * percentOfB) / 100;
  return ColourOf(mixed);
}

Colour FillOf(const Control& container, const Palette& palette) {
  if (container.Type != Kind::PictureBox) return palette.Window;
  return FillOfBox(static_cast<const PictureBox&>(container), palette);
}

Colour GroundOf(const Control& control, const Palette& palette) { return FillOf(*control.Parent, palette); }

Colour TextOn(Colour ground, const Palette& palette) {
  if (ground == palette.Window) return palette.WindowText;
  return ground == palette.Base ? palette.Text : InkFor(ground, palette.Text);
}

bool IsSign(const Label& label) { return label.ForeColor == kHighlightText; }

Colour FaintOf(Colour ink, Colour ground) { return Blend(ink, ground, 50); }

LabelLook LookOf(const Label& label, const Palette& palette) {
  if (IsSign(label)) return {palette.HighlightText, palette.Highlight, true};
  const bool seeThrough = label.BackColor == kButtonFace;
  const Colour ground = seeThrough ? GroundOf(label, palette) : Named(label.BackColor, palette);
  LabelLook look;
  if (!seeThrough) look.Ground = ground;
  look.Ink = IsNamed(label.ForeColor) ? TextOn(ground, palette) : label.ForeColor();
  if (Contrast(look.Ink, ground) < kReadable) look.Ground = PlateFor(look.Ink);
  return look;
}

ButtonLook LookOf(const CommandButton& button, const Palette& palette, bool enabled, Pressed pressed) {
  const Colour own = Named(button.BackColor, palette);
  ButtonLook look;
  look.Face = !enabled                    ? Blend(own, palette.Window, 70)
              : pressed == Pressed::Down  ? Blend(own, kBlack, 12)
              : pressed == Pressed::Hover ? Blend(own, kWhite, 20)
                                          : own;
  look.Edge = Blend(look.Face, kBlack, !enabled ? 10 : pressed == Pressed::Hover ? 38 : 26);
  look.Ink = InkFor(look.Face, palette.Text);
  if (!enabled) look.Ink = FaintOf(look.Ink, look.Face);
  return look;
}

Colour MarkOn(Colour mark, Colour ground) {
  if (!IsDark(ground)) return mark;
  if (IsGrey(mark)) return Between(mark, kWhite, ground);
  const double made = Contrast(mark, kWhite);
  if (made >= kMadeToBeSeen) return Toward(mark, kWhite, ground, kFirm);
  return Toward(TintOn(mark, ground), kWhite, ground, std::min(made, kTint));
}

Colour InkOf(const Line& line, const Palette& palette) { return MarkOn(line.BorderColor, GroundOf(line, palette)); }

Colour InkOf(const Drawn& drawn, Colour ground) {
  return drawn.Shape == Drawn::What::Polygon ? drawn.Ink : MarkOn(drawn.Ink, ground);
}

ShapeLook LookOf(const Shape& shape, const Palette& palette) {
  const Colour ground = GroundOf(shape, palette);
  const Colour fill = MarkOn(shape.FillColor, ground);
  return {fill, Blend(fill, MarkOn(shape.BorderColor, ground), kShapeEdge)};
}

Colour BoxEdge(const Palette& palette) { return EdgeOn(palette.Window, kBoxEdge, palette); }

Colour FrameEdge(const Palette& palette) { return EdgeOn(palette.Window, kFrameEdge, palette); }

}  // namespace Tarnwise
