#include "project/Csv.h"

#include "modelfiles/WholeFile.h"
#include "project/CsvDelimiter.h"
#include "project/CsvRows.h"
#include "project/Shown.h"

#include <algorithm>
#include <unordered_map>

namespace Tarnwise {

namespace {

String LineText(std::size_t line) { return "line " + std::to_string(line); }

// Spreadsheets write the delimiter into a line of its own before all others: "sep=;".
struct FirstLine {
  std::optional<char> Delimiter;
  std::size_t Size = 0;
};

FirstLine DelimiterLine(std::string_view text) {
  constexpr std::string_view kSep = "sep=";
  const std::size_t size = kSep.size() + 1;
  if (!text.starts_with(kSep) || text.size() <= size || (text[size] != '\r' && text[size] != '\n')) return {};
  const auto delimiter = DelimiterNamed(String(1, text[kSep.size()]));
  if (!delimiter) return {};
  return {delimiter, size + (text.substr(size).starts_with("\r\n") ? 2 : 1)};
}

String SingleQuotes(std::string_view text) {
  String single;
  for (std::size_t i = 0; i < text.size(); ++i) {
    single += text[i];
    if (text[i] == '"') ++i;
  }
  return single;
}

void TakeRow(CsvTable& table, const CsvRows& rows) {
  table.Lines.push_back(rows.Line());
  table.Starts.push_back(table.Cells.size());
  for (const CsvCell& cell : rows.Cells()) {
    if (cell.Doubled) table.Rewritten.push_back(SingleQuotes(cell.Text));
    table.Cells.push_back(WithoutBlanks(cell.Doubled ? table.Rewritten.back() : cell.Text));
  }
}

void TakeRows(CsvTable& table, std::string_view text, std::size_t firstLine) {
  CsvRows rows(text, table.Delimiter, firstLine);
  while (rows.Next()) {
    if (rows.IsBlank()) {
      ++table.BlankRows;
    } else {
      TakeRow(table, rows);
    }
  }
  table.Starts.push_back(table.Cells.size());
}

std::size_t CellsInRow(const CsvTable& table, std::size_t row) { return table.Starts[row + 1] - table.Starts[row]; }

// Up to the last cell that is not empty.
std::size_t FilledCells(const CsvTable& table, std::size_t row) {
  std::size_t count = CellsInRow(table, row);
  while (count > 0 && table.Cell(row, count - 1).empty()) --count;
  return count;
}

// The number of columns: the first row's cells, without those at the end that are empty in all rows. A row may have
// empty cells more, as some programs end every row with a delimiter.
std::size_t WidthOf(const CsvTable& table) {
  std::size_t filled = 0;
  for (std::size_t row = 0; row < table.Rows(); ++row) filled = std::max(filled, FilledCells(table, row));
  const std::size_t width = std::min(CellsInRow(table, 0), filled);
  std::vector<String> ragged;
  for (std::size_t row = 1; row < table.Rows(); ++row) {
    if (CellsInRow(table, row) >= width && FilledCells(table, row) <= CellsInRow(table, 0)) continue;
    ragged.push_back(LineOfRow(table, row) + " (" + ShownName(table.Cell(row, 0)) + ") has " +
                     std::to_string(CellsInRow(table, row)));
  }
  if (ragged.empty()) return width;
  throw ModelFault(LineOfRow(table, 0) + " has " + CountOf(CellsInRow(table, 0), "cell") + ", but " +
                   Enumerated(ragged));
}

bool IsNumberLike(std::string_view cell) { return ReadingsOf(cell).Any(); }

bool HasNumberBelow(const CsvTable& table, std::size_t column) {
  for (std::size_t row = 1; row < table.Rows(); ++row) {
    if (IsNumberLike(table.Cell(row, column))) return true;
  }
  return false;
}

bool FirstRowHolds(const CsvTable& table, std::size_t width, const std::vector<String>& names) {
  return !names.empty() && std::all_of(names.begin(), names.end(), [&](const String& name) {
    for (std::size_t i = 0; i < width; ++i) {
      if (OnOneLine(table.Cell(0, i)) == name) return true;
    }
    return false;
  });
}

// The first row is the header where it holds the names that are asked for, or where each column of numbers has a word
// at its top.
bool FindHeader(const CsvTable& table, std::size_t width, const std::vector<String>& names) {
  if (FirstRowHolds(table, width, names)) return true;
  for (std::size_t i = 0; i < width; ++i) {
    const std::string_view top = table.Cell(0, i);
    if (!IsNumberLike(top) && !(IsMissingText(top) && HasNumberBelow(table, i))) continue;
    throw ModelFault(LineOfRow(table, 0) + " may hold the columns' names or the first values (" + Shown(top) +
                     " in column " + std::to_string(i + 1) + "); say which with --header or --no-header");
  }
  return true;
}

void RefuseSameNames(const std::vector<String>& names) {
  std::unordered_map<std::string_view, std::size_t> seen;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto [first, isNew] = seen.emplace(names[i], i);
    if (isNew) continue;
    throw ModelFault("columns " + std::to_string(first->second + 1) + " and " + std::to_string(i + 1) +
                     " are both called " + Shown(names[i]));
  }
}

void TakeNames(CsvTable& table, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) {
    String name = table.Header ? OnOneLine(table.Cell(0, i)) : String();
    if (name.empty()) {
      name = "Column " + std::to_string(i + 1);
      if (table.Header) table.Unnamed.push_back(i);
    }
    table.Names.push_back(std::move(name));
  }
  RefuseSameNames(table.Names);
  if (!table.Header) return;
  table.Lines.erase(table.Lines.begin());
  table.Starts.erase(table.Starts.begin());
}

void RefuseWorkbook(const std::vector<char>& bytes) {
  if (!std::string_view(bytes.data(), bytes.size()).starts_with("PK\x03\x04")) return;
  throw ModelFault("it is a workbook or an archive; save the sheet as CSV");
}

}  // namespace

CsvTable ReadCsv(std::vector<char> bytes, const CsvOptions& options) {
  RefuseWorkbook(bytes);
  DecodedText decoded = DecodeText(std::move(bytes), options.Encoding);
  CsvTable table;
  table.Encoding = decoded.Encoding;
  table.Text = std::move(decoded.Text);
  std::string_view text(table.Text.data(), table.Text.size());
  if (WithoutBlanks(text).find_first_not_of("\r\n") == std::string_view::npos) throw ModelFault("it is empty");

  const FirstLine beginning = DelimiterLine(text);
  text.remove_prefix(beginning.Size);
  const std::size_t firstLine = beginning.Size == 0 ? 1 : 2;
  const auto told = options.Delimiter ? options.Delimiter : beginning.Delimiter;
  table.Delimiter = told ? *told : FindDelimiter(text, firstLine, options.Columns);
  TakeRows(table, text, firstLine);
  if (table.Rows() == 0) throw ModelFault("it has no rows");

  const std::size_t width = WidthOf(table);
  table.Header = options.Header ? *options.Header : FindHeader(table, width, options.Columns);
  TakeNames(table, width);
  table.MostRows = options.MostRows;
  return table;
}

String LineOfRow(const CsvTable& table, std::size_t row) { return LineText(table.Lines[row]); }

}  // namespace Tarnwise
