// The project that is open, its file, and the way back. A change makes a new project: whoever works with an old one,
// such as the solver's thread, may keep it.
#pragma once

#include "workbench/History.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace Tarnwise {

class Document : public QObject {
  Q_OBJECT

 public:
  Document();

  const Project& Data() const { return *project_; }
  const std::shared_ptr<const Project>& Shared() const { return project_; }
  bool IsEmpty() const { return project_->Units.empty() && project_->Columns.empty(); }
  const QString& Path() const { return path_; }  // empty: no file yet
  bool IsChanged() const { return savedId_ != history_.Id(); }

  // Makes the change to a copy. Where it leaves the project as it is, or as no file may hold it, nothing happens; the
  // latter is told by Refused. Returns whether there is a change.
  bool Edit(const QString& what, const std::function<void(Project&)>& change);

  bool CanUndo() const { return history_.CanUndo(); }
  bool CanRedo() const { return history_.CanRedo(); }
  QString UndoText() const;
  QString RedoText() const;
  void Undo();
  void Redo();

  // A ModelFault says why nothing was read or written; nothing has changed then.
  void Open(const QString& path);
  void Save(const QString& path);
  void Replace(Project project);  // by a new one without a file, which is not saved yet
  void Close();

  // Whether the file is another one than was read or written last, or has gone.
  bool IsChangedOutside() const;
  bool IsGone() const;
  void KeepAgainstFile();  // what is here counts as changed, and the file as seen

 Q_SIGNALS:
  void Changed();
  void Refused(const QString& reason);

 private:
  void Begin(std::shared_ptr<const Project> project, const QString& path);
  void Set(Project project);

  std::shared_ptr<const Project> project_;
  History history_;
  std::optional<std::size_t> savedId_;  // of the state that stands in the file
  QString path_;
  String seen_;  // the file's sum when it was read or written last
};

}  // namespace Tarnwise
