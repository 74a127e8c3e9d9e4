#include "project/Sentences.h"

#include "project/NumberText.h"
#include "project/Shown.h"

namespace Tarnwise {

namespace {

// "Doctors (posts)".
String NameAndMeasure(const Project& project, const String& name) {
  const DataColumn* const column = FindColumn(project, name);
  const String shown = ShownName(name);
  return column == nullptr || column->Unit.empty() ? shown : shown + " (" + ShownName(column->Unit) + ")";
}

String IntervalText(double low, const std::optional<double>& high, const ResultsSigns& signs) {
  if (!high) return signs.AtLeast + SignificantText(low, kRatioDigits);
  if (low == 0.0) return signs.AtMost + SignificantText(*high, kRatioDigits);
  if (low == *high) return " = " + SignificantText(low, kRatioDigits);
  return " = " + SignificantText(low, kRatioDigits) + " .. " + SignificantText(*high, kRatioDigits);
}

}  // namespace

String SwingText(const String& name, const ColumnScale& scale) {
  return ShownName(name) + " from " + ShortestText(scale.Worst) + " to " + ShortestText(scale.Best);
}

String RatioMeaning(double ratio, const String& swing, const String& ofSwing) {
  const String number = ShortestText(ratio);
  return number + " means: " + swing + " is worth " + number + " times " + ofSwing + ".";
}

String JudgedSwing(const Project& project, const JudgmentSession& session, const String& name) {
  const DataColumn* const column = FindColumn(project, name);
  if (session.Basis == JudgmentBasis::Unit || column == nullptr) return "1 " + NameAndMeasure(project, name);
  if (session.Basis == JudgmentBasis::Scale) return ShownName(name) + " over its whole curve";
  return SwingText(name, ScaleOf(*column, &session));
}

String CrossText(const Project& project, const Asked& asked) {
  const JudgmentSession& session = project.Sessions[*asked.Session];
  const auto& cross = session.Cross;
  if (!cross || !cross->Judged || !cross->Ratio || session.CostReference.empty() || session.BenefitReference.empty()) {
    return "Cross ratio not judged: inputs and outputs count in any relation.";
  }
  String ratio = ShortestText(*cross->Ratio);
  if (asked.CrossBand > 1.0) {
    ratio = SignificantText(*cross->Ratio / asked.CrossBand, kRatioDigits) + " to " +
            SignificantText(*cross->Ratio * asked.CrossBand, kRatioDigits);
  }
  return "Cross ratio: " + JudgedSwing(project, session, session.CostReference) + " is worth " + ratio + " times " +
         JudgedSwing(project, session, session.BenefitReference) + ".";
}

String EquivalenceText(const Project& project, const Dea::Problem& problem, const Dea::Equivalence& equivalence,
                       const ResultsSigns& signs) {
  const auto name = [&problem](int column) { return problem.Columns[static_cast<std::size_t>(column)].Name; };
  return "1 " + NameAndMeasure(project, name(equivalence.Column)) +
         IntervalText(equivalence.Low, equivalence.High, signs) + " " + NameAndMeasure(project, name(equivalence.Of));
}

String SessionTitle(const Project& project, std::size_t session) {
  const JudgmentSession& judged = project.Sessions[session];
  String title = "session " + std::to_string(session);
  if (!judged.Made.empty()) title += ", made " + ShownName(judged.Made);
  if (!judged.By.empty()) title += " by " + ShownName(judged.By);
  if (!judged.Note.empty()) title += ": " + ShownName(judged.Note);
  return title;
}

}  // namespace Tarnwise
