#include "project/CsvRows.h"

#include "modelfiles/WholeFile.h"
#include "project/Shown.h"

#include <algorithm>
#include <array>

namespace Tarnwise {

namespace {

// Besides blank and tab: no-break, thin and narrow no-break space, and the mark that some programs leave behind.
constexpr std::array<std::string_view, 6> kBlanks = {" ",           "\t", "\xC2\xA0", "\xE2\x80\x89", "\xE2\x80\xAF",
                                                     "\xEF\xBB\xBF"};

}  // namespace

bool CsvRows::Next() {
  if (at_ == text_.size()) return false;
  cells_.clear();
  line_ = nextLine_;
  for (;;) {
    cells_.push_back(ReadCell());
    if (at_ == text_.size()) return true;
    if (AtLineEnd()) break;
    ++at_;  // the delimiter; behind one at the end of the text stands an empty cell
  }
  TakeLineEnd();
  return true;
}

bool CsvRows::IsBlank() const {
  return std::all_of(cells_.begin(), cells_.end(),
                     [](const CsvCell& cell) { return WithoutBlanks(cell.Text).empty(); });
}

CsvCell CsvRows::ReadCell() {
  const std::size_t start = SkipBlanks(at_);
  if (start < text_.size() && text_[start] == '"') {
    at_ = start + 1;
    return ReadQuoted();
  }
  const std::size_t from = at_;
  while (at_ < text_.size() && text_[at_] != delimiter_ && !AtLineEnd()) ++at_;
  return {text_.substr(from, at_ - from), false};
}

CsvCell CsvRows::ReadQuoted() {
  CsvCell cell;
  const std::size_t from = at_;
  const std::size_t opened = nextLine_;
  for (;; ++at_) {
    if (at_ == text_.size()) {
      throw ModelFault("line " + std::to_string(opened) + ": the quote before " + Shown(text_.substr(from)) +
                       " is never closed");
    }
    if (text_[at_] == '"') {
      if (at_ + 1 == text_.size() || text_[at_ + 1] != '"') break;
      cell.Doubled = true;
      ++at_;
    } else if (AtLineEnd()) {
      TakeLineEnd();
      --at_;
    }
  }
  cell.Text = text_.substr(from, at_ - from);
  at_ = SkipBlanks(at_ + 1);
  if (at_ < text_.size() && text_[at_] != delimiter_ && !AtLineEnd()) {
    throw ModelFault("line " + std::to_string(nextLine_) + ": behind the closing quote of " + Shown(cell.Text) +
                     " stands " + Shown(text_.substr(at_)));
  }
  return cell;
}

std::size_t CsvRows::SkipBlanks(std::size_t i) const {
  while (i < text_.size() && (text_[i] == ' ' || text_[i] == '\t') && text_[i] != delimiter_) ++i;
  return i;
}

void CsvRows::TakeLineEnd() {
  const bool pair = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
  at_ += pair ? 2 : 1;
  ++nextLine_;
}

std::string_view WithoutBlanks(std::string_view text) {
  const auto isLetter = [](char c) { return c > ' ' && c < '\x7F'; };
  if (!text.empty() && isLetter(text.front()) && isLetter(text.back())) return text;
  const auto trimOnce = [&text] {
    for (const std::string_view blank : kBlanks) {
      if (text.starts_with(blank)) {
        text.remove_prefix(blank.size());
        return true;
      }
      if (text.ends_with(blank)) {
        text.remove_suffix(blank.size());
        return true;
      }
    }
    return false;
  };
  while (!text.empty() && trimOnce()) {
  }
  return text;
}

String OnOneLine(std::string_view name) {
  String line;
  for (const char c : name) {
    const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
    if (!blank) {
      line += c;
    } else if (!line.ends_with(' ')) {
      line += ' ';
    }
  }
  return String(WithoutBlanks(line));
}

String CsvCellText(std::string_view text, char delimiter) {
  const bool plain = !text.empty() && WithoutBlanks(text).size() == text.size() && text.front() != '"' &&
                     !text.starts_with("sep=") &&
                     text.find_first_of(String("\r\n") + delimiter) == std::string_view::npos;
  if (plain) return String(text);
  String quoted = "\"";
  for (const char c : text) quoted += c == '"' ? String("\"\"") : String(1, c);
  return quoted + '"';
}

}  // namespace Tarnwise
