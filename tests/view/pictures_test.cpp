// Every picture's shapes against those that are kept in pictures.expected. A picture that was meant to change is looked
// at first (tools/pictures shows the forms); then what this test printed takes the place of the kept lines.
#include "view/Pictures.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>

namespace Tarnwise {
namespace {

String ColourText(const std::optional<Colour>& colour) {
  if (!colour) return "-";
  char text[16];
  std::snprintf(text, sizeof text, "%06X", static_cast<unsigned>(*colour));
  return text;
}

// To a hundredth: curves come from the C library's sines.
String NumberOf(Single x) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", static_cast<double>(x) + 0.0);
  return String(text) == "-0.00" ? "0.00" : text;
}

String LinesOf(const String& name, const Picture& picture) {
  constexpr const char* kShapes[] = {"polygon", "ellipse", "polyline"};
  String lines = name + " " + NumberOf(picture.Width) + " " + NumberOf(picture.Height) + "\n";
  for (const PictureShape& shape : picture.Shapes) {
    lines += String("  ") + kShapes[static_cast<int>(shape.Shape)] + " fill " + ColourText(shape.Fill) + " stroke " +
             ColourText(shape.Stroke) + " " + NumberOf(shape.StrokeWidth) + ":";
    for (const Single x : shape.Points) lines += " " + NumberOf(x);
    lines += "\n";
  }
  return lines;
}

TEST(Pictures, AreDrawnAsTheyWereLookedAt) {
  std::ifstream file(TARNWISE_PICTURES);
  const String kept((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  String drawn;
  for (const String& name : PictureNames()) {
    const Picture* const picture = FindPicture(name);
    ASSERT_NE(picture, nullptr) << name;
    drawn += LinesOf(name, *picture);
  }
  EXPECT_FALSE(kept.empty());
  EXPECT_TRUE(drawn == kept) << drawn;
}

TEST(Pictures, OfAnUnknownNameAreNotThere) { EXPECT_EQ(FindPicture("NoSuchPicture"), nullptr); }

}  // namespace
}  // namespace Tarnwise
