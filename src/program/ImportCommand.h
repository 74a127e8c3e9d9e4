// The command `tarnwise import`.
#pragma once

#include "project/ImportTable.h"

#include <iosfwd>

namespace CLI {
class App;
}

namespace Tarnwise {

// As they stand on the command line; empty what was not given.
struct ImportOptions {
  String From;
  String To;
  String Name;
  String Unit;
  std::vector<String> Inputs;
  std::vector<String> Outputs;
  std::vector<String> Unused;
  std::vector<String> Ranges;  // "Doctors=60..15": worst and best
  String Delimiter;
  String Decimal;
  String Thousands;
  String Encoding;
  std::vector<String> Missing;
  bool Header = false;
  bool NoHeader = false;
  bool Force = false;
};

CLI::App* AddImportCommand(CLI::App& app, ImportOptions& options);

// What they mean for a CSV file; a ModelFault names an option that is missing, or that is none of its words.
TableOptions TableOptionsOf(const ImportOptions& given);

// A model tells its columns and roles itself: a ModelFault names an option that is for CSV files only.
void RefuseTableOptions(const ImportOptions& given);

// Writes the project that a CSV file, a model file (.kst) or a model's description (.json) makes, and prints what was
// understood of it. Returns the exit code: 0 done, 2 refused, with the reason in err and nothing written. `now` is the
// time that goes into the project.
int ImportProject(const ImportOptions& options, const String& now, std::ostream& out, std::ostream& err);

// The time as projects hold it: "2024-05-17T09:30:00Z".
String TimeNow();

}  // namespace Tarnwise
