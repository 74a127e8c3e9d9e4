// One form with every kind of control, and a sheet of all pictures: to be looked at.
#include "view/Form.h"
#include "view/Painting.h"
#include "view/Pictures.h"
#include "view/Platform.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtSurface.h"
#include "view/qt/QtToolkit.h"

#include <QApplication>
#include <QLabel>

namespace Tarnwise {

namespace {

constexpr Colour kLightRed = 0xC0C0FF;
constexpr Colour kLightBlue = 0xFFC0C0;

void Place(Control& control, Single left, Single top, Single width, Single height) {
  control.Left = left;
  control.Top = top;
  control.Width = width;
  control.Height = height;
}

struct DemoForm : Form {
  explicit DemoForm(std::shared_ptr<Platform> platform) : Form(std::move(platform), "frmDemo") {
    Caption = "Every kind of control";
    Place(*this, 0, 0, 12000, 8400);
    Texts();
    Buttons();
    Lists();
    Chart();
    Results();
  }

  void Texts() {
    Place(lblHeading, 300, 200, 6000, 375);
    lblHeading.Caption = "A heading in larger type";
    lblHeading.Bold = true;
    lblHeading.Points = 13;
    Place(lblName, 300, 700, 1500, 285);
    lblName.Caption = "&Name (R&D):";
    Place(txtName, 1800, 660, 2200, 375);
    txtName.Text = "0.25";
    txtName.TabIndex = 0;
    Place(lblLit, 300, 1150, 1275, 300);
    lblLit.Caption = "Consistent";
    lblLit.ForeColor = kHighlightText;
    lblLit.Alignment = Align::Centre;
    Place(lblLong, 1800, 1150, 2200, 300);
    lblLong.Caption = "A label that is much too long for its place";
    Place(lblWrapped, 300, 1550, 3700, 800);
    lblWrapped.Caption = "A longer text that is wrapped onto as many lines as it takes in the room that it has.";
    lblWrapped.WordWrap = true;
  }

  void Buttons() {
    Place(cmdNext, 300, 2500, 1335, 420);
    cmdNext.Caption = "&Next >";
    cmdNext.Default = true;
    cmdNext.TabIndex = 1;
    Place(cmdOff, 1800, 2500, 1335, 420);
    cmdOff.Caption = "&Back";
    cmdOff.Enabled = false;
    Place(cmdRed, 300, 3050, 1335, 375);
    cmdRed.Caption = "Outpatients";
    cmdRed.BackColor = kLightRed;
    cmdRed.DragAutomatic = true;
    cmdRed.TabIndex = 2;
    Place(cmdBlue, 1800, 3050, 1335, 375);
    cmdBlue.Caption = "A name that is too long";
    cmdBlue.BackColor = kLightBlue;
    cmdBlue.Enabled = true;
    Place(fmOptions, 300, 3600, 3700, 1200);
    fmOptions.Caption = "A &frame";
    Place(optOne, 180, 330, 1700, 300);
    optOne.Caption = "First";
    optOne.Value = true;
    Place(optTwo, 180, 720, 1700, 300);
    optTwo.Caption = "Second";
    Place(chkBox, 1900, 330, 1700, 300);
    chkBox.Caption = "&Checked";
    chkBox.Value = 1;
    Place(tbMoves, 300, 4950, 3200, 400);
    for (const char* key : {"left", "leftback", "rightback", "right", "up", "upback", "downback", "certain"}) {
      tbMoves.Buttons.push_back({key, key, key, String(key) != "right"});
    }
  }

  void Lists() {
    Place(lstMethods, 4300, 660, 3200, 900);
    lstMethods.List = std::vector<String>{"Direct", "Trade-offs", "A third one"};
    lstMethods.ListIndex = 1;
    Place(imgcmbTarget, 4300, 1700, 3200, 375);
    imgcmbTarget.Add({"a", "Outpatients", "Smiling", "Smiling1"});
    imgcmbTarget.Add({"b", "Doctors", "Crying", "Crying1"});
    imgcmbTarget.SelectedItem = 1;
    Place(cmbSteps, 4300, 2200, 1500, 375);
    cmbSteps.List = std::vector<String>{"1.00", "6.00"};
    cmbSteps.ListIndex = 1;
    Place(tsTab, 4300, 2700, 3200, 390);
    tsTab.Tabs = {{"Importance order", "a"}, {"Range", "b"}};
    Place(picView, 4300, 3090, 3200, 2250);
    picView.BackColor = 0xFFFFFF;
    picView.Bordered = true;
    Place(picRow, 480, 150, 2200, 515);
    picRow.BackColor = 0xF4F1EE;
    picRow.Bordered = true;
    Place(lblRow, 90, 150, 390, 375);
    lblRow.Caption = "1";
    lblRow.Bold = true;
    lblRow.Alignment = Align::Centre;
    Place(cmdRow, 200, 70, 1800, 375);
    cmdRow.Caption = "Inpatients";
    cmdRow.BackColor = kLightRed;
    Place(vsrView, 2915, 0, 255, 2190);
    vsrView.Max = 4000;
  }

