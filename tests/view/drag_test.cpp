// Automatic drag: what targets are told, by pointer and by keyboard.
#include "view/Bench.h"
#include "view/Driver.h"
#include "view/Keys.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Dragging : Bench {
  Dragging() {
    for (int i = 0; i < 4; ++i) NoteDrags(On->picRow[i]);
  }
  DragSession& Drag() { return Screen->Drag; }
  void KeyOn(Control& control, int code, int shift = 0) {
    Input::MoveFocus(control);
    TypeKey(*On, code, code == 32 ? 32 : 0, shift);
  }
};

TEST(Drag, EntersThenIsOverAndLeavesTheFormerTargetFirst) {
  Dragging bench;
  bench.Drag().Begin(bench.On->cmdSource);
  bench.Drag().Over(bench.On->picRow[0], 10, 20);
  bench.Drag().Over(bench.On->picRow[0], 11, 21);
  bench.Drag().Over(bench.On->picRow[1], 5, 6);
  EXPECT_EQ(bench.Notes, (Lines{"picRow(0) enter cmdSource 10,20", "picRow(0) over cmdSource 10,20",
                                "picRow(0) over cmdSource 11,21", "picRow(0) leave cmdSource 11,21",
                                "picRow(1) enter cmdSource 5,6", "picRow(1) over cmdSource 5,6"}));
}

TEST(Drag, DropsWithoutALeave) {
  Dragging bench;
  bench.Drag().Begin(bench.On->cmdSource);
  bench.Drag().Over(bench.On->picRow[0], 10, 20);
  bench.TakeNotes();
  bench.Drag().Drop();
  EXPECT_EQ(bench.Notes, Lines{"picRow(0) drop cmdSource 10,20"});
  EXPECT_FALSE(bench.Drag().Active());
}

TEST(Drag, DroppedOverNothingTellsNobody) {
  Dragging bench;
  bench.Drag().Begin(bench.On->cmdSource);
  bench.Drag().Over(bench.On->picRow[0], 10, 20);
  bench.Drag().OverNothing();
  bench.TakeNotes();
  bench.Drag().Drop();
  EXPECT_EQ(bench.Notes, Lines{});
  EXPECT_FALSE(bench.Drag().Active());
}

TEST(Drag, GivenUpLeavesItsTarget) {
  Dragging bench;
  bench.Drag().Begin(bench.On->cmdSource);
  bench.Drag().Over(bench.On->picRow[0], 10, 20);
  bench.TakeNotes();
  bench.Drag().Cancel();
  EXPECT_EQ(bench.Notes, Lines{"picRow(0) leave cmdSource 10,20"});
  EXPECT_FALSE(bench.Drag().Active());
}

TEST(Drag, EndsWithItsSourceOrItsForm) {
  Dragging bench;
  bench.Drag().Begin(bench.On->picHandle[1]);
  bench.On->picHandle.Unload(1);
  EXPECT_FALSE(bench.Drag().Active());
  bench.Drag().Begin(bench.On->cmdSource);
  bench.Screen->Hide(*bench.On);
  EXPECT_FALSE(bench.Drag().Active());
}

TEST(Drag, LosesATargetThatIsUnloaded) {
  Dragging bench;
  bench.Drag().Begin(bench.On->cmdSource);
  bench.Drag().Over(bench.On->picRow[3], 1, 1);
  bench.TakeNotes();
  bench.On->picRow.Unload(3);
  bench.Drag().Drop();
  EXPECT_EQ(bench.Notes, Lines{});
}

TEST(Drag, GivesThePointInTheScaleOfItsTarget) {
  Dragging bench;
  bench.NoteDrags(bench.On->picChart);
  bench.Drag().Begin(bench.On->picHandle[0]);
  // The chart begins at 3000 + 150, 500 + 2000 + 150 twips.
  bench.Drag().OverPoint(3150 + 15 * 100, 2650 + 15 * 50);
  EXPECT_EQ(bench.Notes[0], "picChart enter picHandle(0) 100,50");
}

