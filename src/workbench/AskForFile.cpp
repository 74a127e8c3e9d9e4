#include "workbench/AskForFile.h"

#include <QFileDialog>
#include <QFileInfo>

namespace Tarnwise {

namespace {

QString FilterOf(const FileKind& kind) { return kind.Text + " (*." + kind.Ending + ")"; }

}  // namespace

QString AsFileName(QString text) {
  constexpr qsizetype kLongest = 80;
  for (QChar& sign : text) {
    if (!sign.isPrint() || QStringLiteral("/\\:*?\"<>|").contains(sign)) sign = QLatin1Char('-');
  }
  return text.left(kLongest).trimmed();
}

QString AskForFile(QWidget* window, const QString& title, const QString& name, const std::vector<FileKind>& kinds) {
  QStringList filters;
  for (const FileKind& kind : kinds) filters += FilterOf(kind);
  const QString proposed = QFileInfo(name).isAbsolute() ? name : AsFileName(name) + "." + kinds.front().Ending;
  QString chosen = filters.front();
  QString path = QFileDialog::getSaveFileName(window, title, proposed, filters.join(QStringLiteral(";;")), &chosen);
  if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty()) return path;
  const auto kind = std::max<qsizetype>(0, filters.indexOf(chosen));
  return path + "." + kinds[static_cast<std::size_t>(kind)].Ending;
}

}  // namespace Tarnwise
