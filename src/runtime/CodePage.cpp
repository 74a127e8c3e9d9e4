#include "runtime/CodePage.h"

#include "runtime/AnsiText.h"

namespace Tarnwise {

const CodePage& CodePage1252() {
  static const CodePage page{"code page 1252", FromAnsi, ToAnsi};
  return page;
}

}  // namespace Tarnwise
