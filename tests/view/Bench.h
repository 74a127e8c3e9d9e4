// A form for trying things out: two stage panels of which the second stands in front or not, boxes and buttons on the
// first, rows that take drops inside a viewport, a chart in pixel scale.
#pragma once

#include "forms/WizardForm.h"
#include "support/TestHost.h"
#include "view/Input.h"
#include "view/Reach.h"

namespace Tarnwise {

struct BenchForm : Form {
  explicit BenchForm(std::shared_ptr<Platform> screen)
      : Form(std::move(screen), "frmBench"),
        picPanel(*this, this, "picPanel", [](PictureBox& panel) { Place(panel, 0, 500, 9000, 6000); }),
        picRow(*this, &picContent, "picRow", [](PictureBox& row) { Place(row, 0, 0, 2000, 500); }),
        picHandle(*this, &picChart, "picHandle", [](PictureBox& handle) {
          Place(handle, 0, 0, 6, 6);
          handle.DragAutomatic = true;
          handle.KeyboardDrag = DragBy::Units;
          handle.TabIndex = 9;
        }) {
    Place(*this, 0, 0, 10000, 7000);
    picPanel.Load(1);
    picPanel[0].ZOrder();
    Place(txtFirst, 100, 100, 1000, 300);
    Place(txtSecond, 1200, 100, 1000, 300);
    Place(cmdGo, 2400, 100, 1000, 300);
    Place(cmdSource, 3600, 100, 1000, 300);
    Place(optOne, 100, 500, 1000, 300);
    Place(optTwo, 1200, 500, 1000, 300);
    Place(chkBox, 2400, 500, 1000, 300);
    Place(lstRows, 3600, 500, 1000, 900);
    Place(lblText, 4800, 100, 1000, 300);
    Place(vsrBar, 6000, 100, 255, 2000);
    Place(picViewport, 100, 2000, 2200, 1200);
    Place(picContent, 0, 0, 2000, 5000);
    Place(picGraph, 3000, 2000, 4200, 4000);
    picGraph.Scale = ScaleMode::Pixels;
    Place(picChart, 10, 10, 252, 252);
    picChart.Scale = ScaleMode::Pixels;
    picHandle.Load(1);
    for (int i = 1; i < 4; ++i) picRow.Load(i).Top = 600.0F * static_cast<Single>(i);
    cmdSource.DragAutomatic = true;
    int tab = 0;
    for (Control* stop :
         std::vector<Control*>{&txtFirst, &txtSecond, &cmdGo, &cmdSource, &optOne, &optTwo, &chkBox, &lstRows}) {
      stop->TabIndex = tab++;
    }
    lstRows.List = std::vector<String>{"a", "b", "c"};
  }

  ControlArray<PictureBox> picPanel;
  TextBox txtFirst{*this, &picPanel[0], "txtFirst"};
  TextBox txtSecond{*this, &picPanel[0], "txtSecond"};
  CommandButton cmdGo{*this, &picPanel[0], "cmdGo"};
  CommandButton cmdSource{*this, &picPanel[0], "cmdSource"};
  OptionButton optOne{*this, &picPanel[0], "optOne"};
  OptionButton optTwo{*this, &picPanel[0], "optTwo"};
  CheckBox chkBox{*this, &picPanel[0], "chkBox"};
  ListBox lstRows{*this, &picPanel[0], "lstRows"};
  Label lblText{*this, &picPanel[0], "lblText"};
  VScrollBar vsrBar{*this, &picPanel[0], "vsrBar"};
  PictureBox picViewport{*this, &picPanel[0], "picViewport"};
  PictureBox picContent{*this, &picViewport, "picContent"};
  ControlArray<PictureBox> picRow;
  PictureBox picGraph{*this, &picPanel[0], "picGraph"};
  PictureBox picChart{*this, &picGraph, "picChart"};
  ControlArray<PictureBox> picHandle;
  Timer tmrBlink{*this, this, "tmrBlink"};
};

// The form on a screen that nobody looks at, with notes of its events.
struct Bench : TestScreen {
  Bench() : On(std::make_shared<BenchForm>(Screen)) {
    Screen->Created(*On);
    Screen->Show(*On);
    TakeNotes();
  }

  void Note(Control& control, const char* event) { Notes.push_back(control.FullName() + " " + event); }

  void NoteClicks() {
    for (Control* control : On->Controls()) {
      control->Click = [this, control] { Note(*control, "click"); };
    }
  }

  void NoteFocus() {
    for (Control* control : On->Controls()) {
      control->GotFocus = [this, control] { Note(*control, "got"); };
      control->LostFocus = [this, control] { Note(*control, "lost"); };
    }
  }

  void NoteDrags(Control& target) {
    target.DragOver = [this, &target](Control& source, Single x, Single y, DragState state) {
      const char* const states[] = {"enter", "leave", "over"};
      Notes.push_back(target.FullName() + " " + states[static_cast<int>(state)] + " " + source.FullName() + " " +
                      At(x, y));
    };
    target.DragDrop = [this, &target](Control& source, Single x, Single y) {
      Notes.push_back(target.FullName() + " drop " + source.FullName() + " " + At(x, y));
    };
  }

  static String At(Single x, Single y) {
    return std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y));
  }

  // The check of a box that must not be left empty.
  void RefuseEmpty(TextBox& box) {
    box.LostFocus = [this, &box] {
      Note(box, "lost");
      if (!box.Text().empty()) return;
      Screen->Beep();
      Screen->SetFocus(box);
      Screen->MessageBox("empty", 48, "KESTA");
    };
  }

  std::shared_ptr<BenchForm> On;
};

}  // namespace Tarnwise
