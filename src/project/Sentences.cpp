#include "project/Sentences.h"

#include "project/NumberText.h"
#include "project/Shown.h"

namespace Tarnwise {

namespace {

constexpr int kDigits = 5;

// "Doctors (posts)".
String NameAndMeasure(const Project& project, const String& name) {
  const DataColumn* const column = FindColumn(project, name);
  const String shown = ShownName(name);
  return column == nullptr || column->Unit.empty() ? shown : shown + " (" + ShownName(column->Unit) + ")";
}

String IntervalText(double low, const std::optional<double>& high) {
  if (!high) return ">= " + SignificantText(low, kDigits);
  if (low == 0.0) return "<= " + SignificantText(*high, kDigits);
  if (low == *high) return "= " + SignificantText(low, kDigits);
  return "= " + SignificantText(low, kDigits) + " .. " + SignificantText(*high, kDigits);
}

}  // namespace

String SwingText(const String& name, const ColumnScale& scale) {
  return ShownName(name) + " from " + ShortestText(scale.Worst) + " to " + ShortestText(scale.Best);
}

String RatioMeaning(double ratio, const String& swing, const String& ofSwing) {
  const String number = ShortestText(ratio);
  return number + " means: " + swing + " is worth " + number + " times " + ofSwing + ".";
}

String EquivalenceText(const Project& project, const Dea::Problem& problem, const Dea::Equivalence& equivalence) {
  const auto name = [&problem](int column) { return problem.Columns[static_cast<std::size_t>(column)].Name; };
  return "1 " + NameAndMeasure(project, name(equivalence.Column)) + " " +
         IntervalText(equivalence.Low, equivalence.High) + " " + NameAndMeasure(project, name(equivalence.Of));
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
