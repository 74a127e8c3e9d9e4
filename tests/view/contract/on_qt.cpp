#include "view/contract/Contract.h"

#include "view/contract/Perceived.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtToolkit.h"

#include <QAccessible>

namespace Tarnwise {

std::unique_ptr<Driver> MakeContractDriver() { return MakeQtDriver(); }

Perceived Perceive(const Control& control) {
  QWidget* const widget =
      static_cast<QtToolkit&>(control.Owner.Screen().Tools()).FormOf(control.Owner)->WidgetOf(control);
  const QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(widget);
  return {widget->toolTip().toStdString(), read->text(QAccessible::Name).toStdString()};
}

}  // namespace Tarnwise