TEST(Drag, SaysWhetherADropWouldBeTakenWhereThePointerStands) {
  Dragging bench;
  BenchForm& form = *bench.On;
  form.lblText.DragOver = [](Control&, Single, Single, DragState) {};
  DragSession& drag = bench.Drag();
  EXPECT_FALSE(drag.WouldBeTaken());
  drag.Begin(form.cmdSource);
  EXPECT_FALSE(drag.WouldBeTaken()) << "over nothing yet";
  form.cmdSource.MousePointer = 12;
  drag.Over(form.picRow[0], 10, 20);
  EXPECT_TRUE(drag.WouldBeTaken()) << "whatever shape the source has for the moment";
  form.cmdSource.MousePointer = 0;
  drag.Over(form.lblText, 10, 20);
  EXPECT_FALSE(drag.WouldBeTaken()) << "it is told of drags and takes none";
  form.picRow[1].AcceptsDrop = [](const Control& source) { return source.Name == "cmdGo"; };
  drag.Over(form.picRow[1], 10, 20);
  EXPECT_FALSE(drag.WouldBeTaken()) << "refused by silence";
  drag.Cancel();
  drag.Begin(form.cmdGo);
  drag.Over(form.picRow[1], 10, 20);
  EXPECT_TRUE(drag.WouldBeTaken());
  drag.OverNothing();
  EXPECT_FALSE(drag.WouldBeTaken());
  drag.Cancel();
}

TEST(Drag, KeepsThePictureThatTheSourceHadLast) {
  Dragging bench;
  BenchForm& form = *bench.On;
  PictureBox& mark = form.picHandle[0];
  form.picRow[0].DragOver = [](Control& source, Single, Single, DragState state) {
    source.DragIcon = state == DragState::Leave ? "" : "KESTA\\adrag.ico";
  };
  DragSession& drag = bench.Drag();
  drag.Begin(mark);
  EXPECT_EQ(drag.Icon(), "") << "none of its own";
  drag.Over(form.picRow[0], 10, 20);
  drag.OverNothing();
  EXPECT_EQ(mark.DragIcon(), "");
  EXPECT_EQ(drag.Icon(), "KESTA\\adrag.ico");
  drag.Cancel();
  mark.Picture = "drag.A";
  drag.Begin(mark);
  EXPECT_EQ(drag.Icon(), "drag.A") << "not the one of the drag before";
  drag.Cancel();
  drag.Begin(form.cmdSource);
  EXPECT_EQ(drag.Icon(), "") << "nor that of another source";
  drag.Cancel();
}

TEST(Drag, LeavesNoShapeOfThePointerBehind) {
  Bench bench;
  bench.On->cmdSource.MousePointer = 12;
  EXPECT_EQ(PointerOver(bench.On->cmdSource), 0);
  bench.On->cmdSource.MousePointer = 11;
  EXPECT_EQ(PointerOver(bench.On->cmdSource), 11);
  bench.On->cmdGo.MousePointer = 12;
  EXPECT_EQ(PointerOver(bench.On->cmdGo), 12) << "what can't be dragged means it";
}

TEST(DragTarget, IsTheTopmostThatTakesDragsUnderThePointer) {
  Dragging bench;
  const Rect row = PlaceOnForm(bench.On->picRow[0]);
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), &bench.On->picRow[0]);
  CommandButton button(*bench.On, &bench.On->picContent, "cmdOnRow");
  Place(button, 0, 0, 2000, 500);
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), &bench.On->picRow[0]);
  bench.NoteDrags(button);
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), &button);
  button.Visible = false;
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), &bench.On->picRow[0]);
}

