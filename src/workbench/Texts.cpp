#include "workbench/Texts.h"

#include "project/NumberText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLineEdit>
#include <QLocale>

namespace Tarnwise {

namespace {

struct TextsTr {
  Q_DECLARE_TR_FUNCTIONS(Texts)
};

}  // namespace

QString UnitsText(std::size_t count) { return count == 1 ? TextsTr::tr("1 unit") : TextsTr::tr("%1 units").arg(count); }

QString AttributesText(std::size_t count) {
  return count == 1 ? TextsTr::tr("1 attribute") : TextsTr::tr("%1 attributes").arg(count);
}

const ResultsSigns& Signs() {
  static const ResultsSigns signs{
      "–", "–", "–", ToText(TextsTr::tr(", seen ")), " ≥ ", " ≤ ", ToText(TextsTr::tr(" and %1 more"))};
  return signs;
}

QString RowsText(std::size_t count) { return count == 1 ? TextsTr::tr("1 row") : TextsTr::tr("%1 rows").arg(count); }

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
