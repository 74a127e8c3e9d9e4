#include "view/Bench.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

int ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(ControlArray, GrowsByElementsInAnyOrderAndKnowsItsCount) {
  Bench bench;
  auto& rows = bench.On->picRow;
  EXPECT_EQ(rows.Count(), 4);
  rows.Load(9);
  EXPECT_EQ(rows.Count(), 5);
  EXPECT_TRUE(rows.Has(9));
  EXPECT_FALSE(rows.Has(5));
  EXPECT_EQ(rows[9].FullName(), "picRow(9)");
  EXPECT_EQ(bench.On->CountOf("picRow"), 5);
}

TEST(ControlArray, DoesNotMakeAnElementTwice) {
  Bench bench;
  EXPECT_EQ(ErrorOf([&] { bench.On->picRow.Load(0); }), 360);
  EXPECT_EQ(ErrorOf([&] { bench.On->picRow.Load(3); }), 360);
  EXPECT_EQ(bench.On->picRow.Count(), 4);
}

TEST(ControlArray, HasNoElementThatWasNotMade) {
  Bench bench;
  EXPECT_EQ(ErrorOf([&] { bench.On->picRow[4].Top = 1; }), 340);
  EXPECT_EQ(ErrorOf([&] { bench.On->picRow[-1].Top = 1; }), 340);
  EXPECT_EQ(ErrorOf([&] { bench.On->picRow.Unload(4); }), 340);
}

TEST(ControlArray, MakesAnElementAnewAfterItWasUnloaded) {
  Bench bench;
  bench.On->picRow[2].Tag = "old";
  bench.On->picRow.Unload(2);
  EXPECT_EQ(bench.On->Find("picRow", 2), nullptr);
  EXPECT_EQ(ErrorOf([&] { bench.On->picRow[2].Top = 1; }), 340);
  EXPECT_EQ(bench.On->picRow.Load(2).Tag(), "");
}

TEST(ControlArray, GivesLaterElementsTheLookAndTheEventsOfTheFirst) {
  Bench bench;
  bench.On->picRow.Wire([&](PictureBox& row) { row.Click = [&] { bench.Note(row, "click"); }; });
  PictureBox& row = bench.On->picRow.Load(7);
  EXPECT_EQ(row.Width, 2000.0F);
  EXPECT_EQ(row.Parent, &bench.On->picContent);
  Input::Activate(row);
  Input::Activate(bench.On->picRow[0]);
  EXPECT_EQ(bench.Notes, (Lines{"picRow(7) click", "picRow(0) click"}));
}

TEST(ControlArray, ReportsAMissingElementAsTheErrorOfTheHandler) {
  Bench bench;
  bench.On->cmdGo.Click = [&] { bench.On->picRow[11].Top = 1; };
  Input::Activate(bench.On->cmdGo);
  EXPECT_EQ(bench.Notes, Lines{"error 340 in frmBench.cmdGo_Click"});
}

TEST(Find, TakesAnElementThatIsAloneWithoutItsNumber) {
  Bench bench;
  EXPECT_EQ(bench.On->Find("picRow"), nullptr);
  for (const int i : {1, 2, 3}) bench.On->picRow.Unload(i);
  EXPECT_EQ(bench.On->Find("picRow"), &bench.On->picRow[0]);
  EXPECT_EQ(bench.On->Find("cmdGo"), &bench.On->cmdGo);
  EXPECT_EQ(bench.On->Find("cmdGo", 1), nullptr);
  EXPECT_EQ(bench.On->Find("cmdNone"), nullptr);
}

TEST(TextBox, PutsTheCaretAtTheStartWhenItsTextIsSet) {
  Bench bench;
  TextBox& box = bench.On->txtFirst;
  int changes = 0;
  box.Change = [&] { ++changes; };
  box.SetText("abc");
  box.SelStart = 2;
  box.SelLength = 1;
  box.SetText("abc");
  EXPECT_EQ(box.SelStart, 0);
  EXPECT_EQ(box.SelLength, 0);
  EXPECT_EQ(changes, 1);
}

TEST(TextBox, ReplacesItsSelectionByCharacters) {
  Bench bench;
  TextBox& box = bench.On->txtFirst;
  box.SetText("aé¼z");
  box.SelStart = 1;
  box.SelLength = 2;
  box.SetSelText("ÖÄ1");
  EXPECT_EQ(box.Text(), "aÖÄ1z");
  EXPECT_EQ(box.SelStart, 4);
  EXPECT_EQ(box.SelLength, 0);
}

