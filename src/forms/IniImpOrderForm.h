// Controls of the ordering step. Both groups have the same set; the cost group's names bear a 1 at their end, or a C
// where the benefit group's bear a B.
#pragma once

#include "forms/OrderDisplay.h"

namespace Tarnwise {

// Stage 1 of one group: the attributes to be ranked, and the rank rows.
struct RankControls {
  RankControls(Form& form, Control& stage, bool benefit);

  Frame fmOA;  // fmBOA, fmCOA
  PictureBox picAttPanel;
  PictureBox picAttPLst;
  VScrollBar vsrAtt;
  ControlArray<CommandButton> cmdAttA;
  ControlArray<OptionButton> optAttInfo;
  ControlArray<Label> lblAttName;
  PictureBox picOrderPanel;
  PictureBox picOrderCon;
  VScrollBar vsrOrder;
  ControlArray<PictureBox> picOrder;
  ControlArray<Label> lblOrderID;
  ControlArray<CommandButton> cmdAttB;
  CommandButton cmdAdd;
  CommandButton cmdInsert;
  CommandButton cmdReset;  // cmdResetB, cmdResetC
};

// Stage 2 of one group: the finished order, and the reference that is chosen on it.
struct ReferenceControls {
  ReferenceControls(Form& form, Control& stage, bool benefit);

  OrderDisplay Rows;
  Label lblRefAtt;  // lblBRefAtt, lblCRefAtt
};

struct IniImpOrderForm : WizardForm {
  explicit IniImpOrderForm(std::shared_ptr<Platform> platform);

  ControlArray<PictureBox> picPanel;  // the two stages
  RankControls BRank;
  RankControls CRank;
  ReferenceControls BReference;
  ReferenceControls CReference;
  ControlArray<Label> lblTitle;
  ControlArray<Label> Label3;
  ControlArray<PictureBox> picIndicator;  // beside the chosen reference: 0 benefit, 1 cost
  Timer Timer1{*this, this, "Timer1"};
};

}  // namespace Tarnwise
