#include "project/SessionModel.h"

#include "modelfiles/PlainJson.h"
#include "modelfiles/WholeFile.h"
#include "project/CsvRows.h"
#include "project/NiceRange.h"
#include "project/ProjectChecks.h"
#include "project/ResumeSession.h"
#include "project/Shown.h"
#include "runtime/At.h"
#include "runtime/CodePage.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace Tarnwise {

namespace {

constexpr const char* kBenefit = "0";
constexpr const char* kCost = "1";

// Names that lost letters may be the same; people have to tell them apart.
String Distinct(const String& name, std::set<String>& taken) {
  String distinct = name;
  for (int k = 2; !taken.insert(distinct).second; ++k) distinct = name + " (" + std::to_string(k) + ")";
  return distinct;
}

void NameAttribute(const DataColumn& column, int i, const CodePage& texts, std::set<String>& taken,
                   SessionModel& model) {
  const String name = OnOneLine(column.Name);
  const String shown = Distinct(InCodePage(name, texts), taken);
  AttributeList& list = model.Data.AttributeList;
  list.AttName[i] = shown;
  if (shown != name) {
    model.Notes.push_back(Shown(name) + " is called " + Shown(shown) + " in the wizard: " + texts.Name +
                          " lacks some of its letters.");
  }
  String description = column.Description;
  if (!column.Unit.empty()) description += (description.empty() ? "" : ", ") + String("in ") + column.Unit;
  list.AttDescription[i] = InCodePage(OnOneLine(description), texts);
}

std::vector<ValuePoint> CurveOf(const ColumnScale& scale) {
  if (!scale.Curve.empty()) return scale.Curve;
  return {{std::fmin(scale.Worst, scale.Best), 0.0}, {std::fmax(scale.Worst, scale.Best), 1.0}};
}

// Scores are Singles where alternatives are compared.
void LookAtSingles(const String& name, const Range& range, SessionModel& model) {
  const double largest = std::numeric_limits<Single>::max();
  const bool fits = std::fabs(range.Low) < largest && std::fabs(range.High) < largest;
  if (fits && static_cast<Single>(range.Low) < static_cast<Single>(range.High)) return;
  model.Notes.push_back(ShownName(name) +
                        ": the wizard's trade-offs can't tell its scores apart; take direct comparisons.");
}

void ScaleAttribute(const DataColumn& column, int i, SessionModel& model) {
  const ColumnScale scale = ScaleOf(column, nullptr);
  if (scale.Worst == scale.Best) {
    throw ModelFault("column " + ShownName(column.Name) +
                     ": worst and best are the same, so there is nothing to judge");
  }
  const std::vector<ValuePoint> curve = CurveOf(scale);
  Range range = RoundedOutward(std::fmin(scale.Worst, scale.Best), std::fmax(scale.Worst, scale.Best));
  range.Low = std::fmin(range.Low, curve.front().Score);
  range.High = std::fmax(range.High, curve.back().Score);
  LookAtSingles(column.Name, range, model);
  AttValueData& values = model.Data.AttValueData;
  values.ScoreMin[i] = range.Low;
  values.ScoreMax[i] = range.High;
  values.WorstScore[i] = scale.Worst;
  values.BestScore[i] = scale.Best;
  values.ValuePointCount[i] = static_cast<Integer>(curve.size());
  for (int k = 0; At(k) < curve.size(); ++k) {
    values.ValuePointX(i, k) = curve[At(k)].Score;
    values.ValuePointY(i, k) = curve[At(k)].Value;
  }
  model.Scales.push_back(scale);
}

SessionModel Fresh(const Project& project, const CodePage& texts) {
  SessionModel model;
  std::set<String> taken;
  for (const DataColumn& column : project.Columns) {
    if (column.Role == Role::Unused) continue;
    const int i = static_cast<int>(model.Names.size());
    model.Names.push_back(column.Name);
    NameAttribute(column, i, texts, taken, model);
    model.Data.AttributeList.AttOrientation[i] = column.Role == Role::Output ? kBenefit : kCost;
    ScaleAttribute(column, i, model);
  }
  const int count = static_cast<int>(model.Names.size());
  model.Data.ModelHeader.NumAtts = static_cast<Integer>(count);
  model.Points = ZeroPoints(count);
  return model;
}

std::optional<std::size_t> SessionToResume(const Project& project, const SessionModel& model,
                                           const Beginning& beginning) {
  if (beginning.Fresh) return std::nullopt;
  if (beginning.Session) {
    if (CanResume(project, model, *beginning.Session)) return beginning.Session;
    throw ModelFault("session " + std::to_string(*beginning.Session) +
                     " does not fit: its references are not in their groups, or its scales have no range");
  }
  for (std::size_t session = project.Sessions.size(); session-- > 0;) {
    if (CanResume(project, model, session)) return session;
  }
  return std::nullopt;
}

bool IsUsable(const Judgments& judgments, int i) {
  const double low = ToDouble(judgments.WeightsL[At(i)]);
  const double high = ToDouble(judgments.WeightsH[At(i)]);
  return std::isfinite(low) && std::isfinite(high) && low > 0.0 && low <= high;
}

bool CameBack(const SessionModel& model, const Judgments& judgments, int i) {
  return std::any_of(model.Placeholders.begin(), model.Placeholders.end(), [&](const Placeholder& placeholder) {
    return placeholder.Attribute == i && placeholder.Low == ToDouble(judgments.WeightsL[At(i)]) &&
           placeholder.Ratio == ToDouble(judgments.Weights[At(i)]) &&
           placeholder.High == ToDouble(judgments.WeightsH[At(i)]);
  });
}

std::optional<double> Finite(const Variant& value) {
  const double number = ToDouble(value);
  return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

SessionAttribute AttributeOf(const SessionModel& model, const Judgments& judgments, const WizardData& after, int i) {
  SessionAttribute attribute;
  attribute.Name = model.Names[At(i)];
  attribute.Low = Finite(judgments.WeightsL[At(i)]);
  attribute.Ratio = Finite(judgments.Weights[At(i)]);
  attribute.High = Finite(judgments.WeightsH[At(i)]);
  const int reference = model.Data.IsBenefit(i) ? judgments.BRefAttID : judgments.CRefAttID;
  attribute.Judged =
      i == reference || (after.WeightDone[i] && IsUsable(judgments, i) && !CameBack(model, judgments, i));
  attribute.Snapshot = model.Scales[At(i)];
  return attribute;
}

bool HasGroup(const SessionModel& model, bool benefit) {
  for (int i = 0; At(i) < model.Names.size(); ++i) {
    if (model.Data.IsBenefit(i) == benefit) return true;
  }
  return false;
}

// Until somebody enters one it is an Integer.
SessionCross CrossOf(const Variant& ratio) {
  SessionCross cross;
  cross.Ratio = Finite(ratio);
  cross.Judged = !std::holds_alternative<Integer>(ratio) && cross.Ratio && *cross.Ratio > 0.0;
  return cross;
}

}  // namespace

String InCodePage(const String& text, const CodePage& texts) {
  if (texts.ToBytes(text)) return text;
  String kept;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t size = 1;
    while (i + size < text.size() && (static_cast<unsigned char>(text[i + size]) & 0xC0U) == 0x80U) ++size;
    const String character = text.substr(i, size);
    kept += texts.ToBytes(character) ? character : String("?");
    i += size;
  }
  return kept;
}

