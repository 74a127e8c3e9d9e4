// A project made of a CSV file.
#pragma once

#include "project/CsvNumbers.h"
#include "project/Project.h"

namespace Tarnwise {

struct GivenRange {
  String Column;
  double Worst = 0.0;
  double Best = 0.0;
};

// Each text of Inputs, Outputs and Unused is a column's name or several, parted by commas.
struct TableOptions {
  String Unit;  // the column with the units' names
  std::vector<String> Inputs;
  std::vector<String> Outputs;
  std::vector<String> Unused;      // columns to keep as unused ones; all others where none are named
  std::vector<GivenRange> Ranges;  // of inputs and outputs whose range is not to follow from the data
  CsvOptions Csv;                  // but for its Columns, which follow from these, and without a cut
  NumberOptions Numbers;
};

// A cell that is no number, and so a missing value.
struct UnreadCell {
  std::size_t Line = 0;
  String Unit;
  String Column;
  String Text;
};

struct ColumnCount {
  String Column;
  std::size_t Count = 0;
};

// What was understood of the file.
struct TableReport {
  TextEncoding Encoding = TextEncoding::Utf8;
  char Delimiter = ',';
  bool Header = true;
  FoundFormat Numbers;
  std::size_t Rows = 0;  // units
  std::size_t Columns = 0;
  std::size_t BlankRows = 0;
  std::vector<String> Unnamed;       // names that columns without one were given
  std::vector<ColumnCount> Missing;  // of used columns that lack values on purpose
  std::vector<UnreadCell> Unread;    // of used columns, all of them
  std::vector<ColumnCount> Texts;    // cells of unused columns that are no numbers and are not kept
};

struct ImportedTable {
  struct Project Project;
  TableReport Report;
};

// The project has one column for each of the table's but the units', in the table's order, and no name or source yet.
// Ranges follow from the data by NiceRange: an input's best is at the least score, an output's at the greatest. A cell
// of a used column that would be a number in another format is a ModelFault, since it would be a mistake to count it as
// missing; so are a column without any number, units without a name or of the same name, and a name that no column has.
ImportedTable ImportTable(std::vector<char> bytes, const TableOptions& options);

// The range of a column that follows from its numbers, of which there is at least one.
ColumnScale RangeFromData(const DataColumn& column);

}  // namespace Tarnwise
