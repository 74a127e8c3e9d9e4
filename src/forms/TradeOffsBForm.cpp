#include "forms/TradeOffsBForm.h"

namespace Tarnwise {

namespace {

// The tools' frame comes back to this place after a print, so it stands there from the start; the container's own
// place makes it the right half of the page.
constexpr Single kToolsLeft = 3855.0F;
constexpr Single kToolsTop = 2700.0F;
constexpr Single kToolsHeight = 3600.0F;

}  // namespace

TradeOffsBForm::TradeOffsBForm(std::shared_ptr<Platform> platform)
    : WizardForm(std::move(platform), "frmTradeOffsB", "cmdTarnwiseHelp"),
      picTabs(*this, this, "picTabs",
              [](PictureBox& page) { Place(page, kMargin, kHeadingHeight, kFormWidth - 2 * kMargin, kContentHeight); }),
      picTools(*this, &picTabs[0], "picTools"),
      Scores(*this, picTools),
      Uncertainty(*this, picTools),
      Chart(*this, picTabs[0]),
      lblTarget(*this, &picTabs[0], "lblTarget"),
      imgcmbTargetAtt(*this, &picTabs[0], "imgcmbTargetAtt"),
      frameRatio(*this, &picTabs[0], "frameRatio"),
      lblRatioTitle(*this, &frameRatio, "lblRatioTitle"),
      lblWeightRatio(*this, &frameRatio, "lblWeightRatio"),
      cmdEnter(*this, &frameRatio, "cmdEnter"),
      cmdReStart(*this, &frameRatio, "cmdReStart"),
      tbsTradeOffs(*this, &picTabs[0], "tbsTradeOffs"),
      Lights(*this, frameRatio),
      cmdTarnwisePrint(*this, this, "cmdTarnwisePrint"),
      Results(*this, picTabs.Load(1)) {
  Caption = "Tarnwise: Give your preference between the two selected criteria";
  const Single toolsLeft = kRightLeft - kToolsLeft;
  Place(picTools, toolsLeft, 0.0F, kFormWidth - 2 * kMargin - toolsLeft, kContentHeight);

  PutText(lblTarget, "Target attribute:", kRightLeft, 60.0F, kRightWidth);
  Place(imgcmbTargetAtt, kRightLeft, 330.0F, kRightWidth, 375.0F);
  imgcmbTargetAtt.TabIndex = 0;
  imgcmbTargetAtt.AccessibleName = "Target attribute";

  Place(frameRatio, kRightLeft, 780.0F, kRightWidth, 1440.0F);
  PutText(lblRatioTitle, "Relative importance (weight  ratio Wj/Wr):", 180.0F, 150.0F, kRightWidth - 360.0F);
  Place(lblWeightRatio, 180.0F, 450.0F, kRightWidth - 3450.0F, 375.0F);
  lblWeightRatio.Alignment = Align::Centre;
  lblWeightRatio.Bold = true;
  lblWeightRatio.Points = 12;
  cmdEnter.Caption = "&Enter";
  cmdReStart.Caption = "&Re-start All";
  const Single restartLeft = kRightWidth - kRestartWidth - 180.0F;
  Place(cmdEnter, restartLeft - 1275.0F - kGap, 435.0F, 1275.0F, kButtonHeight);
  Place(cmdReStart, restartLeft, 435.0F, kRestartWidth, kButtonHeight);
  cmdEnter.TabIndex = 12;
  cmdReStart.TabIndex = 13;
  PlaceLights(Lights, 180.0F, 900.0F, kRightWidth - 360.0F);

  Place(tbsTradeOffs, kRightLeft, kToolsTop - 390.0F, kRightWidth, 390.0F);
  tbsTradeOffs.Tabs = {{"Attribute differences", "AttDiff"}, {"Judgment uncertainty", "JdgUnctn"}};
  tbsTradeOffs.TabIndex = 30;
  Place(Scores.framePCNumericalC, kToolsLeft, kToolsTop, kRightWidth, kToolsHeight);
  Place(Uncertainty.frameJdgUnctn, kToolsLeft, kToolsTop, kRightWidth, kToolsHeight);

  cmdTarnwisePrint.Caption = "&Print";
  cmdTarnwisePrint.TabIndex = 905;
  Place(cmdTarnwisePrint, cmdHelp.Left + kButtonWidth + kGap, cmdHelp.Top, kButtonWidth, kButtonHeight);
}

}  // namespace Tarnwise
