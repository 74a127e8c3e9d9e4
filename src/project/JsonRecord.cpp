#include "project/JsonRecord.h"

#include "project/Shown.h"

#include <algorithm>

namespace Tarnwise {

double PlainNumber(const Json& value, const String& place) {
  if (!value.is_number()) throw ModelFault(place + ": a number is wanted, here is " + Quoted(value));
  return value.get<double>();
}

const Json* JsonRecord::Find(const char* key) {
  known_.emplace_back(key);
  const Json* const found = section_.Find(key);
  return found == nullptr || found->is_null() ? nullptr : found;
}

const Json& JsonRecord::Need(const char* key) {
  if (const Json* const found = Find(key)) return *found;
  std::vector<String> strange;
  for (const OtherKey& other : Others()) strange.push_back(other.Name);
  const String nearest = NearestName(key, strange);
  Fail(key, nearest.empty() ? "it is missing" : "it is missing, but there is " + Shown(nearest));
}

String JsonRecord::Text(const char* key) {
  const Json* const found = Find(key);
  return found == nullptr ? String() : TextOf(*found, PlaceOf(key));
}

std::optional<double> JsonRecord::Number(const char* key) {
  const Json* const found = Find(key);
  if (found == nullptr) return std::nullopt;
  return PlainNumber(*found, PlaceOf(key));
}

bool JsonRecord::Truth(const char* key, bool otherwise) {
  const Json* const found = Find(key);
  if (found == nullptr) return otherwise;
  if (!found->is_boolean()) Fail(key, "true or false is wanted, here is " + Quoted(*found));
  return found->get<bool>();
}

const Json* JsonRecord::List(const char* key) {
  const Json* const found = Find(key);
  if (found != nullptr && !found->is_array()) Fail(key, "a list is wanted, here is " + Quoted(*found));
  return found;
}

const Json& JsonRecord::NeedList(const char* key) {
  (void)Need(key);
  return *List(key);
}

std::optional<double> JsonRecord::IdleNumber(const char* key) {
  const Json* const found = section_.Find(key);
  return found != nullptr && found->is_number() ? Number(key) : std::nullopt;
}

OtherKeys JsonRecord::Others() const {
  OtherKeys others;
  for (const auto& [key, value] : json_.items()) {
    if (std::find(known_.begin(), known_.end(), key) == known_.end()) others.push_back({key, value.dump()});
  }
  return others;
}

}  // namespace Tarnwise
