// A session on a real toolkit that is looked at on its way: each line `shot NAME` of the script calls Look.
#pragma once

#include "play/Player.h"
#include "view/Driver.h"
#include "view/Platform.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <utility>

namespace Tarnwise {

using Look = std::function<void(Form& form, const String& name)>;

class LookedDriver : public Driver {
 public:
  LookedDriver(std::unique_ptr<Driver> real, Look look) : real_(std::move(real)), look_(std::move(look)) {}

  std::shared_ptr<Platform> Screen() override { return real_->Screen(); }
  void SetPump(std::function<bool()> pump) override { real_->SetPump(std::move(pump)); }
  void Click(Control& control) override { real_->Click(control); }
  void Select(Control& list, int index) override { real_->Select(list, index); }
  void PressTool(Toolbar& toolbar, const String& key) override { real_->PressTool(toolbar, key); }
  void Focus(Control& control) override { real_->Focus(control); }
  void Key(Form& form, const KeyStroke& key) override { real_->Key(form, key); }
  void Grab(Control& source) override { real_->Grab(source); }
  void Over(Control& target, ControlPoint at) override { real_->Over(target, at); }
  void OverNothing() override { real_->OverNothing(); }
  void Drop() override { real_->Drop(); }
  void Scroll(VScrollBar& bar, int value) override { real_->Scroll(bar, value); }
  void Tick(Timer& timer) override { real_->Tick(timer); }
  void Close(Form& form) override { real_->Close(form); }
  bool TakesPictures() const override { return false; }  // of its own: no folder is made
  bool Shot(Form& form, const String& path) override {
    look_(form, path.substr(path.find_last_of("\\/") + 1));
    return true;
  }

 private:
  std::unique_ptr<Driver> real_;
  Look look_;
};

// Plays the lines on the models of `folder`. None of them may be refused.
inline void PlayLookedAt(std::unique_ptr<Driver> real, const String& folder, const String& lines, Look look) {
  LookedDriver driver(std::move(real), std::move(look));
  std::istringstream script(lines);
  std::ostringstream out;
  std::ostringstream errors;
  EXPECT_EQ(Player(driver, script, folder, "looks", out, errors).Play(), 0) << errors.str() << out.str();
}

// Script lines on samples/hospitals.kst that open the ordering step's second stage, on the way to the direct step (0)
// or to the trade-offs (1).
inline String ToReferences(int method) {
  return "host load hospitals.kst\nhost points zero\nhost show\nselect lstMethods " + std::to_string(method) +
         "\nclick cmdNext\ndrag cmdAttA(1) picOrder(0)\nclick cmdAdd\ndrag cmdAttA(0) picOrder(1)\n"
         "drag cmdAttA1(0) picOrder1(0)\nclick cmdAdd1\ndrag cmdAttA1(1) picOrder1(1)\nclick cmdNext\n";
}

// Every step of that way on the screen, each with a `shot` of its own.
inline String EveryStep(int method) {
  const String opening = "host load hospitals.kst\nhost points zero\nhost show\nselect lstMethods " +
                         std::to_string(method) +
                         "\nshot approach\nclick cmdNext\nshot unranked\ndrag cmdAttA(1) picOrder(0)\nclick cmdAdd\n"
                         "click lblOrderID(0)\nshot ranking\n";
  const String references = ToReferences(method).substr(ToReferences(method).find("drag cmdAttA(0)"));
  const String direct =
      "shot judging\ndrag picHandle(0) picTradeOffsRange 2 100\nshot invalid\ntick Timer1\nshot invalid-blinks\n"
      "tick Timer1\ndrag picHandle(0) picTradeOffsRange 160 200\nshot inconsistent\n"
      "drag picHandle(0) picTradeOffsRange 60 72\ndrag picHandle(1) picTradeOffsRange 44 72\nshot consistent\n"
      "click cmdEnter\nselect imgcmbTargetAtt 4\ndrag picHandle(0) picTradeOffsRange 80 60\nclick cmdEnter\n"
      "select tsTab 2\nshot range\nselect imgcmbTargetAtt 2\nshot reference-pair\n";
  const String tradeOffs =
      "shot judging\ndrag shpPCA picTradeOffsRange 2900 1500\nshot invalid\ntick Timer1\nshot invalid-blinks\n"
      "drag shpPCB picTradeOffsRange 2200 300\nselect tbsTradeOffs 2\npress tbMovRight MovRight\n"
      "press tbMovLeft MovLeft\nshot uncertain\nclick cmdEnter\nselect imgcmbTargetAtt 4\nselect tbsTradeOffs 1\n"
      "drag shpPCA picTradeOffsRange 2600 2800\ndrag shpPCB picTradeOffsRange 1400 1240\nshot scores\nclick cmdEnter\n"
      "select imgcmbTargetAtt 2\nselect tbsTradeOffs 2\nshot reference-pair\n";
  return opening + references + "shot asked\nclick cmdAttButtons(0)\nclick cmdAttButtons1(1)\nshot references\n" +
         "click cmdNext\n" + (method == 0 ? direct : tradeOffs) + "click cmdEnter\nclick cmdNext\nshot results\n" +
         "select tsWeightRatios 2\nshot cost-results\n";
}

}  // namespace Tarnwise
