#include "workbench/History.h"

namespace Tarnwise {

namespace {

constexpr std::size_t kMostStates = 200;

std::shared_ptr<const DataColumn> Shared(const DataColumn& column, std::size_t place, const Snapshot* neighbour) {
  if (neighbour != nullptr && place < neighbour->Columns.size() && *neighbour->Columns[place] == column) {
    return neighbour->Columns[place];
  }
  return std::make_shared<const DataColumn>(column);
}

Project WithoutData(const Project& project) {
  Project rest;
  rest.Name = project.Name;
  rest.Source = project.Source;
  rest.Sessions = project.Sessions;
  rest.Use = project.Use;
  rest.Others = project.Others;
  return rest;
}

}  // namespace

Snapshot SnapshotOf(const Project& project, const Snapshot* neighbour) {
  Snapshot snapshot{WithoutData(project), nullptr, {}};
  const bool same = neighbour != nullptr && *neighbour->Units == project.Units;
  snapshot.Units = same ? neighbour->Units : std::make_shared<const std::vector<String>>(project.Units);
  for (std::size_t j = 0; j < project.Columns.size(); ++j) {
    snapshot.Columns.push_back(Shared(project.Columns[j], j, neighbour));
  }
  return snapshot;
}

Project ProjectOf(const Snapshot& snapshot) {
  Project project = snapshot.Rest;
  project.Units = *snapshot.Units;
  for (const auto& column : snapshot.Columns) project.Columns.push_back(*column);
  return project;
}

History::History(const Project& first) { states_.push_back({nextId_++, {}, SnapshotOf(first, nullptr)}); }

void History::Add(const Project& project, String what) {
  states_.resize(at_ + 1);
  states_.push_back({nextId_++, std::move(what), SnapshotOf(project, &states_[at_].Kept)});
  if (states_.size() > kMostStates) states_.erase(states_.begin());
  at_ = states_.size() - 1;
}

Project History::Undo() { return ProjectOf(states_[--at_].Kept); }

Project History::Redo() { return ProjectOf(states_[++at_].Kept); }

}  // namespace Tarnwise
