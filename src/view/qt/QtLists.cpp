// List boxes, tab strips and combos.
#include "view/Rows.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTabBar>

namespace Tarnwise {

namespace {

constexpr int kRowHeight = 24;  // pixels, of a list box

// Counted from 0, as Qt does; -1: none.
int ChosenOf(const Control& list) { return RowsOf(list).Chosen - RowsOf(list).First; }

void SyncRows(QAbstractItemModel& model, const Control& list) {
  const std::vector<String> texts = RowTexts(list);
  const int wanted = static_cast<int>(texts.size());
  if (model.rowCount() > wanted) model.removeRows(wanted, model.rowCount() - wanted);
  if (model.rowCount() < wanted) model.insertRows(model.rowCount(), wanted - model.rowCount());
  for (int row = 0; row < wanted; ++row) {
    const QModelIndex at = model.index(row, 0);
    const QString text = Text(texts[static_cast<std::size_t>(row)]);
    if (at.data().toString() != text) model.setData(at, text);
  }
}

QWidget* MakeListBox(QtForm& form, Control& control, QWidget& parent) {
  auto* const list = new QListWidget(&parent);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setUniformItemSizes(true);
  list->setCurrentIndex({});  // else the list would choose its first row as the keyboard comes
  form.Watch(*list->viewport(), control);
  QObject::connect(list, &QListWidget::currentRowChanged, &form,
                   [&form, list](int row) { form.RowChosen(form.ControlOf(list), row); });
  return list;
}

void SyncListBox(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& list = static_cast<QListWidget&>(widget);
  const QSignalBlocker quiet(list);
  SyncRows(*list.model(), control);
  for (int row = 0; row < list.count(); ++row) list.item(row)->setSizeHint(QSize(0, kRowHeight));
  if (list.currentRow() != ChosenOf(control)) list.setCurrentRow(ChosenOf(control));
}

QWidget* MakeTabStrip(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const bar = new QTabBar(&parent);
  bar->setDrawBase(true);
  bar->setExpanding(false);
  bar->setElideMode(Qt::ElideRight);
  QObject::connect(bar, &QTabBar::currentChanged, &form,
                   [&form, bar](int tab) { form.RowChosen(form.ControlOf(bar), tab); });
  return bar;
}

void SyncTabStrip(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& bar = static_cast<QTabBar&>(widget);
  const QSignalBlocker quiet(bar);
  const std::vector<String> captions = RowTexts(control);
  const int wanted = static_cast<int>(captions.size());
  while (bar.count() > wanted) bar.removeTab(bar.count() - 1);
  while (bar.count() < wanted) bar.addTab({});
  for (int tab = 0; tab < wanted; ++tab) {
    const QString caption = Caption(captions[static_cast<std::size_t>(tab)]);
    if (bar.tabText(tab) != caption) bar.setTabText(tab, caption);
  }
  if (bar.currentIndex() != ChosenOf(control)) bar.setCurrentIndex(ChosenOf(control));
}

QWidget* MakeCombo(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const combo = new QComboBox(&parent);
  combo->setMaxVisibleItems(16);
  QObject::connect(combo, &QComboBox::activated, &form,
                   [&form, combo](int row) { form.RowChosen(form.ControlOf(combo), row); });
  return combo;
}

void SyncCombo(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& combo = static_cast<QComboBox&>(widget);
  const QSignalBlocker quiet(combo);
  SyncRows(*combo.model(), control);
  if (combo.currentIndex() != ChosenOf(control)) combo.setCurrentIndex(ChosenOf(control));
}

void SyncImageCombo(QtForm& form, Control& control, QWidget& widget) {
  SyncCombo(form, control, widget);
  const auto& record = static_cast<const ImageCombo&>(control);
  auto& combo = static_cast<QComboBox&>(widget);
  const QSignalBlocker quiet(combo);
  for (int i = 0; i < combo.count(); ++i) {
    const ImageCombo::Item& item = record.Items[static_cast<std::size_t>(i)];
    const bool chosen = i == ChosenOf(control) && !item.SelectedPicture.empty();
    const String& name = chosen ? item.SelectedPicture : item.Picture;
    const QString drawn = QString("%1 on %2").arg(Text(name)).arg(form.Colours().Base);
    if (combo.itemData(i).toString() == drawn) continue;
    combo.setItemData(i, drawn);
    combo.setItemIcon(i, PictureIcon(name, form.Colours().Base, combo.iconSize().height()));
  }
}

}  // namespace

const QtKind kQtListBox{MakeListBox, SyncListBox};
const QtKind kQtTabStrip{MakeTabStrip, SyncTabStrip};
const QtKind kQtComboBox{MakeCombo, SyncCombo};
const QtKind kQtImageCombo{MakeCombo, SyncImageCombo};

}  // namespace Tarnwise
