#include "modelfiles/PlainJson.h"

#include "runtime/Text.h"

#include <charconv>
#include <cmath>
#include <utility>

namespace Tarnwise {

namespace {

// The fewest digits that make the number again; the library's own are now and then one too many.
String NumberLine(Double x) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, x, std::chars_format::scientific).ptr;
  const String shortest(text, end);
  const int exponent = std::stoi(shortest.substr(shortest.find('e') + 1));
  if (exponent < -4 || exponent >= 15) return shortest;
  return {text, std::to_chars(text, text + sizeof text, x, std::chars_format::fixed).ptr};
}

void Write(String& line, const Json& value);

template <class Items, class WriteItem>
void WriteList(String& line, const Items& items, const char* brackets, WriteItem write) {
  line += brackets[0];
  bool first = true;
  for (const auto& item : items) {
    if (!std::exchange(first, false)) line += ',';
    write(item);
  }
  line += brackets[1];
}

void Write(String& line, const Json& value) {
  if (value.is_object()) {
    WriteList(line, value.items(), "{}", [&line](const auto& member) {
      Write(line, Json(member.key()));
      line += ':';
      Write(line, member.value());
    });
  } else if (value.is_array()) {
    WriteList(line, value, "[]", [&line](const Json& item) { Write(line, item); });
  } else if (value.is_number_float()) {
    line += NumberLine(value.get<Double>());
  } else {
    line += value.dump(-1, ' ', false, Json::error_handler_t::replace);
  }
}

}  // namespace

Json ToJson(Double x) {
  if (IsExactWhole(x)) return static_cast<std::int64_t>(x);
  if (!std::isfinite(x)) return nullptr;
  return x;
}

Json ToJson(Single x) {
  // The digits that make the Single again, read as a Double, are printed as the same digits.
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, x).ptr;
  Double same = 0.0;
  std::from_chars(text, end, same);
  return ToJson(same);
}

Json ToJson(const Variant& v) {
  if (std::holds_alternative<std::monostate>(v) || std::holds_alternative<Null>(v)) return nullptr;
  if (const auto* text = std::get_if<String>(&v)) return *text;
  if (const auto* flag = std::get_if<bool>(&v)) return *flag;
  if (const auto* single = std::get_if<Single>(&v)) return ToJson(*single);
  return ToJson(ToDouble(v));
}

Json ToJson(const VariantArray& items) {
  Json list = Json::array();
  for (const Variant& item : items) list.push_back(ToJson(item));
  return list;
}

Json ToJson(const PointArrays& points) {
  Json object = Json::object();
  for (std::size_t f = 0; f < points.size(); ++f) object[kPointNames[f]] = ToJson(points[f]);
  return object;
}

String JsonLine(const Json& object) {
  String line;
  Write(line, object);
  return line;
}

Variant PlainVariant(const Json& value) {
  if (value.is_boolean()) return value.get<bool>();
  if (value.is_number()) return value.get<Double>();
  if (value.is_string()) return value.get<String>();
  return {};
}

}  // namespace Tarnwise
