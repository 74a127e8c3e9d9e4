// Where something is to be saved.
#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace Tarnwise {

struct FileKind {
  QString Text;  // "Pictures"
  QString Ending;
};

// Proposes `name`, where it is no path without the signs that a file's name can't have, and adds the chosen kind's
// ending where none was typed. Empty: nowhere.
QString AskForFile(QWidget* window, const QString& title, const QString& name, const std::vector<FileKind>& kinds);

// "A/B: first try" as a file may be called.
QString AsFileName(QString text);

}  // namespace Tarnwise
