#include "forms/TradeOffsBForm.h"

namespace Tarnwise {

namespace {

constexpr Single kScatterSide = 4200.0F;
constexpr Single kScatterLeft = 705.0F;  // in the graph
constexpr Single kScatterTop = 330.0F;
constexpr Single kGraphWidth = kScatterLeft + kScatterSide + 525.0F;
constexpr Single kGraphHeight = kScatterTop + kScatterSide + 660.0F;
constexpr Single kMarkSide = 150.0F;
constexpr Single kCornerSide = 165.0F;

void Mark(PictureBox& mark, const char* tag, const char* picture, const char* name, int tabIndex) {
  Place(mark, 0.0F, 0.0F, kMarkSide, kMarkSide);
  mark.Tag = tag;
  mark.Picture = picture;
  mark.AccessibleName = name;
  mark.DragAutomatic = true;
  mark.KeyboardDrag = DragBy::Units;
  mark.TabIndex = tabIndex;
}

void Corner(Shape& shape, Label& caption, const char* name) {
  Place(shape, 0.0F, 0.0F, kCornerSide, kCornerSide);
  Place(caption, 0.0F, 0.0F, 660.0F, 240.0F);
  caption.Caption = name;
  caption.Bold = true;
  caption.Points = 8;
}

void PlaceTools(Toolbar& toolbar, Single left, Single top, const char* name, std::vector<Toolbar::Button> buttons) {
  Place(toolbar, left, top, 420.0F * static_cast<Single>(buttons.size()) + 60.0F, 420.0F);
  toolbar.Buttons = std::move(buttons);
  toolbar.AccessibleName = name;
}

}  // namespace

AlternativesControls::AlternativesControls(Form& form, Control& stage)
    : frameChart(form, &stage, "frameChart"),
      picPCGraph(form, &frameChart, "picPCGraph"),
      picTradeOffsRange(form, &picPCGraph, "picTradeOffsRange"),
      GridV(form, &picTradeOffsRange, "GridV", [](Line& line) { line.BorderColor = 0xE0E0E0; }),
      GridH(form, &picTradeOffsRange, "GridH", [](Line& line) { line.BorderColor = 0xE0E0E0; }),
      shpPCA(form, &picTradeOffsRange, "shpPCA"),
      shpPCB(form, &picTradeOffsRange, "shpPCB"),
      labPCX(form, &picPCGraph, "labPCX", [](Label& label) { label.Alignment = Align::Centre; }),
      labPCY(form, &picPCGraph, "labPCY", [](Label& label) { label.Alignment = Align::Right; }),
      lblTradeOffFirstAtt(form, &frameChart, "lblTradeOffFirstAtt"),
      lblTradeOffSecondAtt(form, &frameChart, "lblTradeOffSecondAtt"),
      shpPCHighest(form, &picPCGraph, "shpPCHighest"),
      shpPCLowest(form, &picPCGraph, "shpPCLowest"),
      labPCHighest(form, &picPCGraph, "labPCHighest"),
      labPCLowest(form, &picPCGraph, "labPCLowest"),
      imgTargetAtt(form, &frameChart, "imgTargetAtt"),
      imgRefAtt(form, &frameChart, "imgRefAtt"),
      imgMarks(form, &frameChart, "imgMarks", [](Image& image) { image.Visible = false; }) {
  Place(frameChart, 0.0F, 0.0F, kChartFrameWidth, kChartFrameHeight);
  frameChart.Caption = "Alternatives A and B";
  Place(picPCGraph, 570.0F, 690.0F, kGraphWidth, kGraphHeight);
  Place(picTradeOffsRange, kScatterLeft, kScatterTop, kScatterSide, kScatterSide);
  picTradeOffsRange.BackColor = 0xFFFFFF;
  picTradeOffsRange.Bordered = true;
  picTradeOffsRange.AccessibleName = "Chart of the two alternatives";
  for (int i = 0; i < 5; ++i) {
    const Single along = kScatterSide / 6.0F * static_cast<Single>(i + 1);
    Line& v = i == 0 ? GridV[0] : GridV.Load(i);
    Line& h = i == 0 ? GridH[0] : GridH.Load(i);
    v.X1 = v.X2 = along;
    v.Y2 = kScatterSide;
    h.Y1 = h.Y2 = along;
    h.X2 = kScatterSide;
  }
  Mark(shpPCA, "PointA", "drag.A", "Alternative A", 20);
  Mark(shpPCB, "PointB", "drag.B", "Alternative B", 21);
  for (int k = 0; k <= 6; ++k) {
    Label& x = k == 0 ? labPCX[0] : labPCX.Load(k);
    Label& y = k == 0 ? labPCY[0] : labPCY.Load(k);
    const Single along = kScatterSide / 6.0F * static_cast<Single>(k);
    Place(x, kScatterLeft + along - 330.0F, kScatterTop + kScatterSide + 75.0F, 660.0F, 240.0F);
    Place(y, 0.0F, kScatterTop + kScatterSide - along - 120.0F, kScatterLeft - 90.0F, 240.0F);
    x.Points = 8;
    y.Points = 8;
  }
  Corner(shpPCHighest, labPCHighest, "BEST");
  Corner(shpPCLowest, labPCLowest, "WORST");
  shpPCHighest.FillColor = 0x3A8A2E;
  shpPCLowest.FillColor = 0x2E2EB0;
  Place(imgRefAtt, 240.0F, 315.0F, 330.0F, 330.0F);
  Place(lblTradeOffSecondAtt, 630.0F, 345.0F, kChartFrameWidth - 870.0F, 285.0F);
  Place(imgTargetAtt, kChartFrameWidth - 570.0F, kChartFrameHeight - 435.0F, 330.0F, 330.0F);
  Place(lblTradeOffFirstAtt, 240.0F, kChartFrameHeight - 405.0F, kChartFrameWidth - 870.0F, 285.0F);
  lblTradeOffFirstAtt.Alignment = Align::Right;
  const char* const marks[] = {"mark.benefitTarget", "mark.benefitReference", "mark.costTarget", "mark.costReference"};
  for (int i = 0; i < 4; ++i) (i == 0 ? imgMarks[0] : imgMarks.Load(i)).Picture = marks[i];
}

ScoreControls::ScoreControls(Form& form, Control& tools)
    : framePCNumericalC(form, &tools, "framePCNumericalC"),
      labPCCriterion1(form, &framePCNumericalC, "labPCCriterion1"),
      labPCCriterion2(form, &framePCNumericalC, "labPCCriterion2"),
      lblScore(form, &framePCNumericalC, "lblScore", [](Label& /*label*/) {}),
      txtTradeOffAFirstScore(form, &framePCNumericalC, "txtTradeOffAFirstScore"),
      txtTradeOffASecondScore(form, &framePCNumericalC, "txtTradeOffASecondScore"),
      txtTradeOffBFirstScore(form, &framePCNumericalC, "txtTradeOffBFirstScore"),
      txtTradeOffBSecondScore(form, &framePCNumericalC, "txtTradeOffBSecondScore"),
      tbScoreChanger(form, &framePCNumericalC, "tbScoreChanger",
                     [](Toolbar& toolbar) {
                       toolbar.Buttons = {{"Up", "A little more", "up"}, {"Down", "A little less", "down"}};
                     }),
      labTradeOffDiff1(form, &framePCNumericalC, "labTradeOffDiff1"),
      labTradeOffDiff2(form, &framePCNumericalC, "labTradeOffDiff2") {
  constexpr Single columns[] = {1215.0F, 4095.0F};
  constexpr Single rows[] = {780.0F, 1560.0F};
  PutText(labPCCriterion1, "Attribute 1", columns[0], 330.0F, 2280.0F);
  PutText(labPCCriterion2, "Attribute 2", columns[1], 330.0F, 2280.0F);
  labPCCriterion1.Bold = true;
  labPCCriterion2.Bold = true;
  PutText(lblScore[0], "(&1):", columns[0], rows[0] + 75.0F, 420.0F);
  PutText(lblScore.Load(1), "(&2):", columns[1], rows[0] + 75.0F, 420.0F);
  PutText(lblScore.Load(2), "(&3):", columns[0], rows[1] + 75.0F, 420.0F);
  PutText(lblScore.Load(3), "(&4):", columns[1], rows[1] + 75.0F, 420.0F);
  PutText(lblScore.Load(4), "A", 240.0F, rows[0] + 75.0F, 900.0F);
  PutText(lblScore.Load(5), "B", 240.0F, rows[1] + 75.0F, 900.0F);
  PutText(lblScore.Load(6), "Diff.", 240.0F, 2520.0F, 900.0F);
  PutText(lblScore.Load(7), "(1)-(3):", columns[0], 2520.0F, 720.0F);
  PutText(lblScore.Load(8), "(2)-(4):", columns[1], 2520.0F, 720.0F);
  for (const int heading : {4, 5, 6}) lblScore[heading].Bold = true;
  TextBox* const boxes[] = {&txtTradeOffAFirstScore, &txtTradeOffASecondScore, &txtTradeOffBFirstScore,
                            &txtTradeOffBSecondScore};
  const char* const names[] = {"First score of A", "Second score of A", "First score of B", "Second score of B"};
  for (int i = 0; i < 4; ++i) {
    const Single left = columns[i % 2] + 435.0F;
    const Single top = rows[i / 2];
    Place(*boxes[i], left, top, 930.0F, 375.0F);
    boxes[i]->AccessibleName = names[i];
    boxes[i]->TabIndex = 40 + i;
    Toolbar& changer = i == 0 ? tbScoreChanger[0] : tbScoreChanger.Load(i);
    Place(changer, left + 960.0F, top - 22.0F, 840.0F, 420.0F);
    changer.AccessibleName = String("Change the ") + names[i];
    changer.TabIndex = 50;
  }
  // A mnemonic takes the focus to what follows its label in the tab order.
  for (int i = 0; i < 4; ++i) lblScore[i].TabIndex = 40 + i;
  PutText(labTradeOffDiff1, "", columns[0] + 735.0F, 2520.0F, 1500.0F);
  PutText(labTradeOffDiff2, "", columns[1] + 735.0F, 2520.0F, 1500.0F);
}

UncertaintyControls::UncertaintyControls(Form& form, Control& tools)
    : frameJdgUnctn(form, &tools, "frameJdgUnctn"),
      lblUncertainty(form, &frameJdgUnctn, "lblUncertainty"),
      tbMovLeft(form, &frameJdgUnctn, "tbMovLeft"),
      tbMovRight(form, &frameJdgUnctn, "tbMovRight"),
      tbMovDown(form, &frameJdgUnctn, "tbMovDown"),
      tbMovUp(form, &frameJdgUnctn, "tbMovUp"),
      tbCertain(form, &frameJdgUnctn, "tbCertain"),
      lblSmallChange(form, &frameJdgUnctn, "lblSmallChange"),
      cmbChangeH(form, &frameJdgUnctn, "cmbChangeH"),
      cmbChangeV(form, &frameJdgUnctn, "cmbChangeV") {
  PutText(lblUncertainty, "Stretch A into a line, along one attribute:", 240.0F, 330.0F, 4500.0F);
  PlaceTools(tbMovUp, 1470.0F, 780.0F, "Upper end of A",
             {{"MovUp", "Move the upper end up", "up"}, {"MovUpBack", "Move the upper end back", "upback"}});
  PlaceTools(
      tbMovLeft, 300.0F, 1500.0F, "Left end of A",
      {{"MovLeft", "Move the left end to the left", "left"}, {"MovLeftBack", "Move the left end back", "leftback"}});
  PlaceTools(tbCertain, 1710.0F, 1500.0F, "Undo", {{"Certain", "Back to what was entered last", "certain"}});
  PlaceTools(tbMovRight, 2700.0F, 1500.0F, "Right end of A",
             {{"MovRightBack", "Move the right end back", "rightback"},
              {"MovRight", "Move the right end to the right", "right"}});
  PlaceTools(tbMovDown, 1470.0F, 2220.0F, "Lower end of A",
             {{"MovDownBack", "Move the lower end back", "downback"}, {"MovDown", "Move the lower end down", "down"}});
  PutText(lblSmallChange, "Small change:", 4380.0F, 1230.0F, 1500.0F);
  Place(cmbChangeH, 4380.0F, 1530.0F, 1380.0F, 375.0F);
  Place(cmbChangeV, 4380.0F, 1530.0F, 1380.0F, 375.0F);
  cmbChangeH.AccessibleName = "Small change along the first attribute";
  cmbChangeV.AccessibleName = "Small change along the second attribute";
  int tabIndex = 60;
  for (Toolbar* const toolbar : {&tbMovUp, &tbMovLeft, &tbCertain, &tbMovRight, &tbMovDown}) {
    toolbar->TabIndex = tabIndex++;
  }
  cmbChangeH.TabIndex = tabIndex++;
  cmbChangeV.TabIndex = tabIndex;
}

}  // namespace Tarnwise
