// The analyst's window as the program's command. There is a file for builds with it and one for those without.
#pragma once

#include <tarnwise/Scalars.h>

namespace Tarnwise {

struct OpenOptions {
  String File;      // empty: a new project
  String Pictures;  // a folder for a picture of each page, taken at once, and that is all
};

int OpenWorkbench(const OpenOptions& options, int& argc, char** argv);

}  // namespace Tarnwise