TEST(DragTarget, IsTheContainerWhereNothingInItTakesDrags) {
  Dragging bench;
  const Rect chart = PlaceOnForm(bench.On->picChart);
  EXPECT_EQ(DragTargetAt(*bench.On, {chart.X + 9, chart.Y + 9}), nullptr);
  bench.NoteDrags(bench.On->picPanel[0]);
  EXPECT_EQ(DragTargetAt(*bench.On, {chart.X + 9, chart.Y + 9}), &bench.On->picPanel[0]);
  bench.NoteDrags(bench.On->picChart);
  EXPECT_EQ(DragTargetAt(*bench.On, {chart.X + 9, chart.Y + 9}), &bench.On->picChart);
  EXPECT_EQ(DragTargetFor(bench.On->picHandle[0]), &bench.On->picChart);
  EXPECT_EQ(DragTargetFor(bench.On->lblText), &bench.On->picPanel[0]);
}

TEST(DragTarget, IsNeverBehindThePanelInFront) {
  Dragging bench;
  const Rect row = PlaceOnForm(bench.On->picRow[0]);
  bench.On->picPanel[1].ZOrder();
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), nullptr);
  bench.NoteDrags(*bench.On);
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), bench.On.get());
}

TEST(DragTarget, IsNeverALineOrATimer) {
  Dragging bench;
  Line line(*bench.On, &bench.On->picPanel[0], "line");
  Place(line, 100, 100, 500, 500);
  Place(bench.On->tmrBlink, 100, 600, 500, 500);
  const Control* const without = DragTargetAt(*bench.On, {200, 700});
  bench.NoteDrags(line);
  bench.NoteDrags(bench.On->tmrBlink);
  EXPECT_EQ(DragTargetAt(*bench.On, {200, 700}), without);
  EXPECT_EQ(DragTargetAt(*bench.On, {200, 1050}), without);
}

TEST(DragTarget, IsNotWhatAViewportClips) {
  Dragging bench;
  const Rect row = PlaceOnForm(bench.On->picRow[3]);
  EXPECT_EQ(DragTargetAt(*bench.On, {row.X + 5, row.Y + 5}), nullptr);
  bench.On->picContent.Top = -1800;
  const Rect scrolled = PlaceOnForm(bench.On->picRow[3]);
  EXPECT_EQ(DragTargetAt(*bench.On, {scrolled.X + 5, scrolled.Y + 5}), &bench.On->picRow[3]);
}

TEST(DragTarget, IsTheFormOutsideItsPanelsAndNothingOutsideTheForm) {
  Dragging bench;
  bench.NoteDrags(*bench.On);
  EXPECT_EQ(DragTargetAt(*bench.On, {50, 50}), bench.On.get());
  EXPECT_EQ(DragTargetAt(*bench.On, {10001, 50}), nullptr);
}

TEST(KeyboardDrag, WalksTheTargetsAndDropsWithTheSameNotifications) {
  Dragging bench;
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  EXPECT_TRUE(bench.Drag().Active());
  bench.KeyOn(bench.On->cmdSource, kKeyDown);
  bench.KeyOn(bench.On->cmdSource, kKeyDown);
  bench.KeyOn(bench.On->cmdSource, kKeyUp);
  bench.KeyOn(bench.On->cmdSource, kKeyUp);
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  EXPECT_EQ(bench.Notes, (Lines{"picRow(0) enter cmdSource 1000,250", "picRow(0) over cmdSource 1000,250",
                                "picRow(0) leave cmdSource 1000,250", "picRow(1) enter cmdSource 1000,250",
                                "picRow(1) over cmdSource 1000,250", "picRow(1) leave cmdSource 1000,250",
                                "picRow(0) enter cmdSource 1000,250", "picRow(0) over cmdSource 1000,250",
                                "picRow(0) over cmdSource 1000,250", "picRow(0) drop cmdSource 1000,250"}));
}

TEST(KeyboardDrag, UsesItsOwnKeysAndNoOthers) {
  Dragging bench;
  Control& source = bench.On->cmdSource;
  for (const int code : {kKeySpace, kKeyDown, kKeyLeft, kKeySpace, kKeySpace, kKeyEscape}) {
    EXPECT_TRUE(Input::ControlKey(source, code, 0)) << code;
  }
  EXPECT_FALSE(bench.Drag().Active());
  EXPECT_TRUE(Input::ControlKey(source, kKeySpace, 0));
  EXPECT_FALSE(Input::ControlKey(source, 'A', 0));
  EXPECT_TRUE(bench.Drag().Active());
}

