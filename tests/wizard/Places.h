// Where in the wizard a test's user stands, and the clicks that lead there.
#pragma once

#include "support/TestHost.h"
#include "view/Input.h"

#include <gtest/gtest.h>

namespace Tarnwise {

using Steps = std::vector<std::function<void()>>;

struct Wizarding : TestHost {
  using TestHost::TestHost;

  // Clicks and drags as steps of a user.
  std::function<void()> Clicks(const String& control) {
    return [this, control] { Click(control); };
  }
  std::function<void()> Drags(const String& source, const String& target) {
    return [this, source, target] { Drag(source, target); };
  }
  std::function<void()> Chooses(int approach) {
    return [this, approach] { Input::SelectRow(Named("lstMethods"), approach); };
  }

  std::function<void()> Shows() {
    return [this] { Wizard->ShowTarnwise(); };
  }

  // Two benefit attributes on two ranks and two costs on two ranks, each group's first the reference.
  Steps ToOrdering() { return {Shows(), Clicks("cmdNext")}; }
  Steps ToReferences() {
    return Joined(ToOrdering(),
                  {Drags("cmdAttA(0)", "picOrder(0)"), Clicks("cmdAdd"), Drags("cmdAttA(1)", "picOrder(1)"),
                   Drags("cmdAttA1(0)", "picOrder1(0)"), Clicks("cmdAdd1"), Drags("cmdAttA1(1)", "picOrder1(1)"),
                   Clicks("cmdNext"), Clicks("cmdAttButtons(0)"), Clicks("cmdAttButtons1(0)")});
  }
  Steps ToJudgments() { return Joined(ToReferences(), {Clicks("cmdNext")}); }
  // Every pair is entered as it is shown, then the reference pair, then the results.
  Steps ToResults() {
    return Joined(ToJudgments(), {Clicks("cmdEnter"), Picks(4), Clicks("cmdEnter"), Clicks("cmdNext")});
  }
  std::function<void()> Picks(int item) {
    return [this, item] { Input::SelectRow(Named("imgcmbTargetAtt"), item); };
  }

  static Steps Joined(Steps first, const Steps& then) {
    first.insert(first.end(), then.begin(), then.end());
    return first;
  }

  static WizardData Model() { return ModelOf(2, 2); }
  static WizardData Judged(const char* type = kDirectType) {
    WizardData model = ModelOf(2, 2);
    StoreJudgments(model, type, 0, 2, 1.5, {1.0, 0.5, 1.0, 0.5});
    return model;
  }
  // From stored judgments it is Next all the way.
  Steps ToStoredJudgments() { return Joined(ToOrdering(), {Clicks("cmdNext"), Clicks("cmdNext")}); }
};

}  // namespace Tarnwise
