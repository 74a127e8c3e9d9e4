#include "runtime/CodePage.h"

namespace Tarnwise {

const CodePage& SystemCodePage() { return CodePage1252(); }

}  // namespace Tarnwise
