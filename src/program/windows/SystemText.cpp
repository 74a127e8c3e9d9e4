#include "program/SystemText.h"

#include "runtime/windows/WideText.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

namespace Tarnwise {

// What C gives as arguments has lost the letters that the user's code page lacks.
std::vector<String> ProgramArguments(int /*argc*/, char** /*argv*/) {
  std::vector<String> arguments;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

Utf8Output::Utf8Output() : former_(GetConsoleOutputCP()) {
  SetConsoleOutputCP(CP_UTF8);
  _setmode(_fileno(stdout), _O_BINARY);
}

Utf8Output::~Utf8Output() {
  if (former_ != 0) SetConsoleOutputCP(former_);
}

bool OutputIsTerminal() { return _isatty(_fileno(stdout)) != 0; }
bool ErrorIsTerminal() { return _isatty(_fileno(stderr)) != 0; }

bool OutputObeysColours() {
  HANDLE const output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 && SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace Tarnwise