TEST(KeyboardDrag, BeginsAtTheLastTargetByTheUpKey) {
  Dragging bench;
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  bench.KeyOn(bench.On->cmdSource, kKeyUp);
  EXPECT_EQ(bench.Notes[0], "picRow(3) enter cmdSource 1000,250");
}

TEST(KeyboardDrag, GoesAcrossToTheFirstTargetOfAnotherContainer) {
  Dragging bench;
  PictureBox other(*bench.On, &bench.On->picPanel[0], "picOther");
  Place(other, 8000, 2000, 500, 500);
  bench.NoteDrags(other);
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  bench.KeyOn(bench.On->cmdSource, kKeyUp);
  EXPECT_EQ(bench.Drag().Target(), &other);
  bench.KeyOn(bench.On->cmdSource, kKeyRight);
  EXPECT_EQ(bench.Drag().Target(), &bench.On->picRow[0]);
  bench.KeyOn(bench.On->cmdSource, kKeyLeft);
  EXPECT_EQ(bench.Drag().Target(), &other);
}

TEST(KeyboardDrag, GoesToTheTargetsNearestItsSourceFirst) {
  Dragging bench;
  PictureBox other(*bench.On, &bench.On->picPanel[0], "picOther");
  Place(other, 8000, 2000, 500, 500);
  bench.NoteDrags(other);
  CommandButton near(*bench.On, &bench.On->picContent, "cmdNear");
  Place(near, 0, 2400, 500, 300);
  near.DragAutomatic = true;
  bench.KeyOn(near, kKeySpace);
  bench.KeyOn(near, kKeyDown);
  EXPECT_EQ(bench.Drag().Target(), &bench.On->picRow[0]);
  for (int i = 0; i < 4; ++i) bench.KeyOn(near, kKeyDown);
  EXPECT_EQ(bench.Drag().Target(), &other);
  bench.KeyOn(near, kKeyEscape);
}

TEST(KeyboardDrag, GoesFirstToATargetBesideItsSourceThoughItsContainerIsTheLast) {
  Dragging bench;
  PictureBox last(*bench.On, &bench.On->picPanel[0], "picLast");
  PictureBox beside(*bench.On, &last, "picBeside");
  CommandButton source(*bench.On, &last, "cmdBeside");
  Place(last, 7500, 2000, 1200, 1200);
  Place(beside, 0, 0, 500, 500);
  Place(source, 600, 0, 500, 300);
  source.DragAutomatic = true;
  bench.NoteDrags(beside);
  bench.KeyOn(source, kKeySpace);
  bench.KeyOn(source, kKeyDown);
  EXPECT_EQ(bench.Drag().Target(), &beside);
  bench.KeyOn(source, kKeyDown);
  EXPECT_EQ(bench.Drag().Target(), &bench.On->picRow[0]);
  bench.KeyOn(source, kKeyEscape);
}

TEST(KeyboardDrag, ComesToTheMiddleOfATargetInItsOwnScale) {
  Dragging bench;
  bench.NoteDrags(bench.On->picGraph);
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  bench.KeyOn(bench.On->cmdSource, kKeyUp);
  EXPECT_EQ(Only(bench.Notes, "picGraph enter"), Lines{"picGraph enter cmdSource 140,133"});
  bench.KeyOn(bench.On->cmdSource, kKeyRight);
  EXPECT_EQ(bench.Drag().Target(), &bench.On->picRow[0]);
  bench.TakeNotes();
  bench.KeyOn(bench.On->cmdSource, kKeyRight);
  EXPECT_EQ(Only(bench.Notes, "picGraph enter"), Lines{"picGraph enter cmdSource 140,133"});
}

