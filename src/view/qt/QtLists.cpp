// List boxes, tab strips and combos.
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTabBar>

namespace Tarnwise {

namespace {

constexpr int kRowHeight = 24;  // pixels, of a list box

QWidget* MakeListBox(QtForm& form, Control& control, QWidget& parent) {
  auto* const list = new QListWidget(&parent);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setUniformItemSizes(true);
  form.Watch(*list->viewport(), control);
  QObject::connect(list, &QListWidget::currentRowChanged, &form,
                   [&form, list](int row) { form.RowChosen(*list, row); });
  return list;
}

QStringList Texts(const std::vector<String>& list) {
  QStringList texts;
  for (const String& text : list) texts << Text(text);
  return texts;
}

void SyncListBox(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& box = static_cast<ListBox&>(control);
  auto& list = static_cast<QListWidget&>(widget);
  const QSignalBlocker quiet(list);
  const QStringList texts = Texts(box.List);
  while (list.count() > texts.size()) delete list.takeItem(list.count() - 1);
  for (int i = 0; i < texts.size(); ++i) {
    if (i >= list.count()) {
      list.addItem(texts[i]);
      list.item(i)->setSizeHint(QSize(0, kRowHeight));
    } else if (list.item(i)->text() != texts[i]) {
      list.item(i)->setText(texts[i]);
    }
  }
  if (list.currentRow() != box.ListIndex) list.setCurrentRow(box.ListIndex);
}

QWidget* MakeTabStrip(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const bar = new QTabBar(&parent);
  bar->setDrawBase(true);
  bar->setExpanding(false);
  bar->setElideMode(Qt::ElideRight);
  QObject::connect(bar, &QTabBar::currentChanged, &form, [&form, bar](int tab) { form.RowChosen(*bar, tab + 1); });
  return bar;
}

void SyncTabStrip(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& strip = static_cast<TabStrip&>(control);
  auto& bar = static_cast<QTabBar&>(widget);
  const QSignalBlocker quiet(bar);
  while (bar.count() > static_cast<int>(strip.Tabs.size())) bar.removeTab(bar.count() - 1);
  for (int i = 0; i < static_cast<int>(strip.Tabs.size()); ++i) {
    const QString caption = Caption(strip.Tabs[static_cast<std::size_t>(i)].Caption);
    if (i >= bar.count())
      bar.addTab(caption);
    else if (bar.tabText(i) != caption)
      bar.setTabText(i, caption);
  }
  if (bar.currentIndex() != strip.SelectedItem - 1) bar.setCurrentIndex(strip.SelectedItem - 1);
}

QComboBox* NewCombo(QtForm& form, QWidget& parent, int firstNumber) {
  auto* const combo = new QComboBox(&parent);
  combo->setMaxVisibleItems(16);
  QObject::connect(combo, &QComboBox::activated, &form,
                   [&form, combo, firstNumber](int row) { form.RowChosen(*combo, row + firstNumber); });
  return combo;
}

QWidget* MakeComboBox(QtForm& form, Control& /*control*/, QWidget& parent) { return NewCombo(form, parent, 0); }
QWidget* MakeImageCombo(QtForm& form, Control& /*control*/, QWidget& parent) { return NewCombo(form, parent, 1); }

void SyncRows(QComboBox& combo, const QStringList& texts, int current) {
  while (combo.count() > texts.size()) combo.removeItem(combo.count() - 1);
  for (int i = 0; i < texts.size(); ++i) {
    if (i >= combo.count())
      combo.addItem(texts[i]);
    else if (combo.itemText(i) != texts[i])
      combo.setItemText(i, texts[i]);
  }
  if (combo.currentIndex() != current) combo.setCurrentIndex(current);
}

void SyncComboBox(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& box = static_cast<ComboBox&>(control);
  const QSignalBlocker quiet(widget);
  SyncRows(static_cast<QComboBox&>(widget), Texts(box.List), box.ListIndex);
}

void SyncImageCombo(QtForm& form, Control& control, QWidget& widget) {
  auto& box = static_cast<ImageCombo&>(control);
  auto& combo = static_cast<QComboBox&>(widget);
  const QSignalBlocker quiet(combo);
  QStringList texts;
  for (const ImageCombo::Item& item : box.Items) texts << Text(item.Text);
  SyncRows(combo, texts, box.SelectedItem - 1);
  for (int i = 0; i < combo.count(); ++i) {
    const ImageCombo::Item& item = box.Items[static_cast<std::size_t>(i)];
    const bool chosen = i + 1 == box.SelectedItem && !item.SelectedPicture.empty();
    const String& name = chosen ? item.SelectedPicture : item.Picture;
    const QString drawn = QString("%1 on %2").arg(Text(name)).arg(form.Colours().Base);
    if (combo.itemData(i).toString() == drawn) continue;
    combo.setItemData(i, drawn);
    combo.setItemIcon(i, PictureIcon(name, form.Colours().Base));
  }
}

}  // namespace

const QtKind kQtListBox{MakeListBox, SyncListBox};
const QtKind kQtTabStrip{MakeTabStrip, SyncTabStrip};
const QtKind kQtComboBox{MakeComboBox, SyncComboBox};
const QtKind kQtImageCombo{MakeImageCombo, SyncImageCombo};

}  // namespace Tarnwise
