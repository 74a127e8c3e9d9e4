#include "project/ProjectChecks.h"

#include "modelfiles/ModelWriter.h"
#include "project/CsvRows.h"
#include "project/NumberText.h"
#include "project/Shown.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace Tarnwise {

namespace {

constexpr std::size_t kFewestPoints = 2;
constexpr std::size_t kMostPoints = 11;

String PlaceIn(const char* kind, std::size_t i, const String& name) {
  return NameInMessages(kind, static_cast<int>(i), ShownName(name));
}

[[noreturn]] void Refuse(const String& field, const String& of, const String& why) {
  throw ModelFault(field + " of " + of + ": " + why);
}

const String& NameIn(const String& unit) { return unit; }
template <class Record>
const String& NameIn(const Record& record) {
  return record.Name;
}

template <class Records>
void CheckNames(const Records& records, const char* kind, const String& of = {}) {
  std::unordered_map<std::string_view, std::size_t> seen;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const String& name = NameIn(records[i]);
    const String place = "name of " + String(kind) + " " + std::to_string(i) + of;
    if (WithoutBlanks(name).empty()) throw ModelFault(place + ": it is empty");
    const auto [first, isNew] = seen.emplace(name, i);
    if (isNew) continue;
    throw ModelFault(place + ": " + Shown(name) + " is the name of " + kind + " " + std::to_string(first->second) +
                     " already");
  }
}

void CheckFinite(const std::optional<double>& number, const char* field, const String& of) {
  if (number && !std::isfinite(*number)) Refuse(field, of, "it is no finite number");
}

void CheckCurve(const std::vector<ValuePoint>& curve, const String& of) {
  if (curve.empty()) return;
  if (curve.size() < kFewestPoints || curve.size() > kMostPoints) {
    Refuse("curve", of, "it has " + CountOf(curve.size(), "point") + ", 2 to 11 are wanted");
  }
  for (std::size_t k = 0; k < curve.size(); ++k) {
    CheckFinite(curve[k].Score, "curve", of);
    CheckFinite(curve[k].Value, "curve", of);
    if (k == 0 || curve[k - 1].Score < curve[k].Score) continue;
    Refuse("curve", of, "the score of point " + std::to_string(k) + " is not above that of the point before");
  }
}

void CheckDirection(const ColumnScale& scale, Role role, const String& of) {
  CheckFinite(scale.Worst, "worst", of);
  CheckFinite(scale.Best, "best", of);
  const bool wrong = role == Role::Input ? scale.Worst < scale.Best : scale.Worst > scale.Best;
  if (role == Role::Unused || !wrong) return;
  Refuse("worst", of,
         "worst " + ShortestText(scale.Worst) + " and best " + ShortestText(scale.Best) +
             " are the wrong way round for an " + NameOf(role));
}

void CheckColumn(const DataColumn& column, const std::vector<String>& units, const String& of) {
  if (column.Values.size() != units.size()) {
    Refuse("values", of, "there are " + std::to_string(column.Values.size()) + " for " + CountOf(units.size(), "unit"));
  }
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (column.Values[i] && !std::isfinite(*column.Values[i])) {
      Refuse("values", of, "that of " + ShownName(units[i]) + " is no finite number");
    }
  }
  CheckFinite(column.Worst, "worst", of);
  CheckFinite(column.Best, "best", of);
  CheckCurve(column.Curve, of);
  if (column.Role == Role::Unused) return;
  if (!column.Worst) Refuse("worst", of, "it is missing");
  if (!column.Best) Refuse("best", of, "it is missing");
  CheckDirection({*column.Worst, *column.Best, {}}, column.Role, of);
}

void CheckBound(const std::optional<double>& bound, const char* field, const String& of) {
  if (!bound) Refuse(field, of, "it is missing");
  CheckFinite(bound, field, of);
  if (*bound < 0.0) Refuse(field, of, ShortestText(*bound) + " is negative");
}

void CheckJudgment(const SessionAttribute& attribute, const String& of) {
  CheckBound(attribute.Low, "low", of);
  CheckBound(attribute.High, "high", of);
  CheckFinite(attribute.Ratio, "ratio", of);
  if (*attribute.High == 0.0 || *attribute.Low <= *attribute.High) return;
  Refuse("low", of, ShortestText(*attribute.Low) + " is above high, " + ShortestText(*attribute.High));
}

void CheckAttribute(const Project& project, const JudgmentSession& session, const SessionAttribute& attribute,
                    const String& of) {
  const bool reference = attribute.Name == session.BenefitReference || attribute.Name == session.CostReference;
  if (attribute.Judged && !reference) CheckJudgment(attribute, of);
  if (!attribute.Snapshot) return;
  const DataColumn* const column = FindColumn(project, attribute.Name);
  CheckDirection(*attribute.Snapshot, column == nullptr ? Role::Unused : column->Role, of);
  CheckCurve(attribute.Snapshot->Curve, of);
}

