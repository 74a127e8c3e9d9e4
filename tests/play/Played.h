// A script of its own, played from its first line to its end.
#pragma once

#include "modelfiles/PlainJson.h"
#include "play/Player.h"
#include "support/Session.h"

#include <sstream>

namespace Tarnwise {

struct Played {
  int Status = 0;
  Lines Out;
  String Errors;
};

inline Played PlayIn(const String& folder, const String& script) {
  mdTRNMain() = WizardData();
  std::istringstream lines(script);
  std::ostringstream out;
  std::ostringstream errors;
  Played played;
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  played.Status = Player(*driver, lines, folder, "shots", out, errors).Play();
  played.Errors = errors.str();
  std::istringstream reader(out.str());
  for (String line; std::getline(reader, line);) played.Out.push_back(line);
  return played;
}

// In a folder of its own, with a model of two benefits and two costs.
inline Played Play(const String& script) {
  const TemporaryFolder folder;
  WriteModel(folder.File("model.kst"), ModelOf(2, 2));
  return PlayIn(folder.Path(), script);
}

// The first step is open.
inline const String kShown = "host load model.kst\nhost show\n";

// What the script prints behind the opening of the first step.
inline Lines OnFirstStep(const String& script) {
  const Lines all = Play(kShown + script).Out;
  return {all.begin() + 4, all.end()};
}

}  // namespace Tarnwise
