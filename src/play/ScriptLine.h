// One line of a session script: its words, and the controls that they name.
#pragma once

#include "view/Form.h"

#include <optional>
#include <stdexcept>
#include <vector>

namespace Tarnwise {

class Platform;

// A line that is no line of a script. The message says why.
struct ScriptFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// A line that a person could not carry out now, or that names nothing that exists.
struct Refused : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Words are separated by blanks. A word with blanks stands in double quotes, with \" \\ \n \t as escapes in it. What
// follows "host points" is one word. A comment has no words.
std::vector<String> WordsOf(const String& line);

int WholeNumber(const String& word);
Single ScaleNumber(const String& word);

// "cmdNext", "picOrder(2)", "frmDirectB.cmdNext", or a form's name.
Control& NamedControl(const Platform& screen, const String& name);

// A form that exists, by its name; null when there is none.
Form* NamedForm(const Platform& screen, const String& name);

// "cmdNext.Enabled" apart: what it is of, and the property.
struct PropertyName {
  String Of;
  String Property;
};
PropertyName SplitProperty(const String& text);

// The number of elements of a control array, nothing when there is no such array.
std::optional<int> CountOfArray(const Platform& screen, const String& name);

}  // namespace Tarnwise
