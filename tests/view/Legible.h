// Whether what stands on a form can be read, from the pixels of its picture.
#pragma once

#include "forms/WizardForm.h"
#include "view/Look.h"
#include "view/Reach.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace Tarnwise {

constexpr double kSeen = 3.0;  // the least contrast of a picture with its ground, on a light screen

// On the direct step: within the region that stands there when the script of EveryStep has made it inconsistent,
// between the lines of the grid. Pixels of 96 to the inch.
constexpr Rect kInRegion{205, 320, 12, 12};

struct Pixels {
  int Width = 0;
  int Height = 0;
  std::vector<Colour> Rows;  // top row first
  Colour At(int x, int y) const { return Rows[static_cast<std::size_t>(y * Width + x)]; }
};

// A part of a form, pixels of 96 to the inch.
struct Part {
  String Name;
  Rect Place;
  double Least = kReadable;
};

constexpr int kCoarse = 3;  // pixels, for what there is most of in a large place

struct Shades {
  Colour Ground = 0;      // what there is most of
  double Contrast = 1.0;  // of that with what stands out most
};

// By every `step`-th pixel of every `step`-th row.
inline Shades ShadesOf(const Pixels& pixels, const Rect& place, double scale, int step = 1) {
  // A map in order: shades of yellow are multiples of 257, which hashes to one bucket of as many.
  std::map<Colour, int> counts;
  auto last = counts.end();
  const auto edge = [scale](double at, int most) {
    return std::clamp(static_cast<int>(std::lround(at * scale)), 0, most);
  };
  const int left = edge(place.X, pixels.Width);
  const int right = edge(place.X + place.W, pixels.Width);
  for (int y = edge(place.Y, pixels.Height); y < edge(place.Y + place.H, pixels.Height); y += step) {
    for (int x = left; x < right; x += step) {
      const Colour colour = pixels.At(x, y);
      if (last == counts.end() || last->first != colour) last = counts.try_emplace(colour, 0).first;
      ++last->second;
    }
  }
  Shades shades;
  int most = 0;
  for (const auto& [colour, count] : counts) {
    if (count > most) shades.Ground = colour;
    most = std::max(most, count);
  }
  for (const auto& [colour, count] : counts)
    shades.Contrast = std::max(shades.Contrast, Contrast(colour, shades.Ground));
  return shades;
}

inline Rect Inside(const Rect& r, double left, double top, double right, double bottom) {
  return {r.X + left, r.Y + top, std::max(r.W - left - right, 0.0), std::max(r.H - top - bottom, 0.0)};
}

inline Rect SeenPlace(const Control& control) {
  const Rect twips = VisiblePlace(control);
  return {twips.X / 15.0, twips.Y / 15.0, twips.W / 15.0, twips.H / 15.0};
}

inline void AddTools(std::vector<Part>& parts, const Toolbar& bar, const Rect& place) {
  const double side = std::min(place.H, place.W / static_cast<double>(bar.Buttons.size()));
  for (std::size_t i = 0; i < bar.Buttons.size(); ++i) {
    if (!bar.Buttons[i].Enabled) continue;
    const Rect button{place.X + side * static_cast<double>(i), place.Y, side, side};
    parts.push_back({bar.FullName() + "." + bar.Buttons[i].Key, Inside(button, 5, 5, 5, 5), kSeen});
  }
}

// Rows of text, each of them a ground of its own.
inline void AddRows(std::vector<Part>& parts, const Control& list, const Rect& place, double height, std::size_t rows) {
  for (std::size_t i = 0; i < rows; ++i) {
    const Rect row{place.X, place.Y + 2 + height * static_cast<double>(i), place.W, height};
    if (row.Y + row.H > place.Y + place.H) return;
    parts.push_back({list.FullName() + " row " + std::to_string(i), Inside(row, 3, 4, 3, 4)});
  }
}

