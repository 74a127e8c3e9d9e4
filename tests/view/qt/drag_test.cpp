#include "TestForm.h"

#include <QAccessible>
#include <QLabel>
#include <QMouseEvent>

namespace Tarnwise {

class QtDragging : public QtFormTest {
 protected:
  QtDragging() {
    for (int i = 0; i < 2; ++i) {
      PictureBox& row = form->picRow[i];
      row.DragOver = [this, i](Control& /*source*/, Single x, Single y, DragState state) {
        const char* const names[] = {"enter", "leave", "over"};
        form->Log.push_back(names[static_cast<int>(state)] + std::to_string(i));
        at = {x, y};
      };
      row.DragDrop = [this, i](Control& source, Single x, Single y) {
        form->Log.push_back("drop" + std::to_string(i) + source.Name);
        at = {x, y};
      };
    }
    form->cmdSource.Click = [this] { form->Log.push_back("click"); };
  }

  // Twips on the form.
  void MoveTo(double x, double y) {
    QWidget* const source = WidgetOf(form->cmdSource);
    const QPointF inWindow(x / 15.0, y / 15.0);
    QMouseEvent move(QEvent::MouseMove, source->mapFrom(&Window(), inWindow), Window().mapToGlobal(inWindow),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(source, &move);
  }
  void Press() { QTest::mousePress(WidgetOf(form->cmdSource), Qt::LeftButton); }
  void Release() { QTest::mouseRelease(WidgetOf(form->cmdSource), Qt::LeftButton); }

  std::pair<Single, Single> at;
};

TEST_F(QtDragging, AFarMoveIsADragAndNoClick) {
  Show();
  Press();
  MoveTo(3300, 500);
  MoveTo(3301, 501);
  EXPECT_EQ(at, std::pair(151.0F, 201.0F));
  MoveTo(3300, 1300);
  Release();
  EXPECT_EQ(Joined(form->Log), "enter0 over0 over0 leave0 enter1 over1 drop1cmdSource");
  EXPECT_FALSE(platform->Drag.Active());
}

TEST_F(QtDragging, ASmallMoveIsAClick) {
  Show();
  Press();
  const QPoint middle = WidgetOf(form->cmdSource)->geometry().center();
  MoveTo(middle.x() * 15 + 30, middle.y() * 15);
  Release();
  EXPECT_EQ(Joined(form->Log), "click");
  EXPECT_NE(form->ActiveControl, &form->cmdSource);
}

TEST_F(QtDragging, EscapeGivesUpAndTheTargetGetsItsLeave) {
  Show();
  Press();
  MoveTo(3300, 500);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  Release();
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(QtDragging, OutsideTheWindowIsOverNothing) {
  Show();
  Press();
  MoveTo(3300, 500);
  MoveTo(-3000, 500);
  Release();
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
}

TEST_F(QtDragging, ThePointersShapeSaysWhetherADropWouldBeTaken) {
  form->picRow[1].AcceptsDrop = [](const Control& /*source*/) { return false; };
  form->DragOver = [](Control& source, Single /*x*/, Single /*y*/, DragState state) {
    source.MousePointer = state == DragState::Leave ? 12 : 0;
  };
  Show();
  Press();
  const auto shape = [this](double x, double y) {
    MoveTo(x, y);
    const QCursor* const shown = QApplication::overrideCursor();
    return shown == nullptr ? Qt::ArrowCursor : shown->shape();
  };
  EXPECT_EQ(shape(2000, 4500), Qt::ForbiddenCursor) << "the form";
  EXPECT_EQ(form->cmdSource.MousePointer, 0);
  EXPECT_EQ(shape(3300, 500), Qt::ClosedHandCursor) << "a row that takes it";
  EXPECT_EQ(form->cmdSource.MousePointer, 12);
  EXPECT_EQ(shape(3300, 1300), Qt::ForbiddenCursor) << "a row that does not";
  EXPECT_EQ(shape(-3000, 500), Qt::ForbiddenCursor) << "outside";
  EXPECT_EQ(shape(3300, 500), Qt::ClosedHandCursor);
  Release();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(form->cmdSource.MousePointer, 12);
  EXPECT_EQ(WidgetOf(form->cmdSource)->cursor().shape(), Qt::OpenHandCursor) << "it can be dragged again";
}

TEST_F(QtDragging, TheCarriedMarkIsSeenAlsoWhereItHasNoIcon) {
  PictureBox mark{*form, &form->picRows, "picMark"};
  Place(mark, 2000, 2000, 150, 150);
  mark.DragAutomatic = true;
  mark.KeyboardDrag = DragBy::Units;
  mark.Picture = "drag.A";
  const auto ghost = [this]() -> QLabel* {
    QLabel* seen = nullptr;
    for (QLabel* label : Window().findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (label->isVisible() && !label->pixmap().isNull()) seen = label;
    }
    return seen;
  };
  form->picRow[0].DragOver = [](Control& source, Single /*x*/, Single /*y*/, DragState state) {
    source.DragIcon = state == DragState::Leave ? "" : "C:/nowhere\\bdrag.ico";
  };
  Show();
  QTest::mousePress(WidgetOf(mark), Qt::LeftButton);
  MoveTo(7000, 4000);
  ASSERT_NE(ghost(), nullptr) << "before any icon its own picture";
  const QImage own = ghost()->pixmap().toImage();
  MoveTo(3300, 500);
  ASSERT_NE(ghost(), nullptr);
  const QImage named = ghost()->pixmap().toImage();
  EXPECT_NE(named, own);
  EXPECT_GE(ghost()->geometry().center().x(), 3300 / 15 + 20) << "its letter is not under the pointer";
  MoveTo(7000, 4000);
  ASSERT_NE(ghost(), nullptr) << "after it has left";
  EXPECT_EQ(ghost()->pixmap().toImage(), named);
  QTest::mouseRelease(WidgetOf(mark), Qt::LeftButton);
  EXPECT_EQ(ghost(), nullptr);
  platform->Release(*form);
}

TEST_F(QtDragging, TheKeyboardGivesTheSameNotifications) {
  Show();
  Input::MoveFocus(form->cmdSource);
  Key(Qt::Key_Space);
  EXPECT_TRUE(platform->Drag.Active());
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_Space);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0 enter1 over1 drop1cmdSource");
  EXPECT_EQ(at, std::pair(750.0F, 300.0F));
}

TEST_F(QtDragging, ASourceThatGoesEndsTheDrag) {
  Show();
  form->picRow[0].DragDrop = nullptr;
  ControlArray<CommandButton> extra(*form, form.get(), "cmdExtra", [](CommandButton& button) {
    Place(button, 150, 3000, 1500, 375);
    button.DragAutomatic = true;
  });
  platform->SyncAll();
  QWidget* const widget = WidgetOf(extra[0]);
  QTest::mousePress(widget, Qt::LeftButton);
  platform->Hand.BeginDrag();
  EXPECT_TRUE(platform->Drag.Active());
  extra.Unload(0);
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_FALSE(platform->Hand.DragsByMouse());
}

TEST_F(QtDragging, AHandleCanBePressedBesideItself) {
  PictureBox handle{*form, &form->picRows, "picHandle"};
  form->picRows.Scale = ScaleMode::Pixels;
  Place(handle, 100, 100, 6, 6);
  handle.DragAutomatic = true;
  Show();
  EXPECT_EQ(WidgetOf(handle)->geometry(), QRect(95, 95, 16, 16));
  platform->Release(*form);
}

TEST_F(QtDragging, AScreenReaderReadsAndMovesAHandle) {
  PictureBox handle{*form, &form->picRows, "picHandle"};
  form->picRows.Scale = ScaleMode::Pixels;
  Place(handle, 97, 47, 6, 6);
  handle.DragAutomatic = true;
  handle.KeyboardDrag = DragBy::Units;
  handle.AccessibleName = "First handle";
  form->picRows.DragOver = [&](Control& source, Single x, Single y, DragState state) {
    if (state == DragState::Leave) return;
    source.Left = x - 3.0F;
    source.Top = y - 3.0F;
  };
  Show();
  QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(WidgetOf(handle));
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->text(QAccessible::Name), "First handle");
  EXPECT_EQ(read->text(QAccessible::Value), "100, 50");
  ASSERT_EQ(read->childCount(), 2);
  EXPECT_EQ(read->child(0)->role(), QAccessible::Slider);
  read->child(0)->valueInterface()->setCurrentValue(120);
  EXPECT_EQ(handle.Left, 117.0F);
  EXPECT_EQ(handle.Top, 47.0F);
  EXPECT_FALSE(platform->Drag.Active());
  platform->Release(*form);
}

}  // namespace Tarnwise
