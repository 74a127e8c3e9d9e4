#include "project/CsvText.h"

#include "project/NumberText.h"

#include <cmath>

namespace Tarnwise {

namespace {

bool WantsQuotes(const String& text) {
  if (text.empty()) return false;
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  return text.find_first_of(",;\"\r\n") != String::npos || isBlank(text.front()) || isBlank(text.back());
}

String InQuotes(const String& text) {
  String quoted = "\"";
  for (const char c : text) quoted += c == '"' ? String("\"\"") : String(1, c);
  return quoted + '"';
}

}  // namespace

CsvRow& CsvRow::Text(const String& text) {
  cells_.push_back(WantsQuotes(text) ? InQuotes(text) : text);
  return *this;
}

CsvRow& CsvRow::Number(const std::optional<double>& number) {
  cells_.push_back(number && std::isfinite(*number) ? ShortestText(*number + 0.0) : String());
  return *this;
}

CsvRow& CsvRow::Whole(const std::optional<int>& number) {
  cells_.push_back(number ? std::to_string(*number) : String());
  return *this;
}

void CsvRow::PutTo(String& out) {
  const char* before = "";
  for (const String& cell : cells_) {
    out += before;
    out += cell;
    before = ",";
  }
  out += '\n';
  cells_.clear();
}

}  // namespace Tarnwise
