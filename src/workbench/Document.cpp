#include "workbench/Document.h"

#include "modelfiles/WholeFile.h"
#include "project/ProjectChecks.h"
#include "project/ProjectFile.h"
#include "project/Sha256.h"
#include "workbench/Texts.h"

#include <QFileInfo>

namespace Tarnwise {

namespace {

// Empty where there is no file to read.
String SumOf(const QString& path) {
  try {
    const std::vector<char> bytes = FileBytes(ToText(path));
    return Sha256({bytes.data(), bytes.size()});
  } catch (const ModelFault&) {
    return {};
  }
}

}  // namespace

Document::Document() : project_(std::make_shared<Project>()), history_(*project_), savedId_(history_.Id()) {}

bool Document::Edit(const QString& what, const std::function<void(Project&)>& change) {
  Project next = *project_;
  try {
    change(next);
    CheckRecords(next);
  } catch (const ModelFault& fault) {
    Q_EMIT Refused(FromText(fault.what()));
    return false;
  }
  if (next == *project_) return false;
  history_.Add(next, ToText(what));
  Set(std::move(next));
  return true;
}

QString Document::UndoText() const { return CanUndo() ? FromText(history_.UndoText()) : QString(); }

QString Document::RedoText() const { return CanRedo() ? FromText(history_.RedoText()) : QString(); }

void Document::Undo() {
  if (CanUndo()) Set(history_.Undo());
}

void Document::Redo() {
  if (CanRedo()) Set(history_.Redo());
}

void Document::Open(const QString& path) {
  const String seen = SumOf(path);
  auto project = std::make_shared<const Project>(ReadProject(ToText(path)));
  seen_ = seen;
  Begin(std::move(project), path);
}

void Document::Save(const QString& path) {
  WriteProject(ToText(path), *project_);
  path_ = path;
  savedId_ = history_.Id();
  seen_ = SumOf(path);
  Q_EMIT Changed();
}

void Document::Replace(Project project) {
  Begin(std::make_shared<const Project>(std::move(project)), {});
  savedId_.reset();
  Q_EMIT Changed();
}

void Document::Close() { Begin(std::make_shared<const Project>(), {}); }

bool Document::IsChangedOutside() const { return !path_.isEmpty() && SumOf(path_) != seen_; }

bool Document::IsGone() const { return !path_.isEmpty() && !QFileInfo::exists(path_); }

void Document::KeepAgainstFile() {
  seen_ = SumOf(path_);
  savedId_.reset();
  Q_EMIT Changed();
}

void Document::Begin(std::shared_ptr<const Project> project, const QString& path) {
  project_ = std::move(project);
  history_ = History(*project_);
  savedId_ = history_.Id();
  path_ = path;
  Q_EMIT Changed();
}

void Document::Set(Project project) {
  project_ = std::make_shared<const Project>(std::move(project));
  Q_EMIT Changed();
}

}  // namespace Tarnwise