  void Chart() {
    Place(picChart, 7800, 660, 3780, 3780);
    picChart.Scale = ScaleMode::Pixels;
    picChart.BackColor = 0xFFFFFF;
    picChart.Bordered = true;
    picChart.Draw({Drawn::What::Polygon, {0, 250, 126, 126, 100, 76}, 0xC0E0FF});
    picChart.Draw({Drawn::What::Box, {150, 150, 220, 200}, 0x808080});
    for (Line* line : {&LineA, &LineB}) line->BorderColor = 0x0000C0;
    LineA.Y1 = LineB.Y1 = 250.0F;
    LineA.X2 = 126.0F;
    LineA.Y2 = 126.0F;
    LineB.X2 = 100.0F;
    LineB.Y2 = 76.0F;
    int index = 0;
    for (PictureBox* handle : {&picHandleA, &picHandleB}) {
      Place(*handle, index == 0 ? 123.0F : 97.0F, index == 0 ? 123.0F : 73.0F, 6, 6);
      handle->BackColor = 0x0000C0;
      handle->DragAutomatic = true;
      handle->TabIndex = 10 + index++;
    }
    Place(shpLamp, 20, 20, 20, 20);
    shpLamp.FillColor = 0x00FF00;
    Place(imgMark, 50, 18, 24, 24);
    imgMark.Picture = "mark.benefitTarget";
  }

  void Results() {
    Place(gridResults, 300, 5600, 11280, 2500);
    gridResults.Shape(4, 4);
    const char* const heads[] = {"ID", "Attributes", "Weights", "Weight ratios"};
    for (int col = 0; col < 4; ++col) {
      gridResults.SetColWidth(col, 1200);
      gridResults.SetCell(0, col, heads[col]);
      for (int row = 1; row < 4; ++row) gridResults.SetCell(row, col, std::to_string(row * 10 + col));
    }
  }

  Label lblHeading{*this, this, "lblHeading"};
  Label lblName{*this, this, "lblName"};
  TextBox txtName{*this, this, "txtName"};
  Label lblLit{*this, this, "lblLit"};
  Label lblLong{*this, this, "lblLong"};
  Label lblWrapped{*this, this, "lblWrapped"};
  CommandButton cmdNext{*this, this, "cmdNext"};
  CommandButton cmdOff{*this, this, "cmdOff"};
  CommandButton cmdRed{*this, this, "cmdRed"};
  CommandButton cmdBlue{*this, this, "cmdBlue"};
  Frame fmOptions{*this, this, "fmOptions"};
  OptionButton optOne{*this, &fmOptions, "optOne"};
  OptionButton optTwo{*this, &fmOptions, "optTwo"};
  CheckBox chkBox{*this, &fmOptions, "chkBox"};
  Toolbar tbMoves{*this, this, "tbMoves"};
  ListBox lstMethods{*this, this, "lstMethods"};
  ImageCombo imgcmbTarget{*this, this, "imgcmbTarget"};
  ComboBox cmbSteps{*this, this, "cmbSteps"};
  TabStrip tsTab{*this, this, "tsTab"};
  PictureBox picView{*this, this, "picView"};
  PictureBox picRow{*this, &picView, "picRow"};
  Label lblRow{*this, &picView, "lblRow"};
  CommandButton cmdRow{*this, &picRow, "cmdRow"};
  VScrollBar vsrView{*this, &picView, "vsrView"};
  PictureBox picChart{*this, this, "picChart"};
  Line LineA{*this, &picChart, "LineA"};
  Line LineB{*this, &picChart, "LineB"};
  Shape shpLamp{*this, &picChart, "shpLamp"};
  Image imgMark{*this, &picChart, "imgMark"};
  PictureBox picHandleA{*this, &picChart, "picHandleA"};
  PictureBox picHandleB{*this, &picChart, "picHandleB"};
  Grid gridResults{*this, this, "gridResults"};
};

QPixmap SheetOfPictures() {
  const std::vector<String> names = PictureNames();
  constexpr int kAcross = 6;
  constexpr int kSide = 130;
  const int rows = (static_cast<int>(names.size()) + kAcross - 1) / kAcross;
  QPixmap sheet(kAcross * kSide, rows * kSide);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  QtSurface surface(painter);
  for (int i = 0; i < static_cast<int>(names.size()); ++i) {
    const QRect cell(i % kAcross * kSide, i / kAcross * kSide, kSide, kSide);
    const Box place = ToBox(ToPixelRect(cell.adjusted(15, 5, -15, -25)));
    PaintPicture(surface, names[static_cast<std::size_t>(i)], place, 0xFFFFFF);
    painter.drawText(cell, Qt::AlignBottom | Qt::AlignHCenter, Text(names[static_cast<std::size_t>(i)]));
  }
  return sheet;
}

int ShowDemo(const QString& picture) {
  auto toolkit = std::make_shared<QtToolkit>();
  auto platform = std::make_shared<Platform>(toolkit);
  auto form = std::make_shared<DemoForm>(platform);
  platform->Created(*form);
  if (picture.isEmpty()) {
    platform->ShowModal(*form);
  } else {
    platform->Show(*form);
    QCoreApplication::processEvents();
    toolkit->FormOf(*form)->Window().grab().save(picture);
    SheetOfPictures().save(QString(picture).replace(".png", ".pictures.png"));
  }
  platform->Release(*form);
  QCoreApplication::processEvents();
  return 0;
}

}  // namespace

}  // namespace Tarnwise

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return Tarnwise::ShowDemo(argc > 1 ? QString(argv[1]) : QString());
}
