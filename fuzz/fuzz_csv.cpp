// Any bytes as a CSV file; the first one says which options are told. What was read is written in plain CSV and read
// again, a preview is the same table cut, and a project made of it stands in its file as it is.
#include "Expect.h"
#include "modelfiles/WholeFile.h"
#include "project/CsvRows.h"
#include "project/ImportTable.h"
#include "project/ProjectChecks.h"
#include "project/ProjectFile.h"

#include <cmath>
#include <cstdlib>

namespace Tarnwise {
namespace {

// The table, or the fault that is said instead; anything else that is thrown ends the run.
std::optional<CsvTable> Read(const String& text, const CsvOptions& options, String& fault) {
  try {
    return ReadCsv({text.begin(), text.end()}, options);
  } catch (const ModelFault& said) {
    fault = said.what();
    Expect(!fault.empty(), "refused without a word");
    return std::nullopt;
  }
}

CsvOptions OptionsOf(unsigned choice) {
  CsvOptions options;
  if ((choice & 1U) != 0) options.Header = (choice & 2U) != 0;
  if ((choice & 4U) != 0) options.Delimiter = ",;\t|"[choice >> 3U & 3U];
  if ((choice & 32U) != 0) options.Encoding = (choice & 64U) != 0 ? TextEncoding::Windows1252 : TextEncoding::Utf16Le;
  return options;
}

void CheckTable(const CsvTable& table) {
  Expect(table.Columns() > 0, "no columns");
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    bool blank = true;
    for (std::size_t i = 0; i < table.Columns(); ++i) {
      const std::string_view cell = table.Cell(row, i);
      Expect(WithoutBlanks(cell).size() == cell.size(), "blanks around a cell");
      blank = blank && cell.empty();
    }
    Expect(!blank, "an empty row");
    Expect(row == 0 || table.Lines[row - 1] < table.Lines[row], "lines that do not ascend");
  }
}

bool SameRow(const CsvTable& a, const CsvTable& b, std::size_t row) {
  for (std::size_t i = 0; i < a.Columns(); ++i) {
    if (a.Cell(row, i) != b.Cell(row, i)) return false;
  }
  return true;
}

void CheckRewritten(const CsvTable& table) {
  String text;
  for (std::size_t i = 0; i < table.Columns(); ++i) text += (i == 0 ? "" : ",") + CsvCellText(table.Names[i], ',');
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    for (std::size_t i = 0; i < table.Columns(); ++i) {
      text += (i == 0 ? "\n" : ",") + CsvCellText(table.Cell(row, i), ',');
    }
  }
  CsvOptions options;
  options.Encoding = TextEncoding::Utf8;
  options.Delimiter = ',';
  options.Header = true;
  String fault;
  const auto again = Read(text, options, fault);
  Expect(again.has_value(), "written and refused: " + fault);
  Expect(again->Names == table.Names, "written and read with other names");
  Expect(again->Rows() == table.Rows(), "written and read with another number of rows");
  for (std::size_t row = 0; row < table.Rows(); ++row)
    Expect(SameRow(table, *again, row), "written and read otherwise");
}

void CheckPreview(const String& text, CsvOptions options, const CsvTable& table) {
  options.MostRows = 1;
  String fault;
  const auto preview = Read(text, options, fault);
  Expect(preview.has_value(), "refused in the preview only: " + fault);
  Expect(preview->Names == table.Names && preview->RowsInFile() == table.Rows(), "the preview is of another table");
  Expect(preview->Rows() == std::min<std::size_t>(table.Rows(), 1), "the preview is longer than it should be");
  if (preview->Rows() == 1) Expect(SameRow(table, *preview, 0), "the preview's row is another");
}

// Whatever is read as a number is the one that the C library makes of it.
void CheckNumbers(const CsvTable& table) {
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    const String cell(table.Cell(row, table.Columns() - 1));
    const auto number = NumberIn(cell, {});
    if (number)
      Expect(std::isfinite(*number) && *number == std::strtod(cell.c_str(), nullptr), "read as a number: " + cell);
    if (number) Expect(NumberIn(ShortestText(*number), {}) == number, "shortened to another number: " + cell);
    const NumberReadings readings = ReadingsOf(cell);
    if (number) Expect(readings.Point == number, "another reading of " + cell);
  }
}

void CheckImport(const String& text, const CsvOptions& csv, const CsvTable& table) {
  TableOptions options;
  options.Csv = csv;
  options.Csv.Header = table.Header;
  options.Csv.Delimiter = table.Delimiter;
  options.Unit = table.Names.front();
  options.Inputs = {table.Names.back()};
  try {
    const ImportedTable imported = ImportTable({text.begin(), text.end()}, options);
    CheckRecords(imported.Project);
    Expect(ProjectFromText(ProjectText(imported.Project)) == imported.Project, "imported, and read otherwise");
  } catch (const ModelFault&) {
    return;
  }
}

}  // namespace
}  // namespace Tarnwise

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace Tarnwise;
  if (size == 0) return 0;
  const CsvOptions options = OptionsOf(bytes[0]);
  const String text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  String fault;
  const auto table = Read(text, options, fault);
  if (!table) return 0;
  CheckTable(*table);
  CheckRewritten(*table);
  CheckPreview(text, options, *table);
  CheckNumbers(*table);
  CheckImport(text, options, *table);
  return 0;
}
