#include "forms/DirectBForm.h"

namespace Tarnwise {

namespace {

constexpr Single kGraphLeft = 1290.0F;
constexpr Single kGraphTop = 1050.0F;
constexpr Single kGraphSide = 3900.0F;
constexpr Single kRange = 252.0F;  // pixels
constexpr Single kInset = 4.0F;    // of the range in the graph, pixels
constexpr Single kPlotLeft = kGraphLeft + kInset * kTwipsPerPixel;
constexpr Single kPlotBottom = kGraphTop + (kInset + kRange) * kTwipsPerPixel;
constexpr Single kTick = 630.0F;
constexpr Colour kGridColour = 0xE0E0E0;
constexpr Colour kRayColour = 0x0000C0;

void Tick(Label& label, int number, Single left, Single top, Align alignment) {
  label.Caption = std::to_string(number);
  label.Alignment = alignment;
  Place(label, left, top, 300.0F, 255.0F);
}

void LineAt(Line& line, Single x1, Single y1, Single x2, Single y2, Colour colour) {
  line.X1 = x1;
  line.Y1 = y1;
  line.X2 = x2;
  line.Y2 = y2;
  line.BorderColor = colour;
}

}  // namespace

ChartControls::ChartControls(Form& form, Control& stage)
    : framePCChart(form, &stage, "framePCChart"),
      picPCGraph(form, &framePCChart, "picPCGraph"),
      picTradeOffsRange(form, &picPCGraph, "picTradeOffsRange"),
      GridV(form, &picTradeOffsRange, "GridV", [](Line& /*line*/) {}),
      GridH(form, &picTradeOffsRange, "GridH", [](Line& /*line*/) {}),
      BorderL(form, &picTradeOffsRange, "BorderL", [](Line& /*line*/) {}),
      picHandle(form, &picTradeOffsRange, "picHandle",
                [](PictureBox& handle) {
                  Place(handle, 0.0F, 0.0F, 6.0F, 6.0F);
                  handle.BackColor = kRayColour;
                  handle.DragAutomatic = true;
                  handle.KeyboardDrag = DragBy::Units;
                  handle.TabIndex = 20;
                }),
      labPCX(form, &framePCChart, "labPCX", [](Label& /*label*/) {}),
      labPCY(form, &framePCChart, "labPCY", [](Label& /*label*/) {}),
      labPCWorstT(form, &framePCChart, "labPCWorstT"),
      labPCBestT(form, &framePCChart, "labPCBestT"),
      lblChartTarAtt(form, &framePCChart, "lblChartTarAtt"),
      lblChartRefAtt(form, &framePCChart, "lblChartRefAtt"),
      imgTargetAtt(form, &framePCChart, "imgTargetAtt"),
      imgRefAtt(form, &framePCChart, "imgRefAtt"),
      imgMarks(form, &framePCChart, "imgMarks", [](Image& image) { image.Visible = false; }) {
  Place(framePCChart, 0.0F, 60.0F, kChartFrameWidth, kChartFrameHeight);
  framePCChart.Caption = "Value reference region";
  Place(picPCGraph, kGraphLeft, kGraphTop, kGraphSide, kGraphSide);
  picPCGraph.Scale = ScaleMode::Pixels;
  picPCGraph.BackColor = 0xFFFFFF;
  picPCGraph.Bordered = true;
  Place(picTradeOffsRange, kInset, kInset, kRange, kRange);
  picTradeOffsRange.Scale = ScaleMode::Pixels;
  picTradeOffsRange.BackColor = 0xFFFFFF;
  picTradeOffsRange.AccessibleName = "Chart of the two weights";

  for (int i = 0; i < 5; ++i) {
    const Single x = 625.0F * static_cast<Single>(i + 1) / kTwipsPerPixel;
    const Single y = kTick * static_cast<Single>(i + 1) / kTwipsPerPixel;
    LineAt(i == 0 ? GridV[0] : GridV.Load(i), x, 0.0F, x, kRange, kGridColour);
    LineAt(i == 0 ? GridH[0] : GridH.Load(i), 0.0F, y, kRange, y, kGridColour);
  }
  for (int i = 0; i < 2; ++i) {
    LineAt(i == 0 ? BorderL[0] : BorderL.Load(i), 0.0F, kRange - 2.0F, 126.0F, 126.0F, kRayColour);
    PictureBox& handle = i == 0 ? picHandle[0] : picHandle.Load(i);
    handle.AccessibleName = i == 0 ? "First handle of the region" : "Second handle of the region";
  }
  for (int i = 0; i <= 6; ++i) {
    const Single along = kTick * static_cast<Single>(i);
    Tick(i == 0 ? labPCY[0] : labPCY.Load(i), i, kGraphLeft - 420.0F, kPlotBottom - along - 128.0F, Align::Right);
    if (i > 0) Tick(labPCX.Load(i), i, kPlotLeft + along - 150.0F, kGraphTop + kGraphSide + 60.0F, Align::Centre);
  }
  labPCX.Unload(0);  // the zero is the vertical axis's

  labPCWorstT.Caption = "Wj";
  labPCWorstT.Bold = true;
  Place(labPCWorstT, kGraphLeft - 120.0F, kGraphTop - 330.0F, 450.0F, 285.0F);
  labPCBestT.Caption = "Wr";
  labPCBestT.Bold = true;
  Place(labPCBestT, kGraphLeft + kGraphSide + 120.0F, kPlotBottom - 150.0F, 450.0F, 285.0F);
  Place(imgTargetAtt, 180.0F, 330.0F, 360.0F, 360.0F);
  Place(lblChartTarAtt, 600.0F, 375.0F, kChartFrameWidth - 780.0F, 285.0F);
  Place(imgRefAtt, kChartFrameWidth - 540.0F, kChartFrameHeight - 810.0F, 360.0F, 360.0F);
  Place(lblChartRefAtt, 180.0F, kChartFrameHeight - 765.0F, kChartFrameWidth - 780.0F, 285.0F);
  lblChartRefAtt.Alignment = Align::Right;
  const char* const marks[] = {"mark.benefitTarget", "mark.benefitReference", "mark.costTarget", "mark.costReference"};
  for (int i = 0; i < 4; ++i) (i == 0 ? imgMarks[0] : imgMarks.Load(i)).Picture = marks[i];
}

}  // namespace Tarnwise
