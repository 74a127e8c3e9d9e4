// Rows of a CSV file that every program reads: commas between cells, points in numbers, a line feed at the end.
#pragma once

#include <tarnwise/Scalars.h>

#include <optional>
#include <vector>

namespace Tarnwise {

class CsvRow {
 public:
  CsvRow& Text(const String& text);                     // in quotes where it has to be
  CsvRow& Number(const std::optional<double>& number);  // its fewest digits; empty where there is none
  CsvRow& Whole(const std::optional<int>& number);

  // The row behind the text; the next one begins.
  void PutTo(String& out);

 private:
  std::vector<String> cells_;
};

}  // namespace Tarnwise
