#include "modelfiles/WholeFile.h"
#include "program/ImportCommand.h"
#include "project/CsvDelimiter.h"
#include "project/Shown.h"

#include <array>

namespace Tarnwise {

namespace {

// The value of an option that is one of several words; nothing where the option was not given.
template <class Value>
std::optional<Value> Chosen(const String& word, std::optional<Value> (*named)(const String&), const char* option,
                            const char* words) {
  if (word.empty()) return std::nullopt;
  const auto value = named(word);
  if (!value) throw ModelFault(String(option) + ": " + words + " is wanted, here is " + Shown(word));
  return value;
}

GivenRange RangeOf(const String& text) {
  const std::size_t equals = text.rfind('=');
  const std::size_t dots = equals == String::npos ? equals : text.find("..", equals);
  if (dots != String::npos) {
    const auto worst = NumberIn(text.substr(equals + 1, dots - equals - 1), {});
    const auto best = NumberIn(text.substr(dots + 2), {});
    if (worst && best) return {text.substr(0, equals), *worst, *best};
  }
  throw ModelFault("--range: NAME=WORST..BEST is wanted, such as Doctors=60..15; here is " + Shown(text));
}

std::optional<char> DecimalNamed(const String& name) {
  const auto sign = SignNamed(name);
  return sign == '.' || sign == ',' ? sign : std::nullopt;
}

}  // namespace

TableOptions TableOptionsOf(const ImportOptions& given) {
  if (given.Unit.empty()) throw ModelFault("which column holds the units' names? Say so with --unit");
  if (given.Inputs.empty() && given.Outputs.empty()) {
    throw ModelFault("which columns are to be used? Name them with --inputs and --outputs");
  }
  TableOptions options;
  options.Unit = given.Unit;
  options.Inputs = given.Inputs;
  options.Outputs = given.Outputs;
  options.Unused = given.Unused;
  for (const String& range : given.Ranges) options.Ranges.push_back(RangeOf(range));
  options.Csv.Encoding =
      Chosen(given.Encoding, EncodingNamed, "--encoding", "utf-8, utf-16le, utf-16be or windows-1252");
  options.Csv.Delimiter =
      Chosen(given.Delimiter, DelimiterNamed, "--delimiter", "comma, semicolon, tab, bar or a sign");
  if (given.Header || given.NoHeader) options.Csv.Header = given.Header;
  options.Numbers.Decimal = Chosen(given.Decimal, DecimalNamed, "--decimal", "point or comma");
  options.Numbers.Thousands = Chosen(given.Thousands, SignNamed, "--thousands", "point, comma, blank or apostrophe");
  options.Numbers.Missing = given.Missing;
  return options;
}

void RefuseTableOptions(const ImportOptions& given) {
  const std::array<std::pair<const char*, bool>, 12> options = {{{"--unit", !given.Unit.empty()},
                                                                 {"--inputs", !given.Inputs.empty()},
                                                                 {"--outputs", !given.Outputs.empty()},
                                                                 {"--unused", !given.Unused.empty()},
                                                                 {"--range", !given.Ranges.empty()},
                                                                 {"--delimiter", !given.Delimiter.empty()},
                                                                 {"--decimal", !given.Decimal.empty()},
                                                                 {"--thousands", !given.Thousands.empty()},
                                                                 {"--encoding", !given.Encoding.empty()},
                                                                 {"--missing", !given.Missing.empty()},
                                                                 {"--header", given.Header},
                                                                 {"--no-header", given.NoHeader}}};
  for (const auto& [option, isGiven] : options) {
    if (isGiven) throw ModelFault(String(option) + " is for CSV files; a model says this itself");
  }
}

}  // namespace Tarnwise
