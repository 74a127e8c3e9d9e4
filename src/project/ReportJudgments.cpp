// What a report says of the judgments: every interval, in the units in which it was judged.
#include "project/NumberText.h"
#include "project/Report.h"
#include "project/ReportCharts.h"
#include "project/Sentences.h"
#include "project/Shown.h"

namespace Tarnwise {

namespace {

constexpr const char* kNotJudged = "not judged";

String BoundOf(const std::optional<double>& bound) {
  return bound && *bound > 0.0 ? ShortestText(*bound) : String("none");
}

// "Doctors from 60 to 15 is worth 3 to 4.09 times Nurses from 320 to 120."
String MeaningOf(const Project& project, const JudgmentSession& session, const SessionAttribute& judged,
                 const String& reference) {
  const double low = judged.Low.value_or(0.0);
  const double high = judged.High.value_or(0.0);
  String ratio = ShortestText(low);
  if (high == 0.0) ratio += " or more";
  if (low == 0.0) ratio = "at most " + ShortestText(high);
  if (low > 0.0 && high > low) ratio += " to " + ShortestText(high);
  return JudgedSwing(project, session, judged.Name) + " is worth " + ratio + " times " +
         JudgedSwing(project, session, reference) + ".";
}

ChartedRatio RatioOf(const SessionAttribute& judged) {
  ChartedRatio ratio;
  ratio.Name = judged.Name;
  ratio.Low = judged.Low.value_or(0.0);
  ratio.Ratio = judged.Ratio;
  if (judged.High.value_or(0.0) > 0.0) ratio.High = judged.High;
  return ratio;
}

void AddGroup(const Project& project, const JudgmentSession& session, Role role, Report& report) {
  const String& reference = ReferenceIn(session, role);
  if (ColumnsIn(project, role).size() < 2) return;
  report.Subsection(role == Role::Input ? "Inputs" : "Outputs");
  ReportTable table{"Ratios to " + reference, {"Attribute", "Meaning", "Low", "High"}, {}, 2};
  std::vector<ChartedRatio> ratios;
  for (const std::size_t j : ColumnsIn(project, role)) {
    const String& name = project.Columns[j].Name;
    if (name == reference) {
      table.Rows.push_back({name, "the reference", "1", "1"});
      continue;
    }
    if (!IsJudged(session, name)) {
      table.Rows.push_back({name, String(kNotJudged) + ": its weight is free", "none", "none"});
      continue;
    }
    const SessionAttribute& judged = *FindAttribute(session, name);
    table.Rows.push_back(
        {name, MeaningOf(project, session, judged, reference), BoundOf(judged.Low), BoundOf(judged.High)});
    ratios.push_back(RatioOf(judged));
  }
  report.Add(std::move(table));
  if (ratios.empty()) return;
  report.Add(RatiosChart(reference, ratios),
             "Bars: the judged intervals, to the edge where there is no bound. Ticks: the ratios in their middle. "
             "Dashed: the reference.");
}

}  // namespace

void AddJudgments(const Project& project, const Evaluation& evaluation, Report& report) {
  report.Section("Judgments");
  if (!evaluation.How.Session) {
    report.Paragraph("None: every weight is free.");
    return;
  }
  const JudgmentSession& session = project.Sessions[*evaluation.How.Session];
  AddGroup(project, session, Role::Input, report);
  AddGroup(project, session, Role::Output, report);
  report.Subsection("What that says of one unit each");
  std::vector<String> equivalences;
  for (const Dea::Equivalence& equivalence : evaluation.Results.Equivalences) {
    equivalences.push_back(EquivalenceText(project, evaluation.Problem, equivalence));
  }
  if (equivalences.empty()) report.Paragraph("Nothing: no ratio was judged.");
  report.List(std::move(equivalences));
  if (evaluation.How.Widen > 1.0) {
    report.Paragraph("All intervals were widened " + SignificantText(evaluation.How.Widen, 4) +
                     " times in log ratio for these results.");
  }
  report.Subsection("Between the groups");
  report.Paragraph(CrossText(project, evaluation.How));
  if (evaluation.How.Form == ScoreForm::Ratio) {
    report.Paragraph(
        "The ratio form does not use it: what all outputs are worth against all inputs scales every "
        "unit alike.");
  }
}

}  // namespace Tarnwise
