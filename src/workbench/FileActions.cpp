#include "workbench/FileActions.h"

#include "model/ModelFile.h"
#include "modelfiles/ModelJson.h"
#include "modelfiles/ModelWriter.h"
#include "modelfiles/PointsFile.h"
#include "project/ImportModel.h"
#include "project/ImportSession.h"
#include "project/StoreSession.h"
#include "workbench/AskForFile.h"
#include "workbench/ImportDialog.h"
#include "workbench/Texts.h"

#include <QtWidgets>

#include <utility>

namespace Tarnwise {

namespace {

constexpr qsizetype kMostRecent = 8;

QStringList RecentFiles() { return QSettings().value(QStringLiteral("recent")).toStringList(); }

WizardData ReadWholeModel(const QString& path) {
  const std::vector<char> bytes = FileBytes(ToText(path));
  if (path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) {
    return ModelFromJson(ParseDescription(String(bytes.begin(), bytes.end())));
  }
  WizardData data;
  ReadModel(data, bytes);
  if (const auto difference = Difference(bytes, data)) throw ModelFault("it is no whole model file: " + *difference);
  return data;
}

String PointsBeside(const QString& path, const WizardData& data) {
  const bool there = QFileInfo::exists(FromText(PointsPath(ToText(path))));
  return there ? PointsText(ReadPoints(ToText(path), data.NumAtts())) : String();
}

}  // namespace

FileActions::FileActions(Document& document, QWidget* window) : QObject(window), document_(document), window_(window) {}

void FileActions::TellNotes(const std::vector<String>& notes) {
  QStringList lines;
  for (const String& note : notes) lines += FromText(note);
  if (!lines.isEmpty()) QMessageBox::information(window_, tr("Imported"), lines.join(QLatin1Char('\n')));
}

void FileActions::TellFault(const QString& title, const QString& text) { QMessageBox::warning(window_, title, text); }

bool FileActions::MayLeave() {
  if (!document_.IsChanged()) return true;
  const QString name = FromText(document_.Data().Name);
  const auto answer =
      QMessageBox::question(window_, tr("Unsaved changes"),
                            tr("%1 has changes that are not saved.").arg(name.isEmpty() ? tr("The project") : name),
                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
  if (answer == QMessageBox::Save) return Save();
  return answer == QMessageBox::Discard;
}

bool FileActions::AskAndOpen() {
  const QString path = QFileDialog::getOpenFileName(
      window_, tr("Open"), QFileInfo(document_.Path()).absolutePath(),
      tr("Projects and tables (*.tarnwise *.csv *.tsv *.txt *.kst *.json);;All files (*)"));
  return !path.isEmpty() && Open(path);
}

bool FileActions::Open(const QString& path) {
  if (!MayLeave()) return false;
  const QString ending = QFileInfo(path).suffix().toLower();
  try {
    if (ending == QLatin1String("tarnwise")) return OpenProject(path);
    if (ending == QLatin1String("kst") || ending == QLatin1String("json")) return ImportModelFile(path);
    return ImportTableFrom(FileBytes(ToText(path)), QFileInfo(path).fileName());
  } catch (const std::exception& fault) {
    TellFault(tr("Open"), FromText(fault.what()));
    return false;
  }
}

bool FileActions::OpenProject(const QString& path) {
  document_.Open(QFileInfo(path).absoluteFilePath());
  Remember(document_.Path());
  return true;
}

bool FileActions::ImportModelFile(const QString& path) {
  const WizardData data = ReadWholeModel(path);
  ImportedModel imported = ImportModel(data, PointsBeside(path, data));
  imported.Project.Name = ToText(QFileInfo(path).completeBaseName());
  document_.Replace(std::move(imported.Project));
  TellNotes(imported.Notes);
  return true;
}

bool FileActions::AskAndImportJudgments() {
  const QString path =
      QFileDialog::getOpenFileName(window_, tr("Judgments of a model"), QFileInfo(document_.Path()).absolutePath(),
                                   tr("Models with judgments (*.kst *.json);;All files (*)"));
  if (path.isEmpty()) return false;
  try {
    return ImportJudgments(path);
  } catch (const std::exception& fault) {
    TellFault(tr("No judgments were imported"), tr("%1: %2").arg(path, FromText(fault.what())));
    return false;
  }
}

bool FileActions::ImportJudgments(const QString& path) {
  const WizardData data = ReadWholeModel(path);
  ImportedSession imported = ImportSession(document_.Data(), data, PointsBeside(path, data));
  imported.Session.Note = ToText(tr("from %1").arg(QFileInfo(path).fileName()));
  document_.Edit(tr("Judgments of a model"), [&](Project& project) { AddSession(project, imported.Session); });
  TellNotes(imported.Notes);
  return true;
}

bool FileActions::ImportTableFrom(std::vector<char> bytes, const QString& name) {
  ImportDialog dialog(std::move(bytes), name, window_);
  if (dialog.exec() != QDialog::Accepted) return false;
  document_.Replace(dialog.Imported().Project);
  const QString report = dialog.Report();
  if (!report.isEmpty()) QMessageBox::information(window_, tr("Imported, but for these cells"), report);
  return true;
}

bool FileActions::PasteTable() {
  const QByteArray text = QGuiApplication::clipboard()->text().toUtf8();
  if (text.trimmed().isEmpty()) {
    TellFault(tr("Paste"), tr("The clipboard holds no text."));
    return false;
  }
  return MayLeave() && ImportTableFrom({text.begin(), text.end()}, tr("Pasted table"));
}

bool FileActions::New() {
  if (!MayLeave()) return false;
  document_.Close();
  return true;
}

bool FileActions::Save() { return document_.Path().isEmpty() ? AskAndSave() : SaveTo(document_.Path()); }

bool FileActions::AskAndSave() {
  const QString name = FromText(document_.Data().Name);
  const QString proposed = document_.Path().isEmpty() ? (name.isEmpty() ? tr("project") : name) : document_.Path();
  const QString path = AskForFile(window_, tr("Save as"), proposed, {{tr("Projects"), "tarnwise"}});
  return !path.isEmpty() && SaveTo(path);
}

bool FileActions::MayOverwrite(const QString& path) {
  if (path != document_.Path() || document_.IsGone() || !document_.IsChangedOutside()) return true;
  return QMessageBox::question(
             window_, tr("The file was changed"),
             tr("%1 was changed by another program since it was read here. Saving replaces what stands in it now.")
                 .arg(path),
             QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Save;
}

bool FileActions::SaveTo(const QString& path) {
  if (!MayOverwrite(path)) return false;
  try {
    document_.Save(path);
  } catch (const ModelFault& fault) {
    TellFault(tr("Not saved"),
              tr("%1\n\nThe file is as it was, and the project is still open here. “Save as…” can put it elsewhere.")
                  .arg(FromText(fault.what())));
    return false;
  }
  Remember(path);
  Q_EMIT Told(tr("Saved to %1.").arg(path));
  return true;
}

void FileActions::LookAtFile() {
  const bool busy = asking_ || QApplication::activeModalWidget() != nullptr;
  if (busy || document_.Path().isEmpty() || document_.IsGone() || !document_.IsChangedOutside()) return;
  asking_ = true;
  const QString text = document_.IsChanged()
                           ? tr("%1 was changed by another program. Reading it anew loses the changes made here.")
                           : tr("%1 was changed by another program.");
  QMessageBox box(QMessageBox::Question, tr("The file was changed"), text.arg(document_.Path()), QMessageBox::NoButton,
                  window_);
  QPushButton* const read = box.addButton(tr("&Read it anew"), QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(tr("&Keep what is here"), QMessageBox::RejectRole));
  box.exec();
  const QString path = document_.Path();
  try {
    if (box.clickedButton() == read) {
      document_.Open(path);
    } else {
      document_.KeepAgainstFile();
    }
  } catch (const ModelFault& fault) {
    TellFault(tr("Open"), FromText(fault.what()));
    document_.KeepAgainstFile();
  }
  asking_ = false;
}

void FileActions::Remember(const QString& path) {
  QStringList files = RecentFiles();
  files.removeAll(path);
  files.prepend(path);
  QSettings().setValue(QStringLiteral("recent"), files.mid(0, kMostRecent));
}

void FileActions::FillRecent(QMenu& menu) {
  menu.clear();
  for (const QString& path : RecentFiles()) {
    menu.addAction(QDir::toNativeSeparators(path), this, [this, path] { Open(path); });
  }
  if (menu.isEmpty()) menu.addAction(tr("None yet"))->setEnabled(false);
}

}  // namespace Tarnwise
