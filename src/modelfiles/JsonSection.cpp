#include "modelfiles/JsonSection.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <numeric>

namespace Tarnwise {

namespace {

const Json kEmptyList = Json::array();

// How many letters have to be put in, taken out or replaced to make one name of the other.
std::size_t EditDistance(const String& from, const String& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

// A number that JSON has no way to write, as its bits in hexadecimal.
double NumberFromBits(const Json& value, const String& place) {
  const String digits = TextOf(value, place);
  std::uint64_t bits = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), bits, 16);
  if (digits.size() != 16 || read.ec != std::errc() || read.ptr != digits.data() + digits.size()) {
    throw ModelFault(place + ": bits are 16 hexadecimal digits, here is " + Quoted(value));
  }
  return std::bit_cast<double>(bits);
}

}  // namespace

String NearestName(const String& name, const std::vector<String>& offered) {
  String nearest;
  std::size_t least = std::max<std::size_t>(2, name.size() / 2) + 1;
  for (const String& candidate : offered) {
    const std::size_t distance = EditDistance(name, candidate);
    if (distance >= least) continue;
    least = distance;
    nearest = candidate;
  }
  return nearest;
}

String Quoted(const Json& value) {
  constexpr std::size_t kLongest = 60;
  String text = value.dump(-1, ' ', true, Json::error_handler_t::replace);
  if (text.size() > kLongest) text.replace(kLongest, String::npos, "...");
  return text;
}

String TextOf(const Json& value, const String& place) {
  if (!value.is_string()) throw ModelFault(place + ": a text is wanted, here is " + Quoted(value));
  return value.get<String>();
}

double NumberOf(const Json& value, const String& place) {
  if (value.is_number()) return value.get<double>();
  if (value.is_object() && value.size() == 1 && value.contains("bits")) return NumberFromBits(value["bits"], place);
  throw ModelFault(place + ": a number is wanted, here is " + Quoted(value));
}

std::int64_t WholeOf(const Json& value, const String& place, std::int64_t lowest, std::int64_t highest) {
  const String range = std::to_string(lowest) + " to " + std::to_string(highest);
  const bool tooLarge = value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX;
  if (!value.is_number_integer() || tooLarge || value.get<std::int64_t>() < lowest ||
      value.get<std::int64_t>() > highest) {
    throw ModelFault(place + ": a whole number from " + range + " is wanted, here is " + Quoted(value));
  }
  return value.get<std::int64_t>();
}

Section::Section(const Json& value, String place) : json_(value), place_(std::move(place)) {
  if (!value.is_object()) throw ModelFault(Whose() + ": an object is wanted, here is " + Quoted(value));
}

Section::Section(const Json& value, String place, const std::vector<String>& keys) : Section(value, std::move(place)) {
  for (const auto& [key, ignored] : value.items()) {
    if (std::find(keys.begin(), keys.end(), key) != keys.end()) continue;
    const String nearest = NearestName(key, keys);
    const String hint = nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
    throw ModelFault(Whose() + ": there is no key \"" + key + "\"" + hint);
  }
}

String Section::Whose() const { return place_.empty() ? "the description" : place_; }

String Section::PlaceOf(const String& key) const { return place_.empty() ? key : key + " of " + place_; }

void Section::Fail(const String& key, const String& why) const { throw ModelFault(PlaceOf(key) + ": " + why); }

const Json* Section::Find(const char* key) const {
  const auto found = json_.find(key);
  return found == json_.end() ? nullptr : &*found;
}

const Json& Section::Need(const char* key) const {
  const Json* const found = Find(key);
  if (found == nullptr) Fail(key, "it is missing");
  return *found;
}

String Section::Text(const char* key) const {
  const Json* const found = Find(key);
  return found == nullptr ? String() : TextOf(*found, PlaceOf(key));
}

double Section::Number(const char* key) const {
  const Json* const found = Find(key);
  return found == nullptr ? 0.0 : NumberOf(*found, PlaceOf(key));
}

std::int64_t Section::Whole(const char* key, std::int64_t lowest, std::int64_t highest) const {
  const Json* const found = Find(key);
  return found == nullptr ? 0 : WholeOf(*found, PlaceOf(key), lowest, highest);
}

const Json& Section::List(const char* key, std::size_t longest) const {
  const Json* const found = Find(key);
  if (found == nullptr) return kEmptyList;
  if (!found->is_array()) Fail(key, "a list is wanted, here is " + Quoted(*found));
  if (found->size() > longest) {
    Fail(key, "there are " + std::to_string(found->size()) + ", the file has room for " + std::to_string(longest));
  }
  return *found;
}

}  // namespace Tarnwise