void CheckJudgments(const Project& project, const JudgmentSession& session, const String& of) {
  CheckNames(session.Attributes, "attribute", " of " + of);
  for (std::size_t i = 0; i < session.Attributes.size(); ++i) {
    const SessionAttribute& attribute = session.Attributes[i];
    CheckAttribute(project, session, attribute, PlaceIn("attribute", i, attribute.Name) + " of " + of);
  }
  if (!session.Cross || !session.Cross->Judged) return;
  const auto& ratio = session.Cross->Ratio;
  if (!ratio) Refuse("ratio", "cross of " + of, "it is missing");
  if (!std::isfinite(*ratio) || *ratio <= 0.0) Refuse("ratio", "cross of " + of, "it must be above 0 and finite");
}

String SessionPlace(std::size_t session) { return "session " + std::to_string(session); }

bool IsUsed(const DataColumn* column) { return column != nullptr && column->Role != Role::Unused; }

// The name of a used column in which the unit has no value; null where it has all.
const String* LackingIn(const Project& project, std::size_t unit) {
  for (const DataColumn& column : project.Columns) {
    if (IsUsed(&column) && !column.Values[unit]) return &column.Name;
  }
  return nullptr;
}

void CheckReference(const Project& project, const JudgmentSession& session, Role role, const String& of) {
  const char* const field = role == Role::Output ? "benefitReference" : "costReference";
  const String& reference = ReferenceIn(session, role);
  const std::size_t group = ColumnsIn(project, role).size();
  if (reference.empty()) {
    if (group > 1) Refuse(field, of, "it is missing, and there are " + CountOf(group, NameOf(role)));
    return;
  }
  const DataColumn* const column = FindColumn(project, reference);
  if (column == nullptr) Refuse(field, of, "there is no column " + Shown(reference));
  if (column->Role != role) {
    Refuse(field, of, Shown(reference) + " is no " + NameOf(role) + ", its role is " + NameOf(column->Role));
  }
}

}  // namespace

void CheckRecords(const Project& project) {
  CheckNames(project.Units, "unit");
  CheckNames(project.Columns, "column");
  for (std::size_t i = 0; i < project.Columns.size(); ++i) {
    CheckColumn(project.Columns[i], project.Units, PlaceIn("column", i, project.Columns[i].Name));
  }
  for (std::size_t i = 0; i < project.Sessions.size(); ++i) {
    CheckJudgments(project, project.Sessions[i], SessionPlace(i));
  }
  if (!project.Use || !project.Use->Session || *project.Use->Session < project.Sessions.size()) return;
  Refuse("session", "use",
         "there is no " + SessionPlace(*project.Use->Session) + ", only " +
             CountOf(project.Sessions.size(), "session") + " counted from 0");
}

void CheckForResults(const Project& project) {
  const std::size_t used = ColumnsIn(project, Role::Input).size() + ColumnsIn(project, Role::Output).size();
  if (used == 0) throw ModelFault("columns: none of them is an input or an output");
  if (used > kMostAttributes) {
    throw ModelFault("columns: " + std::to_string(used) + " are inputs and outputs, more than " +
                     std::to_string(kMostAttributes) + ", the most that can be judged");
  }
  if (project.Units.empty()) throw ModelFault("units: there are none");
  std::vector<String> lacking;
  for (std::size_t i = 0; i < project.Units.size(); ++i) {
    const String* const column = LackingIn(project, i);
    if (column == nullptr) return;
    lacking.push_back(ShownName(project.Units[i]) + " in " + ShownName(*column));
  }
  throw ModelFault("units: all of them lack a value: " + Enumerated(lacking));
}

void CheckSession(const Project& project, std::size_t session) {
  for (const Role role : {Role::Output, Role::Input}) {
    CheckReference(project, project.Sessions[session], role, SessionPlace(session));
  }
}

void CheckProject(const Project& project) {
  CheckRecords(project);
  CheckForResults(project);
  for (std::size_t i = 0; i < project.Sessions.size(); ++i) CheckSession(project, i);
}

std::vector<String> SessionNotes(const Project& project, std::size_t session) {
  std::vector<String> notes;
  const JudgmentSession& judged = project.Sessions[session];
  for (const SessionAttribute& attribute : judged.Attributes) {
    const String name = ShownName(attribute.Name);
    const DataColumn* const column = FindColumn(project, attribute.Name);
    if (IsUsed(column)) continue;
    notes.push_back(SessionPlace(session) + ": " + name +
                    " is passed over: " + (column == nullptr ? "there is no such column." : "it is not used."));
  }
  return notes;
}

}  // namespace Tarnwise
