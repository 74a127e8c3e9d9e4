#include "project/Project.h"

#include <algorithm>
#include <array>

namespace Tarnwise {

namespace {

constexpr std::array<const char*, 3> kRoles = {"input", "output", "unused"};
constexpr std::array<const char*, 3> kBases = {"range", "scale", "unit"};
constexpr std::array<const char*, 2> kForms = {"ratio", "value"};
constexpr std::array<const char*, 4> kReturns = {"crs", "vrs", "nirs", "ndrs"};
constexpr std::array<const char*, 2> kOrientations = {"in", "out"};

template <class Enum, std::size_t N>
const char* NameIn(const std::array<const char*, N>& names, Enum value) {
  return names.at(static_cast<std::size_t>(value));
}

template <class Enum, std::size_t N>
std::optional<Enum> NamedIn(const std::array<const char*, N>& names, const String& name) {
  const auto* const found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) return std::nullopt;
  return static_cast<Enum>(found - names.begin());
}

template <class Record>
const Record* FindNamed(const std::vector<Record>& records, const String& name) {
  const auto found =
      std::find_if(records.begin(), records.end(), [&name](const Record& record) { return record.Name == name; });
  return found == records.end() ? nullptr : &*found;
}

bool IsBound(const std::optional<double>& ratio) { return ratio && *ratio != 0.0; }

}  // namespace

const char* NameOf(Role role) { return NameIn(kRoles, role); }
const char* NameOf(JudgmentBasis basis) { return NameIn(kBases, basis); }
const char* NameOf(ScoreForm form) { return NameIn(kForms, form); }
const char* NameOf(ScoreReturns returns) { return NameIn(kReturns, returns); }
const char* NameOf(ScoreOrientation orientation) { return NameIn(kOrientations, orientation); }
std::optional<Role> RoleNamed(const String& name) { return NamedIn<Role>(kRoles, name); }
std::optional<JudgmentBasis> BasisNamed(const String& name) { return NamedIn<JudgmentBasis>(kBases, name); }
std::optional<ScoreForm> FormNamed(const String& name) { return NamedIn<ScoreForm>(kForms, name); }
std::optional<ScoreReturns> ReturnsNamed(const String& name) { return NamedIn<ScoreReturns>(kReturns, name); }
std::optional<ScoreOrientation> OrientationNamed(const String& name) {
  return NamedIn<ScoreOrientation>(kOrientations, name);
}

const DataColumn* FindColumn(const Project& project, const String& name) { return FindNamed(project.Columns, name); }

const SessionAttribute* FindAttribute(const JudgmentSession& session, const String& name) {
  return FindNamed(session.Attributes, name);
}

std::vector<std::size_t> ColumnsIn(const Project& project, Role role) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < project.Columns.size(); ++i) {
    if (project.Columns[i].Role == role) places.push_back(i);
  }
  return places;
}

const String& ReferenceIn(const JudgmentSession& session, Role role) {
  return role == Role::Output ? session.BenefitReference : session.CostReference;
}

bool IsJudged(const JudgmentSession& session, const String& name) {
  const SessionAttribute* const attribute = FindAttribute(session, name);
  if (attribute == nullptr || name == session.BenefitReference || name == session.CostReference) return false;
  return attribute->Judged && (IsBound(attribute->Low) || IsBound(attribute->High));
}

ColumnScale ScaleOf(const DataColumn& column, const JudgmentSession* session) {
  const SessionAttribute* const attribute = session == nullptr ? nullptr : FindAttribute(*session, column.Name);
  if (attribute != nullptr && attribute->Snapshot) return *attribute->Snapshot;
  return {column.Worst.value_or(0.0), column.Best.value_or(0.0), column.Curve};
}

std::optional<std::size_t> SessionInUse(const Project& project) {
  if (project.Use && project.Use->NoSession) return std::nullopt;
  if (project.Use && project.Use->Session) return project.Use->Session;
  if (project.Sessions.empty()) return std::nullopt;
  return project.Sessions.size() - 1;
}

}  // namespace Tarnwise
