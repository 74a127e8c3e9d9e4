#include "project/CsvNumbers.h"

#include "modelfiles/WholeFile.h"
#include "project/Shown.h"

#include <algorithm>

namespace Tarnwise {

namespace {

bool IsMissing(std::string_view cell, const std::vector<String>& more) {
  return IsMissingText(cell) || std::find(more.begin(), more.end(), cell) != more.end();
}

// What the cells tell of the decimal sign; each the first such cell, as it is named in a message.
struct Evidence {
  String Point;         // "1.5"
  String Comma;         // "1,5"
  String UnclearPoint;  // "1.234"
  String UnclearComma;  // "1,234"
  bool Any() const { return !(Point + Comma + UnclearPoint + UnclearComma).empty(); }
};

String CellInMessage(const CsvTable& table, std::size_t row, std::size_t column) {
  return Shown(table.Cell(row, column)) + " (" + LineOfRow(table, row) + ", " + ShownName(table.Names[column]) + ")";
}

void Keep(String& first, const CsvTable& table, std::size_t row, std::size_t column) {
  if (first.empty()) first = CellInMessage(table, row, column);
}

void Weigh(Evidence& evidence, const CsvTable& table, std::size_t row, std::size_t column) {
  const std::string_view cell = table.Cell(row, column);
  const bool point = cell.find('.') != std::string_view::npos;
  const bool comma = cell.find(',') != std::string_view::npos;
  // What would only say again what is known.
  if ((!point && !comma) || (!comma && !evidence.Point.empty()) || (!point && !evidence.Comma.empty())) return;
  const NumberReadings readings = ReadingsOf(cell);
  if (readings.Point && !readings.Comma) Keep(evidence.Point, table, row, column);
  if (readings.Comma && !readings.Point) Keep(evidence.Comma, table, row, column);
  if (readings.Differ()) Keep(point ? evidence.UnclearPoint : evidence.UnclearComma, table, row, column);
}

[[noreturn]] void RefuseBoth(const String& point, const String& comma) {
  throw ModelFault("the decimal sign is unclear: it is the point in " + point + " and the comma in " + comma +
                   "; say which with --decimal");
}

char DecimalOf(const Evidence& evidence, char delimiter) {
  if (!evidence.Point.empty() && !evidence.Comma.empty()) RefuseBoth(evidence.Point, evidence.Comma);
  if (!evidence.Point.empty()) return '.';
  if (!evidence.Comma.empty()) return ',';
  if (evidence.UnclearComma.empty() && (evidence.UnclearPoint.empty() || delimiter == ',')) return '.';
  if (!evidence.UnclearPoint.empty() && !evidence.UnclearComma.empty()) {
    RefuseBoth(evidence.UnclearPoint, evidence.UnclearComma);
  }
  const bool comma = !evidence.UnclearComma.empty();
  throw ModelFault("the decimal sign is unclear: " + (comma ? evidence.UnclearComma : evidence.UnclearPoint) +
                   " may have decimals or thousands; say --decimal " + (comma ? "comma" : "point") +
                   " or --thousands " + (comma ? "comma" : "point"));
}

}  // namespace

FoundFormat FindFormat(const CsvTable& table, const std::vector<std::size_t>& columns, const NumberOptions& options) {
  Evidence evidence;
  for (const std::size_t column : columns) {
    for (std::size_t row = 0; row < table.RowsInFile(); ++row) {
      if (IsMissing(table.Cell(row, column), options.Missing)) continue;
      Weigh(evidence, table, row, column);
    }
  }
  FoundFormat found;
  found.Seen = evidence.Any();
  found.Format.Thousands = options.Thousands.value_or('\0');
  if (options.Decimal) {
    found.Format.Decimal = *options.Decimal;
  } else if (found.Format.Thousands == '.' || found.Format.Thousands == ',') {
    found.Format.Decimal = found.Format.Thousands == '.' ? ',' : '.';
  } else {
    found.Format.Decimal = DecimalOf(evidence, table.Delimiter);
  }
  if (found.Format.Decimal == found.Format.Thousands) {
    throw ModelFault(String("the ") + NameOfSign(found.Format.Decimal) + " can't be both --decimal and --thousands");
  }
  return found;
}

ColumnNumbers NumbersOf(const CsvTable& table, std::size_t column, const NumberFormat& format,
                        const std::vector<String>& missing) {
  ColumnNumbers numbers;
  numbers.Values.resize(table.Rows());
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    const std::string_view cell = table.Cell(row, column);
    if (IsMissing(cell, missing)) {
      ++numbers.Missing;
    } else if (const auto number = NumberIn(cell, format)) {
      numbers.Values[row] = number;
    } else {
      (ReadingsOf(cell).Any() ? numbers.Unclear : numbers.Unread).push_back(row);
    }
  }
  return numbers;
}

const char* NameOfSign(char sign) {
  switch (sign) {
    case '.': return "point";
    case ',': return "comma";
    case ' ': return "blank";
    case '\'': return "apostrophe";
    default: return "none";
  }
}

std::optional<char> SignNamed(const String& name) {
  for (const char sign : {'.', ',', ' ', '\''}) {
    if (name == NameOfSign(sign) || name == String(1, sign)) return sign;
  }
  return std::nullopt;
}

}  // namespace Tarnwise