// The parts that a person reads. What is disabled is grey on purpose.
inline std::vector<Part> PartsToRead(const Form& form) {
  std::vector<Part> parts;
  for (const Control* control : form.Controls()) {
    if (!IsUsable(*control) || IsCovered(*control)) continue;
    const Rect place = SeenPlace(*control);
    if (place.W < 8 || place.H < 8) continue;
    const auto add = [&](const Rect& part, double least = kReadable) {
      parts.push_back({control->FullName(), part, least});
    };
    switch (control->Type) {
      case Kind::Label:
        if (!static_cast<const Label*>(control)->Caption().empty()) add(place);
        break;
      case Kind::CommandButton: add(Inside(place, 6, 6, 6, 6)); break;
      case Kind::OptionButton:
        if (!static_cast<const OptionButton*>(control)->Caption().empty()) add(Inside(place, 22, 0, 0, 0));
        break;
      case Kind::CheckBox: add(Inside(place, 22, 0, 0, 0)); break;
      case Kind::Frame:
        if (!static_cast<const Frame*>(control)->Caption().empty()) add({place.X + 12, place.Y, 100, 14});
        break;
      case Kind::TextBox:
        if (!static_cast<const TextBox*>(control)->Text().empty()) add(Inside(place, 4, 5, 4, 5));
        break;
      case Kind::ListBox:
        AddRows(parts, *control, place, 24, static_cast<const ListBox*>(control)->List().size());
        break;
      case Kind::ComboBox: add(Inside(place, 5, 6, 24, 6)); break;
      case Kind::ImageCombo: add(Inside(place, 26, 6, 24, 6)); break;
      case Kind::TabStrip: add(Inside(place, 8, 7, place.W / 2, 7)); break;
      case Kind::Toolbar: AddTools(parts, static_cast<const Toolbar&>(*control), place); break;
      case Kind::Grid: AddRows(parts, *control, place, 25, static_cast<const Grid*>(control)->TextMatrix.size()); break;
      case Kind::Image:
        if (!static_cast<const Image*>(control)->Picture().empty()) add(place, kSeen);
        break;
      default: break;
    }
  }
  return parts;
}

inline void ExpectLegible(const Form& form, const Pixels& pixels, bool dark, const String& at) {
  const double scale = pixels.Width * 15.0 / static_cast<double>(form.Width());
  for (const Part& part : PartsToRead(form)) {
    const Shades shades = ShadesOf(pixels, part.Place, scale);
    EXPECT_GE(shades.Contrast, dark ? kReadable : part.Least)
        << form.Name << "." << part.Name << " on " << std::hex << shades.Ground << std::dec << " at " << at;
  }
}

// On a dark screen nothing large is light but what a rule makes so: the lights' own ground, and the attributes.
inline void ExpectNoGlare(const Form& form, const Pixels& pixels, const String& at) {
  const double scale = pixels.Width * 15.0 / static_cast<double>(form.Width());
  for (const Control* control : form.Controls()) {
    const bool large = control->Type == Kind::PictureBox || control->Type == Kind::ListBox ||
                       control->Type == Kind::Grid || control->Type == Kind::TextBox || control->Type == Kind::Frame ||
                       control->Type == Kind::ComboBox || control->Type == Kind::ImageCombo;
    if (!large || !IsOnScreen(*control) || IsCovered(*control)) continue;
    if (control->Name == "picJudgmentState" || control->DragAutomatic || control->Name == "picIndicator") continue;
    const Rect place = SeenPlace(*control);
    if (place.W < 8 || place.H < 8) continue;
    const Shades shades = ShadesOf(pixels, place, scale, kCoarse);
    if (shades.Ground == kBenefitColour || shades.Ground == kCostColour) continue;
    EXPECT_TRUE(IsDark(shades.Ground)) << form.Name << "." << control->FullName() << " is " << std::hex << shades.Ground
                                       << std::dec << " at " << at;
  }
}

}  // namespace Tarnwise
