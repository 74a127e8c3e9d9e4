#include "project/ReportCharts.h"

#include "dea/Values.h"
#include "project/ChartRows.h"
#include "project/NumberText.h"
#include "project/Shown.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

using UnitList = std::vector<const Dea::UnitResult*>;

// Least and greatest, as a bar shows them; nothing without a score.
std::optional<Dea::Interval> BarOf(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  if (evaluation.How.Form == ScoreForm::Value) return unit.Value;
  if (!unit.Max) return std::nullopt;
  const double other = unit.Min.value_or(*unit.Max);
  return Dea::Interval{std::min(*unit.Max, other), std::max(*unit.Max, other)};
}

bool IsOut(const Evaluation& evaluation) {
  return evaluation.How.Form == ScoreForm::Ratio && evaluation.How.Orientation == ScoreOrientation::Out;
}

// The best case; more is better.
double Goodness(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  const auto bar = BarOf(evaluation, unit);
  if (!bar) return -HUGE_VAL;
  return IsOut(evaluation) ? -bar->Low : bar->High;
}

// Equals stand in the order of the data.
UnitList BestFirst(const Evaluation& evaluation) {
  UnitList units;
  for (const Dea::UnitResult& unit : evaluation.Results.Units) units.push_back(&unit);
  std::stable_sort(units.begin(), units.end(),
                   [&](const auto* a, const auto* b) { return Goodness(evaluation, *a) > Goodness(evaluation, *b); });
  if (units.size() > kMostCharted) units.resize(kMostCharted);
  return units;
}

const String& NameOf(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  return evaluation.Problem.Units[static_cast<std::size_t>(unit.Unit)];
}

std::vector<String> NamesOf(const Evaluation& evaluation, const UnitList& units) {
  std::vector<String> names;
  for (const auto* unit : units) names.push_back(NameOf(evaluation, *unit));
  return names;
}

// Factors of the orientation out begin at 1 and have no end of their own.
ChartAxis ScoreAxis(const Evaluation& evaluation, const UnitList& units) {
  if (!IsOut(evaluation)) return LinearAxis(0.0, 1.0);
  double most = 1.1;
  for (const auto* unit : units) {
    const auto bar = BarOf(evaluation, *unit);
    if (bar && std::isfinite(bar->High)) most = std::max(most, bar->High);
  }
  return LinearAxis(1.0, most);
}

void DescribeScores(const Evaluation& evaluation, const UnitList& units, Drawing& drawing) {
  std::vector<String> items;
  for (const auto* unit : units) {
    const auto bar = BarOf(evaluation, *unit);
    if (!bar) continue;
    items.push_back(ShownName(NameOf(evaluation, *unit)) + " " + FixedText(bar->Low, 3) + " to " +
                    FixedText(bar->High, 3));
  }
  drawing.Description = Enumerated(items, "; ") + ".";
}

// "Doctors 3 to 4.09"
String EndsText(const ChartedRatio& ratio) {
  return ShownName(ratio.Name) + " " + (ratio.Low > 0.0 ? SignificantText(ratio.Low, 4) : String("open")) + " to " +
         (ratio.High ? SignificantText(*ratio.High, 4) : String("open"));
}

constexpr double kLeft = 40.0;
constexpr double kRight = 275.0;
constexpr double kTop = 12.0;
constexpr double kBottom = 150.0;

// A value curve over its scores, or over the performance range where that reaches farther.
struct CurvePicture {
  explicit CurvePicture(const Dea::Scale& scale);
  bool HasLength() const { return Low < High; }
  double X(double score) const { return kLeft + (kRight - kLeft) * (score - Low) / (High - Low); }
  double Y(double score) const { return YOf(Value.At(score)); }
  static double YOf(double value) { return kBottom - (kBottom - kTop) * value; }

  void Describe(const String& name);
  void DrawFrame(const String& name);
  void DrawScores(const std::vector<double>& scores);
  void DrawCurve();

  const Dea::Scale& Scale;
  Dea::ValueFunction Value;
  double Low;
  double High;
  Drawing Picture;
};

CurvePicture::CurvePicture(const Dea::Scale& scale)
    : Scale(scale), Value(scale), Low(std::min(scale.Worst, scale.Best)), High(std::max(scale.Worst, scale.Best)) {
  Picture.Width = 290.0;
  Picture.Height = 190.0;
  if (!scale.ValueCurve) return;
  Low = std::min(Low, scale.ValueCurve->X.front());
  High = std::max(High, scale.ValueCurve->X[static_cast<std::size_t>(scale.ValueCurve->N) - 1]);
}

void CurvePicture::Describe(const String& name) {
  Picture.Description = ShownName(name) + " is worth " + FixedText(Value.At(Scale.Worst), 3) + " at its worst, " +
                        ShortestText(Scale.Worst) + ", and " + FixedText(Value.At(Scale.Best), 3) + " at its best, " +
                        ShortestText(Scale.Best) + ".";
}

void CurvePicture::DrawFrame(const String& name) {
  for (const double value : {0.0, 0.5, 1.0}) {
    Picture.Line(kLeft, YOf(value), kRight, YOf(value), Tone::Pale);
    Picture.Text(kLeft - 6.0, YOf(value) + 4.0, ShortestText(value), Anchor::End, Tone::Dark, 11.0);
  }
  Picture.Line(kLeft, kBottom, kRight, kBottom, Tone::Dark);
  Picture.Text((kLeft + kRight) / 2.0, kBottom + 35.0, ShownName(name), Anchor::Middle, Tone::Dark, 11.0);
}

