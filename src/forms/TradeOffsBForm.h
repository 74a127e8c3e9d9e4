// Controls of the trade-off step: the chart of the two alternatives, the tools on their tabs, and the results page.
#pragma once

#include "forms/LightControls.h"
#include "forms/ResultsControls.h"

namespace Tarnwise {

// The chart of the two alternatives. Lengths are twips; the plot is 4200 x 4200.
struct AlternativesControls {
  AlternativesControls(Form& form, Control& stage);

  Frame frameChart;
  PictureBox picPCGraph;
  PictureBox picTradeOffsRange;  // the plot
  ControlArray<Line> GridV;
  ControlArray<Line> GridH;
  PictureBox shpPCA;           // Tag "PointA"
  PictureBox shpPCB;           // Tag "PointB"
  ControlArray<Label> labPCX;  // 0 to 6
  ControlArray<Label> labPCY;  // 0 to 6
  Label lblTradeOffFirstAtt;
  Label lblTradeOffSecondAtt;
  Shape shpPCHighest;
  Shape shpPCLowest;
  Label labPCHighest;
  Label labPCLowest;
  Image imgTargetAtt;
  Image imgRefAtt;
  ControlArray<Image> imgMarks;
};

// The tab "Attribute differences".
struct ScoreControls {
  ScoreControls(Form& form, Control& tools);

  Frame framePCNumericalC;
  Label labPCCriterion1;
  Label labPCCriterion2;
  ControlArray<Label> lblScore;  // "(&1):" to "(&4):" and the headings
  TextBox txtTradeOffAFirstScore;
  TextBox txtTradeOffASecondScore;
  TextBox txtTradeOffBFirstScore;
  TextBox txtTradeOffBSecondScore;
  ControlArray<Toolbar> tbScoreChanger;  // 0 to 3, in the order of the boxes (1) to (4)
  Label labTradeOffDiff1;
  Label labTradeOffDiff2;
};

// The tab "Judgment uncertainty".
struct UncertaintyControls {
  UncertaintyControls(Form& form, Control& tools);

  Frame frameJdgUnctn;
  Label lblUncertainty;
  Toolbar tbMovLeft;
  Toolbar tbMovRight;
  Toolbar tbMovDown;
  Toolbar tbMovUp;
  Toolbar tbCertain;
  Label lblSmallChange;
  ComboBox cmbChangeH;
  ComboBox cmbChangeV;
};

struct TradeOffsBForm : WizardForm {
  explicit TradeOffsBForm(std::shared_ptr<Platform> platform);

  ControlArray<PictureBox> picTabs;  // 0 judgment page, 1 results page
  PictureBox picTools;               // what the tabs bring to the front stands in it
  ScoreControls Scores;
  UncertaintyControls Uncertainty;
  AlternativesControls Chart;
  Label lblTarget;
  ImageCombo imgcmbTargetAtt;
  Frame frameRatio;
  Label lblRatioTitle;
  Label lblWeightRatio;
  CommandButton cmdEnter;
  CommandButton cmdReStart;
  TabStrip tbsTradeOffs;
  LightControls Lights;
  CommandButton cmdTarnwisePrint;
  ResultsControls Results;
};

}  // namespace Tarnwise
