#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"

#include <QScrollBar>
#include <QSignalBlocker>

namespace Tarnwise {

namespace {

QWidget* MakeScrollBar(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const bar = new QScrollBar(Qt::Vertical, &parent);
  bar->setContextMenuPolicy(Qt::NoContextMenu);
  QObject::connect(bar, &QScrollBar::valueChanged, &form,
                   [&form, bar](int value) { form.Scrolled(form.ControlOf(bar), value, bar->isSliderDown()); });
  QObject::connect(bar, &QScrollBar::sliderReleased, &form,
                   [&form, bar] { form.Scrolled(form.ControlOf(bar), bar->value(), false); });
  return bar;
}

void SyncScrollBar(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& record = static_cast<VScrollBar&>(control);
  auto& bar = static_cast<QScrollBar&>(widget);
  const QSignalBlocker quiet(bar);
  bar.setRange(record.Min, record.Max);
  bar.setSingleStep(record.SmallChange);
  bar.setPageStep(record.LargeChange);
  if (bar.value() != record.Value) bar.setValue(record.Value);
}

}  // namespace

const QtKind kQtScrollBar{MakeScrollBar, SyncScrollBar};

}  // namespace Tarnwise
