#include "project/SessionText.h"

#include "project/NumberText.h"
#include "project/Sentences.h"
#include "project/Shown.h"
#include "runtime/At.h"

namespace Tarnwise {

namespace {

// The step of value 0 to 1: for trade-offs the whole curve is one.
ColumnScale WholeCurve(const ColumnScale& scale) {
  if (scale.Curve.empty()) return scale;
  ColumnScale whole = scale;
  whole.Worst = scale.Worst > scale.Best ? scale.Curve.back().Score : scale.Curve.front().Score;
  whole.Best = scale.Worst > scale.Best ? scale.Curve.front().Score : scale.Curve.back().Score;
  return whole;
}

struct ComparedPair {
  int Attribute = -1;
  int Reference = -1;
};

// A pair of the group that is going to be compared, or could be; nothing in a group of less than two.
ComparedPair PairOf(const SessionModel& model, bool benefit) {
  const SavedJudgments& saved = model.Data.SavedJudgments;
  ComparedPair pair;
  const Variant& stored = benefit ? saved.SavedBRefAttID : saved.SavedCRefAttID;
  if (model.Resumed) pair.Reference = static_cast<int>(ToDouble(stored));
  for (int i = static_cast<int>(model.Names.size()) - 1; i >= 0; --i) {
    if (model.Data.IsBenefit(i) != benefit) continue;
    if (pair.Reference < 0) {
      pair.Reference = i;
    } else if (i != pair.Reference) {
      pair.Attribute = i;
    }
  }
  return pair;
}

void AddMeanings(const SessionModel& model, const ComparedPair& pair, std::vector<String>& lines) {
  constexpr double kExample = 1.5;
  if (pair.Attribute < 0) return;
  const auto swing = [&model](int i, bool whole) {
    const ColumnScale& scale = model.Scales[At(i)];
    return SwingText(model.Names[At(i)], whole ? WholeCurve(scale) : scale);
  };
  const String given =
      model.Resumed ? String() : "With " + ShownName(model.Names[At(pair.Reference)]) + " as the reference ";
  const String direct = RatioMeaning(kExample, swing(pair.Attribute, false), swing(pair.Reference, false));
  const String traded = RatioMeaning(kExample, swing(pair.Attribute, true), swing(pair.Reference, true));
  lines.push_back((direct == traded ? "" : "Direct comparisons: ") + given + direct);
  if (direct != traded) lines.push_back("Trade-offs: " + given + traded);
}

String RatioText(const SessionAttribute& attribute) {
  const double low = attribute.Low.value_or(0.0);
  const double high = attribute.High.value_or(0.0);
  if (high == 0.0) return "at least " + SignificantText(low, kRatioDigits);
  if (low == 0.0) return "at most " + SignificantText(high, kRatioDigits);
  if (low == high) return SignificantText(low, kRatioDigits);
  return SignificantText(low, kRatioDigits) + " .. " + SignificantText(high, kRatioDigits);
}

bool IsSameRank(const JudgmentSession& session, const SessionAttribute& attribute) {
  return session.Basis == JudgmentBasis::Range && attribute.Low == 1.0 && attribute.High == 1.0;
}

bool HasCross(const Project& project, const JudgmentSession& session) {
  return FindColumn(project, session.BenefitReference) != nullptr &&
         FindColumn(project, session.CostReference) != nullptr;
}

bool IsCrossJudged(const JudgmentSession& session) {
  return session.Cross && session.Cross->Judged && session.Cross->Ratio;
}

String CrossName(const JudgmentSession& session) {
  return ShownName(session.CostReference) + " to " + ShownName(session.BenefitReference);
}

// The used columns but the references.
std::vector<const DataColumn*> Compared(const Project& project, const JudgmentSession& session) {
  std::vector<const DataColumn*> columns;
  for (const DataColumn& column : project.Columns) {
    if (column.Role != Role::Unused && column.Name != ReferenceIn(session, column.Role)) columns.push_back(&column);
  }
  return columns;
}

}  // namespace

std::vector<String> MeaningLines(const SessionModel& model) {
  std::vector<String> lines;
  AddMeanings(model, PairOf(model, false), lines);
  AddMeanings(model, PairOf(model, true), lines);
  return lines;
}

std::vector<String> JudgmentLines(const Project& project, std::size_t session) {
  const JudgmentSession& judged = project.Sessions[session];
  std::vector<String> lines;
  for (const DataColumn* const column : Compared(project, judged)) {
    String line = ShownName(column->Name);
    if (IsJudged(judged, column->Name)) {
      const SessionAttribute& attribute = *FindAttribute(judged, column->Name);
      line += " " + RatioText(attribute) + " times " + ShownName(ReferenceIn(judged, column->Role));
      if (IsSameRank(judged, attribute)) line += " (same rank)";
    } else {
      line += " not judged";
    }
    lines.push_back(line);
  }
  if (IsCrossJudged(judged))
    lines.push_back(CrossName(judged) + " " + SignificantText(*judged.Cross->Ratio, kRatioDigits));
  return lines;
}

std::vector<String> NotJudged(const Project& project, std::size_t session) {
  const JudgmentSession& judged = project.Sessions[session];
  std::vector<String> names;
  for (const DataColumn* const column : Compared(project, judged)) {
    if (!IsJudged(judged, column->Name)) names.push_back(ShownName(column->Name));
  }
  if (HasCross(project, judged) && !IsCrossJudged(judged)) names.push_back(CrossName(judged));
  return names;
}

}  // namespace Tarnwise
