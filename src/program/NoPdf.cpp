#include "modelfiles/WholeFile.h"
#include "program/Pdf.h"

namespace Tarnwise {

String PdfOf(const Report& /*report*/) {
  throw ModelFault("this program was built without Qt and can't make PDF; a report that ends in .html can be printed");
}

}  // namespace Tarnwise
