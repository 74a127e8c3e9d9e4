#include "program/SystemText.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace Tarnwise {

std::vector<String> ProgramArguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

Utf8Output::Utf8Output() = default;
Utf8Output::~Utf8Output() = default;

bool OutputIsTerminal() { return isatty(STDOUT_FILENO) == 1; }
bool ErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

bool OutputObeysColours() {
  const char* const kind = std::getenv("TERM");
  return OutputIsTerminal() && kind != nullptr && std::strcmp(kind, "dumb") != 0;
}

}  // namespace Tarnwise
