#include "project/ImportTable.h"

#include "modelfiles/JsonSection.h"
#include "project/CsvRows.h"
#include "project/NiceRange.h"
#include "project/Shown.h"

#include <algorithm>
#include <unordered_map>

namespace Tarnwise {

namespace {

// What each column of the table becomes.
struct Plan {
  std::size_t Unit = 0;
  std::vector<std::optional<Role>> Roles;  // none for the units' column, and for what is not kept

  std::vector<std::size_t> ColumnsOf(bool used) const {
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < Roles.size(); ++i) {
      if (Roles[i] && (*Roles[i] != Role::Unused) == used) columns.push_back(i);
    }
    return columns;
  }
};

std::vector<String> PartedAtCommas(const String& list) {
  std::vector<String> names;
  for (std::size_t from = 0;;) {
    const std::size_t comma = list.find(',', from);
    names.push_back(OnOneLine(std::string_view(list).substr(from, comma == String::npos ? comma : comma - from)));
    if (comma == String::npos) return names;
    from = comma + 1;
  }
}

std::vector<String> NamesAskedFor(const TableOptions& options) {
  std::vector<String> names = {OnOneLine(options.Unit)};
  for (const auto* lists : {&options.Inputs, &options.Outputs, &options.Unused}) {
    for (const String& list : *lists) {
      for (String& name : PartedAtCommas(list)) names.push_back(std::move(name));
    }
  }
  return names;
}

std::size_t ColumnNamed(const CsvTable& table, const String& name) {
  const auto found = std::find(table.Names.begin(), table.Names.end(), name);
  if (found != table.Names.end()) return static_cast<std::size_t>(found - table.Names.begin());
  const String nearest = NearestName(name, table.Names);
  std::vector<String> names;
  for (const String& column : table.Names) names.push_back(Shown(column));
  throw ModelFault("there is no column " + Shown(name) +
                   (nearest.empty() ? "; there are " + Enumerated(names) : "; did you mean " + Shown(nearest) + "?"));
}

std::vector<std::size_t> ColumnsNamed(const CsvTable& table, const std::vector<String>& lists) {
  std::vector<std::size_t> columns;
  for (const String& list : lists) {
    const String whole = OnOneLine(list);
    if (std::find(table.Names.begin(), table.Names.end(), whole) != table.Names.end()) {
      columns.push_back(ColumnNamed(table, whole));
      continue;
    }
    for (const String& name : PartedAtCommas(list)) columns.push_back(ColumnNamed(table, name));
  }
  return columns;
}

void Assign(Plan& plan, const CsvTable& table, const std::vector<String>& lists, Role role) {
  for (const std::size_t column : ColumnsNamed(table, lists)) {
    const String name = "column " + Shown(table.Names[column]);
    if (column == plan.Unit) throw ModelFault(name + " names the units and can't be " + NameOf(role) + " too");
    if (plan.Roles[column])
      throw ModelFault(name + " is named twice: " + NameOf(*plan.Roles[column]) + " and " + NameOf(role));
    plan.Roles[column] = role;
  }
}

Plan PlanFor(const CsvTable& table, const TableOptions& options) {
  Plan plan;
  plan.Roles.resize(table.Columns());
  plan.Unit = ColumnNamed(table, OnOneLine(options.Unit));
  Assign(plan, table, options.Inputs, Role::Input);
  Assign(plan, table, options.Outputs, Role::Output);
  Assign(plan, table, options.Unused, Role::Unused);
  for (std::size_t i = 0; i < plan.Roles.size() && options.Unused.empty(); ++i) {
    if (i != plan.Unit && !plan.Roles[i]) plan.Roles[i] = Role::Unused;
  }
  return plan;
}

std::vector<String> UnitsOf(const CsvTable& table, std::size_t column) {
  std::vector<String> units;
  std::unordered_map<std::string_view, std::size_t> seen;
  units.reserve(table.Rows());
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    units.push_back(OnOneLine(table.Cell(row, column)));
    if (units.back().empty()) {
      throw ModelFault(LineOfRow(table, row) + ": the unit has no name in " + Shown(table.Names[column]));
    }
    const auto [first, isNew] = seen.emplace(units.back(), row);
    if (isNew) continue;
    throw ModelFault(LineOfRow(table, row) + ": the unit " + Shown(units.back()) + " stands in " +
                     LineOfRow(table, first->second) + " already");
  }
  return units;
}

// The used columns decide on the format; where they have no decimal sign, the unused ones do.
FoundFormat FormatOf(const CsvTable& table, const Plan& plan, const NumberOptions& options) {
  const FoundFormat used = FindFormat(table, plan.ColumnsOf(true), options);
  return used.Seen ? used : FindFormat(table, plan.ColumnsOf(false), options);
}

