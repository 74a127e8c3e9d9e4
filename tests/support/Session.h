// Session scripts played in the test's own process, without a screen.
#pragma once

#include "support/Models.h"

namespace Tarnwise {

using Lines = std::vector<String>;

class Session {
 public:
  explicit Session(const WizardData& model);

  // Another model in the script's folder, for "host load FILE".
  Session& With(const String& file, const WizardData& model);

  // Lines that every Play begins with, after the model has been loaded: "host show", clicks, drags. What they print is
  // left out of the answers, and none of them may be refused.
  Session& Given(const String& lines);

  // A new process, as it were: loads the model, carries out what was given and then these lines, and returns what they
  // printed. The model's file is "model.kst", KestaDir "C:/KESTA", FileIndex 3. The lines go on inside modal calls.
  Lines Play(const String& lines);

  // The same, but only the values of the lines "get", "data" and "call", as JSON.
  Lines Ask(const String& lines);

  int Status() const { return status_; }  // of the last Play: 0, or 1 when a line was refused
  const String& Errors() const { return errors_; }
  const TemporaryFolder& Folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
  String given_;
  String errors_;
  int status_ = 0;
};

// The lines that hold the text.
Lines Only(const Lines& lines, const String& text);

// "drag SOURCE TARGET" once for each number of the array and its target: Drags("cmdAttA", {"picOrder(0)", ...}).
String Drags(const String& source, const std::vector<String>& targets);

// Script lines that open the ordering step.
inline const char* const kOpenOrdering = "host show\nclick cmdNext\n";

}  // namespace Tarnwise
