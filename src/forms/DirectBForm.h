// Controls of the direct step: the judgment stage with its chart, and the results stage.
#pragma once

#include "forms/LightControls.h"
#include "forms/OrderDisplay.h"
#include "forms/ResultsControls.h"

namespace Tarnwise {

// The chart of the value reference region.
struct ChartControls {
  ChartControls(Form& form, Control& stage);

  Frame framePCChart;
  PictureBox picPCGraph;         // pixel scale
  PictureBox picTradeOffsRange;  // pixel scale, 252 x 252
  ControlArray<Line> GridV;
  ControlArray<Line> GridH;
  ControlArray<Line> BorderL;  // the rays
  ControlArray<PictureBox> picHandle;
  ControlArray<Label> labPCX;  // 1 to 6
  ControlArray<Label> labPCY;  // 0 to 6
  Label labPCWorstT;
  Label labPCBestT;
  Label lblChartTarAtt;
  Label lblChartRefAtt;
  Image imgTargetAtt;
  Image imgRefAtt;
  ControlArray<Image> imgMarks;  // stored: benefit target, benefit reference, cost target, cost reference
};

struct DirectBForm : WizardForm {
  explicit DirectBForm(std::shared_ptr<Platform> platform);

  ControlArray<PictureBox> picPanel;  // 0 judgment, 1 results
  ChartControls Chart;
  ControlArray<Label> lblseries;  // 0 over the list, 1 and 3 "From", 2 over the lights, 4 "to"
  ImageCombo imgcmbTargetAtt;
  Frame Frame3;
  ControlArray<Label> Label1;
  TextBox txtWRLower;
  TextBox txtWRUpper;
  CommandButton cmdEnter;
  CommandButton cmdReStart;
  TabStrip tsTab;
  OrderDisplay BOrder;
  OrderDisplay COrder;
  Frame framePerfRange;
  Label lblTargetAtt;
  Label lblRefAtt;
  Label lblTarRangeLow;
  Label lblTarRangeHigh;
  Label lblRefRangeLow;
  Label lblRefRangeHigh;
  LightControls Lights;
  ResultsControls Results;

 private:
  void LayOutEntry();
  void LayOutTabs();
};

}  // namespace Tarnwise
