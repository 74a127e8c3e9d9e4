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

}  // namespace Tarnwise
