// Stage 2 of the ordering step for one group: its finished order, and the reference that is chosen on it.
#pragma once

#include "forms/IniImpOrderForm.h"
#include "model/mdTRNMain.h"

namespace Tarnwise {

struct ReferencePanel {
  // `mark` blinks beside the chosen button.
  ReferencePanel(Group group, ReferenceControls& controls, PictureBox& mark, WizardData& data);

  std::function<void()> Chosen;

  // As the step opens: each attribute of the group in ascending id, k counted from 0, with its button in the list.
  void AddButton(int k, const CommandButton& listed);

  // On each Next of stage 1. Rows that an earlier visit made are used again.
  void BuildDisplay();
  void ChooseSavedReference();
  void ForgetName() { controls_.lblRefAtt.Caption = ""; }
  bool HasName() const { return !controls_.lblRefAtt.Caption().empty(); }

  // On Back: so many rows, the name and the mark go.
  void Hide(int rows);

 private:
  void ChooseReference(const CommandButton& button);
  const Variant& SavedReference() const;

  const Group group_;
  ReferenceControls& controls_;
  PictureBox& mark_;
  WizardData& data_;
};

}  // namespace Tarnwise
