#include "program/ImportCommand.h"

#include <CLI/CLI.hpp>

namespace Tarnwise {

CLI::App* AddImportCommand(CLI::App& app, ImportOptions& options) {
  CLI::App* const import = app.add_subcommand("import", "Make a project of a CSV file or a model");
  import->add_option("FILE", options.From, "CSV file, model file (.kst) or description of a model (.json)")->required();
  import->add_option("PROJECT", options.To, "Project file to write (.tarnwise)")->required();
  import->add_option("--name", options.Name, "Name of the project; else that of the file");
  import->add_option("--unit", options.Unit, "Column with the units' names");
  const auto list = [import](const char* option, std::vector<String>& names, const char* help) {
    import->add_option(option, names, help)->allow_extra_args(false)->type_name("NAME,..");
  };
  list("--inputs", options.Inputs, "Columns of what the units use");
  list("--outputs", options.Outputs, "Columns of what they achieve");
  list("--unused", options.Unused, "Columns to keep besides; else all others are kept");
  import->add_option("--range", options.Ranges, "Worst and best of a column that are not to follow from the data")
      ->allow_extra_args(false)
      ->type_name("NAME=WORST..BEST");
  import->add_option("--delimiter", options.Delimiter, "comma, semicolon, tab, bar, or another sign");
  import->add_option("--decimal", options.Decimal, "point or comma");
  import->add_option("--thousands", options.Thousands,
                     "point, comma, blank or apostrophe; else there are no such marks");
  import->add_option("--encoding", options.Encoding, "utf-8, utf-16le, utf-16be or windows-1252");
  import->add_option("--missing", options.Missing, "A text that stands for a missing value, such as -99")
      ->allow_extra_args(false);
  CLI::Option* const header = import->add_flag("--header", options.Header, "The first row holds the columns' names");
  import->add_flag("--no-header", options.NoHeader, "It does not; the columns are called \"Column 1\" and so on")
      ->excludes(header);
  import->add_flag("--force", options.Force, "Replace the project file if it is there");
  return import;
}

}  // namespace Tarnwise
