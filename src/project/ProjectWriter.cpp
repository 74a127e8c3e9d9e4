#include "modelfiles/WholeFile.h"
#include "project/NumberText.h"
#include "project/ProjectFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr const char* kOnOneLine = ", ";
constexpr const char* kTopLines = ",\n  ";
constexpr const char* kSessionLines = ",\n      ";

String Quotes(const String& text, const String& field) {
  try {
    return nlohmann::json(text).dump();
  } catch (const nlohmann::json::exception&) {
    throw ModelFault(field + ": the text is not valid UTF-8");
  }
}

void PutNumber(String& out, double number, const String& field) {
  if (!std::isfinite(number)) throw ModelFault(field + ": it is no finite number");
  out += ShortestText(number);
}

// The members of one object, as far as they are there.
class Members {
 public:
  Members(String& out, const char* separator) : out_(out), separator_(separator) {
    out_ += '{';
    out_ += separator[1] == '\n' ? separator + 1 : "";
  }

  String& Key(const String& key) {
    if (!written_.empty()) out_ += separator_;
    written_.push_back(key);
    out_ += Quotes(key, "key") + ": ";
    return out_;
  }

  void NeededText(const String& key, const String& text) { Key(key) += Quotes(text, key); }
  void Text(const String& key, const String& text) {
    if (!text.empty()) NeededText(key, text);
  }
  void Number(const String& key, const std::optional<double>& number) {
    if (number) PutNumber(Key(key), *number, key);
  }
  void Whole(const String& key, std::int64_t number) { Key(key) += std::to_string(number); }
  void Json(const String& key, const String& json) {
    if (!json.empty()) Key(key) += json;
  }
  template <class Named>
  void Name(const String& key, const std::optional<Named>& value) {
    if (value) NeededText(key, NameOf(*value));
  }

  // A key that has been written since is not written twice.
  void Others(const OtherKeys& others) {
    for (const OtherKey& other : others) {
      if (std::find(written_.begin(), written_.end(), other.Name) == written_.end()) Json(other.Name, other.Value);
    }
  }

 private:
  String& out_;
  const char* separator_;
  std::vector<String> written_;
};

// A list, an item a line.
template <class Items, class PutItem>
void PutLines(String& out, const Items& items, const String& margin, PutItem putItem) {
  out += '[';
  for (std::size_t i = 0; i < items.size(); ++i) {
    out += (i == 0 ? "\n" : ",\n") + margin + "  ";
    putItem(items[i]);
  }
  out += items.empty() ? "]" : "\n" + margin + "]";
}

void PutCurve(Members& members, String& out, const std::vector<ValuePoint>& curve) {
  if (curve.empty()) return;
  members.Key("curve") += '[';
  for (std::size_t k = 0; k < curve.size(); ++k) {
    out += k == 0 ? "[" : ", [";
    PutNumber(out, curve[k].Score, "curve");
    out += ", ";
    PutNumber(out, curve[k].Value, "curve");
    out += ']';
  }
  out += ']';
}

void PutValues(String& out, const std::vector<std::optional<double>>& values) {
  out += '[';
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i != 0) out += ", ";
    if (values[i]) {
      PutNumber(out, *values[i], "values");
    } else {
      out += "null";
    }
  }
  out += ']';
}

void PutSource(String& out, const ProjectSource& source) {
  Members members(out, kOnOneLine);
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
  Members members(out, kOnOneLine);
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
  Members members(out, kOnOneLine);
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
  Members members(out, kOnOneLine);
  members.Number("ratio", cross.Ratio);
  members.Json("judged", cross.Judged ? "true" : "false");
  members.Others(cross.Others);
  out += '}';
}

void PutSession(String& out, const JudgmentSession& session) {
  Members members(out, kSessionLines);
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
  Members members(out, kOnOneLine);
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

String ProjectText(const Project& project) {
  String out;
  Members members(out, kTopLines);
  members.Whole("tarnwise", 1);
  members.Text("name", project.Name);
  if (project.Source) PutSource(members.Key("source"), *project.Source);
  PutLines(members.Key("units"), project.Units, "  ", [&out](const String& unit) { out += Quotes(unit, "units"); });
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