void CurvePicture::DrawScores(const std::vector<double>& scores) {
  for (const double score : scores) {
    if (score >= Low && score <= High) Picture.Line(X(score), kBottom, X(score), kBottom + 7.0, Tone::Middle);
  }
}

void CurvePicture::DrawCurve() {
  constexpr int kSteps = 120;
  Picture.Line(X(Scale.Worst), Y(Scale.Worst), X(Scale.Best), Y(Scale.Best), Tone::Dark, 1.0, true);
  for (int k = 0; k < kSteps; ++k) {
    const double from = Low + (High - Low) * k / kSteps;
    const double to = Low + (High - Low) * (k + 1) / kSteps;
    Picture.Line(X(from), Y(from), X(to), Y(to), Tone::Black, 2.0);
  }
  for (const double end : {Scale.Worst, Scale.Best}) {
    Picture.Box(X(end) - 3.5, Y(end) - 3.5, X(end) + 3.5, Y(end) + 3.5, Tone::Black);
    Picture.Text(X(end), kBottom + 20.0, ShortestText(end), Anchor::Middle, Tone::Black, 11.0);
  }
}

}  // namespace

Drawing ScoresChart(const Evaluation& evaluation) {
  const UnitList units = BestFirst(evaluation);
  const bool isValue = evaluation.How.Form == ScoreForm::Value;
  ChartRows chart(NamesOf(evaluation, units), ScoreAxis(evaluation, units), isValue ? "value" : "efficiency");
  Drawing& drawing = chart.Picture();
  drawing.Title = isValue ? "Least and greatest value of each unit" : "Efficiency of each unit";
  DescribeScores(evaluation, units, drawing);
  for (std::size_t k = 0; k < units.size(); ++k) {
    const auto bar = BarOf(evaluation, *units[k]);
    if (bar) chart.Bar(k, bar->Low, bar->High, Tone::Middle, 8.0);
    if (evaluation.How.Session && !isValue && units[k]->Free) chart.Tick(k, *units[k]->Free);
  }
  return drawing;
}

Drawing RanksChart(const Evaluation& evaluation) {
  const UnitList units = BestFirst(evaluation);
  ChartRows chart(NamesOf(evaluation, units), WholeAxis(1, static_cast<int>(evaluation.Results.Units.size())), "rank");
  Drawing& drawing = chart.Picture();
  drawing.Title = "Ranks of each unit";
  std::vector<String> items;
  for (std::size_t k = 0; k < units.size(); ++k) {
    if (!units[k]->Ranks) continue;
    const Dea::RankRange& sure = *units[k]->Ranks;
    const Dea::RankRange seen = units[k]->RanksSeen.value_or(sure);
    chart.Bar(k, sure.Best, sure.Worst, Tone::Light, 10.0);
    chart.Bar(k, seen.Best, seen.Worst, Tone::Dark, 4.0);
    items.push_back(ShownName(NameOf(evaluation, *units[k])) + " " + std::to_string(sure.Best) + " to " +
                    std::to_string(sure.Worst));
  }
  drawing.Description = Enumerated(items, "; ") + ".";
  return drawing;
}

Drawing RatiosChart(const String& reference, const std::vector<ChartedRatio>& ratios) {
  double least = 0.5;
  double most = 2.0;
  const auto reach = [&](double ratio) {
    least = std::min(least, ratio);
    most = std::max(most, ratio);
  };
  std::vector<String> names;
  std::vector<String> items;
  for (const ChartedRatio& ratio : ratios) {
    names.push_back(ratio.Name);
    items.push_back(EndsText(ratio));
    if (ratio.Low > 0.0) reach(ratio.Low);
    if (ratio.High) reach(*ratio.High);
  }
  const ChartAxis axis = LogAxis(least / 1.3, most * 1.3);
  ChartRows chart(names, axis, "ratio to " + ShownName(reference) + ", logarithmic");
  Drawing& drawing = chart.Picture();
  drawing.Title = "Judged ratios to " + ShownName(reference);
  drawing.Description = Enumerated(items, "; ") + ". The reference is 1.";
  chart.Mark(1.0);
  for (std::size_t k = 0; k < ratios.size(); ++k) {
    const ChartedRatio& ratio = ratios[k];
    chart.Bar(k, ratio.Low > 0.0 ? ratio.Low : axis.Low, ratio.High.value_or(axis.High), Tone::Middle, 8.0);
    if (ratio.Ratio && *ratio.Ratio > 0.0) chart.Tick(k, *ratio.Ratio);
  }
  return drawing;
}

Drawing ValueCurveChart(const String& name, const Dea::Scale& scale, const std::vector<double>& scores) {
  CurvePicture picture(scale);
  picture.Picture.Title = "Value curve of " + ShownName(name);
  if (!picture.HasLength()) return picture.Picture;
  picture.Describe(name);
  picture.DrawFrame(name);
  picture.DrawScores(scores);
  picture.DrawCurve();
  return picture.Picture;
}

}  // namespace Tarnwise
