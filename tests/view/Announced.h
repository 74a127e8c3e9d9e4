// What a screen reader hears on a walk through the judgments: the same under every toolkit, whichever way it is told.
#pragma once

#include "view/Looked.h"

#include <map>

namespace Tarnwise {

// Counts of what was told, by name.
struct Heard {
  std::map<String, int> Alerts;
  std::map<String, int> Names;  // a name that changed

  // What was told since it was asked the last time: "alerts / names", each with how often where not once.
  String Take() { return Counted(std::exchange(Alerts, {})) + " / " + Counted(std::exchange(Names, {})); }

 private:
  static String Counted(const std::map<String, int>& counts) {
    String all;
    for (const auto& [name, count] : counts) {
      all += (all.empty() ? "" : ", ") + name + (count == 1 ? "" : " x" + std::to_string(count));
    }
    return all;
  }
};

struct AnnouncedWalk {
  int Method;
  String Lines;
  std::map<String, String> Told;  // at each `shot`
};

inline AnnouncedWalk VerdictsOfTheDirectStep() {
  return {0,
          "click cmdAttButtons(0)\nclick cmdAttButtons1(1)\nshot asked\nclick cmdNext\nshot opened\n"
          "drag picHandle(0) picTradeOffsRange 2 100\nshot invalid\ntick Timer1 6\n"
          "drag picHandle(0) picTradeOffsRange 3 90\nshot still\n"
          "drag picHandle(0) picTradeOffsRange 160 200\nshot inconsistent\ntick Timer1 6\nshot blinked\n"
          "drag picHandle(0) picTradeOffsRange 60 72\nshot consistent\n"
          "drag picHandle(1) picTradeOffsRange 44 72\nclick cmdEnter\nshot entered\n",
          {{"opened", ""},
           {"invalid", "Invalid / Invalid"},
           {"still", " / "},
           {"inconsistent", "Inconsistent / Inconsistent"},
           {"blinked", " / "},
           {"consistent", "Consistent / Consistent"},
           {"entered", " / "}}};
}

inline AnnouncedWalk VerdictsOfTheTradeOffs() {
  return {1,
          "click cmdAttButtons(0)\nclick cmdAttButtons1(1)\nshot asked\nclick cmdNext\nshot opened\n"
          "drag shpPCA picTradeOffsRange 2900 1500\nshot invalid\ntick Timer1 6\nshot blinked\n"
          "drag shpPCB picTradeOffsRange 2200 300\nshot consistent\n",
          {{"opened", ""},
           {"invalid", "Invalid / Invalid"},
           {"blinked", " / "},
           {"consistent", "Consistent / Consistent"}}};
}

// `named` is what is told of a caption's new name besides the alert.
inline AnnouncedWalk References(const std::function<String(const String& name)>& named) {
  const String first = "Benefit reference: Outpatients";
  const String other = "Benefit reference: Inpatients";
  return {0,
          "shot opened\nclick cmdAttButtons(0)\nshot first\nclick cmdAttButtons(0)\nshot again\n"
          "click cmdAttButtons(1)\nshot other\n",
          {{"opened", ""},
           {"first", first + " / " + named(first)},
           {"again", " / "},
           {"other", other + " / " + named(other)}}};
}

// A window that is new names its parts, so of the moment of opening only what it says counts.
inline void ExpectTold(const AnnouncedWalk& walk, std::unique_ptr<Driver> driver, const std::function<String()>& take) {
  std::map<String, String> heard;
  PlayLookedAt(std::move(driver), TARNWISE_SAMPLES, ToReferences(walk.Method) + walk.Lines,
               [&](Form& /*form*/, const String& name) { heard[name] = take(); });
  heard["opened"].erase(heard["opened"].find(" / "));
  heard.erase("asked");
  EXPECT_EQ(heard, walk.Told);
}

}  // namespace Tarnwise
