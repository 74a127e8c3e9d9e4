// The tokenizer of CSV text: rows and their cells, nothing known about what they mean.
#pragma once

#include <tarnwise/Scalars.h>

#include <string_view>
#include <vector>

namespace Tarnwise {

struct CsvCell {
  std::string_view Text;  // without the quotes around it
  bool Doubled = false;   // doubled quotes stand in it, for one quote each
};

// Walks through UTF-8 text. A row ends with a line feed, a carriage return or both. A cell whose first character,
// blanks aside, is a double quote goes on to the closing one, over delimiters and line ends; quotes elsewhere are
// characters like others. What is neither blank nor delimiter nor line end behind a closing quote is a ModelFault with
// its line, and so is a quote that is never closed.
class CsvRows {
 public:
  CsvRows(std::string_view text, char delimiter, std::size_t firstLine = 1)
      : text_(text), delimiter_(delimiter), nextLine_(firstLine) {}

  bool Next();  // false behind the last row
  const std::vector<CsvCell>& Cells() const { return cells_; }
  std::size_t Line() const { return line_; }  // in which the row begins, as an editor counts
  bool IsBlank() const;                       // no cell holds more than blanks

 private:
  CsvCell ReadCell();
  CsvCell ReadQuoted();
  std::size_t SkipBlanks(std::size_t i) const;
  bool AtLineEnd() const { return text_[at_] == '\n' || text_[at_] == '\r'; }
  void TakeLineEnd();

  std::string_view text_;
  char delimiter_;
  std::size_t at_ = 0;
  std::size_t nextLine_;
  std::size_t line_ = 0;
  std::vector<CsvCell> cells_;
};

// Without blanks at either end, those included that are no ASCII (the no-break ones above all).
std::string_view WithoutBlanks(std::string_view text);

// A name as it is kept: without blanks at its ends, and within it one blank for any row of blanks and line ends.
String OnOneLine(std::string_view name);

// What a cell of CSV text has to look like to be read as this text again.
String CsvCellText(std::string_view text, char delimiter);

}  // namespace Tarnwise