[[noreturn]] void RefuseUnclear(const CsvTable& table, std::size_t column, const std::vector<std::size_t>& rows,
                                const NumberFormat& format) {
  std::vector<String> cells;
  cells.reserve(rows.size());
  for (const std::size_t row : rows)
    cells.push_back(Shown(table.Cell(row, column)) + " (" + LineOfRow(table, row) + ")");
  throw ModelFault("column " + Shown(table.Names[column]) + ": " + Enumerated(cells) +
                   " can't be read with a decimal " + NameOfSign(format.Decimal) + " and " +
                   (format.Thousands == '\0' ? String("no thousands marks")
                                             : String("the thousands mark ") + NameOfSign(format.Thousands)) +
                   "; say which with --decimal and --thousands, or what is missing with --missing");
}

void ReportUsed(TableReport& report, const CsvTable& table, const std::vector<String>& units, std::size_t column,
                const ColumnNumbers& numbers) {
  if (numbers.Missing > 0) report.Missing.push_back({table.Names[column], numbers.Missing});
  for (const std::size_t row : numbers.Unread) {
    report.Unread.push_back({table.Lines[row], units[row], table.Names[column], String(table.Cell(row, column))});
  }
}

std::vector<std::optional<double>> UsedValues(const CsvTable& table, const std::vector<String>& units,
                                              std::size_t column, const NumberOptions& options, TableReport& report) {
  ColumnNumbers numbers = NumbersOf(table, column, report.Numbers.Format, options.Missing);
  if (!numbers.Unclear.empty()) RefuseUnclear(table, column, numbers.Unclear, report.Numbers.Format);
  if (numbers.Missing + numbers.Unread.size() == table.Rows()) {
    throw ModelFault("column " + Shown(table.Names[column]) + " has no numbers; its first cell is " +
                     Shown(table.Cell(0, column)));
  }
  ReportUsed(report, table, units, column, numbers);
  return std::move(numbers.Values);
}

std::vector<std::optional<double>> UnusedValues(const CsvTable& table, std::size_t column, const NumberOptions& options,
                                                TableReport& report) {
  ColumnNumbers numbers = NumbersOf(table, column, report.Numbers.Format, options.Missing);
  const std::size_t texts = numbers.Unread.size() + numbers.Unclear.size();
  if (texts > 0) report.Texts.push_back({table.Names[column], texts});
  return std::move(numbers.Values);
}

void SetRanges(Project& project, const std::vector<GivenRange>& ranges) {
  for (DataColumn& column : project.Columns) {
    if (column.Role == Role::Unused) continue;
    const ColumnScale scale = RangeFromData(column);
    column.Worst = scale.Worst;
    column.Best = scale.Best;
  }
  for (const GivenRange& range : ranges) {
    const DataColumn* const found = FindColumn(project, range.Column);
    if (found == nullptr || found->Role == Role::Unused) {
      throw ModelFault("the range of " + Shown(range.Column) + " is given, but that is no input and no output");
    }
    DataColumn& column = project.Columns[static_cast<std::size_t>(found - project.Columns.data())];
    column.Worst = range.Worst;
    column.Best = range.Best;
  }
}

TableReport ReportOf(const CsvTable& table, const FoundFormat& format) {
  TableReport report;
  report.Encoding = table.Encoding;
  report.Delimiter = table.Delimiter;
  report.Header = table.Header;
  report.Numbers = format;
  report.Rows = table.Rows();
  report.Columns = table.Columns();
  report.BlankRows = table.BlankRows;
  for (const std::size_t i : table.Unnamed) report.Unnamed.push_back(table.Names[i]);
  return report;
}

}  // namespace

ImportedTable ImportTable(std::vector<char> bytes, const TableOptions& options) {
  CsvOptions csv = options.Csv;
  csv.Columns = NamesAskedFor(options);
  csv.MostRows = CsvOptions().MostRows;
  const CsvTable table = ReadCsv(std::move(bytes), csv);
  const Plan plan = PlanFor(table, options);
  if (table.Rows() == 0) throw ModelFault("there are no rows below the names of the columns");
  ImportedTable imported;
  imported.Project.Units = UnitsOf(table, plan.Unit);
  imported.Report = ReportOf(table, FormatOf(table, plan, options.Numbers));
  for (std::size_t i = 0; i < table.Columns(); ++i) {
    if (!plan.Roles[i]) continue;
    DataColumn column;
    column.Name = table.Names[i];
    column.Role = *plan.Roles[i];
    column.Values = column.Role == Role::Unused
                        ? UnusedValues(table, i, options.Numbers, imported.Report)
                        : UsedValues(table, imported.Project.Units, i, options.Numbers, imported.Report);
    imported.Project.Columns.push_back(std::move(column));
  }
  SetRanges(imported.Project, options.Ranges);
  return imported;
}

ColumnScale RangeFromData(const DataColumn& column) {
  std::optional<Range> data;
  for (const auto& value : column.Values) {
    if (!value) continue;
    if (!data) data = Range{*value, *value};
    data->Low = std::min(data->Low, *value);
    data->High = std::max(data->High, *value);
  }
  const Range range = NiceRange(data->Low, data->High);
  if (column.Role == Role::Input) return {range.High, range.Low, {}};
  return {range.Low, range.High, {}};
}

}  // namespace Tarnwise