TEST(OptionButton, TurnsTheOthersOfItsContainerOffAlone) {
  Bench bench;
  OptionButton elsewhere(*bench.On, &bench.On->picViewport, "optElsewhere");
  elsewhere.SetOn();
  bench.On->optOne.SetOn();
  bench.On->optTwo.SetOn();
  EXPECT_FALSE(bench.On->optOne.Value);
  EXPECT_TRUE(bench.On->optTwo.Value);
  EXPECT_TRUE(elsewhere.Value);
}

TEST(ScrollBar, BringsItsValueIntoItsRangeAndTellsOfAChange) {
  Bench bench;
  VScrollBar& bar = bench.On->vsrBar;
  bar.Min = 0;
  bar.Max = 100;
  bar.Change = [&] { bench.Note(bar, std::to_string(bar.Value()).c_str()); };
  bar.SetValue(37);
  bar.SetValue(37);
  bar.SetValue(200);
  bar.SetValue(-5);
  EXPECT_EQ(bench.Notes, (Lines{"vsrBar 37", "vsrBar 100", "vsrBar 0"}));
}

TEST(ScrollBar, ScrollsWhileItIsDraggedAndChangesOtherwise) {
  Bench bench;
  VScrollBar& bar = bench.On->vsrBar;
  bar.Change = [&] { bench.Note(bar, "change"); };
  bar.Scroll = [&] { bench.Note(bar, "scroll"); };
  Input::ScrollTo(bar, 5, true);
  Input::ScrollTo(bar, 9, false);
  Input::ScrollTo(bar, 9, true);
  EXPECT_EQ(bench.Notes, (Lines{"vsrBar scroll", "vsrBar change"}));
  EXPECT_EQ(bar.Value, 9);
}

