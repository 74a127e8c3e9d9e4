#include "modelfiles/DescriptionJson.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <functional>
#include <set>

namespace Tarnwise {

namespace {

constexpr std::int64_t kCurrencyScale = 10000;
constexpr std::size_t kLineWidth = 110;

template <class Bits>
Json BitsJson(Bits bits) {
  std::array<char, 20> text{};
  (void)std::snprintf(text.data(), text.size(), "%0*llx", static_cast<int>(2 * sizeof bits),
                      static_cast<unsigned long long>(bits));
  return {{"bits", text.data()}};
}

// The shortest decimal that reads back as this Single, where it does so by way of a Double.
Json SingleJson(Single number) {
  if (!std::isfinite(number)) return BitsJson(std::bit_cast<std::uint32_t>(number));
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  double decimal = 0.0;
  (void)std::from_chars(text.data(), end, decimal);
  return NumberJson(static_cast<Single>(decimal) == number ? decimal : static_cast<double>(number));
}

Single SingleOf(const Json& value, const String& place) {
  if (value.is_object() && value.size() == 1 && value.contains("bits")) {
    const String digits = TextOf(value["bits"], place);
    std::uint32_t bits = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), bits, 16);
    if (digits.size() != 8 || read.ec != std::errc() || read.ptr != digits.data() + digits.size()) {
      throw ModelFault(place + ": bits of a single are 8 hexadecimal digits, here is " + Quoted(value["bits"]));
    }
    return std::bit_cast<Single>(bits);
  }
  const double number = NumberOf(value, place);
  if (std::isinf(static_cast<Single>(number))) throw ModelFault(place + ": too large for a single");
  return static_cast<Single>(number);
}

String CurrencyText(Currency amount) {
  const bool negative = amount.Scaled < 0;
  std::uint64_t scaled = static_cast<std::uint64_t>(amount.Scaled);
  if (negative) scaled = 0 - scaled;
  String decimals = std::to_string(scaled % kCurrencyScale);
  decimals.insert(0, 4 - decimals.size(), '0');
  while (!decimals.empty() && decimals.back() == '0') decimals.pop_back();
  const String whole = (negative ? "-" : "") + std::to_string(scaled / kCurrencyScale);
  return decimals.empty() ? whole : whole + "." + decimals;
}

Currency CurrencyOf(const Json& value, const String& place) {
  const auto refuse = [&]() {
    return ModelFault(place + ": a currency is a text like \"12.5\" with at most four decimals, here is " +
                      Quoted(value));
  };
  if (!value.is_string()) throw refuse();
  String digits = value.get<String>();
  const std::size_t first = digits.starts_with('-') ? 1 : 0;
  if (first >= digits.size() || digits[first] < '0' || digits[first] > '9') throw refuse();
  const std::size_t point = digits.find('.');
  const std::size_t decimals = point == String::npos ? 0 : digits.size() - point - 1;
  if (decimals > 4 || (point != String::npos && decimals == 0)) throw refuse();
  if (point != String::npos) digits.erase(point, 1);
  digits.append(4 - decimals, '0');
  Currency amount;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), amount.Scaled);
  if (read.ec != std::errc() || read.ptr != digits.data() + digits.size()) throw refuse();
  return amount;
}

struct TypedJson {
  Json operator()(std::monostate) const { return nullptr; }
  Json operator()(Null) const { return {{"null", true}}; }
  Json operator()(Integer v) const { return {{"integer", v}}; }
  Json operator()(Long v) const { return {{"long", v}}; }
  Json operator()(Single v) const { return {{"single", SingleJson(v)}}; }
  Json operator()(Double v) const { return NumberJson(v); }
  Json operator()(Currency v) const { return {{"currency", CurrencyText(v)}}; }
  Json operator()(Date v) const { return {{"date", NumberJson(v.Days)}}; }
  Json operator()(const String& v) const { return v; }
  Json operator()(bool v) const { return v; }
  Json operator()(std::uint8_t v) const { return {{"byte", v}}; }
};

