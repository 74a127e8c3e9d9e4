#include "model/ModelFile.h"
#include "modelfiles/Json.h"
#include "project/CsvText.h"
#include "project/Exports.h"
#include "project/Shown.h"
#include "runtime/CodePage.h"

namespace Tarnwise {

namespace {

String NameOfUnits(const Project& project) {
  String name = "unit";
  for (int k = 2; FindColumn(project, name) != nullptr; ++k) name = "unit " + std::to_string(k);
  return name;
}

// A value that is no number as it came.
String CellText(const Json& value) {
  if (value.is_string()) return value.get<String>();
  return value.is_null() ? String() : value.dump();
}

using CameValues = std::vector<Json>;  // by column; null where the column's values are numbers

CameValues ValuesThatCame(const Project& project) {
  CameValues came;
  for (const DataColumn& column : project.Columns) {
    const bool numbers = column.Role != Role::Unused || column.ValuesAsTheyCame.empty();
    Json values = numbers ? Json() : Json::parse(column.ValuesAsTheyCame, nullptr, false);
    came.push_back(values.is_array() ? values : Json());
  }
  return came;
}

void PutUnit(const Project& project, const CameValues& came, std::size_t unit, String& out) {
  CsvRow row;
  row.Text(project.Units[unit]);
  for (std::size_t j = 0; j < project.Columns.size(); ++j) {
    const std::vector<std::optional<double>>& values = project.Columns[j].Values;
    if (came[j].is_array()) {
      row.Text(unit < came[j].size() ? CellText(came[j][unit]) : String());
    } else {
      row.Number(unit < values.size() ? values[unit] : std::nullopt);
    }
  }
  row.PutTo(out);
}

// False where there is no room.
bool PutAlternatives(const Project& project, const CodePage& texts, WizardData& data) {
  if (project.Units.size() > static_cast<std::size_t>(kMaxAlternatives)) return false;
  for (int a = 0; a < static_cast<int>(project.Units.size()); ++a) {
    const auto unit = static_cast<std::size_t>(a);
    data.AlternativeList.Unused1[a] = InCodePage(project.Units[unit], texts);
    int i = 0;
    for (const DataColumn& column : project.Columns) {
      if (column.Role == Role::Unused) continue;
      if (const std::optional<double>& value = column.Values[unit]) {
        data.RawScores.RawScores(a, i) = *value;
        data.Scores.Scores(a, i) = *value;
      }
      ++i;
    }
  }
  return true;
}

}  // namespace

String DataCsv(const Project& project) {
  String text;
  CsvRow header;
  header.Text(NameOfUnits(project));
  for (const DataColumn& column : project.Columns) header.Text(column.Name);
  header.PutTo(text);
  const CameValues came = ValuesThatCame(project);
  for (std::size_t unit = 0; unit < project.Units.size(); ++unit) PutUnit(project, came, unit, text);
  return text;
}

ExportedModel ModelOf(const Project& project, const Beginning& beginning, const CodePage& texts) {
  ExportedModel exported;
  exported.Model = SessionModelOf(project, beginning, texts);
  exported.Notes = exported.Model.Notes;
  if (!PutAlternatives(project, texts, exported.Model.Data)) {
    exported.Notes.push_back("A model has room for " + std::to_string(kMaxAlternatives) + " alternatives: the " +
                             CountOf(project.Units.size(), "unit") + " are not in it.");
  }
  for (const String& unit : project.Units) {
    if (InCodePage(unit, texts) == unit) continue;
    exported.Notes.push_back(texts.Name + " lacks some letters of units' names: question marks stand for them.");
    break;
  }
  if (!exported.Model.Placeholders.empty()) {
    exported.Notes.push_back("A model has no way to say that something was not judged: it holds a ratio for it.");
  }
  return exported;
}

}  // namespace Tarnwise
