#include "project/TextTable.h"

#include <algorithm>
#include <iterator>

namespace Tarnwise {

namespace {

struct CharacterRange {
  char32_t First;
  char32_t Last;
};

#include "project/TextWidths.inc"

template <std::size_t N>
bool IsIn(const CharacterRange (&ranges)[N], char32_t character) {
  const auto* const after =
      std::upper_bound(std::begin(ranges), std::end(ranges), character,
                       [](char32_t wanted, const CharacterRange& range) { return wanted < range.First; });
  return after != std::begin(ranges) && character <= std::prev(after)->Last;
}

// The character that the text begins with, taken off it. What is no valid UTF-8 counts byte by byte.
char32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  char32_t character = more == 0 ? lead : lead & (0x3FU >> more);
  for (; more > 0 && !text.empty() && (static_cast<unsigned char>(text.front()) & 0xC0U) == 0x80U; --more) {
    character = (character << 6U) | (static_cast<unsigned char>(text.front()) & 0x3FU);
    text.remove_prefix(1);
  }
  return character;
}

const char* Sequence(Ink ink) {
  switch (ink) {
    case Ink::Plain: return "";
    case Ink::Strong: return "\x1B[1m";
    case Ink::Good: return "\x1B[32m";
    case Ink::Faint: return "\x1B[2m";
  }
  return "";
}

std::vector<int> WidthsOf(const std::vector<TableRow>& rows) {
  std::vector<int> widths;
  for (const TableRow& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], TextWidth(row[i].Text));
  }
  return widths;
}

}  // namespace

int TextWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character >= 0x300 && IsIn(kZeroWidth, character)) continue;
    width += character >= 0x1100 && IsIn(kTwoWide, character) ? 2 : 1;
  }
  return width;
}

String Inked(const TableCell& cell, bool colours) {
  if (!colours || cell.Ink == Ink::Plain || cell.Text.empty()) return cell.Text;
  return Sequence(cell.Ink) + cell.Text + "\x1B[0m";
}

String TableText(const std::vector<TableRow>& rows, bool colours) {
  constexpr int kBetween = 3;
  const std::vector<int> widths = WidthsOf(rows);
  String text;
  for (const TableRow& row : rows) {
    int blanks = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (!row[i].Text.empty()) {
        text.append(static_cast<std::size_t>(blanks), ' ');
        text += Inked(row[i], colours);
        blanks = -TextWidth(row[i].Text);
      }
      blanks += widths[i] + kBetween;
    }
    text += '\n';
  }
  return text;
}

}  // namespace Tarnwise
