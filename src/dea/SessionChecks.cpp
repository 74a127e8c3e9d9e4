#include "dea/SessionChecks.h"

#include "dea/Basis.h"
#include "dea/Vectors.h"
#include "dea/Watch.h"
#include "runtime/Text.h"

#include <cmath>

namespace Tarnwise::Dea {

namespace {

bool IsUsable(Double number) { return std::fabs(number) <= kLargest; }

void CheckCurve(const Curve& curve, const String& where) {
  if (curve.N < 2 || curve.N > kMaxCurvePoints) {
    throw Refused(where + ": a curve has 2 to " + std::to_string(kMaxCurvePoints) + " points.");
  }
  for (std::size_t k = 0; k < At(curve.N); ++k) {
    if (!IsUsable(curve.X[k]) || !IsUsable(curve.Y[k]))
      throw Refused(where + ": a point of the curve is no number to compute with.");
    if (k > 0 && !(curve.X[k - 1] < curve.X[k])) throw Refused(where + ": the points of the curve do not ascend.");
  }
}

void CheckScale(const Scale& scale, Role role, const String& where) {
  if (!IsUsable(scale.Worst) || !IsUsable(scale.Best))
    throw Refused(where + ": worst or best is no number to compute with.");
  const bool wrongWay = role == Role::Input ? scale.Best > scale.Worst : scale.Best < scale.Worst;
  if (wrongWay) {
    throw Refused(where + ": worst " + NumberText(scale.Worst) + " and best " + NumberText(scale.Best) +
                  " are the wrong way round for an " + (role == Role::Input ? "input" : "output") + ".");
  }
  if (scale.ValueCurve) CheckCurve(*scale.ValueCurve, where);
}

void TakeScales(const Problem& problem, Checked& checked) {
  for (const Column& column : problem.Columns) {
    CheckScale(column.Range, column.Use, "Column " + column.Name);
    checked.Scales.push_back(column.Range);
  }
  if (!problem.Session) return;
  std::vector<bool> seen(problem.Columns.size());
  for (const Judgment& judgment : problem.Session->Judgments) {
    const String& session = problem.Session->Name;
    if (judgment.Column < 0 || At(judgment.Column) >= problem.Columns.size()) {
      throw Refused(session + ": a judgment is about a column that is not used.");
    }
    const Column& column = problem.Columns[At(judgment.Column)];
    if (seen[At(judgment.Column)]) throw Refused(session + ": column " + column.Name + " is judged twice.");
    seen[At(judgment.Column)] = true;
    if (!judgment.Snapshot) continue;
    CheckScale(*judgment.Snapshot, column.Use, session + ": column " + column.Name);
    checked.Scales[At(judgment.Column)] = *judgment.Snapshot;
  }
}

// The reference of a group: as given, else the only column there is.
int ReferenceIn(const Problem& problem, const std::vector<int>& group, const std::optional<int>& given, Role role) {
  const String name = role == Role::Input ? "cost reference" : "benefit reference";
  if (group.empty()) return -1;
  if (!given) {
    if (problem.Session && group.size() > 1) throw Refused(problem.Session->Name + ": the " + name + " is missing.");
    return group.front();
  }
  if (*given < 0 || At(*given) >= problem.Columns.size()) {
    throw Refused(problem.Session->Name + ": the " + name + " is no used column.");
  }
  const Column& column = problem.Columns[At(*given)];
  if (column.Use != role) {
    throw Refused(problem.Session->Name + ": the " + name + " " + column.Name + " is no " +
                  (role == Role::Input ? "input." : "output."));
  }
  return *given;
}

void TakeReferences(const Problem& problem, Checked& checked) {
  std::optional<int> benefit;
  std::optional<int> cost;
  if (problem.Session) {
    benefit = problem.Session->BenefitReference;
    cost = problem.Session->CostReference;
  }
  checked.BenefitReference =
      ReferenceIn(problem, checked.Outputs, checked.Outputs.empty() ? std::nullopt : benefit, Role::Output);
  checked.CostReference =
      ReferenceIn(problem, checked.Inputs, checked.Inputs.empty() ? std::nullopt : cost, Role::Input);
}

void CheckBounds(const String& where, const Judgment& judgment) {
  for (const Double bound : {judgment.Low, judgment.High}) {
    if (!IsUsable(bound)) throw Refused(where + ": a bound is no number to compute with.");
    if (bound < 0.0) throw Refused(where + ": the bound " + NumberText(bound) + " is negative.");
  }
  if (judgment.High != 0.0 && judgment.Low > judgment.High) {
    throw Refused(where + ": low " + NumberText(judgment.Low) + " is above high " + NumberText(judgment.High) + ".");
  }
}

void TakeJudgment(const Problem& problem, const Judgment& judgment, Checked& checked) {
  if (!judgment.Judged || judgment.Column == checked.ReferenceOf(problem, judgment.Column)) return;
  const String where = problem.Session->Name + ": column " + problem.Columns[At(judgment.Column)].Name;
  CheckBounds(where, judgment);
  if (judgment.Low == 0.0 || judgment.High == 0.0) {
    const String side = judgment.Low != 0.0 ? "The high bound" : judgment.High != 0.0 ? "The low bound" : "Each bound";
    checked.Notes.push_back(where + ": " + side + " is zero and counts as none.");
  }
  if (judgment.Low == 0.0 && judgment.High == 0.0) return;
  JudgedInterval interval;
  interval.AsJudged = {judgment.Low, judgment.High == 0.0 ? kNoBound : judgment.High};
  interval.Ratio = Widened(interval.AsJudged, problem.Options.Widen);
  checked.Judged[At(judgment.Column)] = interval;
}

void NoteWhatIsNotJudged(const Problem& problem, Checked& checked) {
  for (int j = 0; At(j) < problem.Columns.size(); ++j) {
    if (checked.Judged[At(j)] || j == checked.ReferenceOf(problem, j)) continue;
    checked.Notes.push_back(problem.Session->Name + ": column " + problem.Columns[At(j)].Name +
                            " is not judged; its price is free.");
  }
}

void TakeCross(const Problem& problem, Checked& checked) {
  const std::optional<Double>& cross = problem.Session->Cross;
  if (!cross) return;
  if (!(*cross > 0.0) || !IsUsable(*cross)) {
    throw Refused(problem.Session->Name + ": the cross ratio has to be above 0.");
  }
  if (checked.BenefitReference >= 0 && checked.CostReference >= 0) checked.Cross = cross;
}

// What the conversion of a column's judgment divides by.
void WantSpan(const Problem& problem, const Checked& checked, int column) {
  const Session& session = *problem.Session;
  const Span& span = checked.Spans[At(column)];
  const String where = session.Name + ": column " + problem.Columns[At(column)].Name;
  const bool isValue = problem.Options.Form == Form::Value;
  if (span.Score == 0.0 && (session.Basis != Basis::Unit || isValue)) {
    throw Refused(where + ": worst and best are the same, so a judged ratio has no meaning.");
  }
  if (span.Value == 0.0 && (session.Basis == Basis::Scale || isValue)) {
    throw Refused(where + ": the curve has the same value at worst and best, so a judged ratio has no meaning.");
  }
}

void CheckSpans(const Problem& problem, const Checked& checked) {
  if (problem.Options.Form == Form::Value) {
    for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
      if (checked.Scales[j].ValueCurve || checked.Spans[j].Score > 0.0) continue;
      throw Refused("Column " + problem.Columns[j].Name +
                    ": worst and best are the same and there is no curve, so the scores have no values.");
    }
  }
  if (!problem.Session) return;
  for (int j = 0; At(j) < problem.Columns.size(); ++j) {
    if (!checked.Judged[At(j)]) continue;
    WantSpan(problem, checked, j);
    WantSpan(problem, checked, checked.ReferenceOf(problem, j));
  }
  if (problem.Options.Form == Form::Value && checked.Cross && problem.Session->Basis != Basis::Scale) {
    WantSpan(problem, checked, checked.BenefitReference);
    WantSpan(problem, checked, checked.CostReference);
  }
}

}  // namespace

void CheckSession(const Problem& problem, Checked& checked) {
  TakeScales(problem, checked);
  TakeReferences(problem, checked);
  for (const Scale& scale : checked.Scales) checked.Spans.push_back(SpanOf(scale));
  checked.Judged.resize(problem.Columns.size());
  if (problem.Session) {
    for (const Judgment& judgment : problem.Session->Judgments) TakeJudgment(problem, judgment, checked);
    NoteWhatIsNotJudged(problem, checked);
    TakeCross(problem, checked);
  }
  CheckSpans(problem, checked);
}

}  // namespace Tarnwise::Dea
