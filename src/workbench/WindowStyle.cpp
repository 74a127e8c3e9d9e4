#include "workbench/WindowStyle.h"

#include <QComboBox>
#include <QPainter>
#include <QStyleOption>

namespace Tarnwise {

namespace {

void Outline(const QStyleOption& option, QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(option.palette.color(QPalette::WindowText));
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

bool HasFrame(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_Frame || element == QStyle::PE_FrameLineEdit || element == QStyle::PE_PanelLineEdit ||
         element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_PanelButtonCommand;
}

// Inside a box of its own that has a frame already.
bool IsFramedOutside(const QWidget* widget) {
  return widget != nullptr && widget->parentWidget() != nullptr &&
         (widget->parentWidget()->inherits("QAbstractSpinBox") || widget->parentWidget()->inherits("QComboBox"));
}

}  // namespace

bool IsHighContrast(const QPalette& palette) {
  constexpr int kNearlyAll = 250;
  constexpr int kNearlyNone = 5;
  const int ground = palette.color(QPalette::Active, QPalette::Window).lightness();
  const int text = palette.color(QPalette::Active, QPalette::WindowText).lightness();
  return (ground <= kNearlyNone && text >= kNearlyAll) || (ground >= kNearlyAll && text <= kNearlyNone);
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (HasFrame(element) && IsHighContrast(option->palette) && !IsFramedOutside(widget)) Outline(*option, *painter);
}

void WindowStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const bool isChosenTab = element == CE_TabBarTabShape && option->state.testFlag(State_Selected);
  if (isChosenTab && IsHighContrast(option->palette)) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return Outline(*option, *painter);
  }
  const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (element != CE_ComboBoxLabel || box == nullptr || box->editable) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  constexpr int kMargins = 2;
  QStyleOptionComboBox fitted = *box;
  const int width = proxy()->subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget).width() - kMargins;
  fitted.currentText = box->fontMetrics.elidedText(box->currentText, Qt::ElideRight, width);
  QProxyStyle::drawControl(element, &fitted, painter, widget);
}

void WindowStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool isBox = control == CC_ComboBox || control == CC_SpinBox;
  if (isBox && IsHighContrast(option->palette)) Outline(*option, *painter);
}

int WindowStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
  if (hint == SH_Table_GridLineColor && option != nullptr && IsHighContrast(option->palette)) {
    return static_cast<int>(option->palette.color(QPalette::WindowText).rgba());
  }
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace Tarnwise
