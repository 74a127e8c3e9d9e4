#include "play/ScriptLine.h"

#include "view/Platform.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Tarnwise {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

char Escaped(char c) {
  switch (c) {
    case '"':
    case '\\': return c;
    case 'n': return '\n';
    case 't': return '\t';
    default: throw ScriptFault(String("\\") + c + " is no escape");
  }
}

// The quoted word that begins at i, which comes to stand behind it.
String QuotedWord(const String& line, std::size_t& i) {
  String word;
  for (++i; i < line.size(); ++i) {
    if (line[i] == '"') {
      ++i;
      return word;
    }
    if (line[i] == '\\') {
      if (++i == line.size()) break;
      word += Escaped(line[i]);
    } else {
      word += line[i];
    }
  }
  throw ScriptFault("a quote is not closed");
}

String PlainWord(const String& line, std::size_t& i) {
  const std::size_t from = i;
  while (i < line.size() && !IsBlank(line[i])) ++i;
  return line.substr(from, i - from);
}

void SkipBlanks(const String& line, std::size_t& i) {
  while (i < line.size() && IsBlank(line[i])) ++i;
}

// All of the word as a number; false when it is none or too large for one.
template <class Number>
bool ReadNumber(const String& word, Number& number) {
  const char* const end = word.data() + word.size();
  const auto read = std::from_chars(word.data(), end, number);
  return read.ec == std::errc() && read.ptr == end;
}

// Forms first by their names, then the controls of the active form.
struct Target {
  const Form* On = nullptr;
  String Name;
  int Index = -1;
};

Target TargetOf(const Platform& screen, const String& name) {
  Target target;
  target.Name = name;
  const auto point = name.find('.');
  if (point != String::npos) {
    target.On = NamedForm(screen, name.substr(0, point));
    target.Name = name.substr(point + 1);
  } else {
    target.On = screen.ActiveForm();
  }
  const auto bracket = target.Name.find('(');
  if (bracket != String::npos && target.Name.back() == ')') {
    const String number = target.Name.substr(bracket + 1, target.Name.size() - bracket - 2);
    if (!ReadNumber(number, target.Index) || target.Index < 0) target.On = nullptr;
    target.Name.resize(bracket);
  }
  return target;
}

}  // namespace

std::vector<String> WordsOf(const String& line) {
  std::vector<String> words;
  for (std::size_t i = 0;;) {
    SkipBlanks(line, i);
    if (i >= line.size() || (words.empty() && line[i] == '#')) return words;
    if (words == std::vector<String>{"host", "points"}) {
      words.push_back(line.substr(i, line.find_last_not_of(" \t\r") + 1 - i));
      return words;
    }
    words.push_back(line[i] == '"' ? QuotedWord(line, i) : PlainWord(line, i));
  }
}

int WholeNumber(const String& word) {
  int number = 0;
  if (!ReadNumber(word, number)) throw ScriptFault("\"" + word + "\" is no whole number");
  return number;
}

Single ScaleNumber(const String& word) {
  Single number = 0.0F;
  if (!ReadNumber(word, number) || !std::isfinite(number)) throw ScriptFault("\"" + word + "\" is no number");
  return number;
}

Control& NamedControl(const Platform& screen, const String& name) {
  if (Form* const form = NamedForm(screen, name)) return *form;
  const Target target = TargetOf(screen, name);
  Control* const found = target.On == nullptr ? nullptr : target.On->Find(target.Name, target.Index);
  if (found == nullptr) throw Refused(name + ": does not exist");
  return *found;
}

Form* NamedForm(const Platform& screen, const String& name) {
  const auto& forms = screen.Forms();
  const auto found = std::find_if(forms.begin(), forms.end(), [&name](const Form* form) { return form->Name == name; });
  return found == forms.end() ? nullptr : *found;
}

PropertyName SplitProperty(const String& text) {
  const auto point = text.rfind('.');
  if (point == String::npos) throw ScriptFault("\"" + text + "\" names no property");
  return {text.substr(0, point), text.substr(point + 1)};
}

std::optional<int> CountOfArray(const Platform& screen, const String& name) {
  const Target target = TargetOf(screen, name);
  const int count = target.On == nullptr || target.Index >= 0 ? 0 : target.On->CountOf(target.Name);
  return count > 0 ? std::optional<int>(count) : std::nullopt;
}

}  // namespace Tarnwise
