#include "view/contract/Contract.h"

namespace Tarnwise {

ContractForm::ContractForm(std::shared_ptr<Platform> platform, const String& name) : Form(std::move(platform), name) {
  Place(*this, 0, 0, 9000, 7500);
  Place(txtFirst, 150, 150, 1500, 375);
  Place(txtSecond, 150, 600, 1500, 375);
  Place(cmdGo, 150, 1050, 1500, 420);
  Place(optOne, 150, 2100, 1500, 375);
  Place(optTwo, 150, 2550, 1500, 375);
  Place(chkBox, 150, 3000, 1500, 375);
  Place(lstRows, 150, 3450, 1500, 1800);
  Place(cmbRows, 3000, 3450, 1800, 375);
  Place(imgcmbRows, 3000, 4050, 1800, 375);
  Place(tsTabs, 3000, 4650, 3000, 420);
  Place(tbTools, 3000, 5250, 900, 450);
  Place(vsrBar, 6300, 150, 255, 3000);
  Place(lblText, 150, 5550, 1500, 300);
  Place(fraBox, 3000, 5850, 3000, 1200);
  Place(picRows, 3000, 150, 3000, 3000);
  Place(picRow[0], 150, 150, 1500, 600);
  Place(picRow.Load(1), 150, 900, 1500, 600);
  Place(cmdSource[0], 150, 1575, 1500, 375);
  cmdSource[0].DragAutomatic = true;
  lstRows.List = Lines{"one", "two", "three"};
  cmbRows.List = Lines{"red", "green"};
  imgcmbRows.Add({"a", "Ants", "", ""});
  imgcmbRows.Add({"b", "Bees", "", ""});
  tsTabs.Tabs = {{"Left", "l"}, {"Right", "r"}};
  tbTools.Buttons = {{"Up", "up", "", true}, {"Down", "down", "", true}};
  vsrBar.Max = 500;
  int tab = 0;
  for (Control* stop : std::vector<Control*>{&txtFirst, &txtSecond, &cmdGo, &cmdSource[0], &optOne, &optTwo, &chkBox,
                                             &lstRows, &cmbRows, &imgcmbRows, &tsTabs, &vsrBar}) {
    stop->TabIndex = tab++;
  }
  for (Control* noted : std::vector<Control*>{&txtFirst, &txtSecond, &cmdGo, &optOne, &optTwo, &chkBox, &lstRows,
                                              &cmbRows, &imgcmbRows, &tsTabs, &lblText}) {
    Note(*noted);
  }
  picRow.Wire([this](PictureBox& row) {
    row.DragOver = [this, &row](Control& source, Single /*x*/, Single /*y*/, DragState state) {
      const char* const names[] = {"enter", "leave", "over"};
      Log.push_back(row.FullName() + " " + names[static_cast<int>(state)] + " " + source.FullName());
    };
    row.DragDrop = [this, &row](Control& source, Single /*x*/, Single /*y*/) {
      Log.push_back(row.FullName() + " drop " + source.FullName());
    };
  });
  tbTools.ButtonClick = [this](const String& key) { Log.push_back("tool " + key); };
  vsrBar.Change = [this] { Log.push_back("vsrBar change " + std::to_string(vsrBar.Value())); };
  tmrClock.Tick = [this] { Log.push_back("tick"); };
  tmrClock.Interval = 1;
}

void ContractForm::Note(Control& control) {
  const String name = control.FullName();
  control.GotFocus = [this, name] { Log.push_back(name + " got"); };
  control.LostFocus = [this, name] { Log.push_back(name + " lost"); };
  control.Click = [this, name] { Log.push_back(name + " click"); };
}

}  // namespace Tarnwise