TEST(ListsAndGrids, AreSubscriptErrorsOutside) {
  Bench bench;
  ImageCombo combo(*bench.On, bench.On.get(), "imgcmb");
  combo.Add({"k", "t", "p", "s"});
  EXPECT_EQ(ErrorOf([&] { combo.SetItemText(1, "x"); }), 0);
  EXPECT_EQ(ErrorOf([&] { combo.SetItemText(0, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { combo.SetItemText(2, "x"); }), 9);
  Toolbar bar(*bench.On, bench.On.get(), "tb");
  bar.Buttons = {{"up", "", "", true}};
  EXPECT_EQ(ErrorOf([&] { bar.EnableButton(2, false); }), 9);
  bar.EnableButton(1, false);
  EXPECT_FALSE(bar.Find("up")->Enabled);
  EXPECT_EQ(bar.Find("down"), nullptr);
  Grid grid(*bench.On, bench.On.get(), "grid");
  grid.Shape(2, 3);
  EXPECT_EQ(ErrorOf([&] { grid.SetCell(1, 2, "x"); }), 0);
  EXPECT_EQ(ErrorOf([&] { grid.SetCell(2, 0, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { grid.SetCell(0, 3, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { grid.SetCell(-1, 0, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { grid.SetColWidth(3, 1); }), 9);
}

// What the screen is told.

struct Counting : HeadlessToolkit {
  int Syncs = 0;
  std::vector<String> Last;
  void Sync(Form& form) override {
    ++Syncs;
    Last.clear();
    for (const Control* control : form.ChangedControls) Last.push_back(control->FullName());
  }
};

struct Synced {
  std::shared_ptr<Counting> Tools = std::make_shared<Counting>();
  std::shared_ptr<Platform> Screen = std::make_shared<Platform>(Tools);
  std::shared_ptr<BenchForm> On = std::make_shared<BenchForm>(Screen);

  Synced() {
    Screen->Created(*On);
    Screen->Show(*On);
    Tools->Syncs = 0;
  }
};

TEST(Changes, ReachTheScreenOnceWhenTheHandlerReturns) {
  Synced synced;
  synced.On->cmdGo.Click = [&] {
    synced.On->lblText.Caption = "a";
    synced.On->lblText.Caption = "b";
    synced.On->picRow[1].Top = 7;
    EXPECT_EQ(synced.Tools->Syncs, 0);
  };
  Input::Activate(synced.On->cmdGo);
  EXPECT_EQ(synced.Tools->Syncs, 1);
  EXPECT_EQ(synced.Tools->Last, (Lines{"lblText", "picRow(1)"}));
}

TEST(Changes, AreNoneWhereAPropertyKeepsItsValue) {
  Synced synced;
  synced.On->lblText.Caption = "a";
  synced.Screen->SyncAll();
  synced.Tools->Syncs = 0;
  synced.On->cmdGo.Click = [&] { synced.On->lblText.Caption = "a"; };
  Input::Activate(synced.On->cmdGo);
  EXPECT_EQ(synced.Tools->Syncs, 0);
}

TEST(Changes, ReachTheScreenBeforeAMessage) {
  Synced synced;
  synced.On->cmdGo.Click = [&] {
    synced.On->lblText.Caption = "a";
    synced.Screen->MessageBox("text", 48, "KESTA");
    EXPECT_EQ(synced.Tools->Syncs, 1);
  };
  Input::Activate(synced.On->cmdGo);
  EXPECT_EQ(synced.Tools->Syncs, 1);
}

TEST(Changes, OfADrawingAreToldWhenItIsClearedOrDrawnOn) {
  Synced synced;
  synced.On->cmdGo.Click = [&] { synced.On->picChart.Draw({Drawn::What::Line, {0, 0, 1, 1}, 0, 1}); };
  Input::Activate(synced.On->cmdGo);
  EXPECT_EQ(synced.Tools->Last, Lines{"picChart"});
  synced.On->cmdGo.Click = [&] { synced.On->picChart.Cls(); };
  Input::Activate(synced.On->cmdGo);
  EXPECT_EQ(synced.Tools->Syncs, 2);
  EXPECT_TRUE(synced.On->picChart.Drawing.empty());
}

TEST(Changes, OfListsToolbarsAndGridsAreTold) {
  Synced synced;
  Toolbar bar(*synced.On, synced.On.get(), "bar");
  bar.Buttons = {{"up", "", "", true}};
  ImageCombo combo(*synced.On, synced.On.get(), "combo");
  Grid grid(*synced.On, synced.On.get(), "grid");
  const auto told = [&](const std::function<void()>& change) {
    synced.Screen->SyncAll();
    synced.Tools->Last.clear();
    change();
    synced.Screen->SyncAll();
    return synced.Tools->Last;
  };
  EXPECT_EQ(told([&] { bar.EnableButton(1, false); }), Lines{"bar"});
  EXPECT_EQ(told([&] { bar.EnableButton(1, false); }), Lines{});
  EXPECT_EQ(told([&] { combo.Add({"a", "a", "", ""}); }), Lines{"combo"});
  EXPECT_EQ(told([&] { combo.SetItemText(1, "b"); }), Lines{"combo"});
  EXPECT_EQ(told([&] { combo.Clear(); }), Lines{"combo"});
  EXPECT_EQ(told([&] { grid.Shape(2, 3); }), Lines{"grid"});
  EXPECT_EQ(told([&] { grid.SetCell(0, 0, "x"); }), Lines{"grid"});
  EXPECT_EQ(told([&] { grid.SetColWidth(0, 100); }), Lines{"grid"});
}

TEST(Faults, EndTheHandlerWhereItStandsAndSetThePointerBack) {
  Bench bench;
  bench.On->cmdGo.Click = [&] {
    bench.Screen->SetPointer(11);
    throw RuntimeError(11);
  };
  Input::Activate(bench.On->cmdGo);
  EXPECT_EQ(bench.Notes, (Lines{"pointer 11", "pointer 0", "error 11 in frmBench.cmdGo_Click"}));
  EXPECT_EQ(bench.Screen->Pointer(), 0);
}

TEST(Faults, OfTheHostsOwnCodeAreToldTooAndTheWizardLivesOn) {
  Bench bench;
  bench.On->cmdGo.Click = [] { throw std::logic_error("the host's own"); };
  Input::Activate(bench.On->cmdGo);
  ASSERT_EQ(bench.Notes.size(), 1U);
  EXPECT_NE(bench.Notes[0].find("the host's own"), String::npos);
  bench.NoteClicks();
  bench.TakeNotes();
  bench.Click("cmdGo");
  EXPECT_EQ(bench.Notes, Lines{"cmdGo click"});
}

TEST(Faults, MemoryThatRunsOutIsErrorSevenAndNotTheHosts) {
  Bench bench;
  bench.On->cmdGo.Click = [] { throw std::bad_alloc(); };
  Input::Activate(bench.On->cmdGo);
  EXPECT_EQ(bench.Notes, Lines{"error 7 in frmBench.cmdGo_Click"});
}

TEST(Faults, AreAMessageBoxWhereNobodyElseTells) {
  Bench bench;
  bench.Screen->Trace.Failed = nullptr;
  bench.On->cmdGo.Click = [] { throw RuntimeError(9); };
  Input::Activate(bench.On->cmdGo);
  EXPECT_EQ(bench.Notes, Lines{"msgbox Run-time error '9':\n\nSubscript out of range"});
}

}  // namespace
}  // namespace Tarnwise
