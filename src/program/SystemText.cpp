#include "program/SystemText.h"

namespace Tarnwise {

std::vector<String> ProgramArguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

Utf8Output::Utf8Output() = default;
Utf8Output::~Utf8Output() = default;

}  // namespace Tarnwise
