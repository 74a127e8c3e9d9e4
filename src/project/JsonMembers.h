// The objects of the JSON that projects write, member after member, as text.
#pragma once

#include "project/Project.h"

namespace Tarnwise {

constexpr const char* kOnOneLine = ", ";
constexpr const char* kTopLines = ",\n  ";  // a line each, in what is a whole file

// The text in JSON's quotes; a ModelFault that begins with the field where it is not valid UTF-8.
String JsonQuotes(const String& text, const String& field);

// The number behind the text, in its fewest digits; a ModelFault that begins with the field where it is not finite.
void PutShortest(String& out, double number, const String& field);

// The number behind the text, with 17 significant digits and always as one with a decimal point or an exponent; null
// where it is not finite or not there.
void PutFull(String& out, const std::optional<double>& number);

// A list, an item a line.
template <class Items, class PutItem>
void PutLines(String& out, const Items& items, const String& margin, PutItem putItem) {
  out += '[';
  for (std::size_t i = 0; i < items.size(); ++i) {
    out += (i == 0 ? "\n" : ",\n") + margin + "  ";
    putItem(items[i]);
  }
  out += items.empty() ? "]" : "\n" + margin + "]";
}

// The members of one object, as far as they are there. The object's end is its writer's to put.
class JsonMembers {
 public:
  // Between two members stands the separator; where it begins a line, so does the first member.
  JsonMembers(String& out, const char* separator);

  String& Key(const String& key);  // what comes behind it is the value
  void NeededText(const String& key, const String& text) { Key(key) += JsonQuotes(text, key); }
  void Text(const String& key, const String& text) {
    if (!text.empty()) NeededText(key, text);
  }
  void Number(const String& key, const std::optional<double>& number) {
    if (number) PutShortest(Key(key), *number, key);
  }
  void Full(const String& key, const std::optional<double>& number) { PutFull(Key(key), number); }
  void Whole(const String& key, std::int64_t number) { Key(key) += std::to_string(number); }
  void Json(const String& key, const String& json) {
    if (!json.empty()) Key(key) += json;
  }
  template <class Named>
  void Name(const String& key, const std::optional<Named>& value) {
    if (value) NeededText(key, NameOf(*value));
  }

  // A key that has been written since is not written twice.
  void Others(const OtherKeys& others);

 private:
  String& out_;
  const char* separator_;
  std::vector<String> written_;
};

}  // namespace Tarnwise
