// What is done with whole files: opening, importing, saving, the recent ones; and what is asked before anything would
// be lost.
#pragma once

#include "workbench/Document.h"

class QMenu;
class QWidget;

namespace Tarnwise {

class FileActions : public QObject {
  Q_OBJECT

 public:
  FileActions(Document& document, QWidget* window);

  // All of them ask first where changes are not saved, and tell what went wrong; false: nothing was done.
  bool AskAndOpen();
  bool Open(const QString& path);  // a project, or by its ending a model or a table
  bool PasteTable();
  bool AskAndImportJudgments();  // of a model, as one more session
  bool New();
  bool MayLeave();  // saved, or not wanted

  bool Save();
  bool AskAndSave();  // by another name

  // Asks what to do where the file was changed by somebody else.
  void LookAtFile();

  void FillRecent(QMenu& menu);

 Q_SIGNALS:
  void Told(const QString& text);

 private:
  bool OpenProject(const QString& path);
  bool ImportModelFile(const QString& path);
  bool ImportJudgments(const QString& path);
  bool ImportTableFrom(std::vector<char> bytes, const QString& name);
  bool SaveTo(const QString& path);
  bool MayOverwrite(const QString& path);
  void Remember(const QString& path);
  void TellNotes(const std::vector<String>& notes);
  void TellFault(const QString& title, const QString& text);

  Document& document_;
  QWidget* window_;
  bool asking_ = false;
};

}  // namespace Tarnwise
