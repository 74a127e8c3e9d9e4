#include "modelfiles/DescriptionJson.h"
#include "modelfiles/ModelWriter.h"
#include "project/JsonRecord.h"
#include "project/ProjectChecks.h"
#include "project/ProjectFile.h"
#include "project/Shown.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr std::int64_t kVersion = 1;

String NameIn(const Json& value) {
  const bool named = value.is_object() && value.contains("name") && value["name"].is_string();
  return named ? value["name"].get<String>() : String();
}

String PlaceIn(const char* kind, std::size_t i, const Json& value) {
  return NameInMessages(kind, static_cast<int>(i), ShownName(NameIn(value)));
}

std::vector<String> UnitsOf(JsonRecord& top) {
  std::vector<String> units;
  const Json& list = top.NeedList("units");
  units.reserve(list.size());
  for (const Json& name : list) {
    if (!name.is_string()) top.Fail("units", "number " + std::to_string(units.size()) + " is no text: " + Quoted(name));
    units.push_back(name.get<String>());
  }
  return units;
}

std::vector<ValuePoint> CurveOf(JsonRecord& record) {
  std::vector<ValuePoint> curve;
  const Json* const list = record.List("curve");
  if (list == nullptr) return curve;
  if (list->empty()) record.Fail("curve", "it has no points");
  for (const Json& point : *list) {
    const String place = "point " + std::to_string(curve.size()) + " of " + record.PlaceOf("curve");
    if (!point.is_array() || point.size() != 2) {
      throw ModelFault(place + ": a pair [score, value] is wanted, here is " + Quoted(point));
    }
    curve.push_back({PlainNumber(point[0], place), PlainNumber(point[1], place)});
  }
  return curve;
}

bool IsNumberOrMissing(const Json& value) { return value.is_number() || value.is_null(); }

std::vector<std::optional<double>> ValuesOf(JsonRecord& record, const std::vector<String>& units) {
  const Json& list = record.NeedList("values");
  if (list.size() != units.size()) {
    record.Fail("values", "there are " + std::to_string(list.size()) + " for " + CountOf(units.size(), "unit"));
  }
  std::vector<std::optional<double>> values(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (!list[i].is_null()) values[i] = PlainNumber(list[i], ShownName(units[i]) + " in " + record.PlaceOf("values"));
  }
  return values;
}

// An unused column's values may be anything: numbers where there are some, and kept as they came.
void TakeIdleValues(JsonRecord& record, const std::vector<String>& units, DataColumn& column) {
  const Json& list = record.Need("values");
  column.Values.resize(units.size());
  for (std::size_t i = 0; list.is_array() && i < std::min(list.size(), units.size()); ++i) {
    if (list[i].is_number()) column.Values[i] = list[i].get<double>();
  }
  const bool plain =
      list.is_array() && list.size() == units.size() && std::all_of(list.begin(), list.end(), IsNumberOrMissing);
  if (!plain) column.ValuesAsTheyCame = list.dump();
}

DataColumn ColumnOf(const Json& value, std::size_t i, const std::vector<String>& units) {
  JsonRecord record(value, PlaceIn("column", i, value));
  DataColumn column;
  column.Name = TextOf(record.Need("name"), record.PlaceOf("name"));
  (void)record.Need("role");
  column.Role = *record.OneOf("role", RoleNamed, "\"input\", \"output\" or \"unused\"");
  column.Unit = record.Text("unit");
  column.Description = record.Text("description");
  column.Worst = record.Number("worst");
  column.Best = record.Number("best");
  column.Curve = CurveOf(record);
  if (column.Role == Role::Unused) {
    TakeIdleValues(record, units, column);
  } else {
    column.Values = ValuesOf(record, units);
  }
  column.Others = record.Others();
  return column;
}

// A curve alone is no copy of a scale; it stays a key that is not known.
std::optional<ColumnScale> SnapshotOf(JsonRecord& record) {
  const auto worst = record.Number("worst");
  const auto best = record.Number("best");
  if (!worst && !best) return std::nullopt;
  if (!worst) record.Fail("worst", "it is missing beside best");
  if (!best) record.Fail("best", "it is missing beside worst");
  return ColumnScale{*worst, *best, CurveOf(record)};
}

