// Reports as PDF. There is a file for builds with Qt and one for those without.
#pragma once

#include "project/Report.h"

namespace Tarnwise {

// The bytes of the file, pages of A4 with numbers. Needs no screen. A ModelFault where this build makes none.
String PdfOf(const Report& report);

}  // namespace Tarnwise
