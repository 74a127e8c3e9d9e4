#include "project/ResumeSession.h"

#include "dea/Basis.h"
#include "modelfiles/PlainJson.h"
#include "project/Evaluation.h"
#include "project/ProjectChecks.h"
#include "project/Shown.h"
#include "runtime/At.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace Tarnwise {

namespace {

// Everything that is read off the project for one session.
struct Source {
  const Project& From;
  const JudgmentSession& Session;
  const SessionModel& Model;
  std::vector<ColumnScale> Scales;  // those that were judged on, by the model's attributes
  int BenefitReference = -1;        // attributes of the model; -1 where there is none
  int CostReference = -1;
  bool OtherReference = false;  // a group of one is its own reference now

  int ReferenceOf(int attribute) const { return Model.Data.IsBenefit(attribute) ? BenefitReference : CostReference; }
  int Attributes() const { return static_cast<int>(Model.Names.size()); }
  const SessionAttribute* Judged(int attribute) const { return FindAttribute(Session, Model.Names[At(attribute)]); }
};

// The group's reference; -1 where the group is empty, or its reference is not in it.
int ReferenceOf(Source& source, Role role) {
  std::vector<int> group;
  int found = -1;
  for (int i = 0; i < source.Attributes(); ++i) {
    if (source.Model.Data.IsBenefit(i) != (role == Role::Output)) continue;
    group.push_back(i);
    if (source.Model.Names[At(i)] == ReferenceIn(source.Session, role)) found = i;
  }
  if (found >= 0 || group.size() != 1) return found;
  source.OtherReference = source.OtherReference || !ReferenceIn(source.Session, role).empty();
  return group.front();
}

Source SourceOf(const Project& project, const SessionModel& model, std::size_t session) {
  Source source{project, project.Sessions[session], model, {}, -1, -1, false};
  for (const String& name : model.Names) source.Scales.push_back(ScaleOf(*FindColumn(project, name), &source.Session));
  source.BenefitReference = ReferenceOf(source, Role::Output);
  source.CostReference = ReferenceOf(source, Role::Input);
  return source;
}

Dea::Span SpanOf(const ColumnScale& scale) { return Dea::SpanOf(ScaleForDea(scale)); }

bool SameScales(const Source& source) { return source.Scales == source.Model.Scales; }

// A ratio of the session as one of the basis that the wizard's approach has, on the scales of today. No number above
// zero where it can't be told.
double Converted(const Source& source, JudgmentBasis to, double ratio, int attribute, int reference) {
  const bool same = source.Scales[At(attribute)] == source.Model.Scales[At(attribute)] &&
                    source.Scales[At(reference)] == source.Model.Scales[At(reference)];
  if (same && source.Session.Basis == to) return ratio;
  const double price = Dea::PricePerUnit(BasisForDea(source.Session.Basis), ratio, SpanOf(source.Scales[At(attribute)]),
                                         SpanOf(source.Scales[At(reference)]));
  const Dea::Span own = SpanOf(source.Model.Scales[At(attribute)]);
  const Dea::Span other = SpanOf(source.Model.Scales[At(reference)]);
  if (to == JudgmentBasis::Range) return price / Dea::PricePerUnit(Dea::Basis::Range, 1.0, own, other);
  return Dea::WeightOnScale(Dea::Basis::Unit, price, own, other);
}

bool IsRatio(double ratio) { return std::isfinite(ratio) && ratio > 0.0; }

struct Interval {
  double Low = 0.0;
  double Ratio = 0.0;
  double High = 0.0;

