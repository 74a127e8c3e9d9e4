#include "TestForm.h"
#include "view/qt/QtPaint.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>
#include <QToolButton>

namespace Tarnwise {

class QtSync : public QtFormTest {};

TEST_F(QtSync, TheWindowHasTheFormsSizeTitleAndWidgetsByName) {
  form->Caption = "A title";
  Show();
  EXPECT_EQ(Window().size(), QSize(600, 400));
  EXPECT_EQ(Window().windowTitle(), "A title");
  EXPECT_EQ(Window().findChild<QWidget*>("cmdGo")->geometry(), QRect(10, 70, 100, 28));
  EXPECT_EQ(Window().findChild<QWidget*>("picRow(1)")->parentWidget(), WidgetOf(form->picRows));
}

TEST_F(QtSync, EdgesAreRoundedNotSizes) {
  Place(form->cmdGo, 157, 157, 150, 150);
  Show();
  EXPECT_EQ(WidgetOf(form->cmdGo)->geometry(), QRect(10, 10, 10, 10));
  Place(form->cmdGo, 158, 158, 165, 165);
  platform->SyncAll();
  EXPECT_EQ(WidgetOf(form->cmdGo)->geometry(), QRect(11, 11, 11, 11));
}

TEST_F(QtSync, AContainerInPixelsCountsInPixels) {
  form->picRows.Scale = ScaleMode::Pixels;
  Place(form->picRow[0], 4, 5, 6, 7);
  Show();
  EXPECT_EQ(WidgetOf(form->picRow[0])->geometry(), QRect(4, 5, 6, 7));
}

TEST_F(QtSync, AControlThatIsLoadedLaterIsShownAndOneThatGoesIsHidden) {
  Show();
  Place(form->picRow.Load(2), 150, 1650, 1500, 600);
  platform->SyncAll();
  ASSERT_NE(WidgetOf(form->picRow[2]), nullptr);
  EXPECT_TRUE(WidgetOf(form->picRow[2])->isVisible());
  const QPointer<QWidget> widget = WidgetOf(form->picRow[2]);
  form->picRow.Unload(2);
  EXPECT_FALSE(widget->isVisible());
  QCoreApplication::processEvents();
  EXPECT_TRUE(widget.isNull());
}

TEST_F(QtSync, TheFrontOrderIsTheWidgetsOrder) {
  Place(form->picRow[1], 150, 150, 1500, 600);
  Show();
  QWidget* const around = WidgetOf(form->picRows);
  EXPECT_EQ(around->childAt(50, 30), WidgetOf(form->picRow[1]));
  form->picRow[0].ZOrder();
  platform->SyncAll();
  EXPECT_EQ(around->childAt(50, 30), WidgetOf(form->picRow[0]));
}

TEST_F(QtSync, VisibilityEnablingAndTextFollow) {
  Show();
  form->cmdGo.Enabled = false;
  form->cmdSource.Visible = false;
  form->txtFirst.Text = "0.5";
  form->cmdGo.Caption = "&Back & forth";
  platform->SyncAll();
  EXPECT_FALSE(WidgetOf(form->cmdGo)->isEnabled());
  EXPECT_FALSE(WidgetOf(form->cmdSource)->isVisible());
  EXPECT_EQ(As<QLineEdit>(form->txtFirst).text(), "0.5");
  EXPECT_EQ(As<QPushButton>(form->cmdGo).text(), "&Back && forth");
}

TEST_F(QtSync, ACaptionTooLongIsElidedAndToldByTheToolTip) {
  form->cmdGo.Caption = "A caption that has no chance to fit into this button";
  Show();
  EXPECT_TRUE(As<QPushButton>(form->cmdGo).text().contains(QChar(0x2026)));
  EXPECT_EQ(WidgetOf(form->cmdGo)->toolTip(), "A caption that has no chance to fit into this button");
}

TEST_F(QtSync, ListsAndGridsShowTheirRecords) {
  ListBox list{*form, form.get(), "lstRows"};
  ImageCombo combo{*form, form.get(), "imgcmbRows"};
  Grid grid{*form, form.get(), "gridRows"};
  Toolbar bar{*form, form.get(), "tbMoves"};
  bar.Buttons = {{"Up", "Move up", "up"}, {"Down", "Move down", "down", false}};
  Place(bar, 150, 5000, 800, 400);
  list.List = std::vector<String>{"one", "two"};
  list.ListIndex = 1;
  combo.Add({"a", "first", "Smiling", "Smiling1"});
  combo.Add({"b", "second", "Crying", "Crying1"});
  combo.SelectedItem = 2;
  grid.Shape(3, 2);
  grid.SetCell(0, 1, "head");
  grid.SetCell(2, 0, "0.37");
  Show();
  EXPECT_EQ(As<QListWidget>(list).currentRow(), 1);
  EXPECT_EQ(As<QComboBox>(combo).currentText(), "second");
  EXPECT_EQ(As<QTableWidget>(grid).horizontalHeaderItem(1)->text(), "head");
  EXPECT_EQ(As<QTableWidget>(grid).item(1, 0)->text(), "0.37");
  EXPECT_EQ(As<QTableWidget>(grid).rowCount(), 2);
  EXPECT_TRUE(WidgetOf(bar)->findChild<QToolButton*>("Up")->isEnabled());
  bar.EnableButton(2, true);
  combo.Clear();
  platform->SyncAll();
  EXPECT_TRUE(WidgetOf(bar)->findChild<QToolButton*>("Down")->isEnabled());
  EXPECT_EQ(As<QComboBox>(combo).count(), 0);
  platform->Release(*form);
}

TEST_F(QtSync, LinesAndDrawingsArePaintedByTheirBox) {
  form->picRows.BackColor = 0xFFFFFF;
  Line line{*form, &form->picRows, "BorderL"};
  line.Y1 = line.Y2 = 2400.0F;
  line.X2 = 3000.0F;
  line.BorderColor = 0x0000FF;
  form->picRows.Draw({Drawn::What::Polygon, {2000, 1000, 2900, 1000, 2900, 1900, 2000, 1900}, 0x00FF00});
  Show();
  const QImage image = WidgetOf(form->picRows)->grab().toImage();
  EXPECT_EQ(image.pixelColor(100, 160), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(160, 100), QColor(0, 255, 0));
  EXPECT_EQ(image.pixelColor(190, 190), QColor(255, 255, 255));
  platform->Release(*form);
}

TEST_F(QtSync, AnAmpersandInANameIsNoMnemonic) {
  EXPECT_EQ(Caption("R&D"), "R&&D");
  EXPECT_EQ(Caption("Bed & board"), "Bed && board");
  EXPECT_EQ(Caption("&Next >"), "&Next >");
  EXPECT_EQ(Caption("E&xit"), "E&xit");
  EXPECT_EQ(PlainCaption("< &Back"), "< Back");
  EXPECT_EQ(PlainCaption("R&D"), "R&D");
}

}  // namespace Tarnwise
