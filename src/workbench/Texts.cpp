#include "workbench/Texts.h"

#include "project/NumberText.h"

#include <QDateTime>
#include <QLineEdit>
#include <QLocale>

namespace Tarnwise {

std::optional<double> TypedNumber(const QString& text) {
  const String typed = ToText(text.trimmed());
  if (const auto number = NumberIn(typed, {'.', '\0'})) return number;
  return NumberIn(typed, {',', '\0'});
}

QString NumberText(const std::optional<double>& number) { return number ? FromText(ShortestText(*number)) : QString(); }

QString TimeText(const String& made) {
  const QDateTime time = QDateTime::fromString(FromText(made), Qt::ISODate);
  return time.isValid() ? time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")) : FromText(made);
}

void ShowIn(QLineEdit& field, const QString& text) {
  field.setText(text);
  if (!field.hasFocus()) field.setCursorPosition(0);
}

}  // namespace Tarnwise
