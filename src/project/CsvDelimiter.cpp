#include "project/CsvDelimiter.h"

#include "modelfiles/WholeFile.h"
#include "project/CsvRows.h"
#include "project/NumberText.h"
#include "project/Shown.h"

#include <algorithm>
#include <array>

namespace Tarnwise {

namespace {

struct Named {
  char Sign;
  const char* Name;
};
constexpr std::array<Named, 4> kCandidates = {
    {{',', "comma"}, {';', "semicolon"}, {'\t', "tab"}, {'|', "vertical bar"}}};

// A candidate and the table that it would make.
struct Trial {
  char Sign = ',';
  std::size_t Width = 0;   // of the first row
  std::size_t Widest = 0;  // of any row
  bool Even = true;        // all rows are as wide
  bool HasNames = false;   // all that were asked for stand in the first row
  // Columns whose cells are numbers or missing, and others; the first row aside.
  std::size_t Numeric = 0;
  std::size_t Other = 0;

  bool Beats(const Trial& other) const {
    return Numeric >= other.Numeric && Other <= other.Other && (Numeric > other.Numeric || Other < other.Other);
  }
};

bool HoldsAll(const std::vector<CsvCell>& cells, const std::vector<String>& names) {
  return !names.empty() && std::all_of(names.begin(), names.end(), [&cells](const String& name) {
    return std::any_of(cells.begin(), cells.end(),
                       [&name](const CsvCell& cell) { return OnOneLine(cell.Text) == name; });
  });
}

Trial Try(std::string_view text, std::size_t firstLine, const std::vector<String>& names, char sign) {
  Trial trial;
  trial.Sign = sign;
  CsvRows rows(text, sign, firstLine);
  try {
    while (rows.Next()) {
      const std::size_t width = rows.Cells().size();
      if (rows.IsBlank()) continue;
      if (trial.Width == 0) {
        trial.Width = width;
        trial.HasNames = HoldsAll(rows.Cells(), names);
      }
      trial.Even = trial.Even && width == trial.Width;
      trial.Widest = std::max(trial.Widest, width);
    }
  } catch (const ModelFault&) {
    trial.Even = false;  // if this is the delimiter all the same, reading the rows says what is wrong
  }
  return trial;
}

void CountColumns(std::string_view text, Trial& trial) {
  std::vector<bool> numeric(trial.Width, true);
  CsvRows rows(text, trial.Sign);
  for (bool first = true; rows.Next();) {
    if (rows.IsBlank()) continue;
    for (std::size_t i = 0; !first && i < trial.Width; ++i) {
      const std::string_view cell = WithoutBlanks(rows.Cells()[i].Text);
      if (numeric[i] && !IsMissingText(cell) && !ReadingsOf(cell).Any()) numeric[i] = false;
    }
    first = false;
  }
  trial.Numeric = static_cast<std::size_t>(std::count(numeric.begin(), numeric.end(), true));
  trial.Other = trial.Width - trial.Numeric;
}

template <class Condition>
std::vector<Trial> Those(const std::vector<Trial>& trials, Condition condition) {
  std::vector<Trial> chosen;
  std::copy_if(trials.begin(), trials.end(), std::back_inserter(chosen), condition);
  return chosen;
}

[[noreturn]] void RefuseAsUnclear(const std::vector<Trial>& trials) {
  std::vector<String> readings;
  readings.reserve(trials.size());
  for (const Trial& t : trials) readings.push_back(NameOfDelimiter(t.Sign) + " (" + CountOf(t.Width, "column") + ")");
  throw ModelFault("what separates the cells is unclear: " + Enumerated(readings, " or ") +
                   "? Say which with --delimiter");
}

// The one that beats all others.
char Best(std::string_view text, std::vector<Trial> trials) {
  for (Trial& trial : trials) CountColumns(text, trial);
  for (const Trial& trial : trials) {
    const bool best = std::all_of(trials.begin(), trials.end(), [&trial](const Trial& other) {
      return other.Sign == trial.Sign || trial.Beats(other);
    });
    if (best) return trial.Sign;
  }
  RefuseAsUnclear(trials);
}

}  // namespace

String NameOfDelimiter(char delimiter) {
  for (const Named& candidate : kCandidates) {
    if (candidate.Sign == delimiter) return candidate.Name;
  }
  return Shown(String(1, delimiter));
}

std::optional<char> DelimiterNamed(const String& name) {
  for (const Named& candidate : kCandidates) {
    if (name == candidate.Name) return candidate.Sign;
  }
  if (name == "bar" || name == "pipe") return '|';
  if (name == "\\t" || name == "\t") return '\t';
  constexpr std::string_view kSigns = ",;|:!#$%&*/=@\\^_~";
  if (name.size() == 1 && kSigns.find(name[0]) != std::string_view::npos) return name[0];
  return std::nullopt;
}

char FindDelimiter(std::string_view text, std::size_t firstLine, const std::vector<String>& names) {
  std::vector<Trial> trials;
  for (const Named& candidate : kCandidates) {
    if (text.find(candidate.Sign) != std::string_view::npos) {
      trials.push_back(Try(text, firstLine, names, candidate.Sign));
    }
  }
  trials = Those(trials, [](const Trial& t) { return t.Widest > 1 || t.Width == 0; });
  const auto named = Those(trials, [](const Trial& t) { return t.HasNames && t.Width > 1; });
  if (named.size() == 1) return named[0].Sign;
  const auto even = Those(trials, [](const Trial& t) { return t.Even && t.Width > 1; });
  if (even.size() == 1) return even[0].Sign;
  if (even.size() > 1) return Best(text, even);
  const auto inFirstRow = Those(trials, [](const Trial& t) { return t.Width > 1; });
  if (inFirstRow.size() == 1) return inFirstRow[0].Sign;
  if (inFirstRow.size() > 1) RefuseAsUnclear(inFirstRow);
  if (trials.size() == 1) return trials[0].Sign;
  if (trials.size() > 1) RefuseAsUnclear(trials);
  throw ModelFault(
      "neither comma nor semicolon, tab or vertical bar separates cells in it; name what does with --delimiter");
}

}  // namespace Tarnwise
