// The trade-off points of a model, kept in a file of the host's own beside it: the model file has no room for them.
#pragma once

#include <tarnwise/TRN_DEA.h>

#include <array>

namespace Tarnwise {

// AX, AY, BX, BY, AOrientation, ALX, ALY, AUX, AUY, one element for each attribute.
using Points = std::array<VariantArray, 9>;

String PointsPath(const String& modelPath);

Points ZeroPoints(int numAtts);

// The points beside the model; zeros when there are none. A file that holds no points of this many attributes is a
// ModelFault.
Points ReadPoints(const String& modelPath, int numAtts);

// Their JSON on one line.
String PointsText(const Points& points);

void WritePoints(const String& modelPath, const Points& points);

}  // namespace Tarnwise