TEST(KeyboardDrag, IsGivenUpByEscape) {
  Dragging bench;
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  bench.KeyOn(bench.On->cmdSource, kKeyDown);
  bench.TakeNotes();
  bench.KeyOn(bench.On->cmdSource, kKeyEscape);
  EXPECT_EQ(bench.Notes, Lines{"picRow(0) leave cmdSource 1000,250"});
  EXPECT_FALSE(bench.Drag().Active());
}

TEST(KeyboardDrag, IsGivenUpByTab) {
  Dragging bench;
  bench.KeyOn(bench.On->cmdSource, kKeySpace);
  TypeKey(*bench.On, 9, 9, 0);
  EXPECT_FALSE(bench.Drag().Active());
}

TEST(Drag, PointerStandsInTheMiddleOfItsSourceUntilItIsOverATarget) {
  Dragging bench;
  bench.Drag().Begin(bench.On->cmdSource);
  EXPECT_EQ(PointerOf(bench.Drag()).X, 3600.0 + 500.0);
  EXPECT_EQ(PointerOf(bench.Drag()).Y, 500.0 + 100.0 + 150.0);
  bench.Drag().Over(bench.On->picRow[1], 30.0F, 40.0F);
  EXPECT_EQ(PointerOf(bench.Drag()).X, 100.0 + 30.0);
  EXPECT_EQ(PointerOf(bench.Drag()).Y, 500.0 + 2000.0 + 600.0 + 40.0);
  bench.Drag().Cancel();
}

TEST(KeyboardDrag, KeepsAHandleWithinItsContainer) {
  Dragging bench;
  bench.NoteDrags(bench.On->picChart);
  PictureBox& handle = bench.On->picHandle[0];
  Place(handle, 2, 2, 6, 6);
  bench.KeyOn(handle, kKeySpace);
  bench.KeyOn(handle, kKeyLeft, 1);
  bench.KeyOn(handle, kKeyUp, 1);
  EXPECT_EQ(bench.Drag().X(), 0.0F);
  EXPECT_EQ(bench.Drag().Y(), 0.0F);
  for (int k = 0; k < 26; ++k) {
    bench.KeyOn(handle, kKeyRight, 1);
    bench.KeyOn(handle, kKeyDown, 1);
  }
  EXPECT_EQ(bench.Drag().X(), 252.0F);
  EXPECT_EQ(bench.Drag().Y(), 252.0F);
}

TEST(KeyboardDrag, MovesAHandleByOneUnitOrTen) {
  Dragging bench;
  bench.NoteDrags(bench.On->picChart);
  PictureBox& handle = bench.On->picHandle[0];
  Place(handle, 100, 60, 6, 6);
  bench.KeyOn(handle, kKeySpace);
  bench.KeyOn(handle, kKeyRight);
  bench.KeyOn(handle, kKeyDown, 1);
  bench.KeyOn(handle, kKeyLeft, 1);
  bench.KeyOn(handle, kKeyUp);
  EXPECT_EQ(bench.Notes, (Lines{"picChart enter picHandle(0) 104,63", "picChart over picHandle(0) 104,63",
                                "picChart over picHandle(0) 104,73", "picChart over picHandle(0) 94,73",
                                "picChart over picHandle(0) 94,72"}));
}

// What was picked up, and given up again, keeps no form alive that is released.
TEST(GivenUpDrag, LetsItsFormGo) {
  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  auto form = std::make_shared<BenchForm>(driver->Screen());
  driver->Screen()->Created(*form);
  driver->Screen()->Show(*form);
  driver->Grab(form->cmdSource);
  ASSERT_TRUE(driver->Screen()->Drag.Active());
  driver->Screen()->Hand.CancelDrag();
  EXPECT_FALSE(driver->Screen()->Drag.Active());
  const std::weak_ptr<Form> watched = form;
  driver->Screen()->Release(*form);
  form.reset();
  EXPECT_TRUE(watched.expired());
}

}  // namespace
}  // namespace Tarnwise
