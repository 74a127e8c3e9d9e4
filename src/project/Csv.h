// The CSV reader: a file's bytes as a table of texts, with what was understood of the file. Nothing is guessed: what
// the file leaves open is a ModelFault that names the option that settles it. docs/project-format.md tells the rules.
#pragma once

#include "project/NumberText.h"
#include "project/TextEncoding.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <string_view>

namespace Tarnwise {

// What is not told is found in the file.
struct CsvOptions {
  std::optional<TextEncoding> Encoding;
  std::optional<char> Delimiter;
  std::optional<bool> Header;   // whether the first row holds the columns' names
  std::vector<String> Columns;  // names that are asked for: where the first row holds them all, it is the header
  // A preview: the same table, cut here. Everything is found out from the whole file all the same.
  std::size_t MostRows = std::numeric_limits<std::size_t>::max();
};

// Cells are texts without blanks at their ends; they live as long as the table.
struct CsvTable {
  CsvTable() = default;
  CsvTable(const CsvTable&) = delete;
  CsvTable& operator=(const CsvTable&) = delete;
  CsvTable(CsvTable&&) = default;
  CsvTable& operator=(CsvTable&&) = default;
  ~CsvTable() = default;

  // What was understood.
  TextEncoding Encoding = TextEncoding::Utf8;
  char Delimiter = ',';
  bool Header = true;
  std::size_t BlankRows = 0;         // passed over
  std::vector<String> Names;         // of the columns: from the header, or "Column 1"
  std::vector<std::size_t> Unnamed;  // columns that the header has no name for; they are called "Column 3"

  // Rows after the header, blank ones apart: up to the cut, and of the whole file. Any of these may be asked for.
  std::size_t Rows() const { return std::min(MostRows, Lines.size()); }
  std::size_t RowsInFile() const { return Lines.size(); }
  std::size_t Columns() const { return Names.size(); }
  std::string_view Cell(std::size_t row, std::size_t column) const { return Cells[Starts[row] + column]; }

  // What the rows and cells stand in.
  std::size_t MostRows = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> Lines;  // of the file, from 1, in which each row begins
  std::vector<char> Text;
  std::deque<String> Rewritten;  // cells with doubled quotes, these single again
  std::vector<std::string_view> Cells;
  std::vector<std::size_t> Starts;  // of each row in Cells
};

// Faults name lines as an editor counts them: rows that have too many or too few cells (all of them), columns of the
// same name, what is said of TextEncoding, CsvRows and CsvDelimiter.
CsvTable ReadCsv(std::vector<char> bytes, const CsvOptions& options);

// "line 7"
String LineOfRow(const CsvTable& table, std::size_t row);

}  // namespace Tarnwise
