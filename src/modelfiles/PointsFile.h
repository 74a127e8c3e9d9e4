// The trade-off points of a model, kept in a file of the host's own beside it: the model file has no room for them.
#pragma once

#include "model/PointArrays.h"

namespace Tarnwise {

String PointsPath(const String& modelPath);

// The points beside the model; zeros when there are none. A file that holds no points of this many attributes is a
// ModelFault.
PointArrays ReadPoints(const String& modelPath, int numAtts);

// Their JSON on one line.
String PointsText(const PointArrays& points);

void WritePoints(const String& modelPath, const PointArrays& points);

}  // namespace Tarnwise
