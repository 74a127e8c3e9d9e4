// The numbers in the columns of a table.
#pragma once

#include "project/Csv.h"

namespace Tarnwise {

struct NumberOptions {
  std::optional<char> Decimal;
  std::optional<char> Thousands;
  std::vector<String> Missing;  // further texts that stand for a missing value, besides those of IsMissingText
};

struct FoundFormat {
  NumberFormat Format;
  bool Seen = false;  // whether any number has a decimal sign; without one the format is that of the point
};

// The format in which the cells of these columns are numbers, in all rows of the file. Where none is told, the decimal
// sign follows from the cells: "1.5" has a point, "1.234,5" a comma. Cells of both kinds are a ModelFault, and so is
// "1.234" where nothing else tells; only where the comma separates cells it has a decimal point. Thousands marks are
// never found, only told.
FoundFormat FindFormat(const CsvTable& table, const std::vector<std::size_t>& columns, const NumberOptions& options);

struct ColumnNumbers {
  std::vector<std::optional<double>> Values;  // one a row, up to the table's cut
  std::size_t Missing = 0;
  std::vector<std::size_t> Unread;   // rows whose text is no number
  std::vector<std::size_t> Unclear;  // and those whose text is one, but not in this format
};

ColumnNumbers NumbersOf(const CsvTable& table, std::size_t column, const NumberFormat& format,
                        const std::vector<String>& missing);

// "point", "comma", and of the other thousands marks "blank" and "apostrophe". Or the sign itself.
const char* NameOfSign(char sign);
std::optional<char> SignNamed(const String& name);

}  // namespace Tarnwise
