// Texts between the records, which are UTF-8, and the widgets; and what every widget has: a name for tests and one for
// people who hear the window.
#pragma once

#include "project/Signs.h"

#include <QString>

#include <optional>

class QLineEdit;

namespace Tarnwise {

inline QString FromText(const String& text) { return QString::fromStdString(text); }
inline String ToText(const QString& text) { return text.toStdString(); }

// A number as somebody types it: with a point or a comma for the decimals, no marks between thousands.
std::optional<double> TypedNumber(const QString& text);

// The fewest digits that make the number again; empty where there is none.
QString NumberText(const std::optional<double>& number);

// "1 unit", "12 units"; "1 attribute"; "1 row".
QString UnitsText(std::size_t count);
QString AttributesText(std::size_t count);
QString RowsText(std::size_t count);

// What stands between numbers in the window.
const ResultsSigns& Signs();

// "2024-05-17T09:30:00Z" as this place's people write it; as it is where it is no time.
QString TimeText(const String& made);

// A text that is too long for its field is seen from its beginning, but where somebody types.
void ShowIn(QLineEdit& field, const QString& text);

template <class Widget>
Widget* Named(Widget* widget, const char* objectName, const QString& spokenName) {
  widget->setObjectName(QLatin1String(objectName));
  widget->setAccessibleName(spokenName);
  return widget;
}

}  // namespace Tarnwise
