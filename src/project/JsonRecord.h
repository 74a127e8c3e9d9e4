// An object of a project's file while it is read.
#pragma once

#include "modelfiles/JsonSection.h"
#include "project/Project.h"

namespace Tarnwise {

// A number as JSON writes numbers; anything else is a ModelFault. Place is the whole of what is named.
double PlainNumber(const Json& value, const String& place);

// The keys of an object as they are asked for, with faults that name the key and whose it is. A key that is null counts
// as not there. Whatever has not been asked for in the end is not known to this program.
class JsonRecord {
 public:
  // Place is whose keys these are: "column 1 (Nurses)", empty at the top.
  JsonRecord(const Json& value, const String& place) : section_(value, place), json_(value) {}

  String PlaceOf(const char* key) const { return section_.PlaceOf(key); }
  [[noreturn]] void Fail(const char* key, const String& why) const { section_.Fail(key, why); }

  const Json* Find(const char* key);  // null where it is not there
  const Json& Need(const char* key);

  String Text(const char* key);  // empty where it is not there
  std::optional<double> Number(const char* key);
  bool Truth(const char* key, bool otherwise);
  const Json* List(const char* key);  // null where it is not there
  const Json& NeedList(const char* key);

  // A number that nobody looks at: anything else in its place is kept as if its key were not known.
  std::optional<double> IdleNumber(const char* key);

  // One of a few words, which are named when it is another; nothing where the key is not there.
  template <class Word>
  std::optional<Word> OneOf(const char* key, std::optional<Word> (*named)(const String&), const char* words) {
    const Json* const found = Find(key);
    if (found == nullptr) return std::nullopt;
    const auto word = found->is_string() ? named(found->get<String>()) : std::nullopt;
    if (!word) Fail(key, String(words) + " is wanted, here is " + Quoted(*found));
    return word;
  }

  OtherKeys Others() const;

 private:
  Section section_;
  const Json& json_;
  std::vector<String> known_;
};

}  // namespace Tarnwise