Variant TaggedVariantOf(const Json& value, const String& place) {
  const Section section(value, place, {"null", "integer", "long", "single", "currency", "date", "byte", "bits"});
  if (value.size() != 1) throw ModelFault(place + ": one type is wanted, here is " + Quoted(value));
  if (section.Has("bits")) return NumberOf(value, place);
  if (const Json* v = section.Find("single")) return SingleOf(*v, section.PlaceOf("single"));
  if (const Json* v = section.Find("currency")) return CurrencyOf(*v, section.PlaceOf("currency"));
  if (section.Has("date")) return Date{section.Number("date")};
  if (section.Has("integer")) return static_cast<Integer>(section.Whole("integer", INT16_MIN, INT16_MAX));
  if (section.Has("long")) return static_cast<Long>(section.Whole("long", INT32_MIN, INT32_MAX));
  if (section.Has("byte")) return static_cast<std::uint8_t>(section.Whole("byte", 0, UINT8_MAX));
  if (section.Need("null") != true) section.Fail("null", "it is written as {\"null\": true}");
  return Null();
}

// A list or an object that is not closed yet.
struct Level {
  std::set<String> Keys;
  String Key;  // whose value comes
  String Name;
  std::size_t Values = 0;
};

// Follows the parser: refuses an object with the same key twice, of which one would silently be lost, and what is
// nested deeper than anything that means something; and knows where the parser stands when it fails.
class ParseWatch {
 public:
  bool operator()(int /*depth*/, Json::parse_event_t event, const Json& parsed) {
    switch (event) {
      case Json::parse_event_t::object_start:
      case Json::parse_event_t::array_start: Open(); break;
      case Json::parse_event_t::key: TakeKey(parsed.get_ref<const String&>()); break;
      case Json::parse_event_t::object_end:
      case Json::parse_event_t::array_end: open_.pop_back(); [[fallthrough]];
      case Json::parse_event_t::value: CountValue(parsed); break;
    }
    return true;
  }

  // "columns[1] ("Nurses").values[3]", with the names of the objects that have said theirs.
  String Place() const {
    String place;
    for (const Level& level : open_) {
      const bool list = level.Keys.empty();
      place += list ? "[" + std::to_string(level.Values) + "]" : (place.empty() ? "" : ".") + level.Key;
      if (list && &level != &open_.back() && !(&level + 1)->Name.empty()) place += " (" + (&level + 1)->Name + ")";
    }
    return place;
  }

 private:
  void Open() {
    if (open_.size() == kDeepest) throw ModelFault("lists and objects are nested more than 100 deep");
    open_.emplace_back();
  }

  void TakeKey(const String& key) {
    if (!open_.back().Keys.insert(key).second) {
      throw ModelFault("the key " + Quoted(key) + " stands twice in one object");
    }
    open_.back().Key = key;
  }

  void CountValue(const Json& parsed) {
    if (open_.empty()) return;
    ++open_.back().Values;
    if (open_.back().Key == "name" && parsed.is_string()) open_.back().Name = Quoted(parsed);
  }

  static constexpr std::size_t kDeepest = 100;
  std::vector<Level> open_;
};

// Puts the value behind the line; false, with part of it there, once the line is too long.
bool FitsOn(String& line, const Json& value) {
  if (!value.is_structured()) {
    line += value.dump();
    return line.size() < kLineWidth;
  }
  line += value.is_object() ? "{" : "[";
  bool first = true;
  for (auto element = value.begin(); element != value.end(); ++element) {
    if (!first) line += ", ";
    first = false;
    if (value.is_object()) line += Json(element.key()).dump() + ": ";
    if (!FitsOn(line, *element)) return false;
  }
  line += value.is_object() ? "}" : "]";
  return line.size() < kLineWidth;
}

bool IsPlain(const Json& value) { return !value.is_structured(); }

// What fills the lines: values or pairs of them, as in a curve, and numbers under names.
bool IsTable(const Json& value) {
  const auto isCell = [&value](const Json& element) {
    if (value.is_object()) return element.is_number();
    return IsPlain(element) || (element.is_array() && std::all_of(element.begin(), element.end(), IsPlain));
  };
  return std::all_of(value.begin(), value.end(), isCell);
}

