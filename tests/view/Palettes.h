// Palettes that people have.
#pragma once

#include "view/Look.h"

#include <ostream>
#include <vector>

namespace Tarnwise {

constexpr Colour Rgb(Colour red, Colour green, Colour blue) { return red | (green << 8U) | (blue << 16U); }

struct NamedPalette {
  const char* Name;
  Palette Colours;
  bool Dark;
};

inline void PrintTo(const NamedPalette& palette, std::ostream* out) { *out << palette.Name; }

inline const std::vector<NamedPalette>& PeoplesPalettes() {
  constexpr Colour black = 0;
  constexpr Colour white = 0xFFFFFF;
  constexpr Colour yellow = Rgb(255, 255, 0);
  static const std::vector<NamedPalette> palettes{
      {"light", {Rgb(239, 239, 239), black, white, black, Rgb(239, 239, 239), black, Rgb(0, 103, 192), white}, false},
      {"grey", {Rgb(212, 208, 200), black, white, black, Rgb(212, 208, 200), black, Rgb(10, 36, 106), white}, false},
      {"dark",
       {Rgb(45, 45, 48), Rgb(235, 235, 235), Rgb(30, 30, 30), Rgb(235, 235, 235), Rgb(60, 60, 64), Rgb(235, 235, 235),
        Rgb(61, 126, 200), white},
       true},
      {"slate",
       {Rgb(42, 46, 50), Rgb(252, 252, 252), Rgb(27, 30, 32), Rgb(252, 252, 252), Rgb(49, 54, 59), Rgb(252, 252, 252),
        Rgb(61, 174, 233), Rgb(252, 252, 252)},
       true},
      {"contrast", {black, white, black, white, black, white, Rgb(26, 235, 255), black}, true},
      {"yellow", {black, yellow, black, yellow, black, white, Rgb(0, 0, 255), white}, true},
      {"white", {white, black, white, black, white, black, Rgb(55, 0, 110), white}, false},
  };
  return palettes;
}

}  // namespace Tarnwise
