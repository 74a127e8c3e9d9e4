#include "project/JsonMembers.h"
#include "project/ProjectFile.h"

namespace Tarnwise {

namespace {

constexpr const char* kSessionLines = ",\n      ";

void PutCurve(JsonMembers& members, String& out, const std::vector<ValuePoint>& curve) {
  if (curve.empty()) return;
  members.Key("curve") += '[';
  for (std::size_t k = 0; k < curve.size(); ++k) {
    out += k == 0 ? "[" : ", [";
    PutShortest(out, curve[k].Score, "curve");
    out += ", ";
    PutShortest(out, curve[k].Value, "curve");
    out += ']';
  }
  out += ']';
}

void PutValues(String& out, const std::vector<std::optional<double>>& values) {
  out += '[';
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i != 0) out += ", ";
    if (values[i]) {
      PutShortest(out, *values[i], "values");
    } else {
      out += "null";
    }
  }
  out += ']';
}

void PutSource(String& out, const ProjectSource& source) {
  JsonMembers members(out, kOnOneLine);
  members.Text("file", source.File);
  members.Text("sha256", source.Sha256);
  members.Text("imported", source.Imported);
  members.Text("delimiter", source.Delimiter);
  members.Text("decimal", source.Decimal);
  members.Text("encoding", source.Encoding);
  members.Others(source.Others);
  out += '}';
}

void PutColumn(String& out, const DataColumn& column) {
  JsonMembers members(out, kOnOneLine);
  members.NeededText("name", column.Name);
  members.NeededText("role", NameOf(column.Role));
  members.Text("unit", column.Unit);
  members.Text("description", column.Description);
  members.Number("worst", column.Worst);
  members.Number("best", column.Best);
  PutCurve(members, out, column.Curve);
  if (column.Role == Role::Unused && !column.ValuesAsTheyCame.empty()) {
    members.Json("values", column.ValuesAsTheyCame);
  } else {
    PutValues(members.Key("values"), column.Values);
  }
  members.Others(column.Others);
  out += '}';
}

void PutAttribute(String& out, const SessionAttribute& attribute) {
  JsonMembers members(out, kOnOneLine);
  members.NeededText("name", attribute.Name);
  members.Number("low", attribute.Low);
  members.Number("ratio", attribute.Ratio);
  members.Number("high", attribute.High);
  members.Json("judged", attribute.Judged ? "true" : "false");
  if (attribute.Snapshot) {
    members.Number("worst", attribute.Snapshot->Worst);
    members.Number("best", attribute.Snapshot->Best);
    PutCurve(members, out, attribute.Snapshot->Curve);
  }
  members.Others(attribute.Others);
  out += '}';
}

void PutCross(String& out, const SessionCross& cross) {
  JsonMembers members(out, kOnOneLine);
  members.Number("ratio", cross.Ratio);
  members.Json("judged", cross.Judged ? "true" : "false");
  members.Others(cross.Others);
  out += '}';
}

void PutSession(String& out, const JudgmentSession& session) {
  JsonMembers members(out, kSessionLines);
  members.Text("made", session.Made);
  members.Text("by", session.By);
  members.Text("note", session.Note);
  members.Text("approach", session.Approach);
  members.NeededText("basis", NameOf(session.Basis));
  members.Text("benefitReference", session.BenefitReference);
  members.Text("costReference", session.CostReference);
  if (session.Cross) PutCross(members.Key("cross"), *session.Cross);
  PutLines(members.Key("attributes"), session.Attributes, "      ",
           [&out](const SessionAttribute& attribute) { PutAttribute(out, attribute); });
  members.Json("points", session.Points);
  members.Others(session.Others);
  out += "\n    }";
}

void PutUse(String& out, const ProjectUse& use) {
  JsonMembers members(out, kOnOneLine);
  if (use.NoSession) members.Json("session", "null");
  if (use.Session && !use.NoSession) members.Key("session") += std::to_string(*use.Session);
  members.Name("form", use.Form);
  members.Name("returns", use.Returns);
  members.Name("orientation", use.Orientation);
  if (use.Seed) members.Whole("seed", *use.Seed);
  members.Others(use.Others);
  out += '}';
}

}  // namespace

String SessionJson(const JudgmentSession& session) {
  String out;
  PutSession(out, session);
  return out;
}

String ProjectText(const Project& project) {
  String out;
  JsonMembers members(out, kTopLines);
  members.Whole("tarnwise", 1);
  members.Text("name", project.Name);
  if (project.Source) PutSource(members.Key("source"), *project.Source);
  PutLines(members.Key("units"), project.Units, "  ", [&out](const String& unit) { out += JsonQuotes(unit, "units"); });
  PutLines(members.Key("columns"), project.Columns, "  ", [&out](const DataColumn& column) { PutColumn(out, column); });
  if (!project.Sessions.empty()) {
    PutLines(members.Key("sessions"), project.Sessions, "  ",
             [&out](const JudgmentSession& session) { PutSession(out, session); });
  }
  if (project.Use) PutUse(members.Key("use"), *project.Use);
  members.Others(project.Others);
  out += "\n}\n";
  return out;
}

}  // namespace Tarnwise