void Print(const Json& value, std::size_t indent, std::size_t used, bool split, String& out) {
  if (!value.is_structured() || value.empty()) {
    out += value.dump();
    return;
  }
  String line(used, ' ');
  if (!split && FitsOn(line, value)) {
    out += line.substr(used);
    return;
  }
  const bool fill = IsTable(value);
  const String margin(indent + 2, ' ');
  out += value.is_object() ? "{" : "[";
  line.assign(kLineWidth, ' ');  // full, so that the first element begins another
  bool first = true;
  for (auto element = value.begin(); element != value.end(); ++element) {
    if (!first) out += ",";
    first = false;
    const String label = value.is_object() ? Json(element.key()).dump() + ": " : "";
    line += "  " + label;
    if (fill && FitsOn(line, *element)) {
      out += " ";
    } else {
      out += "\n" + margin;
      line = margin + label;
      (void)FitsOn(line, *element);
    }
    out += label;
    Print(*element, indent + 2, margin.size() + label.size(), false, out);
  }
  out += "\n" + String(indent, ' ') + (value.is_object() ? "}" : "]");
}

}  // namespace

Json NumberJson(double number) {
  if (!std::isfinite(number)) return BitsJson(std::bit_cast<std::uint64_t>(number));
  const bool negativeZero = number == 0.0 && std::signbit(number);
  if (!IsExactWhole(number) || negativeZero) return number;
  return static_cast<std::int64_t>(number);
}

Json VariantJson(const Variant& value) { return std::visit(TypedJson(), value); }

Variant VariantOf(const Json& value, const String& place) {
  if (value.is_null()) return {};
  if (value.is_boolean()) return value.get<bool>();
  if (value.is_string()) return value.get<String>();
  if (value.is_number()) return value.get<double>();
  if (value.is_object()) return TaggedVariantOf(value, place);
  throw ModelFault(place + ": a single value is wanted, here is " + Quoted(value));
}

Json BytesJson(const std::vector<std::uint8_t>& bytes) {
  constexpr const char* kDigits = "0123456789abcdef";
  String digits;
  for (const unsigned byte : bytes) {
    digits += kDigits[byte >> 4U];
    digits += kDigits[byte & 0x0FU];
  }
  return digits;
}

std::vector<std::uint8_t> BytesOf(const Json& value, const String& place, std::size_t count) {
  std::vector<std::uint8_t> bytes;
  if (value.is_array()) {
    for (const Json& byte : value) bytes.push_back(static_cast<std::uint8_t>(WholeOf(byte, place, 0, UINT8_MAX)));
  } else {
    const String digits = TextOf(value, place);
    for (std::size_t i = 0; i < digits.size(); i += 2) {
      std::uint8_t byte = 0;
      const char* const end = digits.data() + std::min(i + 2, digits.size());
      const auto read = std::from_chars(digits.data() + i, end, byte, 16);
      if (read.ptr != digits.data() + i + 2) throw ModelFault(place + ": pairs of hexadecimal digits are wanted");
      bytes.push_back(byte);
    }
  }
  if (bytes.size() == count) return bytes;
  throw ModelFault(place + ": there are " + std::to_string(bytes.size()) + " bytes, there must be " +
                   std::to_string(count));
}

Json ParseDescription(const String& text) {
  ParseWatch watch;
  try {
    return Json::parse(text, std::ref(watch));
  } catch (const Json::exception& error) {
    const String what = error.what();
    const std::size_t start = what.find("] ");
    const String place = watch.Place().empty() ? "" : "; in " + watch.Place();
    throw ModelFault("it is no JSON: " + (start == String::npos ? what : what.substr(start + 2)) + place);
  }
}

String DescriptionText(const Json& description) {
  String text;
  Print(description, 0, 0, true, text);
  return text + "\n";
}

}  // namespace Tarnwise
