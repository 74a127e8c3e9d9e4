#include "curves/Akima.h"
#include "modelfiles/ModelJson.h"
#include "modelfiles/ModelWriter.h"
#include "runtime/Text.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr Double kRounding = 1e-9;  // of values

using Warnings = std::vector<String>;

void LookAtScale(const WizardData& data, int i, const String& whose, Warnings& warnings) {
  const AttValueData& values = data.AttValueData;
  if (!(values.ScoreMin[i] < values.ScoreMax[i])) {
    warnings.push_back("scoreMin of " + whose + " is not below its scoreMax");
  }
  const Double worst = values.WorstScore[i];
  const Double best = values.BestScore[i];
  if (data.IsBenefit(i) && worst > best)
    warnings.push_back("worst and best of " + whose + " look reversed: more is better");
  if (data.IsCost(i) && worst < best)
    warnings.push_back("worst and best of " + whose + " look reversed: less is better");
}

void LookAtOrientation(const WizardData& data, int i, const String& whose, Warnings& warnings) {
  if (data.IsBenefit(i) || data.IsCost(i)) {
    // Text that is no number counts as 0.
    const String& text = data.AttributeList.AttOrientation[i];
    if (text.find_first_of("0123456789") != String::npos) return;
    warnings.push_back("orientation of " + whose + " is \"" + text + "\", which counts as benefit");
    return;
  }
  warnings.push_back("orientation of " + whose + " is neither benefit nor cost: it stands in no group");
}

// The points as numbers; false where one is none.
bool CurveNumbers(const AttValueData& values, int i, int count, std::vector<Double>& xs, std::vector<Double>& ys) {
  try {
    for (int k = 0; k < count; ++k) {
      xs.push_back(ToDouble(values.ValuePointX(i, k)));
      ys.push_back(ToDouble(values.ValuePointY(i, k)));
    }
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

// How far a cubic, d from 0 to the width, falls at most.
Double FallOf(const Coefs& cubic, Double width) {
  std::vector<Double> turns{0.0, width};
  const Double a = 3.0 * cubic[3];
  const Double b = cubic[2];
  const Double root = std::sqrt(b * b - a * cubic[1]);
  const Double q = -(b + std::copysign(root, b));
  for (const Double d : {q / a, cubic[1] / q}) {
    if (d > 0.0 && d < width) turns.push_back(d);  // not where there is none
  }
  std::sort(turns.begin(), turns.end());
  Double fall = 0.0;
  for (std::size_t k = 1; k < turns.size(); ++k) {
    fall = std::fmax(fall, EvaluateCubic(cubic, turns[k - 1]) - EvaluateCubic(cubic, turns[k]));
  }
  return fall;
}

// Points that rise may have a curve between them that swings.
void LookBetweenPoints(const std::vector<Double>& xs, const std::vector<Double>& ys, const String& whose,
                       Warnings& warnings) {
  Curve curve;
  curve.N = static_cast<int>(xs.size());
  std::copy(xs.begin(), xs.end(), curve.X.begin());
  std::copy(ys.begin(), ys.end(), curve.Y.begin());
  for (int k = 0; k + 1 < curve.N; ++k) {
    const auto at = static_cast<std::size_t>(k);
    const Double fall = FallOf(AkimaInterpolate(curve, k, xs[at]), xs[at + 1] - xs[at]);
    if (!(fall > kRounding)) continue;
    warnings.push_back("curve of " + whose + " falls between its points at " + NumberText(xs[at]) + " and " +
                       NumberText(xs[at + 1]) + ", by " + NumberText(std::round(fall * 1e6) / 1e6) +
                       ": another point there, or less of a bend, helps");
  }
}

void LookAtCurve(const WizardData& data, int i, const String& whose, Warnings& warnings) {
  const int count = data.AttValueData.ValuePointCount[i];
  if (count < 1 || count > kMaxCurvePoints) {
    warnings.push_back("curve of " + whose + " has " + std::to_string(count) + " points: trade-offs need 1 to 11");
    return;
  }
  std::vector<Double> xs;
  std::vector<Double> ys;
  if (!CurveNumbers(data.AttValueData, i, count, xs, ys)) {
    warnings.push_back("curve of " + whose + " has a point that is not a number");
    return;
  }
  const bool ascends =
      std::adjacent_find(xs.begin(), xs.end(), [](Double a, Double b) { return !(a < b); }) == xs.end();
  const bool falls = !std::is_sorted(ys.begin(), ys.end());
  if (!ascends) warnings.push_back("curve of " + whose + ": its scores do not ascend");
  if (falls) {
    warnings.push_back("curve of " + whose + " falls: the curve of a cost too rises, it says how much cost there is");
  }
  if (std::any_of(ys.begin(), ys.end(), [](Double y) { return !(y >= 0.0 && y <= 1.0); })) {
    warnings.push_back("curve of " + whose + " has a value outside 0 to 1");
  }
  if (!ascends || falls) return;
  try {
    LookBetweenPoints(xs, ys, whose, warnings);
  } catch (const RuntimeError&) {
    warnings.push_back("curve of " + whose + " can't be interpolated");
  }
}

}  // namespace

std::vector<String> ModelWarnings(const WizardData& data) {
  Warnings warnings;
  const int count = data.NumAtts();
  if (count < 0 || count > kMaxAtts) {
    warnings.push_back("there are said to be " + std::to_string(count) + " attributes, the wizard can do 0 to 31");
  }
  for (int i = 0; i < std::clamp(count, 0, kMaxAtts); ++i) {
    const String whose = NameInMessages("attribute", i, data.AttName(i));
    LookAtOrientation(data, i, whose, warnings);
    LookAtScale(data, i, whose, warnings);
    LookAtCurve(data, i, whose, warnings);
  }
  const String& type = data.RJType();
  if (!type.empty() && !data.HasStoredJudgments()) {
    warnings.push_back("type of judgments is \"" + type + "\": only DEA_DIRECT and DEA_TRADEOFFS are resumed");
  }
  return warnings;
}

}  // namespace Tarnwise
