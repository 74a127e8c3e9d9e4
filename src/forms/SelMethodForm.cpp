#include "forms/SelMethodForm.h"

namespace Tarnwise {

SelMethodForm::SelMethodForm(std::shared_ptr<Platform> platform)
    : WizardForm(std::move(platform), "frmTRNSelMethod", "cmdHelp"),
      imgPicture(*this, this, "imgPicture", [](Image& image) { image.Visible = false; }) {
  Caption = "Tarnwise: Select an approach to elicit attribute weights";
  SetHeading("How would you like to weigh the attributes?",
             "Choose an approach. You can come back here and choose the other one.");

  const Single pictureWidth = 6000.0F;
  const Single listLeft = kMargin + pictureWidth + 2 * kMargin;
  const Single listWidth = kFormWidth - kMargin - listLeft;
  Place(picPicture, kMargin, kHeadingHeight + kGap, pictureWidth, 6000.0F);
  picPicture.BackColor = 0xFFFFFF;
  picPicture.Bordered = true;
  picPicture.AccessibleName = "Picture of the selected approach";

  Place(lstMethods, listLeft, kHeadingHeight + kGap, listWidth, 1050.0F);
  lstMethods.TabIndex = 0;
  lstMethods.AccessibleName = "Approach";
  Place(lblDescription, listLeft, kHeadingHeight + kGap + 1230.0F, listWidth, 1500.0F);
  lblDescription.WordWrap = true;

  Place(chkIncnsistCtrl, listLeft, kHeadingHeight + kGap + 2910.0F, listWidth, 330.0F);
  chkIncnsistCtrl.Caption = "Check judgments for &inconsistency";
  chkIncnsistCtrl.ToolTipText =
      "A judgment that contradicts the ranks or its neighbours is shown at once and not taken.";
  chkIncnsistCtrl.TabIndex = 1;

  imgPicture.Load(1);
  imgPicture[0].Picture = "approach.direct";
  imgPicture[1].Picture = "approach.tradeoffs";
}

}  // namespace Tarnwise
