#include "project/JsonMembers.h"

#include "modelfiles/WholeFile.h"
#include "project/NumberText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace Tarnwise {

String JsonQuotes(const String& text, const String& field) {
  try {
    return nlohmann::json(text).dump();
  } catch (const nlohmann::json::exception&) {
    throw ModelFault(field + ": the text is not valid UTF-8");
  }
}

void PutShortest(String& out, double number, const String& field) {
  if (!std::isfinite(number)) throw ModelFault(field + ": it is no finite number");
  out += ShortestText(number);
}

void PutFull(String& out, const std::optional<double>& number) {
  constexpr int kSignificant = 17;
  if (!number || !std::isfinite(*number)) {
    out += "null";
    return;
  }
  char text[40];
  const double plain = *number + 0.0;  // no -0
  const auto end = std::to_chars(text, text + sizeof text, plain, std::chars_format::general, kSignificant).ptr;
  const std::string_view digits(text, static_cast<std::size_t>(end - text));
  out += digits;
  if (digits.find_first_of(".e") == std::string_view::npos) out += ".0";
}

JsonMembers::JsonMembers(String& out, const char* separator) : out_(out), separator_(separator) {
  out_ += '{';
  out_ += separator[1] == '\n' ? separator + 1 : "";
}

String& JsonMembers::Key(const String& key) {
  if (!written_.empty()) out_ += separator_;
  written_.push_back(key);
  out_ += JsonQuotes(key, "key") + ": ";
  return out_;
}

void JsonMembers::Others(const OtherKeys& others) {
  for (const OtherKey& other : others) {
    if (std::find(written_.begin(), written_.end(), other.Name) == written_.end()) Json(other.Name, other.Value);
  }
}

}  // namespace Tarnwise