  bool IsUsable() const { return IsRatio(Low) && IsRatio(Ratio) && IsRatio(High) && Low <= Ratio && Ratio <= High; }
};

// The attribute's numbers in the session, whether they were judged or not; nothing that could be handed over where a
// bound is missing.
Interval NumbersOf(const Source& source, JudgmentBasis to, int attribute) {
  const SessionAttribute* const judged = source.Judged(attribute);
  if (judged == nullptr || !judged->Low || !judged->High) return {};
  const int reference = source.ReferenceOf(attribute);
  const auto convert = [&](double ratio) { return Converted(source, to, ratio, attribute, reference); };
  Interval interval{convert(*judged->Low), 0.0, convert(*judged->High)};
  const double middle = (interval.Low + interval.High) / 2.0;
  interval.Ratio = judged->Ratio ? convert(*judged->Ratio) : middle;
  if (!interval.IsUsable()) interval.Ratio = middle;
  return interval;
}

std::optional<PointArrays> PointsOf(const Source& source) {
  if (source.Session.Approach != kTradeOffsType || source.Session.Basis != JudgmentBasis::Scale) return std::nullopt;
  if (source.Session.Points.empty() || !SameScales(source)) return std::nullopt;
  if (source.Session.Attributes.size() != source.Model.Names.size()) return std::nullopt;
  for (int i = 0; i < source.Attributes(); ++i) {
    if (source.Session.Attributes[At(i)].Name != source.Model.Names[At(i)]) return std::nullopt;
  }
  const Json points = Json::parse(source.Session.Points, nullptr, false);
  PointArrays arrays;
  for (std::size_t f = 0; f < arrays.size(); ++f) {
    if (!points.is_object() || !points.contains(kPointNames[f]) || !points[kPointNames[f]].is_array())
      return std::nullopt;
    for (const Json& value : points[kPointNames[f]]) {
      if (!value.is_number()) return std::nullopt;
      arrays[f].emplace_back(value.get<double>());
    }
  }
  try {
    (void)PointsOf(arrays, source.Attributes());
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
  return arrays;
}

String NamesText(const std::vector<String>& names) {
  std::vector<String> shown;
  for (const String& name : names) shown.push_back(ShownName(name));
  return Enumerated(shown);
}

void Tell(SessionModel& model, const std::vector<String>& names, const char* what) {
  if (!names.empty()) model.Notes.push_back(NamesText(names) + what);
}

void TellOfChanges(const Source& source, SessionModel& model) {
  std::vector<String> gone;
  for (const SessionAttribute& attribute : source.Session.Attributes) {
    const bool isThere = std::find(model.Names.begin(), model.Names.end(), attribute.Name) != model.Names.end();
    if (attribute.Judged && !isThere) gone.push_back(attribute.Name);
  }
  Tell(model, gone, ": judged last time, but no input or output any more; that judgment is left.");
  std::vector<String> changed;
  for (int i = 0; i < source.Attributes(); ++i) {
    if (!(source.Scales[At(i)] == model.Scales[At(i)])) changed.push_back(model.Names[At(i)]);
  }
  Tell(model, changed, ": the scale has changed since; the ratios are converted to the one of today.");
}

// Numbers that no judgment gives: it has a few decimals.
Interval NotToBeEntered(Interval interval) {
  constexpr double kJustBelow = 1.0 - 0x1p-40;
  return {interval.Low * kJustBelow, interval.Ratio * kJustBelow, interval.High * kJustBelow};
}

void Put(SessionModel& model, int attribute, const Interval& interval) {
  SavedJudgments& saved = model.Data.SavedJudgments;
  saved.SavedWeightsL[attribute] = interval.Low;
  saved.SavedWeights[attribute] = interval.Ratio;
  saved.SavedWeightsH[attribute] = interval.High;
}

void PutPlaceholder(SessionModel& model, int attribute, const Interval& interval) {
  const Interval numbers = NotToBeEntered(interval);
  Put(model, attribute, numbers);
  model.Placeholders.push_back({attribute, numbers.Low, numbers.Ratio, numbers.High});
}

// What is new stands behind all others of its group.
void PutNew(const std::vector<int>& attributes, SessionModel& model) {
  constexpr double kBehind = 0.8;
  for (const int attribute : attributes) {
    double least = 1.0;
    for (int i = 0; At(i) < model.Names.size(); ++i) {
      const double ratio = model.Data.SavedJudgments.SavedWeights[i];
      if (model.Data.IsBenefit(i) == model.Data.IsBenefit(attribute) && ratio > 0.0) least = std::fmin(least, ratio);
    }
    PutPlaceholder(model, attribute, {least * kBehind, least * kBehind, least * kBehind});
  }
}

void PutJudgments(const Source& source, JudgmentBasis basis, SessionModel& model) {
  std::vector<int> added;
  std::vector<String> newNames;
  std::vector<String> notJudged;
  for (int i = 0; i < source.Attributes(); ++i) {
    if (i == source.ReferenceOf(i)) {
      Put(model, i, {1.0, 1.0, 1.0});
      continue;
    }
    const SessionAttribute* const judged = source.Judged(i);
    const Interval interval = NumbersOf(source, basis, i);
    if (!interval.IsUsable()) {
      added.push_back(i);
      (judged == nullptr ? newNames : notJudged).push_back(model.Names[At(i)]);
    } else if (judged->Judged) {
      Put(model, i, interval);
    } else {
      PutPlaceholder(model, i, interval);
      notJudged.push_back(model.Names[At(i)]);
    }
  }
  PutNew(added, model);
  Tell(model, newNames, ": not in that session; not judged until you judge it.");
  Tell(model, notJudged, ": not judged in that session, or without a bound; not judged until you judge it.");
}

Variant CrossOf(const Source& source, JudgmentBasis basis) {
  const std::optional<SessionCross>& cross = source.Session.Cross;
  const Variant none = static_cast<Integer>(1);
  if (!cross || !cross->Judged || !cross->Ratio || source.OtherReference) return none;
  if (source.BenefitReference < 0 || source.CostReference < 0) return none;
  const double ratio = Converted(source, basis, *cross->Ratio, source.CostReference, source.BenefitReference);
  return IsRatio(ratio) ? Variant(ratio) : none;
}

Variant IdOf(int attribute) { return static_cast<Integer>(std::max(attribute, 0)); }

void TellMergedRanks(SessionModel& model) {
  std::map<std::pair<bool, double>, std::vector<String>> ranks;
  for (int i = 0; At(i) < model.Names.size(); ++i) {
    ranks[{model.Data.IsBenefit(i), model.Data.SavedJudgments.SavedWeights[i]}].push_back(model.Names[At(i)]);
  }
  for (const auto& [rank, names] : ranks) {
    if (names.size() < 2) continue;
    model.Notes.push_back(
        NamesText(names) + " come back on one rank: the wizard ranks by the middles of the intervals, " +
        "and theirs are all " + SignificantText(rank.second, 4) + ". Changing the order begins all ratios anew.");
  }
}

bool HasRange(const Source& source, int reference) {
  if (reference < 0) return true;
  for (const ColumnScale& scale : {source.Scales[At(reference)], source.Model.Scales[At(reference)]}) {
    const Dea::Span span = SpanOf(scale);
    if (span.Score == 0.0 || span.Value == 0.0) return false;
  }
  return true;
}

}  // namespace

bool CanResume(const Project& project, const SessionModel& model, std::size_t session) {
  const Source source = SourceOf(project, model, session);
  const auto isMissing = [&source](int reference, Role role) {
    return reference < 0 && !ColumnsIn(source.From, role).empty();
  };
  if (isMissing(source.BenefitReference, Role::Output) || isMissing(source.CostReference, Role::Input)) return false;
  return HasRange(source, source.BenefitReference) && HasRange(source, source.CostReference);
}

void Resume(const Project& project, std::size_t session, SessionModel& model) {
  const SessionModel fresh = model;
  const Source source = SourceOf(project, fresh, session);
  const std::optional<PointArrays> points = PointsOf(source);
  const JudgmentBasis basis = points ? JudgmentBasis::Scale : JudgmentBasis::Range;
  SavedJudgments& saved = model.Data.SavedJudgments;
  saved.RJType = points ? kTradeOffsType : kDirectType;
  saved.SavedBRefAttID = IdOf(source.BenefitReference);
  saved.SavedCRefAttID = IdOf(source.CostReference);
  saved.SavedRefAttWR = CrossOf(source, basis);
  if (points) {
    model.Points = *points;
  } else if (source.Session.Approach == kTradeOffsType) {
    model.Notes.emplace_back("The points of the trade-offs do not hold any more; new ones follow from the ratios.");
  }
  TellOfChanges(source, model);
  PutJudgments(source, basis, model);
  TellMergedRanks(model);
}

}  // namespace Tarnwise
