// The small pictures that forms name: each is a list of plain shapes, and every toolkit draws that list in its own way.
#pragma once

#include <tarnwise/Scalars.h>

#include <map>
#include <optional>
#include <vector>

namespace Tarnwise {

struct PictureShape {
  enum class What { Polygon, Ellipse, Polyline } Shape = What::Polygon;
  std::vector<Single> Points;  // x, y, x, y, ...; two corners of the box around an ellipse
  std::optional<Colour> Fill;
  std::optional<Colour> Stroke;
  Single StrokeWidth = 2.0F;
};

// Drawn back to front in a box of this size, y downward. The box is fitted into the place it is shown in.
struct Picture {
  Single Width = 100.0F;
  Single Height = 100.0F;
  std::vector<PictureShape> Shapes;
};

// All that there are. The view draws none of its own: they are defined beside the forms that name them, and a program
// without those forms defines its own.
const std::map<String, Picture>& NamedPictures();

// Null when there is no picture of that name.
const Picture* FindPicture(const String& name);

// The picture of the same name as a file, however that is written.
String PictureNameOf(const String& path);

std::vector<String> PictureNames();

}  // namespace Tarnwise