SessionAttribute AttributeOf(const Json& value, std::size_t i, const String& of, const JudgmentSession& session) {
  JsonRecord record(value, PlaceIn("attribute", i, value) + " of " + of);
  SessionAttribute attribute;
  attribute.Name = TextOf(record.Need("name"), record.PlaceOf("name"));
  attribute.Judged = record.Truth("judged", true);
  const bool reference = attribute.Name == session.BenefitReference || attribute.Name == session.CostReference;
  if (attribute.Judged && !reference) {
    (void)record.Need("low");
    (void)record.Need("high");
    attribute.Low = record.Number("low");
    attribute.Ratio = record.Number("ratio");
    attribute.High = record.Number("high");
  } else {
    attribute.Low = record.IdleNumber("low");
    attribute.Ratio = record.IdleNumber("ratio");
    attribute.High = record.IdleNumber("high");
  }
  attribute.Snapshot = SnapshotOf(record);
  attribute.Others = record.Others();
  return attribute;
}

std::optional<SessionCross> CrossOf(JsonRecord& session) {
  const Json* const found = session.Find("cross");
  if (found == nullptr) return std::nullopt;
  JsonRecord record(*found, session.PlaceOf("cross"));
  SessionCross cross;
  cross.Judged = record.Truth("judged", true);
  if (cross.Judged) (void)record.Need("ratio");
  cross.Ratio = cross.Judged ? record.Number("ratio") : record.IdleNumber("ratio");
  cross.Others = record.Others();
  return cross;
}

JudgmentSession SessionOf(const Json& value, std::size_t i) {
  const String place = "session " + std::to_string(i);
  JsonRecord record(value, place);
  JudgmentSession session;
  session.Made = record.Text("made");
  session.By = record.Text("by");
  session.Note = record.Text("note");
  session.Approach = record.Text("approach");
  (void)record.Need("basis");
  session.Basis = *record.OneOf("basis", BasisNamed, "\"range\", \"scale\" or \"unit\"");
  session.BenefitReference = record.Text("benefitReference");
  session.CostReference = record.Text("costReference");
  session.Cross = CrossOf(record);
  for (const Json& attribute : record.NeedList("attributes")) {
    session.Attributes.push_back(AttributeOf(attribute, session.Attributes.size(), place, session));
  }
  if (const Json* const points = record.Find("points")) session.Points = points->dump();
  session.Others = record.Others();
  return session;
}

void TakeSessions(JsonRecord& top, Project& project) {
  const Json* const list = top.List("sessions");
  if (list == nullptr) return;
  for (const Json& session : *list) project.Sessions.push_back(SessionOf(session, project.Sessions.size()));
}

std::optional<ProjectSource> SourceOf(JsonRecord& top) {
  const Json* const found = top.Find("source");
  if (found == nullptr) return std::nullopt;
  JsonRecord record(*found, "source");
  ProjectSource source;
  source.File = record.Text("file");
  source.Sha256 = record.Text("sha256");
  source.Imported = record.Text("imported");
  source.Delimiter = record.Text("delimiter");
  source.Decimal = record.Text("decimal");
  source.Encoding = record.Text("encoding");
  source.Others = record.Others();
  return source;
}

std::optional<ProjectUse> UseOf(JsonRecord& top) {
  const Json* const found = top.Find("use");
  if (found == nullptr) return std::nullopt;
  JsonRecord record(*found, "use");
  ProjectUse use;
  use.NoSession = found->contains("session") && (*found)["session"].is_null();
  if (const Json* const session = record.Find("session")) {
    use.Session = static_cast<std::size_t>(WholeOf(*session, record.PlaceOf("session"), 0, INT64_MAX));
  }
  use.Form = record.OneOf("form", FormNamed, "\"ratio\" or \"value\"");
  use.Returns = record.OneOf("returns", ReturnsNamed, "\"crs\", \"vrs\", \"nirs\" or \"ndrs\"");
  use.Orientation = record.OneOf("orientation", OrientationNamed, "\"in\" or \"out\"");
  if (const Json* const seed = record.Find("seed")) use.Seed = WholeOf(*seed, record.PlaceOf("seed"), 0, INT64_MAX);
  use.Others = record.Others();
  return use;
}

void CheckVersion(JsonRecord& top) {
  const Json& version = top.Need("tarnwise");
  if (version == kVersion) return;
  top.Fail("tarnwise", "version " + std::to_string(kVersion) + " is wanted, here is " + Quoted(version));
}

}  // namespace

Project ProjectFromText(const String& text) {
  const Json json = ParseDescription(text);
  if (!json.is_object()) throw ModelFault("a project is an object, here is " + Quoted(json));
  JsonRecord top(json, {});
  CheckVersion(top);
  Project project;
  project.Name = top.Text("name");
  project.Source = SourceOf(top);
  project.Units = UnitsOf(top);
  for (const Json& column : top.NeedList("columns")) {
    project.Columns.push_back(ColumnOf(column, project.Columns.size(), project.Units));
  }
  TakeSessions(top, project);
  project.Use = UseOf(top);
  project.Others = top.Others();
  CheckRecords(project);
  return project;
}

}  // namespace Tarnwise
