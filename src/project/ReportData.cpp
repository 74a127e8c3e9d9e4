// What a report says of the question, the data and the scales.
#include "dea/DataChecks.h"
#include "project/NumberText.h"
#include "project/Report.h"
#include "project/ReportCharts.h"
#include "project/ResultsWords.h"
#include "project/Sentences.h"
#include "project/Shown.h"

#include <cmath>

namespace Tarnwise {

namespace {

const JudgmentSession* SessionOf(const Project& project, const Evaluation& evaluation) {
  return evaluation.How.Session ? &project.Sessions[*evaluation.How.Session] : nullptr;
}

String WordFor(Role role) { return role == Role::Input ? "input" : "output"; }

String ApproachText(const String& approach) {
  if (approach == "DEA_DIRECT") return "direct comparisons with a reference";
  if (approach == "DEA_TRADEOFFS") return "trade-offs between two alternatives";
  return approach;
}

void Put(std::vector<std::vector<String>>& rows, const char* what, const String& value) {
  if (!value.empty()) rows.push_back({what, value});
}

std::vector<String> Names(const Project& project, Role role) {
  std::vector<String> names;
  for (const std::size_t j : ColumnsIn(project, role)) names.push_back(ShownName(project.Columns[j].Name));
  return names;
}

// Every name, however many.
String All(const std::vector<String>& names) {
  String text;
  for (const String& name : names) text += (text.empty() ? "" : ", ") + name;
  return text.empty() ? String("none") : text;
}

void AddSession(const Project& project, const Evaluation& evaluation, Report& report) {
  const JudgmentSession* const session = SessionOf(project, evaluation);
  if (session == nullptr) {
    report.Paragraph("Nobody was asked: these results hold without any judgment.");
    return;
  }
  ReportTable table{"Who judged", {"Question", "Answer"}, {}, 2};
  Put(table.Rows, "Session", std::to_string(*evaluation.How.Session));
  Put(table.Rows, "Judged by", session->By.empty() ? String("not recorded") : session->By);
  Put(table.Rows, "On", session->Made.empty() ? String("not recorded") : session->Made);
  Put(table.Rows, "Approach", ApproachText(session->Approach));
  Put(table.Rows, "Remark", session->Note);
  report.Add(std::move(table));
}

String PointsText(const std::vector<ValuePoint>& curve) {
  if (curve.empty()) return "straight line";
  String text;
  for (const ValuePoint& point : curve) {
    text += (text.empty() ? "" : ", ") + ShortestText(point.Score) + ": " + ShortestText(point.Value);
  }
  return text;
}

}  // namespace

void AddAsked(const Project& project, const Evaluation& evaluation, const String& made, Report& report) {
  report.Paragraph("Report of " + made + ".");
  report.Section("What was asked, and of whom");
  const bool isValue = evaluation.How.Form == ScoreForm::Value;
  report.Paragraph(isValue ? "How much is each unit worth, all inputs and outputs taken together, under the weights "
                             "that were judged, and how far is it behind the best one?"
                           : "How efficient is each unit at making outputs of inputs, compared with all others, under "
                             "the weights that were judged?");
  ReportTable table{"The question", {"Of", "Answer"}, {}, 2};
  Put(table.Rows, "Units", std::to_string(project.Units.size()));
  Put(table.Rows, "Inputs", All(Names(project, Role::Input)));
  Put(table.Rows, "Outputs", All(Names(project, Role::Output)));
  Put(table.Rows, "Results", HowText(project, evaluation));
  report.Add(std::move(table));
  AddSession(project, evaluation, report);
  report.Paragraph(isValue ? ValueSummary(evaluation) : RatioSummary(evaluation));
}

void AddData(const Project& project, const Evaluation& evaluation, Report& report) {
  report.Section("Data");
  if (project.Source) {
    const ProjectSource& source = *project.Source;
    ReportTable table{"Source", {"What", "Which"}, {}, 2};
    Put(table.Rows, "File", source.File);
    Put(table.Rows, "SHA-256 of the file", source.Sha256);
    Put(table.Rows, "Imported", source.Imported);
    Put(table.Rows, "Delimiter", source.Delimiter.empty() ? String() : Shown(source.Delimiter));
    Put(table.Rows, "Decimal sign", source.Decimal.empty() ? String() : Shown(source.Decimal));
    Put(table.Rows, "Encoding", source.Encoding);
    if (!table.Rows.empty()) report.Add(std::move(table));
  } else {
    report.Paragraph("The project does not say where its data came from.");
  }
  ReportTable table{"The units", {"Unit"}, {}, 1};
  for (const Dea::Column& column : evaluation.Problem.Columns) table.Header.push_back(ShownName(column.Name));
  for (std::size_t k = 0; k < project.Units.size() && k < kMostUnitsShown; ++k) {
    std::vector<String> row{project.Units[k]};
    for (const Dea::Column& column : evaluation.Problem.Columns) {
      row.push_back(std::isnan(column.Values[k]) ? String("missing") : ShortestText(column.Values[k]));
    }
    table.Rows.push_back(std::move(row));
  }
  report.Add(std::move(table));
  if (project.Units.size() > kMostUnitsShown) {
    report.Paragraph("The first " + std::to_string(kMostUnitsShown) + " of " + std::to_string(project.Units.size()) +
                     " units are shown; the project holds all of them.");
  }
}

void AddScales(const Project& project, const Evaluation& evaluation, Report& report) {
  report.Section("Scales and value curves");
  const JudgmentSession* const session = SessionOf(project, evaluation);
  report.Paragraph(session == nullptr ? "The performance range of each attribute and the values of its scores."
                                      : "The performance range of each attribute and the values of its scores, as they "
                                        "were when they were judged.");
  ReportTable table{"Attributes", {"Attribute", "Role", "Measured in", "Curve (score: value)", "Worst", "Best"}, {}, 4};
  for (const DataColumn& column : project.Columns) {
    if (column.Role == Role::Unused) continue;
    const ColumnScale scale = ScaleOf(column, session);
    table.Rows.push_back({column.Name, WordFor(column.Role), column.Unit.empty() ? String("-") : column.Unit,
                          PointsText(scale.Curve), ShortestText(scale.Worst), ShortestText(scale.Best)});
  }
  report.Add(std::move(table));
  std::vector<String> descriptions;
  for (const DataColumn& column : project.Columns) {
    if (column.Role == Role::Unused || column.Description.empty()) continue;
    descriptions.push_back(column.Name + ": " + column.Description);
  }
  report.List(std::move(descriptions));
  report.Paragraph(DeparturesText(evaluation));
  report.Paragraph(
      "The curves below show values over scores. Squares: worst and best; dashed: the chord; ticks: the "
      "units.");
  const Dea::Checked checked = Dea::Check(evaluation.Problem);
  for (std::size_t j = 0; j < evaluation.Problem.Columns.size(); ++j) {
    const Dea::Column& column = evaluation.Problem.Columns[j];
    report.Add(ValueCurveChart(column.Name, checked.Scales[j], column.Values), ShownName(column.Name));
  }
}

}  // namespace Tarnwise
