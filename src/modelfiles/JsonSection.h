// Reading of a description's objects with messages that say which key, whose, and why.
#pragma once

#include "modelfiles/Json.h"
#include "modelfiles/WholeFile.h"

#include <vector>

namespace Tarnwise {

// The name of those offered that is nearest to the given one, for "did you mean"; empty when none is near.
String NearestName(const String& name, const std::vector<String>& offered);

// A value as it is quoted in a message, shortened.
String Quoted(const Json& value);

// One object of the description. Place is whose keys these are: "attribute 3 (Nurses)", empty at the top. A value that
// is no object, and a key that is not among the keys, is a ModelFault; so is everything wrong that the functions find.
class Section {
 public:
  Section(const Json& value, String place, const std::vector<String>& keys);
  Section(const Json& value, String place);  // of any keys

  const String& Place() const { return place_; }
  String PlaceOf(const String& key) const;  // "scoreMin of attribute 3 (Nurses)"

  const Json* Find(const char* key) const;  // null when the key is not there
  const Json& Need(const char* key) const;
  bool Has(const char* key) const { return Find(key) != nullptr; }

  // Absent ones are empty or zero.
  String Text(const char* key) const;
  double Number(const char* key) const;
  std::int64_t Whole(const char* key, std::int64_t lowest, std::int64_t highest) const;
  const Json& List(const char* key, std::size_t longest) const;

  [[noreturn]] void Fail(const String& key, const String& why) const;

 private:
  String Whose() const;

  const Json& json_;
  String place_;
};

// The parts that Section is made of, for values that stand in lists. Place is the whole of what is named.
String TextOf(const Json& value, const String& place);
double NumberOf(const Json& value, const String& place);
std::int64_t WholeOf(const Json& value, const String& place, std::int64_t lowest, std::int64_t highest);

}  // namespace Tarnwise
