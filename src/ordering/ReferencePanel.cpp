#include "ordering/ReferencePanel.h"

#include "ordering/RankTags.h"

namespace Tarnwise {

ReferencePanel::ReferencePanel(Group group, ReferenceControls& controls, PictureBox& mark, WizardData& data)
    : group_(group), controls_(controls), mark_(mark), data_(data) {
  Scrolls(controls_.Rows.vsrO, controls_.Rows.picOP);
  controls_.Rows.cmdAttButtons.Wire(
      [this](CommandButton& button) { button.Click = [this, &button] { ChooseReference(button); }; });
}

void ReferencePanel::AddButton(int k, const CommandButton& listed) {
  CommandButton& button = k == 0 ? controls_.Rows.cmdAttButtons[0] : controls_.Rows.cmdAttButtons.Load(k);
  button.Caption = listed.Caption();
  button.Tag = listed.Tag();
}

void ReferencePanel::BuildDisplay() {
  OrderDisplay& display = controls_.Rows;
  display.vsrO.Enabled = false;
  display.vsrO.Top = 0.0F;
  display.vsrO.Height = display.picOrderFrame.Height - 60.0F;
  const Single bottom = LayOutRows(display, FinishedRanks(data_, group_));
  if (display.picOrderFrame.Height + 20.0F < bottom) display.vsrO.Enabled = true;
}

const Variant& ReferencePanel::SavedReference() const {
  const SavedJudgments& saved = data_.SavedJudgments;
  return group_ == Group::Benefit ? saved.SavedBRefAttID : saved.SavedCRefAttID;
}

void ReferencePanel::ChooseReference(const CommandButton& button) {
  const int att = AttOfTag(button);
  controls_.lblRefAtt.Caption = data_.AttName(att);
  (group_ == Group::Benefit ? data_.BRefAttID : data_.CRefAttID) = static_cast<Integer>(att);
  if (NumberIn(SavedReference()) != att) data_.OrderChanged = true;
  mark_.Top = button.Top + (button.Height - mark_.Height) * 0.5F;
  mark_.Visible = true;
  mark_.ZOrder();
  Chosen();
}

// What is stored may belong to no attribute of the group: then nothing is chosen, and nobody is told.
void ReferencePanel::ChooseSavedReference() {
  const std::optional<Double> stored = NumberIn(SavedReference());
  if (!stored) return;
  CommandButton* found = nullptr;
  controls_.Rows.cmdAttButtons.Each([&](CommandButton& button) {
    if (!button.Tag().empty() && *stored == AttOfTag(button)) found = &button;
  });
  if (found != nullptr) ChooseReference(*found);
}

void ReferencePanel::Hide(int rows) {
  for (int row = 0; row < rows; ++row) {
    controls_.Rows.picO[row].Visible = false;
    controls_.Rows.lblOID[row].Visible = false;
  }
  ForgetName();
  mark_.Visible = false;
}

}  // namespace Tarnwise
