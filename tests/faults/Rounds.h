// Whole rounds of the wizard in the session player, as scripts.
#pragma once

#include "play/Player.h"
#include "support/Session.h"

#include <sstream>

namespace Tarnwise {

// From the first step to Finish, on a model of two benefits and two costs without stored judgments.
inline const String kDirectRound = R"(host show
click cmdNext
drag cmdAttA(0) picOrder(0)
click cmdAdd
drag cmdAttA(1) picOrder(1)
drag cmdAttA1(0) picOrder1(0)
click cmdAdd1
drag cmdAttA1(1) picOrder1(1)
click cmdNext
click cmdAttButtons(1)
click cmdAttButtons1(0)
click cmdNext
drag picHandle(0) picTradeOffsRange 120 90
click cmdEnter
select imgcmbTargetAtt 4
drag picHandle(1) picTradeOffsRange 180 100
click cmdEnter
click cmdNext
click cmdFinish
)";

inline const String kTradeOffRound = R"(host points zero
host show
select lstMethods 1
click cmdNext
drag cmdAttA(0) picOrder(0)
click cmdAdd
drag cmdAttA(1) picOrder(1)
drag cmdAttA1(0) picOrder1(0)
click cmdAdd1
drag cmdAttA1(1) picOrder1(1)
click cmdNext
click cmdAttButtons(1)
click cmdAttButtons1(0)
click cmdNext
click cmdEnter
select imgcmbTargetAtt 4
select tbsTradeOffs 2
press tbMovRight MovRight
click cmdEnter
click cmdNext
click cmdFinish
)";

// What the script prints; a refused line is among it.
inline String PlayRound(const String& modelPath, const String& round) {
  std::istringstream script("host load " + modelPath + " C:/KESTA 3\n" + round);
  std::ostringstream out;
  std::ostringstream errors;
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  Player(*driver, script, ".", ".", out, errors).Play();
  return out.str() + errors.str();
}

}  // namespace Tarnwise