SessionModel SessionModelOf(const Project& project, const Beginning& beginning, const CodePage& texts) {
  const std::size_t inputs = ColumnsIn(project, Role::Input).size();
  const std::size_t outputs = ColumnsIn(project, Role::Output).size();
  if (inputs + outputs < 2) {
    throw ModelFault("columns: " + CountOf(inputs + outputs, "input or output") + ", so there is nothing to judge");
  }
  if (inputs + outputs > kMostAttributes) {
    throw ModelFault("columns: " + std::to_string(inputs + outputs) + " are inputs and outputs, more than " +
                     std::to_string(kMostAttributes) + ", the most that can be judged");
  }
  SessionModel model = Fresh(project, texts);
  model.Resumed = SessionToResume(project, model, beginning);
  if (model.Resumed) Resume(project, *model.Resumed, model);
  if (!model.Resumed && !beginning.Fresh && !project.Sessions.empty()) {
    model.Notes.emplace_back("No earlier session fits the columns of today; the wizard begins afresh.");
  }
  return model;
}

JudgmentSession SessionOf(const SessionModel& model, const Judgments& judgments, const WizardData& after) {
  JudgmentSession session;
  session.Approach = judgments.RJType;
  session.Basis = judgments.RJType == kDirectType ? JudgmentBasis::Range : JudgmentBasis::Scale;
  const bool benefits = HasGroup(model, true);
  const bool costs = HasGroup(model, false);
  if (benefits) session.BenefitReference = model.Names[At(judgments.BRefAttID)];
  if (costs) session.CostReference = model.Names[At(judgments.CRefAttID)];
  if (benefits && costs) session.Cross = CrossOf(judgments.RefAttWR);
  for (int i = 0; At(i) < model.Names.size(); ++i) {
    session.Attributes.push_back(AttributeOf(model, judgments, after, i));
  }
  if (judgments.TradeOffs) session.Points = ToJson(ResumablePoints(*judgments.TradeOffs)).dump();
  return session;
}

}  // namespace Tarnwise
