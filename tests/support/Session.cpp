#include "support/Session.h"

#include "modelfiles/PlainJson.h"
#include "play/Player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace Tarnwise {

namespace {

// Parts what was given from what is asked; a test has no other use for it.
constexpr const char* kMark = "data ValueFuncType";
constexpr const char* kMarkPrinted = R"({"data":"ValueFuncType")";

}  // namespace

Session::Session(const WizardData& model) { WriteModel(folder_.File("model.kst"), model); }

Session& Session::With(const String& file, const WizardData& model) {
  WriteModel(folder_.File(file), model);
  return *this;
}

Session& Session::Given(const String& lines) {
  given_ += lines + "\n";
  return *this;
}

Lines Session::Play(const String& lines) {
  mdTRNMain() = WizardData();
  std::istringstream script("host load model.kst C:/KESTA 3\n" + given_ + kMark + "\n" + lines + "\n");
  std::ostringstream out;
  std::ostringstream err;
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  status_ = Player(*driver, script, folder_.Path(), ".", out, err).Play();
  errors_ = err.str();

  Lines printed;
  bool asked = false;
  std::istringstream reader(out.str());
  for (String line; std::getline(reader, line);) {
    if (!asked && line.starts_with(kMarkPrinted)) {
      asked = true;
    } else if (asked) {
      printed.push_back(line);
    } else if (line.starts_with(R"({"refused")") || line.starts_with(R"({"runtime_error")")) {
      ADD_FAILURE() << "what was given was not carried out: " << line;
    }
  }
  if (!asked) ADD_FAILURE() << "the script ended before what was asked: " << errors_;
  return printed;
}

Lines Session::Ask(const String& lines) {
  Lines values;
  for (const String& line : Play(lines)) {
    const Json object = Json::parse(line);
    if (object.contains("refused")) ADD_FAILURE() << line;
    if (object.contains("value")) values.push_back(object["value"].dump());
  }
  return values;
}

Lines Only(const Lines& lines, const String& text) {
  Lines found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
               [&text](const String& line) { return line.find(text) != String::npos; });
  return found;
}

String Drags(const String& source, const std::vector<String>& targets) {
  String lines;
  for (std::size_t i = 0; i < targets.size(); ++i) {
    lines += "drag " + source + "(" + std::to_string(i) + ") " + targets[i] + "\n";
  }
  return lines;
}

}  // namespace Tarnwise
