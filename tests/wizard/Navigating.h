// A user on the way through the wizard, and what each of his clicks moves.
#pragma once

#include "Places.h"

namespace Tarnwise {

// Forms and events, without the pointer and the focus.
inline Lines Moves(const Lines& notes) {
  Lines moves;
  for (const String& note : notes) {
    if (!note.starts_with("pointer") && !note.starts_with("focus")) moves.push_back(note);
  }
  return moves;
}

inline VariantArray Zeros() { return VariantArray(4, Variant(0.0)); }

struct Navigation : Wizarding {
  explicit Navigation(const WizardData& model = Model()) : Wizarding(model) {
    Load();
    const VariantArray zeros = Zeros();
    Wizard->TranferABCoordinates(zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros, zeros);
    TakeNotes();
  }

  // What one click does, at the place that the steps lead to.
  Lines MovesOf(Steps steps, const Steps& then) {
    steps.push_back([this] { TakeNotes(); });
    Lines moves;
    steps.insert(steps.end(), then.begin(), then.end());
    steps.push_back([this, &moves] { moves = Moves(Notes); });
    Run(steps);
    return moves;
  }
};

}  // namespace Tarnwise
