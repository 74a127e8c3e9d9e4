#include "forms/DirectBForm.h"

namespace Tarnwise {

namespace {

constexpr Single kEntryTop = 750.0F;
constexpr Single kTabTop = 2010.0F;
constexpr Single kOrderTabHeight = 390.0F;

}  // namespace

DirectBForm::DirectBForm(std::shared_ptr<Platform> platform)
    : WizardForm(std::move(platform), "frmDirectB", "cmdHelp"),
      picPanel(
          *this, this, "picPanel",
          [](PictureBox& panel) { Place(panel, kMargin, kHeadingHeight, kFormWidth - 2 * kMargin, kContentHeight); }),
      Chart(*this, picPanel[0]),
      lblseries(*this, &picPanel[0], "lblseries", [](Label& /*label*/) {}),
      imgcmbTargetAtt(*this, &picPanel[0], "imgcmbTargetAtt"),
      Frame3(*this, &picPanel[0], "Frame3"),
      Label1(*this, &Frame3, "Label1", [](Label& /*label*/) {}),
      txtWRLower(*this, &Frame3, "txtWRLower"),
      txtWRUpper(*this, &Frame3, "txtWRUpper"),
      cmdEnter(*this, &Frame3, "cmdEnter"),
      cmdReStart(*this, &Frame3, "cmdReStart"),
      tsTab(*this, &picPanel[0], "tsTab"),
      BOrder(*this, picPanel[0], true, 60),
      COrder(*this, picPanel[0], false, 70),
      framePerfRange(*this, &picPanel[0], "framePerfRange"),
      lblTargetAtt(*this, &framePerfRange, "lblTargetAtt"),
      lblRefAtt(*this, &framePerfRange, "lblRefAtt"),
      lblTarRangeLow(*this, &framePerfRange, "lblTarRangeLow"),
      lblTarRangeHigh(*this, &framePerfRange, "lblTarRangeHigh"),
      lblRefRangeLow(*this, &framePerfRange, "lblRefRangeLow"),
      lblRefRangeHigh(*this, &framePerfRange, "lblRefRangeHigh"),
      Lights(*this, picPanel[0]),
      Results(*this, picPanel.Load(1)) {
  cmdFinish.Enabled = false;
  LayOutEntry();
  LayOutTabs();
}

void DirectBForm::LayOutEntry() {
  PutText(lblseries[0], "Target attribute:", kRightLeft, 60.0F, kRightWidth);
  Place(imgcmbTargetAtt, kRightLeft, 330.0F, kRightWidth, 375.0F);
  imgcmbTargetAtt.TabIndex = 0;
  imgcmbTargetAtt.AccessibleName = "Target attribute";

  Place(Frame3, kRightLeft, kEntryTop, kRightWidth, 1140.0F);
  Frame3.Caption = "Relative importance (weight ratio Wj/Wr)";
  const Single row = 480.0F;
  PutText(Label1[0], "From:", 180.0F, row + 60.0F, 540.0F);
  Place(txtWRLower, 735.0F, row, 780.0F, 375.0F);
  PutText(Label1.Load(2), "/1", 1545.0F, row + 60.0F, 240.0F);
  PutText(Label1.Load(1), "To:", 1905.0F, row + 60.0F, 330.0F);
  Place(txtWRUpper, 2265.0F, row, 780.0F, 375.0F);
  PutText(Label1.Load(3), "/1", 3075.0F, row + 60.0F, 240.0F);
  const Single restartLeft = kRightWidth - kRestartWidth - 180.0F;
  Place(cmdEnter, restartLeft - 1275.0F - kGap, row - 22.0F, 1275.0F, kButtonHeight);
  Place(cmdReStart, restartLeft, row - 22.0F, kRestartWidth, kButtonHeight);
  txtWRLower.AccessibleName = "Weight ratio from";
  txtWRUpper.AccessibleName = "Weight ratio to";
  cmdEnter.Caption = "&Enter";
  cmdReStart.Caption = "&Re-start All";
  txtWRLower.TabIndex = 10;
  txtWRUpper.TabIndex = 11;
  cmdEnter.TabIndex = 12;
  cmdReStart.TabIndex = 13;
}

void DirectBForm::LayOutTabs() {
  Place(tsTab, kRightLeft, kTabTop, kRightWidth, kOrderTabHeight);
  tsTab.Tabs = {{"Importance order", "PreOrder"}, {"Performance range", "PerfRange"}};
  tsTab.TabIndex = 50;
  const Single panelTop = kTabTop + kOrderTabHeight;
  PlaceDisplay(BOrder, kRightLeft, panelTop, kRightWidth);
  PlaceDisplay(COrder, kRightLeft, panelTop, kRightWidth);
  Place(framePerfRange, kRightLeft, panelTop, kRightWidth, kOrderFrameHeight);

  const Single valueWidth = 1500.0F;
  const Single from = 720.0F;
  const Single to = from + valueWidth + 540.0F;
  for (Label* label : {&lblTargetAtt, &lblRefAtt}) label->Bold = true;
  Place(lblTargetAtt, 240.0F, 480.0F, kRightWidth - 480.0F, 285.0F);
  PutText(lblseries.Load(1, &framePerfRange), "From", 240.0F, 840.0F, 450.0F);
  Place(lblTarRangeLow, from, 840.0F, valueWidth, 285.0F);
  PutText(lblseries.Load(4, &framePerfRange), "to", to - 390.0F, 840.0F, 300.0F);
  Place(lblTarRangeHigh, to, 840.0F, valueWidth, 285.0F);
  Place(lblRefAtt, 240.0F, 1560.0F, kRightWidth - 480.0F, 285.0F);
  PutText(lblseries.Load(3, &framePerfRange), "From", 240.0F, 1920.0F, 450.0F);
  Place(lblRefRangeLow, from, 1920.0F, valueWidth, 285.0F);
  PutText(lblseries.Load(5, &framePerfRange), "to", to - 390.0F, 1920.0F, 300.0F);
  Place(lblRefRangeHigh, to, 1920.0F, valueWidth, 285.0F);

  const Single lightsTop = panelTop + kOrderFrameHeight + 240.0F;
  PutText(lblseries.Load(2), "Status of the current judgment:", kRightLeft, lightsTop, kRightWidth);
  PlaceLights(Lights, kRightLeft, lightsTop + 300.0F, kRightWidth);
}

}  // namespace Tarnwise
