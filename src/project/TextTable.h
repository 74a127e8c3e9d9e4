// Tables for a terminal, or for whoever reads a file with letters of one width.
#pragma once

#include <tarnwise/Scalars.h>

#include <string_view>
#include <vector>

namespace Tarnwise {

// How many columns of a terminal the text takes: two for wide letters, none for combining marks and what only joins.
int TextWidth(std::string_view text);

enum class Ink { Plain, Strong, Good, Faint };

struct TableCell {
  String Text;
  enum Ink Ink = Ink::Plain;
};

using TableRow = std::vector<TableCell>;

// The rows with their cells one below the other, three blanks between them, nothing behind the last one. With colours
// by the control sequences that terminals know; their text is the same.
String TableText(const std::vector<TableRow>& rows, bool colours);

// The text in that ink.
String Inked(const TableCell& cell, bool colours);

}  // namespace Tarnwise
