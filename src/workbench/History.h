// The way back: whole projects, one for each change. What a change left alone, columns above all, is kept once.
#pragma once

#include "project/Project.h"

#include <memory>

namespace Tarnwise {

struct Snapshot {
  Project Rest;  // without units and columns
  std::shared_ptr<const std::vector<String>> Units;
  std::vector<std::shared_ptr<const DataColumn>> Columns;
};

// What is equal in the neighbour is shared with it.
Snapshot SnapshotOf(const Project& project, const Snapshot* neighbour);
Project ProjectOf(const Snapshot& snapshot);

// Never empty: the first state is the project that was opened.
class History {
 public:
  explicit History(const Project& first);

  void Add(const Project& project, String what);  // what was undone before is forgotten
  bool CanUndo() const { return at_ > 0; }
  bool CanRedo() const { return at_ + 1 < states_.size(); }
  const String& UndoText() const { return states_[at_].What; }  // where it can
  const String& RedoText() const { return states_[at_ + 1].What; }
  Project Undo();
  Project Redo();

  // Of the present state; never given twice.
  std::size_t Id() const { return states_[at_].Id; }

 private:
  struct State {
    std::size_t Id = 0;
    String What;
    Snapshot Kept;
  };
  std::vector<State> states_;
  std::size_t at_ = 0;
  std::size_t nextId_ = 0;
};

}  // namespace Tarnwise
