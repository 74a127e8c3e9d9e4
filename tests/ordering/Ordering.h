// The ordering step by itself, as its tests use it.
#pragma once

#include "ordering/frmIniImpOrder.h"
#include "support/TestHost.h"
#include "view/Input.h"

#include <gtest/gtest.h>

namespace Tarnwise {

constexpr Single kH = 375.0F;  // of a row button

struct Ordering : OpenForm<frmIniImpOrder> {
  explicit Ordering(const WizardData& model) : OpenForm(model) {
    Form->ShowTRNDirectB = [this] { Notes.push_back("direct"); };
    Form->ShowTRNTradeOffsB = [this] { Notes.push_back("trade-offs"); };
    Form->ShowTRNSelMethod = [this] { Notes.push_back("method"); };
    Form->UnloadIniImpOrder = [this] { Notes.push_back("close"); };
    Form->UnloadTarnwise = [this](Integer fIndex, Boolean done) {
      Notes.push_back("unload " + std::to_string(fIndex) + (done ? " done" : " cancelled"));
    };
  }

  void Place(int k, int row) { Drag("cmdAttA(" + std::to_string(k) + ")", "picOrder(" + std::to_string(row) + ")"); }
  void PlaceCost(int k, int row) {
    Drag("cmdAttA1(" + std::to_string(k) + ")", "picOrder1(" + std::to_string(row) + ")");
  }
  void Click(const String& control, int times = 1) {
    for (int i = 0; i < times; ++i) TestScreen::Click(control);
  }

  RankControls& B = Form->BRank;
  RankControls& C = Form->CRank;
};

// Two rows a group, all attributes placed as an earlier run left them: benefit 0 and 1 on rank 1, 2 on rank 2; cost 3
// on rank 1, 4 and 5 on rank 2.
inline WizardData AllPlaced() {
  WizardData model = ModelOf(3, 3);
  StoreJudgments(model, kDirectType, 0, 3, 1.0, {2.0, 2.0, 1.0, 2.0, 1.0, 1.0});
  return model;
}

inline bool InFrontOfAll(const Control& control) {
  for (const Control* other : control.Owner.Controls()) {
    if (other != &control && other->Parent == control.Parent && other->Order() > control.Order()) return false;
  }
  return true;
}

inline Single Bottom(const Control& control) { return control.Top + control.Height; }

}  // namespace Tarnwise
