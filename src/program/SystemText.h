// The program's text to and from the system. Inside it is UTF-8, whatever the system has.
#pragma once

#include <tarnwise/Scalars.h>

#include <vector>

namespace Tarnwise {

// What the program was started with, without its own name.
std::vector<String> ProgramArguments(int argc, char** argv);

// While there is one, what the program prints are the same bytes everywhere, and a console shows them as the UTF-8 that
// they are.
class Utf8Output {
 public:
  Utf8Output();
  Utf8Output(const Utf8Output&) = delete;
  Utf8Output& operator=(const Utf8Output&) = delete;
  ~Utf8Output();

 private:
  unsigned former_ = 0;
};

// Whether a person sees what goes there.
bool OutputIsTerminal();
bool ErrorIsTerminal();

// Whether the terminal of the output obeys the control sequences of colours.
bool OutputObeysColours();

}  // namespace Tarnwise
