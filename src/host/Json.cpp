#include "host/Json.h"

#include "runtime/Text.h"

#include <charconv>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr Double kLargestWhole = 9007199254740992.0;  // 2^53: up to here a whole number is printed as one

}  // namespace

Json ToJson(Double x) {
  if (x == std::floor(x) && std::fabs(x) <= kLargestWhole) return static_cast<std::int64_t>(x);
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

Json ToJson(const std::vector<Variant>& items) {
  Json list = Json::array();
  for (const Variant& item : items) list.push_back(ToJson(item));
  return list;
}

String JsonLine(const Json& object) { return object.dump(-1, ' ', false, Json::error_handler_t::replace); }

Variant VariantOf(const Json& value) {
  if (value.is_boolean()) return value.get<bool>();
  if (value.is_number()) return value.get<Double>();
  if (value.is_string()) return value.get<String>();
  return {};
}

}  // namespace Tarnwise
