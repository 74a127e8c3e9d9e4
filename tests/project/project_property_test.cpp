// Random tables and projects.
#include "Hospitals.h"
#include "project/CsvRows.h"
#include "project/ImportTable.h"
#include "project/NiceRange.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace Tarnwise {
namespace {

int Whole(int from, int to) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(from, to + 1)); }

double AnyNumber() {
  const double number = Whole(-1000000, 1000000) / 1000.0;
  switch (Whole(0, 4)) {
    case 0: return std::floor(number);
    case 1: return number * 1e12;
    case 2: return number * 1e-12;
    case 3: return number / 7.0;
    default: return number;
  }
}

template <class T>
const T& OneOf(const std::vector<T>& items) {
  return items[static_cast<std::size_t>(Whole(0, static_cast<int>(items.size()) - 1))];
}

String AnyName(const String& end) {
  static const std::vector<String> kBeginnings = {
      "Ward", "a,b", "a;b", "\"quoted\"", "5\" pipe", "M\xC3\xBCnchen", "NA", "two words", "1.5", "a\tb", "x|y", "'"};
  return OneOf(kBeginnings) + " " + end;
}

Project AnyProject() {
  Project project;
  const int units = Whole(1, 6);
  for (int i = 0; i < units; ++i) project.Units.push_back(AnyName(std::to_string(i)));
  const int columns = Whole(1, 5);
  for (int i = 0; i < columns; ++i) {
    DataColumn column;
    column.Name = AnyName("column " + std::to_string(i));
    column.Role = i % 2 == 0 ? Role::Input : Role::Output;
    for (int k = 0; k < units; ++k) {
      const bool missing = k > 0 && Whole(0, 5) == 0;
      column.Values.push_back(missing ? std::nullopt : std::optional<double>(AnyNumber()));
    }
    const ColumnScale range = RangeFromData(column);
    column.Worst = range.Worst;
    column.Best = range.Best;
    project.Columns.push_back(std::move(column));
  }
  return project;
}

RC_GTEST_PROP(AnyProject, IsReadAsItWasWritten, ()) {
  const Project project = AnyProject();
  const String text = ProjectText(project);
  RC_ASSERT(ProjectFromText(text) == project);
  RC_ASSERT(ProjectText(ProjectFromText(text)) == text);
}

struct Style {
  char Delimiter = ',';
  char Decimal = '.';
  String LineEnd = "\n";
  bool Quotes = false;
  bool Utf16 = false;
};

Style AnyStyle() {
  Style style;
  style.Delimiter = OneOf(std::vector<char>{',', ';', '\t', '|'});
  style.Decimal = OneOf(std::vector<char>{'.', ','});
  style.LineEnd = OneOf(std::vector<String>{"\n", "\r\n", "\r"});
  style.Quotes = Whole(0, 1) == 1;
  style.Utf16 = Whole(0, 1) == 1;
  return style;
}

String Cell(const String& text, const Style& style) {
  if (!style.Quotes) return CsvCellText(text, style.Delimiter);
  String quoted = "\"";
  for (const char c : text) quoted += c == '"' ? String("\"\"") : String(1, c);
  return quoted + "\"";
}

String NumberCell(const std::optional<double>& number, const Style& style) {
  if (!number) return Cell(OneOf(std::vector<String>{"", "NA", "?", "-"}), style);
  String text = ShortestText(*number);
  std::replace(text.begin(), text.end(), '.', style.Decimal);
  return Cell(text, style);
}

String Table(const Project& project, const Style& style) {
  String text = "Unit";
  for (const DataColumn& column : project.Columns) text += style.Delimiter + Cell(column.Name, style);
  for (std::size_t i = 0; i < project.Units.size(); ++i) {
    text += style.LineEnd + Cell(project.Units[i], style);
    for (const DataColumn& column : project.Columns) text += style.Delimiter + NumberCell(column.Values[i], style);
  }
  return text + style.LineEnd;
}

std::vector<char> Encoded(const String& text, const Style& style) {
  if (!style.Utf16) return {text.begin(), text.end()};
  std::vector<char> bytes = {'\xFF', '\xFE'};
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto unit = static_cast<unsigned char>(text[i]);
    if (unit >= 0xC0)
      unit = static_cast<unsigned char>(((unit & 3U) << 6U) | (static_cast<unsigned>(text[++i]) & 0x3FU));
    bytes.push_back(static_cast<char>(unit));
    bytes.push_back('\0');
  }
  return bytes;
}

RC_GTEST_PROP(AnyTable, GivesTheProjectThatItWasMadeOf, ()) {
  const Project project = AnyProject();
  const Style style = AnyStyle();
  TableOptions options;
  options.Unit = "Unit";
  for (const DataColumn& column : project.Columns) {
    const String name = OnOneLine(column.Name);
    (column.Role == Role::Input ? options.Inputs : options.Outputs).push_back(name);
  }
  options.Csv.Delimiter = style.Delimiter;
  options.Csv.Header = true;
  options.Numbers.Decimal = style.Decimal;
  ImportedTable imported = ImportTable(Encoded(Table(project, style), style), options);
  RC_ASSERT(imported.Report.Unread.empty());
  RC_ASSERT(imported.Project.Units.size() == project.Units.size());
  for (std::size_t i = 0; i < project.Units.size(); ++i) {
    RC_ASSERT(imported.Project.Units[i] == OnOneLine(project.Units[i]));
  }
  for (std::size_t i = 0; i < project.Columns.size(); ++i) {
    imported.Project.Columns[i].Name = project.Columns[i].Name;
    RC_ASSERT(imported.Project.Columns[i] == project.Columns[i]);
  }
}

// With names that hold no delimiter there is nothing to tell.
RC_GTEST_PROP(AnyTable, TellsDelimiterAndHeaderItself, ()) {
  Project project = AnyProject();
  const Style style = AnyStyle();
  TableOptions told;
  told.Unit = "Unit";
  for (std::size_t i = 0; i < project.Units.size(); ++i) project.Units[i] = "Ward " + std::to_string(i);
  for (std::size_t i = 0; i < project.Columns.size(); ++i) {
    project.Columns[i].Name = "Column of " + std::to_string(i);
    told.Inputs.push_back(project.Columns[i].Name);
  }
  told.Numbers.Decimal = style.Decimal;
  TableOptions all = told;
  all.Csv.Delimiter = style.Delimiter;
  all.Csv.Header = true;
  const std::vector<char> bytes = Encoded(Table(project, style), style);
  RC_ASSERT(ImportTable(bytes, told).Project == ImportTable(bytes, all).Project);
}

RC_GTEST_PROP(AnyRange, LiesAroundItsDataByATenthToAFifthAtMost, ()) {
  const double a = AnyNumber();
  const double b = AnyNumber();
  const double low = std::fmin(a, b);
  const double high = std::fmax(a, b);
  const Range range = NiceRange(low, high);
  const double span = low == high ? std::fmax(std::fabs(low), 10.0) : high - low;
  RC_ASSERT(range.Low < low || (low == 0.0 && range.Low == 0.0));
  RC_ASSERT(range.High > high || (high == 0.0 && range.High == 0.0));
  RC_ASSERT(range.Low >= low - 0.2500001 * span);
  RC_ASSERT(range.High <= high + 0.2500001 * span);
  RC_ASSERT((low < 0.0) == (range.Low < 0.0));
}

}  // namespace
}  // namespace Tarnwise
